// TurnDrag.h - turning parking spots, start locations and helipads by the handle ahead of them.
//
// Every selected one that is drawn has a handle; of many only the one whose handle is nearest to the pointer. As with a
// move, the drag turns the object in place, unrecorded; the release records it.
#pragma once

#include <vector>

#include "map/MapView.h"
#include "model/Geometry.h"
#include "model/SceneryObject.h"

namespace map {

constexpr int32_t kHandleReach = 5;  // pixels

// More handles than this would lie over each other, and over what is to be pressed.
constexpr int kMostHandles = 8;

// Those with a handle.
std::vector<model::SceneryObject*> TurnableObjects();
model::Point TurnHandleOf(const model::SceneryObject* object);  // on the screen; the object has one
model::SceneryObject* TurnHandleAt(model::Pixel at);            // null: none there

bool BeginTurn(model::SceneryObject* object);  // false when it has gone, or its layer is hidden
void FollowTurn(model::Pixel pointer);         // the object faces the pointer
void FinishTurn();
void CancelTurn();
void ForgetTurn();

// The pointer has moved: of many, another one may have the handle now.
void MoveHandle();

}  // namespace map
