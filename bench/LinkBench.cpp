// A tick of the link to the simulator with the aircraft on the move, beside airports of 40 and 4,000 nodes.
//
// The simulator answers at once and in process, so this is the program's own share. The counter times_40_nodes
// compares with the smallest airport in the same run: it should stay near 1.
#include <benchmark/benchmark.h>

#include <cstdlib>

#include "app/SimLink.h"
#include "fakes/FakeTransport.h"
#include "link/Simulator.h"
#include "map/MapView.h"
#include "model/ObjectList.h"
#include "Networks.h"
#include "Ratios.h"

namespace {

constexpr int kTicksInARow = 1000;

void OpenNetwork(uint32_t nodes) {
    MakeNetworkOfNodes(nodes);
    model::state.loaded = true;
    ResetTransport();
    app::ReleaseSimulator();
}

void MoveAndTick(int64_t* latitude) {
    PutAircraft(&fakeTransport.simulator, ++*latitude, 5, 6);
    app::PollSimulator();
}

double SecondsOfTicks() {
    int64_t latitude = 0;
    return BestSeconds(20, [&] {
        for (int i = 0; i < kTicksInARow; ++i) MoveAndTick(&latitude);
    });
}

void LinkTick(benchmark::State& state) {
    OpenNetwork(40);
    const double secondsWith40 = SecondsOfTicks();
    OpenNetwork(static_cast<uint32_t>(state.range(0)));
    int64_t latitude = 0;
    for (auto _ : state) MoveAndTick(&latitude);
    if (simlink::simulator.position.latitude != latitude || !map::simAircraft.active) std::abort();
    const std::string nodes = std::to_string(state.range(0));
    NoteRatio(&state, "times_40_nodes",
              { "simulator poll at " + nodes + " nodes / at 40 nodes", SecondsOfTicks() / secondsWith40, 1.5 });
    app::ReleaseSimulator();
    model::ClearModel();
}
BENCHMARK(LinkTick)->Arg(40)->Arg(4000);

}  // namespace
