// Editors.cpp - which dialog edits which kind of object.
#include "dialogs/Editors.h"

namespace dialogs {

namespace {

struct KindEditor {
    uint32_t kind;
    bool (*edit)(SceneryObject* object);
};

constexpr KindEditor kEditors[] = {
    { model::kAirport, EditAirport },
    { model::kTowerViewpoint, EditTower },
    { model::kRunway, EditRunway },
    { model::kHelipad, EditHelipad },
    { model::kCommFrequency, EditComm },
    { model::kStartLocation, EditStart },
    { model::kTaxiNode, EditNode },
    { model::kTaxiLink, EditLink },
    { model::kParkingSpot, EditParking },
    { model::kApron, EditApron },
    { model::kApronEdgeLights, EditEdgeLights },
    { model::kIls, EditIls },
    { model::kMarkerBeacon, EditMarker },
    { model::kNdb, EditNdb },
    { model::kVorDme, EditVor },
};

}  // namespace

bool EditObject(SceneryObject* object) {
    for (const KindEditor& row : kEditors) {
        if (row.kind == model::KindOf(object)) return row.edit(object);
    }
    return false;
}

bool HasEditor(const SceneryObject* object) {
    for (const KindEditor& row : kEditors) {
        if (row.kind == model::KindOf(object)) return true;
    }
    return false;
}

}  // namespace dialogs
