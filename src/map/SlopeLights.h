// SlopeLights.h - visual approach slope indicators beside a runway: VASI, PAPI and their kin.
#pragma once

#include "map/Lamps.h"
#include "map/RunwayShape.h"

namespace map {

// What stands at one bias: bars along the runway, units across it, as a pilot on the slope sees them.
void PaintSlopeLights(Canvas* canvas, const RunwayShape& runway, const RunwayEnd& end);

}  // namespace map
