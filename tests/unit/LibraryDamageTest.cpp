// LibraryDamageTest.cpp - files and caches as they should not be: nothing stops a collection, nothing is lost.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "bgl/AirportIndex.h"
#include "bgl/ByteReader.h"
#include "bgl/LibraryScan.h"
#include "bgl/SceneryStructure.h"
#include "fakes/LibraryDamageFixture.h"
#include "model/Ident.h"
#include "model/Records.h"
#include "platform/Files.h"

namespace {

using namespace damage;

class LibraryDamage : public LibraryDamageFixture {};

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

constexpr size_t kTables = 96;                 // behind the entries of the two sections
constexpr size_t kRecords = kTables + 2 * 16;  // behind their tables

Bytes WithLaterSection(Bytes bytes) {
    bytes.insert(bytes.begin() + kTables, bgl::kSectionEntrySize, 0);
    Set(&bytes, kSectionCount, 3u);
    Set(&bytes, kTables + kTypeOf, 0x2Cu);
    // Two offsets of tables, and two of their records.
    for (const size_t offset : { size_t{ 68 }, size_t{ 88 }, kTables + 28, kTables + 44 }) {
        uint32_t moved = 0;
        std::memcpy(&moved, bytes.data() + offset, sizeof moved);
        Set(&bytes, offset, moved + static_cast<uint32_t>(bgl::kSectionEntrySize));
    }
    return bytes;
}

TEST_F(LibraryDamage, AnAirportForUsCountsBesideSectionsOfALaterSimulator) {
    EXPECT_EQ(Scan(WithLaterSection(Sound())), ScanResult::AirportsFound);
    EXPECT_EQ(library.airports.size(), 2u);
}

TEST_F(LibraryDamage, OfAFileForBothSimulatorsTheAirportsForUsAloneAreListed) {
    constexpr size_t kRecordSize = 52;
    Bytes bytes = Sound();
    Set(&bytes, kRecords + kRecordSize, uint16_t{ 0x3C });  // the second airport, in the later form
    EXPECT_EQ(Scan(bytes), ScanResult::AirportsFound);
    EXPECT_EQ(library.airports.size(), 2u) << "files for us alone are not asked";
    EXPECT_EQ(Scan(WithLaterSection(bytes)), ScanResult::AirportsFound);
    ASSERT_EQ(library.airports.size(), 1u);
    EXPECT_EQ(library.airports[0].ident, "KSEA");
}

TEST_F(LibraryDamage, AFileForBothSimulatorsWhoseListNamesOnlyOthersHoldsNoAirports) {
    Bytes bytes = MakeSceneryFile({ { "KSEA", "", "", "", "" } });
    const size_t ident = kRecords + bgl::kRecordHeadSize + offsetof(model::AirportRecord, ident);
    Set(&bytes, ident, model::PackIdent("KXXX") << model::kIdentShift);
    EXPECT_EQ(Scan(WithLaterSection(bytes)), ScanResult::NoAirports);
    EXPECT_TRUE(library.airports.empty());
}

TEST_F(LibraryDamage, OpeningFindsWhatOfAFileForBothSimulatorsIsListed) {
    const std::string path = Utf8Path(disk.FileOf("A", "scan.bgl"));
    EXPECT_EQ(Scan(WithLaterSection(MakeSceneryFile({ { "ABCDE", "", "", "", "" } }))), ScanResult::AirportsFound);
    ASSERT_EQ(library.airports.size(), 1u);
    bgl::AirportPlace place;
    EXPECT_TRUE(bgl::FindAirportInFile(path, library.airports[0].ident, &place));
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

}  // namespace
