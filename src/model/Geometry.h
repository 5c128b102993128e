// Geometry.h - small plane geometry for screen points (whole pixels) and for metres.
#pragma once

#include <span>

#include "platform/Pixel.h"

namespace model {

using platform::Pixel;

struct Point {
    double x = 0, y = 0;
    bool operator==(const Point&) const = default;
};

inline double Square(double x) { return x * x; }

// Adds `delta` to an angle in radians and wraps once into [0, 2 pi).
double AngleAdd(double angle, double delta);

// Degrees in [0, 360), as records hold them: a hair below a full turn is one as a float, and then 0. So is what is no
// number.
float WrappedHeading(double degrees);

// 1 when p2 lies counter-clockwise (y upward) of the ray from p0 through p1, else -1; never 0.
int Orientation(Pixel p0, Pixel p1, Pixel p2);
int Orientation(Point p0, Point p1, Point p2);

// Whether a horizontal ray from `point` crosses the polygon's edges (the closing one included) an odd
// number of times.
bool PointInPolygon(Pixel point, std::span<const Pixel> polygon);
bool PointInPolygon(Point point, std::span<const Point> polygon);

}  // namespace model
