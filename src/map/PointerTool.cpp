// PointerTool.cpp - see PointerTool.h.
//
// A press without Shift and Ctrl on what is selected already leaves the rest selected until it is known whether it
// begins a drag of the whole selection or was a click on this one object.
#include "map/PointerTool.h"

#include "map/LinkTool.h"
#include "map/MapHost.h"
#include "map/MapView.h"
#include "map/MoveDrag.h"
#include "map/Placing.h"
#include "map/Selection.h"
#include "map/SelectionBox.h"
#include "map/TurnDrag.h"
#include "platform/Platform.h"

namespace map {

namespace {

struct PointerState {
    PointerDrag armed = PointerDrag::None;  // what leaving the press begins
    PointerDrag drag = PointerDrag::None;
    Pixel press;
    model::SceneryObject* handle = nullptr;  // whose turn handle was pressed
    bool clickSelects = false;               // a release without a drag selects what was pressed, and only that
};

PointerState state;

// The handles lie over everything else.
bool PressHandle(Pixel at) {
    state.handle = TurnHandleAt(at);
    if (state.handle) {
        state.armed = PointerDrag::Turn;
        return true;
    }
    if (!BeginReattach(at)) return false;
    state.armed = state.drag = PointerDrag::Reattach;
    return true;
}

void Begin() {
    state.drag = state.armed;
    state.clickSelects = false;
    switch (state.drag) {
    case PointerDrag::Turn:
        if (!BeginTurn(state.handle)) CancelPointer();
        break;
    case PointerDrag::Move: BeginMove(state.press); break;
    case PointerDrag::Box: BeginBox(state.press); break;
    default: break;
    }
}

}  // namespace

PointerDrag CurrentPointerDrag() { return state.drag; }

void PressPointer(Pixel at, KeyState keys) {
    state = {};
    state.press = at;
    if (PressHandle(at)) return;
    const bool extend = keys.shift || keys.ctrl;
    const Pick pick = PickObject(at);
    state.clickSelects = !extend && IsPickSelected(pick);
    if (!state.clickSelects) SelectAt(at, extend);
    if (!pick.object)
        state.armed = PointerDrag::Box;
    else if (model::IsSelected(pick.object))
        state.armed = PointerDrag::Move;
}

void FollowPointer(Pixel at) {
    if (state.drag == PointerDrag::None && IsDrag(state.press, at)) Begin();
    switch (state.drag) {
    case PointerDrag::Turn: FollowTurn(at); break;
    case PointerDrag::Reattach: FollowLink(at); break;
    case PointerDrag::Move: FollowMove(at); break;
    case PointerDrag::Box: RequestFeedback(); break;
    default: break;
    }
}

void ReleasePointer(Pixel at) {
    FollowPointer(at);
    switch (state.drag) {
    case PointerDrag::Turn: FinishTurn(); break;
    case PointerDrag::Reattach: FinishLink(at); break;
    case PointerDrag::Move: FinishMove(); break;
    case PointerDrag::Box: FinishBox(at); break;
    case PointerDrag::None:
        if (state.clickSelects) SelectAt(state.press, false);
        break;
    }
    state = {};
}

void CancelPointer() {
    const bool hadBox = IsBoxOpen();
    CancelTurn();
    if (state.drag == PointerDrag::Reattach) CancelLink();
    CancelMove();
    CancelBox();
    if (hadBox) platform::RequestRepaint();
    state = {};
}

void ForgetPointer() {
    ForgetTurn();
    ForgetMove();
    CancelBox();
    state = {};
}

}  // namespace map
