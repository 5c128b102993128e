// IniTextTest.cpp - INI files by the rules of the system's profile functions.
#include "platform/IniText.h"

#include <gtest/gtest.h>

namespace {

using platform::DecodeIniText;
using platform::IniValue;
using platform::ParseIni;

std::string Decode(const std::string& bytes) {
    return DecodeIniText({ reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size() });
}

// A text with a zero byte behind each character, or before it.
std::string Wide(const std::string& text, bool bigEndian) {
    std::string wide;
    for (const char c : text) wide += bigEndian ? std::string{ '\0', c } : std::string{ c, '\0' };
    return wide;
}

TEST(IniText, SectionsAndKeysAreFoundWithoutRegardToCase) {
    const auto sections = ParseIni("[General]\r\nTitle=World\r\n[area.001]\r\nLOCAL=Scenery\\Namw\r\n");
    ASSERT_EQ(sections.size(), 2u);
    EXPECT_EQ(sections[1].name, "area.001");
    EXPECT_EQ(IniValue(sections[1], "Local"), "Scenery\\Namw");
    EXPECT_EQ(IniValue(sections[1], "Title"), "");
}

TEST(IniText, TheFirstOfEqualSectionsAndKeysCounts) {
    const auto sections = ParseIni("[A]\nx=1\nX=2\n[a]\nx=3\ny=4\n[B]\nx=5\n");
    ASSERT_EQ(sections.size(), 2u);
    EXPECT_EQ(IniValue(sections[0], "x"), "1");
    EXPECT_EQ(IniValue(sections[0], "y"), "");
    EXPECT_EQ(IniValue(sections[1], "x"), "5");
}

TEST(IniText, BlanksAroundNamesAndValuesAndOnePairOfQuotesGo) {
    const auto sections = ParseIni("  [ A ]\t\n\tx =  a b \n y = \" q \"\nz='\"w\"'\nv=\"\nu=\n");
    ASSERT_EQ(sections.size(), 1u);
    EXPECT_EQ(sections[0].name, "A");
    EXPECT_EQ(IniValue(sections[0], "x"), "a b");
    EXPECT_EQ(IniValue(sections[0], "y"), " q ");
    EXPECT_EQ(IniValue(sections[0], "z"), "\"w\"");
    EXPECT_EQ(IniValue(sections[0], "v"), "\"");
    EXPECT_EQ(IniValue(sections[0], "u"), "");
}

TEST(IniText, CommentLinesAndLinesWithoutAnEqualsSignAreSkipped) {
    const auto sections = ParseIni("x=0\n;[A]\n[A]\n;x=1\nx\nx=2;3\n[broken\nx=4\n");
    ASSERT_EQ(sections.size(), 1u);
    EXPECT_EQ(sections[0].values.size(), 2u);
    EXPECT_EQ(IniValue(sections[0], "x"), "2;3");
}

TEST(IniText, ALastLineWithoutALineEndCounts) {
    const auto sections = ParseIni("[A]\rx=1\ry=2");
    ASSERT_EQ(sections.size(), 1u);
    EXPECT_EQ(IniValue(sections[0], "y"), "2");
}

TEST(IniText, NothingGivesNothing) {
    EXPECT_TRUE(ParseIni("").empty());
    EXPECT_TRUE(ParseIni("[]").size() == 1 && ParseIni("[]")[0].name.empty());
    EXPECT_TRUE(ParseIni("[").empty());
    EXPECT_TRUE(ParseIni("]\n=\n\n").empty());
}

TEST(IniText, TextWithoutAByteOrderMarkIsInTheSystemsEncoding) {
    EXPECT_EQ(Decode("Local=Z\xFCrich \x80"), "Local=Z\xC3\xBCrich \xE2\x82\xAC");
    EXPECT_EQ(Decode(""), "");
    EXPECT_EQ(Decode("\xFF"), "\xC3\xBF");
}

TEST(IniText, Utf8IsToldByItsMark) { EXPECT_EQ(Decode("\xEF\xBB\xBFZ\xC3\xBCrich"), "Z\xC3\xBCrich"); }

TEST(IniText, Utf16IsReadInBothByteOrders) {
    EXPECT_EQ(Decode("\xFF\xFE" + Wide("[A]\r\nx=1", false)), "[A]\r\nx=1");
    EXPECT_EQ(Decode("\xFE\xFF" + Wide("[A]\r\nx=1", true)), "[A]\r\nx=1");
    EXPECT_EQ(Decode(std::string("\xFF\xFE\x42\x04\x3D\xD8\x00\xDE", 8)), "\xD1\x82\xF0\x9F\x98\x80");
}

TEST(IniText, HalfASurrogatePairAndHalfAUnitAreSurvived) {
    EXPECT_EQ(Decode(std::string("\xFF\xFE\x00\xD8\x41\x00", 6)), "\xED\xA0\x80\x41");
    EXPECT_EQ(Decode(std::string("\xFF\xFE\x41\x00\x42", 5)), "A");
    EXPECT_EQ(Decode("\xFF\xFE"), "");
}

TEST(IniText, MissingFileIsEmpty) { EXPECT_EQ(platform::ReadIniText("no such folder/no such file"), ""); }

}  // namespace
