// Tools.h - the mouse tools of the map: what presses, moves and releases mean, by the tool in force.
//
// A press may begin a drag: then the model counts as busy and the drag timer runs until the button is released. A
// drag that is cancelled (Esc, the mouse captured by something else, another tool) leaves no trace.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/Geodesy.h"
#include "model/Geometry.h"
#include "model/Names.h"
#include "model/Records.h"
#include "model/SceneryObject.h"

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

constexpr int kDragThreshold = 3;  // pixels in x or y that make a press a drag

struct ToolState {
    Tool toolMode = Tool::Pointer;
    uint8_t nodeKind = model::kNormalNode;     // any model::NodeType
    uint32_t linkKind = model::kTaxiwayLink;   // any model::LinkType but kParkingLink
    int lastParkingType = model::kGateMedium;  // code of the type of new parking spots
    std::vector<std::string> parkingCodes;     // airline codes of new spots, Windows-1252, at most 4 characters each
    std::vector<model::LatLon> outline;        // corners of the apron under construction, in order
    bool panning = false;
    bool pressed = false;     // the left button went down on the map and is still held
    bool dragging = false;    // and the pointer has left the press
    model::Pixel press;       // where
    model::Pixel cursor;      // last position of the pointer
    bool hasClick = false;    // lastClick holds a position
    model::LatLon lastClick;  // the place of the last press
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
void OnDoubleClick(model::Pixel at, KeyState keys);  // in place of the second press
void OnMiddleDown(model::Pixel at);
void OnMiddleUp();

// Before the properties of what lies there: all strips of light are one object, and of these the one that was hit is
// meant. It is selected unless a part of it is; `extend` (Shift or Ctrl held) keeps the others selected.
void SelectStripAt(model::Pixel at, bool extend);

// The drag timer: at the edge of the map the view moves on, and the drag with it.
void OnDragTimer();

// The button will not be released here: what was dragged is back where it was.
void CancelDrag();

// Of a tool that draws by a drag: what is under way is dropped without an edit.
void DropDrawing(bool underWay);

// Esc: cancels a drag; else closes the apron outline, or drops it when it has fewer than three corners. Where the file
// has no room for another apron the outline stays.
bool CanEscape();
void Escape();

// Where distances are read out from: the last reference marker, else the last press. False when there is neither.
bool ReadOutOrigin(model::LatLon* origin);

// The taxiway name that new links get and whose links stand out; null none.
void SetHighlight(model::SceneryObject* designator);

}  // namespace map
