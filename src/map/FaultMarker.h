// FaultMarker.h - the one marker that shows where the fault finder's last fault lies.
#pragma once

#include "model/Geodesy.h"

namespace map {

struct FaultMarker {
    bool shown = false;
    model::LatLon position;
};

inline FaultMarker faultMarker;

}  // namespace map
