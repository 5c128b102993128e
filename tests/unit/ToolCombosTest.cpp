#include "app/ToolCombos.h"

#include <gtest/gtest.h>

#include "app/Keys.h"
#include "fakes/ToolCombosFixture.h"

namespace {

using namespace combos;

class ToolCombosTest : public ToolCombosFixture {};

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

// The box of parking types

// What a list tells

}  // namespace
