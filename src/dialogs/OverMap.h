// OverMap.h - the property dialog that is open over the map. Until it ends nothing else can be edited, but the map can
// still be moved, and a click on it can place what the dialog edits.
#pragma once

#include <functional>

#include "map/Placing.h"
#include "model/Geodesy.h"

namespace dialogs {

struct OverMap {
    bool open = false;
    std::function<void(model::LatLon)> clicked;  // empty for a dialog without a position
};

inline OverMap overMap;

// A click on the map: true when a dialog is open, which then has it. Beyond a pole there is no place to give it.
inline bool TakeMapClick(model::LatLon at) {
    if (overMap.open && overMap.clicked && map::IsPlaceable(&at)) overMap.clicked(at);
    return overMap.open;
}

}  // namespace dialogs
