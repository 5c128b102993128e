// RegionalLayout.cpp - the regional airport: three runways that cross, one terminal, two ramps.
//
// Places are told in the frame of a runway: metres along it from its centre and to the right of it, seen
// flying its primary heading. Runway 09/27 carries the main taxiway; the terminal lies south of it, in the
// wedge that 14/32 leaves.
#include "sample/LayoutParts.h"
#include "sample/Layouts.h"
#include "sample/PlanGeometry.h"

namespace sample {

namespace {

constexpr double kMainTaxiway = 150;  // right of 09/27
constexpr double kEndEntry = 15;      // metres from the end of a runway to its entry taxiway

struct RegionalRunways {
    const RunwayPlan *east, *southEast, *northEast;  // 09/27, 14/32, 03/21
};

std::vector<Local> InFrameOf(const RunwayPlan& runway, std::initializer_list<RunwayFrame> places) {
    std::vector<Local> points;
    for (const RunwayFrame& place : places) points.push_back(FromFrame(runway, place));
    return points;
}

void AddTaxiway(AirportPlan* plan, const char* name, std::vector<Local> points) {
    plan->lines.push_back({ name, model::kTaxiwayLink, 20, kAsphalt, Paint::Lighted, std::move(points) });
}

void AddLane(AirportPlan* plan, model::LinkType type, double width, std::vector<Local> points) {
    plan->lines.push_back({ "", type, width, kAsphalt, Paint::Centre, std::move(points) });
}

// A: along 09/27 over its whole length, across the other two runways; its entries and exits.
void AddMainTaxiway(AirportPlan* plan, const RunwayPlan& runway) {
    const double end = runway.length / 2 - kEndEntry;
    AddTaxiway(plan, "A",
               InFrameOf(runway, { { -end, 0 }, { -end, kMainTaxiway }, { end, kMainTaxiway }, { end, 0 } }));
    AddTaxiway(plan, "A1", InFrameOf(runway, { { -830, kMainTaxiway }, { -830, 0 } }));
    AddTaxiway(plan, "A2", InFrameOf(runway, { { 790, kMainTaxiway }, { 790, 0 } }));
}

// The taxiways to the ends of the crossing runways.
void AddCrossTaxiways(AirportPlan* plan, const RegionalRunways& runways) {
    const RunwayPlan &east = *runways.east, &southEast = *runways.southEast, &northEast = *runways.northEast;
    const double southEastEnd = southEast.length / 2 - kEndEntry, northEastEnd = northEast.length / 2 - kEndEntry;
    constexpr double kB = -120;  // left of 14/32
    // From where B meets A down to the threshold of 32.
    const Local onA = FromFrame(east, { 170, kMainTaxiway });
    AddTaxiway(plan, "B",
               { onA, FromFrame(southEast, { 215, kB }), FromFrame(southEast, { southEastEnd, kB }),
                 FromFrame(southEast, { southEastEnd, 0 }) });
    AddTaxiway(plan, "B1", InFrameOf(southEast, { { 470, kB }, { 470, 0 } }));
    // Across 14/32 to the threshold of 03.
    AddTaxiway(
        plan, "C",
        { FromFrame(southEast, { 300, kB }), FromFrame(southEast, { 300, 130 }), FromFrame(northEast, { -560, 125 }),
          FromFrame(northEast, { -northEastEnd, 125 }), FromFrame(northEast, { -northEastEnd, 0 }) });
    // Across 09/27 to the threshold of 14, and to that of 21.
    AddTaxiway(plan, "D",
               { FromFrame(east, { -680, kMainTaxiway }), FromFrame(east, { -680, -120 }),
                 FromFrame(southEast, { -southEastEnd, 115 }), FromFrame(southEast, { -southEastEnd, 0 }) });
    AddTaxiway(plan, "E",
               { FromFrame(east, { 487, kMainTaxiway }), FromFrame(east, { 487, -350 }),
                 FromFrame(northEast, { northEastEnd, 115 }), FromFrame(northEast, { northEastEnd, 0 }) });
}

void AddTerminal(AirportPlan* plan, const RunwayPlan& runway) {
    constexpr double kWest = 375, kEast = 835, kLane = 232, kStands = 294, kBuilding = 330;
    const double south = Wrapped(runway.heading + 90);
    AddLane(plan, model::kTaxiwayLink, 20,
            InFrameOf(runway, { { 400, kMainTaxiway }, { 400, kLane }, { 810, kLane }, { 810, kMainTaxiway } }));
    AddLane(plan, model::kTaxiwayLink, 20, InFrameOf(runway, { { 605, kMainTaxiway }, { 605, kLane } }));
    AddSpotRow(plan, { FromFrame(runway, { 430, kStands }), FromFrame(runway, { 590, kStands }), 5, south, 18,
                       kGateMedium, kGateName, 1, "WJA,ACA", 15 });
    AddSpotRow(plan, { FromFrame(runway, { 635, kStands }), FromFrame(runway, { 780, kStands }), 5, south, 15,
                       kGateSmall, kGateName, 6, "JZA,QXE,CFJ", 12 });
    AddApron(plan, kConcrete,
             InFrameOf(runway, { { kWest, 158 },
                                 { kEast, 158 },
                                 { kEast, kBuilding },
                                 { 670, kBuilding },
                                 { 670, kBuilding - 12 },
                                 { 545, kBuilding - 12 },
                                 { 545, kBuilding },
                                 { kWest, kBuilding } }));
    AddLights(plan, { FromFrame(runway, { kEast, 165 }), FromFrame(runway, { kEast, kBuilding }),
                      FromFrame(runway, { kWest, kBuilding }), FromFrame(runway, { kWest, 165 }) });
    plan->tower = FromFrame(runway, { 608, 350 });
}

// The flying club, between A and B.
void AddClubRamp(AirportPlan* plan, const RunwayPlan& runway) {
    constexpr double kLane = 285;
    const double heading = runway.heading;
    AddLane(plan, model::kApronRouteLink, 9, InFrameOf(runway, { { kLane, kMainTaxiway }, { kLane, 385 } }));
    AddSpotRow(plan, { FromFrame(runway, { kLane + 28, 200 }), FromFrame(runway, { kLane + 28, 368 }), 8,
                       Wrapped(heading), 9, kRampGaSmall, kSouthParking, 1, "", 6 });
    AddSpotRow(plan, { FromFrame(runway, { kLane - 28, 212 }), FromFrame(runway, { kLane - 28, 380 }), 8,
                       Wrapped(heading + 180), 9, kRampGaSmall, kSouthParking, 9, "", 6 });
    AddApron(plan, kAsphalt,
             InFrameOf(runway, { { kLane - 45, 158 }, { kLane + 45, 158 }, { kLane + 45, 400 }, { kLane - 45, 400 } }));
}

// Business aircraft and helicopters, north of 09/27.
void AddNorthRamp(AirportPlan* plan, const RunwayPlan& runway) {
    constexpr double kLane = -225;
    const double north = Wrapped(runway.heading - 90);
    AddLane(plan, model::kTaxiwayLink, 15, InFrameOf(runway, { { 487, kLane }, { 790, kLane } }));
    AddSpotRow(plan, { FromFrame(runway, { 545, kLane - 42 }), FromFrame(runway, { 770, kLane - 42 }), 6, north, 15,
                       kRampGaLarge, kNorthParking, 1, "", 10 });
    AddSpotRow(plan, { FromFrame(runway, { 545, kLane + 40 }), FromFrame(runway, { 770, kLane + 40 }), 6,
                       Wrapped(north + 180), 13, kRampGaMedium, kNorthParking, 7, "CFC", 9 });
    AddApron(plan, kAsphalt,
             InFrameOf(runway, { { 494, kLane - 65 }, { 815, kLane - 65 }, { 815, kLane + 60 }, { 494, kLane + 60 } }));
    AddLights(plan, { FromFrame(runway, { 500, kLane - 65 }), FromFrame(runway, { 815, kLane - 65 }),
                      FromFrame(runway, { 815, kLane + 60 }), FromFrame(runway, { 500, kLane + 60 }) });
}

// The west camp, beside C near the threshold of 03.
void AddWestRamp(AirportPlan* plan, const RunwayPlan& runway) {
    constexpr double kLane = -655, kFirst = 180, kLast = 300;
    AddLane(plan, model::kApronRouteLink, 10, InFrameOf(runway, { { kLane, 125 }, { kLane, kLast } }));
    AddSpotRow(plan, { FromFrame(runway, { kLane + 34, kFirst }), FromFrame(runway, { kLane + 34, kLast }), 5,
                       runway.heading, 13, kRampGaMedium, kWestParking, 1, "", 8 });
    AddSpotRow(plan, { FromFrame(runway, { kLane - 34, kFirst }), FromFrame(runway, { kLane - 34, kLast }), 5,
                       Wrapped(runway.heading + 180), 13, kRampGaMedium, kWestParking, 6, "", 8 });
    AddApron(plan, kAsphalt,
             InFrameOf(
                 runway,
                 { { kLane - 55, 133 }, { kLane + 55, 133 }, { kLane + 55, kLast + 22 }, { kLane - 55, kLast + 22 } }));
}

void EquipRunways(AirportPlan* plan, RunwayPlan* main) {
    for (RunwayPlan& runway : plan->runways) {
        runway.holdDistance = 70;
        runway.ilsHoldDistance = 0;
        for (RunwayEndPlan& end : runway.ends) end.ils = {};
    }
    constexpr uint16_t kPrecisionMarkings = 0x7F;
    main->markings = kPrecisionMarkings;
    main->edgeLights = 3;
    main->ilsHoldDistance = 105;
    main->ends[0].ils = { "IYYJ", 109700000 };
    main->ends[0].approach = kSsalr;
    main->ends[0].strobes = 8;
    main->ends[1].ils = { "IZYJ", 110100000 };
    main->ends[1].approach = kMalsr;
    main->ends[1].strobes = 5;
}

}  // namespace

void LayOutRegional(AirportPlan* plan) {
    RunwayPlan* east = FindRunway(plan, 9, 0);
    const RunwayPlan *southEast = FindRunway(plan, 14, 0), *northEast = FindRunway(plan, 3, 0);
    if (!east || !southEast || !northEast) return;  // other tables, another airport: runways alone
    EquipRunways(plan, east);
    AddMainTaxiway(plan, *east);
    AddCrossTaxiways(plan, { east, southEast, northEast });
    AddTerminal(plan, *east);
    AddClubRamp(plan, *east);
    AddNorthRamp(plan, *east);
    AddWestRamp(plan, *northEast);
    plan->hasTower = plan->avgas = plan->jetFuel = true;
    plan->towerHeight = 24;
}

}  // namespace sample
