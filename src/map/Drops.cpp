// Drops.cpp - see Drops.h.
//
// The pilot does not see the map, which may be zoomed to anything or look elsewhere: what the tools judge by pixels is
// judged by metres here.
#include "map/Drops.h"

#include "map/MapView.h"
#include "map/NewObjects.h"
#include "map/Placing.h"
#include "map/ScreenPlace.h"
#include "map/Selection.h"
#include "map/Tools.h"
#include "model/EditHistory.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "model/Records.h"
#include "platform/Platform.h"

namespace map {

namespace {

double ReachOf(const model::SceneryObject* object) {
    switch (model::KindOf(object)) {
    case model::kTaxiNode: return kNodeRadius;
    case model::kParkingSpot: return double{ model::PayloadAs<model::ParkingSpotRecord>(object).radius };
    default: return 0;
    }
}

bool IsTaken(LatLon position) {
    for (const model::SceneryObject* o = model::state.head; o; o = o->next) {
        const double reach = ReachOf(o);
        if (reach > 0 && model::DistanceBetween(position, model::PositionOf(o)) <= reach) return true;
    }
    return false;
}

// What is selected afterwards is what was made.
void Begin() {
    DeselectAll();
    model::BeginAction();
}

// Nothing is made unseen.
void ShowNetwork() {
    layers.network = true;
    platform::RequestRepaint();
}

}  // namespace

void DropNode(LatLon position) {
    if (!IsPlaceable(&position) || IsTaken(position) || !HasRoomForNode(position)) return;
    Begin();
    AddNode(position, tools.nodeKind);
    ShowNetwork();
}

void DropParkingSpot(LatLon position, double heading) {
    if (!IsPlaceable(&position) || !HasRoomFor(model::kParkingSpot)) return;
    Begin();
    AddSpot(position, heading);
    ShowNetwork();
}

void DropMarker(LatLon position) {
    if (!IsPlaceable(&position)) return;
    Begin();
    AddMarker(position);
    platform::RequestRepaint();
}

}  // namespace map
