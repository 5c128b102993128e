// RunwayAreas.h - where the runways lie on the screen, for paint that must not cross them.
#pragma once

#include <array>
#include <span>
#include <utility>
#include <vector>

#include "map/Shapes.h"

namespace map {

using RunwayAreas = std::vector<std::array<Point, 4>>;  // corners, in order around each
RunwayAreas CollectRunwayAreas();                       // those that meet the page

bool MeetsRunway(const RunwayAreas& runways, std::span<const Point> figure);  // by their bounding boxes
bool IsOnRunway(const RunwayAreas& runways, Point point);

// The pieces of the line that lie on no runway.
std::vector<std::pair<Point, Point>> OutsideRunways(const RunwayAreas& runways, Point from, Point to);

}  // namespace map
