// FaultHostTest.cpp - when the fault finder may look for faults, and what opening an airport does to it.
#include "faults/FaultHost.h"

#include <gtest/gtest.h>

#include "app/Airport.h"
#include "dialogs/OverMap.h"
#include "fakes/FakeShell.h"
#include "map/FaultMarker.h"
#include "model/ObjectList.h"

TEST(FaultHost, FaultsAreNotSearchedWhileTheMapIsEdited) {
    ResetProgram();
    EXPECT_TRUE(faults::MayFindFaults());
    model::state.busy = true;
    EXPECT_FALSE(faults::MayFindFaults());
    model::state.busy = false;
    dialogs::overMap.open = true;
    EXPECT_FALSE(faults::MayFindFaults());
    dialogs::overMap = {};
    EXPECT_TRUE(faults::MayFindFaults());
}

TEST(FaultHost, TheMenusShowWhatTheFinderHasSwitched) {
    ResetProgram();
    faults::ShowMapState();
    EXPECT_EQ(fakeShell.stateRefreshes, 1);
}

TEST(FaultHost, HelpOpensAtTheFindersTopic) {
    ResetProgram();
    faults::OpenHelpTopic("#FaultFinder");
    ASSERT_EQ(fakeShell.helpTopics.size(), 1u);
    EXPECT_EQ(fakeShell.helpTopics[0], "#FaultFinder");
}

TEST(FaultHost, ClosingTheAirportTakesItsMarkerAway) {
    ResetProgram();
    model::state.loaded = true;
    map::faultMarker = { true, {} };
    app::CloseAirport();
    EXPECT_FALSE(map::faultMarker.shown);
    ResetProgram();
}
