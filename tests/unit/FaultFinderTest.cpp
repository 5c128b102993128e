// FaultFinderTest.cpp - a press of the window's button: selection, marker, view, switches of the map.
#include "faults/FaultFinder.h"

#include "fakes/FaultAirport.h"
#include "faults/Messages.h"
#include "map/FaultMarker.h"
#include "map/MapView.h"

namespace {

using build::Node;
using faults::AllSwitches;
using faults::FindFaults;

struct FaultFinder : FaultTest {
    void SetUp() override {
        FaultTest::SetUp();
        map::view = {};
        map::layers = {};
        map::faultMarker = {};
        faults::state = {};
        faults::OpenFinder();
    }
};

bool Near(model::LatLon position, build::Place place) {
    return model::DistanceBetween(position, build::At(place)) < 0.2;
}

}  // namespace

TEST_F(FaultFinder, AllChecksAreOnAtTheStartOfTheProgram) {
    EXPECT_EQ(faults::FinderState{}.search.switches, AllSwitches());
}

TEST_F(FaultFinder, AnEmptyAirportHasNoFaults) {
    EXPECT_EQ(FindFaults(AllSwitches()), "No faults found.");
    EXPECT_FALSE(map::faultMarker.shown);
}

TEST_F(FaultFinder, AFaultIsSelectedShownAndCentred) {
    model::SceneryObject* first = Node({ 0, 2000 });
    model::SceneryObject* second = Node({ 10, 2000 });
    map::view.lockedToSim = true;
    fake.repaints = 0;
    EXPECT_EQ(FindFaults(AllSwitches()), faults::kNodesUnconnectedMessage);
    EXPECT_TRUE(IsSelected(first));
    EXPECT_TRUE(IsSelected(second));
    EXPECT_TRUE(map::faultMarker.shown);
    EXPECT_TRUE(Near(map::faultMarker.position, { 0, 2000 }));
    EXPECT_TRUE(Near(map::view.centre, { 0, 2000 }));
    EXPECT_FALSE(map::view.lockedToSim);
    EXPECT_GT(fake.repaints, 0);
    EXPECT_FALSE(map::layers.holdShortLimits);
    EXPECT_FALSE(map::layers.starts);
}

TEST_F(FaultFinder, EachPressDeselectsAndHidesTheMarkerFirst) {
    MakeCleanAirport();
    model::SceneryObject* spot = build::Spot({ 0, 2000 });
    model::state.head->flags |= model::kSelected;
    FindFaults(AllSwitches());
    EXPECT_FALSE(IsSelected(model::state.head));
    EXPECT_TRUE(IsSelected(spot));
    fake.repaints = 0;
    EXPECT_EQ(FindFaults(AllSwitches()), "No more faults found.");
    EXPECT_FALSE(IsSelected(spot));
    EXPECT_FALSE(map::faultMarker.shown);
    EXPECT_GT(fake.repaints, 0);
    EXPECT_EQ(FindFaults(AllSwitches()), faults::kIsolatedParkingMessage);
    EXPECT_TRUE(map::faultMarker.shown);
}

TEST_F(FaultFinder, WhatAPressDeselectsIsPaintedAnew) {
    MakeCleanAirport();
    model::state.head->flags |= model::kSelected;
    fake.repaints = 0;
    EXPECT_EQ(FindFaults(AllSwitches()), "No faults found.");
    EXPECT_FALSE(IsSelected(model::state.head));
    EXPECT_GT(fake.repaints, 0);
}

TEST_F(FaultFinder, AHoldShortFaultShowsTheLimits) {
    Node({}, model::kHoldShortNode);
    FindFaults(AllSwitches());
    EXPECT_TRUE(map::layers.holdShortLimits);
    EXPECT_FALSE(map::layers.starts);
}

TEST_F(FaultFinder, AMissingStartShowsTheStarts) {
    HeadedRunway(9, 90);
    FindFaults(AllSwitches());
    EXPECT_TRUE(map::layers.starts);
    EXPECT_FALSE(map::layers.holdShortLimits);
    EXPECT_TRUE(Near(map::view.centre, { 1000 - 60.96, 0 }));
}

TEST_F(FaultFinder, TheBoxesAreTakenAtEachPress) {
    Node({}, model::kHoldShortNode);
    EXPECT_EQ(FindFaults({}), "No faults found.");
    EXPECT_EQ(FindFaults(Only(faults::FaultCheck::IsolatedSegments)), faults::kIsolatedNodeMessage);
    EXPECT_EQ(faults::state.search.switches, Only(faults::FaultCheck::IsolatedSegments));
}

TEST_F(FaultFinder, ClosingHidesTheMarkerAndOpeningStartsOver) {
    Node({}, model::kHoldShortNode);
    FindFaults(AllSwitches());
    fake.repaints = 0;
    faults::CloseFinder();
    EXPECT_FALSE(map::faultMarker.shown);
    EXPECT_GT(fake.repaints, 0);
    fake.repaints = 0;
    faults::CloseFinder();
    EXPECT_EQ(fake.repaints, 0);
    faults::OpenFinder();
    EXPECT_EQ(FindFaults(AllSwitches()), faults::kHoldShortMessage);
}

TEST_F(FaultFinder, WhenOneOfTwoWindowsClosesTheOtherGoesOn) {
    Node({}, model::kHoldShortNode);
    EXPECT_EQ(FindFaults(AllSwitches()), faults::kHoldShortMessage);
    faults::CloseFinder();
    EXPECT_EQ(FindFaults(AllSwitches()), faults::kIsolatedNodeMessage);
    faults::CloseFinder();
    EXPECT_EQ(FindFaults(AllSwitches()), "No more faults found.");
}

TEST_F(FaultFinder, AnotherAirportStartsOverWithoutTheMarker) {
    Node({}, model::kHoldShortNode);
    FindFaults(AllSwitches());
    FindFaults(AllSwitches());
    model::ClearModel();
    faults::ForgetAirport();
    EXPECT_FALSE(map::faultMarker.shown);
    Node({}, model::kHoldShortNode);
    EXPECT_EQ(FindFaults(AllSwitches()), faults::kHoldShortMessage);
}

TEST_F(FaultFinder, EveryMessageFitsItsBuffer) {
    for (const char* message : { faults::kHoldShortMessage, faults::kNodesUnconnectedMessage,
                                 faults::kMisplacedLinkMessage, faults::kLinkDesignatorMessage })
        EXPECT_LT(std::string(message).size(), 1000u);
}
