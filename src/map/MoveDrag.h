// MoveDrag.h - moving the selection with the mouse.
//
// While the drag lasts the objects follow the pointer in place, unrecorded, and the model counts as busy, so that
// nothing is undone under the drag. The release puts them back and records the move as one action.
//
// A link takes its two ends with it, a guideline its markers; of aprons, strips of edge lights and ILSs move the parts
// that are selected. Each moves once, however often it is meant. A stock navaid is moved by a replacement, and only
// while it can be seen.
#pragma once

#include "model/Geometry.h"

namespace map {

void BeginMove(model::Pixel press);  // the selection, as if it were held at the press
void FollowMove(model::Pixel pointer);
void FinishMove();  // the button was released
void CancelMove();  // everything back where it was
void ForgetMove();  // the objects are gone

}  // namespace map
