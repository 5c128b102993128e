// PaintNetwork.cpp - parking spots, taxi nodes and taxi links: the network that AI aircraft use.
#include <array>
#include <cmath>

#include "map/MapView.h"
#include "map/Painter.h"
#include "map/SpotColours.h"
#include "model/Positions.h"
#include "model/Records.h"
#include "model/RunwayArea.h"

namespace map {

namespace {

constexpr double kLinkWidth = 0.4572;                                             // 1.5 feet
constexpr double kClosedCrossReach = 15.24;                                       // 50 feet
constexpr double kPointerBack = 0.66, kPointerAhead = 0.35, kPointerSide = 0.57;  // of the spot's radius
constexpr double kPointerNotch = 0.4;                                             // behind the centre

Ink NodeInk(uint8_t type) {
    switch (type) {
    case model::kHoldShortNode: return Ink::HoldShortNode;
    case model::kIlsHoldShortNode: return Ink::IlsHoldShortNode;
    default: return Ink::Node;
    }
}

Ink LinkInk(uint32_t type) {
    switch (type) {
    case model::kRunwayLink: return Ink::RunwayLink;
    case model::kParkingLink:
    case model::kApronRouteLink: return Ink::ParkingLink;
    default: return Ink::TaxiLink;
    }
}

void PaintNode(const Painter& painter, SceneryObject* node, Point at) {
    const uint8_t type = model::PayloadAs<model::TaxiNodeRecord>(node).type;
    const Colour colour = FillInk(node, NodeInk(type));
    const int radius = ScaledPixels(kNodeRadius);
    if (Meets(BoundsOf(at, radius), painter.clip)) {
        PlaceCircle(node, ToPixel(at), radius);
        Fill(painter, colour, colour);
        FillCircle(painter.canvas, at, radius);
    }
    if (!layers.holdShortLimits || type != model::kHoldShortNode) return;
    const int limit = ScaledPixels(model::kHoldShortLimit);
    if (!Meets(BoundsOf(at, limit), ClientBox())) return;
    Stroke(painter, 1, colour);
    FillCircle(painter.canvas, at, limit);
}

// An arrowhead of five points, closed, that shows where the parked aircraft's nose points.
void PaintPointer(const Painter& painter, Point at, double heading, double radius) {
    const Point ahead = HeadingOnScreen(heading), side = TurnedRight(ahead) * (kPointerSide * radius);
    const Point tip = at + ahead * (kPointerAhead * radius), tail = at - ahead * (kPointerBack * radius);
    const std::array corners = { tip, tail + side, at - ahead * (kPointerNotch * radius), tail - side, tip };
    FillPolygon(painter.canvas, corners);
}

struct SpotInk {
    Colour fill, outline;
};

SpotInk InkOfSpot(const SpecIndex& specs, const SceneryObject* spot) {
    if (model::IsSelected(spot)) return { InkOf(Ink::SelectedFill), InkOf(Ink::SelectedOutline) };
    const app::ParkingSpec* spec = SpecOfSpot(specs, spot);
    if (!spec || !spec->hasColour) return { InkOf(Ink::ParkingFill), InkOf(Ink::ParkingOutline) };
    return { ColourOfSpec(*spec), InkOf(Ink::SpecOutline) };
}

void PaintSpot(const Painter& painter, const SpecIndex& specs, SceneryObject* spot, Point at) {
    const auto& record = model::PayloadAs<model::ParkingSpotRecord>(spot);
    if (!Contains(painter.clip, at)) return;
    const int radius = ScaledPixels(double{ record.radius });
    PlaceCircle(spot, ToPixel(at), radius);
    const SpotInk ink = InkOfSpot(specs, spot);
    Fill(painter, ink.fill, ink.outline);
    FillCircle(painter.canvas, at, radius);
    PaintPointer(painter, at, double{ record.heading } * model::kRadiansPerDegree, radius);
}

void PaintClosedCross(const Painter& painter, Point from, Point to) {
    const Point middle = (from + to) * 0.5;
    const double reach = kClosedCrossReach * painter.scale;
    if (!Meets(BoundsOf(middle, reach), painter.clip)) return;
    const Point along = (to - from) * (1 / Length(to - from));
    Stroke(painter, ScaledPixels(kLinkWidth), InkOf(Ink::ClosedCross));
    for (const double turn : { 1.0, -1.0 }) {
        const Point arm = (along + TurnedRight(along) * turn) * (std::sqrt(0.5) * reach);
        StrokeLine(painter.canvas, middle - arm, middle + arm);
    }
}

void PaintLinkLine(const Painter& painter, const TaxiSegment& segment, Point from, Point to) {
    const std::array ends = { from, to };
    if (!Meets(BoundsOf(ends), painter.clip)) return;
    SceneryObject* link = segment.object;
    PlaceSegment(link, ToPixel(from), ToPixel(to));
    const auto* designator = model::PayloadAs<model::TaxiLinkPayload>(link).designator;
    const bool highlighted = designator && designator == layers.highlightedDesignator;
    Stroke(painter, ScaledPixels(kLinkWidth),
           FillInk(link, highlighted ? Ink::HighlightedLink : LinkInk(segment.type)));
    StrokeLine(painter.canvas, from, to);
}

// The cross reaches farther than the line: it may be seen where the line is not.
void PaintLink(const Painter& painter, const TaxiSegment& segment) {
    const Point from = painter.network.hubs[segment.startHub].at, to = painter.network.hubs[segment.endHub].at;
    PaintLinkLine(painter, segment, from, to);
    if (segment.type == model::kClosedLink) PaintClosedCross(painter, from, to);
}

}  // namespace

void PaintParkingSpots(Painter* painter) {
    const SpecIndex specs = IndexSpecs();
    for (const bool selected : { false, true }) {
        for (const TaxiHub& hub : painter->network.hubs) {
            if (model::KindOf(hub.object) != model::kParkingSpot || model::IsSelected(hub.object) != selected) continue;
            PaintSpot(*painter, specs, hub.object, hub.at);
        }
    }
}

void PaintTaxiNodes(Painter* painter) {
    for (const TaxiHub& hub : painter->network.hubs) {
        if (model::KindOf(hub.object) == model::kTaxiNode) PaintNode(*painter, hub.object, hub.at);
    }
}

void PaintTaxiLinks(Painter* painter) {
    for (const TaxiSegment& segment : painter->network.segments) PaintLink(*painter, segment);
}

}  // namespace map
