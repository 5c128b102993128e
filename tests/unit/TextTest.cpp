#include "platform/Text.h"

#include <gtest/gtest.h>

namespace {

using namespace platform;

TEST(Text, AsciiStaysAsItIs) {
    EXPECT_EQ(Utf8FromWindows1252("Seattle-Tacoma 12\n"), "Seattle-Tacoma 12\n");
    EXPECT_EQ(Windows1252FromUtf8("Seattle-Tacoma 12\n"), "Seattle-Tacoma 12\n");
    EXPECT_EQ(Utf8FromWindows1252(""), "");
}

TEST(Text, AccentedLettersAndTheEuroSign) {
    EXPECT_EQ(Utf8FromWindows1252("M\xFCnchen"), "M\xC3\xBCnchen");
    EXPECT_EQ(Windows1252FromUtf8("M\xC3\xBCnchen"), "M\xFCnchen");
    EXPECT_EQ(Utf8FromWindows1252("\x80"), "\xE2\x82\xAC");
    EXPECT_EQ(Windows1252FromUtf8("\xE2\x82\xAC"), "\x80");
    EXPECT_EQ(Utf8FromWindows1252("\x93\x94\x9F"), "\xE2\x80\x9C\xE2\x80\x9D\xC5\xB8");
}

TEST(Text, EveryByteReadsBackItself) {
    std::string all;
    for (int i = 0; i < 256; ++i) all.push_back(static_cast<char>(i));
    bool lossless = false;
    EXPECT_EQ(Windows1252FromUtf8(Utf8FromWindows1252(all), &lossless), all);
    EXPECT_TRUE(lossless);
}

TEST(Text, TheFiveOpenBytesBecomeControlsOfTheSameValue) {
    EXPECT_EQ(Utf8FromWindows1252("\x81\x8D\x8F\x90\x9D"), "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
}

TEST(Text, WhatWindows1252LacksBecomesAQuestionMark) {
    bool lossless = true;
    EXPECT_EQ(Windows1252FromUtf8("Gda\xC5\x84sk", &lossless), "Gda?sk");
    EXPECT_FALSE(lossless);
    EXPECT_EQ(Windows1252FromUtf8("\xE6\x9D\xB1\xE4\xBA\xAC", &lossless), "??");
    EXPECT_EQ(Windows1252FromUtf8("\xF0\x9F\x9B\xAB!", &lossless), "?!");
    EXPECT_FALSE(lossless);
    EXPECT_EQ(Windows1252FromUtf8("\xC2\x80", &lossless), "?");  // the control, not the euro sign
    EXPECT_FALSE(lossless);
}

TEST(Text, BrokenUtf8BecomesQuestionMarksAByteAtATime) {
    bool lossless = true;
    EXPECT_EQ(Windows1252FromUtf8("a\xFFz", &lossless), "a?z");
    EXPECT_FALSE(lossless);
    EXPECT_EQ(Windows1252FromUtf8("\x80"), "?");
    EXPECT_EQ(Windows1252FromUtf8("\xC3"), "?");
    EXPECT_EQ(Windows1252FromUtf8("\xC3("), "?(");
    EXPECT_EQ(Windows1252FromUtf8("\xC0\x80"), "??");  // overlong
    EXPECT_EQ(Windows1252FromUtf8("\xE2\x82"), "??");  // cut off
    EXPECT_EQ(Windows1252FromUtf8("\xF5\x80\x80"), "???");
}

TEST(Text, OverlongFormsAreNotRead) {
    bool lossless = true;
    Windows1252FromUtf8("\xE0\x81\x81", &lossless);  // "A" in three bytes
    EXPECT_FALSE(lossless);
    EXPECT_NE(Windows1252FromUtf8("\xE0\x81\x81"), "A");
    EXPECT_NE(Windows1252FromUtf8("\xF0\x80\x81\x81"), "A");
}

TEST(Text, UpperCasedChangesAsciiLettersAlone) {
    EXPECT_EQ(UpperCased("Tv2_eddf.bgl"), "TV2_EDDF.BGL");
    EXPECT_EQ(UpperCased("\xC3\xBC{z}"), "\xC3\xBC{Z}");
    EXPECT_EQ(UpperCased(""), "");
}

TEST(Text, CharactersAreCountedAndCutWhole) {
    EXPECT_EQ(platform::CharacterCount(""), 0u);
    EXPECT_EQ(platform::CharacterCount("a\xC3\xBC\xE6\x9D\xB1z"), 4u);
    EXPECT_EQ(platform::FirstCharacters("a\xC3\xBC\xE6\x9D\xB1z", 0), "");
    EXPECT_EQ(platform::FirstCharacters("a\xC3\xBC\xE6\x9D\xB1z", 2), "a\xC3\xBC");
    EXPECT_EQ(platform::FirstCharacters("a\xC3\xBC\xE6\x9D\xB1z", 3), "a\xC3\xBC\xE6\x9D\xB1");
    EXPECT_EQ(platform::FirstCharacters("a\xC3\xBC", 2), "a\xC3\xBC");
    EXPECT_EQ(platform::FirstCharacters("a\xC3\xBC", 9), "a\xC3\xBC");
}

TEST(Text, TrimmedTakesTheBlanksOfBothEnds) {
    EXPECT_EQ(platform::Trimmed(" \ta b\t "), "a b");
    EXPECT_EQ(platform::Trimmed(" \t"), "");
    EXPECT_EQ(platform::Trimmed(""), "");
    EXPECT_EQ(platform::Trimmed("a"), "a");
    EXPECT_EQ(platform::Trimmed("\r\n a\r", "\r\n"), " a");
}

TEST(Text, EndsWithNoCaseComparesTheEnd) {
    EXPECT_TRUE(platform::EndsWithNoCase("KSEA.BGL", ".bgl"));
    EXPECT_TRUE(platform::EndsWithNoCase("a", ""));
    EXPECT_FALSE(platform::EndsWithNoCase("bgl", ".bgl"));
    EXPECT_FALSE(platform::EndsWithNoCase("a.bgl.txt", ".bgl"));
}

TEST(Text, EqualNoCaseFoldsAsciiAlone) {
    EXPECT_TRUE(EqualNoCase("TV2_", "tv2_"));
    EXPECT_TRUE(EqualNoCase("", ""));
    EXPECT_FALSE(EqualNoCase("TV2", "TV2_"));
    EXPECT_FALSE(EqualNoCase("TV2_", "TV2"));
    EXPECT_FALSE(EqualNoCase("\xC3\xBC", "\xC3\x9C"));
    EXPECT_FALSE(EqualNoCase("@", "`"));
}

}  // namespace
