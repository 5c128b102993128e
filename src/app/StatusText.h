// StatusText.h - the read-outs of the status bar and of the toolbar. "*" stands for the degree sign.
#pragma once

#include <string>

#include "platform/Pixel.h"

namespace app {

// Where the pointer is; empty without an airport.
std::string PositionText(platform::Pixel cursor);

// From the last reference marker, or without one the point that was clicked last, to the pointer; empty before the
// first of either.
std::string DistanceText(platform::Pixel cursor);
std::string AngleText(platform::Pixel cursor);

std::string RotationText();  // of the map, for the toolbar

}  // namespace app
