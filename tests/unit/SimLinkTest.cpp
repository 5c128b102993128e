#include "app/SimLink.h"

#include "fakes/SimLinkFixture.h"

namespace {

using namespace simlinked;

class SimLinkTest : public SimLinkFixture {};

TEST_F(SimLinkTest, TheAircraftIsOnTheMapOnceTheSimulatorAnswers) {
    EXPECT_EQ(app::SimulatorText(), "Simulator: not connected");
    Tick();
    EXPECT_TRUE(app::IsSimulatorConnected());
    EXPECT_EQ(app::SimulatorText(), "Simulator: connected");
    EXPECT_TRUE(map::simAircraft.active);
    EXPECT_LT(MetresFrom(map::simAircraft.position, { 100, 50 }), 0.01);
    EXPECT_EQ(fake.repaints, 0) << "only the symbol is drawn";
    EXPECT_EQ(fake.feedbackRequests, 1);
    EXPECT_GT(fakeSimLinkHost.readOuts, 0);
    EXPECT_GT(fakeShell.stateRefreshes, 0);
}

TEST_F(SimLinkTest, AnAircraftThatNeitherMovedNorTurnedCausesNoRedraw) {
    Tick();
    for (const bool locked : { false, true }) {
        map::view.lockedToSim = locked;
        Tick();  // the view may have to go there
        ForgetCounts();
        for (int i = 0; i < 5; ++i) Tick();
        EXPECT_EQ(fake.repaints, 0);
        EXPECT_EQ(fake.feedbackRequests, 0);
        EXPECT_EQ(fakeSimLinkHost.readOuts, 0);
        EXPECT_EQ(fakeShell.stateRefreshes, 0);
    }
}

TEST_F(SimLinkTest, EachOfLatitudeLongitudeAndHeadingCountsAsAMove) {
    Tick();
    const build::Place places[] = { { 100, 60 }, { 110, 60 }, { 110, 60 } };
    const uint32_t headings[] = { 0, 0, 1 };
    for (int i = 0; i < 3; ++i) {
        ForgetCounts();
        Fly(places[i], headings[i]);
        Tick();
        EXPECT_EQ(fake.feedbackRequests, 1) << i;
        EXPECT_EQ(fakeSimLinkHost.readOuts, 1) << i;
        EXPECT_EQ(fake.repaints, 0) << i;
    }
}

TEST_F(SimLinkTest, LockedTheMapFollowsAndTurns) {
    map::view.lockedToSim = true;
    Fly({ 300, -200 }, kEast);
    Tick();
    EXPECT_LT(MetresFrom(map::view.centre, { 300, -200 }), 0.01);
    EXPECT_NEAR(map::view.rotation, kPi / 2, 1e-8);
    EXPECT_EQ(fake.repaints, 1);
    EXPECT_EQ(fake.rotationChanges, 1);
}

TEST_F(SimLinkTest, ALockedMapFindsAStandingAircraftAfterAnotherAirportWasOpened) {
    map::view.lockedToSim = true;
    Tick();
    map::ResetView(build::At({ 9000, 9000 }));
    Tick();
    EXPECT_LT(MetresFrom(map::view.centre, { 100, 50 }), 0.01);
}

TEST_F(SimLinkTest, WithoutAnAirportTheLinkIsUpButNothingIsDrawn) {
    model::ClearModel();
    for (int i = 0; i < 2; ++i) Tick();
    EXPECT_TRUE(app::IsSimulatorConnected());
    EXPECT_EQ(fake.repaints + fake.feedbackRequests, 0);
    OpenAirport("C:\\two.bgl");
    Tick();
    EXPECT_EQ(fake.feedbackRequests, 1) << "now it is, though it has not moved";
}

TEST_F(SimLinkTest, TheLostSimulatorsSymbolIsErased) {
    Tick();
    ForgetCounts();
    Break();
    Tick();
    EXPECT_FALSE(map::simAircraft.active);
    EXPECT_EQ(fake.feedbackRequests, 1);
    EXPECT_EQ(fakeShell.stateRefreshes, 1);
    EXPECT_EQ(app::SimulatorText(), "Simulator: not connected");
    ForgetCounts();
    TickUntilNextAttempt();
    EXPECT_EQ(fake.feedbackRequests, 0) << "there is nothing more to erase";
    Mend();
    TickUntilNextAttempt();
    EXPECT_TRUE(map::simAircraft.active);
    EXPECT_EQ(fake.feedbackRequests, 1) << "drawn again though it stands still";
}

TEST_F(SimLinkTest, WithoutASimulatorNothingHappens) {
    fakeTransport.windows.clear();
    for (int i = 0; i < 10; ++i) Tick();
    EXPECT_FALSE(app::IsSimulatorConnected());
    EXPECT_EQ(fake.repaints + fake.feedbackRequests + fakeShell.stateRefreshes, 0);
}

TEST_F(SimLinkTest, APositionOffTheEarthIsNotShown) {
    Tick();
    const model::LatLon before = map::simAircraft.position;
    ForgetCounts();
    PutAircraft(&fakeTransport.simulator, INT64_MAX, 0, 0);
    Press(1);
    Tick();
    EXPECT_TRUE(app::IsSimulatorConnected());
    EXPECT_EQ(map::simAircraft.position.lat, before.lat);
    EXPECT_EQ(fake.feedbackRequests, 0);
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 0u);
}

TEST_F(SimLinkTest, AMovedAircraftIsWhereItWasMovedToThoughTheNextAnswerEndsEarly) {
    Tick();
    app::PlaceAircraft(build::At({ 700, 0 }), kPi / 2);
    SpoilTypes();
    for (int i = 0; i < 3; ++i) Tick();
    EXPECT_TRUE(app::IsSimulatorConnected()) << "an unknown type is no failure";
    EXPECT_LT(MetresFrom(map::simAircraft.position, { 700, 0 }), 0.01);
    EXPECT_NEAR(map::simAircraft.heading, kPi / 2, 1e-8);
}

TEST_F(SimLinkTest, PlacingTheAircraftNeedsASimulator) {
    app::PlaceAircraft(build::At({ 0, 0 }), 1);
    app::StopAircraft();
    EXPECT_EQ(fakeTransport.sends, 0);
    Tick();
    app::PlaceAircraft(build::At({ 700, 0 }), kPi / 2);
    ForgetCounts();
    Tick();
    EXPECT_LT(MetresFrom(map::simAircraft.position, { 700, 0 }), 0.01);
    EXPECT_NEAR(map::simAircraft.heading, kPi / 2, 1e-8);
    EXPECT_EQ(fake.feedbackRequests, 1);
}

TEST_F(SimLinkTest, WithoutAnAirportTheAircraftIsNotPlaced) {
    Tick();
    model::ClearModel();
    const int sends = fakeTransport.sends;
    app::PlaceAircraft(build::At({ 700, 0 }), 0);
    EXPECT_EQ(fakeTransport.sends, sends);
    EXPECT_FALSE(app::IsCommandEnabled(IDM_JUMP_HERE));
    EXPECT_TRUE(app::IsCommandEnabled(IDK_SLEW_STOP));
}

TEST_F(SimLinkTest, AFailedPlacingIsALostSimulator) {
    Tick();
    ForgetCounts();
    Break();
    app::PlaceAircraft(build::At({ 700, 0 }), 0);
    EXPECT_FALSE(map::simAircraft.active);
    EXPECT_EQ(fakeShell.stateRefreshes, 1);
}

TEST_F(SimLinkTest, JumpHereAndTheSlewKeyAreGreyedWithoutASimulator) {
    EXPECT_FALSE(app::IsCommandEnabled(IDM_JUMP_HERE));
    EXPECT_FALSE(app::IsCommandEnabled(IDK_SLEW_STOP));
    Tick();
    EXPECT_TRUE(app::IsCommandEnabled(IDM_JUMP_HERE));
    PutValue(&fakeTransport.simulator, 0x5DC, 0, 2);
    EXPECT_TRUE(app::RunCommand(IDK_SLEW_STOP));
    EXPECT_EQ(ValueAt(fakeTransport.simulator, 0x5DC, 2), 1u);
    Break();
    Tick();
    EXPECT_FALSE(app::IsCommandEnabled(IDM_JUMP_HERE));
    EXPECT_FALSE(app::IsCommandEnabled(IDK_SLEW_STOP));
}

TEST_F(SimLinkTest, AtTheEndTheSimulatorForgetsTheKeys) {
    Tick();
    app::ReleaseSimulator();
    EXPECT_EQ(SlotValue(fakeTransport.simulator, 1), 0u);
    EXPECT_FALSE(app::IsSimulatorConnected());
    EXPECT_FALSE(map::simAircraft.active);
    EXPECT_EQ(simlink::ipc.view, nullptr);
}

}  // namespace
