// MarkerTool.cpp - see MarkerTool.h.
#include "map/MarkerTool.h"

#include "map/MapHost.h"
#include "map/MapView.h"
#include "map/NewObjects.h"
#include "map/Placing.h"
#include "map/ScreenPlace.h"
#include "map/Selection.h"
#include "map/Tools.h"
#include "model/EditHistory.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "platform/Platform.h"

namespace map {

namespace {

GuidelineDrag drag;
PressPlace pressed;

SceneryObject* MarkerAt(Pixel at) {
    for (SceneryObject* o = model::FirstOfKind(model::state.head, model::kReferenceMarker); o;
         o = model::NextOfKind(o, model::kReferenceMarker)) {
        if (IsDrawn(o) && HitsCircle(at, ScreenPoint(o, 0), kMarkerReach)) return o;
    }
    return nullptr;
}

bool FindEnd(Pixel at, SceneryObject** marker, LatLon* place) {
    *marker = MarkerAt(at);
    if (!*marker) return PlaceUnder(at, place);
    *place = model::PositionOf(*marker);
    return true;
}

bool MakesGuideline(const SceneryObject* marker, Pixel pointer) {
    return IsPulled(pressed, pointer) && (!marker || marker != drag.fromMarker);
}

}  // namespace

void PlaceMarker(Pixel at) {
    LatLon place;
    if (!PlaceUnder(at, &place)) return;
    DeselectAll();
    model::BeginAction();
    AddMarker(place);
    platform::RequestRepaint();
}

SceneryObject* LastMarker() {
    for (SceneryObject* o = model::state.tail; o; o = o->prev) {
        if (model::KindOf(o) == model::kReferenceMarker) return o;
    }
    return nullptr;
}

const GuidelineDrag& CurrentGuidelineDrag() { return drag; }

bool BeginGuideline(Pixel at) {
    drag = {};
    pressed = PressedAt(at);
    drag.active = FindEnd(at, &drag.fromMarker, &drag.from);
    model::state.busy = drag.active;
    return drag.active;
}

void FollowGuideline(Pixel pointer) {
    if (!drag.active) return;
    SceneryObject* marker = nullptr;
    drag.hasTo = FindEnd(pointer, &marker, &drag.to) && MakesGuideline(marker, pointer);
    RequestFeedback();
}

void FinishGuideline(Pixel pointer) {
    if (!drag.active) return;
    model::state.busy = false;
    SceneryObject* to = nullptr;
    LatLon place;
    SceneryObject* from = drag.fromMarker;
    if ((!from || IsInList(from)) && FindEnd(pointer, &to, &place) && MakesGuideline(to, pointer)) {
        DeselectAll();
        model::BeginAction();
        if (!from) from = AddMarker(drag.from);
        if (!to) to = AddMarker(place);
        AddGuideline(from, to);
    }
    ForgetGuideline();
    platform::RequestRepaint();
}

void CancelGuideline() {
    DropDrawing(drag.active);
    ForgetGuideline();
}

void ForgetGuideline() { drag = {}; }

}  // namespace map
