// PaintBench.cpp - painting a large airport: what every pan step and every zoom step waits for.
#include <benchmark/benchmark.h>

#include <vector>

#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/RecordingCanvas.h"
#include "map/MapView.h"
#include "map/PaintMap.h"

namespace {

constexpr int kColumns = 80, kRows = 50;  // 4,000 nodes
constexpr double kStep = 60;              // metres between them

void MakeNetwork() {
    ResetFakes();
    model::ClearModel();
    build::Airport("KTST");
    std::vector<model::SceneryObject*> nodes;
    for (int row = 0; row < kRows; ++row) {
        for (int column = 0; column < kColumns; ++column) {
            nodes.push_back(build::Node({ (column - kColumns / 2) * kStep, (row - kRows / 2) * kStep }));
        }
    }
    constexpr uint32_t kLines = 1u << 16 | 1u << 18 | 1u << 21;
    const auto link = [&](int from, int to) {
        auto* object = build::Link(nodes[static_cast<size_t>(from)], nodes[static_cast<size_t>(to)]);
        model::PayloadAs<model::TaxiLinkPayload>(object).flagsWord |= kLines;
    };
    for (int row = 0; row < kRows; ++row) {
        for (int column = 0; column < kColumns; ++column) {
            const int at = row * kColumns + column;
            if (column + 1 < kColumns) link(at, at + 1);
            if (row + 1 < kRows && column % 3 == 0) link(at, at + kColumns);
        }
    }
}

// The argument is the ground across the height of the window, in metres.
void PaintNetwork(benchmark::State& state) {
    MakeNetwork();
    map::view = {};
    map::layers = {};
    map::ResetView(build::kMiddle);
    map::view.span = static_cast<double>(state.range(0));
    map::ResizeView(1600, 1000);
    CallCounts counts;
    for (auto _ : state) {
        counts = {};
        platform::Canvas canvas = CountingCanvas(&counts);
        map::PaintMap(&canvas);
    }
    state.counters["nodes"] = static_cast<double>(model::CountKind(model::kTaxiNode));
    state.counters["links"] = static_cast<double>(model::CountKind(model::kTaxiLink));
    state.counters["shapes"] = static_cast<double>(counts.shapes);
    state.counters["pens"] = static_cast<double>(counts.pens);
    model::ClearModel();
}
BENCHMARK(PaintNetwork)->Arg(8000)->Arg(3000)->Arg(500)->Unit(benchmark::kMillisecond);

}  // namespace
