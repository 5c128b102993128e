// RunwayPlans.h - makes runways, helipads and frequencies of an airport out of the rows of the tables.
//
// The tables are full of holes: most small fields have neither positions nor headings. What is missing is
// derived from the runway's numbers, the airport's position and the magnetic variation.
#pragma once

#include <span>

#include "sample/AirportPlan.h"
#include "sample/World.h"

namespace sample {

// The plan of an airport without any taxiways: identity, runways with their equipment, helipads, frequencies.
// `variation` is the magnetic variation at the airport, degrees, east positive.
AirportPlan PlanAirport(const World& world, const AirportRow& airport, double variation);

// One runway, unequipped. False when the row describes none (closed, a helipad, unreadable ends).
bool PlanRunway(const RunwayRow& row, model::LatLon reference, double variation, RunwayPlan* plan, bool* placed);

// Markings, lights, approach aids as fit length, surface and lights of the runway.
void EquipRunway(RunwayPlan* runway, bool lighted);

// ILSs for the longest runways of a towered airport with identifiers like ISEA, from 108.1 to 111.9 MHz.
void AssignIls(AirportPlan* plan);

}  // namespace sample
