// Canvas.h - what the map is drawn on: a window, a printer page, a picture file, a test's log.
//
// A canvas is a target with a table of calls. The pen and brush caches live here, so that every target
// sees a pen or brush only when it changes.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "platform/Pixel.h"

namespace platform {

using Colour = uint32_t;  // 0x00BBGGRR

constexpr Colour Rgb(uint32_t red, uint32_t green, uint32_t blue) { return red | green << 8 | blue << 16; }

constexpr int kNoPen = 0x10000;       // a pen width: no outline
constexpr Colour kNoBrush = 0x10000;  // a brush colour: hollow

// An outline of straight lines and cubic Bezier curves; may hold several closed figures.
struct Path {
    enum class Step : uint8_t { Move, Line, Curve, Close };  // take 1, 1, 3 and 0 points
    std::vector<Step> steps;
    std::vector<Pixel> points;
};
void MoveTo(Path* path, Pixel to);
void LineTo(Path* path, Pixel to);
void CurveTo(Path* path, Pixel control1, Pixel control2, Pixel to);
void ClosePath(Path* path);

enum class AlignX : uint8_t { Left, Centre, Right };
enum class AlignY : uint8_t { Top, Middle, Bottom };

struct TextRun {
    std::string_view text;  // UTF-8, one line
    Pixel at;
    AlignX alignX = AlignX::Left;
    AlignY alignY = AlignY::Top;
    int height = 14;  // of the font, pixels; negative: of its letters, without the space between lines
    bool bold = false;
    Colour colour = 0;
    double angle = 0;  // radians, clockwise; the text turns about `at`
};

struct CanvasCalls {
    void (*selectPen)(void* target, int width, Colour colour);  // width kNoPen: none
    void (*selectBrush)(void* target, Colour colour);           // kNoBrush: none
    void (*line)(void* target, Pixel from, Pixel to);           // both ends drawn
    void (*polyline)(void* target, std::span<const Pixel> points);
    void (*polygon)(void* target, std::span<const Pixel> points);  // closed; brush and pen
    void (*ellipse)(void* target, PixelRect box);                  // brush and pen
    void (*path)(void* target, const Path& path);                  // brush (winding fill) and pen
    void (*pushClip)(void* target, const Path& path);              // intersects with the clip in force
    void (*popClip)(void* target);
    void (*text)(void* target, const TextRun& run);  // transparent background
};

struct Canvas {
    void* target = nullptr;
    const CanvasCalls* calls = nullptr;
    int penWidth = -1;  // nothing selected yet
    Colour penColour = 0;
    int thinnestPen = 1;   // thinner pens become so wide: on a fine printer one pixel is next to nothing
    double textScale = 1;  // how much higher than a run asks for its texts come out: the resolution of the monitor
    bool brushKnown = false;
    Colour brushColour = 0;
};

// Selecting the pen or brush that is selected already does nothing.
void SetPen(Canvas* canvas, int width, Colour colour);
void SetBrush(Canvas* canvas, Colour colour);

void DrawLine(Canvas* canvas, Pixel from, Pixel to);
void DrawPolyline(Canvas* canvas, std::span<const Pixel> points);
void DrawPolygon(Canvas* canvas, std::span<const Pixel> points);
void DrawEllipse(Canvas* canvas, PixelRect box);
void DrawCircle(Canvas* canvas, Pixel centre, int radius);
void DrawPath(Canvas* canvas, const Path& path);
void PushClip(Canvas* canvas, const Path& path);
void PopClip(Canvas* canvas);
void DrawText(Canvas* canvas, const TextRun& run);

}  // namespace platform
