// FaultHostTest.cpp - when the fault finder may look for faults, and what opening an airport does to it.
#include "faults/FaultHost.h"

#include <gtest/gtest.h>

#include "app/Airport.h"
#include "app/AppState.h"
#include "dialogs/OverMap.h"
#include "fakes/FakeShell.h"
#include "fakes/TestLibrary.h"
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
    const TestLibrary files;
    files.PutCache("ReadMe.htm", "<h1>Manual</h1>");
    app::state.programFolder = files.program;
    fakeShell.registeredCommands["http"] = "b.exe %1";
    faults::OpenHelpTopic("#FaultFinder");
    ASSERT_EQ(fakeShell.startedCommands.size(), 1u);
    EXPECT_TRUE(fakeShell.startedCommands[0].ends_with("/ReadMe.htm#FaultFinder"));
    ResetProgram();
}

TEST(FaultHost, ClosingTheAirportTakesItsMarkerAway) {
    ResetProgram();
    model::state.loaded = true;
    map::faultMarker = { true, {} };
    app::CloseAirport();
    EXPECT_FALSE(map::faultMarker.shown);
    ResetProgram();
}
