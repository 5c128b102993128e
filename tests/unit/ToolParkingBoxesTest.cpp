// The toolbar's boxes of the parking type and of the parking spec.
#include <gtest/gtest.h>

#include "dialogs/ParkingCodes.h"
#include "fakes/ToolCombosFixture.h"
#include "model/SpotBits.h"

namespace {

using namespace combos;

class ToolParkingBoxesTest : public ToolCombosFixture {};

TEST_F(ToolParkingBoxesTest, SpecsStandInFileOrderBehindAnEmptyEntry) {
    UseSpecs({ "KLM", "Air France", "Lufthansa" });
    EXPECT_EQ(SpecTexts(), (Names{ "", "KLM", "Air France", "Lufthansa" }));
    EXPECT_EQ(CurrentSpecRow(), 0);
}

TEST_F(ToolParkingBoxesTest, TheMostUsedSpecsStandBetweenLinesAboveAllSpecs) {
    settings.mostUsedSpecs = { "Lufthansa", "Not in the file", "KLM" };
    UseSpecs({ "KLM", "Air France", "Lufthansa" });
    EXPECT_EQ(SpecTexts(), (Names{ "", kLine, "Lufthansa", "KLM", kLine, "KLM", "Air France", "Lufthansa" }));
}

TEST_F(ToolParkingBoxesTest, MostUsedSpecsThatTheFileLacksMakeNoLines) {
    settings.mostUsedSpecs = { "Not in the file" };
    UseSpecs({ "KLM" });
    EXPECT_EQ(SpecTexts(), (Names{ "", "KLM" }));
    EXPECT_EQ(settings.mostUsedSpecs.size(), 1u) << "the file may get it back";
}

TEST_F(ToolParkingBoxesTest, ChoosingASpecGivesItsCodesToTheSelectedSpotsAsOneAction) {
    OpenAnAirport();
    model::SceneryObject* first = SelectedSpot();
    model::SceneryObject* second = SelectedSpot();
    UseSpecs({ "Air", "Baw" });
    ChooseSpec(2, false);
    EXPECT_EQ(dialogs::CodesText(first), "BAW");
    EXPECT_EQ(dialogs::CodesText(second), "BAW");
    EXPECT_EQ(map::tools.parkingCodes, Names{ "BAW" });
    EXPECT_EQ(CurrentSpecRow(), 2);
    EXPECT_EQ(Actions(), 1);
    model::Undo();
    EXPECT_EQ(dialogs::CodesText(first), "KLM");
}

TEST_F(ToolParkingBoxesTest, ChoosingTheEmptyEntryTakesTheCodesAway) {
    OpenAnAirport();
    model::SceneryObject* spot = SelectedSpot();
    UseSpecs({ "Air" });
    ChooseSpec(1, false);
    Later(201);
    ChooseSpec(0, false);
    EXPECT_EQ(dialogs::CodesText(spot), "");
    EXPECT_TRUE(map::tools.parkingCodes.empty());
    EXPECT_EQ(CurrentSpecRow(), 0);
    EXPECT_EQ(settings.mostUsedSpecs, Names{ "Air" });
}

TEST_F(ToolParkingBoxesTest, TheSameSpecCanBeGivenToOtherSpotsAgain) {
    OpenAnAirport();
    UseSpecs({ "Air" });
    ChooseSpec(1, false);
    model::SceneryObject* spot = SelectedSpot();
    Later(201);
    ChooseSpec(1, false);
    EXPECT_EQ(dialogs::CodesText(spot), "AIR");
}

TEST_F(ToolParkingBoxesTest, ASpecSwitchesTheLabelsToCodesUnlessTheyShow) {
    UseSpecs({ "Air" });
    for (int mode : { 0, 1, 2 }) {
        settings.showLabels = mode;
        Later(201);
        ChooseSpec(1, false);
        EXPECT_EQ(settings.showLabels, 2) << mode;
    }
}

TEST_F(ToolParkingBoxesTest, OfTwoSpecsWithin200MillisecondsOnlyTheFirstIsTaken) {
    UseSpecs({ "Air", "Baw" });
    ChooseSpec(1, false);
    Later(200);
    ChooseSpec(2, false);
    EXPECT_EQ(CurrentSpecRow(), 1);
    EXPECT_EQ(map::tools.parkingCodes, Names{ "AIR" });
    EXPECT_EQ(settings.mostUsedSpecs, Names{ "Air" });
    fake.fileTime += 1;
    ChooseSpec(2, false);
    EXPECT_EQ(CurrentSpecRow(), 2);
}

TEST_F(ToolParkingBoxesTest, TheGuardIsSharedByBothParkingBoxesAndSurvivesAClockSetBack) {
    UseSpecs({ "Air" });
    ChooseType(4);
    ChooseSpec(1, false);
    EXPECT_EQ(CurrentSpecRow(), 0);
    fake.fileTime -= 3600 * 1000 * kMillisecond;
    ChooseSpec(1, false);
    EXPECT_EQ(CurrentSpecRow(), 1);
}

TEST_F(ToolParkingBoxesTest, TheVeryFirstChoiceIsTakenWhateverTheClockSays) {
    fake.fileTime = 0;
    UseSpecs({ "Air" });
    ChooseSpec(1, false);
    EXPECT_EQ(CurrentSpecRow(), 1);
}

TEST_F(ToolParkingBoxesTest, ALineCannotBeChosen) {
    settings.mostUsedSpecs = { "Air" };
    UseSpecs({ "Air", "Baw" });  // "", line, Air, line, Air, Baw
    for (int row : { 1, 3 }) {
        ChooseSpec(row, false);
        EXPECT_EQ(CurrentSpecRow(), 0);
    }
    for (int row : { -1, 6 }) ChooseSpec(row, false);
    EXPECT_FALSE(toolCombos.hasChoice);
    EXPECT_EQ(settings.showLabels, 0);
}

TEST_F(ToolParkingBoxesTest, AStepOntoALineGoesOnBeyondIt) {
    settings.mostUsedSpecs = { "Air" };
    UseSpecs({ "Air", "Baw" });
    const struct { int step, row; } steps[] = { { 1, 2 }, { 3, 4 }, { 3, 2 }, { 1, 0 } };
    for (const auto& [step, row] : steps) {
        ChooseSpec(step, true);
        EXPECT_EQ(CurrentSpecRow(), row);
        Later(201);
    }
}

TEST_F(ToolParkingBoxesTest, TheCurrentSpecStaysSelectedWhereItWasChosen) {
    settings.mostUsedSpecs = { "Baw", "Air" };
    UseSpecs({ "Air", "Baw", "Cyl" });  // "", line, Baw, Air, line, Air, Baw, Cyl
    ChooseSpec(3, false);
    EXPECT_EQ(CurrentSpecRow(), 3);
    RefreshSpecRows();  // Air leads now
    EXPECT_EQ(SpecTexts()[2], "Air");
    EXPECT_EQ(CurrentSpecRow(), 2);
    Later(201);
    ChooseSpec(6, false);
    RefreshSpecRows();
    EXPECT_EQ(CurrentSpecRow(), 6) << "chosen among all specs, it stays there";
    Later(201);
    ChooseSpec(7, false);
    RefreshSpecRows();
    EXPECT_EQ(CurrentSpecRow(), 8) << "one more stands above the second line";
}

TEST_F(ToolParkingBoxesTest, ASpecThatIsUsedLeadsTheMostUsedOnes) {
    NoteSpecUse("A");
    NoteSpecUse("B");
    EXPECT_EQ(settings.mostUsedSpecs, (Names{ "B", "A" }));
    NoteSpecUse("A");
    EXPECT_EQ(settings.mostUsedSpecs, (Names{ "A", "B" }));
}

TEST_F(ToolParkingBoxesTest, TheMostUsedSpecsAreAtMostTwenty) {
    for (int i = 0; i < 25; ++i) NoteSpecUse("Spec " + std::to_string(i));
    ASSERT_EQ(settings.mostUsedSpecs.size(), 20u);
    EXPECT_EQ(settings.mostUsedSpecs.front(), "Spec 24");
    EXPECT_EQ(settings.mostUsedSpecs.back(), "Spec 5");
}

TEST_F(ToolParkingBoxesTest, ASpecWhoseCodesCannotBeStoredIsRefusedWithAMessage) {
    UseSpecs({ "Air", "Baw" });
    parkingSpecs[1].codes = { "\xE4\xB8\xAD" };
    ChooseSpec(1, false);
    Later(201);
    ChooseSpec(2, false);
    EXPECT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(CurrentSpecRow(), 1);
    EXPECT_EQ(map::tools.parkingCodes, Names{ "AIR" });
}

TEST_F(ToolParkingBoxesTest, DuringADragNothingIsAssigned) {
    OpenAnAirport();
    model::SceneryObject* spot = SelectedSpot();
    UseSpecs({ "Air" });
    model::state.busy = true;
    ChooseSpec(1, false);
    Later(201);
    ChooseType(3);
    EXPECT_EQ(dialogs::CodesText(spot), "KLM");
    EXPECT_EQ(Actions(), 0);
    EXPECT_EQ(CurrentTypeRow(), 3) << "new spots get it all the same";
}

TEST_F(ToolParkingBoxesTest, ChoosingATypeIsForNewSpotsAndForTheSelectedOnes) {
    OpenAnAirport();
    model::SceneryObject* spot = SelectedSpot();
    ChooseType(9);
    EXPECT_EQ(map::tools.lastParkingType, 10);
    EXPECT_EQ(model::ParkingTypeCode(model::PayloadAs<model::ParkingSpotRecord>(spot)), 10u);
    EXPECT_EQ(CurrentTypeRow(), 9);
    EXPECT_EQ(Actions(), 1);
    Later(100);
    ChooseType(0);
    EXPECT_EQ(CurrentTypeRow(), 9) << "within 200 ms";
    Later(201);
    for (int row : { -1, 11 }) ChooseType(row);
    EXPECT_EQ(CurrentTypeRow(), 9);
}

TEST_F(ToolParkingBoxesTest, TheTypeBoxShowsTheTypeOfNewSpots) {
    for (int type = 1; type <= 11; ++type) {
        map::tools.lastParkingType = type;
        EXPECT_EQ(CurrentTypeRow(), type - 1);
    }
    for (int type : { 0, 12, -1 }) {
        map::tools.lastParkingType = type;
        EXPECT_EQ(CurrentTypeRow(), -1);
    }
}

}  // namespace
