// Shapes.cpp - see Shapes.h.
#include "map/Shapes.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "map/MapView.h"
#include "model/Geodesy.h"

namespace map {

using platform::Path;

namespace {

constexpr Box kSafeBox = { -kSafeReach, -kSafeReach, kSafeReach, kSafeReach };
constexpr int kCurvePieces = 24;    // of a curve that has to be cut
constexpr int kCirclePieces = 360;  // of a circle that has to be cut

bool IsSafe(Point point) { return Contains(kSafeBox, point); }
bool IsSafe(std::span<const Point> points) {
    return std::all_of(points.begin(), points.end(), [](Point point) { return IsSafe(point); });
}

// Keeps the part of a closed figure on the inner side of one border of the safe box.
template <class Inside, class Cross>
std::vector<Point> CutBorder(const std::vector<Point>& figure, Inside inside, Cross cross) {
    std::vector<Point> kept;
    for (size_t i = 0; i < figure.size(); ++i) {
        const Point from = figure[i], to = figure[(i + 1) % figure.size()];
        if (inside(from)) kept.push_back(from);
        if (inside(from) != inside(to)) kept.push_back(cross(from, to));
    }
    return kept;
}

Point AtX(Point a, Point b, double x) { return { x, a.y + (b.y - a.y) * ((x - a.x) / (b.x - a.x)) }; }
Point AtY(Point a, Point b, double y) { return { a.x + (b.x - a.x) * ((y - a.y) / (b.y - a.y)), y }; }

// Computing with far-off points loses digits; this takes care of the last ones.
Point IntoBox(const Box& box, Point point) {
    return { std::clamp(point.x, box.left, box.right), std::clamp(point.y, box.top, box.bottom) };
}

// A figure with a corner that is no place at all is not drawn.
std::vector<Point> CutFigure(std::vector<Point> figure) {
    for (const Point& point : figure) {
        if (!std::isfinite(point.x) || !std::isfinite(point.y)) return {};
    }
    figure = CutBorder(
        figure, [](Point p) { return p.x >= -kSafeReach; }, [](Point a, Point b) { return AtX(a, b, -kSafeReach); });
    figure = CutBorder(
        figure, [](Point p) { return p.x <= kSafeReach; }, [](Point a, Point b) { return AtX(a, b, kSafeReach); });
    figure = CutBorder(
        figure, [](Point p) { return p.y >= -kSafeReach; }, [](Point a, Point b) { return AtY(a, b, -kSafeReach); });
    figure = CutBorder(
        figure, [](Point p) { return p.y <= kSafeReach; }, [](Point a, Point b) { return AtY(a, b, kSafeReach); });
    for (Point& point : figure) point = IntoBox(kSafeBox, point);
    return figure;
}

std::vector<Pixel> Rounded(std::span<const Point> points) {
    std::vector<Pixel> pixels(points.size());
    std::transform(points.begin(), points.end(), pixels.begin(), ToPixel);
    return pixels;
}

int32_t ThirdOf(int64_t value) { return static_cast<int32_t>(value / 3); }

void AppendQuad(Path* path, Pixel from, Pixel control, Pixel to) {
    const Pixel first = { from.x + ThirdOf(2 * (int64_t{ control.x } - from.x)),
                          from.y + ThirdOf(2 * (int64_t{ control.y } - from.y)) };
    const Pixel second = { control.x + ThirdOf(int64_t{ to.x } - control.x),
                           control.y + ThirdOf(int64_t{ to.y } - control.y) };
    CurveTo(path, first, second, to);
}

Path RoundedPath(const Outline& outline) {
    Path path;
    size_t at = 0;
    for (const Path::Step step : outline.steps) {
        switch (step) {
        case Path::Step::Move: platform::MoveTo(&path, ToPixel(outline.points[at++])); break;
        case Path::Step::Line: platform::LineTo(&path, ToPixel(outline.points[at++])); break;
        case Path::Step::Curve:
            AppendQuad(&path, path.points.back(), ToPixel(outline.points[at]), ToPixel(outline.points[at + 1]));
            at += 2;
            break;
        case Path::Step::Close: platform::ClosePath(&path); break;
        }
    }
    return path;
}

void AppendFigure(Path* path, const std::vector<Point>& figure) {
    const std::vector<Point> cut = CutFigure(figure);
    if (cut.size() < 3) return;
    platform::MoveTo(path, ToPixel(cut[0]));
    for (size_t i = 1; i < cut.size(); ++i) platform::LineTo(path, ToPixel(cut[i]));
    platform::ClosePath(path);
}

// Curves become lines, every figure is cut by itself.
Path CutPath(const Outline& outline) {
    Path path;
    std::vector<Point> figure;
    size_t at = 0;
    for (const Path::Step step : outline.steps) {
        switch (step) {
        case Path::Step::Move:
            AppendFigure(&path, figure);
            figure = { outline.points[at++] };
            break;
        case Path::Step::Line: figure.push_back(outline.points[at++]); break;
        case Path::Step::Curve: {
            const Point from = figure.back(), control = outline.points[at], to = outline.points[at + 1];
            for (int i = 1; i <= kCurvePieces; ++i) {
                const double t = double(i) / kCurvePieces;
                figure.push_back(from * ((1 - t) * (1 - t)) + control * (2 * t * (1 - t)) + to * (t * t));
            }
            at += 2;
            break;
        }
        case Path::Step::Close: break;
        }
    }
    AppendFigure(&path, figure);
    return path;
}

}  // namespace

int32_t ToWhole(double value) {
    constexpr int32_t kLow = std::numeric_limits<int32_t>::min() / 2, kHigh = std::numeric_limits<int32_t>::max() / 2;
    if (!(value > kLow)) return kLow;
    return value < kHigh ? static_cast<int32_t>(value) : kHigh;
}

Pixel ToPixel(Point point) { return { ToWhole(point.x), ToWhole(point.y) }; }

int ScaledPixels(double metres) {
    constexpr auto kMost = static_cast<int>(kSafeReach);
    return std::clamp(ToWhole(metres * view.pixelsPerMetre + 0.5), 1, kMost);
}

double FromScreen(double pixels) { return pixels * view.fineness; }

double Length(Point a) { return std::sqrt(a.x * a.x + a.y * a.y); }

Point HeadingOnScreen(double heading) {
    return { std::sin(heading - view.rotation), -std::cos(heading - view.rotation) };
}

Box BoundsOf(std::span<const Point> points) {
    Box box = { points[0].x, points[0].y, points[0].x, points[0].y };
    for (const Point& point : points) {
        box.left = std::min(box.left, point.x);
        box.top = std::min(box.top, point.y);
        box.right = std::max(box.right, point.x);
        box.bottom = std::max(box.bottom, point.y);
    }
    return box;
}

Box BoundsOf(Point centre, double radius) {
    return { centre.x - radius, centre.y - radius, centre.x + radius, centre.y + radius };
}

bool Meets(const Box& a, const Box& b) {
    return a.left <= b.right && b.left <= a.right && a.top <= b.bottom && b.top <= a.bottom;
}

bool Contains(const Box& box, Point point) {
    return point.x >= box.left && point.x <= box.right && point.y >= box.top && point.y <= box.bottom;
}

Box Grown(const Box& box, double dx, double dy) {
    return { box.left - dx, box.top - dy, box.right + dx, box.bottom + dy };
}

Box VisibleBox() {
    const PixelBox& seen = view.visible;
    return { double(seen.left), double(seen.top), double(seen.right), double(seen.bottom) };
}

Box ClientBox() { return { 0, 0, double(view.clientWidth), double(view.clientHeight) }; }
Box ClipBox() {
    const int32_t besides = view.clientWidth / 10, above = view.clientHeight / 10;  // whole pixels
    return Grown(ClientBox(), besides, above);
}

void MoveTo(Outline* outline, Point to) {
    outline->steps.push_back(Path::Step::Move);
    outline->points.push_back(outline->last = to);
}

void LineTo(Outline* outline, Point to) {
    outline->steps.push_back(Path::Step::Line);
    outline->points.push_back(outline->last = to);
}

void QuadTo(Outline* outline, Point control, Point to) {
    outline->steps.push_back(Path::Step::Curve);
    outline->points.push_back(control);
    outline->points.push_back(outline->last = to);
}

void Close(Outline* outline) { outline->steps.push_back(Path::Step::Close); }

void Clear(Outline* outline) { *outline = Outline{}; }

Path PathOf(const Outline& outline) { return IsSafe(outline.points) ? RoundedPath(outline) : CutPath(outline); }

void StrokeLine(Canvas* canvas, Point from, Point to) {
    if ((!IsSafe(from) || !IsSafe(to)) && !CutToBox(kSafeBox, &from, &to)) return;
    platform::DrawLine(canvas, ToPixel(from), ToPixel(to));
}

void StrokeLines(Canvas* canvas, std::span<const Point> points) {
    if (IsSafe(points)) {
        platform::DrawPolyline(canvas, Rounded(points));
        return;
    }
    for (size_t i = 1; i < points.size(); ++i) StrokeLine(canvas, points[i - 1], points[i]);
}

void FillPolygon(Canvas* canvas, std::span<const Point> points) {
    if (IsSafe(points))
        platform::DrawPolygon(canvas, Rounded(points));
    else
        platform::DrawPolygon(canvas, Rounded(CutFigure({ points.begin(), points.end() })));
}

void FillOutline(Canvas* canvas, const Outline& outline) { platform::DrawPath(canvas, PathOf(outline)); }

void FillCircle(Canvas* canvas, Point centre, double radius) {
    if (IsSafe(centre - Point{ radius, radius }) && IsSafe(centre + Point{ radius + 1, radius + 1 })) {
        platform::DrawCircle(canvas, ToPixel(centre), static_cast<int>(radius));
        return;
    }
    std::vector<Point> ring;
    for (int i = 0; i < kCirclePieces; ++i) {
        const double angle = model::kTwoPi * i / kCirclePieces;
        ring.push_back(centre + Point{ std::cos(angle), std::sin(angle) } * radius);
    }
    FillPolygon(canvas, ring);
}

bool CutToBox(const Box& box, Point* from, Point* to) {
    const Point start = *from, step = *to - *from;
    if (!std::isfinite(step.x) || !std::isfinite(step.y)) return false;
    double enter = 0, leave = 1;
    const double toward[] = { -step.x, step.x, -step.y, step.y };
    const double room[] = { start.x - box.left, box.right - start.x, start.y - box.top, box.bottom - start.y };
    for (int side = 0; side < 4; ++side) {
        if (!(toward[side] < 0) && !(toward[side] > 0)) {
            if (!(room[side] >= 0)) return false;
            continue;
        }
        const double share = room[side] / toward[side];
        if (toward[side] < 0)
            enter = std::max(enter, share);
        else
            leave = std::min(leave, share);
    }
    if (enter > leave) return false;
    if (leave < 1) *to = IntoBox(box, start + step * leave);
    if (enter > 0) *from = IntoBox(box, start + step * enter);
    return true;
}

}  // namespace map
