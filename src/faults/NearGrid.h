// NearGrid.h - finds what may lie near a position without looking at everything.
//
// Rows of equal height from south to north, each cut into columns that go once around the globe. Cells are so
// large that whatever lies within the reach of a position lies in its cell or one of the eight around it: the
// grid never misses anything, and the caller measures what it names. Only cells that hold something are kept, in
// a hash table.
#pragma once

#include <cstdint>
#include <vector>

#include "model/Geodesy.h"

namespace faults {

struct NearGrid {
    struct Entry {
        int64_t cell;  // row x columns + column
        uint32_t item;
    };
    double cellHeight = 1;  // metres
    int64_t columns = 1;
    std::vector<Entry> entries;        // after Finish bucket by bucket, in each in the order of insertion
    std::vector<uint32_t> firstEntry;  // by bucket, and one more
    int bucketBits = 0;
};

// For positions whose latitude's cosine is at least `smallestCosine` (its magnitude); `reach` in metres.
NearGrid MakeGrid(double reach, double smallestCosine);

void Insert(NearGrid* grid, model::LatLon position, uint32_t item);  // an item may have many positions
void Finish(NearGrid* grid);                                         // after the last Insert

// Replaces *items by those with a position in the nine cells, each possibly several times, in no order.
void CollectNear(const NearGrid& grid, model::LatLon position, std::vector<uint32_t>* items);

}  // namespace faults
