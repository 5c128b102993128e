// Tools.h - the mouse tools of the map.
#pragma once

#include <cstdint>

#include "model/Geodesy.h"
#include "model/Geometry.h"

namespace map {

enum class Tool : int {
    Pointer = 0,
    Nodes = 1,
    Links = 2,
    Parking = 3,
    Apron = 4,
    ApronPoint = 5,
    EdgeLights = 6,
    Markers = 7,
    Guidelines = 8,
};

struct ToolState {
    Tool tool = Tool::Pointer;
    uint8_t nodeKind = 1;   // 1 normal, 2 hold-short, 4 ILS hold-short
    uint32_t linkKind = 1;  // 1 normal, 2 runway, 4 apron, 5 closed
    bool panning = false;
    bool pressed = false;     // the left button went down on the map and is still held
    model::Pixel press;       // where
    model::Pixel cursor;      // last position of the pointer
    bool hasClick = false;    // lastClick holds a position
    model::LatLon lastClick;  // origin of the distance and angle read-out
};

extern ToolState tools;

struct KeyState {
    bool shift = false, ctrl = false;
};

void SetTool(Tool tool);
void ResetTools();  // on loading an airport

void OnButtonDown(model::Pixel at, KeyState keys);
void OnMouseMove(model::Pixel at, KeyState keys);
void OnButtonUp(model::Pixel at, KeyState keys);
void OnMiddleDown(model::Pixel at);
void OnMiddleUp();

// The next (or previous) taxiway name stands out on the map; after the last one none does.
void CycleHighlight(bool backwards);

}  // namespace map
