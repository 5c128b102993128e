#include "bgl/SceneryStructure.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "bgl/FileBuilder.h"
#include "bgl/RecordIds.h"
#include "fakes/FakePlatform.h"
#include "fakes/SceneryBytes.h"
#include "fakes/TemporaryFolder.h"

namespace {

using namespace bgl;

TEST(SceneryStructure, StockNamesAreAp9AndFiveDigits) {
    for (const char* path : { "AP912345.bgl", "AP912345.BGL", "ap900000.Bgl",
                              "C:\\FS\\Scenery\\Namw\\scenery\\AP915150.bgl", "/sim/AP915150.bgl" }) {
        EXPECT_TRUE(IsStockFileName(path)) << path;
    }
    for (const char* path : { "", "AP9", "AP91234.bgl", "AP9123456.bgl", "AP9123A5.bgl", "AP812345.bgl", "AP912345.bg",
                              "AP912345.bgl2", "AP912345.bgl\\", "xAP912345.bgl", "AP912345.bgl/other.bgl",
                              "AP912345bgl", "AP912345_bgl", "TV2_KSEA.bgl" }) {
        EXPECT_FALSE(IsStockFileName(path)) << path;
    }
}

TEST(SceneryStructure, OwnNamesBeginWithTv2InAnyCase) {
    for (const char* path : { "TV2_KSEA.bgl", "tv2_ksea.bgl", "C:\\a\\tV2_x", "/a/Tv2_", "TV2_" })
        EXPECT_TRUE(IsOwnFileName(path)) << path;
    for (const char* path : { "", "TV2", "xTV2_KSEA.bgl", "TV2_folder\\a.bgl", "TV2-KSEA.bgl" })
        EXPECT_FALSE(IsOwnFileName(path)) << path;
}

ByteList Assembled(const std::vector<SectionContent>& sections) { return AssembleFile(sections, kTestTime); }

SubsectionContent Content(uint32_t id, const ByteList& records) { return { id, 1, { records } }; }

// Two subsections with three airports.
std::vector<SectionContent> ThreeAirports() {
    return { { kAirportSection,
               kByCell,
               { Content(0x80001, Join({ Record(0x24, Zeros(10)), AirportRecordWith({}, "KSEA") })),
                 Content(0x80002,
                         Join({ AirportRecordWith({}, "CYVR"), AirportRecordWith({ Record(1, {}) }, "S36") })) } } };
}

struct Found {
    bool found = false;
    AirportPlace place;
};

Found Find(const ByteList& bytes, std::string_view ident) {
    SceneryStructure file;
    Found result;
    result.found = ReadStructure(SourceOfBytes(bytes), &file) && FindAirport(&file, ident, &result.place);
    return result;
}

std::string IdentAt(const ByteList& bytes, const AirportPlace& place) {
    return HexOf(std::span(bytes).subspan(static_cast<size_t>(place.offset) + 40, 4));
}

TEST(SceneryStructure, AirportIsFoundByItsIdentifier) {
    const ByteList bytes = Assembled(ThreeAirports());
    for (const char* ident : { "S36", "s36" }) {
        const Found found = Find(bytes, ident);
        ASSERT_TRUE(found.found);
        EXPECT_EQ(found.place.size, 58u);
        EXPECT_EQ(found.place.offset + 58, bytes.size());
    }
    EXPECT_TRUE(Find(bytes, "CYVR").found);
    EXPECT_FALSE(Find(bytes, "CYV").found);
    EXPECT_FALSE(Find(bytes, "KBFI").found);
}

TEST(SceneryStructure, IdentifiersAreComparedOverFourCharactersButTheSameOneComesFirst) {
    const auto fileWith = [](const std::vector<std::string>& idents) {
        ByteList records;
        for (const std::string& ident : idents) records = Join({ records, AirportRecordWith({}, ident) });
        return Assembled({ { kAirportSection, kByCell, { Content(0x80001, records) } } });
    };
    const ByteList longer = fileWith({ "KBFI", "KSEAX", "KSEAY" });
    const AirportPlace first = Find(longer, "ksea").place;
    EXPECT_EQ(first.offset, Find(longer, "KSEAX").place.offset);
    EXPECT_EQ(Find(longer, "KSEAZ").place.offset, first.offset);
    EXPECT_NE(Find(longer, "KSEAY").place.offset, first.offset);
    EXPECT_FALSE(Find(longer, "KSE").found);
    EXPECT_FALSE(Find(longer, "KSEB").found);
    const ByteList both = fileWith({ "KSEAX", "KSEA" });
    EXPECT_EQ(Find(both, "KSEA").place.offset + Find(both, "KSEA").place.size, both.size());
}

TEST(SceneryStructure, WithoutIdentifierTheFirstAirportIsTaken) {
    const ByteList bytes = Assembled(ThreeAirports());
    const Found found = Find(bytes, "");
    ASSERT_TRUE(found.found);
    EXPECT_EQ(IdentAt(bytes, found.place), HexOf(U32(0x0262E681)));
}

TEST(SceneryStructure, AllAirportsAreListedInTheOrderOfTheFile) {
    const ByteList bytes = Assembled(ThreeAirports());
    SceneryStructure file;
    ASSERT_TRUE(ReadStructure(SourceOfBytes(bytes), &file));
    const std::vector<AirportPlace> places = FindAllAirports(&file);
    ASSERT_EQ(places.size(), 3u);
    for (size_t i = 0; i < 3; ++i) {
        const char* const idents[] = { "KSEA", "CYVR", "S36" };
        EXPECT_EQ(places[i].offset, Find(bytes, idents[i]).place.offset);
        EXPECT_EQ(places[i].size, Find(bytes, idents[i]).place.size);
    }
    EXPECT_TRUE(AirportsInFile("/no/such/file.bgl").empty());
}

TEST(SceneryStructure, OnlySectionsOfTypeThreeAndClassOneHoldAirports) {
    for (const auto& [type, sectionClass] :
         std::vector<std::pair<uint32_t, uint32_t>>{ { 3, 2 }, { 3, 0x10001 }, { 4, 1 } }) {
        std::vector<SectionContent> sections = ThreeAirports();
        sections[0].type = type;
        sections[0].sectionClass = sectionClass;
        EXPECT_FALSE(Find(Assembled(sections), "").found);
    }
}

TEST(SceneryStructure, OtherMagicIsNoSceneryFile) {
    ByteList bytes = Assembled(ThreeAirports());
    bytes[0] ^= 1;
    EXPECT_FALSE(Find(bytes, "").found);
    EXPECT_FALSE(Find({}, "").found);
    EXPECT_FALSE(Find(ByteList(bytes.begin(), bytes.begin() + 55), "").found);
}

TEST(SceneryStructure, RecordsBehindTheSubsectionDoNotCount) {
    std::vector<SectionContent> sections = ThreeAirports();
    ByteList bytes = Assembled(sections);
    const size_t sizeOfSecond = 56 + 20 + 16 + 12;
    bytes[sizeOfSecond] = 52;  // the first of the two airports
    EXPECT_TRUE(Find(bytes, "CYVR").found);
    EXPECT_FALSE(Find(bytes, "S36").found);
}

TEST(SceneryStructure, RecordSizeBelowSixEndsTheWalk) {
    for (uint32_t size = 0; size < 6; ++size) {
        const ByteList bytes =
            Assembled({ { kAirportSection,
                          kByCell,
                          { Content(1, Join({ RecordOfSize(9, size, {}), AirportRecordWith({}) })) } } });
        EXPECT_FALSE(Find(bytes, "").found) << size;
    }
}

TEST(SceneryStructure, CutAnywhereWhatIsFoundIsThere) {
    const ByteList whole = Assembled(ThreeAirports());
    for (size_t size = 0; size < whole.size(); ++size) {
        const ByteList cut(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(size));
        const Found found = Find(cut, "S36");
        EXPECT_TRUE(!found.found || found.place.offset + 52 <= size) << size;
        EXPECT_EQ(Find(cut, "KSEA").found, size >= 56 + 20 + 32 + 16 + 52);
    }
}

TEST(SceneryStructure, DamageAtEveryByteIsSurvived) {
    const ByteList whole = Assembled(ThreeAirports());
    for (size_t at = 0; at < whole.size(); ++at) {
        for (int value : { 0x00, 0x01, 0x7F, 0xFF }) {
            ByteList damaged = whole;
            damaged[at] = static_cast<uint8_t>(value);
            Find(damaged, "NONE");
        }
    }
}

TEST(SceneryStructure, TablesThatOverlapAreWalkedOnce) {
    // 3,000 sections, each with the whole file as its subsection table.
    ByteList bytes = Assembled({});
    const uint32_t count = 3000;
    std::copy_n(U32(count).begin(), 4, bytes.begin() + 20);
    const ByteList entry = Join({ U32(3), U32(1), U32(0xFFFFFFFF), U32(56), U32(0xFFFFFFFF) });
    for (uint32_t i = 0; i < count; ++i) bytes.insert(bytes.end(), entry.begin(), entry.end());
    SceneryStructure file;
    ASSERT_TRUE(ReadStructure(SourceOfBytes(bytes), &file));
    ASSERT_EQ(file.sections.size(), count);
    size_t subsections = 0;
    for (const SectionEntry& section : file.sections) subsections += ReadSubsections(&file, section).size();
    EXPECT_LE(subsections, bytes.size() / 16);
    EXPECT_FALSE(Find(bytes, "").found);
}

TEST(SceneryStructure, SubsectionIsCutToTheFile) {
    ByteList bytes = Assembled(ThreeAirports());
    std::fill_n(bytes.begin() + 56 + 20 + 12, 4, uint8_t{ 0xFF });
    SceneryStructure file;
    ASSERT_TRUE(ReadStructure(SourceOfBytes(bytes), &file));
    const auto subsections = ReadSubsections(&file, file.sections[0]);
    ASSERT_EQ(subsections.size(), 2u);
    EXPECT_EQ(subsections[0].offset + subsections[0].size, bytes.size());
}

TEST(SceneryStructure, AssembledFileLeavesEmptySectionsOutAndListsItsCells) {
    std::vector<SectionContent> sections = ThreeAirports();
    sections.insert(sections.begin(), SectionContent{ kVorSection, kByCell, {} });
    sections.push_back({ kVorIndexSection, kIdentIndex, { Content(kIndexSubsectionId, Zeros(12)) } });
    const ByteList bytes = Assembled(sections);
    const std::vector<FoundSection> found = SectionsOf(bytes);
    ASSERT_EQ(found.size(), 2u);
    EXPECT_EQ(found[0].type, 3u);
    EXPECT_EQ(found[1].type, 0x28u);
    EXPECT_EQ(HexOf(std::span(bytes).subspan(24, 12)), HexOf(Hex("01 00 08 00 02 00 08 00 00 00 00 00")));
}

TEST(SceneryStructure, SubsectionsStandInAscendingOrder) {
    SectionContent section;
    for (uint32_t id : { 5u, 1u, 9u, 5u }) ++SubsectionOf(&section, id)->recordCount;
    ASSERT_EQ(section.subsections.size(), 3u);
    EXPECT_EQ(section.subsections[0].id, 1u);
    EXPECT_EQ(section.subsections[1].id, 5u);
    EXPECT_EQ(section.subsections[1].recordCount, 2u);
    EXPECT_EQ(section.subsections[2].id, 9u);
}

TEST(SceneryStructure, FileOnTheDiskIsSearchedLikeOneInMemory) {
    const TemporaryFolder folder;
    const std::filesystem::path path = folder.path / "three.bgl";
    const ByteList bytes = Assembled(ThreeAirports());
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    AirportPlace place;
    EXPECT_TRUE(FindAirportInFile(path.string(), "S36", &place));
    EXPECT_EQ(place.path, path.string());
    EXPECT_EQ(place.offset, Find(bytes, "S36").place.offset);
    EXPECT_FALSE(FindAirportInFile(path.string(), "KBFI", &place));
    std::filesystem::remove(path);
    EXPECT_FALSE(FindAirportInFile(path.string(), "S36", &place));
}

TEST(SceneryStructure, AirportsAreFoundAmongManySmallRecordsAndBehindLargeOnes) {
    const ByteList small = Record(9, {});
    for (size_t before = 0; before < 5000; before += 7) {  // the heads lie everywhere in what is read ahead
        ByteList records;
        for (size_t at = 0; at + 6 <= before; at += 6) records.insert(records.end(), small.begin(), small.end());
        records = Join({ records, Record(0x24, Zeros(before)), AirportRecordWith({ Record(1, Zeros(9000)) }, "KSEA"),
                         AirportRecordWith({}, "S36") });
        const ByteList bytes = Assembled({ { kAirportSection, kByCell, { Content(0x80001, records) } } });
        const Found found = Find(bytes, "S36");
        ASSERT_TRUE(found.found) << before;
        ASSERT_EQ(found.place.offset + 52, bytes.size()) << before;
        SceneryStructure file;
        ASSERT_TRUE(ReadStructure(SourceOfBytes(bytes), &file));
        ASSERT_EQ(FindAllAirports(&file).size(), 2u) << before;
        if (before > 700) before += 130;
    }
}

}  // namespace
