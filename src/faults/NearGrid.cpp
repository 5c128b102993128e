// NearGrid.cpp - see NearGrid.h.
#include "faults/NearGrid.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace faults {

namespace {

// Short east distances come out of an arc cosine near 1 and are up to some 0.13 m wrong.
constexpr double kRoundingMargin = 1;  // metres

int64_t RowOf(const NearGrid& grid, model::LatLon position) {
    return static_cast<int64_t>(std::floor(position.lat * model::kNorthSouthRadius / grid.cellHeight));
}

int64_t ColumnOf(const NearGrid& grid, model::LatLon position) {
    const double turns = position.lon / model::kTwoPi;
    const double share = turns - std::floor(turns);
    const auto column = static_cast<int64_t>(share * static_cast<double>(grid.columns));
    return std::min(column, grid.columns - 1);
}

// The high bits of a product with a large odd number: neighbouring cells fall into buckets far apart.
size_t BucketOf(const NearGrid& grid, int64_t cell) {
    return static_cast<size_t>(static_cast<uint64_t>(cell) * 0x9E3779B97F4A7C15u >> (64 - grid.bucketBits));
}

void CollectCell(const NearGrid& grid, int64_t cell, std::vector<uint32_t>* items) {
    const size_t bucket = BucketOf(grid, cell);
    for (uint32_t i = grid.firstEntry[bucket]; i < grid.firstEntry[bucket + 1]; ++i) {
        if (grid.entries[i].cell == cell) items->push_back(grid.entries[i].item);
    }
}

}  // namespace

NearGrid MakeGrid(double reach, double smallestCosine) {
    NearGrid grid;
    grid.cellHeight = reach + kRoundingMargin;
    // Two points of a parallel with the longitudes a and b lie an angle t apart when
    // sin(t/2) = cos(latitude) sin((b-a)/2).
    const double sine = std::sin(grid.cellHeight / model::kEastWestRadius / 2);
    if (sine < smallestCosine / 2) {
        const double widest = 2 * std::asin(sine / smallestCosine);
        grid.columns = static_cast<int64_t>(model::kTwoPi / widest);
    }
    if (grid.columns < 4) grid.columns = 1;  // about a pole: rows alone; with fewer, neighbours would coincide
    return grid;
}

void Insert(NearGrid* grid, model::LatLon position, uint32_t item) {
    const int64_t cell = RowOf(*grid, position) * grid->columns + ColumnOf(*grid, position);
    if (!grid->entries.empty() && grid->entries.back().cell == cell && grid->entries.back().item == item) return;
    grid->entries.push_back({ cell, item });
}

void Finish(NearGrid* grid) {
    grid->bucketBits = 1;
    while ((size_t{ 1 } << grid->bucketBits) < grid->entries.size()) ++grid->bucketBits;
    grid->firstEntry.assign((size_t{ 1 } << grid->bucketBits) + 1, 0);
    for (const NearGrid::Entry& entry : grid->entries) ++grid->firstEntry[BucketOf(*grid, entry.cell) + 1];
    for (size_t i = 1; i < grid->firstEntry.size(); ++i) grid->firstEntry[i] += grid->firstEntry[i - 1];
    std::vector<uint32_t> next(grid->firstEntry.begin(), grid->firstEntry.end() - 1);
    std::vector<NearGrid::Entry> inBuckets(grid->entries.size());
    for (const NearGrid::Entry& entry : grid->entries) inBuckets[next[BucketOf(*grid, entry.cell)]++] = entry;
    grid->entries = std::move(inBuckets);
}

void CollectNear(const NearGrid& grid, model::LatLon position, std::vector<uint32_t>* items) {
    items->clear();
    const int64_t row = RowOf(grid, position), column = ColumnOf(grid, position), columns = grid.columns;
    for (int64_t i = row - 1; i <= row + 1; ++i) {
        if (columns == 1) {
            CollectCell(grid, i, items);
            continue;
        }
        for (int64_t step = -1; step <= 1; ++step) {  // beside the last column lies the first
            CollectCell(grid, i * columns + (column + step + columns) % columns, items);
        }
    }
}

}  // namespace faults
