// PaintApron.cpp - apron surfaces, selected aprons on top of everything, apron edge lights.
//
// An apron with single vertices selected keeps its surface colour; its vertices show which ones. One that has too few of
// them for an area shows those alone, selected or not: otherwise nobody could find it to mend or delete it.
#include <array>
#include <cmath>

#include "map/ApronShape.h"
#include "map/LightStrips.h"
#include "map/MapView.h"
#include "map/Painter.h"
#include "model/ObjectList.h"
#include "model/Records.h"

namespace map {

namespace {

constexpr int kVertexReach = 3;            // pixels from the middle of a vertex mark to its sides
constexpr double kLightReach = 0.4;        // metres, radius of a lamp
constexpr double kClosestLights = 6;       // pixels; closer ones are not told apart and not drawn
constexpr double kLongestStrip = 200'000;  // metres; anything longer is a damaged record
constexpr double kLeastSpacing = 0.01;     // metres; likewise anything closer: such lamps may be beyond counting

bool IsWholeSelected(const SceneryObject* apron) {
    return model::IsSelected(apron) && (apron->flags & model::kWholeSelected) != 0;
}

std::vector<Point> OnScreen(const std::vector<model::LatLon>& positions) {
    std::vector<Point> points;
    points.reserve(positions.size());
    for (const model::LatLon& position : positions) points.push_back(WorldToScreen(position));
    return points;
}

void PaintApron(Painter* painter, SceneryObject* apron) {
    if (apron->flags & model::kOutlineOpen) return;
    const std::vector<Point> points = OnScreen(ApronCorners(apron));
    const bool hasArea = points.size() >= kFewestCorners;
    if (model::IsSelected(apron) || !hasArea) painter->apronOnTop = true;
    if (points.empty() || !Meets(BoundsOf(points), painter->clip)) return;
    std::vector<Pixel>& places = PlaceParts(apron).apron;
    for (const Point& point : points) places.push_back(ToPixel(point));
    if (!hasArea) return;
    const Colour surface = ApronColour(model::PayloadAs<model::ApronHead>(apron).surface);
    Fill(*painter, IsWholeSelected(apron) ? InkOf(Ink::SelectedFill) : surface, OutlineInk(apron, Ink::ApronOutline));
    FillPolygon(painter->canvas, points);
}

void PaintApronOnTop(const Painter& painter, const SceneryObject* apron) {
    if (!IsDrawn(apron)) return;
    if (!model::IsSelected(apron) && PartsOf(apron).apron.size() >= kFewestCorners) return;
    std::vector<Point> points = OnScreen(ApronCorners(apron));
    points.push_back(points.front());
    const Colour outline = OutlineInk(apron, Ink::ApronOutline);
    Stroke(painter, 2, outline);
    StrokeLines(painter.canvas, points);
    points.pop_back();
    for (size_t i = 0; i < points.size(); ++i) {
        if (!Contains(painter.clip, points[i])) continue;
        const bool lit = IsWholeSelected(apron) || IsVertexSelected(apron, static_cast<uint32_t>(i));
        Fill(painter, InkOf(lit ? Ink::SelectedFill : Ink::Background), outline);
        const Point reach = Point{ 1, 1 } * FromScreen(kVertexReach), across = TurnedRight(reach);
        const std::array corners = { points[i] - reach, points[i] + across, points[i] + reach, points[i] - across };
        FillPolygon(painter.canvas, corners);
    }
}

void PaintStrip(const Painter& painter, const LightStrip& strip, bool selected, std::vector<Pixel>* places) {
    const Point from = WorldToScreen(strip.start), to = WorldToScreen(strip.end);
    places->push_back(ToPixel(from));
    places->push_back(ToPixel(to));
    const std::array ends = { from, to };
    if (!Meets(BoundsOf(ends), painter.clip)) return;
    const bool lit = selected && strip.segmentSelected;
    Stroke(painter, lit ? 2 : 1, InkOf(lit ? Ink::SelectedFill : Ink::EdgeLightStrip));
    StrokeLine(painter.canvas, from, to);
    PaintStripLamps(painter, from, to, strip.spacing);
    for (const auto& [point, chosen] : { std::pair{ from, strip.startSelected }, std::pair{ to, strip.endSelected } }) {
        if (!selected || !chosen) continue;
        Fill(painter, InkOf(Ink::SelectedFill), InkOf(Ink::SelectedOutline));
        FillCircle(painter.canvas, point, FromScreen(kVertexReach));
    }
}

}  // namespace

// From its start, as far as they lie on the page.
void PaintStripLamps(const Painter& painter, Point from, Point to, double spacing) {
    const double length = Length(to - from), step = spacing * painter.scale;
    if (!(spacing >= kLeastSpacing) || !(step >= kClosestLights)) return;
    if (!(length > 0) || length > kLongestStrip * painter.scale) return;
    const Point along = (to - from) * (1 / length);
    Point first = from, last = to;
    if (!CutToBox(painter.clip, &first, &last)) return;
    const int radius = ScaledPixels(kLightReach);
    FillOnly(painter, InkOf(Ink::LightBlue));
    const double end = Length(last - from) + step / 1000;  // the last lamp may miss the end by a rounding
    for (double number = std::ceil(Length(first - from) / step); number * step <= end; ++number) {
        FillCircle(painter.canvas, from + along * (number * step), radius);
    }
}

void PaintAprons(Painter* painter) {
    model::ForEachOfKind(model::kApron, [&](SceneryObject* apron) { PaintApron(painter, apron); });
}

void PaintApronsOnTop(Painter* painter) {
    model::ForEachOfKind(model::kApron, [&](SceneryObject* apron) { PaintApronOnTop(*painter, apron); });
}

void PaintApronEdgeLights(Painter* painter) {
    model::ForEachOfKind(model::kApronEdgeLights, [&](SceneryObject* lights) {
        std::vector<Pixel>& places = PlaceParts(lights).stripEnds;
        for (uint32_t i = 0; i < StripCount(lights); ++i) {
            PaintStrip(*painter, StripAt(lights, i), model::IsSelected(lights), &places);
        }
    });
}

}  // namespace map
