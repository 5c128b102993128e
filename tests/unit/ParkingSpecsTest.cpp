// ParkingSpecsTest.cpp - the rules of ParkingSpecs.txt and its messages.
#include "app/ParkingSpecs.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "fakes/FakePlatform.h"
#include "fakes/TemporaryFolder.h"
#include "platform/Files.h"

namespace {

using Codes = std::vector<std::string>;

class ParkingSpecs : public testing::Test {
protected:
    ParkingSpecs() { ResetFakes(); }
    ~ParkingSpecs() override { app::parkingSpecs.clear(); }

    bool Load(std::string_view text) {
        const auto* bytes = reinterpret_cast<const uint8_t*>(text.data());
        EXPECT_TRUE(platform::WriteFileWhole(folder_ + "/ParkingSpecs.txt", { bytes, text.size() }));
        return app::LoadParkingSpecs(folder_);
    }

    const TemporaryFolder temporary_;
    const std::string folder_ = Utf8Path(temporary_.path);
};

std::string MessageFor(const std::string& line, const std::string& what) {
    return "Error found in ParkingSpecs.txt file on the following line:\n\n" + line + "\n\n" + what;
}

TEST_F(ParkingSpecs, NameColourAndCodesAreReadInFileOrder) {
    EXPECT_TRUE(Load("Air India, 255,128,1, AIC, AI\r\nKLM,0,0,200,KLM\r\n"));
    ASSERT_EQ(app::parkingSpecs.size(), 2u);
    const app::ParkingSpec& spec = app::parkingSpecs[0];
    EXPECT_EQ(spec.name, "Air India");
    EXPECT_TRUE(spec.hasColour);
    EXPECT_EQ(spec.red, 255);
    EXPECT_EQ(spec.halfRed, 127);
    EXPECT_EQ(spec.green, 128);
    EXPECT_EQ(spec.halfGreen, 64);
    EXPECT_EQ(spec.blue, 1);
    EXPECT_EQ(spec.halfBlue, 0);
    EXPECT_EQ(spec.codes, (Codes{ "AIC", "AI" }));
    EXPECT_EQ(app::parkingSpecs[1].name, "KLM");
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(ParkingSpecs, FourCommasGiveNoColourAndOneCode) {
    Load("Some Air,,,,ABC");
    ASSERT_EQ(app::parkingSpecs.size(), 1u);
    EXPECT_FALSE(app::parkingSpecs[0].hasColour);
    EXPECT_EQ(app::parkingSpecs[0].codes, Codes{ "ABC" });
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(ParkingSpecs, EmptyLinesAndCommentsAreSkipped) {
    Load("; head\n\n   \t; indented\n \t \nA,1,2,3,AAA ; tail, BBB\n");
    ASSERT_EQ(app::parkingSpecs.size(), 1u);
    EXPECT_EQ(app::parkingSpecs[0].codes, Codes{ "AAA" });
}

TEST_F(ParkingSpecs, ColourAbove255CountsAs255) {
    Load("A,256,99999999999,7");
    ASSERT_EQ(app::parkingSpecs.size(), 1u);
    EXPECT_EQ(app::parkingSpecs[0].red, 255);
    EXPECT_EQ(app::parkingSpecs[0].green, 255);
    EXPECT_EQ(app::parkingSpecs[0].blue, 7);
}

TEST_F(ParkingSpecs, WhatFollowsTheDigitsOfAColourDoesNotCount) {
    Load("A,12abc,3.9,4 5");
    ASSERT_EQ(app::parkingSpecs.size(), 1u);
    EXPECT_TRUE(app::parkingSpecs[0].hasColour);
    EXPECT_EQ(app::parkingSpecs[0].red, 12);
    EXPECT_EQ(app::parkingSpecs[0].green, 3);
    EXPECT_EQ(app::parkingSpecs[0].blue, 4);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(ParkingSpecs, AColourThatBeginsWithASignIsBad) {
    Load("A,-5,2,3\nB,1,+2,3");
    ASSERT_EQ(app::parkingSpecs.size(), 2u);
    EXPECT_FALSE(app::parkingSpecs[0].hasColour);
    EXPECT_FALSE(app::parkingSpecs[1].hasColour);
    EXPECT_EQ(fake.messages.size(), 2u);
}

TEST_F(ParkingSpecs, BadColourIsReportedAndTheCodesStillRead) {
    Load("A,red,2,3,AAA\nB,1,,3,BBB");
    ASSERT_EQ(app::parkingSpecs.size(), 2u);
    EXPECT_FALSE(app::parkingSpecs[0].hasColour);
    EXPECT_EQ(app::parkingSpecs[0].codes, Codes{ "AAA" });
    EXPECT_FALSE(app::parkingSpecs[1].hasColour);
    EXPECT_EQ(app::parkingSpecs[1].codes, Codes{ "BBB" });
    ASSERT_EQ(fake.messages.size(), 2u);
    EXPECT_EQ(fake.messages[0].text,
              MessageFor("A,red,2,3,AAA",
                         "Bad syntax for the RGB colour field.\nIt should look something like \"100,255,255\"\n"
                         "or use four commas: ,,,, to omit the colour field"));
    EXPECT_EQ(fake.messages[0].icon, platform::Icon::Exclamation);
}

TEST_F(ParkingSpecs, CodeOfFiveCharactersIsReportedAndDropsTheRestOfTheLine) {
    Load("A,1,2,3,AAA,ABCDE,CCC\nB,1,2,3,BBB");
    ASSERT_EQ(app::parkingSpecs.size(), 2u);
    EXPECT_EQ(app::parkingSpecs[0].codes, Codes{ "AAA" });
    EXPECT_EQ(app::parkingSpecs[1].codes, Codes{ "BBB" });
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text,
              MessageFor("A,1,2,3,AAA,ABCDE,CCC", "The parking code \"ABCDE\" is more than 4 characters long\n"));
}

TEST_F(ParkingSpecs, MissingNameIsReportedAndGivesNoSpec) {
    Load(",1,2,3,AAA\nB,1,2,3,BBB");
    ASSERT_EQ(app::parkingSpecs.size(), 1u);
    EXPECT_EQ(app::parkingSpecs[0].name, "B");
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text,
              MessageFor(",1,2,3,AAA", "The parking spec name (e.g. \"Air India\") is missing."));
}

TEST_F(ParkingSpecs, EmptyFieldEndsTheCodes) {
    Load("A,1,2,3,AAA,,CCC");
    ASSERT_EQ(app::parkingSpecs.size(), 1u);
    EXPECT_EQ(app::parkingSpecs[0].codes, Codes{ "AAA" });
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(ParkingSpecs, MissingFileLeavesTheListEmptyWithoutAMessage) {
    app::parkingSpecs.push_back({});
    EXPECT_FALSE(app::LoadParkingSpecs(folder_ + "/nowhere"));
    EXPECT_TRUE(app::parkingSpecs.empty());
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(ParkingSpecs, NamesAreWindows1252UnlessTheFileIsMarkedAsUtf8) {
    Load("Air \xC9t\xE9,,,,AAA");
    EXPECT_EQ(app::parkingSpecs.at(0).name, "Air \xC3\x89t\xC3\xA9");
    Load(
        "\xEF\xBB\xBF"
        "Air \xC3\x89t\xC3\xA9,,,,AAA");
    EXPECT_EQ(app::parkingSpecs.at(0).name, "Air \xC3\x89t\xC3\xA9");
}

TEST_F(ParkingSpecs, AFileInUtf16IsReadInEitherByteOrder) {
    const std::string_view text = "A\xC9,,,,ABC\nB,1,2,3";  // each character's number is its byte's
    std::string low = "\xFF\xFE", high = "\xFE\xFF";
    for (const char c : text) {
        low += { c, '\0' };
        high += { '\0', c };
    }
    for (const std::string& file : { low, high }) {
        Load(file);
        ASSERT_EQ(app::parkingSpecs.size(), 2u);
        EXPECT_EQ(app::parkingSpecs[0].name, "A\xC3\x89");
        EXPECT_EQ(app::parkingSpecs[0].codes, Codes{ "ABC" });
        EXPECT_EQ(app::parkingSpecs[1].blue, 3);
    }
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(ParkingSpecs, CodesAndLinesAreMeasuredInCharacters) {
    Load("A,,,,\xC9\xC9\xC9\xC9");
    ASSERT_EQ(app::parkingSpecs.size(), 1u);
    EXPECT_EQ(app::parkingSpecs[0].codes, Codes{ "\xC3\x89\xC3\x89\xC3\x89\xC3\x89" });
    EXPECT_TRUE(fake.messages.empty());
    Load(std::string(994, '\xC9') + ",,,,AB\n" + std::string(994, 'x') + ",,,,ABC\nB");
    ASSERT_EQ(app::parkingSpecs.size(), 3u);
    EXPECT_EQ(app::parkingSpecs[0].codes, Codes{ "AB" }) << "a line of 1000 characters is whole";
    EXPECT_EQ(app::parkingSpecs[1].codes, Codes{ "AB" }) << "of 1001 the last one counts no more";
    EXPECT_EQ(app::parkingSpecs[2].name, "B");
    EXPECT_TRUE(fake.messages.empty());
}

}  // namespace
