// Ratios.h - what a benchmark compares within one run.
#pragma once

#include <benchmark/benchmark.h>

#include "RatioTable.h"

// Shows the ratio as the benchmark's counter and in the table. A benchmark runs several times until its times are
// steady; the last run counts.
inline void NoteRatio(benchmark::State* state, const char* counter, const Ratio& ratio) {
    state->counters[counter] = ratio.value;
    const auto same = [&](const Ratio& row) { return row.what == ratio.what; };
    const auto row = std::find_if(ratios.begin(), ratios.end(), same);
    if (row == ratios.end())
        ratios.push_back(ratio);
    else
        *row = ratio;
}
