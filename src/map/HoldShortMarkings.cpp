// HoldShortMarkings.cpp - see HoldShortMarkings.h.
//
// The dashed bars lie on the side of the nearest runway; the node's reverse flag turns the marking round.
// Dimensions follow FAA AC 150/5340-1. Seen from so far that the bars would run together, each group is
// drawn as one bar.
#include <algorithm>
#include <cmath>
#include <vector>

#include "map/HoldShortMarkings.h"
#include "map/HoldShortRule.h"
#include "map/MapView.h"
#include "map/RunwayShape.h"

namespace map {

namespace {

constexpr double kFoot = model::kMetresPerFoot;
constexpr double kClearBars = 1.5;   // pixels that a bar needs to be drawn by itself
constexpr double kShortestDash = 3;  // pixels
constexpr double kRungStep = 10 * kFoot;
constexpr double kMostHalf = 500;  // metres; wider is no taxiway
constexpr double kLadderHalf = 4 * kFoot, kRail = 2 * kFoot;

LinkList LinksOf(const TaxiNetwork& network, const TaxiHub& hub) {
    LinkList links;
    for (uint32_t i = hub.firstArm; i < hub.firstArm + hub.armCount; ++i) {
        links.push_back(network.segments[network.arms[i].link].object);
    }
    return links;
}

// Ahead points to the side of the dashed bars.
GroundFrame FrameOf(const TaxiHub& hub, const HoldMarking& marking) {
    const Point ahead = HeadingOnScreen(std::atan2(marking.dashed.x, marking.dashed.y));
    const bool reversed = model::PayloadAs<model::TaxiNodeRecord>(hub.object).reversed != 0;
    const Point turned = reversed ? ahead * -1 : ahead;
    return { hub.at, TurnedRight(turned), turned, view.pixelsPerMetre };
}

void Bar(const Painter& painter, const GroundFrame& frame, double left, double right, double near, double far) {
    FillPolygon(painter.canvas, Rectangle(frame, left, right, near, far));
}

void DashedBar(const Painter& painter, const GroundFrame& frame, double half, double near, double far) {
    const double dash = std::max(3 * kFoot, kShortestDash / frame.scale);
    for (double left = -half; left < half; left += 2 * dash) {
        Bar(painter, frame, left, std::min(left + dash, half), near, far);
    }
}

void PaintBars(const Painter& painter, const GroundFrame& frame, double half) {
    if (kFoot * frame.scale >= kClearBars) {
        Bar(painter, frame, -half, half, -3.5 * kFoot, -2.5 * kFoot);
        Bar(painter, frame, -half, half, -1.5 * kFoot, -0.5 * kFoot);
        DashedBar(painter, frame, half, 0.5 * kFoot, 1.5 * kFoot);
        DashedBar(painter, frame, half, 2.5 * kFoot, 3.5 * kFoot);
        return;
    }
    const double pixel = 1 / frame.scale, thick = std::max(3 * kFoot, 1.2 * pixel);
    Bar(painter, frame, -half, half, -thick - pixel / 2, -pixel / 2);
    DashedBar(painter, frame, half, pixel / 2, thick + pixel / 2);
}

void PaintLadder(const Painter& painter, const GroundFrame& frame, double half) {
    const double pixel = 1 / frame.scale;
    const double rail = std::max(kRail, pixel), reach = std::max(kLadderHalf, 2 * pixel);
    Bar(painter, frame, -half, half, -reach, rail - reach);
    Bar(painter, frame, -half, half, reach - rail, reach);
    const double step = std::max(kRungStep, 4 * pixel), rung = std::max(kFoot, pixel);
    const double count = std::max(1.0, std::floor(2 * half / step));
    for (double i = 0; i < count; ++i) {
        const double middle = (i + 0.5) * 2 * half / count - half;
        if (kFoot * frame.scale < kClearBars) {
            Bar(painter, frame, middle - rung / 2, middle + rung / 2, -reach, reach);
            continue;
        }
        Bar(painter, frame, middle - 1.5 * rung, middle - 0.5 * rung, -reach, reach);
        Bar(painter, frame, middle + 0.5 * rung, middle + 1.5 * rung, -reach, reach);
    }
}

}  // namespace

void PaintHoldShortMarkings(const Painter& painter) {
    const std::vector<model::RunwayArea> runways = model::RunwayAreas();
    FillOnly(painter, InkOf(Ink::TaxiwayLine));
    for (const uint8_t type : { model::kHoldShortNode, model::kIlsHoldShortNode }) {
        for (const TaxiHub& hub : painter.network.hubs) {
            if (!hub.inView || model::KindOf(hub.object) != model::kTaxiNode) continue;
            if (model::PayloadAs<model::TaxiNodeRecord>(hub.object).type != type) continue;
            HoldMarking marking;
            if (!FindHoldMarking(hub.object, LinksOf(painter.network, hub), runways, &marking)) continue;
            const double half = marking.halfWidth;
            if (!Meets(BoundsOf(hub.at, (half + kLadderHalf) * view.pixelsPerMetre), painter.clip)) continue;
            if (half > kMostHalf) continue;
            const GroundFrame frame = FrameOf(hub, marking);
            type == model::kHoldShortNode ? PaintBars(painter, frame, half) : PaintLadder(painter, frame, half);
        }
    }
}

}  // namespace map
