// Placing.h - where on the ground a press lies.
#pragma once

#include "model/Geodesy.h"
#include "model/Geometry.h"
#include "model/Records.h"
#include "model/SceneryObject.h"

namespace map {

model::LatLon UnderPixel(model::Pixel at);

// A place that the file can hold: short of the poles. The longitude is brought to within half a turn.
bool IsPlaceable(model::LatLon* position);

model::EncodedPoint Encode(model::LatLon place);

// The place under the pixel; false when there is none on earth.
bool PlaceUnder(model::Pixel at, model::LatLon* place);

// Whether the tower has no place: that of a new airport stands at the placeholder, and compiled files without a tower
// hold zeros.
bool StandsNowhere(const model::SceneryObject* tower);

// Whether the tower stands somewhere and has an elevation, so that it is drawn.
bool IsTowerPlaced(const model::SceneryObject* tower);

// At least kDragThreshold pixels apart in x or y.
bool IsDrag(model::Pixel from, model::Pixel to);

// Where a drag began: the map may move under it.
struct PressPlace {
    model::Pixel at;
    model::LatLon place;
};
PressPlace PressedAt(model::Pixel at);

// Whether the pointer is as far from the place that was pressed as a drag needs, wherever the map shows that now.
bool IsPulled(const PressPlace& press, model::Pixel to);

}  // namespace map
