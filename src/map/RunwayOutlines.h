// RunwayOutlines.h - where the runways lie on the screen, for paint that must not cross them.
#pragma once

#include <array>
#include <span>
#include <utility>
#include <vector>

#include "map/Shapes.h"

namespace map {

using RunwayOutlines = std::vector<std::array<Point, 4>>;  // corners, in order around each
RunwayOutlines CollectRunwayOutlines();                    // those that meet the page

bool MeetsRunway(const RunwayOutlines& runways, std::span<const Point> figure);  // by their bounding boxes
bool IsOnRunway(const RunwayOutlines& runways, Point point);

// The pieces of the line that lie on no runway.
std::vector<std::pair<Point, Point>> OutsideRunways(const RunwayOutlines& runways, Point from, Point to);

}  // namespace map
