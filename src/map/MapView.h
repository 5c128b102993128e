// MapView.h - the one view of the map: where it looks and how positions become pixels.
#pragma once

#include <cstdint>

#include "model/Geodesy.h"
#include "model/Geometry.h"
#include "model/SceneryObject.h"

namespace map {

using model::LatLon;
using model::Pixel;

constexpr double kInitialSpan = 3704.3518;  // two nautical miles

struct PixelBox {
    int32_t left = 0, top = 0, right = 0, bottom = 0;  // right and bottom outside
};

struct MapView {
    LatLon centre, home;         // radians, west-positive; home is the airport reference point
    double span = kInitialSpan;  // metres of ground across the height of the client area
    double pixelsPerMetre = 0;   // clientHeight / span, computed whenever the client area is measured
    double rotation = 0;         // radians, [0, 2 pi); 0 is north up
    int32_t clientWidth = 0, clientHeight = 0;
    PixelBox visible;     // what the bars of the window leave of the client area
    double fineness = 1;  // how many pixels take the room of one of a screen: more on a printer, fewer on its sample
    double screenCentreX = 0, screenCentreY = 0;  // client size halved with integer division
    Pixel lastDragPoint;
    bool lockedToSim = false;  // panning and rotation are refused, zoom still works
    int16_t wheel = 0;         // wheel deltas not yet consumed
};

extern MapView view;

// Which layers are drawn. Parking labels and the grid are settings (app/Settings.h).
struct MapLayers {
    bool network = true;  // nodes, links, parking
    bool lights = false;  // and the night palette
    bool starts = false;
    bool navaids = false;
    bool holdShortLimits = false;
    // Links on this taxiway name stand out; null highlights none. Compared only, never followed.
    const model::SceneryObject* highlightedDesignator = nullptr;
};

extern MapLayers layers;

// The aircraft in the simulator, as the last poll of the simulator link saw it.
struct SimAircraft {
    bool active = false;  // the link is up
    LatLon position;
    double heading = 0;  // radians true
};

extern SimAircraft simAircraft;

void ResizeView(int32_t width, int32_t height);  // measures the client area, all of it visible
void SetVisible(const PixelBox& visible);
model::Point WorldToScreen(LatLon position);
LatLon ScreenToWorld(model::Point pixel);
Pixel WorldToPixel(LatLon position);  // truncated toward zero

enum class PanDirection { Down = 1, Up = 2, Right = 3, Left = 4 };
enum class RotateDirection { Subtract = 1, Add = 2 };

void ZoomIn();
void ZoomOut();
void ZoomSteps(int notches);  // positive zooms in; 0 only repaints
void Rotate(RotateDirection direction, bool fine);
void RotateSteps(int notches, bool fine);
void PanStep(PanDirection direction);
void PanDragStart(Pixel at);
void PanDrag(Pixel at);
void SlewHome();                                 // also places the simulator aircraft, when the link is up
void JumpHere(Pixel at);                         // places the simulator aircraft; the view stays
void ResetView(LatLon home);                     // on loading an airport
void OnWheel(int delta, bool ctrl, bool shift);  // raw wheel delta; accumulates to notches of 120

}  // namespace map
