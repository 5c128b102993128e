// NewObjects.h - what the tools add to the ground network and to the map. All of it recorded edits; the caller has
// begun the user action. What is made is selected. Positions are placeable (Placing.h).
#pragma once

#include <cstddef>
#include <cstdint>

#include "model/Geodesy.h"
#include "model/Records.h"
#include "model/SceneryObject.h"

namespace map {

// Whether a scenery file can hold that many more objects of the kind; else a remark says so.
bool HasRoomFor(uint32_t kind, size_t count = 1);

// Whether a node fits there, with the links that it splits; else a remark says what is too many.
bool HasRoomForNode(model::LatLon position);

// Whether a new link of the type has a name, or there is room for the blank one; else a remark says so.
bool HasNameFor(uint32_t type);

// The runway link takes the name and the width of the runway under it; false, and nothing changes, where there is none.
bool TakeRunwayUnder(model::TaxiLinkPayload* link);

// A node of the type. Links that pass under it are split at it; `except` stays whole.
model::SceneryObject* AddNode(model::LatLon position, uint8_t type, const model::SceneryObject* except = nullptr);

// A spot of the type and with the codes chosen for new spots; heading in radians true.
model::SceneryObject* AddSpot(model::LatLon position, double heading);
float HeadingInDegrees(double radians);       // [0, 360), as records hold it
double DefaultSpotRadius(uint32_t typeCode);  // metres; code 12 or more counts as 1

// A link of the type between a node and a node or spot, in either order, not both the same and not both spots. To a
// spot it is a parking link whatever the type. A link that joins the two already is replaced.
model::SceneryObject* AddLinkBetween(model::SceneryObject* start, model::SceneryObject* end, uint32_t type);

model::SceneryObject* AddMarker(model::LatLon position);
// Null, and nothing is added, when a guideline joins the two markers already.
model::SceneryObject* AddGuideline(model::SceneryObject* from, model::SceneryObject* to);

}  // namespace map
