// How much is kept, where an action ends, and what undo leaves alone.
#include <gtest/gtest.h>

#include "fakes/HistoryFixture.h"
#include "model/Links.h"

namespace {

using namespace history;

class EditHistoryLimits : public HistoryFixture {};

TEST_F(EditHistoryLimits, TheNewestTwentyOneActionsCanBeUndone) {
    Objects added;
    for (int i = 0; i < 25; ++i) added.push_back(AddNode());
    EXPECT_EQ(ChainLength(state.undoHead), 21);
    for (int i = 0; i < 21; ++i) {
        EXPECT_TRUE(CanUndo());
        Undo();
    }
    ExpectList({ added[0], added[1], added[2], added[3] });
    EXPECT_FALSE(CanUndo());
    Undo();  // the 22nd
    ExpectList({ added[0], added[1], added[2], added[3] });
    for (int i = 0; i < 25; ++i) Redo();
    ExpectList(added);
}

TEST_F(EditHistoryLimits, TrimmingCountsActionsAndNotEntries) {
    for (int action = 0; action < 30; ++action) {
        BeginAction();
        for (int i = 0; i < 5; ++i) AddObject(NewNode());
        EXPECT_EQ(ChainLength(state.undoHead), 5 * std::min(action + 1, 21));
    }
}

TEST_F(EditHistoryLimits, TheOldestKeptActionIsKeptWhole) {
    SceneryObject* oldest = build::Node();
    BeginAction();
    SetType(oldest, 2);
    SetType(oldest, 4);
    for (int i = 0; i < 20; ++i) AddNode();
    for (int i = 0; i < 21; ++i) Undo();
    ExpectList({ oldest });
    EXPECT_EQ(TypeOf(oldest), kNormalNode);
}

TEST_F(EditHistoryLimits, ANewEditAfterUndoEndsRedo) {
    SceneryObject* node = build::Node();
    BeginAction();
    SetType(node, 2);
    Undo();
    SceneryObject* added = AddNode();
    EXPECT_FALSE(CanRedo());
    Redo();
    ExpectList({ node, added });
    EXPECT_EQ(TypeOf(node), kNormalNode);
}

TEST_F(EditHistoryLimits, UndoWithAnEmptyChainDoesNothingButRedraw) {
    SceneryObject* node = build::Node();
    Undo();
    EXPECT_EQ(fake.repaints, 1);
    Redo();
    EXPECT_EQ(fake.repaints, 2);
    ExpectList({ node });
    EXPECT_FALSE(state.modified);
}

TEST_F(EditHistoryLimits, UndoAndRedoRequestARedraw) {
    AddNode();
    Undo();
    EXPECT_EQ(fake.repaints, 1);
    Redo();
    EXPECT_EQ(fake.repaints, 2);
}

TEST_F(EditHistoryLimits, WhileDraggingUndoAndRedoDoNothing) {
    SceneryObject *kept = AddNode(), *undone = AddNode();
    Undo();
    state.busy = true;
    EXPECT_FALSE(CanUndo());
    EXPECT_FALSE(CanRedo());
    const int repaints = fake.repaints;
    Undo();
    Redo();
    EXPECT_EQ(fake.repaints, repaints);
    ExpectList({ kept });
    state.busy = false;
    Redo();
    ExpectList({ kept, undone });
}

TEST_F(EditHistoryLimits, UndoingASingleEntryActionAfterASaveLeavesTheAirportUnmodified) {
    SceneryObject* node = build::Node();
    BeginAction();
    SetType(node, 2);
    state.modified = false;  // saved
    Undo();
    EXPECT_FALSE(state.modified);
    Redo();
    EXPECT_FALSE(state.modified);
    state.modified = true;
    Undo();
    EXPECT_TRUE(state.modified);  // nor is it cleared
}

TEST_F(EditHistoryLimits, UndoingATwoEntryActionAfterASaveMarksTheAirportModified) {
    SceneryObject* node = build::Node();
    BeginAction();
    SetType(node, 2);
    SetType(node, 4);
    state.modified = false;
    Undo();
    EXPECT_TRUE(state.modified);
    state.modified = false;
    Redo();
    EXPECT_TRUE(state.modified);
}

TEST_F(EditHistoryLimits, EntriesWithoutBeginActionAreUndoneTogetherWithWhatFollows) {
    SceneryObject* node = build::Node();
    AddObject(NewNode());
    AddObject(NewNode());
    Undo();
    ExpectList({ node });
    EXPECT_TRUE(state.modified);
    Redo();
    EXPECT_EQ(build::List().size(), 3u);

    ClearModel();
    node = build::Node();
    SceneryObject* added = AddNode();
    SetType(added, 2);  // joins the action before it
    Undo();
    ExpectList({ node });
}

TEST_F(EditHistoryLimits, AModificationsMarkComesFromTheEntryThatIsReplayed) {
    SceneryObject* node = build::Node();
    BeginAction();
    SetType(node, 2);
    BeginAction();
    SetType(node, 4);
    SetType(node, 8);
    Undo();
    EXPECT_EQ(TypeOf(node), 2);
    Redo();
    EXPECT_EQ(TypeOf(node), 8);
    EXPECT_FALSE(CanRedo());
    Undo();
    EXPECT_EQ(TypeOf(node), 2);
    Undo();
    EXPECT_EQ(TypeOf(node), 1);
    Redo();
    EXPECT_EQ(TypeOf(node), 2);
    Redo();
    EXPECT_EQ(TypeOf(node), 8);
}

TEST_F(EditHistoryLimits, ClearHistoryLeavesTheObjectList) {
    SceneryObject* node = build::Node();
    AddNode();
    AddNode();
    Undo();
    BeginAction();
    ClearHistory();
    EXPECT_FALSE(CanUndo());
    EXPECT_FALSE(CanRedo());
    EXPECT_FALSE(state.groupStart);
    EXPECT_EQ(build::List().size(), 2u);
    EXPECT_EQ(build::List()[0], node);
}

TEST_F(EditHistoryLimits, AppendingIsNotRecorded) {
    build::Node();
    EXPECT_FALSE(CanUndo());
    EXPECT_FALSE(state.modified);
}

TEST_F(EditHistoryLimits, DeletingNodeNumberKAndUndoingKeepsAllIndices) {
    Objects nodes, links, all;
    for (int i = 0; i < 10; ++i) nodes.push_back(build::Node({ 10.0 * i, 0 }));
    for (size_t i = 0; i < 9; ++i) links.push_back(build::Link(nodes[i], nodes[i + 1]));
    all = build::List();
    const auto numbers = [&](const SceneryObject* link) {
        const auto& payload = PayloadAs<TaxiLinkPayload>(link);
        return std::pair<int, int>(payload.startIndex, payload.endField & 0xFFF);
    };
    for (size_t k = 0; k < nodes.size(); ++k) {
        BeginAction();
        for (size_t i = 0; i < 9; ++i) {
            if (i == k || i + 1 == k) DeleteObject(links[i]);
        }
        DeleteObject(nodes[k]);
        UpdateLinkIndices();
        for (size_t i = 0; i < 9; ++i) {  // behind the gap everything is one lower
            if (i == k || i + 1 == k) continue;
            const int start = static_cast<int>(i) - (i > k);
            EXPECT_EQ(numbers(links[i]), std::pair(start, start + 1)) << k << ' ' << i;
        }
        Undo();
        ExpectList(all);
        UpdateLinkIndices();
        for (size_t i = 0; i < 9; ++i)
            EXPECT_EQ(numbers(links[i]), std::pair(static_cast<int>(i), static_cast<int>(i) + 1)) << k << ' ' << i;
    }
}

TEST_F(EditHistoryLimits, AnActionMayHaveThousandsOfEntries) {
    BeginAction();
    for (int i = 0; i < 20000; ++i) AddObject(NewNode());
    EXPECT_EQ(ChainLength(state.undoHead), 20000);
    Undo();
    EXPECT_EQ(state.head, nullptr);
    Redo();
    EXPECT_EQ(CountKind(kTaxiNode), 20000u);
}

}  // namespace
