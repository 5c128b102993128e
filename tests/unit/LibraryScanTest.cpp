// LibraryScanTest.cpp - collecting the airports of a library on the disk, again and again.
#include "bgl/LibraryScan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <numeric>

#include "bgl/AirportIndex.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeProgress.h"
#include "fakes/TestLibrary.h"

namespace {

using bgl::FileKind;
using bgl::library;

class LibraryScan : public testing::Test {
protected:
    LibraryScan() {
        ResetFakes();
        fakeProgress = {};
        library = {};
    }
    ~LibraryScan() override {
        fakeProgress = {};
        library = {};
    }

    void Collect() {
        fakeProgress.positions.clear();
        bgl::CollectAllAirports(disk.simulator, disk.program);
    }
    static TestAirport Airport(const std::string& ident) {
        return { ident, "Field " + ident, "Country", "State", "City" };
    }
    void PutAirport(const std::string& area, const std::string& name, const std::string& ident, int seconds = 0) {
        disk.Put(area, name, MakeSceneryFile({ Airport(ident) }), seconds);
    }
    static std::string NamesOf(const bgl::AirportIndexEntry& entry) {
        std::string text;
        for (const auto name : { entry.ident, entry.name, entry.country, entry.state, entry.city }) {
            text += (text.empty() ? "" : "/") + std::string(name);
        }
        return text;
    }
    // The identifiers in the index, sorted, with a blank between.
    static std::string Idents() {
        std::vector<std::string> idents;
        for (const auto& entry : library.airports) idents.emplace_back(entry.ident);
        std::sort(idents.begin(), idents.end());
        std::string text;
        for (const std::string& ident : idents) text += (text.empty() ? "" : " ") + ident;
        return text;
    }
    static const bgl::SceneryFile* FileNamed(const std::string& end) {
        for (const auto& file : library.files) {
            if (file.path.ends_with(end)) return &file;
        }
        return nullptr;
    }
    static FileKind KindOf(const std::string& end) {
        const auto* file = FileNamed(end);
        EXPECT_NE(file, nullptr) << end;
        return file ? file->kind : FileKind::NotExamined;
    }

    TestLibrary disk;
};

TEST_F(LibraryScan, EveryAreaGivesItsAirportsWithLayerKindAndNames) {
    disk.Put("Scenery\\Namw", "AP915150.bgl",
             MakeSceneryFile({ { "KSEA", "Seattle-Tacoma Intl", "United States", "Washington", "Seattle" },
                               { "KBFI", "Boeing", "United States", "Washington", "Seattle" } }));
    PutAirport("Addon", "mine.BGL", "ABCD");
    disk.PutConfig("[Area.1]\nLocal=Scenery\\Namw\nLayer=3\n[Area.2]\nLocal=Addon\nLayer=7\n");
    Collect();
    EXPECT_EQ(Idents(), "ABCD KBFI KSEA");
    EXPECT_EQ(KindOf("AP915150.bgl"), FileKind::Stock);
    EXPECT_EQ(KindOf("mine.BGL"), FileKind::AddOn);
    EXPECT_EQ(FileNamed("AP915150.bgl")->layer, 3u);
    EXPECT_EQ(FileNamed("mine.BGL")->layer, 7u);
    const auto& first = library.airports[0];
    EXPECT_EQ(NamesOf(first), "KSEA/Seattle-Tacoma Intl/United States/Washington/Seattle");
    EXPECT_EQ(library.files[first.file].path, disk.simulator + "\\Scenery\\Namw\\scenery\\AP915150.bgl");
    EXPECT_FALSE(library.places.empty());
}

TEST_F(LibraryScan, ACollectionWithNothingChangedOpensNothing) {
    PutAirport("A", "a.bgl", "AAAA");
    disk.Put("A", "text.bgl", { 'n', 'o', 't', ' ', 'b', 'g', 'l' });
    disk.Put("A", "empty.bgl", MakeSceneryFile({}));
    disk.PutAreas({ "A" });
    Collect();
    EXPECT_EQ(library.report.opened, 3u);
    EXPECT_EQ(library.report.withAirports, 2u);
    EXPECT_EQ(library.report.notScenery, 1u);
    const std::string list = disk.ReadCache("FileList"), index = disk.ReadCache("AirportIndex");
    Collect();
    EXPECT_EQ(library.report.opened, 0u);
    EXPECT_EQ(library.report.present, 3u);
    EXPECT_EQ(Idents(), "AAAA");
    EXPECT_EQ(disk.ReadCache("FileList"), list);
    EXPECT_EQ(disk.ReadCache("AirportIndex"), index);
}

TEST_F(LibraryScan, AirportsWithoutIdentifierAreNotListed) {
    disk.Put("A", "a.bgl", MakeSceneryFile({ Airport(""), Airport("AAAA") }));
    disk.PutAreas({ "A" });
    Collect();
    EXPECT_EQ(Idents(), "AAAA");
}

// That nothing is opened shows in what cannot be seen: the files are worthless by then.
TEST_F(LibraryScan, UnchangedFilesAreNotReadAgain) {
    PutAirport("A", "a.bgl", "AAAA");
    disk.PutAreas({ "A" });
    Collect();
    disk.Put("A", "a.bgl", { 0 });
    Collect();
    EXPECT_EQ(Idents(), "AAAA");
    disk.Touch("A", "a.bgl", 60);
    Collect();
    EXPECT_EQ(Idents(), "");
    EXPECT_EQ(KindOf("a.bgl"), FileKind::NoAirports);
}

TEST_F(LibraryScan, AFileThatIsOlderThanItWasIsReadAgain) {
    PutAirport("A", "a.bgl", "ANEW");
    disk.PutAreas({ "A" });
    Collect();
    PutAirport("A", "a.bgl", "AOLD", -60);
    Collect();
    EXPECT_EQ(Idents(), "AOLD");
}

TEST_F(LibraryScan, TouchedDeletedAndAddedFilesAreNoticed) {
    for (const char* name : { "a", "b", "c", "d" }) PutAirport("A", name + std::string(".bgl"), name);
    disk.PutAreas({ "A" });
    Collect();
    EXPECT_EQ(Idents(), "A B C D");
    PutAirport("A", "b.bgl", "BNEW", 60);
    disk.Remove("A", "c.bgl");
    PutAirport("A", "e.bgl", "E");
    Collect();
    EXPECT_EQ(Idents(), "A BNEW D E");
    EXPECT_EQ(library.report.opened, 2u);
    EXPECT_EQ(disk.ReadCache("FileList").find("c.bgl"), std::string::npos);
    EXPECT_EQ(disk.ReadCache("AirportIndex").find("|C|"), std::string::npos);
    Collect();
    EXPECT_EQ(Idents(), "A BNEW D E");
    EXPECT_EQ(library.report.opened, 0u);
}

TEST_F(LibraryScan, AFileWithoutAirportsIsExaminedAgainWhenItChanges) {
    disk.Put("A", "a.bgl", { 1, 2, 3 });
    disk.PutAreas({ "A" });
    Collect();
    EXPECT_EQ(KindOf("a.bgl"), FileKind::NoAirports);
    PutAirport("A", "a.bgl", "AAAA", 60);
    Collect();
    EXPECT_EQ(Idents(), "AAAA");
}

TEST_F(LibraryScan, ASavedFileIsExaminedAgainWithinTheSameTwoSeconds) {
    PutAirport("A", "TV2_AAAA.bgl", "AAAA");
    disk.PutAreas({ "A" });
    Collect();
    disk.Put("A", "TV2_AAAA.bgl", MakeSceneryFile({ { "AAAA", "Renamed", "", "", "" } }));
    bgl::NoteSavedFile(disk.simulator + "\\a\\Scenery\\TV2_AAAA.bgl");
    Collect();
    EXPECT_EQ(library.report.opened, 1u);
    EXPECT_EQ(library.airports.at(0).name, "Renamed");
    Collect();
    EXPECT_EQ(library.report.opened, 0u);
}

TEST_F(LibraryScan, AChangedLayerCountsWithoutOpeningTheFile) {
    PutAirport("A", "a.bgl", "AAAA");
    disk.PutConfig("[Area.1]\nLocal=A\nLayer=3\n");
    Collect();
    disk.PutConfig("[Area.1]\nLocal=A\nLayer=9\n");
    Collect();
    EXPECT_EQ(library.report.opened, 0u);
    EXPECT_EQ(FileNamed("a.bgl")->layer, 9u);
    EXPECT_NE(disk.ReadCache("FileList").find("A|9|"), std::string::npos);
}

TEST_F(LibraryScan, AFolderInTwoAreasIsListedOnceWithTheHigherLayer) {
    PutAirport("A", "a.bgl", "AAAA");
    disk.PutConfig("[Area.1]\nLocal=A\nLayer=9\n[Area.2]\nLocal=A\\\nLayer=3\n");
    Collect();
    EXPECT_EQ(library.files.size(), 1u);
    EXPECT_EQ(library.report.present, 1u);
    EXPECT_EQ(library.files[0].layer, 9u);
    EXPECT_EQ(Idents(), "AAAA");
}

// A rewritten cache would have a new time.
TEST_F(LibraryScan, AFolderInTwoAreasDoesNotMakeTheCachesNewEachTime) {
    for (const char* config : { "[Area.1]\nLocal=A\nLayer=3\n[Area.2]\nLocal=A\\\nLayer=9\n",
                                "[Area.1]\nLocal=A\nLayer=9\n[Area.2]\nLocal=.\\A\nLayer=3\n" }) {
        PutAirport("A", "a.bgl", "AAAA");
        disk.PutConfig(config);
        Collect();
        const auto longAgo = std::filesystem::file_time_type::clock::now() - std::chrono::hours(100);
        const auto cache = [&](const char* name) { return disk.root / "program" / name; };
        for (const char* name : { "FileList", "AirportIndex" }) std::filesystem::last_write_time(cache(name), longAgo);
        const auto before = std::filesystem::last_write_time(cache("FileList"));
        Collect();
        EXPECT_EQ(library.report.present, 1u) << config;
        EXPECT_EQ(FileNamed("a.bgl")->layer, 9u);
        EXPECT_EQ(std::filesystem::last_write_time(cache("FileList")), before) << config;
        EXPECT_EQ(std::filesystem::last_write_time(cache("AirportIndex")), before) << config;
    }
}

TEST_F(LibraryScan, CachesWithoutCheckSumsAreReadAndGetThem) {
    for (const char* ident : { "AAAA", "BBBB" }) PutAirport("A", ident + std::string(".bgl"), ident);
    disk.PutAreas({ "A" });
    Collect();
    const std::string list = disk.ReadCache("FileList"), index = disk.ReadCache("AirportIndex");
    disk.PutCache("FileList", list.substr(list.find('\n') + 1));
    Collect();
    EXPECT_EQ(library.report.opened, 0u);
    EXPECT_EQ(Idents(), "AAAA BBBB");
    EXPECT_EQ(disk.ReadCache("FileList"), list);
    disk.PutCache("FileList", list.substr(list.find('\n') + 1));
    disk.PutCache("AirportIndex", index.substr(0, index.find('\n') + 1));
    Collect();
    EXPECT_EQ(library.report.opened, 1u);
    EXPECT_EQ(Idents(), "AAAA BBBB");
}

TEST_F(LibraryScan, AnAreaWithoutItsFolderIsNoError) {
    PutAirport("A", "a.bgl", "AAAA");
    disk.PutAreas({ "Missing", "A", "Z:\\nowhere", "\\\\no.such.server\\share" });
    Collect();
    EXPECT_EQ(Idents(), "AAAA");
    EXPECT_EQ(library.report.areas, 4u);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(LibraryScan, FilesOfOtherExtensionsAndFilesBesideTheFolderAreNotSeen) {
    PutAirport("A", "a.bgl", "AAAA");
    PutAirport("A", "b.bglx", "BBBB");
    PutAirport("A", "c.bgl.bak", "CCCC");
    PutAirport("A\\deeper", "d.bgl", "DDDD");
    disk.PutAreas({ "A" });
    Collect();
    EXPECT_EQ(Idents(), "AAAA");
}

TEST_F(LibraryScan, PathsOfAnyCharactersAreFoundAndKept) {
    const std::string area =
                          "Fl\xC3\xBCgh\xC3\xA4"
                          "fen \xD0\x9F\xE6\xBC\xA2",
                      name = "\xE6\xBC\xA2 50% {a}.bgl";
    PutAirport(area, name, "AAAA");
    std::string config = "\xEF\xBB\xBF[Area.1]\r\nLocal=" + area + "\r\n";
    disk.PutConfig(config);
    Collect();
    EXPECT_EQ(Idents(), "AAAA");
    Collect();
    EXPECT_EQ(Idents(), "AAAA");
    EXPECT_EQ(library.report.opened, 0u);
}

TEST_F(LibraryScan, NamesThatWouldBreakACacheLineAreTheSameColdAndWarm) {
    disk.Put("A", "a.bgl", MakeSceneryFile({ { "AAAA", "A|B\nC", "X|", "\r\n", "|" } }));
    disk.PutAreas({ "A" });
    Collect();
    const std::string cold = NamesOf(library.airports.at(0));
    EXPECT_EQ(cold, "AAAA/A B C/X /  / ");
    Collect();
    EXPECT_EQ(NamesOf(library.airports.at(0)), cold);
    EXPECT_EQ(library.report.opened, 0u);
}

TEST_F(LibraryScan, AFileTooLongForTheCacheIsExaminedByEachCollection) {
    const std::string deep = std::string(120, 'd') + "\\" + std::string(120, 'e');
    PutAirport(deep, "long.bgl", "LONG");
    PutAirport("A", "a.bgl", "AAAA");
    disk.Put("A", "names.bgl", MakeSceneryFile({ { "NAME", std::string(240, 'n'), "Country", "", "" } }));
    disk.PutAreas({ deep, "A" });
    for (int i = 0; i < 3; ++i) {
        Collect();
        EXPECT_EQ(Idents(), "AAAA LONG NAME");
        EXPECT_EQ(library.report.opened, i == 0 ? 3u : 2u);
    }
}

TEST_F(LibraryScan, WithoutSceneryCfgThereIsNothingAndTheCachesStay) {
    PutAirport("A", "a.bgl", "AAAA");
    disk.PutAreas({ "A" });
    Collect();
    const std::string list = disk.ReadCache("FileList");
    std::filesystem::remove(disk.root / "sim" / "Scenery.cfg");
    Collect();
    EXPECT_TRUE(library.airports.empty());
    EXPECT_EQ(library.places.size(), 1u);
    EXPECT_EQ(disk.ReadCache("FileList"), list);
    bgl::CollectAllAirports("", disk.program);
    EXPECT_TRUE(library.airports.empty());
    EXPECT_EQ(disk.ReadCache("FileList"), list);
}

TEST_F(LibraryScan, CachesThatCannotBeWrittenAreReportedAndTheAirportsAreThere) {
    PutAirport("A", "a.bgl", "AAAA");
    disk.PutAreas({ "A" });
    bgl::CollectAllAirports(disk.simulator, disk.program + "\\no such folder");
    EXPECT_EQ(Idents(), "AAAA");
    EXPECT_FALSE(library.report.cachesKept);
    Collect();
    EXPECT_TRUE(library.report.cachesKept);
}

TEST_F(LibraryScan, TheBarShowsWhatIsDoneAndMovesOnlyForward) {
    for (int i = 0; i < 16; ++i) PutAirport("A", std::to_string(i) + ".bgl", std::to_string(i));
    disk.PutAreas({ "A" });
    Collect();
    EXPECT_EQ(fakeProgress.texts, std::vector<std::string>{ "Collecting Airports..." });
    EXPECT_EQ(fakeProgress.closed, 1);
    std::vector<int> expected = { 0, 5 };
    for (int i = 1; i <= 16; ++i) expected.push_back(5 + 5 * i);
    for (const int position : { 86, 88, 90, 91, 93, 95, 96, 98, 100, 100 }) expected.push_back(position);
    EXPECT_EQ(fakeProgress.positions, expected);
}

// Listing an area may take long when it is out of reach.
TEST_F(LibraryScan, TheBarMovesWithEachArea) {
    PutAirport("A", "a.bgl", "AAAA");
    disk.PutAreas({ "Missing1", "Missing2", "A", "Missing3", "Missing4" });
    Collect();
    const std::vector<int> start(fakeProgress.positions.begin(), fakeProgress.positions.begin() + 7);
    EXPECT_EQ(start, (std::vector<int>{ 0, 1, 2, 3, 4, 5, 85 }));
}

TEST_F(LibraryScan, TwoThousandFilesAreOpenedOnceAndThenNoMore) {
    std::vector<std::string> areas;
    for (int area = 0; area < 20; ++area) {
        areas.push_back("Area" + std::to_string(area));
        for (int i = 0; i < 100; ++i) {
            const int number = area * 100 + i;
            const std::string ident = std::to_string(1000 + number);
            PutAirport(areas.back(), "file" + std::to_string(i) + ".bgl", ident);
        }
    }
    disk.PutAreas(areas);
    Collect();
    EXPECT_EQ(library.report.opened, 2000u);
    EXPECT_EQ(library.airports.size(), 2000u);
    EXPECT_LE(fakeProgress.positions.size(), 120u);
    const std::string cold = Idents();
    Collect();
    EXPECT_EQ(library.report.opened, 0u);
    EXPECT_EQ(Idents(), cold);
    PutAirport("Area7", "file50.bgl", "NEW1", 60);
    disk.Remove("Area8", "file1.bgl");
    Collect();
    EXPECT_EQ(library.report.opened, 1u);
    EXPECT_EQ(library.airports.size(), 1999u);
}

}  // namespace
