// One recorded edit, undone and redone, in airports of 40, 400 and 4,000 nodes.
//
// The counter times_40_nodes compares with the smallest airport in the same run: it should stay near 1.
#include <benchmark/benchmark.h>

#include <cstdlib>

#include "model/EditHistory.h"
#include "model/ObjectList.h"
#include "Networks.h"
#include "Ratios.h"

namespace {

constexpr int kEditsInARow = 200;

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

double SecondsOfEdits() {
    model::SceneryObject* node = MiddleNode();
    return BestSeconds(20, [&] {
        for (int i = 0; i < kEditsInARow; ++i) EditUndoRedo(node, static_cast<uint8_t>(i));
    });
}

void RecordedEdit(benchmark::State& state) {
    MakeNetworkOfNodes(40);
    const double secondsWith40 = SecondsOfEdits();
    MakeNetworkOfNodes(static_cast<uint32_t>(state.range(0)));
    model::SceneryObject* node = MiddleNode();
    uint8_t value = 0;
    for (auto _ : state) EditUndoRedo(node, ++value);
    if (model::PayloadAs<model::TaxiNodeRecord>(node).reversed != value || !model::CanUndo()) std::abort();
    const std::string nodes = std::to_string(state.range(0));
    NoteRatio(&state, "times_40_nodes",
              { "edit, undo and redo at " + nodes + " nodes / at 40 nodes", SecondsOfEdits() / secondsWith40, 1.5 });
    model::ClearModel();
}
BENCHMARK(RecordedEdit)->Arg(40)->Arg(400)->Arg(4000);

}  // namespace
