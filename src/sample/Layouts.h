// Layouts.h - the airports that are laid out by hand, and the generator for the others.
//
// The hand-made ones stand on the real runways and follow the shape of the real airports loosely: where
// aircraft park and how they get there is our own drawing, in metres around the reference point.
#pragma once

#include "sample/AirportPlan.h"

namespace sample {

constexpr const char* kHubIdent = "KSEA";
constexpr const char* kRegionalIdent = "CYYJ";
constexpr const char* kGrassIdent = "WN76";

void LayOutHub(AirportPlan* plan);
void LayOutHubAprons(AirportPlan* plan);  // the paved areas and gates; part of LayOutHub
void LayOutHubTaxiways(AirportPlan* plan);
void LayOutRegional(AirportPlan* plan);
void LayOutGrass(AirportPlan* plan);

// Taxiways, an apron and parking for an airport of which only the runways are known. Nothing for one without
// a paved runway of 1000 m.
void LayOutGenerated(AirportPlan* plan);

// The layout that belongs to the airport's identifier.
void LayOut(AirportPlan* plan);

}  // namespace sample
