// MovedPoints.h - which positions in an object's payload move with what is selected of it.
#pragma once

#include <cstdint>
#include <vector>

#include "model/Geodesy.h"
#include "model/SceneryObject.h"

namespace map {

// Payload offsets of encoded points: the position, or those of the selected vertices, strip ends and ILS parts. With
// `whole` all of them. Empty for what has no place of its own.
std::vector<uint32_t> MovingPoints(const model::SceneryObject* object, bool whole);

// Moves the points by the offset; a reference marker, which has no encoded points, moves whole. Each offset is taken
// from the point itself. False, with the object unchanged, when a point would come to lie past a pole.
bool ShiftPoints(model::SceneryObject* object, const std::vector<uint32_t>& points, model::Local offset);

}  // namespace map
