// HubAprons.cpp - terminals, gates, stands and paved areas of the hub, metres around the reference point.
//
// Four concourses A to D reach west from the terminal building, two satellites stand free before them. The
// southern half of the terminal area mirrors the northern one.
#include "sample/LayoutParts.h"
#include "sample/Layouts.h"
#include "sample/PlanGeometry.h"

namespace sample {

namespace {

constexpr double kMirror = -610;        // north of the reference point: the axis of the terminal area
constexpr double kApronWest = 500;      // touches the pavement of taxiway A
constexpr double kBuilding = 960;       // face of the terminal building
constexpr double kSatellite = 110;      // middle of the north satellite, north of the reference point
constexpr double kSatelliteEast = 710;  // and of both, east of it
constexpr double kSatelliteHalf = 22, kSatelliteLength = 220;

const Pier kConcourses[] = {
    { 'D',
      { 960, -330 },
      { 678, -227.4 },
      15,
      27,
      { 130, 285, 4, 21, kGateMedium, "ASA,QXE" },
      { 60, 285, 6, 21, kGateMedium, "ASA" },
      24,
      "ASA,HAL" },
    { 'C',
      { 960, -520 },
      { 660, -520 },
      15,
      27,
      { 42, 280, 6, 21, kGateMedium, "UAL,UCA" },
      { 42, 280, 6, 21, kGateMedium, "SWA" },
      25,
      "UAL" },
    { 'B',
      { 960, -710 },
      { 660, -710 },
      15,
      27,
      { 42, 280, 6, 21, kGateMedium, "SWA,FFT" },
      { 42, 280, 6, 21, kGateMedium, "AAL,AWE" },
      25,
      "AAL" },
    { 'A',
      { 960, -890 },
      { 678, -992.6 },
      15,
      27,
      { 60, 285, 6, 21, kGateMedium, "DAL" },
      { 130, 285, 4, 21, kGateMedium, "COA,TWA" },
      24,
      "COA" },
};

// The north satellite's western and eastern sides with the ends; the south satellite mirrors them.
struct Satellite {
    char letter;
    double middle;
    const char* westCodes;
    const char* eastCodes;
    const char* endCodes;
};
constexpr Satellite kSatellites[] = {
    { 'N', kSatellite, "UAL,ANA", "UAL,SKW", "ASA" },
    { 'S', 2 * kMirror - kSatellite, "NWA,KLM,BAW", "NWA,DAL,AAR", "SAS,EVA,AFL" },
};

// The rows at a satellite, from its middle: four spots along each side, one at each end.
struct SatelliteRow {
    Local first, last;
    int count;
    double heading;
    uint16_t number;
    const char* Satellite::*codes;
};
constexpr double kSatelliteRadius = 30;  // of each of their spots
constexpr double kAside = kSatelliteHalf + 36, kSpan = 93, kEnd = kSatelliteLength / 2 + kSatelliteRadius + 1;
constexpr SatelliteRow kSatelliteRows[] = {
    { { -kAside, kSpan }, { -kAside, -kSpan }, 4, 90, 1, &Satellite::westCodes },
    { { kAside, kSpan }, { kAside, -kSpan }, 4, 270, 5, &Satellite::eastCodes },
    { { 0, kEnd }, { 0, kEnd }, 1, 180, 9, &Satellite::endCodes },
    { { 0, -kEnd }, { 0, -kEnd }, 1, 0, 10, &Satellite::endCodes },
};

void AddSatellite(AirportPlan* plan, const Satellite& satellite) {
    const auto at = [&](Local fromMiddle) {
        return Local{ kSatelliteEast + fromMiddle.east, satellite.middle + fromMiddle.north };
    };
    for (const SatelliteRow& row : kSatelliteRows) {
        AddSpotRow(plan, { at(row.first), at(row.last), row.count, row.heading, kSatelliteRadius, kGateHeavy,
                           GateOf(satellite.letter), row.number, satellite.*row.codes, 20 });
    }
}

// Rows away from the terminal: first, last, count, heading, radius, type, name, number, codes, connector.
constexpr SpotRow kStands[] = {
    // cargo, two bays
    { { 573, 1075 }, { 573, 625 }, 7, 270, 34, kRampCargo, kNorthParking, 1, "FDX,UPS", 20 },
    { { 707, 1075 }, { 707, 625 }, 7, 90, 34, kRampCargo, kNorthParking, 8, "FDX,ABX", 20 },
    { { 813, 1075 }, { 813, 625 }, 7, 270, 34, kRampCargo, kNorthParking, 15, "UPS,DHL", 20 },
    { { 947, 1075 }, { 947, 625 }, 7, 90, 34, kRampCargo, kNorthParking, 22, "GEC,CLX,KAL", 20 },
    // maintenance
    { { 818, 1425 }, { 818, 1230 }, 4, 270, 27, kRampGaLarge, kNorthParking, 29, "ASA", 18 },
    { { 942, 1425 }, { 942, 1230 }, 4, 90, 27, kRampGaLarge, kNorthParking, 33, "ASA,DAL", 18 },
    // regional gates
    { { 540, 497 }, { 828, 497 }, 9, 0, 16, kGateSmall, GateOf('E'), 1, "QXE", 10 },
    { { 540, 413 }, { 828, 413 }, 9, 180, 16, kGateSmall, GateOf('E'), 10, "QXE,SKW", 10 },
    // stands for aircraft that wait over night
    { { 560, -1640 }, { 1040, -1640 }, 9, 0, 26, kRampGaLarge, kParking, 1, "ASA,DAL,UAL", 16 },
    { { 560, -1740 }, { 1040, -1740 }, 9, 180, 26, kRampGaLarge, kParking, 10, "ASA,SWA,AAL", 16 },
    // stands in the west
    { { -262, 1040 }, { -262, 535 }, 8, 270, 30, kRampCargo, kWestParking, 25, "", 20 },
    { { -128, 1040 }, { -128, 535 }, 8, 90, 30, kRampGaLarge, kWestParking, 33, "", 20 },
    { { -262, 65 }, { -262, -335 }, 7, 270, 31, kRampCargo, kWestParking, 1, "", 20 },
    { { -128, 65 }, { -128, -335 }, 7, 90, 31, kRampGaLarge, kWestParking, 8, "", 20 },
    { { -262, -490 }, { -262, -745 }, 5, 270, 30, kRampMilCargo, kWestParking, 15, "RCH,CFC", 20 },
    { { -128, -490 }, { -128, -745 }, 5, 90, 30, kRampMilCargo, kWestParking, 20, "RCH,CFC", 20 },
    // small aircraft
    { { 540, -1853 }, { 1065, -1853 }, 26, 0, 9, kRampGaSmall, kSouthParking, 1, "", 6 },
    { { 550.5, -1887 }, { 1075.5, -1887 }, 26, 180, 9, kRampGaSmall, kSouthParking, 27, "", 6 },
    { { 540, -1918 }, { 1065, -1918 }, 26, 0, 9, kRampGaSmall, kSouthParking, 53, "", 6 },
    { { 550.5, -1952 }, { 1075.5, -1952 }, 26, 180, 9, kRampGaSmall, kSouthParking, 79, "", 6 },
    { { 546, -1981 }, { 1056, -1981 }, 18, 0, 12, kRampGaMedium, kSouthParking, 105, "", 8 },
    { { 561, -2019 }, { 1071, -2019 }, 18, 180, 12, kRampGaMedium, kSouthParking, 123, "", 8 },
};

std::vector<Local> Rectangle(double west, double south, double east, double north) {
    return { { west, north }, { east, north }, { east, south }, { west, south } };
}

// The satellites stand inside the paved area. A slit too narrow to see leads around each of them: it runs along
// the middle of a taxilane from the western edge and then to the satellite. North of the satellite `way` is 1,
// south of it -1; `lane` lies on that side.
void AppendSatelliteSlit(double middle, double lane, double way, std::vector<Local>* outline) {
    constexpr double kSlit = 0.3;  // metres, half its width
    constexpr double kWest = kSatelliteEast - kSatelliteHalf, kEast = kSatelliteEast + kSatelliteHalf;
    const double near = middle + way * kSatelliteLength / 2, far = middle - way * kSatelliteLength / 2;
    const double first = kSatelliteEast - way * kSlit, last = kSatelliteEast + way * kSlit;
    const double firstWall = way > 0 ? kWest : kEast, lastWall = way > 0 ? kEast : kWest;
    outline->insert(outline->end(), { { kApronWest, lane - kSlit },
                                      { first, lane - kSlit },
                                      { first, near },
                                      { firstWall, near },
                                      { firstWall, far },
                                      { lastWall, far },
                                      { lastWall, near },
                                      { last, near },
                                      { last, lane + kSlit },
                                      { kApronWest, lane + kSlit } });
}

// Everything from the regional gates in the north to the stands in the south, clockwise: down the eastern side
// past the four concourses and up along taxiway A.
void AddTerminalApron(AirportPlan* plan) {
    constexpr double kNorthLane = 320;
    std::vector<Local> outline = { { kApronWest, 525 }, { 880, 525 },  { 880, 385 },       { 890, 385 },
                                   { 890, -150 },       { 935, -150 }, { kBuilding, -175 } };
    for (const Pier& pier : kConcourses) {
        // Seen from the root the right side is the northern one.
        std::vector<Local> corners = PierCorners(pier);
        corners.front().east = corners.back().east = kBuilding;
        outline.insert(outline.end(), corners.rbegin(), corners.rend());
    }
    outline.insert(outline.end(), { { kBuilding, -1045 },
                                    { 935, -1070 },
                                    { 890, -1070 },
                                    { 890, -1605 },
                                    { 1080, -1605 },
                                    { 1080, -1780 },
                                    { kApronWest, -1780 } });
    AppendSatelliteSlit(2 * kMirror - kSatellite, 2 * kMirror - kNorthLane, -1, &outline);
    AppendSatelliteSlit(kSatellite, kNorthLane, 1, &outline);
    AddApron(plan, kConcrete, std::move(outline));
}

// Two bays with the cargo building between them, and the maintenance stands. The slit to the building follows
// the southern taxilane.
void AddCargoApron(AirportPlan* plan) {
    constexpr double kSlit = 0.3, kLane = 590, kWest = 745, kEast = 775, kSouth = 606, kNorth = 1094;
    constexpr double kMiddle = (kWest + kEast) / 2;
    AddApron(plan, kConcrete,
             { { kApronWest, 1140 },
               { 785, 1140 },
               { 785, 1480 },
               { 975, 1480 },
               { 975, 1140 },
               { 985, 1140 },
               { 985, 560 },
               { kApronWest, 560 },
               { kApronWest, kLane - kSlit },
               { kMiddle + kSlit, kLane - kSlit },
               { kMiddle + kSlit, kSouth },
               { kEast, kSouth },
               { kEast, kNorth },
               { kWest, kNorth },
               { kWest, kSouth },
               { kMiddle - kSlit, kSouth },
               { kMiddle - kSlit, kLane + kSlit },
               { kApronWest, kLane + kSlit } });
}

void AddEdgeLights(AirportPlan* plan) {
    AddLights(plan, { { 760, 1220 }, { 760, 1480 }, { 502, 1480 } });
    AddLights(plan, { { 785, 1145 }, { 785, 1480 }, { 975, 1480 }, { 975, 1145 } });
    AddLights(plan, { { kApronWest, 1140 }, { 785, 1140 } });
    AddLights(plan, { { 985, 1140 }, { 985, 560 }, { kApronWest, 560 } });
    AddLights(plan, { { kApronWest, 525 }, { 880, 525 }, { 880, 385 } });
    AddLights(plan, { { 890, 385 }, { 890, -150 }, { 935, -150 }, { kBuilding, -175 }, { kBuilding, -310 } });
    AddLights(plan, { { kBuilding, -360 }, { kBuilding, -500 } });
    AddLights(plan, { { kBuilding, -540 }, { kBuilding, -690 } });
    AddLights(plan, { { kBuilding, -730 }, { kBuilding, -860 } });
    AddLights(plan, { { kBuilding, -910 }, { kBuilding, -1045 }, { 935, -1070 }, { 890, -1070 }, { 890, -1605 } });
    AddLights(plan, { { 1080, -1605 }, { 1080, -1780 }, { kApronWest, -1780 } });
    AddLights(plan, { { kApronWest, -1835 }, { 1115, -1835 }, { 1115, -2037 }, { kApronWest, -2037 } });
    AddLights(plan, { { -300, 1078 }, { -300, 498 }, { -90, 498 }, { -90, 1078 }, { -300, 1078 } });
    AddLights(plan, { { -300, 108 }, { -300, -378 }, { -90, -378 }, { -90, 108 }, { -300, 108 } });
    AddLights(plan, { { -300, -450 }, { -300, -782 }, { -90, -782 }, { -90, -450 }, { -300, -450 } });
}

}  // namespace

void LayOutHubAprons(AirportPlan* plan) {
    for (const Pier& pier : kConcourses) AddPier(plan, pier);
    for (const Satellite& satellite : kSatellites) AddSatellite(plan, satellite);
    for (const SpotRow& row : kStands) AddSpotRow(plan, row);
    AddTerminalApron(plan);
    AddCargoApron(plan);
    AddApron(plan, kConcrete, Rectangle(502, 1220, 760, 1480));           // de-icing pads
    AddApron(plan, kAsphalt, Rectangle(kApronWest, -2037, 1115, -1835));  // small aircraft
    AddApron(plan, kConcrete, Rectangle(-300, 498, -90, 1078));           // stands in the west
    AddApron(plan, kConcrete, Rectangle(-300, -378, -90, 108));
    AddApron(plan, kConcrete, Rectangle(-300, -782, -90, -450));
    AddEdgeLights(plan);
}

}  // namespace sample
