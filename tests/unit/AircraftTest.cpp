#include "map/Aircraft.h"

#include "fakes/MapFixture.h"

namespace {

using namespace map;

class AircraftTest : public MapFixture {
protected:
    void SetUp() override {
        MapFixture::SetUp();
        Open();
    }
};

TEST_F(AircraftTest, UnlockedOnlyTheSymbolMoves) {
    ShowAircraft(build::At({ 100, 50 }), 1);
    EXPECT_TRUE(simAircraft.active);
    EXPECT_EQ(simAircraft.heading, 1);
    EXPECT_EQ(fake.repaints, 0);
    EXPECT_EQ(fake.feedbackRequests, 1);
    EXPECT_EQ(view.rotation, 0);
    EXPECT_EQ(view.centre.lat, build::kMiddle.lat);
}

TEST_F(AircraftTest, LockedTheViewGoesAlong) {
    view.lockedToSim = true;
    const LatLon position = build::At({ 100, 50 });
    ShowAircraft(position, 1);
    EXPECT_EQ(view.centre.lat, position.lat);
    EXPECT_EQ(view.centre.lon, position.lon);
    EXPECT_EQ(view.rotation, 1);
    EXPECT_EQ(fake.repaints, 1);
    EXPECT_EQ(fake.rotationChanges, 1);
}

TEST_F(AircraftTest, HidingErasesTheSymbol) {
    ShowAircraft(build::At({ 100, 50 }), 1);
    HideAircraft();
    EXPECT_FALSE(simAircraft.active);
    EXPECT_EQ(fake.feedbackRequests, 2);
    view.lockedToSim = true;
    HideAircraft();
    EXPECT_EQ(fake.repaints, 1) << "locked, the symbol is painted with the map";
}

TEST_F(AircraftTest, LockingGoesToTheAircraftAtOnce) {
    const LatLon position = build::At({ 100, 50 });
    ShowAircraft(position, 2);
    ToggleLock();
    EXPECT_TRUE(view.lockedToSim);
    EXPECT_EQ(view.centre.lat, position.lat);
    EXPECT_EQ(view.rotation, 2);
    EXPECT_EQ(fake.repaints, 1);
    view.centre = build::kMiddle;
    ToggleLock();
    EXPECT_FALSE(view.lockedToSim);
    EXPECT_EQ(view.centre.lat, build::kMiddle.lat) << "unlocking moves nothing";
    EXPECT_EQ(fake.repaints, 2);
}

TEST_F(AircraftTest, LockingWithoutASimulatorLeavesTheViewWhereItIs) {
    simAircraft.position = build::At({ 100, 50 });
    ToggleLock();
    EXPECT_TRUE(view.lockedToSim);
    EXPECT_EQ(view.centre.lat, build::kMiddle.lat);
    EXPECT_EQ(fake.repaints, 1);
}

TEST_F(AircraftTest, ALockedViewThatLooksElsewhereIsNotWithTheAircraft) {
    ShowAircraft(build::At({ 100, 50 }), 2);
    EXPECT_TRUE(ViewIsWithAircraft());
    view.lockedToSim = true;
    EXPECT_FALSE(ViewIsWithAircraft());
    ShowAircraft(build::At({ 100, 50 }), 2);
    EXPECT_TRUE(ViewIsWithAircraft());
    view.rotation = 0;
    EXPECT_FALSE(ViewIsWithAircraft());
}

TEST_F(AircraftTest, HomeTakesTheSymbolAlongUnlessLocked) {
    ShowAircraft(build::At({ 100, 50 }), 2);
    SlewHome();
    EXPECT_EQ(simAircraft.position.lat, view.home.lat);
    EXPECT_EQ(simAircraft.heading, 0);
    EXPECT_EQ(fake.placedAircraft.size(), 1u);
    ShowAircraft(build::At({ 100, 50 }), 2);
    view.lockedToSim = true;
    SlewHome();
    EXPECT_NE(simAircraft.position.lat, view.home.lat);
    EXPECT_EQ(fake.placedAircraft.size(), 2u) << "locked or not, the aircraft is moved";
}

}  // namespace
