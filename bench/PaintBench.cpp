// PaintBench.cpp - painting a large airport: what every pan step and every zoom step waits for.
//
// A canvas that only counts shows what computing costs by itself; of_svg is its share of the time that writing the same
// map as a picture takes in the same run. times_500 compares 4,000 nodes with eight times the work for 500.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/RecordingCanvas.h"
#include "Hub.h"
#include "map/MapView.h"
#include "map/PaintMap.h"
#include "map/TaxiwaySurface.h"
#include "platform/CanvasSvg.h"
#include "Ratios.h"

namespace {

constexpr int kColumns = 80, kRows = 50;  // 4,000 nodes
constexpr double kStep = 60;              // metres between them

void MakeNetwork(int rows) {
    ResetFakes();
    model::ClearModel();
    build::Airport("KTST");
    std::vector<model::SceneryObject*> nodes;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < kColumns; ++column) {
            nodes.push_back(build::Node({ (column - kColumns / 2) * kStep, (row - rows / 2) * kStep }));
        }
    }
    constexpr uint32_t kLines = 1u << 16 | 1u << 18 | 1u << 21;
    const auto link = [&](int from, int to) {
        auto* object = build::Link(nodes[static_cast<size_t>(from)], nodes[static_cast<size_t>(to)]);
        model::PayloadAs<model::TaxiLinkPayload>(object).flagsWord |= kLines;
    };
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < kColumns; ++column) {
            const int at = row * kColumns + column;
            if (column + 1 < kColumns) link(at, at + 1);
            if (row + 1 < rows && column % 3 == 0) link(at, at + kColumns);
        }
    }
}

void Look(double span, int width, int height) {
    map::view = {};
    map::layers = {};
    map::ResetView(build::kMiddle);
    map::view.span = span;
    map::ResizeView(width, height);
}

// The argument is the ground across the height of the window, in metres.
void PaintNetwork(benchmark::State& state) {
    const auto span = static_cast<double>(state.range(0));
    CallCounts counts;
    const auto paint = [&] {
        counts = {};
        platform::Canvas canvas = CountingCanvas(&counts);
        map::PaintMap(&canvas);
    };
    MakeNetwork(500 / kColumns);
    Look(span, 1600, 1000);
    const double small = BestSeconds(10, paint) / static_cast<double>(model::CountKind(model::kTaxiNode));
    MakeNetwork(kRows);
    Look(span, 1600, 1000);
    for (auto _ : state) paint();
    NoteRatio(&state, "times_500",
              { "redraw per node at " + std::to_string(state.range(0)) + " m, 4000 nodes / 480 nodes",
                BestSeconds(10, paint) / static_cast<double>(model::CountKind(model::kTaxiNode)) / small, 1.5 });
    state.counters["nodes"] = static_cast<double>(model::CountKind(model::kTaxiNode));
    state.counters["links"] = static_cast<double>(model::CountKind(model::kTaxiLink));
    state.counters["shapes"] = static_cast<double>(counts.shapes);
    state.counters["pens"] = static_cast<double>(counts.pens);
    model::ClearModel();
}
BENCHMARK(PaintNetwork)->Arg(8000)->Arg(3000)->Arg(500)->Unit(benchmark::kMillisecond);

void LayJunctions() {
    map::TaxiNetwork network = map::BuildTaxiNetwork();
    map::LayCorners(&network, 0);
    benchmark::DoNotOptimize(network.arms.data());
}

// Hubs, arms and corners of the network, before anything is culled; the argument is its nodes.
void JunctionGeometry(benchmark::State& state) {
    MakeNetwork(500 / kColumns);
    Look(8000, 1600, 1000);
    const double small = BestSeconds(20, LayJunctions) / static_cast<double>(model::CountKind(model::kTaxiNode));
    MakeNetwork(static_cast<int>(state.range(0)) / kColumns);
    for (auto _ : state) LayJunctions();
    const auto nodes = static_cast<double>(model::CountKind(model::kTaxiNode));
    state.counters["nodes"] = nodes;
    NoteRatio(&state, "times_500",
              { "a node's junction among " + std::to_string(state.range(0)) + " nodes / among 500",
                BestSeconds(20, LayJunctions) / nodes / small, 1.5 });
    model::ClearModel();
}
BENCHMARK(JunctionGeometry)->Arg(1000)->Arg(4000)->Unit(benchmark::kMillisecond);

// The hub of the sample airports on a page of 1280 x 1024; the arguments are the span in metres and the lights.
void PaintHub(benchmark::State& state) {
    const model::LatLon middle = MakeHub();
    Look(static_cast<double>(state.range(0)), 1280, 1024);
    map::view.centre = middle;
    map::layers.lights = state.range(1) != 0;
    map::layers.navaids = map::layers.starts = true;
    CallCounts counts;
    const auto paint = [&] {
        counts = {};
        platform::Canvas canvas = CountingCanvas(&counts);
        map::PaintMap(&canvas);
    };
    for (auto _ : state) paint();
    const double drawing = BestSeconds(10, [] {
        benchmark::DoNotOptimize(platform::SvgDocument(map::view.clientWidth, map::view.clientHeight, map::PaintMap));
    });
    state.counters["shapes"] = static_cast<double>(counts.shapes);
    state.counters["texts"] = static_cast<double>(counts.texts);
    const std::string span = std::to_string(state.range(0)), light = state.range(1) ? " by night" : " by day";
    NoteRatio(&state, "of_svg",
              { "computing the hub at " + span + " m" + light + " / with writing it as SVG",
                BestSeconds(10, paint) / drawing, 0 });
    model::ClearModel();
}
BENCHMARK(PaintHub)
    ->Args({ 3704, 0 })
    ->Args({ 3704, 1 })
    ->Args({ 600, 0 })
    ->Args({ 600, 1 })
    ->Unit(benchmark::kMillisecond);

}  // namespace
