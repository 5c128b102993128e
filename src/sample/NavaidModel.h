// NavaidModel.h - navaids of the tables as objects of the model, and the magnetic variation they tell.
#pragma once

#include <map>
#include <utility>
#include <vector>

#include "model/SceneryObject.h"
#include "sample/World.h"

namespace sample {

// One object, two for an NDB with DME, none for a row without a frequency that its kind can have. The caller
// owns them.
std::vector<model::SceneryObject*> MakeNavaids(const NavaidRow& row);

// The rows that know their magnetic variation, by squares of two degrees.
struct VariationMap {
    std::map<std::pair<int, int>, std::vector<const NavaidRow*>> squares;
};
VariationMap MapVariations(const World& world);  // `world` must outlive the map

// That of the nearest navaid within about ten degrees, degrees EAST positive; 0 when there is none.
double VariationAt(const VariationMap& map, model::LatLon position);

}  // namespace sample
