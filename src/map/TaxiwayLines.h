// TaxiwayLines.h - where the centre lines and the edges of taxiways run: for the paint and for the lamps along them.
#pragma once

#include <array>
#include <vector>

#include "map/TaxiwaySurface.h"

namespace map {

// A quadratic curve from one arm of a hub into another.
struct CentreTurn {
    uint32_t hub = 0;
    std::array<Point, 3> curve;
};

struct CentreLines {
    std::vector<CentreTurn> turns;  // hub by hub
    std::vector<std::array<Point, 2>> straights;
};

// Of the links with the bit in their flags word. The lines turn into each other at a junction, and end at the edge of a
// runway unless a node on the runway leads them on. `scale` is the view's, pixels per metre.
CentreLines LayCentreLines(const TaxiNetwork& network, uint32_t bit, double scale);

// The straight part of a link's edge, `inset` pixels inside the pavement, on the right or left from start to end,
// once the corners are laid. False when the corners or a runway leave nothing of it.
bool FindStraightEdge(const TaxiNetwork& network, const TaxiSegment& segment, double inset, bool right, Point* from,
                      Point* to);

// The curves of a corner: none, one or two.
using EdgeCurve = std::array<Point, 3>;
std::vector<EdgeCurve> CurvesOf(const Corner& corner);

}  // namespace map
