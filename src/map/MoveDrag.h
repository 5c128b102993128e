// MoveDrag.h - moving selected nodes and parking spots with the mouse.
//
// While the drag lasts the objects follow the pointer in place, unrecorded, and the model counts as busy,
// so that nothing is undone under the drag. The release puts them back and records the move as one action.
#pragma once

#include "model/Geometry.h"

namespace map {

constexpr int kDragThreshold = 3;  // pixels in x or y that make a press a drag

void ArmMove(model::Pixel press);       // a press selected something; the drag begins when the mouse leaves
bool FollowMove(model::Pixel pointer);  // whether a move is going on
void FinishMove();                      // the button was released
void CancelMove();                      // everything back where it was
void ForgetMove();                      // the objects are gone

}  // namespace map
