#include "app/SimLink.h"

#include <filesystem>
#include <random>

#include "app/Airport.h"
#include "app/AppState.h"
#include "app/Commands.h"
#include "bgl/AirportWriter.h"
#include "fakes/FakeShell.h"
#include "fakes/FakeSimLinkHost.h"
#include "fakes/FakeTransport.h"
#include "fakes/MapFixture.h"
#include "link/Ipc.h"
#include "link/Simulator.h"
#include "model/EditHistory.h"
#include "Resource.h"

namespace {

using app::PollSimulator;
using model::kPi;
using model::PayloadAs;
using model::SceneryObject;

constexpr uint32_t kEast = 0x40000000;

class SimLinkTest : public MapFixture {
protected:
    void SetUp() override {
        ResetProgram();
        MapFixture::SetUp();
        ResetTransport();
        app::ReleaseSimulator();
        fakeSimLinkHost = {};
        OpenAirport("C:\\one.bgl");
        Fly({ 100, 50 }, 0);
    }
    void TearDown() override {
        app::ReleaseSimulator();
        MapFixture::TearDown();
    }

    static void OpenAirport(const char* file) {
        model::state.airport = build::Airport("KTST");
        model::state.loaded = true;
        app::state.sourceFile = file;
    }
    static void Fly(build::Place place, uint32_t heading) {
        const simlink::SimPosition at = simlink::FromLatLon(build::At(place));
        PutAircraft(&fakeTransport.simulator, at.latitude, at.longitude, heading);
    }
    static void Tick() {
        fakeTransport.now += app::kSimLinkPeriod;
        PollSimulator();
    }
    static void TickUntilNextAttempt() {
        const int sends = fakeTransport.sends;
        for (int i = 0; i < 100 && fakeTransport.sends == sends; ++i) Tick();
    }
    static double MetresFrom(model::LatLon position, build::Place place) {
        return model::DistanceBetween(position, build::At(place));
    }
    // The simulator answers, but the list of requests comes back without its types.
    static void SpoilTypes() {
        fakeTransport.answer = [](uint8_t* block) {
            const simlink::Sent sent = ServeBlock(block);
            std::memset(block, 0xEF, 4);
            return sent;
        };
    }
    static void Break() {
        fakeTransport.answer = [](uint8_t*) { return simlink::Sent{ true, 0, 0 }; };
    }
    static void Mend() { fakeTransport.answer = nullptr; }
    static void Press(uint32_t slot) { PressSlot(&fakeTransport.simulator, slot); }
    static void ForgetCounts() {
        ResetFakes();
        fakeSimLinkHost.readOuts = 0;
        fakeShell.stateRefreshes = 0;
    }
};

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
    Press(1);
    Tick();
    Press(1);
    Tick();
    EXPECT_TRUE(app::IsSimulatorConnected());
    EXPECT_EQ(fake.repaints + fake.feedbackRequests, 0);
    EXPECT_EQ(model::state.head, nullptr);
    EXPECT_EQ(SlotValue(fakeTransport.simulator, 2) >> 24, 0u);
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

TEST_F(SimLinkTest, EachHotKeyMakesItsObjectWhereTheAircraftIs) {
    Tick();
    const struct {
        uint32_t slot, kind;
        build::Place place;
    } rows[] = { { 1, model::kTaxiNode, { 200, 0 } },
                 { 2, model::kParkingSpot, { 300, 0 } },
                 { 3, model::kReferenceMarker, { 400, 0 } } };
    for (const auto& row : rows) {
        Fly(row.place, kEast);
        const uint32_t registered = SlotValue(fakeTransport.simulator, row.slot);
        Press(row.slot);
        Tick();
        ASSERT_EQ(model::CountKind(row.kind), 1u);
        const SceneryObject* made = model::FirstOfKind(model::state.head, row.kind);
        EXPECT_LT(MetresFrom(model::PositionOf(made), row.place), 0.1);
        EXPECT_EQ(SlotValue(fakeTransport.simulator, row.slot), registered) << "the press is acknowledged";
        Tick();
        EXPECT_EQ(model::CountKind(row.kind), 1u) << "one press, one object";
    }
    EXPECT_TRUE(model::state.modified);
    EXPECT_NEAR(
        double{
            PayloadAs<model::ParkingSpotRecord>(model::FirstOfKind(model::state.head, model::kParkingSpot)).heading },
        90, 1e-3);
    for (uint32_t kind : { model::kReferenceMarker, model::kParkingSpot, model::kTaxiNode }) {
        model::Undo();
        EXPECT_EQ(model::CountKind(kind), 0u) << "each is undone on its own";
    }
    EXPECT_FALSE(model::CanUndo());
}

TEST_F(SimLinkTest, HotKeysPressedAtOnceAllCount) {
    Tick();
    for (uint32_t slot : { 1u, 2u, 3u }) Press(slot);
    Tick();
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 1u);
    EXPECT_EQ(model::CountKind(model::kParkingSpot), 1u);
    EXPECT_EQ(model::CountKind(model::kReferenceMarker), 1u);
}

TEST_F(SimLinkTest, TheKeysOfTheSettingsAreRegistered) {
    app::settings.nodeKeyCode = 1;
    app::settings.parkingKeyCode = 2;
    app::settings.markerKeyCode = 255;
    Tick();
    EXPECT_EQ(SlotValue(fakeTransport.simulator, 1), 0x10001u);
    EXPECT_EQ(SlotValue(fakeTransport.simulator, 2), 0x10002u);
    EXPECT_EQ(SlotValue(fakeTransport.simulator, 3), 0x100FFu);
}

TEST_F(SimLinkTest, UnderADragOrADialogAPressIsKeptWithItsPlace) {
    Tick();
    model::state.busy = true;
    Press(1);
    Tick();
    model::state.busy = false;
    map::tools.pressed = true;
    Tick();
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 0u) << "the press of the mouse may become a drag";
    map::tools.pressed = false;
    fakeSimLinkHost.mapInFront = false;
    Fly({ 500, 50 }, 0);
    Press(1);
    Tick();
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 0u);
    EXPECT_EQ(SlotValue(fakeTransport.simulator, 1) >> 24, 0u) << "the simulator may send the next one";
    fakeSimLinkHost.mapInFront = true;
    Fly({ 900, 50 }, 0);
    Tick();
    ASSERT_EQ(model::CountKind(model::kTaxiNode), 2u);
    SceneryObject* first = model::FirstOfKind(model::state.head, model::kTaxiNode);
    EXPECT_LT(MetresFrom(model::PositionOf(first), { 100, 50 }), 0.1);
    EXPECT_LT(MetresFrom(model::PositionOf(model::NextOfKind(first, model::kTaxiNode)), { 500, 50 }), 0.1);
}

TEST_F(SimLinkTest, KeptPressesAreNotForAnotherAirport) {
    Tick();
    fakeSimLinkHost.mapInFront = false;
    Press(1);
    Tick();
    app::CloseAirport();
    OpenAirport("C:\\two.bgl");
    fakeSimLinkHost.mapInFront = true;
    Press(2);
    Tick();
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 0u);
    EXPECT_EQ(model::CountKind(model::kParkingSpot), 1u) << "this one is";
}

TEST_F(SimLinkTest, AnAirportThatOpensInPlaceOfAnotherGetsNoKeptPresses) {
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() / ("tarvo-presses-" + std::to_string(std::random_device{}()) + ".bgl");
    ASSERT_EQ(bgl::WriteAirportFile(file.string()), 1);
    Tick();
    fakeSimLinkHost.mapInFront = false;
    Press(1);
    Tick();
    EXPECT_TRUE(app::OpenAirportFile(file.string(), ""));
    fakeSimLinkHost.mapInFront = true;
    Tick();
    EXPECT_TRUE(model::state.loaded);
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 0u);
    std::filesystem::remove(file);
}

TEST_F(SimLinkTest, APressUnderTheSaveDialogIsMadeThoughTheFileChanges) {
    Tick();
    fakeSimLinkHost.mapInFront = false;
    Press(1);
    Tick();
    app::state.sourceFile = "C:\\TV2_KTST.bgl";
    fakeSimLinkHost.mapInFront = true;
    Tick();
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 1u);
}

TEST_F(SimLinkTest, APressThatCannotBeAcknowledgedBlocksOnlyOnce) {
    Tick();
    for (uint32_t slot : { 1u, 2u, 3u }) Press(slot);
    fakeTransport.answer = [](uint8_t* block) { return block[0] == 2 ? TimesOut() : ServeBlock(block); };
    const uint64_t start = fakeTransport.now;
    Tick();
    EXPECT_EQ(fakeTransport.now - start, app::kSimLinkPeriod + 9 * 2000 + 8 * 100);
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 1u);
    EXPECT_EQ(model::CountKind(model::kParkingSpot), 1u);
    EXPECT_EQ(model::CountKind(model::kReferenceMarker), 1u);
    EXPECT_FALSE(app::IsSimulatorConnected());
    Mend();
    TickUntilNextAttempt();
    Tick();
    EXPECT_EQ(model::CountKind(model::kReferenceMarker), 1u) << "none counts twice";
    EXPECT_EQ(model::CountKind(model::kParkingSpot), 1u);
}

TEST_F(SimLinkTest, APressCountsEvenWhenItsAcknowledgementFails) {
    Tick();
    Press(1);
    fakeTransport.answer = [](uint8_t* block) {
        const bool acknowledges = block[0] == 2;
        return acknowledges ? simlink::Sent{ true, 0, 0 } : ServeBlock(block);
    };
    Tick();
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 1u);
    EXPECT_FALSE(app::IsSimulatorConnected());
    EXPECT_FALSE(map::simAircraft.active);
    Mend();
    TickUntilNextAttempt();
    Tick();
    EXPECT_TRUE(app::IsSimulatorConnected());
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 1u) << "not counted twice";
}

TEST_F(SimLinkTest, AnAnswerThatEndsEarlyRepeatsNoPress) {
    Tick();
    Press(1);
    Tick();
    ASSERT_EQ(model::CountKind(model::kTaxiNode), 1u);
    fakeTransport.answer = [](uint8_t* block) {
        std::memset(block, 0, 4);
        return simlink::Sent{ true, 1, 0 };
    };
    Fly({ 500, 500 }, 0);
    for (int i = 0; i < 5; ++i) Tick();
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 1u);
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
