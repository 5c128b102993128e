#include "model/Ident.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using namespace model;

TEST(Ident, TheLastCharacterIsTheLeastSignificantDigit) {
    EXPECT_EQ(PackIdent("0"), 2u);
    EXPECT_EQ(PackIdent("9"), 11u);
    EXPECT_EQ(PackIdent("A"), 12u);
    EXPECT_EQ(PackIdent("Z"), 37u);
    EXPECT_EQ(PackIdent("AB"), 12u * 38 + 13);
    EXPECT_EQ(PackIdent("KSEA"), ((22u * 38 + 30) * 38 + 16) * 38 + 12);
}

TEST(Ident, TheLargestIdentFitsTwentySevenBits) {
    EXPECT_EQ(PackIdent("ZZZZZ"), 79235167u);
    EXPECT_LT(PackIdent("ZZZZZ"), 1u << 27);  // room for the five low bits
}

TEST(Ident, LowerCaseCountsAsUpperCase) { EXPECT_EQ(PackIdent("ksea"), PackIdent("KSEA")); }

TEST(Ident, ABlankAndAnyOtherCharacterCountOne) {
    EXPECT_EQ(PackIdent(" "), 1u);
    EXPECT_EQ(PackIdent("-"), 1u);
    EXPECT_EQ(PackIdent("\xE9"), 1u);
    EXPECT_EQ(PackIdent("A-B"), PackIdent("A B"));
}

TEST(Ident, AtMostFiveCharactersCount) {
    EXPECT_EQ(PackIdent("ABCDEF"), PackIdent("BCDEF")) << "packed from the last character backwards";
    EXPECT_EQ(UnpackIdent(UINT32_MAX).size(), 5u);
}

TEST(Ident, TheEmptyTextIsZeroBothWays) {
    EXPECT_EQ(PackIdent(""), 0u);
    EXPECT_EQ(UnpackIdent(0), "");
}

TEST(Ident, ZeroEndsTheText) {
    EXPECT_EQ(UnpackIdent(12 + 38 * 38 * 13), "A");  // a zero digit in the middle
    EXPECT_EQ(UnpackIdent(38), "");                  // a zero digit at the end
}

TEST(Ident, UnpackingGivesUpperCaseTextBack) {
    for (const char* text : { "KSEA", "EDDF", "0S9", "A", "ZZZZZ", "00000", "A B", " " })
        EXPECT_EQ(UnpackIdent(PackIdent(text)), text);
    EXPECT_EQ(UnpackIdent(PackIdent("iFoo1")), "IFOO1");
}

TEST(Ident, EveryIdentOfDigitsLettersAndBlanksReadsBack) {
    constexpr char kCharacters[] = " 0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    std::mt19937 random(11);
    for (int i = 0; i < 5000; ++i) {
        std::string text(1 + random() % 5, ' ');
        for (char& c : text) c = kCharacters[random() % 37];
        ASSERT_EQ(UnpackIdent(PackIdent(text)), text);
    }
}

TEST(Ident, ARegionWordNamesAnAirportInItsUpperTwentyOneBits) {
    const uint32_t ksea = PackIdent("KSEA") << kIdentShift | 1, kbfi = PackIdent("KBFI") << kIdentShift | 1;
    const uint32_t word = RegionWordWithAirport(0x123, ksea);
    EXPECT_EQ(word, PackIdent("KSEA") << 11 | 0x123);
    EXPECT_EQ(RegionWordWithAirport(word, kbfi), PackIdent("KBFI") << 11 | 0x123) << "the region stays";
    EXPECT_TRUE(RegionWordNamesAirport(word, ksea));
    EXPECT_TRUE(RegionWordNamesAirport(word, ksea ^ 1)) << "the low bits tell the kind of object";
    EXPECT_FALSE(RegionWordNamesAirport(word, kbfi));
    EXPECT_FALSE(RegionWordNamesAirport(0x123, ksea));
    EXPECT_TRUE(RegionWordNamesAirport(0x123, 1));
}

TEST(Ident, OfFiveCharactersARegionWordKeepsTheLowBits) {
    const uint32_t airport = PackIdent("ZZZZZ") << kIdentShift | 1;
    ASSERT_GT(PackIdent("ZZZZZ"), 0x1FFFFFu);
    const uint32_t word = RegionWordWithAirport(0x456, airport);
    EXPECT_EQ(word >> 11, PackIdent("ZZZZZ") & 0x1FFFFF);
    EXPECT_EQ(word & 0x7FF, 0x456u);
    EXPECT_TRUE(RegionWordNamesAirport(word, airport));
    EXPECT_FALSE(RegionWordNamesAirport(word, PackIdent("ZZZZY") << kIdentShift | 1));
}

}  // namespace
