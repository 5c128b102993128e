// Aircraft.h - the aircraft in the simulator on the map (map::simAircraft), and the lock that ties the view to it.
#pragma once

#include "model/Geodesy.h"

namespace map {

// The aircraft is there now; heading in radians true. Locked, the view goes along; else only the symbol moves.
void ShowAircraft(model::LatLon position, double heading);
void HideAircraft();

// False while the map is locked but looks elsewhere, as after another airport was opened.
bool ViewIsWithAircraft();

// Lock to Flight Sim. Switched on, the view goes to the aircraft at once when there is one.
void ToggleLock();

}  // namespace map
