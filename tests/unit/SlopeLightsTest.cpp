// SlopeLightsTest.cpp - slope indicators by type, bias and spacing.
#include "map/SlopeLights.h"

#include <gtest/gtest.h>

#include "fakes/LampFixture.h"

namespace {

using namespace map;

class SlopeLightsTest : public LampFixture {
protected:
    static constexpr double kUnits = 16;  // feet between the units of a bar

    void SetUp() override {
        LampFixture::SetUp();
        runway = RunwayFromTheMiddle();  // 2000 m: a bias of 700 m lies 300 m behind the threshold
        Look({ 0, 300 });
    }
    void Show(uint16_t type, float spacing = 150) {
        Parts(runway).primaryRightVasi = { type, 40, 700, spacing, 3 };
        red = Lit(Ink::LightRed);
        white = Lit(Ink::LightWhite);
    }

    model::SceneryObject* runway = nullptr;
    std::vector<LampAt> red, white;
};

TEST_F(SlopeLightsTest, VasiSystemsHaveTheirBarsAndUnits) {
    const struct {
        uint16_t type;
        size_t red, white;  // on the slope the far bars are red, the near one is white
    } kRows[] = { { 1, 1, 1 }, { 2, 2, 1 }, { 3, 2, 2 }, { 4, 4, 2 }, { 5, 3, 3 }, { 6, 5, 3 } };
    for (const auto& row : kRows) {
        Show(row.type);
        EXPECT_EQ(red.size(), row.red) << row.type;
        EXPECT_EQ(white.size(), row.white) << row.type;
    }
}

TEST_F(SlopeLightsTest, TheBiasIsThatOfTheFarBarsInnermostUnit) {
    Show(3);
    EXPECT_EQ(CountAt(red, 40, 300), 1);
    EXPECT_EQ(CountAt(red, 40 + FeetOf(kUnits), 300), 1);
    EXPECT_EQ(CountAt(white, 40, 150), 1);
    Show(4);
    EXPECT_EQ(CountAt(red, 40, 150), 1);
    EXPECT_EQ(CountAt(white, 40, 0), 1);
}

TEST_F(SlopeLightsTest, APapiIsRedInsideAndWhiteOutside) {
    Show(8, 9);
    for (const double east : { 40.0, 49.0 }) EXPECT_EQ(CountAt(red, east, 300), 1);
    for (const double east : { 58.0, 67.0 }) EXPECT_EQ(CountAt(white, east, 300), 1);
    Show(7, 9);
    EXPECT_EQ(CountAt(red, 40, 300), 1);
    EXPECT_EQ(CountAt(white, 49, 300), 1);
    EXPECT_EQ(red.size() + white.size(), 2u);
}

TEST_F(SlopeLightsTest, APapiWithoutSpacingStandsAtNineMetres) {
    Show(7, 0);
    EXPECT_EQ(CountAt(white, 49, 300), 1);
}

TEST_F(SlopeLightsTest, LeftUnitsStandOnTheLeft) {
    Parts(runway).primaryLeftVasi = { 8, 40, 700, 9, 3 };
    EXPECT_EQ(CountAt(Lit(Ink::LightRed), -40, 300), 1);
    EXPECT_EQ(CountAt(Lit(Ink::LightWhite), -67, 300), 1);
}

TEST_F(SlopeLightsTest, TheSecondaryEndsLeftIsTheEast) {
    Parts(runway).secondaryLeftVasi = { 7, 40, 700, 9, 3 };
    Look({ 0, 1700 });
    EXPECT_EQ(CountAt(Lit(Ink::LightRed), 40, 1700), 1);
}

TEST_F(SlopeLightsTest, ATVasisHasABarOfFourAndALegOfSix) {
    Show(11);
    EXPECT_EQ(white.size(), 10u);
    const double leg = 40 + 1.5 * FeetOf(kUnits);
    for (const double step : { 45.0, 135.0, 225.0 }) {
        EXPECT_EQ(CountAt(white, leg, 300 + step), 1);
        EXPECT_EQ(CountAt(white, leg, 300 - step), 1);
    }
}

TEST_F(SlopeLightsTest, OtherSystemsAreTold) {
    Show(9);
    EXPECT_EQ(Lit(Ink::LightGreen).size(), 1u);  // tricolour, on the slope
    Show(10);
    EXPECT_EQ(white.size(), 1u);
    Show(12);
    EXPECT_EQ(Lit(Ink::LightGreen).size(), 5u);
    EXPECT_EQ(Lit(Ink::LightYellow).size(), 1u);
    for (const uint16_t panels : { uint16_t{ 13 }, uint16_t{ 14 } }) {
        Show(panels);
        RecordingCanvas log;
        Paint(&log);
        EXPECT_EQ(log.FilledWith(InkOf(Ink::LightYellow)).size(), 3u);
    }
}

TEST_F(SlopeLightsTest, UnknownSystemsAndDamagedPlacesAreNotDrawn) {
    Show(15);
    EXPECT_TRUE(red.empty() && white.empty());
    Parts(runway).primaryRightVasi = { 8, std::nanf(""), 700, 9, 3 };
    EXPECT_TRUE(Lit(Ink::LightRed).empty());
    Parts(runway).primaryRightVasi = { 8, 40, 1e30F, 9, 3 };
    EXPECT_TRUE(Lit(Ink::LightRed).empty());
}

}  // namespace
