// Reading and writing a large airport, beside a plain copy of the same bytes in the same run.
//
// The counter times_copy says how many such copies the work takes; times_objects compares reading with
// making as many empty objects, of which each takes two blocks of memory.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "bgl/AirportReader.h"
#include "bgl/AirportWriter.h"
#include "bgl/OpenAirport.h"
#include "bgl/SceneryStructure.h"
#include "fakes/RandomAirport.h"
#include "model/ObjectList.h"
#include "Ratios.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr uint64_t kFixedTime = 0x01C4000000000000;

// 800 nodes, 1100 links, 400 spots, as a file.
const std::vector<uint8_t>& LargeFile() {
    static const std::vector<uint8_t> bytes = [] {
        std::vector<uint8_t> built;
        std::string refusal;
        MakeRandomAirport(1, LargeCounts());
        if (!bgl::BuildAirportFile(kFixedTime, &built, &refusal)) std::abort();
        return built;
    }();
    return bytes;
}

double SecondsToCopy(const std::vector<uint8_t>& bytes) {
    std::vector<uint8_t> copy(bytes.size());
    return BestSeconds(1000, [&] {
        std::memcpy(copy.data(), bytes.data(), bytes.size());
        benchmark::DoNotOptimize(copy.data());
        benchmark::ClobberMemory();
    });
}

double SecondsToMakeObjects(uint32_t count) {
    std::vector<model::SceneryObject*> objects(count);
    double best = 1;
    for (int i = 0; i < 1000; ++i) {
        const Clock::time_point start = Clock::now();
        for (model::SceneryObject*& object : objects)
            object = model::CreateObject(model::kTaxiNode, sizeof(model::TaxiLinkPayload));
        best = std::min(best, SecondsSince(start));
        for (model::SceneryObject* object : objects) model::FreeObject(object);
    }
    return best;
}

void Report(benchmark::State& state, const char* work, double aim, const std::vector<uint8_t>& bytes, double best) {
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(bytes.size()));
    state.counters["bytes"] = static_cast<double>(bytes.size());
    NoteRatio(&state, "times_copy",
              { std::string(work) + " / copying the same bytes", best / SecondsToCopy(bytes), aim });
}

void ReadLargeAirport(benchmark::State& state) {
    const std::vector<uint8_t>& file = LargeFile();
    bgl::SceneryStructure structure;
    bgl::AirportPlace place;
    if (!bgl::ReadStructure(bgl::SourceOfBytes(file), &structure) || !bgl::FindAirport(&structure, "", &place))
        std::abort();
    const auto first = file.begin() + static_cast<ptrdiff_t>(place.offset);
    const std::vector<uint8_t> record(first, first + place.size);
    double best = 1;
    for (auto _ : state) {
        model::ClearModel();
        const Clock::time_point start = Clock::now();
        bgl::ReadAirport(record);
        const double seconds = SecondsSince(start);
        state.SetIterationTime(seconds);
        best = std::min(best, seconds);
    }
    if (model::CountKind(model::kTaxiNode) != LargeCounts().nodes) std::abort();
    uint32_t objects = 0;
    for (const model::SceneryObject* o = model::state.head; o; o = o->next) ++objects;
    state.counters["objects"] = objects;
    NoteRatio(&state, "times_objects",
              { "reading an airport record / making as many objects", best / SecondsToMakeObjects(objects), 0 });
    Report(state, "reading an airport record", 10, record, best);
    model::ClearModel();
}
BENCHMARK(ReadLargeAirport)->UseManualTime();

void OpenLargeFile(benchmark::State& state) {
    const std::vector<uint8_t>& file = LargeFile();
    double best = 1;
    for (auto _ : state) {
        model::ClearModel();
        const Clock::time_point start = Clock::now();
        if (!bgl::OpenAirportBytes(file, "")) std::abort();
        const double seconds = SecondsSince(start);
        state.SetIterationTime(seconds);
        best = std::min(best, seconds);
    }
    Report(state, "opening an airport file in memory", 0, file, best);
    model::ClearModel();
}
BENCHMARK(OpenLargeFile)->UseManualTime();

void WriteLargeAirport(benchmark::State& state) {
    const std::vector<uint8_t> file = LargeFile();
    if (!bgl::OpenAirportBytes(file, "")) std::abort();
    std::vector<uint8_t> bytes;
    std::string refusal;
    double best = 1;
    for (auto _ : state) {
        const Clock::time_point start = Clock::now();
        if (!bgl::BuildAirportFile(kFixedTime, &bytes, &refusal)) std::abort();
        const double seconds = SecondsSince(start);
        state.SetIterationTime(seconds);
        best = std::min(best, seconds);
    }
    if (bytes != file) std::abort();
    Report(state, "building an airport file in memory", 0, bytes, best);
    model::ClearModel();
}
BENCHMARK(WriteLargeAirport)->UseManualTime();

}  // namespace
