// HubTaxiways.cpp - the taxiways of the hub, metres around the airport's reference point.
//
// The three runways run north and south. A and B lie east of them, before the terminals; T lies in the west,
// beside 16R/34L. Cross taxiways carry the letters C to R from north to south.
#include <cmath>
#include <iterator>
#include <vector>

#include "sample/Layouts.h"
#include "sample/PlanGeometry.h"

namespace sample {

namespace {

constexpr double k16R = -468.3, k16C = 58.8, k16L = 284.4;  // east of the reference point
constexpr double kA = 490, kB = 406, kT = -346;
constexpr double kBetween = 172;  // half way between the hold-short lines of 16C and 16L
constexpr double kInner = 570;    // taxilane along the tips of the concourses
constexpr double kNorthEnd = 1528, kSouthEnd = -2059, kWestSouthEnd = -1026;

struct CrossTaxiway {
    const char* name;
    double north, west, east;
};
constexpr CrossTaxiway kCrossTaxiways[] = {
    { "C", kNorthEnd, k16R, kA }, { "D", 1110, k16R, kA },          { "E", 860, k16C, kA },   { "F", 455, k16R, kA },
    { "G", 140, k16R, kA },       { "H", -105, k16C, kA },          { "J", -420, k16R, kA },  { "K", -615, k16C, kA },
    { "L", -805, k16R, kA },      { "M", kWestSouthEnd, k16R, kA }, { "N", -1303, k16C, kA }, { "P", -1540, k16L, kA },
    { "Q", -1800, k16L, kA },     { "R", kSouthEnd, k16L, kA },
};

// An exit that leaves a runway at a small angle and ends at `end`, east and north of the reference point.
struct RapidExit {
    const char* name;
    double runway;  // east of the reference point
    Local end;
    bool northward;  // for landings to the north
};
constexpr RapidExit kRapidExits[] = {
    { "G1", k16L, { kB, -70 }, false },         { "H1", k16L, { kB, -330 }, false },
    { "M1", k16L, { kB, -1250 }, false },       { "E1", k16L, { kB, 710 }, true },
    { "F1", k16L, { kB, 380 }, true },          { "H2", k16C, { kBetween, -105 }, false },
    { "M2", k16C, { kBetween, -1026 }, false }, { "F2", k16C, { kBetween, 455 }, true },
    { "E2", k16C, { kBetween, 860 }, true },    { "F3", k16R, { kT, 230 }, false },
    { "J1", k16R, { kT, -340 }, false },        { "G2", k16R, { kT, 100 }, true },
    { "E3", k16R, { kT, 690 }, true },          { "D1", k16R, { kT, 970 }, true },
};

// The curve of such an exit, metres aside of the centre line and along it; behind its last point the exit goes
// on straight at 45 degrees.
constexpr Local kExitCurve[] = { { 0, 0 }, { 2.9, 27.8 }, { 10.6, 54.7 }, { 22.4, 77.9 }, { 36.9, 97.1 } };

// Taxilanes on the aprons, from the taxiways to the stands.
const std::vector<std::vector<Local>> kLanes = {
    // along the concourses
    { { kInner, 320 }, { kInner, -1540 } },
    { { kA, 320 }, { 840, 320 }, { 840, -105 }, { kA, -105 } },        // around the north satellite
    { { 945, -218 }, { 634, -105 } },                                  // concourse D, north
    { { 915, -420 }, { kInner, -294 }, { kA, -294 } },                 // concourse D, south
    { { kA, -420 }, { 930, -420 } },                                   // concourse C, north
    { { kA, -615 }, { 930, -615 } },                                   // between C and B
    { { kA, -805 }, { 930, -805 } },                                   // concourse B, south
    { { 915, -805 }, { kInner, -926 }, { kA, -926 } },                 // concourse A, north
    { { 945, -1002 }, { 634, -1115 } },                                // concourse A, south
    { { kA, -1115 }, { 840, -1115 }, { 840, -1540 }, { kA, -1540 } },  // around the south satellite
    // cargo in the north
    { { kA, 590 }, { 880, 590 }, { 880, 1110 }, { kA, 1110 } },
    { { 640, 590 }, { 640, 1110 } },
    { { 880, 1110 }, { 880, 1460 } },  // maintenance, north of the cargo area
    // regional gates
    { { kA, 455 }, { 860, 455 } },
    // stands in the south
    { { kA, -1690 }, { 1050, -1690 } },
    // stands in the west, between T and 16C
    { { -195, 1110 }, { -195, 455 } },
    { { -195, 140 }, { -195, -805 } },
    // de-icing pads
    { { kA, 1240 }, { 720, 1240 }, { 720, 1460 }, { kA, 1460 } },
    { { 580, 1240 }, { 580, 1460 } },
    { { 650, 1240 }, { 650, 1460 } },
};

// Where a lane ends on another line and aircraft turn into it both ways. The corners there are cut, so that
// they turn in a curve.
struct Junction {
    Local at;
    double heading;  // of the lane that ends there, seen from the junction
};
constexpr double kEast = 90, kNorth = 0, kSouth = 180;
constexpr Junction kCutCorners[] = {
    { { kA, 1110 }, kEast },   { { kA, 590 }, kEast },      { { kA, 455 }, kEast },      { { kA, 320 }, kEast },
    { { kA, -105 }, kEast },   { { kA, -294 }, kEast },     { { kA, -420 }, kEast },     { { kA, -615 }, kEast },
    { { kA, -805 }, kEast },   { { kA, -926 }, kEast },     { { kA, -1115 }, kEast },    { { kA, -1540 }, kEast },
    { { kA, -1690 }, kEast },  { { kInner, -420 }, kEast }, { { kInner, -615 }, kEast }, { { kInner, -805 }, kEast },
    { { 640, 1110 }, kSouth }, { { 640, 590 }, kNorth },    { { 880, 1110 }, kNorth },   { { kT, 1110 }, kEast },
    { { kT, 455 }, kEast },    { { kT, -420 }, kEast },     { { kT, -805 }, kEast },     { { -195, 1110 }, kSouth },
    { { -195, 455 }, kNorth }, { { -195, 140 }, kSouth },   { { -195, -805 }, kNorth },  { { kA, 1240 }, kEast },
    { { kA, 1460 }, kEast },
};

// Lanes between the small aircraft in the south.
constexpr double kGeneralAviationLanes[] = { -1870, -1935, -2000 };
constexpr double kGeneralAviationEast = 1095;

void AddTaxiway(AirportPlan* plan, const char* name, std::vector<Local> points) {
    plan->lines.push_back({ name, model::kTaxiwayLink, 23, kConcrete, Paint::Lighted, std::move(points) });
}

void AddLane(AirportPlan* plan, std::vector<Local> points) {
    plan->lines.push_back({ "", model::kTaxiwayLink, 23, kConcrete, Paint::Centre, std::move(points) });
}

void AddRapidExit(AirportPlan* plan, const RapidExit& exit) {
    constexpr Local kLast = kExitCurve[std::size(kExitCurve) - 1];
    const double side = exit.end.east > exit.runway ? 1 : -1, way = exit.northward ? 1 : -1;
    const double straight = std::fabs(exit.end.east - exit.runway) - kLast.east;  // aside and along alike
    const double start = exit.end.north - way * (kLast.north + straight);
    std::vector<Local> points;
    for (const Local step : kExitCurve) points.push_back({ exit.runway + side * step.east, start + way * step.north });
    points.push_back(exit.end);
    AddTaxiway(plan, exit.name, std::move(points));
}

void AddCutCorners(AirportPlan* plan, const Junction& junction) {
    constexpr double kCut = 30;
    const Local aside = RightOf(junction.heading) * kCut;
    AddLane(plan, { junction.at - aside, junction.at + Ahead(junction.heading) * kCut, junction.at + aside });
}

}  // namespace

void LayOutHubTaxiways(AirportPlan* plan) {
    AddTaxiway(plan, "A", { { kA, kNorthEnd }, { kA, kSouthEnd } });
    AddTaxiway(plan, "B", { { kB, kNorthEnd }, { kB, kSouthEnd } });
    AddTaxiway(plan, "T", { { kT, kNorthEnd }, { kT, kWestSouthEnd } });
    for (const CrossTaxiway& cross : kCrossTaxiways) {
        AddTaxiway(plan, cross.name, { { cross.west, cross.north }, { cross.east, cross.north } });
    }
    for (const RapidExit& exit : kRapidExits) AddRapidExit(plan, exit);
    for (const std::vector<Local>& lane : kLanes) AddLane(plan, lane);
    for (const Junction& junction : kCutCorners) AddCutCorners(plan, junction);
    for (const double north : kGeneralAviationLanes) {
        plan->lines.push_back({ "",
                                model::kApronRouteLink,
                                10,
                                kAsphalt,
                                Paint::Centre,
                                { { kA, north }, { kGeneralAviationEast, north } } });
    }
}

}  // namespace sample
