// OneFieldTest.cpp - the comparison of files in fakes/OneField.h itself.
#include "fakes/OneField.h"

#include <gtest/gtest-spi.h>

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

}  // namespace
