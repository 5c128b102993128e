// LayoutParts.h - the pieces that layouts are put together from: rows of spots, piers, exits, lit edges.
#pragma once

#include <vector>

#include "sample/AirportPlan.h"

namespace sample {

// Spots side by side, all with the same heading.
struct SpotRow {
    Local first, last;  // centres of the first and the last spot
    int count = 1;
    double heading = 0, radius = 20;
    ParkingType type = kRampGaSmall;
    uint8_t name = kParking;
    uint16_t number = 1;  // of the first spot
    const char* codes = "";
    double connector = 12;  // metres
};
void AddSpotRow(AirportPlan* plan, const SpotRow& row);

// Gates on both sides of a building that runs from its root at the terminal to its tip.
struct PierSide {
    double first = 0, last = 0;  // metres from the root along the axis
    int count = 0;
    double radius = 21;
    ParkingType type = kGateMedium;
    const char* codes = "";
};
struct Pier {
    char letter = 'A';
    Local root, tip;
    double halfWidth = 15, standOff = 27;  // from the axis to the wall, from the wall to the centre of a spot
    PierSide left, right;                  // looking from the root to the tip
    double tipRadius = 0;                  // 0: no gate at the tip
    const char* tipCodes = "";
};
void AddPier(AirportPlan* plan, const Pier& pier);  // numbers its gates from 1, the left side first
// The corners of the building, from the left of the root around the tip to the right of the root.
std::vector<Local> PierCorners(const Pier& pier);

void AddApron(AirportPlan* plan, Surface surface, std::vector<Local> outline);
// Blue lights along the chain of points.
void AddLights(AirportPlan* plan, const std::vector<Local>& points);

RunwayPlan* FindRunway(AirportPlan* plan, uint8_t number, uint8_t designator);  // by its primary end

}  // namespace sample
