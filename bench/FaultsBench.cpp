// FaultsBench.cpp - whole passes of the fault finder, up to the format's limits, beside the literal walks.
//
// The networks are grids with every third link missing, so that open ends and isolated places occur at every
// size; the counters show that the faults were found.
#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "fakes/BuildObjects.h"
#include "fakes/LiteralFaults.h"
#include "faults/FaultSearch.h"
#include "Ratios.h"

namespace {

using model::SceneryObject;

constexpr double kSpacing = 45;  // metres

SceneryObject* AppendLink(SceneryObject* start, SceneryObject* end) {
    return build::Link(start, end, KindOf(end) == model::kParkingSpot ? model::kParkingLink : model::kTaxiwayLink);
}

// `nodes` nodes and one and a half times as many links; `faulty` leaves out links and moves nodes together.
void MakeNetwork(int nodes, bool faulty) {
    model::ClearModel();
    const int side = static_cast<int>(std::ceil(std::sqrt(nodes)));
    const auto place = [&](int i) -> build::Place {
        const double shift = faulty && i % 97 == 0 ? kSpacing - 4 : 0;
        return { kSpacing * (i % side - side / 2) + shift, kSpacing * (i / side - side / 2) };
    };
    SceneryObject* runway = build::Runway(9);
    model::PayloadAs<model::RunwayPayload>(runway).body.length = 4000;
    model::PayloadAs<model::RunwayPayload>(runway).body.heading = 90;
    model::PayloadAs<model::RunwayPayload>(runway).body.pattern = 0x09;  // no starts needed
    std::vector<SceneryObject*> grid;
    for (int i = 0; i < nodes; ++i) {
        const build::Place at = place(i);
        grid.push_back(build::Node(at, std::fabs(at.north) < 80 ? model::kHoldShortNode : model::kNormalNode));
    }
    int left = nodes * 3 / 2;
    for (int i = 0; i < nodes && left > 0; ++i) {  // rows connect always, columns as long as links are left
        const bool hole = faulty && i % 11 == 0;
        if (i % side + 1 < side && i + 1 < nodes && !hole && left-- > 0)
            AppendLink(grid[size_t(i)], grid[size_t(i) + 1]);
        const bool column = i % side == 0 || i % 2 == 0;
        if (column && i + side < nodes && left-- > 0) AppendLink(grid[size_t(i)], grid[size_t(i + side)]);
    }
}

int64_t PassToTheEnd() {
    faults::FaultSearch search;
    faults::FaultReport report;
    int64_t count = 0;
    while (FindNextFault(&search, &report) == faults::SearchResult::Fault) ++count;
    return count;
}

double SecondsOfPass() { return BestSeconds(5, PassToTheEnd); }

void FaultPass(benchmark::State& state) {
    const auto nodes = static_cast<int>(state.range(0));
    const bool faulty = state.range(1) != 0;
    MakeNetwork(500, faulty);
    const double small = SecondsOfPass() / 500;
    MakeNetwork(nodes, faulty);
    int64_t count = 0;
    for (auto _ : state) count = PassToTheEnd();
    if (nodes == 4000)
        NoteRatio(&state, "of_20_ms",
                  { std::string("fault pass at 4000 ") + (faulty ? "faulty" : "clean") + " nodes / 20 ms",
                    SecondsOfPass() / 0.02, 1 });
    NoteRatio(
        &state, "times_500",
        { "fault pass per node, " + std::to_string(nodes) + (faulty ? " faulty" : " clean") + " nodes / 500 nodes",
          SecondsOfPass() / nodes / small, 1.5 });
    state.counters["faults"] = static_cast<double>(count);
    state.counters["links"] = model::CountKind(model::kTaxiLink);
    model::ClearModel();
}

int64_t LiteralPassToTheEnd() {
    literal::Finder finder;
    int64_t count = 0;
    while (literal::Press(&finder, 1).check >= 0) ++count;
    return count;
}

void LiteralPass(benchmark::State& state) {
    const auto nodes = static_cast<int>(state.range(0));
    MakeNetwork(nodes, state.range(1) != 0);
    int64_t count = 0;
    for (auto _ : state) count = LiteralPassToTheEnd();
    NoteRatio(
        &state, "of_literal",
        { "fault pass at " + std::to_string(nodes) + (state.range(1) ? " faulty" : " clean") + " nodes / nested walks",
          SecondsOfPass() / BestSeconds(1, LiteralPassToTheEnd), 0 });
    state.counters["faults"] = static_cast<double>(count);
    model::ClearModel();
}

}  // namespace

BENCHMARK(FaultPass)
    ->ArgsProduct({ { 500, 1500, 4000 }, { 0, 1 } })
    ->ArgNames({ "nodes", "faulty" })
    ->Unit(benchmark::kMillisecond);
BENCHMARK(LiteralPass)
    ->ArgsProduct({ { 500, 1500, 4000 }, { 0, 1 } })
    ->ArgNames({ "nodes", "faulty" })
    ->Unit(benchmark::kMillisecond);
