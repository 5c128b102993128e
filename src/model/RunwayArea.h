// RunwayArea.h - the ground that a runway covers, and which runway a taxi link lies on.
//
// The rectangle reaches over the blast pads: those are the overrun areas that the runway editor shows.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "model/Geodesy.h"
#include "model/Geometry.h"
#include "model/SceneryObject.h"

namespace model {

// Metres from a runway's edge to the last hold-short node: AI aircraft that hold farther out stop for good.
constexpr double kHoldShortLimit = 225 / kFeetPerMetre;

struct RunwayArea {
    SceneryObject* runway = nullptr;
    LatLon centre;
    double heading = 0;               // radians true, from the base (primary) end to the reciprocal one
    double sine = 0, cosine = 1;      // of the heading
    double low = 0, high = 0;         // metres from the centre to the base and to the reciprocal edge, low negative
    double width = 0, halfWidth = 0;  // metres
};

RunwayArea AreaOf(SceneryObject* runway);
std::vector<RunwayArea> RunwayAreas();  // of all runways, in list order

// The position in the runway's own frame, in metres: y along the heading, x to its right. The offset is measured from
// the position to the centre (see RunwayArea.cpp); dialogs::PlaceIn measures it the other way, which PositionIn undoes.
Point PlaceOnRunway(const RunwayArea& area, LatLon position);

bool Contains(const RunwayArea& area, LatLon position);  // boundary included

// Half way from `start` along the bearing to `end`.
LatLon MidpointOf(LatLon start, LatLon end);

// Of the runways that hold an end or the midpoint of the link, the one whose heading is nearest to the link's
// direction, either way round; of equally near ones the first. Null when there is none.
const RunwayArea* RunwayUnder(std::span<const RunwayArea> areas, LatLon start, LatLon end);

}  // namespace model
