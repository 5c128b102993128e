// Hub.h - the hub of the sample airports, as the benchmarks paint it.
#pragma once

#include <cstdlib>
#include <string>

#include "fakes/FakePlatform.h"
#include "model/Geodesy.h"
#include "sample/AirportModel.h"
#include "sample/Layouts.h"
#include "sample/NavaidModel.h"
#include "sample/RunwayPlans.h"
#include "sample/World.h"

// Makes it the open airport; returns its middle.
inline model::LatLon MakeHub() {
    ResetFakes();
    sample::World world;
    std::string error;
    if (!sample::LoadWorld(TARVO_SAMPLE_DATA, &world, &error)) std::abort();
    const sample::AirportRow* row = sample::FindAirport(world, sample::kHubIdent);
    if (!row) std::abort();
    sample::AirportPlan plan =
        sample::PlanAirport(world, *row, sample::VariationAt(sample::MapVariations(world), row->position));
    sample::LayOut(&plan);
    sample::MakeAirportModel(plan);
    return row->position;
}
