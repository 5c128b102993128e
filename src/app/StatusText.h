// StatusText.h - the read-outs of the status bar. "*" stands for the degree sign.
#pragma once

#include <string>

#include "platform/Pixel.h"

namespace app {

// Where the pointer is; empty without an airport.
std::string PositionText(platform::Pixel cursor);

// From the point that was clicked last to the pointer; empty before the first click.
std::string DistanceText(platform::Pixel cursor);
std::string AngleText(platform::Pixel cursor);

std::string RotationText();

}  // namespace app
