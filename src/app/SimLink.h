// SimLink.h - the program's side of the link to the simulator: the aircraft on the map, what its hot keys make, and
// what the user asks of the aircraft. Nothing is ever reported: without a simulator nothing happens.
#pragma once

#include <string>

#include "model/Geodesy.h"

namespace app {

constexpr int kSimLinkPeriod = 100;  // milliseconds

// At every tick of the timer.
void PollSimulator();

// Another airport is open, or none: what was pressed until now was not meant for it, seen already or not.
void ForgetPresses();

// At the end of the program: the simulator forgets the hot keys.
void ReleaseSimulator();

bool IsSimulatorConnected();
std::string SimulatorText();  // for the status bar

// Places the aircraft; heading in radians true.
void PlaceAircraft(model::LatLon position, double heading);

// Slew mode with all slew motion stopped.
void StopAircraft();

}  // namespace app
