// Regions.cpp - see Regions.h.
#include "sample/Regions.h"

#include <cstdio>

#include "bgl/Cells.h"

namespace sample {

namespace {

using bgl::kBlockShift;
constexpr double kBlockWidth = 3.75, kBlockHeight = 2.8125;  // degrees
constexpr uint32_t kLastColumn = 95, kLastRow = 63;

struct RegionBox {
    const char* region;
    double west, east, south, north;  // degrees, east and north positive
};

// The first box that holds the middle of a block decides; the open Pacific is what no box holds.
constexpr RegionBox kBoxes[] = {
    { "Eurw", -32, 15, 35, 90 },   { "Eure", 15, 62, 37, 90 },     { "Name", -60, -32, 25, 90 },
    { "Name", -100, -60, 25, 90 }, { "Namw", -180, -100, 25, 90 }, { "Namc", -120, -58, 9, 25 },
    { "Same", -95, -30, -90, 9 },  { "Aust", 110, 180, -90, -10 }, { "Asia", 62, 150, -10, 90 },
    { "Asia", 150, 180, 30, 90 },  { "Asia", 35, 62, 12, 37 },     { "Afri", -32, 62, -90, 37 },
};

}  // namespace

Block BlockOf(model::EncodedPoint point) {
    const uint32_t column = point.longitude >> kBlockShift, row = point.latitude >> kBlockShift;
    return { column < kLastColumn ? column : kLastColumn, row < kLastRow ? row : kLastRow };
}

const char* RegionOf(Block block) {
    const double east = -180 + (block.column + 0.5) * kBlockWidth, north = 90 - (block.row + 0.5) * kBlockHeight;
    for (const RegionBox& box : kBoxes) {
        if (box.west <= east && east < box.east && box.south <= north && north < box.north) return box.region;
    }
    return "Ocen";
}

std::string AirportFileName(Block block) {
    char name[32];
    std::snprintf(name, sizeof name, "AP9%02u%02u0.bgl", block.column, block.row);
    return name;
}

std::string NavaidFileName(const std::string& region) { return "nv9" + region + "0.bgl"; }

std::string RegionFolder(const std::string& region) { return "Scenery\\" + region + "\\Scenery"; }

}  // namespace sample
