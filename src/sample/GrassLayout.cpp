// GrassLayout.cpp - the grass field: one strip of turf, tie-downs and a gravel yard before the hangar.
#include "sample/LayoutParts.h"
#include "sample/Layouts.h"
#include "sample/PlanGeometry.h"

namespace sample {

namespace {

constexpr double kLane = 52;                     // right of the strip
constexpr double kRowDepth = 92;                 // metres that the tie-down rows reach away from the lane
constexpr double kRows[] = { -215, -140, -65 };  // metres along the strip from its centre

void AddLane(AirportPlan* plan, const RunwayPlan& runway, model::LinkType type, double width, Surface surface,
             std::initializer_list<RunwayFrame> places) {
    TaxiLine line{ "", type, width, surface, Paint::None, {} };
    for (const RunwayFrame& place : places) line.points.push_back(FromFrame(runway, place));
    plan->lines.push_back(line);
}

void AddArea(AirportPlan* plan, const RunwayPlan& runway, Surface surface, RunwayFrame from, RunwayFrame to) {
    AddApron(plan, surface,
             { FromFrame(runway, from), FromFrame(runway, { to.along, from.right }), FromFrame(runway, to),
               FromFrame(runway, { from.along, to.right }) });
}

// Tie-downs on both sides of a lane that leads away from the strip.
void AddTieDowns(AirportPlan* plan, const RunwayPlan& runway, double along, uint16_t number) {
    constexpr double kAside = 21, kFirst = kLane + 24, kLast = kLane + 90;
    AddLane(plan, runway, model::kApronRouteLink, 6, kGrass, { { along, kLane }, { along, kLane + kRowDepth } });
    AddSpotRow(plan, { FromFrame(runway, { along + kAside, kFirst }), FromFrame(runway, { along + kAside, kLast }), 4,
                       Wrapped(runway.heading), 9, kRampGaSmall, kParking, number, "", 4 });
    AddSpotRow(plan,
               { FromFrame(runway, { along - kAside, kFirst }), FromFrame(runway, { along - kAside, kLast }), 4,
                 Wrapped(runway.heading + 180), 9, kRampGaSmall, kParking, static_cast<uint16_t>(number + 4), "", 4 });
}

}  // namespace

void LayOutGrass(AirportPlan* plan) {
    if (plan->runways.empty()) return;
    const RunwayPlan& runway = plan->runways.front();
    const double end = runway.length / 2 - 12;
    AddLane(plan, runway, model::kTaxiwayLink, 9, kGrass, { { -end, 0 }, { -end, kLane }, { 120, kLane }, { 120, 0 } });
    AddArea(plan, runway, kGrass, { -262, kLane + 4.5 }, { -18, kLane + kRowDepth + 18 });
    uint16_t number = 1;
    for (const double along : kRows) {
        AddTieDowns(plan, runway, along, number);
        number = static_cast<uint16_t>(number + 8);
    }
    // the yard of the hangar, where larger visitors and the tow plane stand
    AddLane(plan, runway, model::kApronRouteLink, 8, kGravel, { { 50, kLane }, { 50, kLane + 28 } });
    AddLane(plan, runway, model::kApronRouteLink, 8, kGravel, { { 25, kLane + 28 }, { 75, kLane + 28 } });
    AddArea(plan, runway, kGravel, { 8, kLane + 4.5 }, { 92, kLane + 75 });
    AddSpotRow(plan, { FromFrame(runway, { 27, kLane + 58 }), FromFrame(runway, { 73, kLane + 58 }), 3,
                       Wrapped(runway.heading + 90), 10, kRampGa, kParking, number, "", 5 });
    plan->avgas = true;
}

}  // namespace sample
