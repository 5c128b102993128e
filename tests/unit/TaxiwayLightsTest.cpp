// TaxiwayLightsTest.cpp - green lamps on centre lines, blue ones beside the edges.
#include <gtest/gtest.h>

#include "fakes/LampFixture.h"
#include "map/TaxiwayLines.h"

namespace {

using namespace map;

class TaxiwayLightsTest : public LampFixture {
protected:
    static void Taxiway(model::SceneryObject* a, model::SceneryObject* b, uint32_t bits, float width = 20) {
        auto& link = model::PayloadAs<model::TaxiLinkPayload>(build::Link(a, b));
        link.flagsWord |= bits;
        link.width = width;
    }
};

TEST_F(TaxiwayLightsTest, CentreLampsStand50FeetApart) {
    Taxiway(build::Node({ 0, -200 }), build::Node({ 0, 200 }), model::kLinkCentreLights);
    const auto lamps = Lit(Ink::LightGreen);
    ASSERT_EQ(lamps.size(), 26u);  // 400 m
    for (const LampAt& lamp : lamps) EXPECT_NEAR(lamp.east, 0, kNear);
    const double spacing = 400.0 / 26;
    for (int i = 0; i < 26; ++i) EXPECT_EQ(CountAt(lamps, 0, -200 + (i + 0.5) * spacing), 1);
    EXPECT_TRUE(Lit(Ink::LightBlue).empty());
}

TEST_F(TaxiwayLightsTest, CentreLampsFollowATurn) {
    model::SceneryObject* bend = build::Node();
    Taxiway(build::Node({ 0, -200 }), bend, model::kLinkCentreLights);
    Taxiway(bend, build::Node({ 200, 0 }), model::kLinkCentreLights);
    const auto lamps = Lit(Ink::LightGreen);
    EXPECT_EQ(CountAt(lamps, 0, 0), 0);  // cut off
    EXPECT_TRUE(std::any_of(lamps.begin(), lamps.end(), [](const LampAt& lamp) {
        return lamp.east > 1 && lamp.east < 15 && lamp.north < -1 && lamp.north > -15;
    }));
}

TEST_F(TaxiwayLightsTest, EdgeLampsStandFiveFeetBesideThePavementOnTheirSide) {
    Taxiway(build::Node({ 0, -300 }), build::Node({ 0, 300 }), model::kLinkLeftLights);
    const auto lamps = Lit(Ink::LightBlue);
    ASSERT_EQ(lamps.size(), 10u);  // 600 m in steps of at most 200 feet
    for (const LampAt& lamp : lamps) EXPECT_NEAR(lamp.east, -10 - FeetOf(5), kNear);
}

TEST_F(TaxiwayLightsTest, TheRightSideIsTheOther) {
    Taxiway(build::Node({ 0, 300 }), build::Node({ 0, -300 }), model::kLinkRightLights);
    for (const LampAt& lamp : Lit(Ink::LightBlue)) EXPECT_NEAR(lamp.east, -10 - FeetOf(5), kNear);
}

TEST_F(TaxiwayLightsTest, ABendHasLampsWhereBothLinksHave) {
    model::SceneryObject* bend = build::Node();
    Taxiway(build::Node({ 0, 300 }), bend, model::kLinkLeftLights | model::kLinkRightLights);
    Taxiway(bend, build::Node({ 300, 0 }), model::kLinkLeftLights | model::kLinkRightLights);
    const auto lamps = Lit(Ink::LightBlue);
    EXPECT_TRUE(std::any_of(lamps.begin(), lamps.end(), [](const LampAt& lamp) {  // the outer side of the bend
        return lamp.east < 0 && lamp.north < 0;
    }));
    for (const LampAt& lamp : lamps) EXPECT_GT(std::hypot(lamp.east, lamp.north), 10);
}

TEST_F(TaxiwayLightsTest, NoEdgeLampStandsOnARunway) {
    model::SceneryObject* runway = build::Runway(36);
    model::PayloadAs<model::RunwayPayload>(runway).body.surface = 4;
    Taxiway(build::Node({ -300, 0 }), build::Node({ 300, 0 }), model::kLinkLeftLights);
    const auto lamps = Lit(Ink::LightBlue);
    EXPECT_GE(lamps.size(), 8u);
    for (const LampAt& lamp : lamps) EXPECT_GT(std::abs(lamp.east), 22);
}

TEST_F(TaxiwayLightsTest, LampsAreDrawnFromTheScaleOfTheMarkings) {
    Taxiway(build::Node({ 0, -200 }), build::Node({ 0, 200 }), model::kLinkCentreLights);
    Scale(0.299);
    EXPECT_TRUE(Lit(Ink::LightGreen).empty());
    Scale(0.301);
    EXPECT_FALSE(Lit(Ink::LightGreen).empty());
}

TEST_F(TaxiwayLightsTest, NothingIsLitByDay) {
    Taxiway(build::Node({ 0, -200 }), build::Node({ 0, 200 }), model::kLinkCentreLights | model::kLinkLeftLights);
    layers.lights = false;
    EXPECT_TRUE(Lit(Ink::LightGreen).empty());
    EXPECT_TRUE(Lit(Ink::LightBlue).empty());
}

}  // namespace
