// AircraftBench.cpp - listing 5,000 aircraft variations, beside the plain reading of the same files in the same run.
//
// "ratio" is the listing's time over that of the plain reading; "rows" shows the work done.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "aircraft/Variations.h"
#include "fakes/TemporaryFolder.h"
#include "platform/Files.h"
#include "Ratios.h"

namespace {

namespace fs = std::filesystem;

constexpr int kRows = 5000;

// A simulator's folder with that many aircraft, which share the 5,000 variations.
struct MadeAircraft {
    const TemporaryFolder temporary;
    const fs::path& root = temporary.path;
    explicit MadeAircraft(int folders) {
        for (int folder = 0; folder < folders; ++folder) PutFolder(folder, kRows / folders);
    }

    void PutFolder(int folder, int variations) const {
        const fs::path place = root / "Aircraft" / ("aircraft" + std::to_string(folder));
        fs::create_directories(place / "model");
        std::ofstream(place / "model" / "Model.cfg") << "[models]\r\nnormal=m\r\n";
        std::ofstream(place / "model" / "m.mdl", std::ios::binary)
            << "RIFF" << std::string(24, 'x') << '\x12' << std::string(200003, '\0');
        std::ofstream config(place / "aircraft.cfg", std::ios::binary);
        for (int i = 0; i < variations; ++i) {
            config << "[fltsim." << i << "]\r\ntitle=Aircraft " << folder << " paint " << i
                   << "\r\nmodel=\r\ntexture=" << i << "\r\natc_airline=AIRLINE " << (i * 37) % 101
                   << "\r\natc_parking_types=GATE,RAMP\r\natc_parking_codes=KLM,NWA\r\nui_manufacturer=Maker "
                   << folder % 13 << "\r\nui_type=Type " << folder << "\r\nui_variation=Paint " << (i * 71) % 997
                   << "\r\ndescription=" << std::string(300, 'd') << "\r\n\r\n";
        }
    }
};

void ReadPlainly(const std::string& folder) {
    std::vector<uint8_t> bytes;
    for (const std::string& name : platform::ListFolders(folder)) {
        platform::ReadWholeFile(folder + "/" + name + "/aircraft.cfg", 1 << 30, &bytes);
        benchmark::DoNotOptimize(bytes.data());
    }
}

void ListingVariations(benchmark::State& state) {
    const MadeAircraft made(static_cast<int>(state.range(0)));
    const std::string folder = (made.root / "Aircraft").string();
    double listing = 1e9, reading = 1e9;
    size_t rows = 0;
    for (auto _ : state) {
        reading = std::min(reading, BestSeconds(1, [&] { ReadPlainly(folder); }));
        const double seconds = BestSeconds(1, [&] {
            std::vector<aircraft::Variation> list = aircraft::ListVariations(made.root.string());
            aircraft::SortVariations(&list, {});
            rows = list.size();
        });
        listing = std::min(listing, seconds);
        state.SetIterationTime(seconds);
    }
    NoteRatio(&state, "ratio",
              { "listing 5,000 variations of " + std::to_string(state.range(0)) + " aircraft / reading the files",
                listing / reading, 0 });
    state.counters["rows"] = static_cast<double>(rows);
}
BENCHMARK(ListingVariations)->Arg(1)->Arg(50)->Arg(1000)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace
