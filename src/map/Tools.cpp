// Tools.cpp - what presses, moves and releases of the mouse mean, by the tool in force.
#include "map/Tools.h"

#include <cmath>

#include "map/LinkSplit.h"
#include "map/MapView.h"
#include "map/MoveDrag.h"
#include "map/ScreenPlace.h"
#include "map/Selection.h"
#include "model/EditHistory.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "platform/Platform.h"

namespace map {

ToolState tools;

namespace {

LatLon UnderPixel(Pixel at) { return ScreenToWorld({ double(at.x), double(at.y) }); }

// What a link can end at; links end nowhere else.
bool HitsLinkEnd(Pixel at) {
    if (!layers.network) return false;
    for (SceneryObject* o = model::state.head; o; o = o->next) {
        const uint32_t kind = model::KindOf(o);
        if ((kind != model::kTaxiNode && kind != model::kParkingSpot) || !IsDrawn(o)) continue;
        const int margin = kind == model::kTaxiNode ? 1 : 0;
        if (HitsCircle(at, ScreenPoint(o, 0), ScreenRadius(o) + margin)) return true;
    }
    return false;
}

// A place that the file can hold: on the earth, the longitude within half a turn.
bool IsPlaceable(LatLon* position) {
    if (!std::isfinite(position->lat) || !std::isfinite(position->lon)) return false;
    if (std::fabs(position->lat) >= model::kPi / 2 || std::fabs(position->lon) > 2 * model::kTwoPi) return false;
    while (position->lon > model::kPi) position->lon -= model::kTwoPi;
    while (position->lon <= -model::kPi) position->lon += model::kTwoPi;
    return true;
}

void PressPointer(Pixel at, KeyState keys) {
    SelectAt(at, keys.shift || keys.ctrl);
    const Pick pick = PickObject(at);
    if (pick.object && model::IsSelected(pick.object)) ArmMove(at);
}

void PressNodes(Pixel at) {
    LatLon position = UnderPixel(at);
    if (!layers.network) {  // no node may be made unseen, perhaps on top of another
        layers.network = true;
        return platform::RequestRepaint();
    }
    if (HitsLinkEnd(at) || !IsPlaceable(&position)) return;
    DeselectAll();  // what is selected afterwards is what was made
    SceneryObject* node = model::CreateObject(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
    model::PayloadAs<model::TaxiNodeRecord>(node).type = tools.nodeKind;
    model::SetPosition(node, position);
    node->flags |= model::kSelected | model::kNewNode;
    model::BeginAction();
    model::AddObject(node);
    JoinNodeIntoLinks(node);
    platform::RequestRepaint();
}

bool IsNamed(const SceneryObject* designator) {
    return model::PayloadAs<model::TaxiDesignatorRecord>(designator).name[0] != '\0';
}

}  // namespace

void SetTool(Tool tool) {
    CancelMove();
    tools.tool = tool;
    tools.pressed = false;
}

void ResetTools() {
    ForgetMove();
    tools.tool = Tool::Pointer;
    tools.panning = tools.pressed = tools.hasClick = false;
    layers.highlightedDesignator = nullptr;
}

void OnButtonDown(Pixel at, KeyState keys) {
    tools.cursor = at;
    if (view.lockedToSim || !model::state.airport) return;
    tools.pressed = true;
    tools.press = at;
    tools.hasClick = true;
    tools.lastClick = UnderPixel(at);
    switch (tools.tool) {
    case Tool::Pointer: PressPointer(at, keys); break;
    case Tool::Nodes: PressNodes(at); break;
    default: break;
    }
}

void OnMouseMove(Pixel at, KeyState) {
    tools.cursor = at;
    if (tools.panning) PanDrag(at);
    if (tools.pressed && tools.tool == Tool::Pointer) FollowMove(at);
}

void OnButtonUp(Pixel at, KeyState) {
    tools.cursor = at;
    if (!tools.pressed) return;
    tools.pressed = false;
    if (tools.tool != Tool::Pointer) return;
    FollowMove(at);
    FinishMove();
}

void OnMiddleDown(Pixel at) {
    tools.cursor = at;
    tools.panning = true;
    PanDragStart(at);
}

void OnMiddleUp() { tools.panning = false; }

void CycleHighlight(bool backwards) {
    SceneryObject* first = nullptr;
    SceneryObject* last = nullptr;
    SceneryObject* before = nullptr;
    SceneryObject* after = nullptr;
    bool found = false;
    for (SceneryObject* o = model::FirstOfKind(model::state.head, model::kTaxiDesignator); o;
         o = model::NextOfKind(o, model::kTaxiDesignator)) {
        if (!IsNamed(o)) continue;
        if (!first) first = o;
        if (found && !after) after = o;
        if (o == layers.highlightedDesignator) {
            found = true;
            before = last;
        }
        last = o;
    }
    if (found)
        layers.highlightedDesignator = backwards ? before : after;
    else
        layers.highlightedDesignator = backwards ? last : first;
    platform::RequestRepaint();
}

}  // namespace map
