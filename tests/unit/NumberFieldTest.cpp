#include "dialogs/NumberField.h"

#include <cmath>
#include <limits>

#include "fakes/DialogFixture.h"
#include "model/Geodesy.h"

namespace {

using namespace dialogs;

class NumberField : public DialogFixture {
protected:
    static bool Reads(const char* text, double expected) {
        double number = -1;
        return ReadNumber(text, &number) && number == expected;
    }
    static bool Refuses(const char* text) {
        double number = 42;
        return !ReadNumber(text, &number) && number == 42;
    }
    // What the quantity stores for the text; NaN when it is refused.
    static double Stores(const Quantity& quantity, const char* text) {
        double stored = 0;
        return ReadQuantity(quantity, "shown", text, &stored) ? stored : std::nan("");
    }
};

constexpr Quantity kLength = { "length", Unit::Length, 0, 1000 };
constexpr Quantity kFrequency = { "frequency", Unit::Megahertz, 108e6, 137e6, 3, 0, false, false, 7 };
constexpr Quantity kKilohertz = { "frequency", Unit::Kilohertz, 190e3, 1750e3, 1, 0, false, false, 5 };
constexpr Quantity kWideRange = { "range", Unit::Range, 0, 1e6, 1 };
constexpr Quantity kCount = { "number", Unit::Plain, 0, 4095, 0, 0, true };

TEST_F(NumberField, DecimalNumbersWithASignAndBlanksAroundAreRead) {
    EXPECT_TRUE(Reads("12", 12));
    EXPECT_TRUE(Reads("12.5", 12.5));
    EXPECT_TRUE(Reads(".5", 0.5));
    EXPECT_TRUE(Reads("5.", 5));
    EXPECT_TRUE(Reads("-3.25", -3.25));
    EXPECT_TRUE(Reads("+7", 7));
    EXPECT_TRUE(Reads("  8 \t", 8));
    EXPECT_TRUE(Reads("007", 7));
}

TEST_F(NumberField, AnythingElseIsRefusedWhole) {
    for (const char* text :
         { "",         "  ",  "abc", "12abc", "12 13", "1,5", "1e3",  "0x10",  "inf", "nan",     "-inf",
           "infinity", "--1", "+-1", "- 1",   ".",     "-",   "1..2", "1.2.3", "12'", "\xC2\xBD" })
        EXPECT_TRUE(Refuses(text)) << text;
}

TEST_F(NumberField, MinusZeroIsZero) {
    double number = 1;
    EXPECT_TRUE(ReadNumber("-0", &number));
    EXPECT_FALSE(std::signbit(number));
}

TEST_F(NumberField, ANumberTooLargeForADoubleIsRefused) { EXPECT_TRUE(Refuses(std::string(400, '9').c_str())); }

TEST_F(NumberField, LengthsAreShownInWholeFeetOrTenthsOfAMetre) {
    EXPECT_EQ(ShowNumber(kLength, 3048), "10000");
    EXPECT_EQ(ShowNumber(kLength, 46), "151");
    EXPECT_EQ(ShowNumber(kLength, 0), "0");
    app::settings.metric = true;
    EXPECT_EQ(ShowNumber(kLength, 3048), "3048.0");
    EXPECT_EQ(ShowNumber(kLength, 45.72), "45.7");
}

TEST_F(NumberField, ANegativeValueThatRoundsToZeroHasNoSign) { EXPECT_EQ(ShowNumber(kLength, -0.01), "0"); }

TEST_F(NumberField, FeetAreReadWithTheLongerFootAndTaxiFeetWithThePlainOne) {
    EXPECT_DOUBLE_EQ(Stores(kLength, "1000"), 304.8000000012192);
    constexpr Quantity kTaxi = { "width", Unit::TaxiLength, 0, 1000 };
    EXPECT_DOUBLE_EQ(Stores(kTaxi, "100"), 30.48);
    app::settings.metric = true;
    EXPECT_EQ(Stores(kLength, "100.5"), 100.5);
    EXPECT_EQ(Stores(kTaxi, "100.5"), 100.5);
}

TEST_F(NumberField, ParkingLengthsFollowTheirOwnSetting) {
    constexpr Quantity kRadius = { "radius", Unit::ParkingLength, 0, 1000, 2, 2 };
    app::settings.metric = true;
    EXPECT_EQ(ShowNumber(kRadius, 10), "32.81");
    EXPECT_STREQ(UnitLabel(Unit::ParkingLength), "ft");
    EXPECT_STREQ(UnitLabel(Unit::Length), "m");
    app::settings.metricParkingRadius = true;
    EXPECT_EQ(ShowNumber(kRadius, 10), "10.00");
    EXPECT_STREQ(UnitLabel(Unit::ParkingLength), "m");
}

TEST_F(NumberField, ElevationsAreMillimetresTruncated) {
    EXPECT_EQ(Stores(kElevation, "433"), 131978);
    EXPECT_EQ(Stores(kElevation, "-10"), -3048);
    EXPECT_EQ(ShowNumber(kElevation, 131978), "433");
    app::settings.metric = true;
    EXPECT_EQ(Stores(kElevation, "130.1"), 130100);
    EXPECT_EQ(Stores(kElevation, "0.0019"), 1);
    EXPECT_EQ(ShowNumber(kElevation, 131978), "132.0");
}

TEST_F(NumberField, FrequenciesAreHertzWhateverBinaryMakesOfTheirDecimals) {
    for (int kilohertz = 118000; kilohertz < 137000; kilohertz += 5) {
        char text[16];
        std::snprintf(text, sizeof text, "%d.%03d", kilohertz / 1000, kilohertz % 1000);
        ASSERT_EQ(Stores(kFrequency, text), kilohertz * 1000.0) << text;
        ASSERT_EQ(ShowNumber(kFrequency, kilohertz * 1000.0), text);
    }
    EXPECT_EQ(Stores(kFrequency, "121.9000019"), 121900001);
    EXPECT_EQ(Stores(kKilohertz, "352.5"), 352500);
    EXPECT_EQ(ShowNumber(kKilohertz, 75000), " 75.0");
}

TEST_F(NumberField, RangesAreNauticalMilesOrKilometres) {
    EXPECT_DOUBLE_EQ(Stores(kWideRange, "27"), 27 * model::kMetresPerNauticalMile);
    EXPECT_EQ(ShowNumber(kWideRange, 50017), "27.0");
    EXPECT_STREQ(UnitLabel(Unit::Range), "nm");
    app::settings.metric = true;
    EXPECT_EQ(Stores(kWideRange, "50"), 50000);
    EXPECT_EQ(ShowNumber(kWideRange, 50017), "50.0");
    EXPECT_STREQ(UnitLabel(Unit::Range), "km");
}

TEST_F(NumberField, VariationIsShownEastPositiveAndStoredWestPositiveBelow360) {
    EXPECT_EQ(Stores(kVariation, "5"), 355);
    EXPECT_EQ(Stores(kVariation, "-5"), 5);
    EXPECT_EQ(Stores(kVariation, "0"), 0);
    EXPECT_FALSE(std::signbit(Stores(kVariation, "0")));
    EXPECT_EQ(Stores(kVariation, "180"), 180);
    EXPECT_EQ(Stores(kVariation, "-180"), 180);
    EXPECT_EQ(Stores(kVariation, "0.0000001"), 0);
    EXPECT_EQ(ShowNumber(kVariation, 355), "5.0");
    EXPECT_EQ(ShowNumber(kVariation, 5), "-5.0");
    EXPECT_EQ(ShowNumber(kVariation, 0), "0.0");
}

TEST_F(NumberField, AHeadingIsShownBelowAFullTurn) {
    EXPECT_EQ(HeadingText(0), "0.0");
    EXPECT_EQ(HeadingText(359.94), "359.9");
    EXPECT_EQ(HeadingText(359.96), "0.0");
    EXPECT_EQ(HeadingText(360), "0.0");
}

TEST_F(NumberField, ATextReadsAsZeroByTheNumberThatItBeginsWith) {
    for (const char* text : { "", " ", "x", "0", "-0.0", "+", ".", "0.0000004", "0 and more", "nan" })
        EXPECT_TRUE(ReadsAsZero(kFrequency, text)) << text;
    for (const char* text : { "1", " 118.2x", "0.000001", ".5", "-3" })
        EXPECT_FALSE(ReadsAsZero(kFrequency, text)) << text;
    EXPECT_FALSE(ReadsAsZero(kFrequency, std::string(400, '9')));
}

TEST_F(NumberField, AnUnchangedTextIsNotRead) {
    double stored = 45.7199;
    EXPECT_TRUE(ReadQuantity(kLength, "no number", "no number", &stored));
    EXPECT_EQ(stored, 45.7199);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(NumberField, ARefusalTellsTheRangeInTheUsersUnitRoundedIntoIt) {
    EXPECT_TRUE(std::isnan(Stores(kLength, "3281")));
    EXPECT_EQ(LastMessage(), "ERROR: The length must be a number from 0 to 3280 feet");
    EXPECT_EQ(fake.messages.back().icon, platform::Icon::Exclamation);
    EXPECT_FALSE(std::isnan(Stores(kLength, "3280")));
    app::settings.metric = true;
    EXPECT_TRUE(std::isnan(Stores(kLength, "-0.1")));
    EXPECT_EQ(LastMessage(), "ERROR: The length must be a number from 0 to 1000 metres");
    EXPECT_TRUE(std::isnan(Stores(kFrequency, "137.5")));
    EXPECT_EQ(LastMessage(), "ERROR: The frequency must be a number from 108 to 137 MHz");
    EXPECT_TRUE(std::isnan(Stores(kHeading, "400")));
    EXPECT_EQ(LastMessage(), "ERROR: The heading must be a number from 0 to 360 degrees");
    EXPECT_TRUE(std::isnan(Stores(kVariation, "181")));
    EXPECT_EQ(LastMessage(), "ERROR: The magnetic variation must be a number from -180 to 180 degrees");
    EXPECT_TRUE(std::isnan(Stores(kKilohertz, "100")));
    EXPECT_EQ(LastMessage(), "ERROR: The frequency must be a number from 190 to 1750 kHz");
}

TEST_F(NumberField, TheLimitsThatAMessageNamesAreAccepted) {
    EXPECT_TRUE(std::isnan(Stores(kElevation, "x")));
    EXPECT_EQ(LastMessage(), "ERROR: The elevation must be a number from -6561 to 98425 feet");
    EXPECT_FALSE(std::isnan(Stores(kElevation, "-6561")));
    EXPECT_FALSE(std::isnan(Stores(kElevation, "98425")));
}

TEST_F(NumberField, WholeNumbersRefuseFractions) {
    EXPECT_EQ(Stores(kCount, "4095"), 4095);
    EXPECT_TRUE(std::isnan(Stores(kCount, "4096")));
    EXPECT_EQ(LastMessage(), "ERROR: The number must be a whole number from 0 to 4095");
    EXPECT_TRUE(std::isnan(Stores(kCount, "1.5")));
    constexpr Quantity kWholeMetres = { "elevation", Unit::Elevation, -2e6, 30e6, 1, 0, false, true };
    EXPECT_FALSE(std::isnan(Stores(kWholeMetres, "1.5")));
    app::settings.metric = true;
    EXPECT_TRUE(std::isnan(Stores(kWholeMetres, "1.5")));
    EXPECT_EQ(LastMessage(), "ERROR: The elevation must be a whole number from -2000 to 30000 metres");
    EXPECT_EQ(Stores(kWholeMetres, "132.0"), 132000);
}

TEST_F(NumberField, AnyBytesOfARecordCanBeShown) {
    const float odd[] = { std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
                          std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::max(),
                          -std::numeric_limits<float>::denorm_min() };
    for (const float value : odd) {
        for (const Unit unit : { Unit::Length, Unit::Range, Unit::Degrees, Unit::Variation }) {
            EXPECT_FALSE(ShowNumber({ "x", unit, 0, 1 }, value).empty());
        }
    }
}

TEST_F(NumberField, AnUnchangedTextKeepsEvenASignallingNotANumber) {
    const uint8_t bytes[] = { 0x01, 0x00, 0xA0, 0x7F };
    uint8_t place[4];
    std::copy(std::begin(bytes), std::end(bytes), place);
    const std::string shown = ShowNumberAt(kLength, place);
    EXPECT_TRUE(ReadNumberAt(kLength, shown, shown, place));
    EXPECT_TRUE(std::equal(std::begin(bytes), std::end(bytes), place));
}

}  // namespace
