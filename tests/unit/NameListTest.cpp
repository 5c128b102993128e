#include "bgl/NameList.h"

#include <gtest/gtest.h>

#include "bgl/OpenAirport.h"
#include "fakes/AirportFixture.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/SceneryBytes.h"

namespace {

using namespace bgl;

const NamedAirport kSeattle = { "United States",       "Washington", "Seattle",
                                "Seattle-Tacoma Intl", 0x0262E681,   { 0x07B12FA6, 0x07908B15 } };

ByteList Written(const std::vector<NamedAirport>& airports) {
    ByteWriter out;
    EXPECT_TRUE(WriteNameList(airports, &out));
    return out.bytes;
}

std::string TextOf(const NamedAirport& airport) {
    return airport.country + "|" + airport.state + "|" + airport.city + "|" + airport.name;
}

TEST(NameList, OneAirportByteForByte) {
    const ByteList counts = Join({ U16(1), U16(1), U16(1), U16(1), U16(1), U16(1) });
    const ByteList offsets = Join({ U32(42), U32(47), U32(65), U32(80), U32(92), U32(116) });
    const auto list = [](std::string_view text) { return Join({ U32(0), Text(text), Zeros(1) }); };
    EXPECT_EQ(HexOf(Written({ kSeattle })),
              HexOf(Join({ Hex("27 00 88 00 00 00"), counts, offsets, list(""), list("United States"),
                           list("Washington"), list("Seattle"), list("Seattle-Tacoma Intl"),
                           Hex("00 00 00 00 00 00 00 00 81 E6 62 02 00 00 00 00 3D 00 3C 00") })));
}

TEST(NameList, AirportsShareTheirStrings) {
    NamedAirport boeing = kSeattle;
    boeing.name = "Boeing Field";
    NamedAirport victoria = { "Canada", "British Columbia", "Victoria", "Victoria Intl", 7, {} };
    const ByteList bytes = Written({ kSeattle, boeing, victoria });
    EXPECT_EQ(HexOf(std::span(bytes).subspan(6, 12)), HexOf(Hex("01 00 02 00 02 00 02 00 03 00 03 00")));
    NameListView view;
    ASSERT_TRUE(OpenNameList(bytes, &view));
    ASSERT_EQ(view.airportCount, 3u);
    EXPECT_EQ(TextOf(NameListEntry(view, 0)), TextOf(kSeattle));
    EXPECT_EQ(TextOf(NameListEntry(view, 1)), TextOf(boeing));
    EXPECT_EQ(TextOf(NameListEntry(view, 2)), TextOf(victoria));
    EXPECT_EQ(NameListEntry(view, 2).ident, 7u);
}

TEST(NameList, MoreStringsThanTheIndexFieldsNumberAreRefused) {
    std::vector<NamedAirport> airports(256);
    for (size_t i = 0; i < airports.size(); ++i) airports[i].country = std::to_string(i);
    EXPECT_EQ(Written(airports).empty(), false);
    airports.push_back({ "one more", "", "", "", 0, {} });
    ByteWriter out;
    EXPECT_FALSE(WriteNameList(airports, &out));
    airports.assign(4097, {});
    for (size_t i = 0; i < airports.size(); ++i) airports[i].state = std::to_string(i);
    EXPECT_FALSE(WriteNameList(airports, &out));
    airports.pop_back();
    EXPECT_TRUE(out.bytes.empty());
    ASSERT_TRUE(WriteNameList(airports, &out));
    NameListView view;
    ASSERT_TRUE(OpenNameList(out.bytes, &view));
    EXPECT_EQ(NameListEntry(view, 4095).state, "4095");
}

TEST(NameList, RecordMaySayZeroAsItsSize) {
    ByteList bytes = Written({ kSeattle });
    std::fill_n(bytes.begin() + 2, 4, uint8_t{});
    NameListView view;
    ASSERT_TRUE(OpenNameList(bytes, &view));
    EXPECT_EQ(TextOf(NameListEntry(view, 0)), TextOf(kSeattle));
}

TEST(NameList, OtherRecordsAreNoNameList) {
    NameListView view;
    EXPECT_FALSE(OpenNameList({}, &view));
    EXPECT_FALSE(OpenNameList(Zeros(100), &view));
    EXPECT_FALSE(OpenNameList(Record(0x27, Zeros(35)), &view));  // one byte too few for its head
    EXPECT_TRUE(OpenNameList(Record(0x27, Zeros(36)), &view));
    EXPECT_EQ(view.airportCount, 0u);
}

TEST(NameList, IndexBeyondItsListGivesAnEmptyText) {
    ByteList bytes = Written({ kSeattle });
    bytes[116 + 1] = 1;  // country
    bytes[116 + 3] = 0xFF;
    NameListView view;
    ASSERT_TRUE(OpenNameList(bytes, &view));
    EXPECT_EQ(TextOf(NameListEntry(view, 0)), "||Seattle|Seattle-Tacoma Intl");
}

TEST(NameList, CountOfZeroGivesEmptyTexts) {
    ByteList bytes = Written({ kSeattle });
    for (size_t i = 6; i < 16; ++i) bytes[i] = 0;
    NameListView view;
    ASSERT_TRUE(OpenNameList(bytes, &view));
    EXPECT_EQ(TextOf(NameListEntry(view, 0)), "|||");
}

TEST(NameList, LowBitsOfTheStateFieldDoNotCount) {
    ByteList bytes = Written({ kSeattle });
    bytes[116 + 2] = 0x0F;
    NameListView view;
    ASSERT_TRUE(OpenNameList(bytes, &view));
    EXPECT_EQ(NameListEntry(view, 0).state, "Washington");
}

TEST(NameList, StringEndsWithTheBytesAtTheLatest) {
    ByteList bytes = Written({ kSeattle });
    for (size_t i = 96; i < bytes.size() - 20; ++i) bytes[i] = 'x';  // the name's own zero is gone
    bytes[116 + 6] = 0;
    NameListView view;
    ASSERT_TRUE(OpenNameList(bytes, &view));
    EXPECT_EQ(NameListEntry(view, 0).name, std::string(20, 'x'));
}

TEST(NameList, DamageAtEveryByteIsSurvived) {
    const ByteList whole = Written({ kSeattle });
    for (size_t at = 0; at < whole.size(); ++at) {
        for (int value : { 0x00, 0x10, 0x7F, 0xFF }) {
            ByteList bytes = whole;
            bytes[at] = static_cast<uint8_t>(value);
            NameListView view;
            if (!OpenNameList(bytes, &view)) continue;
            for (uint32_t i = 0; i < view.airportCount; ++i) ASSERT_LT(TextOf(NameListEntry(view, i)).size(), 1000u);
        }
        const ByteList cut(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(at));
        NameListView view;
        ASSERT_EQ(OpenNameList(cut, &view) ? view.airportCount : 0u, 0u) << at;
    }
}

class NamesOfAnAirport : public AirportFixture {
protected:
    void SetUp() override {
        AirportFixture::SetUp();
        model::state.country = "\xD6sterreich";  // Windows-1252
        model::state.state = "Tirol";
        model::state.city = std::string("Inns\0bruck", 10);
        model::SetAirportName("Kranebitten");
    }
};

TEST_F(NamesOfAnAirport, AreNotLostOnSaving) {
    const ByteList file = BuildFile();
    ASSERT_TRUE(OpenAirportBytes(file, "KSEA"));
    EXPECT_EQ(model::state.country, "\xD6sterreich");
    EXPECT_EQ(model::state.state, "Tirol");
    EXPECT_EQ(model::state.city, "Inns");  // a text ends at its zero
    EXPECT_EQ(model::AirportName(), "Kranebitten");
}

TEST_F(NamesOfAnAirport, SectionHoldsOneRecordOfItsTrueSize) {
    const std::vector<FoundSection> sections = SectionsOf(BuildFile());
    const FoundSection* section = SectionOf(sections, 0x27);
    ASSERT_NE(section, nullptr);
    EXPECT_EQ(section->sectionClass, 3u);
    ASSERT_EQ(section->subsections.size(), 1u);
    EXPECT_EQ(section->subsections[0].id, 2u);
    EXPECT_EQ(section->subsections[0].recordCount, 1u);
    EXPECT_EQ(RecordsIn(section->subsections[0].bytes).size(), 1u);
}

TEST_F(NamesOfAnAirport, IdentIsThatOfTheAirportRecord) {
    model::PayloadAs<model::AirportRecord>(model::state.airport).ident = 5;
    const std::vector<FoundSection> sections = SectionsOf(BuildFile());
    NameListView view;
    ASSERT_TRUE(OpenNameList(SectionOf(sections, 0x27)->subsections[0].bytes, &view));
    EXPECT_EQ(NameListEntry(view, 0).ident, 0x0262E680u | 5);
}

TEST_F(NamesOfAnAirport, SectionIsKnownByItsClassWhateverItsType) {
    ByteList file = BuildFile();
    const auto typeAt = [&](size_t section) { return &file[56 + 20 * section]; };
    ASSERT_EQ(*typeAt(1), 0x27);
    *typeAt(1) = 0x2A;
    ASSERT_TRUE(OpenAirportBytes(file, "KSEA"));
    EXPECT_EQ(model::state.state, "Tirol");
    typeAt(1)[4] = 4;  // the class
    ASSERT_TRUE(OpenAirportBytes(file, "KSEA"));
    EXPECT_EQ(model::state.state, "");
}

TEST_F(NamesOfAnAirport, EntryOfAnotherIdentGivesNoNames) {
    ByteList file = BuildFile();
    const std::vector<FoundSection> sections = SectionsOf(file);
    file[file.size() - 12] ^= 0x20;  // the lowest bit of the last entry's identifier
    ASSERT_TRUE(OpenAirportBytes(file, "KSEA"));
    EXPECT_EQ(model::state.country, "");
    EXPECT_EQ(model::state.city, "");
}

TEST_F(NamesOfAnAirport, EntryOfTheSameIdentWithOtherLowBitsGivesTheNames) {
    ByteList file = BuildFile();
    file[file.size() - 12] ^= 1;
    ASSERT_TRUE(OpenAirportBytes(file, "KSEA"));
    EXPECT_EQ(model::state.city, "Inns");
}

}  // namespace
