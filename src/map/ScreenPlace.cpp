// ScreenPlace.cpp - see ScreenPlace.h.
#include "map/ScreenPlace.h"

#include <cassert>
#include <unordered_map>

#include "map/MapView.h"
#include "model/ObjectList.h"
#include "model/Positions.h"

namespace map {

namespace {

std::unordered_map<const SceneryObject*, ScreenParts> partsTable;

void SetPoint(SceneryObject* object, int index, Pixel point) {
    object->view[2 * index] = point.x;
    object->view[2 * index + 1] = point.y;
}

void MarkDrawn(SceneryObject* object) { object->view[kDrawnWord] = kDrawn; }

}  // namespace

void ForgetScreenPlaces() {
    partsTable.clear();
    for (SceneryObject* o = model::state.head; o; o = o->next) o->view[kDrawnWord] = 0;
}

bool IsDrawn(const SceneryObject* object) { return object->view[kDrawnWord] == kDrawn; }

void PlaceCircle(SceneryObject* object, Pixel centre, int32_t radius) {
    SetPoint(object, 0, centre);
    object->view[2] = radius;
    MarkDrawn(object);
}

void PlaceSegment(SceneryObject* object, Pixel from, Pixel to) {
    SetPoint(object, 0, from);
    SetPoint(object, 1, to);
    MarkDrawn(object);
}

void PlaceCorners(SceneryObject* object, std::span<const Pixel> corners) {
    assert(corners.size() == 4);
    for (int i = 0; i < 4; ++i) SetPoint(object, i, corners[static_cast<size_t>(i)]);
    MarkDrawn(object);
}

Pixel ScreenPoint(const SceneryObject* object, int index) {
    return { object->view[2 * index], object->view[2 * index + 1] };
}

int32_t ScreenRadius(const SceneryObject* object) { return object->view[2]; }

Pixel CentreOf(const SceneryObject* object) {
    return IsDrawn(object) ? ScreenPoint(object, 0) : WorldToPixel(model::PositionOf(object));
}

ScreenParts& PlaceParts(SceneryObject* object) {
    MarkDrawn(object);
    return partsTable[object];
}

const ScreenParts& PartsOf(const SceneryObject* object) {
    static const ScreenParts kNone;
    const auto found = partsTable.find(object);
    return found == partsTable.end() ? kNone : found->second;
}

}  // namespace map
