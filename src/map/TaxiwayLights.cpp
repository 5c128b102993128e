// TaxiwayLights.cpp - green lamps along the centre lines of taxiways, blue ones beside their edges.
//
// Spacings follow FAA AC 150/5340-30: on the centre line 50 feet, beside straight edges at most 200 feet and at
// bends 50 feet, five feet from the pavement.
#include "map/Lamps.h"
#include "map/Painter.h"
#include "map/RunwayOutlines.h"
#include "map/TaxiwayLines.h"

namespace map {

namespace {

constexpr double kCentreSpacing = Feet(50), kEdgeSpacing = Feet(200), kBendSpacing = Feet(50);
constexpr double kEdgeDistance = Feet(5);
constexpr double kLampRadius = 0.5;  // metres

void PaintCentreLights(const Painter& painter, const Lamps& lamps) {
    const CentreLines lines = LayCentreLines(painter.network, model::kLinkCentreLights, painter.scale);
    const double spacing = ThinnedSpacing(kCentreSpacing) * painter.scale;
    const auto anywhere = [](Point) { return true; };
    for (const auto& straight : lines.straights) PaintLampsAlong(lamps, straight, spacing, Ink::LightGreen, anywhere);
    for (const CentreTurn& turn : lines.turns) PaintLampsAlong(lamps, turn.curve, spacing, Ink::LightGreen, anywhere);
}

bool HasLights(const TaxiNetwork& network, const TaxiArm& arm, bool right) {
    const TaxiSegment& segment = network.segments[arm.link];
    const uint32_t bit = right == arm.atStart ? model::kLinkRightLights : model::kLinkLeftLights;
    return IsPaved(segment) && (segment.flags & bit) != 0;
}

void PaintBends(const Painter& painter, const Lamps& lamps, const RunwayOutlines& runways, const TaxiHub& hub) {
    const TaxiNetwork& network = painter.network;
    const double spacing = ThinnedSpacing(kBendSpacing) * painter.scale;
    for (uint32_t i = 0; i < hub.edgeArms; ++i) {
        const TaxiArm& arm = network.arms[hub.firstArm + i];
        const TaxiArm& next = network.arms[hub.firstArm + (i + 1) % hub.edgeArms];
        // Beside a runway the taxiway's own side counts.
        const bool lit = HasLights(network, arm, true) || IsAlongRunway(network.segments[arm.link]);
        const bool nextLit = HasLights(network, next, false) || IsAlongRunway(network.segments[next.link]);
        if (!lit || !nextLit) continue;
        for (const EdgeCurve& curve : CurvesOf(arm.right)) {
            PaintLampsAlong(lamps, curve, spacing, Ink::LightBlue, [&](Point at) { return !IsOnRunway(runways, at); });
        }
    }
}

void PaintEdgeLights(const Painter& painter, const Lamps& lamps, const RunwayOutlines& runways) {
    const TaxiNetwork& network = painter.network;
    const double spacing = ThinnedSpacing(kEdgeSpacing) * painter.scale;
    const double inset = -kEdgeDistance * painter.scale;
    for (const TaxiSegment& segment : network.segments) {
        for (const bool right : { true, false }) {
            std::array<Point, 2> ends;
            if (!HasLights(network, network.arms[segment.startArm], right)) continue;
            if (!FindStraightEdge(network, segment, inset, right, &ends[0], &ends[1])) continue;
            PaintLampsAlong(lamps, ends, spacing, Ink::LightBlue, [&](Point at) { return !IsOnRunway(runways, at); });
        }
    }
    for (const TaxiHub& hub : network.hubs) {
        if (hub.inView) PaintBends(painter, lamps, runways, hub);
    }
}

}  // namespace

void PaintTaxiwayLights(Painter* painter) {
    const Lamps lamps = LampsOf(painter->canvas, kLampRadius);
    LayCorners(&painter->network, -kEdgeDistance * painter->scale);
    PaintEdgeLights(*painter, lamps, CollectRunwayOutlines());
    PaintCentreLights(*painter, lamps);
}

}  // namespace map
