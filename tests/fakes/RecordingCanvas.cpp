// RecordingCanvas.cpp - see RecordingCanvas.h.
#include "RecordingCanvas.h"

using platform::CanvasCalls;
using platform::Colour;
using platform::Path;
using platform::Pixel;
using platform::PixelRect;
using platform::TextRun;

namespace {

RecordingCanvas& Log(void* target) { return *static_cast<RecordingCanvas*>(target); }

CanvasCall& Add(void* target, const char* name) {
    RecordingCanvas& log = Log(target);
    CanvasCall call;
    if (!log.calls.empty()) {
        const CanvasCall& before = log.calls.back();
        call.penWidth = before.penWidth;
        call.pen = before.pen;
        call.brush = before.brush;
    }
    call.name = name;
    call.clipDepth = log.clipDepth;
    log.calls.push_back(call);
    return log.calls.back();
}

void Pen(void* target, int width, Colour colour) {
    CanvasCall& call = Add(target, "pen");
    call.penWidth = width;
    call.pen = colour;
}
void Brush(void* target, Colour colour) { Add(target, "brush").brush = colour; }
void Line(void* target, Pixel from, Pixel to) { Add(target, "line").points = { from, to }; }
void Polyline(void* target, std::span<const Pixel> points) {
    Add(target, "polyline").points.assign(points.begin(), points.end());
}
void Polygon(void* target, std::span<const Pixel> points) {
    Add(target, "polygon").points.assign(points.begin(), points.end());
}
void Ellipse(void* target, PixelRect box) {
    Add(target, "ellipse").points = { { box.left, box.top }, { box.right, box.bottom } };
}
void DrawnPath(void* target, const Path& path) {
    CanvasCall& call = Add(target, "path");
    call.path = path;
    call.points = path.points;
}
void Clip(void* target, const Path& path) {
    CanvasCall& call = Add(target, "clip");
    call.path = path;
    call.points = path.points;
    ++Log(target).clipDepth;
}
void Unclip(void* target) {
    Add(target, "unclip");
    --Log(target).clipDepth;
}
void Text(void* target, const TextRun& run) {
    CanvasCall& call = Add(target, "text");
    call.text = std::string(run.text);
    call.run = run;
    call.run.text = {};
    call.points = { run.at };
}

constexpr CanvasCalls kRecord = { Pen, Brush, Line, Polyline, Polygon, Ellipse, DrawnPath, Clip, Unclip, Text };

using platform::Canvas;

constexpr struct {
    const char* name;
    void (*issue)(Canvas* canvas, const CanvasCall& call);
} kIssued[] = {
    { "pen", [](Canvas* to, const CanvasCall& call) { to->calls->selectPen(to->target, call.penWidth, call.pen); } },
    { "brush", [](Canvas* to, const CanvasCall& call) { to->calls->selectBrush(to->target, call.brush); } },
    { "line", [](Canvas* to, const CanvasCall& call) { to->calls->line(to->target, call.points[0], call.points[1]); } },
    { "polyline", [](Canvas* to, const CanvasCall& call) { to->calls->polyline(to->target, call.points); } },
    { "polygon", [](Canvas* to, const CanvasCall& call) { to->calls->polygon(to->target, call.points); } },
    { "ellipse",
      [](Canvas* to, const CanvasCall& call) {
          const Pixel first = call.points[0], last = call.points[1];
          to->calls->ellipse(to->target, { first.x, first.y, last.x, last.y });
      } },
    { "path", [](Canvas* to, const CanvasCall& call) { to->calls->path(to->target, call.path); } },
    { "clip", [](Canvas* to, const CanvasCall& call) { to->calls->pushClip(to->target, call.path); } },
    { "unclip", [](Canvas* to, const CanvasCall&) { to->calls->popClip(to->target); } },
    { "text",
      [](Canvas* to, const CanvasCall& call) {
          TextRun run = call.run;
          run.text = call.text;
          to->calls->text(to->target, run);
      } },
};

CallCounts& Counts(void* target) { return *static_cast<CallCounts*>(target); }

void Count(void* target, size_t points) {
    ++Counts(target).shapes;
    Counts(target).points += points;
}

constexpr CanvasCalls kCount = {
    [](void* target, int, Colour) { ++Counts(target).pens; },
    [](void* target, Colour) { ++Counts(target).brushes; },
    [](void* target, Pixel, Pixel) { Count(target, 2); },
    [](void* target, std::span<const Pixel> points) { Count(target, points.size()); },
    [](void* target, std::span<const Pixel> points) { Count(target, points.size()); },
    [](void* target, PixelRect) { Count(target, 2); },
    [](void* target, const Path& path) { Count(target, path.points.size()); },
    [](void* target, const Path&) { ++Counts(target).clips; },
    [](void*) {},
    [](void* target, const TextRun&) { ++Counts(target).texts; },
};

}  // namespace

RecordingCanvas::RecordingCanvas() {
    canvas.target = this;
    canvas.calls = &kRecord;
}

std::vector<CanvasCall> RecordingCanvas::Drawn() const {
    std::vector<CanvasCall> drawn;
    for (const CanvasCall& call : calls) {
        if (call.Draws()) drawn.push_back(call);
    }
    return drawn;
}

std::vector<CanvasCall> RecordingCanvas::Drawn(const std::string& name) const {
    std::vector<CanvasCall> drawn;
    for (const CanvasCall& call : calls) {
        if (call.name == name) drawn.push_back(call);
    }
    return drawn;
}

std::vector<CanvasCall> RecordingCanvas::FilledWith(Colour brush) const {
    std::vector<CanvasCall> drawn;
    for (const CanvasCall& call : calls) {
        if (call.Draws() && call.brush == brush && call.name != "text") drawn.push_back(call);
    }
    return drawn;
}

std::vector<CanvasCall> RecordingCanvas::StrokedWith(Colour pen) const {
    std::vector<CanvasCall> drawn;
    for (const CanvasCall& call : calls) {
        const bool stroked = call.Draws() && call.name != "text" && call.penWidth != platform::kNoPen;
        if (stroked && call.pen == pen) drawn.push_back(call);
    }
    return drawn;
}

int RecordingCanvas::FirstWith(Colour colour) const {
    int index = 0;
    for (const CanvasCall& call : Drawn()) {
        const bool textHit = call.name == "text" && call.run.colour == colour;
        const bool penHit = call.name != "text" && call.penWidth != platform::kNoPen && call.pen == colour;
        const bool brushHit = call.name != "text" && call.name != "line" && call.brush == colour;
        if (textHit || penHit || brushHit) return index;
        ++index;
    }
    return -1;
}

std::vector<ReplayStep> ReplaySteps(const std::vector<CanvasCall>& calls) {
    std::vector<ReplayStep> steps;
    steps.reserve(calls.size());
    for (const CanvasCall& call : calls) {
        for (const auto& row : kIssued) {
            if (call.name == row.name) steps.push_back({ row.issue, &call });
        }
    }
    return steps;
}

void Replay(const std::vector<ReplayStep>& steps, Canvas* canvas) {
    for (const ReplayStep& step : steps) step.issue(canvas, *step.call);
}

platform::Canvas CountingCanvas(CallCounts* counts) {
    platform::Canvas canvas;
    canvas.target = counts;
    canvas.calls = &kCount;
    return canvas;
}
