// Drops.h - what the simulator's hot keys make where the aircraft stands. Each is one user action, as with the tools;
// a place that the file cannot hold gets nothing.
#pragma once

#include "model/Geodesy.h"

namespace map {

// A node of the tools' current kind; nothing on top of another node or of a spot.
void DropNode(model::LatLon position);

// A spot of the type and with the codes chosen for new spots; heading in radians true.
void DropParkingSpot(model::LatLon position, double heading);

void DropMarker(model::LatLon position);

}  // namespace map
