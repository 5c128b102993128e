// SpotColoursTest.cpp - parking spots take the colour of their parking spec.
#include "map/SpotColours.h"

#include <gtest/gtest.h>

#include "fakes/MapFixture.h"

namespace {

using namespace map;
using platform::Rgb;

class SpotColoursTest : public MapFixture {
protected:
    void SetUp() override {
        MapFixture::SetUp();
        Open();
        app::parkingSpecs = { Spec("American", 100, { "AAL", "EGF" }), Spec("Eagle", 120, { "EGF" }),
                              Spec("Other Eagle", 140, { "EGF", "AAL" }), Spec("Bravo", 160, { "BRV", "SUB" }) };
        app::parkingSpecs.push_back({ .name = "Pale", .codes = { "PAL" } });
    }
    void TearDown() override {
        app::parkingSpecs.clear();
        MapFixture::TearDown();
    }
    static app::ParkingSpec Spec(const char* name, uint8_t red, std::vector<std::string> codes) {
        app::ParkingSpec spec;
        spec.name = name;
        spec.hasColour = true;
        spec.red = red, spec.green = 31, spec.blue = 41;
        spec.halfRed = red / 2, spec.halfGreen = 15, spec.halfBlue = 20;
        spec.codes = std::move(codes);
        return spec;
    }
    static std::string NameFor(std::initializer_list<std::string_view> codes) {
        const app::ParkingSpec* spec = SpecOfSpot(IndexSpecs(), build::Spot({}, codes));
        return spec ? spec->name : "";
    }
    static std::vector<CanvasCall> Spots(Colour fill) {
        RecordingCanvas log;
        Paint(&log);
        return log.FilledWith(fill);
    }
};

TEST_F(SpotColoursTest, TheSpecWithTheSameCodesComesFirst) {
    EXPECT_EQ(NameFor({ "AAL", "EGF" }), "American");
    EXPECT_EQ(NameFor({ "EGF" }), "Eagle");
    EXPECT_EQ(NameFor({ "EGF", "AAL" }), "Other Eagle");
}

TEST_F(SpotColoursTest, ElseTheSpecThatBeginsWithTheFirstCode) {
    EXPECT_EQ(NameFor({ "EGF", "XYZ" }), "Eagle");
    EXPECT_EQ(NameFor({ "AAL" }), "American");
}

TEST_F(SpotColoursTest, ElseOneThatHoldsIt) { EXPECT_EQ(NameFor({ "SUB" }), "Bravo"); }

TEST_F(SpotColoursTest, OtherCodesHaveNoSpec) {
    EXPECT_EQ(NameFor({ "XYZ", "AAL" }), "");
    EXPECT_EQ(NameFor({}), "");
}

TEST_F(SpotColoursTest, CodesMatchWithoutRegardToCase) {
    app::parkingSpecs = { Spec("Alaska", 10, { "asa", "Qxe" }), Spec("Horizon", 20, { "QXE", "ASA" }) };
    EXPECT_EQ(NameFor({ "ASA", "QXE" }), "Alaska") << "by all codes";
    EXPECT_EQ(NameFor({ "qxe", "asa" }), "Horizon") << "by all codes";
    EXPECT_EQ(NameFor({ "ASA", "XYZ" }), "Alaska") << "by the first code";
    EXPECT_EQ(NameFor({ "qxe" }), "Horizon") << "by the first code";
    app::parkingSpecs = { Spec("Alaska", 10, { "AAA", "asa", "QXE" }) };
    EXPECT_EQ(NameFor({ "ASA" }), "Alaska") << "by any code";
    EXPECT_EQ(NameFor({ "qxe" }), "Alaska") << "by any code";
}

TEST_F(SpotColoursTest, ACodeCountBeyondThePayloadIsNotFollowed) {
    model::SceneryObject* spot = build::Spot({}, { "AAL", "EGF" });
    model::PayloadAs<model::ParkingSpotRecord>(spot).packed |= 0xFFu << 24;
    EXPECT_EQ(SpecOfSpot(IndexSpecs(), spot)->name, "American");
}

TEST_F(SpotColoursTest, TheSpecFillsTheSpotWithAGreyOutline) {
    build::Spot({ 0, 0 }, { "BRV", "SUB" });
    const auto spots = Spots(Rgb(160, 31, 41));
    ASSERT_EQ(spots.size(), 2u);  // the circle and its pointer
    EXPECT_EQ(spots[0].pen, Rgb(100, 100, 100));
}

TEST_F(SpotColoursTest, TheBlackThatStandsForNoFillIsFilledToo) {
    app::parkingSpecs = { { .name = "Black", .hasColour = true, .blue = 1, .halfBlue = 1, .codes = { "BLK" } } };
    ASSERT_EQ(Rgb(0, 0, 1), platform::kNoBrush);
    build::Spot({ 0, 0 }, { "BLK" });
    EXPECT_EQ(Spots(Rgb(1, 0, 1)).size(), 2u);
    layers.lights = true;
    EXPECT_EQ(Spots(Rgb(1, 0, 1)).size(), 2u);
}

TEST_F(SpotColoursTest, ByNightAtHalfIntensity) {
    layers.lights = true;
    build::Spot({ 0, 0 }, { "BRV", "SUB" });
    const auto spots = Spots(Rgb(80, 15, 20));
    ASSERT_EQ(spots.size(), 2u);
    EXPECT_EQ(spots[0].pen, Rgb(50, 50, 50));
}

TEST_F(SpotColoursTest, ASelectedSpotTakesTheSelectedColours) {
    build::Spot({ 0, 0 }, { "BRV" })->flags |= model::kSelected;
    EXPECT_TRUE(Spots(Rgb(160, 31, 41)).empty());
    EXPECT_EQ(Spots(Rgb(255, 200, 30)).size(), 2u);
}

TEST_F(SpotColoursTest, ASpecWithoutColourLeavesTheUsualOne) {
    build::Spot({ 0, 0 }, { "PAL" });
    const auto spots = Spots(Rgb(160, 255, 160));
    ASSERT_EQ(spots.size(), 2u);
    EXPECT_EQ(spots[0].pen, Rgb(40, 170, 40));
}

}  // namespace
