// Geometry.cpp - see Geometry.h.
//
// Orientation has no third value for points in line. A vertex exactly on the ray of PointInPolygon thus
// always counts to one side of it, so that the two edges meeting there are crossed once or not at all.
#include "model/Geometry.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "model/Geodesy.h"

namespace model {

namespace {

// Exact, and so are differences of two; products round only from 2^53 on.
Point ToPoint(Pixel pixel) { return { static_cast<double>(pixel.x), static_cast<double>(pixel.y) }; }
Point ToPoint(Point point) { return point; }

bool SegmentsCross(Point a, Point b, Point c, Point d) {
    return Orientation(a, b, c) != Orientation(a, b, d) && Orientation(c, d, a) != Orientation(c, d, b);
}

template <class P>
bool RayCrossesOddly(P start, std::span<const P> polygon) {
    if (polygon.size() < 3) return false;
    const Point point = ToPoint(start);
    Point far = point;
    for (const P& corner : polygon) far.x = std::max(far.x, ToPoint(corner).x);
    far.x += 2;
    bool inside = false;
    for (size_t i = 0, last = polygon.size() - 1; i < polygon.size(); last = i++) {
        if (SegmentsCross(point, far, ToPoint(polygon[last]), ToPoint(polygon[i]))) inside = !inside;
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

float WrappedHeading(double degrees) {
    const double turned = std::fmod(degrees, 360);
    const auto heading = static_cast<float>(turned < 0 ? turned + 360 : turned);
    return heading < 360 ? heading : 0;
}

int Orientation(Pixel p0, Pixel p1, Pixel p2) { return Orientation(ToPoint(p0), ToPoint(p1), ToPoint(p2)); }

int Orientation(Point p0, Point p1, Point p2) {
    return (p2.y - p0.y) * (p1.x - p0.x) > (p1.y - p0.y) * (p2.x - p0.x) ? 1 : -1;
}

bool PointInPolygon(Pixel point, std::span<const Pixel> polygon) { return RayCrossesOddly(point, polygon); }
bool PointInPolygon(Point point, std::span<const Point> polygon) { return RayCrossesOddly(point, polygon); }

}  // namespace model
