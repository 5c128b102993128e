// Subject.cpp - see Subject.h.
#include "dialogs/Subject.h"

#include <algorithm>
#include <cassert>
#include <cstring>

#include "map/LightStrips.h"
#include "map/MapView.h"
#include "map/Selection.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "platform/Platform.h"

namespace dialogs {

DialogState state;

namespace {

// Where in the payload the object's own position lies: the bytes that change with it.
size_t OwnPositionOffset(const SceneryObject* object) {
    switch (model::KindOf(object)) {
    case model::kAirport: return offsetof(model::AirportRecord, longitude);
    case model::kTowerViewpoint: return offsetof(model::TowerViewpointRecord, longitude);
    case model::kRunway: return offsetof(model::RunwayRecord, longitude);
    case model::kHelipad: return offsetof(model::HelipadRecord, longitude);
    case model::kStartLocation: return offsetof(model::StartLocationRecord, longitude);
    case model::kTaxiNode: return offsetof(model::TaxiNodeRecord, longitude);
    case model::kParkingSpot: return offsetof(model::ParkingSpotRecord, longitude);
    case model::kMarkerBeacon: return offsetof(model::MarkerBeaconPayload, longitude);
    case model::kNdb: return offsetof(model::NdbPayload, longitude);
    default: break;
    }
    assert(model::KindOf(object) == model::kIls || model::KindOf(object) == model::kVorDme);
    return offsetof(model::VorRecord, longitude);
}

void PutPoint(SceneryObject* object, size_t offset, model::EncodedPoint point) {
    assert(offset + sizeof point <= object->payloadSize);
    std::memcpy(object->payload + offset, &point, sizeof point);
}

}  // namespace

SceneryObject* MakeProvisional(uint32_t kind, size_t payloadSize) {
    assert(!state.provisional);
    state.provisional = model::CreateObject(kind, static_cast<uint32_t>(payloadSize));
    model::AppendObject(state.provisional);
    return state.provisional;
}

bool IsProvisional(const SceneryObject* object) { return object && object == state.provisional; }

int32_t AirportAltitude() {
    return model::state.airport ? model::PayloadAs<model::AirportRecord>(model::state.airport).altitude : 0;
}

void CancelDialog() {
    EndPreview();
    if (SceneryObject* object = state.provisional) {
        model::UnlinkObject(object);
        model::FreeObject(object);
        state.provisional = nullptr;
    }
    platform::RequestRepaint();
}

model::CoordinateTexts MoveToClick(SceneryObject* object, size_t offset, model::LatLon at) {
    const auto moved = std::find_if(state.moved.begin(), state.moved.end(), [&](const MovedPoint& point) {
        return point.object == object && point.offset == offset;
    });
    if (moved == state.moved.end()) {
        MovedPoint point{ object, offset, {} };
        std::memcpy(&point.stored, object->payload + offset, sizeof point.stored);
        state.moved.push_back(point);
    }
    const model::BglPoint code = model::LatLonToBgl(at);
    PutPoint(object, offset, { code.lonCode, code.latCode });
    ++model::state.revision;
    platform::RequestRepaint();
    return model::FormatLatLon(at);
}

model::CoordinateTexts MoveToClick(SceneryObject* object, model::LatLon at) {
    return MoveToClick(object, OwnPositionOffset(object), at);
}

void EndPreview() {
    if (state.moved.empty()) return;
    for (const MovedPoint& point : state.moved) PutPoint(point.object, point.offset, point.stored);
    state.moved.clear();
    ++model::state.revision;
    platform::RequestRepaint();
}

void UndoPreviewIn(SceneryObject* copy, const SceneryObject* live) {
    for (const MovedPoint& point : state.moved) {
        if (point.object == live) PutPoint(copy, point.offset, point.stored);
    }
}

void SelectSubject(SceneryObject* object, bool extend) {
    if (!model::IsSelected(object) && !extend) map::DeselectAll();
    object->flags |= model::kSelected;
    platform::RequestRepaint();
}

void SelectOnly(SceneryObject* object) {
    map::DeselectAll();
    object->flags |= model::kSelected | model::kWholeSelected;
    if (model::KindOf(object) == model::kIls)
        model::PayloadAs<model::IlsPayload>(object).selectedParts = map::kAllIlsParts;
    if (model::KindOf(object) == model::kApronEdgeLights) map::SelectAllStripPoints(object);
    platform::RequestRepaint();
}

void ShowPlace(model::LatLon place, bool onlyWhenOutside) {
    if (map::view.lockedToSim) return;
    const model::Point at = map::WorldToScreen(place);
    const bool inside = at.x >= 0 && at.y >= 0 && at.x < map::view.clientWidth && at.y < map::view.clientHeight;
    if (onlyWhenOutside && inside) return;
    map::view.centre = place;
    platform::RequestRepaint();
}

}  // namespace dialogs
