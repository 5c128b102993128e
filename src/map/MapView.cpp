// MapView.cpp - the view transform and the operations that change the view.
//
// Zoom has no limit in either direction. Whatever an extreme span makes of a coordinate, turning it into
// whole pixels is defined (ToPixel), and painting clips to a box that every target can take.
#include "map/MapView.h"

#include <cmath>

#include "map/MapHost.h"
#include "map/Shapes.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "platform/Platform.h"

namespace map {

MapView view;
MapLayers layers;
SimAircraft simAircraft;

namespace {

constexpr double kZoomInFactor = 0.9;
constexpr double kZoomOutFactor = 1.1111111111111112;
constexpr double kCoarseStep = 5, kFineStep = 1;  // degrees
constexpr double kTurnsPerDegree = 0.002777777777777778;
constexpr double kPanShare = 0.05;  // of the client size
constexpr int kWheelNotch = 120;

void MeasureScale() { view.pixelsPerMetre = view.clientHeight / view.span; }

void SetSpan(double span) {
    view.span = span;
    MeasureScale();
}

// One step, without telling anyone.
void Turn(bool add, bool fine) {
    const double step = (fine ? kFineStep : kCoarseStep) * kTurnsPerDegree * model::kTwoPi;
    view.rotation = model::AngleAdd(view.rotation, add ? step : -step);
}

void ShowRotation() {
    RotationChanged();
    platform::RequestRepaint();
}

}  // namespace

void ResizeView(int32_t width, int32_t height) {
    view.clientWidth = width;
    view.clientHeight = height;
    const int32_t halfWidth = width / 2, halfHeight = height / 2;  // whole pixels
    view.screenCentreX = halfWidth;
    view.screenCentreY = halfHeight;
    view.visible = { 0, 0, width, height };
    MeasureScale();
}

void SetVisible(const PixelBox& visible) { view.visible = visible; }

model::Point WorldToScreen(LatLon position) {
    model::Polar polar = model::RangeAndBearing(view.centre, position);
    polar.bearing -= view.rotation;
    const model::Local offset = model::PolarToLocal(polar);
    return { view.screenCentreX + view.pixelsPerMetre * offset.east,
             view.screenCentreY - view.pixelsPerMetre * offset.north };
}

LatLon ScreenToWorld(model::Point pixel) {
    model::Polar polar = model::LocalToPolar(
        { (pixel.x - view.screenCentreX) / view.pixelsPerMetre, (view.screenCentreY - pixel.y) / view.pixelsPerMetre });
    polar.bearing += view.rotation;
    return model::OffsetByPolar(view.centre, polar);
}

Pixel WorldToPixel(LatLon position) { return ToPixel(WorldToScreen(position)); }

void ZoomIn() { ZoomSteps(1); }
void ZoomOut() { ZoomSteps(-1); }

void ZoomSteps(int notches) {
    double span = view.span;
    for (int i = 0; i < notches; ++i) span *= kZoomInFactor;
    for (int i = 0; i > notches; --i) span *= kZoomOutFactor;
    SetSpan(span);
    platform::RequestRepaint();
}

void Rotate(RotateDirection direction, bool fine) {
    if (view.lockedToSim) return;
    Turn(direction == RotateDirection::Add, fine);
    ShowRotation();
}

void RotateSteps(int notches, bool fine) {
    if (view.lockedToSim) return;
    for (int i = 0; i < std::abs(notches); ++i) Turn(notches > 0, fine);
    ShowRotation();
}

void PanStep(PanDirection direction) {
    if (view.lockedToSim) return;
    model::Point to = { view.screenCentreX, view.screenCentreY };
    switch (direction) {
    case PanDirection::Down: to.y += kPanShare * view.clientHeight; break;
    case PanDirection::Up: to.y -= kPanShare * view.clientHeight; break;
    case PanDirection::Right: to.x += kPanShare * view.clientWidth; break;
    case PanDirection::Left: to.x -= kPanShare * view.clientWidth; break;
    }
    view.centre = ScreenToWorld(to);
    platform::RequestRepaint();
}

void PanDragStart(Pixel at) { view.lastDragPoint = at; }

void PanDrag(Pixel at) {
    if (view.lockedToSim || at == view.lastDragPoint) return;
    view.centre = ScreenToWorld({ double(view.lastDragPoint.x) - at.x + view.screenCentreX,
                                  double(view.lastDragPoint.y) - at.y + view.screenCentreY });
    view.lastDragPoint = at;
    platform::RequestRepaint();
}

void SlewHome() {
    if (model::state.airport) view.home = model::PositionOf(model::state.airport);  // it may have been moved
    if (!view.lockedToSim) {
        view.centre = view.home;
        view.rotation = 0;
        simAircraft.position = view.home;  // where it is about to be
        simAircraft.heading = 0;
        ShowRotation();
    }
    PlaceSimAircraft(view.home, 0);
}

void JumpHere(Pixel at) { PlaceSimAircraft(ScreenToWorld({ double(at.x), double(at.y) }), view.rotation); }

void ResetView(LatLon home) {
    view.rotation = 0;
    view.centre = view.home = home;
    SetSpan(kInitialSpan);
    ShowRotation();
}

void OnWheel(int delta, bool ctrl, bool shift) {
    const int sum = view.wheel + delta;
    const int notches = sum / kWheelNotch;
    view.wheel = static_cast<int16_t>(sum % kWheelNotch);
    if (notches == 0) return;
    if (ctrl || shift)
        RotateSteps(notches, !ctrl);
    else
        ZoomSteps(notches);
}

}  // namespace map
