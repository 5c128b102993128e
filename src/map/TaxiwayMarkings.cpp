// TaxiwayMarkings.cpp - centre lines and edge lines of taxiways.
//
// Centre lines are one foot wide. They turn into each other at a junction, and end at the edge of a runway
// unless a node on the runway leads them on. Edge lines are a pair of half-foot lines, drawn as one broader
// line while the map is too small for two; they never run across a runway.
#include <algorithm>
#include <array>
#include <cmath>

#include "map/HoldShortMarkings.h"
#include "map/Lamps.h"
#include "map/MapView.h"
#include "map/Painter.h"
#include "map/RunwayOutlines.h"
#include "map/TaxiwayLines.h"

namespace map {

namespace {

using model::EdgeLine;

constexpr double kCentreLine = 0.3048, kThinEdgeLine = 0.1524, kBroadEdgeLine = 0.4572;  // metres
constexpr double kTwoLineScale = 6;               // pixels per metre from which edge lines are two
constexpr double kDash = 4.572, kDashGap = 7.62;  // metres: 15 and 25 feet
constexpr double kShortestDash = 2;               // pixels; shorter dashes run together

constexpr int kCurvePieces = 12;

// The line on the right (or left) as seen from the hub outward.
EdgeLine EdgeLineOf(const TaxiNetwork& network, const TaxiArm& arm, bool right) {
    const TaxiSegment& segment = network.segments[arm.link];
    if (!IsPaved(segment)) return EdgeLine::None;
    return model::EdgeLineOf(segment.flags, right == arm.atStart ? model::LinkSide::Right : model::LinkSide::Left);
}

bool HasEdgeLine(const TaxiNetwork& network, const TaxiArm& arm, bool right) {
    return EdgeLineOf(network, arm, right) != EdgeLine::None;
}

void StrokeIfOnPage(const Painter& painter, Point from, Point to) {
    const std::array ends = { from, to };
    if (Meets(BoundsOf(ends), painter.clip)) StrokeLine(painter.canvas, from, to);
}

void PaintCentreLines(const Painter& painter) {
    const CentreLines lines = LayCentreLines(painter.network, model::kLinkCentreLine, painter.scale);
    Stroke(painter, ScaledPixels(kCentreLine), InkOf(Ink::TaxiwayLine));
    for (size_t i = 0; i < lines.turns.size();) {
        Outline turns;
        const uint32_t hub = lines.turns[i].hub;
        for (; i < lines.turns.size() && lines.turns[i].hub == hub; ++i) {
            MoveTo(&turns, lines.turns[i].curve[0]);
            QuadTo(&turns, lines.turns[i].curve[1], lines.turns[i].curve[2]);
        }
        if (Meets(BoundsOf(turns.points), painter.clip)) FillOutline(painter.canvas, turns);
    }
    for (const auto& [from, to] : lines.straights) StrokeIfOnPage(painter, from, to);
}

struct EdgePainter {
    const Painter* painter;
    const RunwayOutlines* runways;
};

void StrokeEdge(const EdgePainter& edges, Point from, Point to) {
    const std::array ends = { from, to };
    if (!Meets(BoundsOf(ends), edges.painter->clip)) return;
    for (const auto& [begin, end] : OutsideRunways(*edges.runways, from, to)) {
        StrokeIfOnPage(*edges.painter, begin, end);
    }
}

// The dashes keep their places on the ground when only a part of the line is on the page.
void StrokeDashes(const EdgePainter& edges, Point from, Point to) {
    const double scale = edges.painter->scale, length = Length(to - from);
    const double dash = kDash * scale, step = (kDash + kDashGap) * scale;
    const Point along = (to - from) * (1 / length);
    Point first = from, last = to;
    if (!CutToBox(edges.painter->clip, &first, &last)) return;
    const double end = Length(last - from);
    for (double number = std::floor(Length(first - from) / step); number * step < end; ++number) {
        const double begin = number * step;
        StrokeEdge(edges, from + along * begin, from + along * std::min(begin + dash, length));
    }
}

void PaintEdge(const EdgePainter& edges, const TaxiSegment& segment, double inset, bool right) {
    const TaxiNetwork& network = edges.painter->network;
    const EdgeLine line = EdgeLineOf(network, network.arms[segment.startArm], right);
    std::array<Point, 2> ends;
    if (line == EdgeLine::None || !FindStraightEdge(network, segment, inset, right, &ends[0], &ends[1])) return;
    if (!Meets(BoundsOf(ends), edges.painter->clip)) return;
    if (line == EdgeLine::Dashed && kDash * edges.painter->scale >= kShortestDash)
        StrokeDashes(edges, ends[0], ends[1]);
    else
        StrokeEdge(edges, ends[0], ends[1]);
}

// A curve that touches a runway is drawn piece by piece, so that it can end at the runway's edge.
void PaintCornerCurve(const EdgePainter& edges, const EdgeCurve& curve) {
    if (!Meets(BoundsOf(curve), edges.painter->clip)) return;
    if (!MeetsRunway(*edges.runways, curve)) {
        Outline outline;
        MoveTo(&outline, curve[0]);
        QuadTo(&outline, curve[1], curve[2]);
        FillOutline(edges.painter->canvas, outline);
        return;
    }
    Point before = curve[0];
    for (int i = 1; i <= kCurvePieces; ++i) {
        const Point at = PointOnLine(curve, static_cast<double>(i) / kCurvePieces);
        StrokeEdge(edges, before, at);
        before = at;
    }
}

// Around the corners between arms that both have the line, or one of which is a runway.
void PaintEdgeCorners(const EdgePainter& edges, const TaxiHub& hub) {
    const TaxiNetwork& network = edges.painter->network;
    for (uint32_t i = 0; i < hub.edgeArms; ++i) {
        const TaxiArm& arm = network.arms[hub.firstArm + i];
        const TaxiArm& next = network.arms[hub.firstArm + (i + 1) % hub.edgeArms];
        const Corner& corner = arm.right;
        const bool lined = HasEdgeLine(network, arm, true) || IsAlongRunway(network.segments[arm.link]);
        const bool nextLined = HasEdgeLine(network, next, false) || IsAlongRunway(network.segments[next.link]);
        if (!lined || !nextLined) continue;
        for (const EdgeCurve& curve : CurvesOf(corner)) PaintCornerCurve(edges, curve);
    }
}

void PaintEdgeLines(Painter* painter, const RunwayOutlines& runways, double width, double inset) {
    const double insetPixels = inset * painter->scale;
    LayCorners(&painter->network, insetPixels);
    Stroke(*painter, ScaledPixels(width), InkOf(Ink::TaxiwayLine));
    const EdgePainter edges = { painter, &runways };
    for (const TaxiSegment& segment : painter->network.segments) {
        PaintEdge(edges, segment, insetPixels, true);
        PaintEdge(edges, segment, insetPixels, false);
    }
    for (const TaxiHub& hub : painter->network.hubs) {
        if (hub.inView) PaintEdgeCorners(edges, hub);
    }
}

}  // namespace

void PaintTaxiwayMarkings(Painter* painter) {
    const RunwayOutlines runways = CollectRunwayOutlines();
    PaintCentreLines(*painter);
    if (painter->scale >= kTwoLineScale) {
        PaintEdgeLines(painter, runways, kThinEdgeLine, kThinEdgeLine / 2);
        PaintEdgeLines(painter, runways, kThinEdgeLine, kThinEdgeLine * 2.5);
    } else {
        PaintEdgeLines(painter, runways, kBroadEdgeLine, kBroadEdgeLine / 2);
    }
    PaintHoldShortMarkings(*painter);
}

}  // namespace map
