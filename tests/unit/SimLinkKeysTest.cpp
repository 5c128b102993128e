// What the hot keys in the simulator make of the airport.
#include <filesystem>

#include "fakes/SimLinkFixture.h"

namespace {

using namespace simlinked;

class SimLinkKeysTest : public SimLinkFixture {};

TEST_F(SimLinkKeysTest, AKeyPressedBeforeTheAirportWasOpenIsAcknowledgedAndForgotten) {
    model::ClearModel();
    Tick();
    Press(1);
    for (int i = 0; i < 2; ++i) Tick();
    EXPECT_EQ(model::state.head, nullptr);
    EXPECT_NE(SlotValue(fakeTransport.simulator, 1) >> 24, 0u) << "without an airport no slot is written to";
    OpenAirport("C:\\two.bgl");
    for (int i = 0; i < 2; ++i) Tick();
    EXPECT_EQ(SlotValue(fakeTransport.simulator, 1) >> 24, 0u);
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 0u);
    EXPECT_FALSE(model::state.modified);
    Press(1);
    Tick();
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 1u) << "this one is meant";
}

TEST_F(SimLinkKeysTest, EachHotKeyMakesItsObjectWhereTheAircraftIs) {
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

TEST_F(SimLinkKeysTest, HotKeysPressedAtOnceAllCount) {
    Tick();
    for (uint32_t slot : { 1u, 2u, 3u }) Press(slot);
    Tick();
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 1u);
    EXPECT_EQ(model::CountKind(model::kParkingSpot), 1u);
    EXPECT_EQ(model::CountKind(model::kReferenceMarker), 1u);
}

TEST_F(SimLinkKeysTest, TheKeysOfTheSettingsAreRegistered) {
    app::settings.nodeKeyCode = 1;
    app::settings.parkingKeyCode = 2;
    app::settings.markerKeyCode = 255;
    Tick();
    EXPECT_EQ(SlotValue(fakeTransport.simulator, 1), 0x10001u);
    EXPECT_EQ(SlotValue(fakeTransport.simulator, 2), 0x10002u);
    EXPECT_EQ(SlotValue(fakeTransport.simulator, 3), 0x100FFu);
}

TEST_F(SimLinkKeysTest, UnderADragOrADialogAPressIsKeptWithItsPlace) {
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

TEST_F(SimLinkKeysTest, KeptPressesAreNotForAnotherAirport) {
    Tick();
    fakeSimLinkHost.mapInFront = false;
    Press(1);
    Tick();
    app::CloseAirport();
    OpenAirport("C:\\two.bgl");
    fakeSimLinkHost.mapInFront = true;
    Tick();
    Press(2);
    Tick();
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 0u);
    EXPECT_EQ(model::CountKind(model::kParkingSpot), 1u) << "this one is";
}

TEST_F(SimLinkKeysTest, AnAirportThatOpensInPlaceOfAnotherGetsNoKeptPresses) {
    const TemporaryFolder folder;
    const std::filesystem::path file = folder.path / "other.bgl";
    ASSERT_EQ(bgl::WriteAirportFile(file.string()), 1);
    Tick();
    fakeSimLinkHost.mapInFront = false;
    Press(1);
    Tick();
    Press(2);  // while the file is read
    EXPECT_TRUE(app::OpenAirportFile(file.string(), ""));
    fakeSimLinkHost.mapInFront = true;
    Tick();
    EXPECT_TRUE(model::state.loaded);
    EXPECT_EQ(model::CountKind(model::kParkingSpot), 0u);
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 0u);
}

TEST_F(SimLinkKeysTest, APressUnderTheSaveDialogIsMadeThoughTheFileChanges) {
    Tick();
    fakeSimLinkHost.mapInFront = false;
    Press(1);
    Tick();
    app::state.sourceFile = "C:\\TV2_KTST.bgl";
    fakeSimLinkHost.mapInFront = true;
    Tick();
    EXPECT_EQ(model::CountKind(model::kTaxiNode), 1u);
}

TEST_F(SimLinkKeysTest, APressThatCannotBeAcknowledgedBlocksOnlyOnce) {
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

TEST_F(SimLinkKeysTest, APressCountsEvenWhenItsAcknowledgementFails) {
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

TEST_F(SimLinkKeysTest, AnAnswerThatEndsEarlyRepeatsNoPress) {
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

}  // namespace
