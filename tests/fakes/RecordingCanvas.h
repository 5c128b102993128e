// RecordingCanvas.h - a canvas that writes down every call, its calls issued again, and a canvas that only counts.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Canvas.h"

struct CanvasCall {
    std::string name;  // pen, brush, line, polyline, polygon, ellipse, path, clip, unclip, text
    // Of a drawing call: what was selected then. Of pen and brush: what was selected now.
    int penWidth = platform::kNoPen;
    platform::Colour pen = 0;
    platform::Colour brush = platform::kNoBrush;
    std::vector<platform::Pixel> points;  // an ellipse's are its left top and right bottom
    platform::Path path;
    std::string text;
    platform::TextRun run;  // its text points nowhere; see `text`
    int clipDepth = 0;

    bool Draws() const { return name != "pen" && name != "brush" && name != "clip" && name != "unclip"; }
};

struct RecordingCanvas {
    RecordingCanvas();
    RecordingCanvas(const RecordingCanvas&) = delete;
    RecordingCanvas& operator=(const RecordingCanvas&) = delete;

    platform::Canvas canvas;
    std::vector<CanvasCall> calls;
    int clipDepth = 0;

    std::vector<CanvasCall> Drawn() const;  // without pens, brushes and clips
    std::vector<CanvasCall> Drawn(const std::string& name) const;
    // Drawing calls with this fill, or with this pen.
    std::vector<CanvasCall> FilledWith(platform::Colour brush) const;
    std::vector<CanvasCall> StrokedWith(platform::Colour pen) const;
    // Index of the first drawing call with the fill or pen; -1 when there is none.
    int FirstWith(platform::Colour colour) const;
};

// What was written down, ready to be issued again without looking at names. The calls must outlive the steps.
struct ReplayStep {
    void (*issue)(platform::Canvas* canvas, const CanvasCall& call);
    const CanvasCall* call;
};
std::vector<ReplayStep> ReplaySteps(const std::vector<CanvasCall>& calls);
void Replay(const std::vector<ReplayStep>& steps, platform::Canvas* canvas);  // past the canvas's caches

struct CallCounts {
    uint64_t pens = 0, brushes = 0, shapes = 0, points = 0, texts = 0, clips = 0;
};
platform::Canvas CountingCanvas(CallCounts* counts);
