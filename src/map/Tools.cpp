// Tools.cpp - see Tools.h.
#include "map/Tools.h"

#include <array>

#include "map/ApronTool.h"
#include "map/EdgeLightsTool.h"
#include "map/Layers.h"
#include "map/LightStrips.h"
#include "map/LinkTool.h"
#include "map/MapHost.h"
#include "map/MapView.h"
#include "map/MarkerTool.h"
#include "map/NewObjects.h"
#include "map/Placing.h"
#include "map/PointerTool.h"
#include "map/Selection.h"
#include "map/TurnDrag.h"
#include "model/EditHistory.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "platform/Platform.h"

namespace map {

using model::SceneryObject;

ToolState tools;

namespace {

constexpr int32_t kScrollEdge = 12;  // pixels from the edge of the map

void PressNodes(Pixel at, KeyState) {
    LatLon position;
    if (LinkEndObjectAt(at) || !PlaceUnder(at, &position)) return;
    if (!HasRoomForNode(position)) return;
    DeselectAll();  // what is selected afterwards is what was made
    model::BeginAction();
    AddNode(position, tools.nodeKind);
    platform::RequestRepaint();
}

void PressLinks(Pixel at, KeyState) { BeginLink(at); }

void PressParking(Pixel at, KeyState) {
    LatLon position;
    if (!PlaceUnder(at, &position) || !HasRoomFor(model::kParkingSpot)) return;
    DeselectAll();
    model::BeginAction();
    AddSpot(position, view.rotation);
    platform::RequestRepaint();
}

void PressApron(Pixel at, KeyState) { AddOutlinePoint(at); }
void PressApronPoint(Pixel at, KeyState) { InsertApronPoint(at); }
void PressEdgeLights(Pixel at, KeyState) { BeginStrip(at); }
void PressMarkers(Pixel at, KeyState) { PlaceMarker(at); }
void PressGuidelines(Pixel at, KeyState) { BeginGuideline(at); }

void Nothing() {}
void Nowhere(Pixel) {}

struct ToolRow {
    void (*press)(Pixel at, KeyState keys);
    void (*follow)(Pixel at);  // the button is held
    void (*release)(Pixel at);
    void (*cancel)();  // everything back where it was
    bool drags;        // a press may begin a drag
    uint32_t makes;    // objects of that kind; 0 none
};

// By Tool.
constexpr std::array<ToolRow, 9> kTools = { {
    { PressPointer, FollowPointer, ReleasePointer, CancelPointer, true, 0 },
    { PressNodes, Nowhere, Nowhere, Nothing, false, model::kTaxiNode },
    { PressLinks, FollowLink, FinishLink, CancelLink, true, model::kTaxiLink },
    { PressParking, Nowhere, Nowhere, Nothing, false, model::kParkingSpot },
    { PressApron, Nowhere, Nowhere, Nothing, false, model::kApron },
    { PressApronPoint, Nowhere, Nowhere, Nothing, false, model::kApron },
    { PressEdgeLights, FollowStrip, FinishStrip, CancelStrip, true, model::kApronEdgeLights },
    { PressMarkers, Nowhere, Nowhere, Nothing, false, model::kReferenceMarker },
    { PressGuidelines, FollowGuideline, FinishGuideline, CancelGuideline, true, model::kGuideline },
} };

const ToolRow& Row() { return kTools[static_cast<size_t>(tools.toolMode)]; }

// Nothing is made unseen.
void ShowMadeLayer() {
    bool MapLayers::*layer = LayerOf(Row().makes);
    if (!layer || layers.*layer) return;
    layers.*layer = true;
    platform::RequestRepaint();
}

void EndPress() {
    if (tools.pressed && Row().drags) StopDragTimer();
    tools.pressed = tools.dragging = false;
}

void Follow(Pixel at) {
    tools.dragging = tools.dragging || IsDrag(tools.press, at);
    Row().follow(at);
}

bool IsStripSelected(const Pick& pick) {
    if (pick.object->flags & model::kWholeSelected) return true;
    const LightStrip strip = StripAt(pick.object, static_cast<uint32_t>((pick.part - 1) / kStripParts));
    return strip.segmentSelected || strip.startSelected || strip.endSelected;
}

// A drag at the edge of the map takes the map along.
bool Scroll() {
    const Pixel at = tools.cursor;
    const PixelBox& seen = view.visible;
    const bool left = at.x < seen.left + kScrollEdge, right = at.x >= seen.right - kScrollEdge;
    const bool up = at.y < seen.top + kScrollEdge, down = at.y >= seen.bottom - kScrollEdge;
    if (view.lockedToSim || (left == right && up == down)) return false;
    if (left != right) PanStep(left ? PanDirection::Left : PanDirection::Right);
    if (up != down) PanStep(up ? PanDirection::Up : PanDirection::Down);
    return true;
}

}  // namespace

void SetTool(Tool tool) {
    CancelDrag();
    if (tool != Tool::Apron) DropOutline();
    tools.toolMode = tool;
    ShowMadeLayer();
    RequestFeedback();  // the handles belong to the pointer
}

void ResetTools() {
    ForgetPointer();
    ForgetLink();
    ForgetStrip();
    ForgetGuideline();
    EndPress();
    model::state.busy = false;
    tools.outline.clear();
    tools.toolMode = Tool::Pointer;
    tools.panning = tools.hasClick = false;
    layers.highlightedDesignator = nullptr;
}

void OnButtonDown(Pixel at, KeyState keys) {
    tools.cursor = at;
    if (view.lockedToSim || !model::state.airport) return;
    CancelDrag();  // a release that was never seen
    ShowRemark("");
    tools.pressed = true;
    tools.press = at;
    tools.hasClick = true;
    tools.lastClick = UnderPixel(at);
    ShowMadeLayer();  // it may have been hidden since
    if (Row().drags) StartDragTimer();
    Row().press(at, keys);
}

void OnMouseMove(Pixel at, KeyState) {
    tools.cursor = at;
    if (tools.panning) PanDrag(at);
    if (tools.pressed) Follow(at);
    if (tools.toolMode == Tool::Apron && HasOutline()) RequestFeedback();
    if (tools.toolMode == Tool::Pointer && !tools.pressed) MoveHandle();
}

void OnButtonUp(Pixel at, KeyState) {
    tools.cursor = at;
    if (!tools.pressed) return;
    EndPress();
    Row().release(at);
}

void OnDoubleClick(Pixel at, KeyState keys) {
    tools.cursor = at;
    if (view.lockedToSim || !model::state.airport) return;
    if (tools.toolMode == Tool::Apron) return CloseOutline();
    if (!Row().drags) return;  // the first press has made what was wanted
    const Pick pick = tools.toolMode == Tool::Pointer ? PickObject(at) : Pick{};
    if (!pick.object) return OnButtonDown(at, keys);
    CancelDrag();
    SelectStripAt(at, keys.shift || keys.ctrl);  // the first press with Shift may have taken it out of the selection
    OpenProperties(pick.object);
}

void SelectStripAt(Pixel at, bool extend) {
    const Pick pick = PickObject(at);
    if (!pick.object || model::KindOf(pick.object) != model::kApronEdgeLights) return;
    if (!IsStripSelected(pick)) SelectAt(at, extend);
}

void OnMiddleDown(Pixel at) {
    tools.cursor = at;
    if (view.lockedToSim) return;
    tools.panning = true;
    PanDragStart(at);
}

void OnMiddleUp() { tools.panning = false; }

void OnDragTimer() {
    if (!tools.pressed || !tools.dragging || !Row().drags) return;
    if (Scroll()) Follow(tools.cursor);
}

void CancelDrag() {
    if (!tools.pressed) return;
    EndPress();
    Row().cancel();
    model::state.busy = false;
}

void DropDrawing(bool underWay) {
    if (!underWay) return;
    model::state.busy = false;
    platform::RequestRepaint();
}

bool CanEscape() { return (tools.pressed && Row().drags) || HasOutline(); }

void Escape() {
    if (tools.pressed && Row().drags) return CancelDrag();
    if (CanCloseOutline()) return CloseOutline();
    DropOutline();
}

bool ReadOutOrigin(LatLon* origin) {
    if (const SceneryObject* marker = LastMarker()) {
        *origin = model::PositionOf(marker);
        return true;
    }
    *origin = tools.lastClick;
    return tools.hasClick;
}

void SetHighlight(SceneryObject* designator) {
    if (layers.highlightedDesignator == designator) return;
    layers.highlightedDesignator = designator;
    platform::RequestRepaint();
}

}  // namespace map
