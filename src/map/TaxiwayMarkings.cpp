// TaxiwayMarkings.cpp - centre lines and edge lines of taxiways.
//
// Centre lines are one foot wide. They turn into each other at a junction, and end at the edge of a runway
// unless a node on the runway leads them on. Edge lines are a pair of half-foot lines, drawn as one broader
// line while the map is too small for two; they never run across a runway.
#include <algorithm>
#include <array>
#include <cmath>

#include "map/HoldShort.h"
#include "map/MapView.h"
#include "map/Painter.h"
#include "map/RunwayAreas.h"

namespace map {

namespace {

constexpr double kCentreLine = 0.3048, kThinEdgeLine = 0.1524, kBroadEdgeLine = 0.4572;  // metres
constexpr double kTwoLineScale = 6;               // pixels per metre from which edge lines are two
constexpr double kTurnReach = 2;                  // of the half width, where a turn leaves the centre line
constexpr double kLeastReach = 6;                 // metres
constexpr double kSharpestTurn = 0.2;             // cosine between two arms above which no line joins them
constexpr uint32_t kMostTurningArms = 8;          // a hub with more is no junction of taxiways
constexpr double kDash = 4.572, kDashGap = 7.62;  // metres: 15 and 25 feet
constexpr double kShortestDash = 2;               // pixels; shorter dashes run together

constexpr int kCurvePieces = 12;

constexpr uint32_t kCentreLineBit = 1u << 16;
constexpr int kLeftEdgeShift = 18, kRightEdgeShift = 21;

enum EdgeStyle : uint32_t { kNoEdge = 0, kSolidEdge = 1, kDashedEdge = 2 };  // 3 is drawn solid too

// The line on the right (or left) as seen from the hub outward.
uint32_t EdgeStyleOf(const TaxiNetwork& network, const TaxiArm& arm, bool right) {
    const TaxiSegment& segment = network.segments[arm.link];
    if (!IsPaved(segment)) return kNoEdge;
    return segment.flags >> (right == arm.atStart ? kRightEdgeShift : kLeftEdgeShift) & 3;
}

// How far along the arm the runway that it meets at its hub reaches; 0 when it meets none.
double RunwayReach(const TaxiNetwork& network, const TaxiArm& arm) {
    const TaxiHub& hub = network.hubs[arm.hub];
    double reach = 0;
    for (uint32_t i = hub.firstArm; i < hub.firstArm + hub.edgeArms; ++i) {
        const TaxiArm& other = network.arms[i];
        if (!IsAlongRunway(network.segments[other.link])) continue;
        const double sine = std::abs(arm.along.x * other.along.y - arm.along.y * other.along.x);
        if (sine * arm.length <= other.half) return arm.length;
        reach = std::max(reach, other.half / sine);
    }
    return reach;
}

bool HasCentreLine(const TaxiNetwork& network, const TaxiArm& arm) {
    const TaxiSegment& segment = network.segments[arm.link];
    return (segment.flags & kCentreLineBit) && !IsAlongRunway(segment);
}

struct CentreLines {
    const Painter* painter;
    std::vector<double> cuts;  // by arm: where its straight line begins, pixels from the hub
};

// The turns at one hub; sets the cuts of its arms.
void PaintTurns(CentreLines* lines, const TaxiHub& hub) {
    const TaxiNetwork& network = lines->painter->network;
    std::vector<uint32_t> lined;
    for (uint32_t i = hub.firstArm; i < hub.firstArm + hub.armCount; ++i) {
        const TaxiArm& arm = network.arms[i];
        if (!HasCentreLine(network, arm)) continue;
        const double runway = RunwayReach(network, arm);
        lines->cuts[i] = runway;
        if (runway == 0) lined.push_back(i);
    }
    if (lined.size() < 2 || lined.size() > kMostTurningArms) return;
    const auto turnStart = [&](const TaxiArm& arm) {
        const double wanted = std::max(kTurnReach * arm.half, kLeastReach * lines->painter->scale);
        return std::min(wanted, arm.length / 2);
    };
    Outline turns;
    for (size_t i = 0; i < lined.size(); ++i) {
        for (size_t j = i + 1; j < lined.size(); ++j) {
            const TaxiArm &a = network.arms[lined[i]], &b = network.arms[lined[j]];
            if (a.along.x * b.along.x + a.along.y * b.along.y > kSharpestTurn) continue;
            const double cutA = turnStart(a), cutB = turnStart(b);
            lines->cuts[lined[i]] = cutA;
            lines->cuts[lined[j]] = cutB;
            MoveTo(&turns, hub.at + a.along * cutA);
            QuadTo(&turns, hub.at, hub.at + b.along * cutB);
        }
    }
    if (turns.points.empty() || !Meets(BoundsOf(turns.points), lines->painter->clip)) return;
    FillOutline(lines->painter->canvas, turns);
}

void StrokeIfOnPage(const Painter& painter, Point from, Point to) {
    const std::array ends = { from, to };
    if (Meets(BoundsOf(ends), painter.clip)) StrokeLine(painter.canvas, from, to);
}

void PaintCentreLines(const Painter& painter) {
    const TaxiNetwork& network = painter.network;
    CentreLines lines = { &painter, std::vector<double>(network.arms.size()) };
    Stroke(painter, ScaledPixels(kCentreLine), InkOf(Ink::TaxiwayLine));
    for (const TaxiHub& hub : network.hubs) {
        if (hub.armCount > 0) PaintTurns(&lines, hub);
    }
    for (const TaxiSegment& segment : network.segments) {
        const TaxiArm &start = network.arms[segment.startArm], &end = network.arms[segment.endArm];
        const double startCut = lines.cuts[segment.startArm], endCut = lines.cuts[segment.endArm];
        if (!HasCentreLine(network, start) || startCut + endCut >= start.length) continue;
        StrokeIfOnPage(painter, network.hubs[segment.startHub].at + start.along * startCut,
                       network.hubs[segment.endHub].at + end.along * endCut);
    }
}

struct EdgePainter {
    const Painter* painter;
    const RunwayAreas* runways;
};

void StrokeEdge(const EdgePainter& edges, Point from, Point to) {
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
    const TaxiArm &start = network.arms[segment.startArm], &end = network.arms[segment.endArm];
    const uint32_t style = EdgeStyleOf(network, start, right);
    if (style == kNoEdge || start.half <= inset) return;
    double startCut = right ? start.rightCut : start.leftCut, endCut = right ? end.leftCut : end.rightCut;
    if (startCut == 0) startCut = RunwayReach(network, start);
    if (endCut == 0) endCut = RunwayReach(network, end);
    if (startCut + endCut >= start.length) return;
    const Point side = TurnedRight(start.along) * ((start.half - inset) * (right ? 1 : -1));
    const Point from = network.hubs[segment.startHub].at + side + start.along * startCut;
    const Point to = network.hubs[segment.endHub].at + side + end.along * endCut;
    const std::array ends = { from, to };
    if (!Meets(BoundsOf(ends), edges.painter->clip)) return;
    if (style == kDashedEdge && kDash * edges.painter->scale >= kShortestDash)
        StrokeDashes(edges, from, to);
    else
        StrokeEdge(edges, from, to);
}

// A curve that touches a runway is drawn piece by piece, so that it can end at the runway's edge.
void PaintCornerCurve(const EdgePainter& edges, Point from, Point control, Point to) {
    const std::array curve = { from, control, to };
    if (!Meets(BoundsOf(curve), edges.painter->clip)) return;
    if (!MeetsRunway(*edges.runways, curve)) {
        Outline outline;
        MoveTo(&outline, from);
        QuadTo(&outline, control, to);
        FillOutline(edges.painter->canvas, outline);
        return;
    }
    Point before = from;
    for (int i = 1; i <= kCurvePieces; ++i) {
        const double t = static_cast<double>(i) / kCurvePieces;
        const Point at = from * ((1 - t) * (1 - t)) + control * (2 * t * (1 - t)) + to * (t * t);
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
        const bool lined = EdgeStyleOf(network, arm, true) || IsAlongRunway(network.segments[arm.link]);
        const bool nextLined = EdgeStyleOf(network, next, false) || IsAlongRunway(network.segments[next.link]);
        if (corner.kind == Corner::Kind::None || !lined || !nextLined) continue;
        if (corner.kind == Corner::Kind::Cap) {
            PaintCornerCurve(edges, corner.from, corner.control[0], corner.middle);
            PaintCornerCurve(edges, corner.middle, corner.control[1], corner.to);
        } else {
            PaintCornerCurve(edges, corner.from, corner.control[0], corner.to);
        }
    }
}

void PaintEdgeLines(Painter* painter, const RunwayAreas& runways, double width, double inset) {
    const double insetPixels = inset * painter->scale;
    LayCorners(&painter->network, insetPixels);
    Stroke(*painter, ScaledPixels(width), InkOf(Ink::TaxiwayLine));
    const EdgePainter edges = { painter, &runways };
    for (const TaxiSegment& segment : painter->network.segments) {
        PaintEdge(edges, segment, insetPixels, true);
        PaintEdge(edges, segment, insetPixels, false);
    }
    for (const TaxiHub& hub : painter->network.hubs) PaintEdgeCorners(edges, hub);
}

}  // namespace

void PaintTaxiwayMarkings(Painter* painter) {
    const RunwayAreas runways = CollectRunwayAreas();
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
