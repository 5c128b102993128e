#include "app/ToolCombos.h"

#include <gtest/gtest.h>

#include "app/Keys.h"
#include "app/ParkingSpecs.h"
#include "app/Settings.h"
#include "dialogs/ParkingCodes.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakeDialogHost.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeShell.h"
#include "map/MapView.h"
#include "map/Tools.h"
#include "model/EditHistory.h"

namespace {

using namespace app;
using platform::Answer;
using Names = std::vector<std::string>;

constexpr uint64_t kMillisecond = 10000;
const std::string kLine(87, '-');

class ToolCombosTest : public testing::Test {
protected:
    void SetUp() override { Reset(); }
    void TearDown() override { Reset(); }

    static void Reset() {
        ResetProgram();
        ResetDialogFakes();
        toolCombos = {};
        parkingSpecs.clear();
    }

    static void OpenAnAirport() {
        model::state.airport = build::Airport("KTST");
        model::state.loaded = true;
        ++model::state.revision;
    }

    static model::SceneryObject* SelectedSpot() {
        model::SceneryObject* spot = build::Spot({}, { "KLM" });
        spot->flags |= model::kSelected;
        return spot;
    }

    // A copy: the field may lie at an odd address.
    static model::SceneryObject* DesignatorOf(const model::SceneryObject* link) {
        return model::PayloadAs<model::TaxiLinkPayload>(link).designator;
    }

    static void UseSpecs(const Names& names) {
        for (const std::string& name : names) {
            ParkingSpec spec;
            spec.name = name;
            spec.codes = { name.substr(0, 3) };
            parkingSpecs.push_back(spec);
        }
        RefreshSpecRows();
    }

    static Names SpecTexts() {
        Names texts;
        for (const SpecRow& row : toolCombos.specs) texts.push_back(row.text);
        return texts;
    }

    static Names DesignatorTexts() {
        RefreshDesignatorRows();
        Names texts;
        for (const auto& row : toolCombos.designators.rows) texts.push_back(row.text);
        return texts;
    }

    static void Later(uint64_t milliseconds) { fake.fileTime += milliseconds * kMillisecond; }

    static int Actions() {
        int count = 0;
        for (const model::SceneryObject* entry = model::state.undoHead; entry; entry = entry->historyNext)
            count += (entry->flags & model::kGroupStart) != 0;
        return count;
    }
};

// The designator box

TEST_F(ToolCombosTest, TheDesignatorBoxListsNoneThenTaxiwaysThenRunways) {
    EXPECT_EQ(DesignatorTexts(), Names{ "" });
    OpenAnAirport();
    build::Designator("");
    build::Runway(16, 1);
    build::Designator("B");
    build::Designator("A");
    EXPECT_EQ(DesignatorTexts(), (Names{ "", "Taxi B", "Taxi A", "Rwy 16L/34R" }));
}

TEST_F(ToolCombosTest, ADesignatorThatIsAddedOrUndoneComesAndGoes) {
    OpenAnAirport();
    EXPECT_EQ(DesignatorTexts(), Names{ "" });
    fake.answers = { Answer::Yes };
    TypeDesignatorText("c");
    EXPECT_EQ(DesignatorTexts(), (Names{ "", "Taxi C" }));
    EXPECT_EQ(CurrentDesignatorRow(), 1);
    model::Undo();
    EXPECT_EQ(DesignatorTexts(), Names{ "" });
    EXPECT_EQ(CurrentDesignatorRow(), 0);
    EXPECT_EQ(map::layers.highlightedDesignator, nullptr) << "a designator that is gone is current no longer";
}

TEST_F(ToolCombosTest, ChoosingADesignatorHighlightsItAndTheEmptyEntryNone) {
    OpenAnAirport();
    build::Designator("");
    model::SceneryObject* alpha = build::Designator("A");
    model::SceneryObject* runway = build::Runway(9);
    ChooseDesignator(1);
    EXPECT_EQ(map::layers.highlightedDesignator, alpha);
    EXPECT_EQ(CurrentDesignatorRow(), 1);
    ChooseDesignator(2);
    EXPECT_EQ(map::layers.highlightedDesignator, runway);
    for (int row : { -1, 3, 1000 }) ChooseDesignator(row);
    EXPECT_EQ(CurrentDesignatorRow(), 2);
    ChooseDesignator(0);
    EXPECT_EQ(map::layers.highlightedDesignator, nullptr) << "not the blank one either";
    EXPECT_EQ(Actions(), 0);
}

TEST_F(ToolCombosTest, ChoosingADesignatorLeavesTheSelectedLinksAlone) {
    OpenAnAirport();
    model::SceneryObject* link = build::Link(build::Node(), build::Node({ 50, 0 }));
    link->flags |= model::kSelected;
    build::Designator("A");
    ChooseDesignator(1);
    EXPECT_EQ(DesignatorOf(link), nullptr);
}

TEST_F(ToolCombosTest, CyclingGoesThroughAllEntriesAndAroundTheEnds) {
    OpenAnAirport();
    build::Designator("A");
    build::Designator("B");
    build::Runway(9);
    for (int row : { 1, 2, 3, 0, 1 }) {
        CycleDesignator(false);
        EXPECT_EQ(CurrentDesignatorRow(), row);
    }
    for (int row : { 0, 3, 2 }) {
        CycleDesignator(true);
        EXPECT_EQ(CurrentDesignatorRow(), row);
    }
}

TEST_F(ToolCombosTest, CyclingWithoutDesignatorsStaysAtNone) {
    CycleDesignator(false);
    CycleDesignator(true);
    EXPECT_EQ(CurrentDesignatorRow(), 0);
}

TEST_F(ToolCombosTest, TypingMakesADesignatorCurrentAndGivesItToTheSelectedLinks) {
    OpenAnAirport();
    model::SceneryObject* alpha = build::Designator("A");
    model::SceneryObject* link = build::Link(build::Node(), build::Node({ 50, 0 }));
    link->flags |= model::kSelected;
    TypeDesignatorText("a");
    EXPECT_EQ(map::layers.highlightedDesignator, alpha);
    EXPECT_EQ(DesignatorOf(link), alpha);
    fake.answers = { Answer::No };
    TypeDesignatorText("b");
    EXPECT_EQ(CurrentDesignatorRow(), 0) << "No clears the current designator";
    TypeDesignatorText("A");
    TypeDesignatorText("rwy 9/27");
    EXPECT_EQ(CurrentDesignatorRow(), 0);
}

TEST_F(ToolCombosTest, TypingDoesNothingWithoutAnAirportOrDuringADrag) {
    TypeDesignatorText("A");
    OpenAnAirport();
    model::state.busy = true;
    TypeDesignatorText("A");
    EXPECT_EQ(model::CountKind(model::kTaxiDesignator), 0u);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(ToolCombosTest, AQuestionComesOnlyWhereTypingMakesANewDesignator) {
    OpenAnAirport();
    build::Designator("A");
    EXPECT_FALSE(NeedsQuestion("b")) << "nobody types";
    StartTyping();
    EXPECT_FALSE(NeedsQuestion("a"));
    EXPECT_TRUE(NeedsQuestion("b"));
    for (const char* none : { "", " b", "rwy 9" }) EXPECT_FALSE(NeedsQuestion(none)) << none;
    model::state.busy = true;
    EXPECT_FALSE(NeedsQuestion("b")) << "in a drag nothing is made";
}

TEST_F(ToolCombosTest, FinishingTheTypingAsksAndEndsItBeforeTheQuestion) {
    OpenAnAirport();
    EXPECT_FALSE(FinishTyping("b", false)) << "nobody types";
    EXPECT_TRUE(fake.messages.empty());
    StartTyping();
    fake.answers = { Answer::Yes };
    EXPECT_TRUE(FinishTyping("b", false));
    EXPECT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(DesignatorTexts(), (Names{ "", "Taxi B" }));
    EXPECT_EQ(CurrentDesignatorRow(), 1);
    EXPECT_FALSE(LeaveTyping("c", false)) << "the box is left for the question, and the typing is over by then";
}

TEST_F(ToolCombosTest, LeavingTheBoxTakesAKnownNameAndDropsANewOneWithoutAQuestion) {
    OpenAnAirport();
    model::SceneryObject* alpha = build::Designator("A");
    StartTyping();
    EXPECT_TRUE(LeaveTyping("a", false));
    EXPECT_EQ(map::layers.highlightedDesignator, alpha);
    StartTyping();
    EXPECT_TRUE(LeaveTyping("b", false));
    EXPECT_EQ(map::layers.highlightedDesignator, alpha) << "the current one stays";
    EXPECT_EQ(model::CountKind(model::kTaxiDesignator), 1u);
    EXPECT_TRUE(fake.messages.empty());
    EXPECT_FALSE(toolCombos.typing);
    StartTyping();
    EXPECT_TRUE(LeaveTyping("", false));
    EXPECT_EQ(map::layers.highlightedDesignator, nullptr) << "an emptied box stands for none";
}

TEST_F(ToolCombosTest, UnderADialogTypingEndsWithoutAnEffect) {
    OpenAnAirport();
    model::SceneryObject* alpha = build::Designator("A");
    map::SetHighlight(alpha);
    for (const char* typed : { "b", "" }) {
        StartTyping();
        EXPECT_TRUE(FinishTyping(typed, true));
        StartTyping();
        EXPECT_TRUE(LeaveTyping(typed, true));
        EXPECT_FALSE(toolCombos.typing);
    }
    EXPECT_EQ(map::layers.highlightedDesignator, alpha);
    EXPECT_TRUE(fake.messages.empty());
}

TEST_F(ToolCombosTest, WhatIsTypedGoesWithTheAirport) {
    OpenAnAirport();
    StartTyping();
    RefreshDesignatorRows();
    EXPECT_TRUE(toolCombos.typing) << "what is typed stays while the list changes";
    model::state.loaded = false;
    RefreshDesignatorRows();
    EXPECT_FALSE(toolCombos.typing);
}

TEST(TypingKeys, EnterAndTabFinishAndEscapeTakesBackUnlessTheListIsOpen) {
    EXPECT_EQ(TypingKeyOf(kEnter, false), TypingKey::Finish);
    EXPECT_EQ(TypingKeyOf(kTab, false), TypingKey::Finish);
    EXPECT_EQ(TypingKeyOf(kEscape, false), TypingKey::TakeBack);
    for (const int key : { int{ kEnter }, int{ kTab }, int{ kEscape } }) {
        EXPECT_EQ(TypingKeyOf(key, true), TypingKey::None);
        EXPECT_TRUE(IsTypingKeyCharacter(key));
    }
    for (const int key : { int{ 'A' }, int{ kBackspace }, int{ kDelete }, int{ kDown } }) {
        EXPECT_EQ(TypingKeyOf(key, false), TypingKey::None);
        EXPECT_FALSE(IsTypingKeyCharacter(key));
    }
}

// The box of parking specs

TEST_F(ToolCombosTest, SpecsStandInFileOrderBehindAnEmptyEntry) {
    UseSpecs({ "KLM", "Air France", "Lufthansa" });
    EXPECT_EQ(SpecTexts(), (Names{ "", "KLM", "Air France", "Lufthansa" }));
    EXPECT_EQ(CurrentSpecRow(), 0);
}

TEST_F(ToolCombosTest, TheMostUsedSpecsStandBetweenLinesAboveAllSpecs) {
    settings.mostUsedSpecs = { "Lufthansa", "Not in the file", "KLM" };
    UseSpecs({ "KLM", "Air France", "Lufthansa" });
    EXPECT_EQ(SpecTexts(), (Names{ "", kLine, "Lufthansa", "KLM", kLine, "KLM", "Air France", "Lufthansa" }));
}

TEST_F(ToolCombosTest, MostUsedSpecsThatTheFileLacksMakeNoLines) {
    settings.mostUsedSpecs = { "Not in the file" };
    UseSpecs({ "KLM" });
    EXPECT_EQ(SpecTexts(), (Names{ "", "KLM" }));
    EXPECT_EQ(settings.mostUsedSpecs.size(), 1u) << "the file may get it back";
}

TEST_F(ToolCombosTest, ChoosingASpecGivesItsCodesToTheSelectedSpotsAsOneAction) {
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

TEST_F(ToolCombosTest, ChoosingTheEmptyEntryTakesTheCodesAway) {
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

TEST_F(ToolCombosTest, TheSameSpecCanBeGivenToOtherSpotsAgain) {
    OpenAnAirport();
    UseSpecs({ "Air" });
    ChooseSpec(1, false);
    model::SceneryObject* spot = SelectedSpot();
    Later(201);
    ChooseSpec(1, false);
    EXPECT_EQ(dialogs::CodesText(spot), "AIR");
}

TEST_F(ToolCombosTest, ASpecSwitchesTheLabelsToCodesUnlessTheyShow) {
    UseSpecs({ "Air" });
    for (int mode : { 0, 1, 2 }) {
        settings.showLabels = mode;
        Later(201);
        ChooseSpec(1, false);
        EXPECT_EQ(settings.showLabels, 2) << mode;
    }
}

TEST_F(ToolCombosTest, OfTwoSpecsWithin200MillisecondsOnlyTheFirstIsTaken) {
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

TEST_F(ToolCombosTest, TheGuardIsSharedByBothParkingBoxesAndSurvivesAClockSetBack) {
    UseSpecs({ "Air" });
    ChooseType(4);
    ChooseSpec(1, false);
    EXPECT_EQ(CurrentSpecRow(), 0);
    fake.fileTime -= 3600 * 1000 * kMillisecond;
    ChooseSpec(1, false);
    EXPECT_EQ(CurrentSpecRow(), 1);
}

TEST_F(ToolCombosTest, TheVeryFirstChoiceIsTakenWhateverTheClockSays) {
    fake.fileTime = 0;
    UseSpecs({ "Air" });
    ChooseSpec(1, false);
    EXPECT_EQ(CurrentSpecRow(), 1);
}

TEST_F(ToolCombosTest, ALineCannotBeChosen) {
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

TEST_F(ToolCombosTest, AStepOntoALineGoesOnBeyondIt) {
    settings.mostUsedSpecs = { "Air" };
    UseSpecs({ "Air", "Baw" });
    const struct { int step, row; } steps[] = { { 1, 2 }, { 3, 4 }, { 3, 2 }, { 1, 0 } };
    for (const auto& [step, row] : steps) {
        ChooseSpec(step, true);
        EXPECT_EQ(CurrentSpecRow(), row);
        Later(201);
    }
}

TEST_F(ToolCombosTest, TheCurrentSpecStaysSelectedWhereItWasChosen) {
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

TEST_F(ToolCombosTest, ASpecThatIsUsedLeadsTheMostUsedOnes) {
    NoteSpecUse("A");
    NoteSpecUse("B");
    EXPECT_EQ(settings.mostUsedSpecs, (Names{ "B", "A" }));
    NoteSpecUse("A");
    EXPECT_EQ(settings.mostUsedSpecs, (Names{ "A", "B" }));
}

TEST_F(ToolCombosTest, TheMostUsedSpecsAreAtMostTwenty) {
    for (int i = 0; i < 25; ++i) NoteSpecUse("Spec " + std::to_string(i));
    ASSERT_EQ(settings.mostUsedSpecs.size(), 20u);
    EXPECT_EQ(settings.mostUsedSpecs.front(), "Spec 24");
    EXPECT_EQ(settings.mostUsedSpecs.back(), "Spec 5");
}

TEST_F(ToolCombosTest, ASpecWhoseCodesCannotBeStoredIsRefusedWithAMessage) {
    UseSpecs({ "Air", "Baw" });
    parkingSpecs[1].codes = { "\xE4\xB8\xAD" };
    ChooseSpec(1, false);
    Later(201);
    ChooseSpec(2, false);
    EXPECT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(CurrentSpecRow(), 1);
    EXPECT_EQ(map::tools.parkingCodes, Names{ "AIR" });
}

TEST_F(ToolCombosTest, DuringADragNothingIsAssigned) {
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

// The box of parking types

TEST_F(ToolCombosTest, ChoosingATypeIsForNewSpotsAndForTheSelectedOnes) {
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

TEST_F(ToolCombosTest, TheTypeBoxShowsTheTypeOfNewSpots) {
    for (int type = 1; type <= 11; ++type) {
        map::tools.lastParkingType = type;
        EXPECT_EQ(CurrentTypeRow(), type - 1);
    }
    for (int type : { 0, 12, -1 }) {
        map::tools.lastParkingType = type;
        EXPECT_EQ(CurrentTypeRow(), -1);
    }
}

// What a list tells

std::vector<ListResult> Follow(std::initializer_list<std::pair<ListEvent, bool>> events) {
    ListTracker tracker;
    std::vector<ListResult> results;
    for (const auto& [event, open] : events) results.push_back(FollowList(&tracker, event, open));
    return results;
}

using enum ListEvent;
constexpr ListResult kNone = ListResult::None, kChoose = ListResult::Choose, kRestore = ListResult::Restore;
using Results = std::vector<ListResult>;

TEST(ListEvents, AChoiceWithTheMouseIsMadeWhenTheListCloses) {
    EXPECT_EQ(Follow({ { Opened, false }, { Accepted, true }, { Closed, false } }), (Results{ kNone, kNone, kChoose }));
    EXPECT_EQ(Follow({ { Opened, false }, { Accepted, true }, { Moved, true }, { Closed, false } }),
              (Results{ kNone, kNone, kNone, kChoose }));
}

TEST(ListEvents, AChoiceThatIsToldAfterTheListHasClosedIsTakenThen) {
    EXPECT_EQ(Follow({ { Opened, false }, { Accepted, true }, { Closed, false }, { Moved, false } }),
              (Results{ kNone, kNone, kChoose, kChoose }));
}

TEST(ListEvents, GoingThroughAnOpenListChoosesNothingUntilItIsAccepted) {
    EXPECT_EQ(Follow({ { Opened, false }, { Moved, true }, { Moved, true }, { Accepted, true }, { Closed, false } }),
              (Results{ kNone, kNone, kNone, kNone, kChoose }));
    EXPECT_EQ(Follow({ { Opened, false }, { Moved, true }, { Cancelled, true }, { Closed, false } }),
              (Results{ kNone, kNone, kNone, kRestore }));
}

TEST(ListEvents, AStepWithTheListClosedIsAChoice) {
    EXPECT_EQ(Follow({ { Accepted, false }, { Moved, false } }), (Results{ kNone, kChoose }));
    EXPECT_EQ(Follow({ { Moved, false }, { Opened, false }, { Closed, false } }),
              (Results{ kChoose, kNone, kRestore }));
}

}  // namespace
