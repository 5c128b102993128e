// Plane.h - segments in the local plane, in metres.
#pragma once

#include "model/Geometry.h"

namespace faults {

using model::Point;

double DistanceToSegment(Point point, Point from, Point to);

// Whether the segments a-b and c-d share a point; touching counts. *crossing is a shared point.
bool SegmentsCross(Point a, Point b, Point c, Point d, Point* crossing);

}  // namespace faults
