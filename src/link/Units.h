// Units.h - between the simulator's fixed-point angles and ours: radians, longitude west-positive.
#pragma once

#include <cstdint>

#include "model/Geodesy.h"

namespace simlink {

struct SimPosition {
    int64_t latitude = 0;   // 10,001,750 m x 2^32 to the quarter turn
    int64_t longitude = 0;  // 2^64 to the turn, east-positive
};

model::LatLon ToLatLon(SimPosition position);

// The position must be finite. A longitude beyond half a turn is taken around the earth first.
SimPosition FromLatLon(model::LatLon position);

double HeadingRadians(uint32_t heading);      // [0, 2 pi)
uint32_t HeadingFromRadians(double radians);  // any finite angle

// Whether a latitude lies on the earth at all; a server may send anything.
bool IsOnEarth(SimPosition position);

}  // namespace simlink
