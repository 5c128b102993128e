// ToolCursor.cpp - see ToolCursor.h.
#include "map/ToolCursor.h"

#include "map/LinkTool.h"
#include "map/MapView.h"
#include "map/PointerTool.h"
#include "map/Selection.h"
#include "map/TurnDrag.h"
#include "model/ObjectList.h"

namespace map {

namespace {

CursorShape WhileDragging(PointerDrag drag) {
    switch (drag) {
    case PointerDrag::Turn: return CursorShape::Turn;
    case PointerDrag::Reattach: return CursorShape::Link;
    case PointerDrag::Move: return CursorShape::Move;
    case PointerDrag::Box: return CursorShape::Box;
    default: return CursorShape::Arrow;
    }
}

CursorShape OfPointer(Pixel at) {
    if (tools.pressed) return WhileDragging(CurrentPointerDrag());
    if (TurnHandleAt(at)) return CursorShape::Turn;
    if (IsReattachHandle(at)) return CursorShape::Link;
    return IsPickSelected(PickObject(at)) ? CursorShape::Move : CursorShape::Arrow;
}

}  // namespace

CursorShape CursorAt(Pixel at) {
    if (tools.panning) return CursorShape::Hand;
    if (!model::state.airport || view.lockedToSim) return CursorShape::Arrow;
    switch (tools.toolMode) {
    case Tool::Nodes: return CursorShape::Node;
    case Tool::Links: return CursorShape::Link;
    case Tool::Parking: return CursorShape::Parking;
    case Tool::Apron: return CursorShape::Apron;
    case Tool::ApronPoint: return CursorShape::ApronPoint;
    case Tool::EdgeLights: return CursorShape::EdgeLights;
    case Tool::Markers: return CursorShape::Marker;
    case Tool::Guidelines: return CursorShape::Guideline;
    default: return OfPointer(at);
    }
}

}  // namespace map
