// One recorded edit, undone and redone, in airports of 40, 400 and 4,000 nodes.
//
// The counter times_40_nodes compares with the smallest airport in the same run: it should stay near 1.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>

#include "fakes/RandomAirport.h"
#include "model/EditHistory.h"
#include "model/ObjectList.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kEditsInARow = 200;

void MakeNetwork(uint32_t nodes) {
    AirportCounts counts;
    counts.nodes = nodes;
    counts.links = nodes + nodes / 4;
    counts.spots = nodes / 4;
    MakeRandomAirport(nodes, counts);
}

model::SceneryObject* MiddleNode() {
    model::SceneryObject* node = model::FirstOfKind(model::state.head, model::kTaxiNode);
    for (uint32_t i = model::CountKind(model::kTaxiNode) / 2; i > 0; --i)
        node = model::NextOfKind(node, model::kTaxiNode);
    return node;
}

// Edits a node in the middle of the list; `reversed` comes out as it was set last.
void EditUndoRedo(model::SceneryObject* node, uint8_t reversed) {
    model::BeginAction();
    model::SceneryObject* edited = model::CopyObject(node);
    model::PayloadAs<model::TaxiNodeRecord>(edited).reversed = reversed;
    model::ModifyObject(edited, node);
    model::Undo();
    model::Redo();
}

double BestSecondsPerEdit() {
    model::SceneryObject* node = MiddleNode();
    double best = 1;
    for (int round = 0; round < 20; ++round) {
        const Clock::time_point start = Clock::now();
        for (int i = 0; i < kEditsInARow; ++i) EditUndoRedo(node, static_cast<uint8_t>(i));
        best = std::min(best, std::chrono::duration<double>(Clock::now() - start).count() / kEditsInARow);
    }
    return best;
}

void RecordedEdit(benchmark::State& state) {
    MakeNetwork(40);
    const double secondsWith40 = BestSecondsPerEdit();
    MakeNetwork(static_cast<uint32_t>(state.range(0)));
    model::SceneryObject* node = MiddleNode();
    uint8_t value = 0;
    for (auto _ : state) EditUndoRedo(node, ++value);
    if (model::PayloadAs<model::TaxiNodeRecord>(node).reversed != value || !model::CanUndo()) std::abort();
    state.counters["times_40_nodes"] = BestSecondsPerEdit() / secondsWith40;
    model::ClearModel();
}
BENCHMARK(RecordedEdit)->Arg(40)->Arg(400)->Arg(4000);

}  // namespace
