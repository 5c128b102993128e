#include "bgl/OpenAirport.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "bgl/AirportWriter.h"
#include "bgl/Cells.h"
#include "bgl/FileBuilder.h"
#include "bgl/NavaidRecords.h"
#include "bgl/RecordIds.h"
#include "bgl/SceneryStructure.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/SceneryBytes.h"
#include "fakes/TemporaryFolder.h"

namespace {

using namespace model;

class OpenAirport : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        ClearModel();
        build::Airport("KSEA");
        build::Node();
        build::Vor();
        state.country = "United States";
        SetAirportName("Seattle");
        EXPECT_EQ(bgl::WriteAirportFile(path), 1);
        EXPECT_TRUE(bgl::FindAirportInFile(path, "", &place));
    }
    void TearDown() override { ClearModel(); }

    const TemporaryFolder folder;
    const std::string path = Utf8Path(folder.path / "open.bgl");
    bgl::AirportPlace place;
};

TEST_F(OpenAirport, ReplacesWhatWasOpen) {
    build::Node();
    state.modified = true;
    state.city = "Old";
    ASSERT_TRUE(bgl::OpenAirport(place, ""));
    EXPECT_EQ(CountKind(kAirport), 1u);
    EXPECT_EQ(CountKind(kTaxiNode), 1u);
    EXPECT_EQ(CountKind(kVorDme), 1u);
    EXPECT_EQ(state.icao, "KSEA");
    EXPECT_EQ(AirportName(), "Seattle");
    EXPECT_EQ(state.country, "United States");
    EXPECT_EQ(state.city, "");
    EXPECT_TRUE(state.loaded);
    EXPECT_FALSE(state.modified);
}

TEST_F(OpenAirport, FileThatCannotBeOpenedLeavesTheModelAloneWithoutAMessage) {
    const std::string before = DescribeModel();
    place.path += ".missing";
    EXPECT_FALSE(bgl::OpenAirport(place, ""));
    EXPECT_EQ(DescribeModel(), before);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(OpenAirport, StretchWithoutAirportRecordIsRefusedAndTheModelStays) {
    const std::string before = DescribeModel();
    const bgl::AirportPlace good = place;
    place.offset += 52;
    EXPECT_FALSE(bgl::OpenAirport(place, ""));
    place.offset = 1u << 30;
    EXPECT_FALSE(bgl::OpenAirport(place, ""));
    place = good;
    place.size = 40;  // shorter than what every airport has
    EXPECT_FALSE(bgl::OpenAirport(place, ""));
    EXPECT_EQ(DescribeModel(), before);
}

TEST_F(OpenAirport, OnlyTheStretchIsRead) {
    place.size -= 20;  // the last node is cut
    ASSERT_TRUE(bgl::OpenAirport(place, ""));
    EXPECT_EQ(CountKind(kTaxiNode), 0u);
    place.size = 0xFFFFFFFF;
    ASSERT_TRUE(bgl::OpenAirport(place, ""));
    EXPECT_EQ(CountKind(kTaxiNode), 1u);
}

TEST_F(OpenAirport, AirportRecordShorterThanItsBodyIsRefused) {
    ByteList file = BuildFile();
    const size_t sizeField = static_cast<size_t>(place.offset) + 2;
    file[sizeField] = 40;
    file[sizeField + 1] = 0;
    const std::string before = DescribeModel();
    EXPECT_FALSE(bgl::OpenAirportBytes(file, ""));
    EXPECT_EQ(DescribeModel(), before);
}

TEST_F(OpenAirport, FileInMemoryWithoutAirportIsRefused) {
    const ByteList file = BuildFile();
    const std::string before = DescribeModel();
    EXPECT_FALSE(bgl::OpenAirportBytes({}, ""));
    EXPECT_FALSE(bgl::OpenAirportBytes(file, "KBFI"));
    EXPECT_EQ(DescribeModel(), before);
    EXPECT_TRUE(bgl::OpenAirportBytes(file, "ksea"));
}

TEST_F(OpenAirport, AnOrdinaryAirportWarnsOfNothing) {
    bgl::OpenWarnings warnings = { 7, "old" };
    ASSERT_TRUE(bgl::OpenAirport(place, "", &warnings));
    EXPECT_EQ(warnings.airportsInFile, 0u);
    EXPECT_EQ(warnings.doesNotFit, "");
    EXPECT_EQ(bgl::TextOf(warnings), "");
}

constexpr char kIncomplete[] =
    "Not all of this airport could be read: its file ends too early or is damaged.\n"
    "What is missing here will be missing in the file that you save.";

bgl::SectionContent AirportOf(const std::vector<ByteList>& records) {
    return { bgl::kAirportSection, bgl::kByCell, { { 1, 1, { AirportRecordWith(records) } } } };
}

bgl::SectionContent NdbsOf(const std::vector<ByteList>& records) {
    return { bgl::kNdbSection, bgl::kByCell, { { 1, 2, { Join(records) } } } };
}

const ByteList& OneNode() {
    static const ByteList record = Record(0x1A, Join({ U16(1), Zeros(12) }));
    return record;
}

bgl::SectionContent AirportsOf(const std::vector<std::string>& idents) {
    std::vector<ByteList> records;
    for (const std::string& ident : idents) records.push_back(AirportRecordWith({}, ident));
    const auto count = static_cast<uint32_t>(idents.size());
    return { bgl::kAirportSection, bgl::kByCell, { { 1, count, { Join(records) } } } };
}

// As other programs make them: a ninth cell is added to the table that our writer limits to eight.
bgl::SectionContent NdbsInNineCells() {
    bgl::SectionContent ndbs{ bgl::kNdbSection, bgl::kByCell, {} };
    for (uint32_t column = 0; column < 9; ++column) {
        SceneryObject* ndb = build::Ndb();
        SetEncodedPosition(ndb, { 0x08000000, column << 21 | 5 });
        bgl::WriteNavaid(ndb, &bgl::SubsectionOf(&ndbs, bgl::CellOf(bgl::KeyOf(ndb).position))->records);
    }
    return ndbs;
}

TEST_F(OpenAirport, AnAirportThatCannotBeSavedIsToldOnOpening) {
    const bgl::SectionContent sections[] = { AirportsOf({ "KSEA" }), NdbsInNineCells() };
    const ByteList file = bgl::AssembleFile(sections, 1);
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
    ASSERT_TRUE(bgl::FindAirportInFile(path, "", &place));
    bgl::OpenWarnings warnings;
    ASSERT_TRUE(bgl::OpenAirport(place, "", &warnings));
    EXPECT_EQ(CountKind(kNdb), 9u);
    EXPECT_EQ(bgl::TextOf(warnings),
              "This airport cannot be saved as it is.\nThe NDBs of the airport lie in 9 grid cells.\n"
              "A scenery file can hold no more than 8.");
}

TEST_F(OpenAirport, SeveralAirportsInAFileThatSaveWritesOverAreTold) {
    const bgl::SectionContent sections[] = { AirportsOf({ "KSEA", "KBFI" }) };
    const ByteList file = bgl::AssembleFile(sections, 1);
    for (const char* prefix : { "TV2_", "tv2_", "mine_" }) {
        const std::filesystem::path other =
            std::filesystem::path(path).parent_path() / (prefix + std::filesystem::path(path).filename().string());
        std::ofstream(other, std::ios::binary)
            .write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
        ASSERT_TRUE(bgl::FindAirportInFile(other.string(), "KBFI", &place));
        bgl::OpenWarnings warnings;
        EXPECT_TRUE(bgl::OpenAirport(place, "", &warnings));
        std::filesystem::remove(other);
        const bool isOwn = prefix[0] != 'm';
        EXPECT_EQ(warnings.airportsInFile, isOwn ? 2u : 0u) << prefix;
        EXPECT_EQ(bgl::TextOf(warnings).starts_with("This file holds 2 airports. \"Save\" would replace it"), isOwn);
        warnings.doesNotFit = "ERROR: Too much.";
        EXPECT_EQ(bgl::TextOf(warnings).ends_with("This airport cannot be saved as it is.\nToo much."), true);
    }
}

// What opening the first airport of such a file warns of.
std::string WarningOf(const std::string& name, const ByteList& file) {
    const TemporaryFolder folder;
    const std::filesystem::path path = folder.path / (name + "1.bgl");
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
    bgl::AirportPlace place;
    bgl::OpenWarnings warnings;
    EXPECT_TRUE(bgl::FindAirportInFile(path.string(), "", &place));
    EXPECT_TRUE(bgl::OpenAirport(place, "", &warnings));
    return bgl::TextOf(warnings);
}

std::string WarningOf(const std::string& name, std::span<const bgl::SectionContent> sections) {
    return WarningOf(name, bgl::AssembleFile(sections, 1));
}

TEST_F(OpenAirport, ALossAndARefusalAreToldInOneMessage) {
    const bgl::SectionContent sections[] = { AirportsOf({ "KSEA", "KBFI" }), NdbsInNineCells() };
    EXPECT_EQ(WarningOf("TV2_", sections),
              "This file holds 2 airports. \"Save\" would replace it by a file\nwith the open airport alone, and the "
              "others would be lost.\n\nUse \"Save As\" to write this airport to a file of its own.\n\n"
              "This airport cannot be saved as it is.\nThe NDBs of the airport lie in 9 grid cells.\n"
              "A scenery file can hold no more than 8.");
}

TEST_F(OpenAirport, SceneryThatSaveWouldLoseIsTold) {
    const bgl::SectionContent objects{ 0x25, bgl::kByCell, { { 0x80001, 1, { Zeros(20) } } } };
    const bgl::SectionContent one[] = { AirportsOf({ "KSEA" }), objects };
    EXPECT_EQ(WarningOf("TV2_", one),
              "This file holds an airport and scenery of other kinds. \"Save\" would replace it by a file\n"
              "with the open airport alone, and that scenery would be lost.\n\n"
              "Use \"Save As\" to write this airport to a file of its own.");
    const bgl::SectionContent two[] = { AirportsOf({ "KSEA", "KBFI" }), objects };
    EXPECT_EQ(WarningOf("tv2_", two),
              "This file holds 2 airports and scenery of other kinds. \"Save\" would replace it by a file\n"
              "with the open airport alone, and all the rest would be lost.\n\n"
              "Use \"Save As\" to write this airport to a file of its own.");
    EXPECT_EQ(WarningOf("mine_", two), "") << "Save asks for another file";
}

TEST_F(OpenAirport, AFileThatEndsTooEarlyIsToldOf) {
    for (int i = 0; i < 50; ++i) build::Node();
    ASSERT_EQ(bgl::WriteAirportFile(path), 1);
    ASSERT_TRUE(bgl::FindAirportInFile(path, "", &place));
    bgl::OpenWarnings warnings;
    EXPECT_TRUE(bgl::OpenAirport(place, "", &warnings));
    EXPECT_EQ(bgl::TextOf(warnings), "");
    std::filesystem::resize_file(path, place.offset + place.size - 20);
    EXPECT_TRUE(bgl::OpenAirport(place, "", &warnings));
    EXPECT_GT(CountKind(kTaxiNode), 10u) << "what was read so far stays";
    EXPECT_EQ(bgl::TextOf(warnings), kIncomplete);
    warnings.doesNotFit = "ERROR: Too much.";
    EXPECT_EQ(bgl::TextOf(warnings),
              std::string(kIncomplete) + "\n\nThis airport cannot be saved as it is.\nToo much.");
}

// What was read of such a file is sound, and nothing follows the airport whose absence could be seen.
TEST_F(OpenAirport, AFileThatEndsBetweenTwoRecordsOfItsAirportIsToldOf) {
    const bgl::SectionContent sections[] = { AirportOf({ OneNode(), OneNode() }) };
    ByteList file = bgl::AssembleFile(sections, 1);
    EXPECT_EQ(WarningOf("TV2_", file), "");
    file.resize(file.size() - OneNode().size());
    EXPECT_EQ(WarningOf("TV2_", file), kIncomplete);
    EXPECT_EQ(CountKind(kTaxiNode), 1u);
}

TEST_F(OpenAirport, WhatADamagedRecordHidesIsToldOf) {
    const ByteList damagedNode = RecordOfSize(0x1A, 0x7FFFFFFF, Join({ U16(1), Zeros(12) }));
    const bgl::SectionContent airport[] = { AirportOf({ damagedNode, OneNode() }) };
    EXPECT_EQ(WarningOf("TV2_", airport), kIncomplete);
    EXPECT_EQ(CountKind(kTaxiNode), 1u);
    for (uint32_t size : { 5u, 0x7FFFFFFFu }) {
        const ByteList damagedNdb = RecordOfSize(0x17, size, Zeros(34));
        const bgl::SectionContent navaids[] = { AirportOf({}), NdbsOf({ damagedNdb, Record(0x17, Zeros(34)) }) };
        EXPECT_EQ(WarningOf("TV2_", navaids), kIncomplete) << size;
        EXPECT_LT(CountKind(kNdb), 2u);
    }
}

TEST_F(OpenAirport, PaddingBehindTheLastRecordIsNoDamage) {
    const ByteList ndb = Record(0x17, Zeros(34));
    const bgl::SectionContent sections[] = { AirportOf({ OneNode(), Zeros(5) }), NdbsOf({ ndb, ndb, Zeros(5) }) };
    EXPECT_EQ(WarningOf("TV2_", sections), "");
    EXPECT_EQ(CountKind(kNdb), 2u);
}

TEST_F(OpenAirport, TheLastRecordMayCountPaddingThatIsNotThere) {
    for (const uint32_t padding : { 3u, 4u }) {
        const ByteList ndb = Zeros(34), last = RecordOfSize(0x17, 40 + padding, ndb);
        const bgl::SectionContent sections[] = { AirportOf({ OneNode() }), NdbsOf({ Record(0x17, ndb), last }) };
        EXPECT_EQ(WarningOf("TV2_", sections), padding == 3 ? "" : kIncomplete);
        EXPECT_EQ(CountKind(kNdb), 2u);
    }
}

TEST_F(OpenAirport, NavaidsThatAreCutOffAreToldOf) {
    const bgl::SectionContent sections[] = { AirportsOf({ "KSEA" }), NdbsInNineCells() };
    const ByteList file = bgl::AssembleFile(sections, 1);
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()) - 10);
    ASSERT_TRUE(bgl::FindAirportInFile(path, "", &place));
    bgl::OpenWarnings warnings;
    EXPECT_TRUE(bgl::OpenAirport(place, "", &warnings));
    EXPECT_EQ(CountKind(kNdb), 8u);
    EXPECT_TRUE(warnings.incomplete);
}

TEST_F(OpenAirport, WhatSaveWritesItselfIsNoLoss) {
    build::Ndb();
    build::Ils("ISEA");
    build::Append(kMarkerBeacon, sizeof(MarkerBeaconPayload));
    ASSERT_EQ(bgl::WriteAirportFile(path), 1);
    const std::filesystem::path renamed =
        std::filesystem::path(path).parent_path() / ("TV2_" + std::filesystem::path(path).filename().string());
    std::filesystem::copy_file(path, renamed);
    ASSERT_TRUE(bgl::FindAirportInFile(renamed.string(), "", &place));
    bgl::OpenWarnings warnings;
    EXPECT_TRUE(bgl::OpenAirport(place, "", &warnings));
    std::filesystem::remove(renamed);
    EXPECT_EQ(CountKind(kNdb) + CountKind(kIls) + CountKind(kMarkerBeacon) + CountKind(kVorDme), 4u);
    EXPECT_EQ(bgl::TextOf(warnings), "");
}

}  // namespace
