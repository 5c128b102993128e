// Writes the seeds of fuzz/corpus: airport records, whole files and coordinates. Off unless asked for:
//
//     TARVO_FUZZ_CORPUS=fuzz/corpus unit_tests --gtest_also_run_disabled_tests --gtest_filter='FuzzSeeds.*'
//
// The same seeds come out everywhere, so a run after a change of the format shows what it changed.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/RandomAirport.h"
#include "fakes/SceneryBytes.h"

namespace {

constexpr uint64_t kSeeds = 20;

void Put(const std::filesystem::path& path, const ByteList& bytes) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

void PutAirport(const std::filesystem::path& corpus, const std::string& name) {
    const ByteList file = BuildFile();
    const std::vector<FoundSection> sections = SectionsOf(file);
    Put(corpus / "SectionWalk" / (name + ".bgl"), file);
    Put(corpus / "AirportReader" / (name + ".bin"), SectionOf(sections, 3)->subsections[0].bytes);
}

TEST(FuzzSeeds, DISABLED_AreWritten) {
    ResetFakes();
    const char* folder = std::getenv("TARVO_FUZZ_CORPUS");
    ASSERT_NE(folder, nullptr) << "TARVO_FUZZ_CORPUS names no folder";
    const std::filesystem::path corpus = folder;
    for (uint64_t seed = 0; seed < kSeeds; ++seed) {
        Random random{ seed };
        MakeRandomAirport(seed, SmallCounts(&random));
        PutAirport(corpus, "airport" + std::to_string(seed));
    }
    model::ClearModel();
    build::Airport("KSEA");
    PutAirport(corpus, "bare");
    AirportCounts everything;
    for (uint32_t* count = &everything.runways; count <= &everything.stockNavaids; ++count) *count = 2;
    MakeRandomAirport(99, everything);
    PutAirport(corpus, "everything");
    const char* const coordinates[] = {
        "N49* 15.7521'\nW123* 11.1400'",
        "N49.262533\nE7.5",
        "S0\nW0",
        "N49* 15' 45.12\"\nE179* 59' 59.99\"",
        "n51.5\ne0",
        "N89:59:59.99\nW179:59:59.99",
        "N90\nE180",
        "N 51\nE",
        "S33:56.7667\nE151:10.6333",
        "N1* 60'\nW1* 0' 60",
        "  N12* : 3 ' 4 \n W1 ",
        "N49.262533\nW123.185667",
    };
    int number = 0;
    for (const char* text : coordinates) Put(corpus / "Coordinate" / (std::to_string(number++) + ".txt"), Text(text));
    model::ClearModel();
}

}  // namespace
