// LibraryBench.cpp - collecting the airports of a library of the world's size, cold and warm, each beside the plain
// reading of the same bytes in the same run.
//
// "ratio" is the collection's time over that of the plain reading; "opened" and "airports" show the work done.
// The library is a made one. TARVO_BENCH_SIMULATOR=FOLDER takes that of a simulator folder instead, such as one that
// `tarvo-tool sample FOLDER --world DATA` makes of tables of the world's airports.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "bgl/AirportIndex.h"
#include "bgl/IndexCache.h"
#include "bgl/LibraryScan.h"
#include "bgl/SceneryAreas.h"
#include "bgl/SceneryStructure.h"
#include "fakes/TestLibrary.h"
#include "platform/Files.h"
#include "Ratios.h"

namespace {

constexpr int kFiles = 1500, kAirports = 20804, kAreas = 12;
constexpr size_t kFileSize = 32 << 10;  // bytes; most of a stock file is nothing that a scan reads

const TestLibrary& WorldLibrary() {
    static TestLibrary library;
    static bool made = false;
    if (made) return library;
    made = true;
    if (const char* simulator = std::getenv("TARVO_BENCH_SIMULATOR")) {
        library.simulator = simulator;
        return library;
    }
    std::vector<std::string> areas;
    for (int area = 0; area < kAreas; ++area) areas.push_back("Scenery\\Area" + std::to_string(area));
    library.PutAreas(areas);
    for (int file = 0, airport = 0; file < kFiles; ++file) {
        std::vector<TestAirport> airports;
        for (; airport < static_cast<int64_t>(kAirports) * (file + 1) / kFiles; ++airport) {
            const std::string number = std::to_string(airport);
            airports.push_back({ "K" + number.substr(0, 3), "Airport of some length " + number,
                                 "Country " + std::to_string(file % 200), "State " + std::to_string(file % 700),
                                 "City of number " + std::to_string(airport / 2) });
        }
        std::vector<uint8_t> bytes = MakeSceneryFile(airports);
        bytes.resize(std::max(bytes.size(), kFileSize));
        const std::string name = "AP9" + std::to_string(10000 + file) + ".bgl";
        library.Put(areas[static_cast<size_t>(file % kAreas)], name, bytes);
    }
    return library;
}

// Calls visit(path) for each file of the library, in the order in which a collection meets them.
template <class Visit>
void ListAll(const TestLibrary& library, Visit visit) {
    for (const bgl::SceneryArea& area : bgl::ReadSceneryAreas(library.simulator)) {
        const std::string folder = bgl::AreaFileFolder(area);
        for (const auto& file : platform::ListFiles(folder, ".bgl")) visit(folder + "\\" + file.name);
    }
}

// Header, tables and name lists, and nothing done with them.
size_t ReadHeads(const std::string& path) {
    const platform::FileHandle handle = platform::OpenForReading(path);
    bgl::SceneryStructure file;
    if (!handle || !bgl::ReadStructure(bgl::SourceOfFile(handle.get()), &file)) return 0;
    size_t size = 0;
    for (const bgl::SectionEntry& section : file.sections) {
        if (section.sectionClass != 3) continue;
        for (const auto& subsection : bgl::ReadSubsections(&file, section)) {
            size += bgl::ReadStretch(file.source, subsection.offset, subsection.size).size();
        }
    }
    return size;
}

template <class Work>
double SecondsOf(Work work) {
    return BestSeconds(1, work);
}

void ForgetCaches(const TestLibrary& library) {
    platform::DeleteOneFile(library.program + "\\FileList");
    platform::DeleteOneFile(library.program + "\\AirportIndex");
}

void Report(benchmark::State& state, const char* what, double collecting, double reading) {
    NoteRatio(&state, "ratio", { what, collecting / reading, 2 });
    state.counters["opened"] = bgl::library.report.opened;
    state.counters["airports"] = static_cast<double>(bgl::library.airports.size());
}

void ColdCollection(benchmark::State& state) {
    const TestLibrary& library = WorldLibrary();
    double best = 1e9, plain = 1e9;
    for (auto _ : state) {
        ForgetCaches(library);
        size_t bytes = 0;
        plain =
            std::min(plain, SecondsOf([&] { ListAll(library, [&](const auto& path) { bytes += ReadHeads(path); }); }));
        benchmark::DoNotOptimize(bytes);
        const double seconds = SecondsOf([&] { bgl::CollectAllAirports(library.simulator, library.program); });
        best = std::min(best, seconds);
        state.SetIterationTime(seconds);
    }
    Report(state, "cold collection / plain walk of heads and name lists", best, plain);
}
BENCHMARK(ColdCollection)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(9);

void WarmCollection(benchmark::State& state) {
    const TestLibrary& library = WorldLibrary();
    const double cold = [&] {
        ForgetCaches(library);
        return SecondsOf([&] { bgl::CollectAllAirports(library.simulator, library.program); });
    }();
    double best = 1e9, plain = 1e9;
    for (auto _ : state) {
        size_t count = 0;
        plain = std::min(plain, SecondsOf([&] {
                             ListAll(library, [&](const auto&) { ++count; });
                             const bgl::CacheTexts texts = bgl::ReadCaches(library.program);
                             count += texts.fileList.size() + texts.airportIndex.size();
                         }));
        benchmark::DoNotOptimize(count);
        const double seconds = SecondsOf([&] { bgl::CollectAllAirports(library.simulator, library.program); });
        best = std::min(best, seconds);
        state.SetIterationTime(seconds);
    }
    Report(state, "warm collection / listing folders and reading the caches", best, plain);
    NoteRatio(&state, "of_cold", { "warm collection / cold collection", best / cold, 0 });
}
BENCHMARK(WarmCollection)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(25);

size_t HeapOf(const std::string& text) { return text.capacity() > 15 ? text.capacity() + 1 : 0; }

void MemoryOfTheIndex(benchmark::State& state) {
    const TestLibrary& library = WorldLibrary();
    for (auto _ : state) bgl::CollectAllAirports(library.simulator, library.program);
    const auto& held = bgl::library;
    size_t bytes = held.airports.capacity() * sizeof held.airports[0] + held.files.capacity() * sizeof held.files[0] +
                   held.places.capacity() * sizeof held.places[0];
    for (const auto& text : held.texts) bytes += text.capacity();
    for (const auto& file : held.files) bytes += 2 * HeapOf(file.path) + 64;  // its path, and that of the hash table
    for (const auto& place : held.places) {
        bytes += place.children.capacity() * sizeof(uint32_t);
    }
    NoteRatio(&state, "bytes_per_airport",
              { "bytes of the index / airports in it",
                static_cast<double>(bytes) / static_cast<double>(held.airports.size()), 0 });
}
BENCHMARK(MemoryOfTheIndex)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
