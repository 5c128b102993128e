// LibraryDamageTest.cpp - files and caches as they should not be: nothing stops a collection, nothing is lost.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "bgl/AirportIndex.h"
#include "bgl/LibraryScan.h"
#include "bgl/SceneryStructure.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeProgress.h"
#include "fakes/TestLibrary.h"
#include "platform/Files.h"

namespace {

using bgl::FileKind;
using bgl::library;
using bgl::ScanResult;
using Bytes = std::vector<uint8_t>;

template <class T>
void Set(Bytes* bytes, size_t offset, T value) {
    ASSERT_LE(offset + sizeof value, bytes->size());
    std::memcpy(bytes->data() + offset, &value, sizeof value);
}

// Offsets in what MakeSceneryFile gives.
constexpr size_t kSectionCount = 20, kNameSection = 76;
constexpr size_t kTypeOf = 0, kClassOf = 4, kCountOf = 8, kTableOf = 12;

constexpr size_t kNameEntrySize = 20;  // of one airport in a name list

class LibraryDamage : public testing::Test {
protected:
    LibraryDamage() {
        ResetFakes();
        fakeProgress = {};
        library = {};
    }
    ~LibraryDamage() override {
        fakeProgress = {};
        library = {};
    }

    static Bytes Sound() {
        return MakeSceneryFile({ { "KSEA", "Seattle-Tacoma Intl", "United States", "Washington", "Seattle" },
                                 { "KBFI", "Boeing", "United States", "Washington", "Seattle" } });
    }
    // What the scan of one file says; its airports are in the library then.
    ScanResult Scan(const Bytes& bytes) {
        disk.Put("A", "scan.bgl", bytes);
        library = {};
        return bgl::ScanBglHeader(bgl::FileNumberOf(disk.simulator + "\\A\\scenery\\scan.bgl"));
    }
    void Collect() { bgl::CollectAllAirports(disk.simulator, disk.program); }

    TestLibrary disk;
};

// The example of the published layout, by hand: 136 bytes of names for one airport.
TEST_F(LibraryDamage, TheNameListIsReadAsTheFormatHasIt) {
    const uint8_t head[] = { 0x27, 0,  0, 0, 0, 0,  1, 0, 1, 0,  1, 0, 1, 0,  1, 0, 1, 0,   42, 0, 0,
                             0,    47, 0, 0, 0, 65, 0, 0, 0, 80, 0, 0, 0, 92, 0, 0, 0, 116, 0,  0, 0 };
    Bytes list(std::begin(head), std::end(head));
    for (const char* text : { "", "United States", "Washington", "Seattle", "Seattle-Tacoma Intl" }) {
        list.insert(list.end(), 4, 0);
        list.insert(list.end(), text, text + std::strlen(text) + 1);
    }
    const uint8_t entry[20] = { 0, 0, 0, 0, 0, 0, 0, 0, 0x81, 0xE6, 0x62, 0x02, 0, 0, 0, 0, 61, 0, 60, 0 };
    list.insert(list.end(), entry, entry + sizeof entry);
    ASSERT_EQ(list.size(), 136u);
    Bytes file(56 + 20 + 16, 0);
    Set(&file, 0, 0x19920201u);
    Set(&file, 20, 1u);
    Set(&file, 56, 0x27u);
    Set(&file, 60, 3u);
    Set(&file, 64, 1u);
    Set(&file, 68, 76u);
    Set(&file, 72, 16u);
    Set(&file, 76, 2u);
    Set(&file, 80, 1u);
    Set(&file, 84, 92u);
    Set(&file, 88, 136u);
    file.insert(file.end(), list.begin(), list.end());
    EXPECT_EQ(Scan(file), ScanResult::AirportsFound);
    ASSERT_EQ(library.airports.size(), 1u);
    const auto& airport = library.airports[0];
    EXPECT_EQ(airport.ident, "KSEA");
    EXPECT_EQ(airport.name, "Seattle-Tacoma Intl");
    EXPECT_EQ(airport.city, "Seattle");
    EXPECT_EQ(airport.state, "Washington");
    EXPECT_EQ(airport.country, "United States");
}

TEST_F(LibraryDamage, ResultsTellWhatAFileIs) {
    EXPECT_EQ(Scan(Sound()), ScanResult::AirportsFound);
    EXPECT_EQ(library.airports.size(), 2u);
    library = {};
    EXPECT_EQ(bgl::ScanBglHeader(bgl::FileNumberOf(disk.simulator + "\\missing.bgl")), ScanResult::CannotOpen);
    EXPECT_EQ(Scan({}), ScanResult::NotScenery);
    Bytes other = Sound();
    Set(&other, 0, 0x00010001u);
    EXPECT_EQ(Scan(other), ScanResult::NotScenery);
    Bytes navaids = Sound();
    Set(&navaids, kNameSection + kClassOf, 4u);
    EXPECT_EQ(Scan(navaids), ScanResult::NoAirports);
    EXPECT_TRUE(library.airports.empty());
}

TEST_F(LibraryDamage, TheClassAloneMakesANameList) {
    Bytes bytes = Sound();
    Set(&bytes, kNameSection + kTypeOf, 0x55u);
    EXPECT_EQ(Scan(bytes), ScanResult::AirportsFound);
    EXPECT_EQ(library.airports.size(), 2u);
}

TEST_F(LibraryDamage, FilesForLaterSimulatorsHoldNoAirportsForUs) {
    Bytes summary = Sound();
    Set(&summary, 56 + kTypeOf, 0x2Cu);
    EXPECT_EQ(Scan(summary), ScanResult::NoAirports);
    for (const uint32_t later : { 5u, 6u, 7u, 0x10001u }) {
        Bytes bytes = Sound();
        Set(&bytes, 56 + kClassOf, later);
        EXPECT_EQ(Scan(bytes), ScanResult::NoAirports) << later;
        EXPECT_TRUE(library.airports.empty());
    }
}

TEST_F(LibraryDamage, AFileCutAtAnyByteIsSurvived) {
    const Bytes sound = Sound();
    for (size_t size = 0; size < sound.size(); ++size) {
        const ScanResult result = Scan(Bytes(sound.begin(), sound.begin() + static_cast<ptrdiff_t>(size)));
        EXPECT_EQ(result == ScanResult::NotScenery, size < 56) << size;
        EXPECT_LE(library.airports.size(), 2u);
    }
}

TEST_F(LibraryDamage, AnyWordOfAFileMayBeHuge) {
    const Bytes sound = Sound();
    for (size_t at = 4; at + 4 <= sound.size(); at += 2) {
        for (const uint32_t value : { 0u, 0x7FFFFFFFu, 0xFFFFFFFFu, 0xFFFFFFF0u }) {
            Bytes bytes = sound;
            Set(&bytes, at, value);
            Scan(bytes);
            EXPECT_LE(library.airports.size(), bytes.size() / kNameEntrySize) << at << ' ' << value;
        }
    }
}

TEST_F(LibraryDamage, AHugeFileWithSenselessTablesIsNotReadWhole) {
    Bytes bytes = Sound();
    Set(&bytes, kSectionCount, 0xFFFFFFFFu);
    Set(&bytes, kNameSection + kCountOf, 0xFFFFFFFFu);
    Set(&bytes, kNameSection + kTableOf, 4096u);
    disk.Put("A", "huge.bgl", bytes);
    std::filesystem::resize_file(disk.FileOf("A", "huge.bgl"), uint64_t{ 3 } << 30);  // all zeros behind the start
    disk.Put("A", "sound.bgl", Sound());
    disk.PutAreas({ "A" });
    Collect();
    EXPECT_EQ(library.airports.size(), 2u);
    EXPECT_EQ(library.report.present, 2u);
}

// Thousands of airports that all share one name without an end would fill the memory.
TEST_F(LibraryDamage, AnEndlessNameSharedByManyAirportsIsBounded) {
    constexpr uint32_t kEntries = 60000, kOffset = 4u << 20;
    Bytes bytes = Sound();
    const size_t list = bytes.size();
    bytes.resize(list + kOffset, 'x');
    bytes.resize(bytes.size() + kEntries * 20, 0);
    const uint8_t record[2] = { 0x27, 0 };
    std::memcpy(bytes.data() + list, record, 2);
    for (size_t i = 0; i < 5; ++i) {
        Set(&bytes, list + 6 + 2 * i, uint16_t{ 1 });
        Set(&bytes, list + 18 + 4 * i, 42u);
    }
    Set(&bytes, list + 16, static_cast<uint16_t>(kEntries));
    Set(&bytes, list + 38, kOffset);
    Set(&bytes, list + 42, 0u);
    for (size_t i = 0; i < kEntries; ++i) Set(&bytes, list + kOffset + 20 * i + 8, 0x0262E681u);  // the identifiers
    const size_t subsection = 56 + 2 * 20 + 16;
    Set(&bytes, subsection + 8, static_cast<uint32_t>(list));
    Set(&bytes, subsection + 12, static_cast<uint32_t>(bytes.size() - list));
    EXPECT_EQ(Scan(bytes), ScanResult::AirportsFound);
    EXPECT_LT(library.airports.size(), 100u);
}

// And so would many lists, each with its own.
TEST_F(LibraryDamage, NamesSharedInManyListsAreBoundedForTheFile) {
    constexpr uint32_t kLists = 64, kEntries = 6000, kNames = 60000, kList = 42 + 4 + kNames + 20 * kEntries;
    Bytes bytes = Sound();
    const size_t subsections = bytes.size(), lists = subsections + 16 * kLists;
    bytes.resize(lists + size_t{ kLists } * kList);
    Set(&bytes, kNameSection + kCountOf, kLists);
    Set(&bytes, kNameSection + kTableOf, static_cast<uint32_t>(subsections));
    for (uint32_t i = 0; i < kLists; ++i) {
        const size_t at = subsections + 16 * i, list = lists + size_t{ i } * kList;
        Set(&bytes, at + 8, static_cast<uint32_t>(list));
        Set(&bytes, at + 12, kList);
        Set(&bytes, list, uint16_t{ 0x27 });
        Set(&bytes, list + 14, uint16_t{ 1 });  // one name
        Set(&bytes, list + 16, static_cast<uint16_t>(kEntries));
        Set(&bytes, list + 34, 42u);
        Set(&bytes, list + 38, 46 + kNames);
        std::memset(bytes.data() + list + 46, 'x', kNames - 1);
        for (size_t k = 0; k < kEntries; ++k) Set(&bytes, list + 46 + kNames + 20 * k + 8, 0x0262E681u);
    }
    EXPECT_EQ(Scan(bytes), ScanResult::AirportsFound);
    EXPECT_GT(library.airports.size(), 1000u);
    EXPECT_LT(library.airports.size(), 1200u);
}

TEST_F(LibraryDamage, BadFilesAreMarkedAndPassedOver) {
    disk.Put("A", "a.bgl", { 1 });
    disk.Put("A", "b.bgl", {});
    Bytes cut = Sound();
    cut.resize(90);
    disk.Put("A", "c.bgl", cut);
    disk.Put("A", "d.bgl", Sound());
    std::filesystem::create_directories(disk.FileOf("A", "folder.bgl"));
    disk.PutAreas({ "A" });
    Collect();
    EXPECT_EQ(library.airports.size(), 2u);
    EXPECT_EQ(library.report.present, 4u);
    EXPECT_TRUE(fake.messages.empty());
    for (const bgl::SceneryFile& file : library.files) {
        EXPECT_EQ(file.kind, file.path.ends_with("d.bgl") ? FileKind::AddOn : FileKind::NoAirports) << file.path;
    }
    Collect();
    EXPECT_EQ(library.report.opened, 0u);
}

TEST_F(LibraryDamage, AFolderThatGoesDuringTheScanStopsNothing) {
    disk.Put("A", "a.bgl", Sound());
    disk.Put("B", "b.bgl", MakeSceneryFile({ { "BBBB", "", "", "", "" } }));
    disk.PutAreas({ "A", "B" });
    fakeProgress.onPosition = [&](int percent) {
        if (percent == 5) std::filesystem::remove_all(disk.root / "sim" / "A");
    };
    Collect();
    fakeProgress.onPosition = nullptr;
    EXPECT_EQ(library.report.cannotOpen, 1u);
    ASSERT_EQ(library.airports.size(), 1u);
    EXPECT_EQ(library.airports[0].ident, "BBBB");
    disk.Put("A", "a.bgl", Sound(), 60);
    Collect();
    EXPECT_EQ(library.airports.size(), 3u);
}

TEST_F(LibraryDamage, AFileThatChangesDuringTheScanIsExaminedByTheNext) {
    disk.Put("A", "a.bgl", MakeSceneryFile({ { "OLD1", "", "", "", "" } }));
    disk.PutAreas({ "A" });
    fakeProgress.onPosition = [&](int percent) {
        if (percent == 100) disk.Put("A", "a.bgl", MakeSceneryFile({ { "NEW1", "", "", "", "" } }), 60);
    };
    Collect();
    fakeProgress.onPosition = nullptr;
    EXPECT_EQ(library.airports.at(0).ident, "OLD1");
    Collect();
    EXPECT_EQ(library.airports.at(0).ident, "NEW1");
}

TEST_F(LibraryDamage, AFileThatIsCutDuringTheScanIsExaminedByTheNext) {
    disk.Put("A", "a.bgl", Sound());
    disk.PutAreas({ "A" });
    fakeProgress.onPosition = [&](int percent) {
        if (percent == 5) disk.Put("A", "a.bgl", Bytes(40, 0), 60);
    };
    Collect();
    fakeProgress.onPosition = nullptr;
    EXPECT_EQ(library.report.notScenery, 1u);
    EXPECT_TRUE(library.airports.empty());
    disk.Put("A", "a.bgl", Sound(), 120);
    Collect();
    EXPECT_EQ(library.airports.size(), 2u);
}

TEST_F(LibraryDamage, AFileThatMayNotBeReadIsPassedOverUntilItChanges) {
    disk.Put("A", "locked.bgl", Sound());
    disk.Put("A", "open.bgl", MakeSceneryFile({ { "OPEN", "", "", "", "" } }));
    disk.PutAreas({ "A" });
    const auto locked = disk.FileOf("A", "locked.bgl");
    {
        const std::string path = Utf8Path(locked);
        const platform::FileHandle held = platform::HoldFile(path);  // keeps readers away on Windows
        if (platform::OpenForReading(path)) std::filesystem::permissions(locked, std::filesystem::perms::none);
        if (platform::OpenForReading(path)) GTEST_SKIP() << "this user may read everything";
        Collect();
    }
    EXPECT_EQ(library.report.cannotOpen, 1u);
    ASSERT_EQ(library.airports.size(), 1u);
    EXPECT_EQ(library.airports[0].ident, "OPEN");
    EXPECT_TRUE(fake.messages.empty());
    std::error_code ignored;
    std::filesystem::permissions(locked, std::filesystem::perms::owner_all, ignored);
    disk.Put("A", "locked.bgl", Sound());  // with its old time
    Collect();
    EXPECT_EQ(library.report.opened, 0u);
    EXPECT_EQ(library.airports.size(), 1u);
    disk.Touch("A", "locked.bgl", 60);
    Collect();
    EXPECT_EQ(library.report.opened, 1u);
    EXPECT_EQ(library.airports.size(), 3u);
}

TEST_F(LibraryDamage, ACacheThatIsBlockedDuringTheScanIsReportedAndTheNextCollectionIsRight) {
    for (const char* name : { "FileList", "AirportIndex" }) {
        const auto blocked = disk.root / "program" / name;
        disk.Put("A", "a.bgl", MakeSceneryFile({ { "OLD1", "", "", "", "" } }), 10);
        disk.PutAreas({ "A" });
        Collect();
        ASSERT_TRUE(library.report.cachesKept);
        const std::string kept = disk.ReadCache(name);
        disk.Put("A", "a.bgl", MakeSceneryFile({ { "NEW1", "", "", "", "" } }), 60);
        fakeProgress.onPosition = [&](int percent) {
            if (percent != 85) return;
            std::filesystem::remove(blocked);
            std::filesystem::create_directories(blocked / "folder");
        };
        Collect();
        fakeProgress.onPosition = nullptr;
        EXPECT_FALSE(library.report.cachesKept) << name;
        ASSERT_EQ(library.airports.size(), 1u);
        EXPECT_EQ(library.airports[0].ident, "NEW1");
        std::filesystem::remove_all(blocked);
        disk.PutCache(name, kept);
        Collect();
        ASSERT_EQ(library.airports.size(), 1u) << name;
        EXPECT_EQ(library.airports[0].ident, "NEW1") << name;
        EXPECT_TRUE(library.report.cachesKept);
    }
}

// Both caches in turn cannot be written; what the other one holds must then not be taken for the library.
TEST_F(LibraryDamage, ACacheThatCouldNotBeWrittenLeavesNoFalseIndex) {
    for (const char* name : { "FileList", "AirportIndex" }) {
        const auto blocked = disk.root / "program" / name;
        disk.Put("A", "a.bgl", MakeSceneryFile({ { "OLD1", "", "", "", "" } }));
        disk.PutAreas({ "A" });
        Collect();
        const std::string kept = disk.ReadCache(name);
        std::filesystem::remove(blocked);
        std::filesystem::create_directories(blocked / "folder");
        disk.Put("A", "a.bgl", MakeSceneryFile({ { "NEW1", "", "", "", "" } }), 60);
        Collect();
        EXPECT_FALSE(library.report.cachesKept);
        std::filesystem::remove_all(blocked);
        disk.PutCache(name, kept);  // as a refused write leaves it
        Collect();
        ASSERT_EQ(library.airports.size(), 1u) << name;
        EXPECT_EQ(library.airports[0].ident, "NEW1") << name;
        EXPECT_TRUE(library.report.cachesKept);
        disk.Remove("A", "a.bgl");
        Collect();
    }
}

class DamagedCache : public LibraryDamage, public testing::WithParamInterface<const char*> {
protected:
    DamagedCache() {
        disk.Put("A", "a.bgl", Sound());
        disk.Put("A", "b.bgl", MakeSceneryFile({ { "BBBB", "Field", "", "", "" } }));
        disk.PutAreas({ "A" });
        Collect();
    }
    void ExpectRebuilt() {
        Collect();
        EXPECT_EQ(library.report.opened, 2u);
        EXPECT_EQ(library.airports.size(), 3u);
        EXPECT_TRUE(fake.messages.empty());
        Collect();
        EXPECT_EQ(library.report.opened, 0u);
        EXPECT_EQ(library.airports.size(), 3u);
    }
};

TEST_P(DamagedCache, IsRebuiltWhenItIsMissing) {
    std::filesystem::remove(disk.root / "program" / GetParam());
    ExpectRebuilt();
}

TEST_P(DamagedCache, IsRebuiltWhenItIsCut) {
    const std::string text = disk.ReadCache(GetParam());
    for (const size_t size :
         { size_t{ 0 }, size_t{ 1 }, text.size() / 2, text.rfind('\n', text.size() - 2) + 1, text.size() - 1 }) {
        disk.PutCache(GetParam(), text.substr(0, size));
        ExpectRebuilt();
    }
}

TEST_P(DamagedCache, IsRebuiltWhenItIsForeign) {
    disk.PutCache(GetParam(), std::string(100000, '\xFF'));
    ExpectRebuilt();
    disk.PutCache(GetParam(), "A|1|0|C:\\somewhere\\else.bgl\n");
    ExpectRebuilt();
}

TEST_P(DamagedCache, IsRebuiltWhenAFolderIsInItsPlaceAndSoItCannotBeKept) {
    std::filesystem::remove(disk.root / "program" / GetParam());
    std::filesystem::create_directories(disk.root / "program" / GetParam());
    for (int i = 0; i < 2; ++i) {
        Collect();
        EXPECT_EQ(library.airports.size(), 3u);
        EXPECT_FALSE(library.report.cachesKept);
    }
}

INSTANTIATE_TEST_SUITE_P(Both, DamagedCache, testing::Values("FileList", "AirportIndex"));

class SpecificFile : public LibraryDamage {
protected:
    std::string Path(const std::string& name) const { return Utf8Path(disk.FileOf("A", name)); }
    void ExpectRefused(const std::string& path, const std::string& message) {
        EXPECT_FALSE(bgl::CollectAirportsFromFile(path));
        ASSERT_EQ(fake.messages.size(), 1u);
        EXPECT_EQ(fake.messages[0].text, message);
        EXPECT_EQ(fake.messages[0].icon, platform::Icon::Exclamation);
        EXPECT_EQ(fakeProgress.closed, 1);
        EXPECT_TRUE(library.airports.empty() && library.files.empty());
    }
};

TEST_F(SpecificFile, ItsAirportsAloneAreTheLibrary) {
    disk.Put("A", "b.bgl", MakeSceneryFile({ { "BBBB", "", "", "", "" } }));
    disk.Put("A", "mine.bgl", Sound());
    disk.PutAreas({ "A" });
    Collect();
    fakeProgress = {};
    EXPECT_TRUE(bgl::CollectAirportsFromFile(Path("mine.bgl")));
    EXPECT_EQ(library.files.size(), 1u);
    EXPECT_EQ(library.files[0].kind, FileKind::AddOn);
    EXPECT_TRUE(library.files[0].present);
    EXPECT_EQ(library.airports.size(), 2u);
    EXPECT_GT(library.places.size(), 1u);
    EXPECT_EQ(fakeProgress.positions.front(), 30);
    EXPECT_EQ(fakeProgress.positions.back(), 100);
    EXPECT_EQ(fakeProgress.closed, 1);
}

TEST_F(SpecificFile, AStockNameCountsOnlyBelowAFolderNamedScenery) {
    disk.Put("A", "ap912345.BGL", Sound());
    EXPECT_TRUE(bgl::CollectAirportsFromFile(Path("ap912345.BGL")));
    EXPECT_EQ(library.files[0].kind, FileKind::Stock);
    const auto elsewhere = disk.root / "AP912345.bgl";
    std::filesystem::copy_file(disk.FileOf("A", "ap912345.BGL"), elsewhere);
    EXPECT_TRUE(bgl::CollectAirportsFromFile(Utf8Path(elsewhere)));
    EXPECT_EQ(library.files[0].kind, FileKind::AddOn);
    disk.Put("A", "AP91234.bgl", Sound());
    EXPECT_TRUE(bgl::CollectAirportsFromFile(Path("AP91234.bgl")));
    EXPECT_EQ(library.files[0].kind, FileKind::AddOn);
}

TEST_F(SpecificFile, OneThatCannotBeOpenedIsRefused) {
    ExpectRefused(Path("none.bgl"), "Unable to open file \"" + Path("none.bgl") + "\"");
}

TEST_F(SpecificFile, OneOfAnotherKindIsRefused) {
    disk.Put("A", "text.bgl", { 't', 'e', 'x', 't' });
    ExpectRefused(Path("text.bgl"), "Selected file  " + Path("text.bgl") + "  is not in recognised AFD format");
}

TEST_F(SpecificFile, OneWithoutAirportsIsRefused) {
    Bytes bytes = Sound();
    Set(&bytes, kNameSection + kClassOf, 1u);
    disk.Put("A", "objects.bgl", bytes);
    ExpectRefused(Path("objects.bgl"), "Selected file  " + Path("objects.bgl") + "  does not contain any airports");
}

}  // namespace
