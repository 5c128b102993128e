// Selection.h - which object lies under a pixel, and the selection.
//
// Works on the screen places that the last paint stored, so that picking matches what the user sees;
// objects of hidden layers cannot be picked.
#pragma once

#include <cstdint>

#include "model/Geometry.h"
#include "model/SceneryObject.h"

namespace map {

struct Pick {
    model::SceneryObject* object = nullptr;
    int part = 0;  // apron vertex + 1, ILS part bit, light-strip part (LightStrips.h); 0 the whole object
};

Pick PickObject(model::Pixel at);

// The pointer tool's click. Without `extend` (Shift or Ctrl held) everything else is deselected first. Where no object is
// hit, a click on the ring of the fault marker hides it.
void SelectAt(model::Pixel at, bool extend);

// Whether the object is still one of the airport's.
bool IsInList(const model::SceneryObject* object);

// Whether what was picked is selected: the part, where one was picked.
bool IsPickSelected(const Pick& pick);

bool DeselectAll();  // whether anything was selected
void SelectAll();

// Within 3 pixels of the segment, measured across its major axis; the end `to` lies outside the span.
bool HitsSegment(model::Pixel at, model::Pixel from, model::Pixel to);
// Boundary included.
bool HitsCircle(model::Pixel at, model::Pixel centre, int32_t radius);

}  // namespace map
