// A tick of the link to the simulator with the aircraft on the move, beside airports of 40 and 4,000 nodes.
//
// The simulator answers at once and in process, so this is the program's own share. The counter times_40_nodes
// compares with the smallest airport in the same run: it should stay near 1.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>

#include "app/SimLink.h"
#include "fakes/FakeTransport.h"
#include "fakes/RandomAirport.h"
#include "link/Simulator.h"
#include "map/MapView.h"
#include "model/ObjectList.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kTicksInARow = 1000;

void OpenNetwork(uint32_t nodes) {
    AirportCounts counts;
    counts.nodes = nodes;
    counts.links = nodes + nodes / 4;
    counts.spots = nodes / 4;
    MakeRandomAirport(nodes, counts);
    model::state.loaded = true;
    ResetTransport();
    app::ReleaseSimulator();
}

void MoveAndTick(int64_t* latitude) {
    PutAircraft(&fakeTransport.simulator, ++*latitude, 5, 6);
    app::PollSimulator();
}

double BestSecondsPerTick() {
    int64_t latitude = 0;
    double best = 1;
    for (int round = 0; round < 20; ++round) {
        const Clock::time_point start = Clock::now();
        for (int i = 0; i < kTicksInARow; ++i) MoveAndTick(&latitude);
        best = std::min(best, std::chrono::duration<double>(Clock::now() - start).count() / kTicksInARow);
    }
    return best;
}

void LinkTick(benchmark::State& state) {
    OpenNetwork(40);
    const double secondsWith40 = BestSecondsPerTick();
    OpenNetwork(static_cast<uint32_t>(state.range(0)));
    int64_t latitude = 0;
    for (auto _ : state) MoveAndTick(&latitude);
    if (simlink::simulator.position.latitude != latitude || !map::simAircraft.active) std::abort();
    state.counters["times_40_nodes"] = BestSecondsPerTick() / secondsWith40;
    app::ReleaseSimulator();
    model::ClearModel();
}
BENCHMARK(LinkTick)->Arg(40)->Arg(4000);

}  // namespace
