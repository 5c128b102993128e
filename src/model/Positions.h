// Positions.h - where an object stands, whatever its kind.
#pragma once

#include <cstdint>

#include "model/Geodesy.h"
#include "model/SceneryObject.h"

namespace model {

// Airport, tower, runway (centre), helipad, start location, node, spot, reference marker, navaid (an ILS:
// its localizer) have one position of their own; links, designators, frequencies, aprons, light strips
// and guidelines have none.
bool HasPosition(const SceneryObject* object);

// Where in the payload the encoded position lies, longitude first; kNoPosition for a kind without one and for
// reference markers, whose position is not encoded.
constexpr uint32_t kNoPosition = UINT32_MAX;
uint32_t PositionOffset(uint32_t kind);

LatLon PositionOf(const SceneryObject* object);           // the object has a position
BglPoint EncodedPositionOf(const SceneryObject* object);  // the object has one, and is no reference marker

void SetEncodedPosition(SceneryObject* object, BglPoint code);

// Encodes and stores. Encoding loses a unit now and then: call it only for a position that was edited.
void SetPosition(SceneryObject* object, LatLon position);

}  // namespace model
