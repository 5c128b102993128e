// RunwayLightsTest.cpp - edge, threshold, end, touchdown zone and centre lights.
#include <gtest/gtest.h>

#include "fakes/LampFixture.h"

namespace {

using namespace map;

class RunwayLightsTest : public LampFixture {
protected:
    void SetUp() override {
        LampFixture::SetUp();
        runway = RunwayFromTheMiddle();
        Look({ 0, 300 });
    }
    model::RunwayPayload& Runway() { return Parts(runway); }

    model::SceneryObject* runway = nullptr;
};

TEST_F(RunwayLightsTest, EdgeLightsStand200FeetApartBesideThePavement) {
    Runway().body.lights = 1;
    const auto lamps = Lit(Ink::LightWhite);
    const double spacing = 2000 / std::round(2000 / FeetOf(200)), half = FeetOf(75 + 8);
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(CountAt(lamps, half, i * spacing), 1);
        EXPECT_EQ(CountAt(lamps, -half, i * spacing), 1);
    }
}

TEST_F(RunwayLightsTest, EdgeLightsOfAPrecisionRunwayAreYellowOverTheLast2000Feet) {
    Runway().body.lights = 1;
    Runway().body.markings = 0x40;
    for (const LampAt& lamp : Lit(Ink::LightYellow)) EXPECT_LT(lamp.north, FeetOf(2000));
    for (const LampAt& lamp : Lit(Ink::LightWhite)) EXPECT_GE(lamp.north, FeetOf(2000) - kNear);
    EXPECT_GT(Lit(Ink::LightYellow).size(), 10u);
}

TEST_F(RunwayLightsTest, EdgeLightsOfAShortPrecisionRunwayAreYellowOverHalfOfIt) {
    Runway().body.lights = 1;
    Runway().body.markings = 0x40;
    Runway().body.length = 914;  // fifteen spaces: no light stands in the middle
    model::SetPosition(runway, build::At({ 0, 457 }));
    EXPECT_TRUE(Lit(Ink::LightWhite).empty()) << "each half for those who come from the other end";
    EXPECT_GT(Lit(Ink::LightYellow).size(), 20u);
}

TEST_F(RunwayLightsTest, AThresholdHasAGroupAtEachSide) {
    Runway().body.lights = 1;
    const auto green = Lit(Ink::LightGreen);
    EXPECT_EQ(green.size(), 6u);
    for (const double feet : { 75.0, 65.0, 55.0 }) {
        EXPECT_EQ(CountAt(green, FeetOf(feet), -FeetOf(10)), 1);
        EXPECT_EQ(CountAt(green, -FeetOf(feet), -FeetOf(10)), 1);
    }
    EXPECT_EQ(Lit(Ink::LightRed).size(), 6u);
}

TEST_F(RunwayLightsTest, AThresholdWithApproachLightsHasFourInAGroup) {
    Runway().body.lights = 1;
    Runway().primaryApproachLights = 11;
    EXPECT_EQ(Lit(Ink::LightGreen).size(), 8u);
}

TEST_F(RunwayLightsTest, AThresholdBarStandsForTheRunwaysGreenLights) {
    constexpr uint16_t kAlsfTwo = 7, kGreenRow = 0x20;
    Runway().primaryApproachLights = kAlsfTwo;
    const size_t bar = Lit(Ink::LightGreen).size();
    Runway().body.lights = 1;
    Runway().primaryApproachLights = kAlsfTwo | kGreenRow;
    EXPECT_EQ(Lit(Ink::LightGreen).size(), bar);
    Runway().primaryThreshold = { 4, 100, 45 };
    EXPECT_EQ(Lit(Ink::LightGreen).size(), bar);
}

TEST_F(RunwayLightsTest, TheGreenEndRowSpansTheRunway) {
    Runway().primaryApproachLights = 0x20;
    EXPECT_EQ(Lit(Ink::LightGreen).size(), 16u);  // every ten feet of 150
}

TEST_F(RunwayLightsTest, ADisplacedThresholdsLightsStandBesideTheRunway) {
    Runway().body.lights = 1;
    Runway().primaryThreshold = { 4, 200, 45 };
    const auto green = Lit(Ink::LightGreen);
    EXPECT_EQ(green.size(), 6u);
    for (const LampAt& lamp : green) {
        EXPECT_NEAR(lamp.north, 200, kNear);
        EXPECT_GT(std::abs(lamp.east), FeetOf(75));
    }
}

TEST_F(RunwayLightsTest, ANarrowRunwaysGroupsDoNotMeet) {
    Runway().body.lights = 1;
    Runway().body.width = static_cast<float>(FeetOf(30));
    EXPECT_EQ(Lit(Ink::LightGreen).size(), 4u);
}

TEST_F(RunwayLightsTest, CentreLightsStand50FeetApart) {
    Runway().body.lights = 4;
    const auto lamps = Lit(Ink::LightWhite);
    const double spacing = 2000 / std::round(2000 / FeetOf(50));
    for (int i = 1; i < 20; ++i) EXPECT_EQ(CountAt(lamps, 0, i * spacing), 1);
    EXPECT_TRUE(Lit(Ink::LightRed).empty());
}

TEST_F(RunwayLightsTest, CentreLightsAreRedOverTheLast1000FeetAndAlternateBefore) {
    Runway().body.lights = 4 | 0x10;
    Runway().body.length = 4000;
    model::SetPosition(runway, build::At({ 0, 2000 }));
    Look({ 0, 500 });
    const auto red = Lit(Ink::LightRed), white = Lit(Ink::LightWhite);
    const double spacing = 4000 / std::round(4000 / FeetOf(50));
    for (int i = 1; i * spacing < FeetOf(1000); ++i) EXPECT_EQ(CountAt(red, 0, i * spacing), 1) << i;
    for (int i = 21; i * spacing < FeetOf(3000); ++i) {
        EXPECT_EQ(CountAt(i % 2 == 0 ? red : white, 0, i * spacing), 1) << i;
    }
    for (int i = 62; i < 64; ++i) EXPECT_EQ(CountAt(white, 0, i * spacing), 1) << i;
}

TEST_F(RunwayLightsTest, TouchdownZoneLightsReachFrom100To3000Feet) {
    Runway().primaryApproachLights = 0x80;
    Look({ 0, 450 });
    const auto lamps = Lit(Ink::LightWhite);
    EXPECT_EQ(lamps.size(), 30u * 6);
    for (const double feet : { 36.0, 41.0, 46.0 }) {
        EXPECT_EQ(CountAt(lamps, FeetOf(feet), FeetOf(100)), 1);
        EXPECT_EQ(CountAt(lamps, -FeetOf(feet), FeetOf(3000)), 1);
    }
}

TEST_F(RunwayLightsTest, TouchdownZoneLightsEndInTheMiddleOfAShortRunway) {
    Runway().primaryApproachLights = 0x80;
    Runway().body.length = 1000;
    model::SetPosition(runway, build::At({ 0, 500 }));
    for (const LampAt& lamp : Lit(Ink::LightWhite)) EXPECT_LE(lamp.north, 500 + kNear);
    EXPECT_EQ(Lit(Ink::LightWhite).size(), 16u * 6);
}

TEST_F(RunwayLightsTest, ARunwayWithoutLightsIsDark) {
    Runway().body.markings = 0;
    for (const Ink ink : { Ink::LightWhite, Ink::LightRed, Ink::LightGreen, Ink::LightYellow })
        EXPECT_TRUE(Lit(ink).empty());
}

}  // namespace
