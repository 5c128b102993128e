// ToolBench.cpp - the mouse on a large airport: what every press and every move of the pointer waits for.
#include <benchmark/benchmark.h>

#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/RecordingCanvas.h"
#include "map/HoldShortUpdate.h"
#include "map/LinkSplit.h"
#include "map/MapView.h"
#include "map/PaintMap.h"
#include "map/Selection.h"
#include "model/EditHistory.h"
#include "Ratios.h"

namespace {

constexpr int kColumns = 80;
constexpr double kStep = 60;  // metres between nodes

// A node for every link; each twentieth holds short.
void MakeRows(int links) {
    ResetFakes();
    model::ClearModel();
    build::Airport("KTST");
    build::Runway(36);
    model::SceneryObject* last = nullptr;
    for (int i = 0; i <= links; ++i) {
        const build::Place place = { (i % kColumns - kColumns / 2) * kStep,
                                     (i / kColumns - links / kColumns / 2) * kStep };
        model::SceneryObject* node = build::Node(place, i % 20 == 0 ? model::kHoldShortNode : model::kNormalNode);
        if (last) build::Link(last, node);
        last = node;
    }
    map::view = {};
    map::layers = {};
    map::ResetView(build::kMiddle);
    map::view.span = kColumns * kStep;
    map::ResizeView(1600, 1000);
}

// A node on one of the links, and what undoing it costs.
void JoinAndUndo() {
    model::BeginAction();
    model::SceneryObject* node = model::CreateObject(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
    model::SetPosition(node, build::At({ kStep / 2, 2 }));
    model::AddObject(node);
    map::JoinNodeIntoLinks(node);
    model::Undo();
}

// The work's time at that many of something, by the time at 500 and the growth in numbers.
template <class Work>
void NoteGrowth(benchmark::State* state, const char* what, double secondsAt500, Work work) {
    const auto count = static_cast<double>(state->range(0));
    NoteRatio(state, "times_500",
              { std::string(what) + std::to_string(state->range(0)) + " / at 500, each",
                BestSeconds(20, work) / secondsAt500 * 500 / count, 1.5 });
}

void JoinNode(benchmark::State& state) {
    MakeRows(500);
    const double small = BestSeconds(20, JoinAndUndo);
    MakeRows(static_cast<int>(state.range(0)));
    for (auto _ : state) JoinAndUndo();
    NoteGrowth(&state, "joining a node into links at ", small, JoinAndUndo);
    state.counters["links"] = static_cast<double>(model::CountKind(model::kTaxiLink));
    model::ClearModel();
}
BENCHMARK(JoinNode)->Arg(500)->Arg(4000)->Unit(benchmark::kMillisecond);

// The pointer over empty ground: every object is asked.
void HitTest(benchmark::State& state) {
    const auto show = [](int64_t objects) {
        MakeRows(static_cast<int>(objects) / 2);
        CallCounts counts;
        platform::Canvas canvas = CountingCanvas(&counts);
        map::PaintMap(&canvas);
    };
    const auto pick = [] { benchmark::DoNotOptimize(map::PickObject({ 3, 3 })); };
    show(500);
    const double small = BestSeconds(200, pick);
    show(state.range(0));
    for (auto _ : state) pick();
    NoteGrowth(&state, "hit test of objects at ", small, pick);
    state.counters["objects"] = static_cast<double>(build::List().size());
    model::ClearModel();
}
BENCHMARK(HitTest)->Arg(500)->Arg(4000)->Unit(benchmark::kMicrosecond);

// What every move, deletion and dialog does besides.
void HoldShortMarkings(benchmark::State& state) {
    const auto note = [] { benchmark::DoNotOptimize(map::NoteHoldShorts()); };
    MakeRows(500);
    const double small = BestSeconds(20, note);
    MakeRows(static_cast<int>(state.range(0)));
    for (auto _ : state) note();
    NoteGrowth(&state, "noting hold-short directions at links ", small, note);
    model::ClearModel();
}
BENCHMARK(HoldShortMarkings)->Arg(500)->Arg(4000)->Unit(benchmark::kMillisecond);

}  // namespace
