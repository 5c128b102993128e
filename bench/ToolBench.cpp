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
void JoinNode(benchmark::State& state) {
    MakeRows(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        model::BeginAction();
        model::SceneryObject* node = model::CreateObject(model::kTaxiNode, sizeof(model::TaxiNodeRecord));
        model::SetPosition(node, build::At({ kStep / 2, 2 }));
        model::AddObject(node);
        map::JoinNodeIntoLinks(node);
        model::Undo();
    }
    state.counters["links"] = static_cast<double>(model::CountKind(model::kTaxiLink));
    model::ClearModel();
}
BENCHMARK(JoinNode)->Arg(500)->Arg(4000)->Unit(benchmark::kMillisecond);

// The pointer over empty ground: every object is asked.
void HitTest(benchmark::State& state) {
    MakeRows(static_cast<int>(state.range(0)) / 2);
    CallCounts counts;
    platform::Canvas canvas = CountingCanvas(&counts);
    map::PaintMap(&canvas);
    for (auto _ : state) benchmark::DoNotOptimize(map::PickObject({ 3, 3 }));
    state.counters["objects"] = static_cast<double>(build::List().size());
    model::ClearModel();
}
BENCHMARK(HitTest)->Arg(500)->Arg(4000)->Unit(benchmark::kMicrosecond);

// What every move, deletion and dialog does besides.
void HoldShortMarkings(benchmark::State& state) {
    MakeRows(static_cast<int>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(map::NoteHoldShorts());
    model::ClearModel();
}
BENCHMARK(HoldShortMarkings)->Arg(500)->Arg(4000)->Unit(benchmark::kMillisecond);

}  // namespace
