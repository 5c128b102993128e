#include <gtest/gtest.h>

#include "sample/TableWords.h"

namespace {

using sample::EndFromWord;
using sample::SurfaceFromWord;

constexpr double kShort = 600, kLong = 2000;  // metres of runway

}  // namespace

TEST(SampleTableWords, FirstMaterialOfASurfaceCounts) {
    EXPECT_EQ(SurfaceFromWord("ASP", kLong), sample::kAsphalt);
    EXPECT_EQ(SurfaceFromWord("ASPH-TURF-F", kLong), sample::kAsphalt);
    EXPECT_EQ(SurfaceFromWord("Turf/Grvl", kLong), sample::kGrass);
    EXPECT_EQ(SurfaceFromWord("Grass / Sod", kLong), sample::kGrass);
    EXPECT_EQ(SurfaceFromWord("GRE", kLong), sample::kDirt);
    EXPECT_EQ(SurfaceFromWord("GRVL-G", kLong), sample::kGravel);
    EXPECT_EQ(SurfaceFromWord("CONC", kLong), sample::kConcrete);
    EXPECT_EQ(SurfaceFromWord("CORAL", kLong), sample::kCoral);
    EXPECT_EQ(SurfaceFromWord("water", kLong), sample::kWater);
    EXPECT_EQ(SurfaceFromWord("G", kLong), sample::kGrass);
}

TEST(SampleTableWords, UnknownSurfaceIsAsphaltWhenLongAndDirtWhenShort) {
    for (const char* unknown : { "", "UNK", "  ", "XUG" }) {
        EXPECT_EQ(SurfaceFromWord(unknown, kLong), sample::kAsphalt) << unknown;
        EXPECT_EQ(SurfaceFromWord(unknown, kShort), sample::kDirt) << unknown;
    }
}

TEST(SampleTableWords, CommWordsMapToTheThirteenTypes) {
    EXPECT_EQ(sample::CommTypeFromWord("ATIS"), 1);
    EXPECT_EQ(sample::CommTypeFromWord("Unic"), 3);
    EXPECT_EQ(sample::CommTypeFromWord("TWR"), 6);
    EXPECT_EQ(sample::CommTypeFromWord("A/D"), 8);
    EXPECT_EQ(sample::CommTypeFromWord("ASOS"), 13);
    EXPECT_EQ(sample::CommTypeFromWord("MISC"), 0);
    EXPECT_EQ(sample::CommTypeFromWord(""), 0);
}

TEST(SampleTableWords, RunwayEndsAreNumbersWithASuffixOrLetters) {
    const auto is = [](const char* word, int number, int designator) {
        const sample::EndNumber end = EndFromWord(word);
        EXPECT_EQ(end.number, number) << word;
        EXPECT_EQ(end.designator, designator) << word;
    };
    is("09", 9, 0);
    is("9", 9, 0);
    is("16L", 16, 1);
    is("34r", 34, 2);
    is("16C", 16, 3);
    is("18W", 18, 4);
    is("08G", 8, 0);
    is("36", 36, 0);
    is("N", 37, 0);
    is("NE", 44, 0);
    for (const char* wrong : { "", "00", "37", "160", "XX", "lower", "H1", "ALL" }) is(wrong, 0, 0);
}

TEST(SampleTableWords, OppositeEndsLieHalfATurnApart) {
    EXPECT_EQ(sample::OppositeEnd({ 16, 1 }).number, 34);
    EXPECT_EQ(sample::OppositeEnd({ 16, 1 }).designator, 2);
    EXPECT_EQ(sample::OppositeEnd({ 36, 3 }).number, 18);
    EXPECT_EQ(sample::OppositeEnd({ 36, 3 }).designator, 3);
    for (uint8_t number = 37; number <= 44; ++number) {
        const sample::EndNumber opposite = sample::OppositeEnd({ number, 0 });
        const double turn = sample::HeadingOfNumber(opposite.number) - sample::HeadingOfNumber(number);
        EXPECT_EQ(turn < 0 ? turn + 360 : turn, 180) << int{ number };
    }
    EXPECT_EQ(sample::OppositeEnd({ 0, 0 }).number, 0);
}

TEST(SampleTableWords, HelipadsAreTheLetterHWithANumber) {
    EXPECT_TRUE(sample::IsHelipadWord("H1"));
    EXPECT_TRUE(sample::IsHelipadWord("h"));
    EXPECT_FALSE(sample::IsHelipadWord("HE"));
    EXPECT_FALSE(sample::IsHelipadWord(""));
    EXPECT_FALSE(sample::IsHelipadWord("01"));
}
