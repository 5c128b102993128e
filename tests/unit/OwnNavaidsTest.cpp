// The navaids of an airport's own file: their sections, their index, and their way back.
#include <gtest/gtest.h>

#include "bgl/FileBuilder.h"
#include "bgl/Navaids.h"
#include "bgl/OpenAirport.h"
#include "bgl/RecordIds.h"
#include "fakes/AirportFixture.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/RandomAirport.h"
#include "fakes/SceneryBytes.h"

namespace {

using namespace model;

class OwnNavaids : public AirportFixture {
protected:
    static SceneryObject* Vor(std::string_view ident, uint32_t column, uint32_t region = 0) {
        SceneryObject* vor = build::Vor();
        SetEncodedPosition(vor, { 0x08000000, column << 21 | 0x1234 });
        auto& body = PayloadAs<VorRecord>(vor);
        body.type = 2;
        body.ident = PackIdent(ident) << kIdentShift | 2;
        body.region = region;
        return vor;
    }
    static SceneryObject* Ndb(std::string_view ident, uint32_t column) {
        SceneryObject* ndb = build::Ndb();
        SetEncodedPosition(ndb, { 0x08000000, column << 21 });
        PayloadAs<NdbPayload>(ndb).ident = PackIdent(ident) << kIdentShift | 3;
        return ndb;
    }
    static std::string IdentsInList() {
        std::string text;
        for (SceneryObject* o = FirstOfKind(state.head, kVorDme); o; o = NextOfKind(o, kVorDme)) {
            const auto& body = PayloadAs<VorRecord>(o);
            text += UnpackIdent(body.ident >> kIdentShift) + std::to_string(body.region) + " ";
        }
        return text;
    }
};

TEST_F(OwnNavaids, EachLiesInTheSubsectionOfItsCellInListOrder) {
    Vor("B", 9, 1);
    Vor("A", 3, 2);
    Vor("C", 3, 3);
    const std::vector<FoundSection> sections = SectionsOf(BuildFile());
    const FoundSection* section = SectionOf(sections, 0x13);
    ASSERT_NE(section, nullptr);
    ASSERT_EQ(section->subsections.size(), 2u);
    EXPECT_LT(section->subsections[0].id, section->subsections[1].id);
    EXPECT_EQ(section->subsections[0].recordCount, 2u);
    EXPECT_EQ(section->subsections[1].recordCount, 1u);
    const std::vector<FoundRecord> records = RecordsIn(section->subsections[0].bytes);
    ASSERT_EQ(records.size(), 2u);
    EXPECT_EQ(records[0].body[30], 2);
    EXPECT_EQ(records[1].body[30], 3);
}

TEST_F(OwnNavaids, IndexIsSortedByIdentifierByteForByte) {
    Vor("SEA", 61, 7);
    SceneryObject* ils = build::Ils("IAB");
    SetEncodedPosition(ils, { 0x07908B15, 0x07B12FA6 });
    Ndb("NO", 1);
    const std::vector<FoundSection> sections = SectionsOf(BuildFile());
    const FoundSection* vors = SectionOf(sections, 0x28);
    const FoundSection* ndbs = SectionOf(sections, 0x29);
    ASSERT_TRUE(vors && ndbs);
    ASSERT_EQ(vors->subsections.size(), 1u);
    EXPECT_EQ(vors->subsections[0].id, 2u);
    EXPECT_EQ(vors->subsections[0].recordCount, 2u);
    const auto word = [](std::string_view ident, uint32_t bits) { return U32(PackIdent(ident) << 5 | bits); };
    EXPECT_EQ(HexOf(vors->subsections[0].bytes),
              HexOf(Join({ word("IAB", 2), U32(0), Hex("3D 00 3C 00"), word("SEA", 2), U32(7), Hex("3D 00 40 00") })));
    EXPECT_EQ(ndbs->subsections[0].recordCount, 1u);
    EXPECT_EQ(HexOf(ndbs->subsections[0].bytes), HexOf(Join({ word("NO", 3), U32(0), Hex("01 00 40 00") })));
}

TEST_F(OwnNavaids, IndexComparesTextsNotNumbers) {
    for (const char* ident : { "B", "AAA", "A", "1", "AB" }) Vor(ident, 1);
    const std::vector<FoundSection> sections = SectionsOf(BuildFile());
    std::string order;
    const ByteList& entries = SectionOf(sections, 0x28)->subsections[0].bytes;
    for (size_t at = 0; at < entries.size(); at += 12) {
        uint32_t word = entries[at] | entries[at + 1] << 8 | entries[at + 2] << 16;
        order += UnpackIdent(word >> kIdentShift) + " ";
    }
    EXPECT_EQ(order, "1 A AAA AB B ");
}

TEST_F(OwnNavaids, EqualIdentifiersKeepTheirListOrderInTheIndex) {
    Vor("SEA", 9, 1);
    Vor("SEA", 3, 2);
    Vor("SEA", 6, 3);
    const std::vector<FoundSection> sections = SectionsOf(BuildFile());
    const ByteList& entries = SectionOf(sections, 0x28)->subsections[0].bytes;
    EXPECT_EQ(entries[4], 1);
    EXPECT_EQ(entries[16], 2);
    EXPECT_EQ(entries[28], 3);
}

TEST_F(OwnNavaids, EqualIdentifiersInSeveralCellsComeBackInTheOrderOfTheIndex) {
    Vor("SEA", 9, 1);
    Vor("SEA", 3, 2);
    Vor("ABC", 3, 3);
    Vor("SEA", 6, 4);
    Vor("SEA", 3, 5);
    const ByteList file = BuildFile();
    ASSERT_TRUE(bgl::OpenAirportBytes(file, ""));
    EXPECT_EQ(IdentsInList(), "SEA1 SEA2 ABC3 SEA4 SEA5 ");
    EXPECT_EQ(BuildFile(), file);
}

TEST_F(OwnNavaids, StockNavaidsAreNeverWritten) {
    Vor("SEA", 1)->flags |= kStock;
    Ndb("NO", 1)->flags |= kStock;
    for (const FoundSection& section : SectionsOf(BuildFile())) EXPECT_TRUE(section.type == 3 || section.type == 0x27);
}

TEST_F(OwnNavaids, ComeBackAllAndAreNotStock) {
    Vor("SEA", 1);
    build::Ils("IAB");
    build::Append(kMarkerBeacon, sizeof(MarkerBeaconPayload));
    Ndb("NO", 200);  // however far
    ASSERT_TRUE(bgl::OpenAirportBytes(BuildFile(), ""));
    for (uint32_t kind : { kIls, kVorDme, kMarkerBeacon, kNdb }) {
        ASSERT_EQ(CountKind(kind), 1u);
        EXPECT_FALSE(IsStock(FirstOfKind(state.head, kind)));
    }
}

TEST_F(OwnNavaids, HeaderNamesTheCellsOfAllSectionsOrTheirParents) {
    SetEncodedPosition(state.airport, { 0, 0 });
    const auto put = [](SceneryObject* navaid, uint32_t column) { SetEncodedPosition(navaid, { 0, column << 21 }); };
    const auto cells = [] {
        const ByteList file = BuildFile();
        return HexOf(std::span(file).subspan(24, 32));
    };
    for (uint32_t column = 1; column < 4; ++column) put(build::Vor(), column);
    for (uint32_t column = 3; column < 8; ++column) put(build::Ndb(), column);
    EXPECT_EQ(cells(), HexOf(Hex("00 00 08 00 01 00 08 00 04 00 08 00 05 00 08 00"
                                 "10 00 08 00 11 00 08 00 14 00 08 00 15 00 08 00")));
    put(build::Append(kMarkerBeacon, sizeof(MarkerBeaconPayload)), 8);  // the ninth
    EXPECT_EQ(cells(), HexOf(Hex("00 00 02 00 01 00 02 00 04 00 02 00 05 00 02 00 10 00 02 00"
                                 "00 00 00 00 00 00 00 00 00 00 00 00")));
}

TEST_F(OwnNavaids, DamagedIndexLosesNoNavaid) {
    for (int i = 0; i < 5; ++i) Vor("SEA", static_cast<uint32_t>(9 - i), static_cast<uint32_t>(i));
    const ByteList file = BuildFile();
    const std::vector<FoundSection> sections = SectionsOf(file);
    const ByteList& entries = SectionOf(sections, 0x28)->subsections[0].bytes;
    const auto place = std::search(file.begin(), file.end(), entries.begin(), entries.end()) - file.begin();
    for (size_t at = 0; at < entries.size(); ++at) {
        ByteList damaged = file;
        damaged[static_cast<size_t>(place) + at] ^= 0xFF;
        ASSERT_TRUE(bgl::OpenAirportBytes(damaged, ""));
        EXPECT_EQ(CountKind(kVorDme), 5u) << at;
    }
}

TEST_F(OwnNavaids, FileOfManyCellsIsReadInItsOwnOrder) {
    bgl::SectionContent airports{ bgl::kAirportSection, bgl::kByCell, { { 1, 1, { AirportRecordWith({}) } } } };
    bgl::SectionContent vors{ bgl::kVorSection, bgl::kByCell, {} };
    for (uint32_t i = 0; i < 3000; ++i) {
        ByteList body(34);
        body[0] = 1;
        body[30] = static_cast<uint8_t>(i);
        body[31] = static_cast<uint8_t>(i >> 8);
        vors.subsections.push_back({ i + 1, 1, { Record(0x13, body) } });
    }
    const bgl::SectionContent sections[] = { airports, vors };
    ASSERT_TRUE(bgl::OpenAirportBytes(bgl::AssembleFile(sections, 1), ""));
    EXPECT_EQ(CountKind(kVorDme), 3000u);
    EXPECT_EQ(Copied(PayloadAs<VorRecord>(state.tail).region), 2999u);
}

}  // namespace
