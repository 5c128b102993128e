// SelectionBox.h - the rectangle of the pointer tool that adds what lies inside it to the selection.
#pragma once

#include "model/Geometry.h"

namespace map {

// A drag like the others: until it is finished or cancelled nothing else may change the airport.
void BeginBox(model::Pixel press);     // held to the ground there when the map scrolls
void FinishBox(model::Pixel pointer);  // adds what lies inside to the selection, in sight or not
void CancelBox();
bool IsBoxOpen();

// The corners in pixels of the map as it lies now, the pointer being at the other corner.
struct BoxCorners {
    int32_t left = 0, top = 0, right = 0, bottom = 0;
};
BoxCorners CornersOfBox(model::Pixel pointer);

}  // namespace map
