// ApproachLightsTest.cpp - the sixteen systems by counts and distances.
#include "map/ApproachLights.h"

#include <gtest/gtest.h>

#include "fakes/LampFixture.h"
#include "model/Names.h"

namespace {

using namespace map;

class ApproachLightsTest : public LampFixture {
protected:
    void SetUp() override {
        LampFixture::SetUp();
        runway = RunwayFromTheMiddle();
        Look({ 0, -450 });
    }
    void Show(uint16_t word) { Parts(runway).primaryApproachLights = word; }
    static void ExpectFlashes(const std::vector<double>& feet) {
        const std::vector<double> out = OutAlongCentre(Lit(Ink::LightFlash));
        ASSERT_EQ(out.size(), feet.size());
        for (size_t i = 0; i < feet.size(); ++i) EXPECT_NEAR(out[i], FeetOf(feet[i]), kNear);
    }
    static std::vector<double> Stations(double first, double last, double step) {
        std::vector<double> feet;
        for (double at = first; at <= last; at += step) feet.push_back(at);
        return feet;
    }

    model::SceneryObject* runway = nullptr;
};

using enum model::ApproachLights;

TEST_F(ApproachLightsTest, EachSystemHasItsNumberOfLamps) {
    const struct {
        const char* name;
        size_t white, red, green, flashes;
    } kRows[] = { { "none", 0, 0, 0, 0 },        { "ODALS", 0, 0, 0, 7 },        { "MALSF", 45, 0, 0, 3 },
                  { "MALSR", 45, 0, 0, 5 },      { "SSALF", 45, 0, 0, 3 },       { "SSALR", 45, 0, 0, 5 },
                  { "ALSF-1", 126, 21, 49, 15 }, { "ALSF-2", 144, 54, 49, 15 },  { "RAIL", 0, 0, 0, 5 },
                  { "CALVERT", 134, 0, 0, 0 },   { "CALVERT-2", 159, 54, 0, 0 }, { "MALS", 45, 0, 0, 0 },
                  { "SALS", 81, 21, 49, 0 },     { "SSALSF", 45, 0, 0, 3 },      { "SSALS", 45, 0, 0, 0 },
                  { "SSALSR", 45, 0, 0, 5 } };
    static_assert(std::size(kRows) == model::kApproachLightsCount);
    for (uint16_t code = 0; code < std::size(kRows); ++code) {
        const auto& row = kRows[code];
        Show(code);
        EXPECT_STREQ(model::ApproachLightsNames()[code], row.name);
        EXPECT_EQ(Lit(Ink::LightWhite).size(), row.white) << row.name;
        EXPECT_EQ(Lit(Ink::LightRed).size(), row.red) << row.name;
        EXPECT_EQ(Lit(Ink::LightGreen).size(), row.green) << row.name;
        EXPECT_EQ(Lit(Ink::LightFlash).size(), row.flashes) << row.name;
    }
}

TEST_F(ApproachLightsTest, AnUnknownSystemIsNone) {
    Show(31);
    EXPECT_TRUE(Lit(Ink::LightWhite).empty());
    EXPECT_EQ(&ApproachSystemOf(16), &ApproachSystemOf(0));
}

TEST_F(ApproachLightsTest, MediumBarrettesStand200FeetApartTo1400Feet) {
    for (const uint16_t system : { kMals, kMalsf, kMalsr, kSsals, kSsalf, kSsalr, kSsalsf, kSsalsr }) {
        Show(system);
        const std::vector<double> out = OutAlongCentre(Lit(Ink::LightWhite));
        ASSERT_EQ(out.size(), 7u) << system;  // the middle lamp of each barrette
        for (size_t i = 0; i < out.size(); ++i) EXPECT_NEAR(out[i], FeetOf(200.0 * double(i + 1)), kNear) << system;
    }
}

TEST_F(ApproachLightsTest, TheMediumCrossBarIs66FeetWideAtAThousandFeet) {
    Show(kMals);
    const auto lamps = Lit(Ink::LightWhite);
    for (const double side : { -1.0, 1.0 }) {
        EXPECT_EQ(CountAt(lamps, side * FeetOf(33), -FeetOf(1000)), 1);
        EXPECT_EQ(CountAt(lamps, side * FeetOf(23), -FeetOf(1000)), 1);
        EXPECT_EQ(CountAt(lamps, side * FeetOf(36), -FeetOf(1000)), 0);
        EXPECT_EQ(CountAt(lamps, side * FeetOf(5), -FeetOf(800)), 1);  // a barrette is ten feet wide
    }
}

TEST_F(ApproachLightsTest, TheSimplifiedCrossBarIs70FeetWideAtAThousandFeet) {
    Show(kSsalr);
    const auto lamps = Lit(Ink::LightWhite);
    EXPECT_EQ(CountAt(lamps, FeetOf(35), -FeetOf(1000)), 1);
    EXPECT_EQ(CountAt(lamps, FeetOf(15), -FeetOf(1000)), 1);
    EXPECT_EQ(CountAt(lamps, FeetOf(6.75), -FeetOf(200)), 1);  // barrettes of 13.5 feet
}

TEST_F(ApproachLightsTest, FlashesOfTheOuterThreeBars) {
    for (const uint16_t system : { kMalsf, kSsalf, kSsalsf }) {
        Show(system);
        ExpectFlashes({ 1000, 1200, 1400 });
    }
}

TEST_F(ApproachLightsTest, RunwayAlignmentLightsReachFrom1600To2400Feet) {
    for (const uint16_t system : { kMalsr, kSsalr, kRail, kSsalsr }) {
        Show(system);
        ExpectFlashes({ 1600, 1800, 2000, 2200, 2400 });
    }
}

TEST_F(ApproachLightsTest, OdalsAreFiveFlashesTo1500FeetAndTwoBesideTheThreshold) {
    Show(kOdals);
    ExpectFlashes({ 300, 600, 900, 1200, 1500 });
    const auto lamps = Lit(Ink::LightFlash);
    for (const double side : { -1.0, 1.0 }) EXPECT_EQ(CountAt(lamps, side * FeetOf(75 + 40), 0), 1);
}

TEST_F(ApproachLightsTest, AlsfBarrettesStand100FeetApartTo2400Feet) {
    Show(kAlsf2);
    const std::vector<double> out = OutAlongCentre(Lit(Ink::LightWhite));
    ASSERT_EQ(out.size(), 24u);
    for (size_t i = 0; i < out.size(); ++i) EXPECT_NEAR(out[i], FeetOf(100.0 * double(i + 1)), kNear);
    ExpectFlashes(Stations(1000, 2400, 100));
}

TEST_F(ApproachLightsTest, TheCentreLineOfAlsfOneBeginsAt300Feet) {
    for (const uint16_t system : { kAlsf1, kSals }) {
        Show(system);
        const std::vector<double> out = OutAlongCentre(Lit(Ink::LightWhite));
        ASSERT_FALSE(out.empty());
        EXPECT_NEAR(out.front(), FeetOf(300), kNear) << system;
        EXPECT_NEAR(out.back(), FeetOf(system == kSals ? 1500 : 2400), kNear) << system;
    }
}

TEST_F(ApproachLightsTest, TheDecisionBarIs100FeetWide) {
    for (const uint16_t system : { kAlsf1, kAlsf2, kSals }) {
        Show(system);
        const auto lamps = Lit(Ink::LightWhite);
        for (double feet = 15; feet <= 50; feet += 5) {
            EXPECT_EQ(CountAt(lamps, FeetOf(feet), -FeetOf(1000)), 1) << system;
            EXPECT_EQ(CountAt(lamps, -FeetOf(feet), -FeetOf(1000)), 1) << system;
        }
        EXPECT_EQ(CountAt(lamps, FeetOf(55), -FeetOf(1000)), 0) << system;
    }
}

TEST_F(ApproachLightsTest, AlsfOneHasRedWingAndTerminatingBars) {
    for (const uint16_t system : { kAlsf1, kSals }) {
        Show(system);
        const auto red = Lit(Ink::LightRed);
        EXPECT_EQ(CountAt(red, FeetOf(75), -FeetOf(100)), 1);
        EXPECT_EQ(CountAt(red, -FeetOf(95), -FeetOf(100)), 1);
        EXPECT_EQ(CountAt(red, 0, -FeetOf(200)), 1);
        EXPECT_EQ(CountAt(red, FeetOf(25), -FeetOf(200)), 1);
        EXPECT_EQ(CountAt(Lit(Ink::LightWhite), 0, -FeetOf(200)), 0);
    }
}

TEST_F(ApproachLightsTest, AlsfTwoHasRedSideRowsTo900FeetAndABarAt500) {
    Show(kAlsf2);
    const auto red = Lit(Ink::LightRed), white = Lit(Ink::LightWhite);
    for (double station = 100; station <= 900; station += 100) {
        for (const double feet : { 36.0, 41.0, 46.0 }) {
            EXPECT_EQ(CountAt(red, FeetOf(feet), -FeetOf(station)), 1);
            EXPECT_EQ(CountAt(red, -FeetOf(feet), -FeetOf(station)), 1);
        }
    }
    for (const double feet : { 14.0, 19.0, 24.0, 29.0 }) EXPECT_EQ(CountAt(white, FeetOf(feet), -FeetOf(500)), 1);
}

TEST_F(ApproachLightsTest, TheThresholdBarReaches45FeetBesideTheRunway) {
    Show(kAlsf1);
    const auto green = Lit(Ink::LightGreen);
    const auto [low, high] = std::minmax_element(green.begin(), green.end(),
                                                 [](const LampAt& a, const LampAt& b) { return a.east < b.east; });
    EXPECT_NEAR(low->east, -FeetOf(120), kNear);
    EXPECT_NEAR(high->east, FeetOf(120), kNear);
}

TEST_F(ApproachLightsTest, TheCalvertCentreLineCountsTheDistance) {
    Show(kCalvert);
    const auto white = Lit(Ink::LightWhite);
    EXPECT_EQ(CountAt(white, 0, -270), 1);
    EXPECT_EQ(CountAt(white, 0.75, -330) + CountAt(white, -0.75, -330), 2);
    EXPECT_EQ(CountAt(white, 0, -330), 0);
    for (const double east : { -1.5, 0.0, 1.5 }) EXPECT_EQ(CountAt(white, east, -900), 1);
    EXPECT_EQ(CountAt(white, 0, -930), 0);
}

TEST_F(ApproachLightsTest, CalvertCrossBarsEndOnLinesThatMeet300MetresBehindTheThreshold) {
    Show(kCalvert);
    const auto white = Lit(Ink::LightWhite);
    for (const double station : { 150.0, 300.0, 450.0, 600.0, 750.0 }) {
        double widest = 0;
        for (const LampAt& lamp : white) {
            if (std::abs(lamp.north + station) < kNear) widest = std::max(widest, lamp.east);
        }
        EXPECT_NEAR(widest, 15 * (station + 300) / 600, kNear) << station;
    }
}

TEST_F(ApproachLightsTest, CalvertTwoHasRedSideRowsTo270Metres) {
    Show(kCalvert2);
    const auto red = Lit(Ink::LightRed);
    for (double station = 30; station <= 270; station += 30) {
        for (const double metres : { 9.0, 10.5, 12.0 }) EXPECT_EQ(CountAt(red, metres, -station), 1);
    }
    EXPECT_EQ(CountAt(red, 9, -300), 0);
}

TEST_F(ApproachLightsTest, TheRecordsNumberOfStrobesGoesFirst) {
    Show(kAlsf2 | 3 << model::kStrobesShift);
    ExpectFlashes({ 2200, 2300, 2400 });
    Show(kMals | 4 << model::kStrobesShift);
    ExpectFlashes({ 800, 1000, 1200, 1400 });
}

TEST_F(ApproachLightsTest, EndStrobesStand40FeetBesideTheRunway) {
    Show(model::kReil);
    const auto lamps = Lit(Ink::LightFlash);
    ASSERT_EQ(lamps.size(), 2u);
    for (const double side : { -1.0, 1.0 }) EXPECT_EQ(CountAt(lamps, side * FeetOf(115), 0), 1);
}

TEST_F(ApproachLightsTest, StationsCountFromADisplacedThreshold) {
    Parts(runway).primaryThreshold = { 4, 200, 45 };
    Show(kMals);
    const std::vector<double> out = OutAlongCentre(Lit(Ink::LightWhite));
    ASSERT_EQ(out.size(), 7u);
    EXPECT_NEAR(out[0], FeetOf(200) - 200, kNear);
}

TEST_F(ApproachLightsTest, TheSecondaryEndLooksTheOtherWay) {
    Look({ 0, 2000 + 400 });
    Parts(runway).secondaryApproachLights = kMals;
    const auto lamps = Lit(Ink::LightWhite);
    EXPECT_EQ(lamps.size(), 45u);
    EXPECT_EQ(CountAt(lamps, 0, 2000 + FeetOf(1400)), 1);
}

TEST_F(ApproachLightsTest, BarsThinOutBeforeTheyRunTogether) {
    Show(kAlsf2);
    view.span = 16'000;  // a quarter of a pixel to the metre
    ResizeView(4000, 4000);
    RecordingCanvas log;
    Paint(&log);
    EXPECT_LT(log.FilledWith(InkOf(Ink::LightWhite)).size(), 24u * 4 + 40);
    EXPECT_GE(log.FilledWith(InkOf(Ink::LightWhite)).size(), 24u);
}

TEST_F(ApproachLightsTest, NothingIsDrawnByDay) {
    layers.lights = false;
    Show(kAlsf2);
    EXPECT_TRUE(Lit(Ink::LightGreen).empty());
    EXPECT_TRUE(Lit(Ink::LightFlash).empty());
}

}  // namespace
