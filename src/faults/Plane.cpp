// Plane.cpp - see Plane.h.
#include "faults/Plane.h"

#include <algorithm>
#include <cmath>

namespace faults {

namespace {

// Positive when `p` lies left of the ray from `from` through `to`; exactly 0 when it is one of the two.
double Side(Point from, Point to, Point p) {
    return (to.x - from.x) * (p.y - from.y) - (to.y - from.y) * (p.x - from.x);
}

// Of a point in line with the segment: whether it lies on it.
bool IsBetween(Point p, Point a, Point b) {
    return p.x >= std::min(a.x, b.x) && p.x <= std::max(a.x, b.x) && p.y >= std::min(a.y, b.y) &&
           p.y <= std::max(a.y, b.y);
}

}  // namespace

double DistanceToSegment(Point point, Point from, Point to) {
    const double dx = to.x - from.x, dy = to.y - from.y;
    const double lengthSquared = dx * dx + dy * dy;
    double share = 0;  // of the way along the segment
    if (lengthSquared > 0) {
        share = std::clamp(((point.x - from.x) * dx + (point.y - from.y) * dy) / lengthSquared, 0.0, 1.0);
    }
    return std::sqrt(model::Square(from.x + share * dx - point.x) + model::Square(from.y + share * dy - point.y));
}

bool SegmentsCross(Point a, Point b, Point c, Point d, Point* crossing) {
    const double sideOfC = Side(a, b, c), sideOfD = Side(a, b, d);
    if ((sideOfC > 0 && sideOfD > 0) || (sideOfC < 0 && sideOfD < 0)) return false;  // most pairs
    const double sideOfA = Side(c, d, a), sideOfB = Side(c, d, b);
    if (((sideOfC > 0 && sideOfD < 0) || (sideOfC < 0 && sideOfD > 0)) &&
        ((sideOfA > 0 && sideOfB < 0) || (sideOfA < 0 && sideOfB > 0))) {
        const double share = sideOfA / (sideOfA - sideOfB);
        *crossing = { a.x + share * (b.x - a.x), a.y + share * (b.y - a.y) };
        return true;
    }
    const auto touches = [&](double side, Point p, Point from, Point to) {
        if (side != 0 || !IsBetween(p, from, to)) return false;
        *crossing = p;
        return true;
    };
    return touches(sideOfC, c, a, b) || touches(sideOfD, d, a, b) || touches(sideOfA, a, c, d) ||
           touches(sideOfB, b, c, d);
}

}  // namespace faults
