// SpotColours.h - which parking spec a spot belongs to, for its colour on the map.
#pragma once

#include <string>
#include <unordered_map>

#include "app/ParkingSpecs.h"
#include "map/Palette.h"
#include "model/SceneryObject.h"

namespace map {

// The parking specs by their codes, without regard to case; the first of a file goes before the others.
struct SpecIndex {
    std::unordered_map<std::string, const app::ParkingSpec*> byCodes, byFirstCode, byAnyCode;
};
SpecIndex IndexSpecs();

// The airline with the same codes in the same order; else one that begins with the spot's first code; else one that holds
// it. Null when there is none.
const app::ParkingSpec* SpecOfSpot(const SpecIndex& index, const model::SceneryObject* spot);

Colour ColourOfSpec(const app::ParkingSpec& spec);  // by the lights: at night at half intensity

}  // namespace map
