// Canvas.cpp - the pen and brush caches, and the calls handed through to the target.
#include "platform/Canvas.h"

#include <algorithm>

namespace platform {

void MoveTo(Path* path, Pixel to) {
    path->steps.push_back(Path::Step::Move);
    path->points.push_back(to);
}

void LineTo(Path* path, Pixel to) {
    path->steps.push_back(Path::Step::Line);
    path->points.push_back(to);
}

void CurveTo(Path* path, Pixel control1, Pixel control2, Pixel to) {
    path->steps.push_back(Path::Step::Curve);
    path->points.insert(path->points.end(), { control1, control2, to });
}

void ClosePath(Path* path) { path->steps.push_back(Path::Step::Close); }

void SetPen(Canvas* canvas, int width, Colour colour) {
    if (width == kNoPen)
        colour = 0;  // no pen is no pen, whatever its colour
    else
        width = std::max(width, canvas->thinnestPen);
    if (canvas->penWidth == width && canvas->penColour == colour) return;
    canvas->penWidth = width;
    canvas->penColour = colour;
    canvas->calls->selectPen(canvas->target, width, colour);
}

void SetBrush(Canvas* canvas, Colour colour) {
    if (canvas->brushKnown && canvas->brushColour == colour) return;
    canvas->brushKnown = true;
    canvas->brushColour = colour;
    canvas->calls->selectBrush(canvas->target, colour);
}

void DrawLine(Canvas* canvas, Pixel from, Pixel to) { canvas->calls->line(canvas->target, from, to); }

void DrawPolyline(Canvas* canvas, std::span<const Pixel> points) {
    if (points.size() >= 2) canvas->calls->polyline(canvas->target, points);
}

void DrawPolygon(Canvas* canvas, std::span<const Pixel> points) {
    if (points.size() >= 3) canvas->calls->polygon(canvas->target, points);
}

void DrawEllipse(Canvas* canvas, PixelRect box) { canvas->calls->ellipse(canvas->target, box); }

void DrawCircle(Canvas* canvas, Pixel centre, int radius) {
    DrawEllipse(canvas, { centre.x - radius, centre.y - radius, centre.x + radius + 1, centre.y + radius + 1 });
}

void DrawPath(Canvas* canvas, const Path& path) {
    if (!path.steps.empty()) canvas->calls->path(canvas->target, path);
}

void PushClip(Canvas* canvas, const Path& path) { canvas->calls->pushClip(canvas->target, path); }
void PopClip(Canvas* canvas) { canvas->calls->popClip(canvas->target); }

void DrawText(Canvas* canvas, const TextRun& run) {
    if (!run.text.empty()) canvas->calls->text(canvas->target, run);
}

}  // namespace platform
