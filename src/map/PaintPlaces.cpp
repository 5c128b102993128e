// PaintPlaces.cpp - the airport's reference point, the tower, start locations, reference markers, guidelines,
// the fault finder's marker.
#include <array>
#include <cmath>

#include "map/FaultMarker.h"
#include "map/MapView.h"
#include "map/Painter.h"
#include "map/Placing.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "model/Records.h"

namespace map {

namespace {

// Symbol sizes in metres, with the smallest size on the screen in pixels.
constexpr double kReferencePointRadius = 15;
constexpr int kLeastReferencePoint = 7;
constexpr double kTowerRadius = 12;
constexpr int kLeastTower = 8;
constexpr double kStartRadius = 12;
constexpr int kLeastStart = 6;
constexpr int kMarkerRadius = 5;  // pixels at any zoom: a view aid, not a thing on the ground

int SymbolRadius(double metres, int least) { return std::max(ScaledPixels(metres), ToWhole(FromScreen(least))); }

// True, with its place stored, when the symbol lies on the page.
bool PlaceSymbol(const Painter& painter, SceneryObject* object, int radius, Point* at) {
    *at = WorldToScreen(model::PositionOf(object));
    if (!Meets(BoundsOf(*at, radius), painter.clip)) return false;
    PlaceCircle(object, ToPixel(*at), radius);
    return true;
}

// A cab on a shaft, upright on the screen however the map is turned.
void PaintTowerSymbol(const Painter& painter, Point at, double radius) {
    const auto from = [&](double x, double y) { return at + Point{ x * radius, y * radius }; };
    const std::array shaft = { from(-0.28, 1), from(-0.28, -0.1), from(0.28, -0.1), from(0.28, 1) };
    const std::array cab = { from(-0.45, -0.1), from(-0.75, -0.8), from(0.75, -0.8), from(0.45, -0.1) };
    FillPolygon(painter.canvas, shaft);
    FillPolygon(painter.canvas, cab);
    StrokeLine(painter.canvas, from(0, -0.8), from(0, -1.1));
}

void PaintStart(const Painter& painter, SceneryObject* start) {
    Point at;
    const int radius = SymbolRadius(kStartRadius, kLeastStart);
    if (!PlaceSymbol(painter, start, radius, &at)) return;
    const auto& record = model::PayloadAs<model::StartLocationRecord>(start);
    const Point ahead = HeadingOnScreen(double{ record.heading } * model::kRadiansPerDegree) * radius;
    const Point side = TurnedRight(ahead);
    const std::array arrow = { at + ahead,
                               at + side * 0.7 + ahead * 0.1,
                               at + side * 0.25 + ahead * 0.1,
                               at + side * 0.25 - ahead,
                               at - side * 0.25 - ahead,
                               at - side * 0.25 + ahead * 0.1,
                               at - side * 0.7 + ahead * 0.1 };
    Fill(painter, FillInk(start, Ink::StartLocation), OutlineInk(start, Ink::StartLocation));
    FillPolygon(painter.canvas, arrow);
}

}  // namespace

// A circle with a cross through it, as on charts.
void PaintReferencePoint(Painter* painter) {
    SceneryObject* airport = model::state.airport;
    Point at;
    const int radius = SymbolRadius(kReferencePointRadius, kLeastReferencePoint);
    if (!PlaceSymbol(*painter, airport, radius, &at)) return;
    const Colour colour = FillInk(airport, Ink::ReferencePoint);
    Stroke(*painter, 2, colour);
    FillCircle(painter->canvas, at, std::floor(radius * 0.6));
    StrokeLine(painter->canvas, at - Point{ double(radius), 0 }, at + Point{ double(radius), 0 });
    StrokeLine(painter->canvas, at - Point{ 0, double(radius) }, at + Point{ 0, double(radius) });
}

void PaintTower(Painter* painter) {
    model::ForEachOfKind(model::kTowerViewpoint, [&](SceneryObject* tower) {
        Point at;
        const int radius = SymbolRadius(kTowerRadius, kLeastTower);
        if (!IsTowerPlaced(tower) || !PlaceSymbol(*painter, tower, radius, &at)) return;
        Fill(*painter, FillInk(tower, Ink::Tower), OutlineInk(tower, Ink::Tower));
        PaintTowerSymbol(*painter, at, radius);
    });
}

void PaintStartLocations(Painter* painter) {
    model::ForEachOfKind(model::kStartLocation, [&](SceneryObject* start) { PaintStart(*painter, start); });
}

void PaintReferenceMarkers(Painter* painter) {
    model::ForEachOfKind(model::kReferenceMarker, [&](SceneryObject* marker) {
        Point at;
        const double radius = FromScreen(kMarkerRadius);
        if (!PlaceSymbol(*painter, marker, ToWhole(radius), &at)) return;
        Stroke(*painter, 1, FillInk(marker, Ink::Marker));
        FillCircle(painter->canvas, at, FromScreen(kMarkerRadius - 2));
        StrokeLine(painter->canvas, at - Point{ radius, 0 }, at + Point{ radius, 0 });
        StrokeLine(painter->canvas, at - Point{ 0, radius }, at + Point{ 0, radius });
    });
}

void PaintGuidelines(Painter* painter) {
    model::ForEachOfKind(model::kGuideline, [&](SceneryObject* guideline) {
        const auto& record = model::PayloadAs<model::GuidelinePayload>(guideline);
        const std::array ends = { WorldToScreen(model::PositionOf(record.from)),
                                  WorldToScreen(model::PositionOf(record.to)) };
        if (!Meets(BoundsOf(ends), painter->clip)) return;
        PlaceSegment(guideline, ToPixel(ends[0]), ToPixel(ends[1]));
        Stroke(*painter, 1, FillInk(guideline, Ink::Guideline));
        StrokeLine(painter->canvas, ends[0], ends[1]);
    });
}

// A ring with four ticks that leaves the faulty objects inside it in sight.
void PaintFaultMarker(Painter* painter) {
    if (!faultMarker.shown) return;
    const Point at = WorldToScreen(faultMarker.position);
    const double radius = FromScreen(kFaultRadius), reach = radius + FromScreen(kFaultTick);
    if (!Meets(BoundsOf(at, reach), painter->clip)) return;
    Stroke(*painter, 3, InkOf(Ink::FaultMarker));
    FillCircle(painter->canvas, at, radius);
    for (const Point side : { Point{ 1, 0 }, Point{ 0, 1 }, Point{ -1, 0 }, Point{ 0, -1 } }) {
        StrokeLine(painter->canvas, at + side * radius, at + side * reach);
    }
}

}  // namespace map
