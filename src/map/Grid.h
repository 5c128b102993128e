// Grid.h - the spacing and the labels of the latitude/longitude grid.
#pragma once

#include <cstdint>
#include <string>

namespace map {

// What the grid setting chooses from, by its value: seconds of arc between lines.
inline constexpr int kGridDivisions[] = { 60, 30, 20, 15, 12, 10, 6, 5, 4, 3 };

struct GridSpacing {
    int step = 0;       // seconds of arc between lines
    int labelStep = 0;  // seconds of arc between labelled lines; a multiple of `step`
};

// For the view as it is and the grid settings.
GridSpacing ChooseGridSpacing();

// "49 15 30", "49 15.5" or "49 15.25": degrees and minutes of a position in whole seconds of arc, the sign
// left out. Two decimals are used where one would not tell the labels apart.
std::string GridLabel(int64_t seconds, int labelStep);

}  // namespace map
