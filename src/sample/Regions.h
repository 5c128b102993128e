// Regions.h - which file of which region folder holds what lies at a place.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "model/Records.h"

namespace sample {

constexpr std::array<const char*, 10> kRegions = { "Afri", "Asia", "Aust", "Eure", "Eurw",
                                                   "Namc", "Name", "Namw", "Ocen", "Same" };

// One airport file covers a block of 3.75 degrees of longitude and 2.8125 of latitude: 96 columns, 64 rows.
struct Block {
    uint32_t column = 0, row = 0;
    auto operator<=>(const Block&) const = default;
};
Block BlockOf(model::EncodedPoint point);

// The region of a block, decided by the block's middle, so that a block lies in one region as a whole. The
// borders are straight lines of longitude and latitude near those of the continents.
const char* RegionOf(Block block);

std::string AirportFileName(Block block);               // "AP915150.bgl"
std::string NavaidFileName(const std::string& region);  // "nv9Namw0.bgl"
std::string RegionFolder(const std::string& region);    // "Scenery\Namw\Scenery"

}  // namespace sample
