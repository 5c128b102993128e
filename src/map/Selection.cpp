// Selection.cpp - selecting by click, all and none.
//
// Selection bits lie in the object's flags and, for kinds with parts, in its payload; neither is recorded
// in the edit history.
#include "map/Selection.h"

#include "map/ApronShape.h"
#include "map/FaultMarker.h"
#include "map/LightStrips.h"
#include "map/MapView.h"
#include "model/ObjectList.h"
#include "model/Records.h"
#include "platform/Platform.h"

namespace map {

using model::IlsPayload;
using model::KindOf;
using model::kSelected;
using model::kWholeSelected;
using model::PayloadAs;
using model::SceneryObject;

namespace {

constexpr int kFaultReach = 3;  // pixels inside the ring that still count as the ring

void SetFlag(SceneryObject* object, uint32_t flag, bool set) {
    object->flags = set ? object->flags | flag : object->flags & ~flag;
}

void ClearParts(SceneryObject* object) {
    SetFlag(object, kWholeSelected, false);
    switch (KindOf(object)) {
    case model::kIls: PayloadAs<IlsPayload>(object).selectedParts = 0; break;
    case model::kApron: ClearVertexSelection(object); break;
    case model::kApronEdgeLights: ClearStripSelection(object); break;
    default: break;
    }
}

uint8_t ExistingPartsOf(const SceneryObject* ils) {
    const uint8_t flags = PayloadAs<IlsPayload>(ils).body.flags;
    int parts = model::kLocalizerPart;
    if (flags & model::kHasGlideSlope) parts |= model::kGlideSlopePart;
    if (flags & model::kHasDme) parts |= model::kDmePart;
    return static_cast<uint8_t>(parts);
}

// A wholly selected ILS counts as having all its parts.
uint8_t SelectedPartsOf(const SceneryObject* ils) {
    if (!model::IsSelected(ils)) return 0;
    return ils->flags & kWholeSelected ? model::kAllIlsParts : PayloadAs<IlsPayload>(ils).selectedParts;
}

// Of all parts that were selected at once those that it does not have are dropped: no click could take them out.
void SelectIlsPart(SceneryObject* ils, int part, bool toggle) {
    const auto bit = static_cast<uint8_t>(part);
    const auto parts = static_cast<uint8_t>(SelectedPartsOf(ils) & ExistingPartsOf(ils));
    const auto now = static_cast<uint8_t>(toggle ? parts ^ bit : parts | bit);
    PayloadAs<IlsPayload>(ils).selectedParts = now;
    SetFlag(ils, kWholeSelected, false);
    SetFlag(ils, kSelected, now != 0);
}

void SelectApronPart(SceneryObject* apron, int part, bool toggle) {
    if (part == 0) {
        const bool selected = !(toggle && model::IsSelected(apron));
        SetFlag(apron, kSelected, selected);
        SetFlag(apron, kWholeSelected, selected);
        return;
    }
    const auto vertex = static_cast<uint32_t>(part - 1);
    SetFlag(apron, kWholeSelected, false);
    SelectVertex(apron, vertex, !(toggle && IsVertexSelected(apron, vertex)));
    SetFlag(apron, kSelected, AnyVertexSelected(apron));
}

bool IsSegment(int part) { return (part - 1) % kStripParts == static_cast<int>(StripPart::Segment); }

// What is wholly selected is selected by all its points: a segment is taken out with both of its ends.
void TakeOutOfWhole(SceneryObject* lights, int part) {
    SelectAllStripPoints(lights);
    SelectStripPart(lights, part, false);
    if (!IsSegment(part)) return;
    const auto strip = static_cast<uint32_t>((part - 1) / kStripParts);
    SelectStripPart(lights, PartNumber(strip, StripPart::Start), false);
    SelectStripPart(lights, PartNumber(strip, StripPart::End), false);
}

void SelectStrip(SceneryObject* lights, int part, bool toggle) {
    if (toggle && (lights->flags & kWholeSelected) != 0)
        TakeOutOfWhole(lights, part);
    else
        SelectStripPart(lights, part, !(toggle && IsStripPartSelected(lights, part)));
    SetFlag(lights, kWholeSelected, false);
    SetFlag(lights, kSelected, AnyStripPartSelected(lights));
}

void SelectPick(const Pick& pick, bool toggle) {
    SceneryObject* object = pick.object;
    switch (KindOf(object)) {
    case model::kIls: SelectIlsPart(object, pick.part, toggle); break;
    case model::kApron: SelectApronPart(object, pick.part, toggle); break;
    case model::kApronEdgeLights: SelectStrip(object, pick.part, toggle); break;
    default: SetFlag(object, kSelected, !(toggle && model::IsSelected(object))); break;
    }
    if (!model::IsSelected(object)) ClearParts(object);
}

bool IsLeftOut(const SceneryObject* object) {
    const uint32_t kind = KindOf(object);
    return kind == model::kNdb || kind == model::kVorDme || model::IsReplacedStock(object);
}

// The ring and its ticks; what lies inside it is the fault, not the marker.
bool HitsFaultMarker(model::Pixel at) {
    if (!faultMarker.shown) return false;
    const model::Pixel middle = WorldToPixel(faultMarker.position);
    return HitsCircle(at, middle, kFaultRadius + kFaultTick) && !HitsCircle(at, middle, kFaultRadius - kFaultReach);
}

// No object, so that it is asked for last. A click takes it away.
bool TakeFaultMarker(model::Pixel at) {
    if (!HitsFaultMarker(at)) return false;
    faultMarker.shown = false;
    return true;
}

}  // namespace

void SelectAt(model::Pixel at, bool extend) {
    const Pick pick = PickObject(at);
    bool changed = !extend && DeselectAll();
    if (pick.object)
        SelectPick(pick, extend);
    else if (TakeFaultMarker(at))
        changed = true;
    if (pick.object || changed) platform::RequestRepaint();
}

bool IsInList(const SceneryObject* object) {
    for (const SceneryObject* o = model::state.head; o; o = o->next) {
        if (o == object) return true;
    }
    return false;
}

bool IsPickSelected(const Pick& pick) {
    const SceneryObject* object = pick.object;
    if (!object || !model::IsSelected(object)) return false;
    switch (KindOf(object)) {
    case model::kIls: return (SelectedPartsOf(object) & pick.part) != 0;
    case model::kApron:
        return pick.part == 0 ? (object->flags & kWholeSelected) != 0
                              : IsVertexSelected(object, static_cast<uint32_t>(pick.part - 1));
    case model::kApronEdgeLights:
        return (object->flags & kWholeSelected) != 0 || IsStripPartSelected(object, pick.part);
    default: return true;
    }
}

bool DeselectAll() {
    bool any = false;
    for (SceneryObject* o = model::state.head; o; o = o->next) {
        if (!model::IsSelected(o)) continue;
        any = true;
        SetFlag(o, kSelected, false);
        ClearParts(o);
    }
    return any;
}

void SelectAll() {
    for (SceneryObject* o = model::state.head; o; o = o->next) {
        if (IsLeftOut(o)) continue;
        SetFlag(o, kSelected | kWholeSelected, true);
        if (KindOf(o) == model::kIls) PayloadAs<IlsPayload>(o).selectedParts = model::kAllIlsParts;
        if (KindOf(o) == model::kApronEdgeLights) SelectAllStripPoints(o);
    }
    platform::RequestRepaint();
}

}  // namespace map
