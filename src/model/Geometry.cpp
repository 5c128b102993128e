// Geometry.cpp - see Geometry.h.
//
// Orientation has no third value for points in line. A vertex exactly on the ray of PointInPolygon thus
// always counts to one side of it, so that the two edges meeting there are crossed once or not at all.
#include "model/Geometry.h"

#include <algorithm>
#include <cstddef>

#include "model/Geodesy.h"

namespace model {

namespace {

template <class P>
bool SegmentsCross(P a, P b, P c, P d) {
    return Orientation(a, b, c) != Orientation(a, b, d) && Orientation(c, d, a) != Orientation(c, d, b);
}

template <class P>
bool RayCrossesOddly(P point, std::span<const P> polygon) {
    if (polygon.size() < 3) return false;
    P far = point;
    for (const P& corner : polygon) far.x = std::max(far.x, corner.x);
    far.x += 2;
    bool inside = false;
    for (size_t i = 0, last = polygon.size() - 1; i < polygon.size(); last = i++) {
        if (SegmentsCross(point, far, polygon[last], polygon[i])) inside = !inside;
    }
    return inside;
}

}  // namespace

double AngleAdd(double angle, double delta) {
    angle += delta;
    if (angle < 0) angle += kTwoPi;
    if (angle >= kTwoPi) angle -= kTwoPi;
    return angle;
}

int Orientation(Pixel p0, Pixel p1, Pixel p2) {
    const int64_t dx1 = int64_t{ p1.x } - p0.x, dy1 = int64_t{ p1.y } - p0.y;
    const int64_t dx2 = int64_t{ p2.x } - p0.x, dy2 = int64_t{ p2.y } - p0.y;
    return dy2 * dx1 > dy1 * dx2 ? 1 : -1;
}

int Orientation(Point p0, Point p1, Point p2) {
    return (p2.y - p0.y) * (p1.x - p0.x) > (p1.y - p0.y) * (p2.x - p0.x) ? 1 : -1;
}

bool PointInPolygon(Pixel point, std::span<const Pixel> polygon) { return RayCrossesOddly(point, polygon); }
bool PointInPolygon(Point point, std::span<const Point> polygon) { return RayCrossesOddly(point, polygon); }

}  // namespace model
