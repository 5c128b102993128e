// HoldShortMarkings.cpp - see HoldShort.h.
//
// The dashed bars lie on the side of the nearest runway; the node's reverse flag turns the marking round.
// Dimensions follow FAA AC 150/5340-1. Seen from so far that the bars would run together, each group is
// drawn as one bar.
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "map/HoldShort.h"
#include "map/MapView.h"
#include "map/RunwayShape.h"
#include "model/Positions.h"

namespace map {

namespace {

constexpr double kFoot = 0.3048;
constexpr double kClearBars = 1.5;   // pixels that a bar needs to be drawn by itself
constexpr double kShortestDash = 3;  // pixels
constexpr double kRungStep = 10 * kFoot;
constexpr double kLadderHalf = 4 * kFoot, kRail = 2 * kFoot;

struct Runways {
    std::vector<std::array<Point, 2>> centreLines;
};

Runways CollectRunways() {
    Runways runways;
    ForEachOfKind(model::kRunway, [&](SceneryObject* object) {
        const RunwayShape shape = ShapeOfRunway(object);
        runways.centreLines.push_back({ shape.ends[0].frame.origin, shape.ends[1].frame.origin });
    });
    return runways;
}

// From the point to the nearest point of any centre line; nothing when there is no runway.
Point TowardRunway(const Runways& runways, Point from) {
    Point best;
    double nearest = std::numeric_limits<double>::infinity();
    for (const auto& [start, end] : runways.centreLines) {
        const Point line = end - start, offset = from - start;
        const double square = line.x * line.x + line.y * line.y;
        const double share = square > 0 ? std::clamp((offset.x * line.x + offset.y * line.y) / square, 0.0, 1.0) : 0;
        const Point toward = start + line * share - from;
        if (!(Length(toward) < nearest)) continue;
        nearest = Length(toward);
        best = toward;
    }
    return best;
}

// The marking's place: ahead points to the runway side. False when no taxiway runs through the node.
bool FindFrame(const TaxiNetwork& network, const TaxiHub& hub, Point towardRunway, GroundFrame* frame, double* half) {
    const TaxiArm* widest = nullptr;
    const TaxiArm* second = nullptr;
    for (uint32_t i = hub.firstArm; i < hub.firstArm + hub.armCount; ++i) {
        const TaxiArm& arm = network.arms[i];
        if (!(arm.half > 0) || IsAlongRunway(network.segments[arm.link])) continue;
        if (!widest || arm.half > widest->half)
            second = std::exchange(widest, &arm);
        else if (!second || arm.half > second->half)
            second = &arm;
    }
    if (!widest) return false;
    Point ahead = widest->along;
    // A taxiway that bends at the node is crossed halfway between its arms.
    if (second && Length(widest->along - second->along) > 0.5) ahead = widest->along - second->along;
    ahead = ahead * (1 / Length(ahead));
    if (ahead.x * towardRunway.x + ahead.y * towardRunway.y < 0) ahead = ahead * -1;
    if (model::PayloadAs<model::TaxiNodeRecord>(hub.object).reversed) ahead = ahead * -1;
    *frame = { hub.at, TurnedRight(ahead), ahead, view.pixelsPerMetre };
    *half = widest->half / view.pixelsPerMetre;
    return true;
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
    const Runways runways = CollectRunways();
    FillOnly(painter, InkOf(Ink::TaxiwayLine));
    for (const uint8_t type : { model::kHoldShortNode, model::kIlsHoldShortNode }) {
        for (const TaxiHub& hub : painter.network.hubs) {
            if (model::KindOf(hub.object) != model::kTaxiNode) continue;
            if (model::PayloadAs<model::TaxiNodeRecord>(hub.object).type != type) continue;
            GroundFrame frame;
            double half = 0;
            if (!FindFrame(painter.network, hub, TowardRunway(runways, hub.at), &frame, &half)) continue;
            if (!Meets(BoundsOf(hub.at, (half + kLadderHalf) * frame.scale), painter.clip)) continue;
            if (half > 500) continue;  // metres: no taxiway
            type == model::kHoldShortNode ? PaintBars(painter, frame, half) : PaintLadder(painter, frame, half);
        }
    }
}

}  // namespace map
