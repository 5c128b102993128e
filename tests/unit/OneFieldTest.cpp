// OneFieldTest.cpp - the comparison of files in fakes/OneField.h itself.
#include "fakes/OneField.h"

#include <gtest/gtest-spi.h>

#include "model/Records.h"

namespace {

const FileParts kBefore = { { "0004#0", { 1, 2, 3, 4 } }, { "0011#0", { 5 } } };

FileParts WithByte(uint8_t byte) {
    FileParts parts = kBefore;
    parts["0004#0"][1] = byte;
    return parts;
}

TEST(OneField, AChangeInItsPlaceIsExpected) {
    ExpectOnlyThere(kBefore, kBefore, {});
    ExpectOnlyThere(kBefore, WithByte(9), { { "0004#0", 1, 1 } });
    ExpectOnlyThere(kBefore, WithByte(3), { { "0004#0", 0, 4, 0x100 } });
    FileParts without = kBefore;
    without.erase("0011#0");
    ExpectOnlyThere(kBefore, without, { Whole("0011#0") });
}

TEST(OneField, AChangeBesideItsPlaceIsReported) {
    const std::vector<Place> none, beside = { Perhaps({ "0004#0", 2, 2 }) }, otherBit = { { "0004#0", 0, 4, 0x200 } };
    const FileParts after = WithByte(9), both = WithByte(1);  // from 2 to 1 two bits change
    EXPECT_NONFATAL_FAILURE(ExpectOnlyThere(kBefore, after, none), "part 0004#0, byte 1");
    EXPECT_NONFATAL_FAILURE(ExpectOnlyThere(kBefore, after, beside), "part 0004#0, byte 1");
    EXPECT_NONFATAL_FAILURE(ExpectOnlyThere(kBefore, both, otherBit), "part 0004#0, byte 1");
    FileParts longer = kBefore;
    longer["0004#0"].push_back(5);
    EXPECT_NONFATAL_FAILURE(ExpectOnlyThere(kBefore, longer, none), "part 0004#0, byte 4");
    FileParts without = kBefore;
    without.erase("0011#0");
    EXPECT_NONFATAL_FAILURE(ExpectOnlyThere(kBefore, without, none), "part 0011#0, byte 0");
}

TEST(OneField, APlaceThatStaysIsReported) {
    const std::vector<Place> places = { { "0004#0", 1, 1 } }, twice = { { "0004#0", 1, 1 }, Whole("0011#0") };
    EXPECT_NONFATAL_FAILURE(ExpectOnlyThere(kBefore, kBefore, places), "0004#0 from 1 is as it was");
    EXPECT_NONFATAL_FAILURE(ExpectOnlyThere(kBefore, WithByte(9), twice), "0011#0 from 0 is as it was");
}

// A file of an airport with one runway and an index in two subsections.
ByteList FileOfTwoSections(const ByteList& runway, const ByteList& first, const ByteList& second) {
    const ByteList airport = AirportRecordWith({ Record(0x0004, runway) });
    const auto size = [](const ByteList& bytes) { return static_cast<uint32_t>(bytes.size()); };
    const uint32_t tables = 56 + 2 * 20, data = tables + 3 * 16, index = data + size(airport);
    return Join({ Zeros(20),
                  U32(2),
                  Zeros(32),  // head
                  U32(0x03),
                  U32(1),
                  U32(1),
                  U32(tables),
                  U32(16),  // sections
                  U32(0x28),
                  U32(1),
                  U32(2),
                  U32(tables + 16),
                  U32(32),  //
                  U32(0),
                  U32(1),
                  U32(data),
                  U32(size(airport)),  // subsections
                  U32(0),
                  U32(1),
                  U32(index),
                  U32(size(first)),  //
                  U32(1),
                  U32(1),
                  U32(index + size(first)),
                  U32(size(second)),
                  airport,
                  first,
                  second });
}

TEST(OneField, EverySubsectionOfAnIndexAndEveryRecordInsideAnotherCounts) {
    const ByteList runway =
        Join({ Zeros(sizeof(model::RunwayRecord)), Record(0x0005, { 1, 2 }), Record(0x0005, { 3 }) });
    const FileParts parts = PartsOf(FileOfTwoSections(runway, { 4, 5 }, { 6 }));
    EXPECT_EQ(parts.at("28"), (ByteList{ 4, 5, 6 }));
    EXPECT_EQ(parts.at("0004#0").size(), sizeof(model::RunwayRecord));
    EXPECT_EQ(parts.at("0004#0/0005#0"), (ByteList{ 1, 2 }));
    EXPECT_EQ(parts.at("0004#0/0005#1"), (ByteList{ 3 }));
}

}  // namespace
