// ToolCursor.h - the shape of the pointer over the map.
#pragma once

#include "model/Geometry.h"

namespace map {

// The tools that place something share a cross with a picture of what they place.
enum class CursorShape : int {
    Arrow,
    Hand,  // the map is dragged
    Move,  // the selection is dragged, or would be
    Turn,  // a heading handle
    Box,   // the selection rectangle
    Node,
    Link,
    Parking,
    Apron,
    ApronPoint,
    EdgeLights,
    Marker,
    Guideline,
};
constexpr int kCursorShapes = 13;

CursorShape CursorAt(model::Pixel at);

}  // namespace map
