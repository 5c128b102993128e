// Subject.cpp - see Subject.h.
#include "dialogs/Subject.h"

#include <algorithm>
#include <cassert>
#include <cstring>

#include "dialogs/OverMap.h"
#include "map/LightStrips.h"
#include "map/MapView.h"
#include "map/Selection.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "platform/Platform.h"

namespace dialogs {

namespace {

void PutPoint(SceneryObject* object, size_t offset, model::EncodedPoint point) {
    assert(offset + sizeof point <= object->payloadSize);
    std::memcpy(object->payload + offset, &point, sizeof point);
}

// With all its parts.
void SelectWhole(SceneryObject* object) {
    object->flags |= model::kSelected | model::kWholeSelected;
    if (model::KindOf(object) == model::kIls)
        model::PayloadAs<model::IlsPayload>(object).selectedParts = model::kAllIlsParts;
    if (model::KindOf(object) == model::kApronEdgeLights) map::SelectAllStripPoints(object);
}

}  // namespace

SceneryObject* MakeProvisional(uint32_t kind, size_t payloadSize) {
    assert(!model::state.provisional);
    model::state.provisional = model::CreateObject(kind, static_cast<uint32_t>(payloadSize));
    model::AppendObject(model::state.provisional);
    return model::state.provisional;
}

bool IsProvisional(const SceneryObject* object) { return object && object == model::state.provisional; }

bool InsertAndEdit(SceneryObject* (*make)(), bool (*edit)(SceneryObject* object)) {
    SceneryObject* made = overMap.open ? nullptr : make();
    return made && edit(made);
}

int32_t AirportAltitude() {
    return model::state.airport ? model::PayloadAs<model::AirportRecord>(model::state.airport).altitude : 0;
}

void CancelDialog() {
    EndPreview();
    if (SceneryObject* object = model::state.provisional) {
        model::UnlinkObject(object);
        model::FreeObject(object);
        model::state.provisional = nullptr;
    }
    platform::RequestRepaint();
}

model::CoordinateTexts MoveToClick(SceneryObject* object, size_t offset, model::LatLon at) {
    const auto moved =
        std::find_if(model::state.moved.begin(), model::state.moved.end(),
                     [&](const model::MovedPoint& point) { return point.object == object && point.offset == offset; });
    if (moved == model::state.moved.end()) {
        model::MovedPoint point{ object, offset, {} };
        std::memcpy(&point.stored, object->payload + offset, sizeof point.stored);
        model::state.moved.push_back(point);
    }
    const model::BglPoint code = model::LatLonToBgl(at);
    PutPoint(object, offset, { code.lonCode, code.latCode });
    ++model::state.revision;
    platform::RequestRepaint();
    return model::FormatLatLon(at);
}

model::CoordinateTexts MoveToClick(SceneryObject* object, model::LatLon at) {
    return MoveToClick(object, model::PositionOffset(KindOf(object)), at);
}

void EndPreview() {
    if (model::state.moved.empty()) return;
    for (const model::MovedPoint& point : model::state.moved) PutPoint(point.object, point.offset, point.stored);
    model::state.moved.clear();
    ++model::state.revision;
    platform::RequestRepaint();
}

void UndoPreviewIn(SceneryObject* copy, const SceneryObject* live) {
    for (const model::MovedPoint& point : model::state.moved) {
        if (point.object == live) PutPoint(copy, point.offset, point.stored);
    }
}

void SelectSubject(SceneryObject* object, bool extend) {
    if (!model::IsSelected(object)) {
        if (!extend && !IsProvisional(object)) map::DeselectAll();
        SelectWhole(object);
    }
    platform::RequestRepaint();
}

void SelectOnly(SceneryObject* object) {
    map::DeselectAll();
    SelectWhole(object);
    platform::RequestRepaint();
}

void ShowPlace(model::LatLon place, bool onlyWhenOutside) {
    if (map::view.lockedToSim) return;
    const model::Point at = map::WorldToScreen(place);
    const map::PixelBox& seen = map::view.visible;
    const bool inside = at.x >= seen.left && at.y >= seen.top && at.x < seen.right && at.y < seen.bottom;
    if (onlyWhenOutside && inside) return;
    map::view.centre = place;
    platform::RequestRepaint();
}

}  // namespace dialogs
