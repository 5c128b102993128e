// Aircraft.cpp - see Aircraft.h.
#include "map/Aircraft.h"

#include "map/MapHost.h"
#include "map/MapView.h"
#include "platform/Platform.h"

namespace map {

namespace {

void FollowAircraft() {
    view.centre = simAircraft.position;
    view.rotation = simAircraft.heading;
    RotationChanged();
    platform::RequestRepaint();
}

}  // namespace

void ShowAircraft(LatLon position, double heading) {
    simAircraft = { true, position, heading };
    if (view.lockedToSim)
        FollowAircraft();
    else
        RequestFeedback();
}

void HideAircraft() {
    simAircraft.active = false;
    if (view.lockedToSim)
        platform::RequestRepaint();  // the symbol is part of the map then
    else
        RequestFeedback();
}

bool ViewIsWithAircraft() {
    if (!view.lockedToSim) return true;
    return view.centre.lat == simAircraft.position.lat && view.centre.lon == simAircraft.position.lon &&
           view.rotation == simAircraft.heading;
}

void ToggleLock() {
    view.lockedToSim = !view.lockedToSim;
    if (view.lockedToSim && simAircraft.active)
        FollowAircraft();
    else
        platform::RequestRepaint();
}

}  // namespace map
