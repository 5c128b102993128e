// Lamps.cpp - see Lamps.h.
#include "map/Lamps.h"

#include <algorithm>
#include <cmath>

#include "map/MapView.h"

namespace map {

namespace {

constexpr double kClosestLamps = 6;       // pixels along a row; closer ones are thinned out
constexpr double kClosestInBar = 2.5;     // pixels across a bar: it may look like a stroke, but not denser
constexpr double kLongestSpacing = 6000;  // metres
constexpr int kRayReach = 2;              // of a flashing lamp, of its radius
constexpr int kLeastRayRadius = 2;        // pixels; smaller lamps have no rays
constexpr int kCurveSteps = 8;

}  // namespace

Lamps LampsOf(Canvas* canvas, double radius) { return { canvas, ClipBox(), ScaledPixels(radius) }; }

void PaintLamp(const Lamps& lamps, Point at, Ink ink) {
    if (!Meets(BoundsOf(at, lamps.radius), lamps.clip)) return;
    platform::SetPen(lamps.canvas, platform::kNoPen, 0);
    platform::SetBrush(lamps.canvas, InkOf(ink));
    FillCircle(lamps.canvas, at, lamps.radius);
}

void PaintFlash(const Lamps& lamps, Point at) {
    const double reach = lamps.radius * kRayReach + 1;
    if (!Meets(BoundsOf(at, reach), lamps.clip)) return;
    if (lamps.radius >= kLeastRayRadius) {
        platform::SetPen(lamps.canvas, 1, InkOf(Ink::LightFlash));
        for (const Point ray : { Point{ reach, reach }, Point{ reach, -reach } }) {
            StrokeLine(lamps.canvas, at - ray, at + ray);
        }
    }
    PaintLamp(lamps, at, Ink::LightFlash);
}

void PaintLampBar(const Lamps& lamps, const GroundFrame& frame, double left, double right, double near, int count,
                  Ink ink) {
    const std::array ends = { At(frame, left, near), At(frame, right, near) };
    if (!Meets(BoundsOf(ends), Grown(lamps.clip, lamps.radius, lamps.radius))) return;
    const double room = (right - left) * frame.scale / kClosestInBar;
    const int shown = static_cast<int>(std::clamp(room + 1, 1.0, static_cast<double>(count)));
    for (int i = 0; i < shown; ++i) {
        const double share = shown > 1 ? static_cast<double>(i) / (shown - 1) : 0.5;
        PaintLamp(lamps, ends[0] + (ends[1] - ends[0]) * share, ink);
    }
}

void PaintLampWings(const Lamps& lamps, const GroundFrame& frame, double inner, double gap, double near, int count,
                    Ink ink) {
    const double outer = inner + gap * (count - 1);
    PaintLampBar(lamps, frame, -outer, -inner, near, count, ink);
    PaintLampBar(lamps, frame, inner, outer, near, count, ink);
}

double ThinnedSpacing(double metres) {
    while (metres * view.pixelsPerMetre < kClosestLamps && metres < kLongestSpacing) metres *= 2;
    return metres;
}

int SpacesAlong(double length, double spacing) {
    return std::max(1, static_cast<int>(std::lround(length / ThinnedSpacing(spacing))));
}

double LengthOfLine(std::span<const Point> line) {
    if (line.size() == 2) return Length(line[1] - line[0]);
    double length = 0;
    for (int i = 0; i < kCurveSteps; ++i) {
        const double step = 1.0 / kCurveSteps;
        length += Length(PointOnLine(line, (i + 1) * step) - PointOnLine(line, i * step));
    }
    return length;
}

Point PointOnLine(std::span<const Point> line, double share) {
    if (line.size() == 2) return line[0] + (line[1] - line[0]) * share;
    const double rest = 1 - share;
    return line[0] * (rest * rest) + line[1] * (2 * share * rest) + line[2] * (share * share);
}

}  // namespace map
