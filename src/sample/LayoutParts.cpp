// LayoutParts.cpp - see LayoutParts.h.
#include "sample/LayoutParts.h"

#include "sample/PlanGeometry.h"

namespace sample {

void AddSpotRow(AirportPlan* plan, const SpotRow& row) {
    const Local step = row.count > 1 ? (row.last - row.first) * (1.0 / (row.count - 1)) : Local{};
    for (int i = 0; i < row.count; ++i) {
        SpotPlan spot;
        spot.at = row.first + step * i;
        spot.heading = row.heading;
        spot.radius = row.radius;
        spot.type = row.type;
        spot.name = row.name;
        spot.number = static_cast<uint16_t>(row.number + i);
        spot.codes = row.codes;
        spot.pushback = row.type == kGateSmall || row.type == kGateMedium || row.type == kGateHeavy ? 3 : 0;
        spot.connector = row.connector;
        plan->spots.push_back(spot);
    }
}

namespace {

// One side of a pier: `out` points away from the building.
void AddPierSide(AirportPlan* plan, const Pier& pier, const PierSide& side, Local out, int number) {
    if (side.count == 0) return;
    const Local axis = Ahead(HeadingOf(pier.tip - pier.root));
    const Local line = pier.root + out * (pier.halfWidth + pier.standOff);
    SpotRow row;
    row.first = line + axis * side.first;
    row.last = line + axis * side.last;
    row.count = side.count;
    row.heading = HeadingOf(out * -1.0);
    row.radius = side.radius;
    row.type = side.type;
    row.name = GateOf(pier.letter);
    row.number = static_cast<uint16_t>(number);
    row.codes = side.codes;
    row.connector = 18;
    AddSpotRow(plan, row);
}

}  // namespace

void AddPier(AirportPlan* plan, const Pier& pier) {
    const double heading = HeadingOf(pier.tip - pier.root);
    const Local left = RightOf(heading) * -1.0;
    AddPierSide(plan, pier, pier.left, left, 1);
    AddPierSide(plan, pier, pier.right, left * -1.0, 1 + pier.left.count);
    if (pier.tipRadius <= 0) return;
    SpotRow tip;
    tip.first = tip.last = pier.tip + Ahead(heading) * (pier.tipRadius + 6);
    tip.heading = Wrapped(heading + 180);
    tip.radius = pier.tipRadius;
    tip.type = kGateHeavy;
    tip.name = GateOf(pier.letter);
    tip.number = static_cast<uint16_t>(1 + pier.left.count + pier.right.count);
    tip.codes = pier.tipCodes;
    tip.connector = 18;
    AddSpotRow(plan, tip);
}

std::vector<Local> PierCorners(const Pier& pier) {
    const Local aside = RightOf(HeadingOf(pier.tip - pier.root)) * pier.halfWidth;
    return { pier.root - aside, pier.tip - aside, pier.tip + aside, pier.root + aside };
}

void AddApron(AirportPlan* plan, Surface surface, std::vector<Local> outline) {
    plan->aprons.push_back({ surface, std::move(outline) });
}

void AddLights(AirportPlan* plan, const std::vector<Local>& points) {
    for (size_t i = 1; i < points.size(); ++i) plan->lights.push_back({ points[i - 1], points[i] });
}

RunwayPlan* FindRunway(AirportPlan* plan, uint8_t number, uint8_t designator) {
    for (RunwayPlan& runway : plan->runways) {
        if (runway.ends[0].number == number && runway.ends[0].designator == designator) return &runway;
    }
    return nullptr;
}

}  // namespace sample
