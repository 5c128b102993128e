// MapHost.h - what the map asks of the program around it. The program defines these, tests fake them.
#pragma once

#include "model/Geodesy.h"

namespace map {

// The rotation read-out shows view.rotation again.
void RotationChanged();

// Places the simulator aircraft, when the simulator link is up; heading in radians true.
void PlaceSimAircraft(model::LatLon position, double heading);

}  // namespace map
