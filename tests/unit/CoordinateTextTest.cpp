#include "model/CoordinateText.h"

#include <gtest/gtest.h>

#include <cmath>

#include "app/Settings.h"
#include "fakes/FakePlatform.h"

namespace {

using namespace model;
using platform::Buttons;
using platform::Icon;

constexpr double kDegree = kRadiansPerDegree;

class CoordinateText : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        app::settings = {};
    }
    void TearDown() override { app::settings = {}; }

    // Position in degrees north and WEST.
    static CoordinateTexts Format(int format, double north, double west) {
        app::settings.latLongFormat = format;
        return FormatLatLon({ north * kDegree, west * kDegree });
    }

    ParseResult Parse(const std::string& latitude, const std::string& longitude) {
        return ParseLatLon({ latitude, longitude }, { "shown", "shown" }, &position, &badField);
    }
    double North() const { return position.lat / kDegree; }
    double West() const { return position.lon / kDegree; }

    // Refused, with that one message, that field to correct, and the position as it was.
    void ExpectRefused(const std::string& latitude, const std::string& longitude, CoordinateField field,
                       const std::string& message) {
        fake.messages.clear();
        position = { 1, 2 };
        EXPECT_EQ(Parse(latitude, longitude), ParseResult::Error) << latitude << ' ' << longitude;
        EXPECT_EQ(badField, field);
        ASSERT_EQ(fake.messages.size(), 1u);
        EXPECT_EQ(fake.messages[0].text, message);
        EXPECT_EQ(fake.messages[0].icon, Icon::Exclamation);
        EXPECT_EQ(fake.messages[0].buttons, field == CoordinateField::Latitude ? Buttons::OkCancel : Buttons::Ok);
        EXPECT_EQ(position.lat, 1);
        EXPECT_EQ(position.lon, 2);
    }

    LatLon position;
    CoordinateField badField = CoordinateField::None;
};

constexpr const char* kBadLatitude = "ERROR: The latitude format is bad.\nIt should look something like N51* 31.421'";
constexpr const char* kLatitudeDegrees = "ERROR: Latitude cannot be more than 90 degrees";
constexpr const char* kLatitudeMinutes = "ERROR: Latitude minutes and sconds must be less than 60.0";
constexpr const char* kBadLongitude = "ERROR: The Longitude format is bad.\nIt should look something like W75* 20.425'";
constexpr const char* kLongitudeDegrees = "ERROR: Longitude cannot be more than 180 degrees";
constexpr const char* kLongitudeMinutes = "ERROR: Longitude minutes and seconds must be less than 60.0";

TEST_F(CoordinateText, FiveFormatsOfOnePosition) {
    const double north = 49.262533, west = 123.5;
    EXPECT_EQ(Format(1, north, west).latitude, "N49.262533");
    EXPECT_EQ(Format(2, north, west).latitude, "N49* 15.7520'");
    EXPECT_EQ(Format(3, north, west).latitude, "N49* 15' 45.12\"");
    EXPECT_EQ(Format(4, north, west).latitude, "N49:15.7520");
    EXPECT_EQ(Format(5, north, west).latitude, "N49:15:45.12");
    EXPECT_EQ(Format(1, north, west).longitude, "W123.500000");
    EXPECT_EQ(Format(2, north, west).longitude, "W123* 30.0000'");
    EXPECT_EQ(Format(3, north, west).longitude, "W123* 30' 00.00\"");
    EXPECT_EQ(Format(4, north, west).longitude, "W123:30.0000");
    EXPECT_EQ(Format(5, north, west).longitude, "W123:30:00.00");
}

TEST_F(CoordinateText, AnyOtherSettingShowsAsFormatFive) {
    for (const int format : { 0, 6, -1, 99 }) EXPECT_EQ(Format(format, 1.5, 2.25).latitude, "N1:30:00.00");
}

TEST_F(CoordinateText, HemisphereLettersFollowTheSign) {
    EXPECT_EQ(Format(1, -1, -2).latitude, "S1.000000");
    EXPECT_EQ(Format(1, -1, -2).longitude, "E2.000000");
    EXPECT_EQ(Format(1, 0, 0).latitude, "N0.000000");
    EXPECT_EQ(Format(1, 0, 0).longitude, "W0.000000");
}

TEST_F(CoordinateText, PlacesBeyondThe180thMeridianAreShownOnItsOtherSideAndReadBack) {
    EXPECT_EQ(Format(5, 0, 180.5).longitude, "E179:30:00.00");
    EXPECT_EQ(Format(5, 0, -180.25).longitude, "W179:45:00.00");
    EXPECT_EQ(Format(5, 0, 180).longitude, "W180:00:00.00");
    EXPECT_EQ(Format(5, 0, -180).longitude, "E180:00:00.00");
    for (const double west : { 180.5, -180.5 }) {
        const CoordinateTexts texts = Format(1, 47, west);
        ASSERT_EQ(Parse(texts.latitude, texts.longitude), ParseResult::Changed) << texts.longitude;
        EXPECT_NEAR(West(), west > 0 ? west - 360 : west + 360, 1e-6);
    }
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(CoordinateText, MinutesAndSecondsArePaddedWithZeros) {
    EXPECT_EQ(Format(2, 5 + 2.5 / 60, 0).latitude, "N5* 02.5000'");
    EXPECT_EQ(Format(5, 5 + 2.0 / 60 + 3.25 / 3600, 0).latitude, "N5:02:03.25");
    EXPECT_EQ(Format(4, -(5 + 2.5 / 60), 0).latitude, "S5:02.5000");
}

TEST_F(CoordinateText, MinutesNeverPrintAsSixty) {
    EXPECT_EQ(Format(4, 12.99999999999, 12.99999999999).latitude, "N12:59.9999");
    EXPECT_EQ(Format(2, 12.99999999999, 12.99999999999).longitude, "W12* 59.9999'");
}

TEST_F(CoordinateText, SecondsNeverPrintAsSixty) {
    EXPECT_EQ(Format(5, 12.99999999999, 0).latitude, "N12:59:59.99");
    EXPECT_EQ(Format(3, 12.99999999999, 0).latitude, "N12* 59' 59.99\"");
    EXPECT_EQ(Format(5, -(12 + 29.9999999 / 60), 0).latitude, "S12:29:59.99");
}

TEST_F(CoordinateText, EveryFormatReadsBackToWhatItShows) {
    const double tolerance[] = { 1e-6, 2e-6, 3e-6, 2e-6, 3e-6 };
    for (int format = 1; format <= 5; ++format) {
        for (const double north : { 49.262533, -0.5, 89.99, 0.0, -33.946111 }) {
            for (const double west : { 123.456789, -151.177222, 179.99, 0.001 }) {
                const CoordinateTexts texts = Format(format, north, west);
                ASSERT_EQ(Parse(texts.latitude, texts.longitude), ParseResult::Changed)
                    << texts.latitude << ' ' << texts.longitude;
                EXPECT_NEAR(North(), north, tolerance[format - 1]);
                EXPECT_NEAR(West(), west, tolerance[format - 1]);
            }
        }
    }
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(CoordinateText, BothTextsAsShownMeanUnchanged) {
    const CoordinateTexts shown = { "N49* 15.7521'", "W123* 30.0000'" };
    position = { 3, 4 };
    EXPECT_EQ(ParseLatLon(shown, shown, &position, &badField), ParseResult::Unchanged);
    EXPECT_EQ(position.lat, 3);
    EXPECT_EQ(position.lon, 4);
    EXPECT_EQ(badField, CoordinateField::None);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(CoordinateText, EvenNonsenseIsUnchangedWhenItIsWhatWasShown) {
    EXPECT_EQ(ParseLatLon({ "?", "!" }, { "?", "!" }, &position, &badField), ParseResult::Unchanged);
}

TEST_F(CoordinateText, ATextAsShownLeavesItsCoordinateAloneAndIsNotJudged) {
    const CoordinateTexts shown = { "N90.000000", "W180.000000" };
    position = { 0.5, 1.5 };
    EXPECT_EQ(ParseLatLon({ "N90.000000", "W20.5" }, shown, &position, &badField), ParseResult::Changed);
    EXPECT_EQ(position.lat, 0.5);
    EXPECT_NEAR(West(), 20.5, 1e-12);
    position = { 0.5, 1.5 };
    EXPECT_EQ(ParseLatLon({ "N10.0", "W180.000000" }, shown, &position, &badField), ParseResult::Changed);
    EXPECT_NEAR(North(), 10, 1e-12);
    EXPECT_EQ(position.lon, 1.5);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(CoordinateText, WhereNothingWasShownBothTextsMustBeEntered) {
    EXPECT_EQ(ParseLatLon({ "N10", "" }, {}, &position, &badField), ParseResult::Error);
    EXPECT_EQ(badField, CoordinateField::Longitude);
    EXPECT_EQ(ParseLatLon({ "", "W20" }, {}, &position, &badField), ParseResult::Error);
    EXPECT_EQ(badField, CoordinateField::Latitude);
    EXPECT_EQ(fake.messages.size(), 2u);
}

TEST_F(CoordinateText, LettersGiveTheSignAndMayBeLowerCase) {
    ASSERT_EQ(Parse("n51.5", "e7.25"), ParseResult::Changed);
    EXPECT_NEAR(North(), 51.5, 1e-12);
    EXPECT_NEAR(West(), -7.25, 1e-12);
    ASSERT_EQ(Parse("s51.5", "w7.25"), ParseResult::Changed);
    EXPECT_NEAR(North(), -51.5, 1e-12);
    EXPECT_NEAR(West(), 7.25, 1e-12);
}

TEST_F(CoordinateText, LeadingBlanksAreSkipped) {
    ASSERT_EQ(Parse("   N1", "  W2"), ParseResult::Changed);
    EXPECT_NEAR(North(), 1, 1e-12);
}

TEST_F(CoordinateText, MissingMinutesAndSecondsAreZero) {
    ASSERT_EQ(Parse("N51", "W0* 30"), ParseResult::Changed);
    EXPECT_NEAR(North(), 51, 1e-12);
    EXPECT_NEAR(West(), 0.5, 1e-12);
}

TEST_F(CoordinateText, SeparatorsMayRepeat) {
    ASSERT_EQ(Parse("N51** : 30 ' ' : 36", "W1 ::*2 '3"), ParseResult::Changed);
    EXPECT_NEAR(North(), 51.51, 1e-12);
    EXPECT_NEAR(West(), 1 + 2.0 / 60 + 3.0 / 3600, 1e-12);
}

TEST_F(CoordinateText, BlanksAndMarksMayFollowTheLastNumber) {
    ASSERT_EQ(Parse("N51:30:36 \"' ", "W1*'\" :"), ParseResult::Changed);
    EXPECT_NEAR(North(), 51.51, 1e-12);
    EXPECT_NEAR(West(), 1, 1e-12);
}

TEST_F(CoordinateText, AnythingElseBehindTheLastNumberIsABadFormat) {
    for (const char* text : { "N47 abc", "N47* 30,5'", "N51:-30", "N51:30:36 north", "N51:30:36:1", "N51 30 36\t",
                              "N51\xC2\xB0 30'", "N51e1" })
        ExpectRefused(text, "W1", CoordinateField::Latitude, kBadLatitude);
    for (const char* text : { "W1\" and so on", "W1,5", "W1* 30' N" })
        ExpectRefused("N1", text, CoordinateField::Longitude, kBadLongitude);
    ExpectRefused("N91 abc", "W1", CoordinateField::Latitude, kLatitudeDegrees);  // what comes first is judged first
}

TEST_F(CoordinateText, OnlyThirtyCharactersAreRead) {
    ASSERT_EQ(Parse("N1.0000000000000000000000000009:30", "W1"), ParseResult::Changed);
    EXPECT_NEAR(North(), 1, 1e-12);
    ExpectRefused("                              N1", "W1", CoordinateField::Latitude, kBadLatitude);
}

TEST_F(CoordinateText, NinetyDegreesNorthAreRefused) {
    ExpectRefused("N89.9:7", "W1", CoordinateField::Latitude, kLatitudeDegrees);  // past 90 with its minutes
    ExpectRefused("N90", "W1", CoordinateField::Latitude, kLatitudeDegrees);
    ExpectRefused("S90.0", "W1", CoordinateField::Latitude, kLatitudeDegrees);
    ExpectRefused("N1234567890123456789012345", "W1", CoordinateField::Latitude, kLatitudeDegrees);
    ASSERT_EQ(Parse("N89:59:59.99", "W1"), ParseResult::Changed);
    EXPECT_NEAR(North(), 89 + 59.0 / 60 + 59.99 / 3600, 1e-12);
}

TEST_F(CoordinateText, AHundredAndEightyDegreesOfLongitudeAreRefused) {
    ExpectRefused("N1", "W180", CoordinateField::Longitude, kLongitudeDegrees);
    ExpectRefused("N1", "E200", CoordinateField::Longitude, kLongitudeDegrees);
    ASSERT_EQ(Parse("N1", "E179:59:59.99"), ParseResult::Changed);
}

TEST_F(CoordinateText, SixtyMinutesOrSecondsAreRefused) {
    ExpectRefused("N51:60", "W1", CoordinateField::Latitude, kLatitudeMinutes);
    ExpectRefused("N51:59:60", "W1", CoordinateField::Latitude, kLatitudeMinutes);
    ExpectRefused("N1", "W51:60", CoordinateField::Longitude, kLongitudeMinutes);
    ExpectRefused("N1", "W51:59:60.0", CoordinateField::Longitude, kLongitudeMinutes);
    EXPECT_EQ(Parse("N51:59.9999", "W51:59:59.9999"), ParseResult::Changed);
}

TEST_F(CoordinateText, SouthZeroIsLatitudeZero) {
    ASSERT_EQ(Parse("S0", "E0"), ParseResult::Changed);
    EXPECT_EQ(position.lat, 0);
    EXPECT_EQ(position.lon, 0);
}

TEST_F(CoordinateText, ABlankBetweenLetterAndNumberIsABadFormat) {
    ExpectRefused("N 51", "W1", CoordinateField::Latitude, kBadLatitude);
    ExpectRefused("N1", "W 1", CoordinateField::Longitude, kBadLongitude);
}

TEST_F(CoordinateText, TextsWithoutLetterOrDigitAreABadFormat) {
    for (const char* text : { "", " ", "N", "51.5", "X51", "N.5", "N-5", "W51", "E51", "N*51",
                              "\xC3\xA9"
                              "1" })
        ExpectRefused(text, "W1", CoordinateField::Latitude, kBadLatitude);
    for (const char* text : { "", "W", "E", "75", "N75", "S75", "W.5" })
        ExpectRefused("N1", text, CoordinateField::Longitude, kBadLongitude);
}

TEST_F(CoordinateText, OnlyTheFirstErrorIsReported) {
    ExpectRefused("N91", "W999", CoordinateField::Latitude, kLatitudeDegrees);
    ExpectRefused("N91:61:61", "junk", CoordinateField::Latitude, kLatitudeDegrees);
}

TEST_F(CoordinateText, CancelInTheLatitudeBoxIsAnErrorAllTheSame) {
    fake.answers = { platform::Answer::Cancel };
    ExpectRefused("", "W1", CoordinateField::Latitude, kBadLatitude);
}

}  // namespace
