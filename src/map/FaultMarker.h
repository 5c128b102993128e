// FaultMarker.h - the one marker that shows where the fault finder's last fault lies.
#pragma once

#include "model/Geodesy.h"

namespace map {

struct FaultMarker {
    bool shown = false;
    model::LatLon position;
};

inline FaultMarker faultMarker;

constexpr int kFaultRadius = 16, kFaultTick = 7;  // pixels: of its ring, and of the ticks outside it

}  // namespace map
