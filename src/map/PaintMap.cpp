// PaintMap.cpp - the order of the layers, and what they share.
#include "map/PaintMap.h"

#include <algorithm>
#include <array>

#include "app/Settings.h"
#include "map/MapView.h"
#include "map/Painter.h"
#include "model/ObjectList.h"
#include "platform/Platform.h"

namespace map {

namespace {

constexpr double kMarkingScale = 0.3;  // pixels per metre from which taxiway markings and lamps are drawn
constexpr int kCrossHairReach = 22;    // pixels, each side of the aircraft

void PaintBackground(const Painter& painter) {
    Fill(painter, InkOf(Ink::Background), InkOf(Ink::Background));
    const Pixel corner = { view.clientWidth - 1, view.clientHeight - 1 };
    const std::array corners = { Pixel{ 0, 0 }, Pixel{ corner.x, 0 }, corner, Pixel{ 0, corner.y } };
    platform::DrawPolygon(painter.canvas, corners);
}

void PaintGround(Painter* painter) {
    PaintAprons(painter);
    if (app::settings.showLatLongGrid) PaintGrid(painter);
    LayCorners(&painter->network, 0);
    PaintRunwayShoulders(painter);  // under the taxiways that cross them
    PaintTaxiwaySurfaces(painter->canvas, painter->network);
    PaintRunwaySurfaces(painter);
    PaintRunwayMarkings(painter);
    PaintHelipads(painter);
    if (painter->scale >= kMarkingScale) PaintTaxiwayMarkings(painter);
}

void PaintPlaces(Painter* painter) {
    if (layers.network) {
        PaintParkingSpots(painter);
        PaintTaxiNodes(painter);
        PaintTaxiLinks(painter);
    }
    if (layers.lights) {
        if (painter->scale >= kMarkingScale) PaintTaxiwayLights(painter);
        PaintRunwayLights(painter);
    }
    PaintReferencePoint(painter);
    PaintTower(painter);
    if (layers.starts) PaintStartLocations(painter);
    if (layers.navaids) PaintNavaids(painter);
    if (app::settings.showLabels != 0 && layers.network) PaintParkingLabels(painter);
}

platform::Path PageOutline() {
    platform::Path path;
    platform::MoveTo(&path, { 0, 0 });
    platform::LineTo(&path, { view.clientWidth, 0 });
    platform::LineTo(&path, { view.clientWidth, view.clientHeight });
    platform::LineTo(&path, { 0, view.clientHeight });
    platform::ClosePath(&path);
    return path;
}

void PaintCrossHair(Canvas* canvas) {
    const Point at = WorldToScreen(simAircraft.position);
    const int32_t reach = ToWhole(FromScreen(kCrossHairReach));
    if (!Meets(BoundsOf(at, reach), ClipBox())) return;
    const Pixel centre = ToPixel(at);
    platform::SetPen(canvas, 1, InkOf(Ink::CrossHair));
    platform::DrawLine(canvas, { centre.x - reach, centre.y }, { centre.x + reach, centre.y });
    platform::DrawLine(canvas, { centre.x, centre.y - reach }, { centre.x, centre.y + reach });
}

}  // namespace

void Fill(const Painter& painter, Colour fill, Colour outline) {
    platform::SetPen(painter.canvas, 1, outline);
    platform::SetBrush(painter.canvas, fill);
}

void FillOnly(const Painter& painter, Colour fill) {
    platform::SetPen(painter.canvas, platform::kNoPen, 0);
    platform::SetBrush(painter.canvas, fill);
}

void Stroke(const Painter& painter, int width, Colour colour) {
    constexpr int kWidest = platform::kNoPen - 1;  // one more would read as no pen
    platform::SetPen(painter.canvas, std::min(width, kWidest), colour);
    platform::SetBrush(painter.canvas, platform::kNoBrush);
}

Colour FillInk(const SceneryObject* object, Ink normal) {
    return InkOf(model::IsSelected(object) ? Ink::SelectedFill : normal);
}

Colour OutlineInk(const SceneryObject* object, Ink normal) {
    return InkOf(model::IsSelected(object) ? Ink::SelectedOutline : normal);
}

void PaintMap(Canvas* canvas) {
    Painter painter;
    painter.canvas = canvas;
    painter.clip = ClipBox();
    painter.scale = view.pixelsPerMetre;
    ForgetScreenPlaces();
    PaintBackground(painter);
    PaintToolPreview(&painter);
    if (!model::state.airport) return;
    painter.network = BuildTaxiNetwork();
    PaintGround(&painter);
    PaintPlaces(&painter);
    if (painter.apronOnTop) PaintApronsOnTop(&painter);
    if (layers.lights) PaintApronEdgeLights(&painter);
    PaintReferenceMarkers(&painter);
    PaintGuidelines(&painter);
    PaintFaultMarker(&painter);
    if (view.lockedToSim && simAircraft.active) PaintCrossHair(canvas);
}

void PaintPageMap(Canvas* canvas, int thinnestPen, const MapView& onScreen) {
    canvas->thinnestPen = thinnestPen;
    platform::PushClip(canvas, PageOutline());
    PaintMap(canvas);
    platform::PopClip(canvas);
    canvas->thinnestPen = 1;
    view = onScreen;
    platform::RequestRepaint();
}

void PaintFeedback(Canvas* canvas) {
    // Without an airport the view shows no place that the aircraft could be at.
    if (model::state.airport && simAircraft.active && !view.lockedToSim) PaintCrossHair(canvas);
    PaintToolFeedback(canvas);
}

}  // namespace map
