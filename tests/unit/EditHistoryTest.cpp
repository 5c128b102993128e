#include "model/EditHistory.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "model/Links.h"

namespace {

using namespace model;
using Objects = std::vector<SceneryObject*>;

class EditHistory : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        ClearModel();
    }
    void TearDown() override { ClearModel(); }

    static SceneryObject* NewNode(uint8_t type = kNormalNode) {
        SceneryObject* node = CreateObject(kTaxiNode, 12);
        node->payload[0] = type;
        return node;
    }
    static SceneryObject* AddNode() {
        SceneryObject* node = NewNode();
        BeginAction();
        AddObject(node);
        return node;
    }
    static void SetType(SceneryObject* node, uint8_t type) {
        SceneryObject* edited = CopyObject(node);
        edited->payload[0] = type;
        ModifyObject(edited, node);
    }
    static uint8_t TypeOf(const SceneryObject* node) { return node->payload[0]; }
    static void ExpectList(const Objects& expected) {
        EXPECT_EQ(build::List(), expected);
        EXPECT_EQ(build::ListFromTail(), expected);
        for (const SceneryObject* object : build::List()) {
            EXPECT_EQ(object->flags & (kHistoryMask | kGroupStart), 0u);
            EXPECT_EQ(object->historyNext, nullptr);
        }
    }
    static void ExpectUndoes(const Objects& before, const Objects& after, int rounds) {
        for (int round = 0; round < rounds; ++round) {
            Undo();
            ExpectList(before);
            Redo();
            ExpectList(after);
        }
        Undo();
        ExpectList(before);
    }
    static int ChainLength(const SceneryObject* entry) {
        int length = 0;
        for (; entry; entry = entry->historyNext) ++length;
        return length;
    }
};

TEST_F(EditHistory, AnAddedObjectStandsAtTheTailAndTheEntryIsADeepCopy) {
    SceneryObject *first = build::Node(), *added = AddNode();
    ExpectList({ first, added });
    const SceneryObject* entry = state.undoHead;
    ASSERT_NE(entry, nullptr);
    EXPECT_NE(entry, added);
    EXPECT_NE(entry->payload, added->payload);
    EXPECT_EQ(entry->flags & kHistoryMask, uint32_t{ kOpAdded } << kHistoryShift);
    EXPECT_NE(entry->flags & kGroupStart, 0u);
    EXPECT_EQ(entry->prev, first);
    EXPECT_EQ(entry->next, nullptr);
    EXPECT_TRUE(state.modified);
    EXPECT_FALSE(state.groupStart);
}

TEST_F(EditHistory, ADeletedObjectItselfIsTheEntry) {
    SceneryObject *a = build::Node(), *b = build::Node(), *c = build::Node();
    BeginAction();
    DeleteObject(b);
    ExpectList({ a, c });
    EXPECT_EQ(state.undoHead, b);
    EXPECT_EQ(b->flags & kHistoryMask, uint32_t{ kOpDeleted } << kHistoryShift);
    EXPECT_NE(b->flags & kGroupStart, 0u);
    EXPECT_EQ(b->prev, a);
    EXPECT_EQ(b->next, c);
    EXPECT_TRUE(state.modified);
}

TEST_F(EditHistory, AModifiedObjectKeepsItsAddressAndTheEntryHoldsTheOldContent) {
    SceneryObject *a = build::Node(), *b = build::Node(), *c = build::Node();
    SceneryObject* edited = CopyObject(b);
    ResizePayload(edited, 40);
    edited->payload[0] = kHoldShortNode;
    edited->flags |= kSelected;
    edited->view[3] = 77;
    const uint8_t* newPayload = edited->payload;
    BeginAction();
    ModifyObject(edited, b);
    EXPECT_EQ(build::List()[1], b);
    EXPECT_EQ(b->payload, newPayload);
    EXPECT_EQ(b->payloadSize, 40u);
    EXPECT_EQ(b->view[3], 77);
    EXPECT_TRUE(IsSelected(b));
    EXPECT_EQ(b->prev, a);
    EXPECT_EQ(b->next, c);
    EXPECT_EQ(state.undoHead, edited);
    EXPECT_EQ(TypeOf(edited), kNormalNode);
    EXPECT_EQ(edited->payloadSize, 12u);
    EXPECT_FALSE(IsSelected(edited));
    EXPECT_EQ(edited->flags & kHistoryMask, uint32_t{ kOpModified } << kHistoryShift);
}

TEST_F(EditHistory, OnlyTheFirstEntryOfAnActionCarriesTheMark) {
    SceneryObject *a = build::Node(), *b = build::Node();
    BeginAction();
    DeleteObject(a);
    SetType(b, kHoldShortNode);
    AddObject(NewNode());
    const SceneryObject* entry = state.undoHead;
    EXPECT_EQ(entry->flags & kGroupStart, 0u);
    EXPECT_EQ(entry->historyNext->flags & kGroupStart, 0u);
    EXPECT_NE(entry->historyNext->historyNext->flags & kGroupStart, 0u);
}

TEST_F(EditHistory, LiveObjectsCarryNoOperationAndNoMark) {
    SceneryObject* node = AddNode();
    SetType(node, 2);
    SceneryObject* marked = CopyObject(node);
    marked->flags |= kGroupStart | kHistoryMask;  // a copy of an entry, say
    BeginAction();
    ModifyObject(marked, node);
    ExpectList({ node });
    SceneryObject* stale = NewNode();
    stale->flags |= kGroupStart | (uint32_t{ kOpDeleted } << kHistoryShift);
    AddObject(stale);
    ExpectList({ node, stale });
    Undo();
    Redo();
    ExpectList({ node, stale });
}

TEST_F(EditHistory, UndoAndRedoOfAnAddition) {
    SceneryObject *first = build::Node(), *added = AddNode();
    Undo();
    ExpectList({ first });
    EXPECT_TRUE(CanRedo());
    EXPECT_FALSE(CanUndo());
    Redo();
    ExpectList({ first, added });  // at the address that others may point to
    EXPECT_TRUE(CanUndo());
    EXPECT_FALSE(CanRedo());
}

TEST_F(EditHistory, UndoAndRedoOfADeletionAtHeadMiddleTailAndAlone) {
    for (const size_t count : { 1u, 3u }) {
        for (size_t place = 0; place < count; ++place) {
            ClearModel();
            Objects all;
            for (size_t i = 0; i < count; ++i) all.push_back(build::Node());
            Objects rest = all;
            rest.erase(rest.begin() + static_cast<ptrdiff_t>(place));
            BeginAction();
            DeleteObject(all[place]);
            ExpectList(rest);
            ExpectUndoes(all, rest, 3);
        }
    }
}

TEST_F(EditHistory, UndoAndRedoOfAModificationAtHeadMiddleAndTail) {
    for (size_t place = 0; place < 3; ++place) {
        ClearModel();
        const Objects all = { build::Node(), build::Node(), build::Node() };
        BeginAction();
        SetType(all[place], kIlsHoldShortNode);
        for (int round = 0; round < 3; ++round) {
            Undo();
            ExpectList(all);
            EXPECT_EQ(TypeOf(all[place]), kNormalNode);
            Redo();
            ExpectList(all);
            EXPECT_EQ(TypeOf(all[place]), kIlsHoldShortNode);
        }
    }
}

TEST_F(EditHistory, AnActionThatDeletedANodeWithItsThreeLinksIsOneUndoAndOneRedo) {
    SceneryObject *a = build::Node(), *b = build::Node(), *c = build::Node(), *d = build::Node();
    SceneryObject *ab = build::Link(a, b), *ac = build::Link(a, c), *da = build::Link(d, a);
    const Objects all = build::List();
    BeginAction();
    for (SceneryObject* object : { ab, ac, da, a }) DeleteObject(object);
    EXPECT_EQ(ChainLength(state.undoHead), 4);
    Undo();
    ExpectList(all);
    EXPECT_FALSE(CanUndo());
    Redo();
    ExpectList({ b, c, d });
    EXPECT_FALSE(CanRedo());
    Undo();
    ExpectList(all);
    SceneryObject* start = PayloadAs<TaxiLinkPayload>(da).end;
    EXPECT_EQ(start, a);
}

TEST_F(EditHistory, NeighboursDeletedTogetherInAnyOrderComeBackInPlace) {
    const std::vector<std::vector<size_t>> orders = {
        { 1, 2, 3 }, { 3, 2, 1 }, { 2, 1, 3 }, { 0, 1, 4 }, { 4, 0, 3, 1, 2 }
    };
    for (const auto& order : orders) {
        ClearModel();
        Objects all;
        for (int i = 0; i < 5; ++i) all.push_back(build::Node());
        BeginAction();
        for (size_t place : order) DeleteObject(all[place]);
        ExpectUndoes(all, build::List(), 1);
    }
}

TEST_F(EditHistory, ACopyMadeBeforeOtherEditsOfTheActionKeepsThePresentNeighbours) {
    SceneryObject *a = build::Node(), *b = build::Node(), *c = build::Node();
    SceneryObject* edited = CopyObject(b);  // knows a and c as its neighbours
    edited->payload[0] = kHoldShortNode;
    BeginAction();
    DeleteObject(a);
    DeleteObject(c);
    SceneryObject* added = NewNode();
    AddObject(added);
    ModifyObject(edited, b);
    ExpectList({ b, added });
    EXPECT_EQ(TypeOf(b), kHoldShortNode);
    Undo();
    ExpectList({ a, b, c });
    EXPECT_EQ(TypeOf(b), kNormalNode);
    Redo();
    ExpectList({ b, added });
    EXPECT_EQ(TypeOf(b), kHoldShortNode);
}

TEST_F(EditHistory, AnObjectAddedModifiedAndDeletedInOneActionLeavesNothing) {
    SceneryObject *first = build::Node(), *passing = NewNode();
    BeginAction();
    AddObject(passing);
    SetType(passing, 2);
    SetType(passing, 4);
    DeleteObject(passing);
    ExpectList({ first });
    Undo();
    ExpectList({ first });
    Redo();
    ExpectList({ first });
    Undo();
    Undo();
    ExpectList({ first });
}

TEST_F(EditHistory, TheAirportObjectStaysCurrentThroughUndoAndRedo) {
    SceneryObject* airport = build::Airport("KSEA");
    SceneryObject* edited = CopyObject(airport);
    BeginAction();
    ModifyObject(edited, airport);
    EXPECT_EQ(state.airport, airport);
    Undo();
    EXPECT_EQ(state.airport, airport);
    Redo();
    EXPECT_EQ(state.airport, airport);
}

TEST_F(EditHistory, TheNewestTwentyOneActionsCanBeUndone) {
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

TEST_F(EditHistory, TrimmingCountsActionsAndNotEntries) {
    for (int action = 0; action < 30; ++action) {
        BeginAction();
        for (int i = 0; i < 5; ++i) AddObject(NewNode());
        EXPECT_EQ(ChainLength(state.undoHead), 5 * std::min(action + 1, 21));
    }
}

TEST_F(EditHistory, TheOldestKeptActionIsKeptWhole) {
    SceneryObject* oldest = build::Node();
    BeginAction();
    SetType(oldest, 2);
    SetType(oldest, 4);
    for (int i = 0; i < 20; ++i) AddNode();
    for (int i = 0; i < 21; ++i) Undo();
    ExpectList({ oldest });
    EXPECT_EQ(TypeOf(oldest), kNormalNode);
}

TEST_F(EditHistory, ANewEditAfterUndoEndsRedo) {
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

TEST_F(EditHistory, UndoWithAnEmptyChainDoesNothingButRedraw) {
    SceneryObject* node = build::Node();
    Undo();
    EXPECT_EQ(fake.repaints, 1);
    Redo();
    EXPECT_EQ(fake.repaints, 2);
    ExpectList({ node });
    EXPECT_FALSE(state.modified);
}

TEST_F(EditHistory, UndoAndRedoRequestARedraw) {
    AddNode();
    Undo();
    EXPECT_EQ(fake.repaints, 1);
    Redo();
    EXPECT_EQ(fake.repaints, 2);
}

TEST_F(EditHistory, WhileDraggingUndoAndRedoDoNothing) {
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

TEST_F(EditHistory, UndoingASingleEntryActionAfterASaveLeavesTheAirportUnmodified) {
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

TEST_F(EditHistory, UndoingATwoEntryActionAfterASaveMarksTheAirportModified) {
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

TEST_F(EditHistory, EntriesWithoutBeginActionAreUndoneTogetherWithWhatFollows) {
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

TEST_F(EditHistory, AModificationsMarkComesFromTheEntryThatIsReplayed) {
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

TEST_F(EditHistory, ClearHistoryLeavesTheObjectList) {
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

TEST_F(EditHistory, AppendingIsNotRecorded) {
    build::Node();
    EXPECT_FALSE(CanUndo());
    EXPECT_FALSE(state.modified);
}

TEST_F(EditHistory, DeletingNodeNumberKAndUndoingKeepsAllIndices) {
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

TEST_F(EditHistory, AnActionMayHaveThousandsOfEntries) {
    BeginAction();
    for (int i = 0; i < 20000; ++i) AddObject(NewNode());
    EXPECT_EQ(ChainLength(state.undoHead), 20000);
    Undo();
    EXPECT_EQ(state.head, nullptr);
    Redo();
    EXPECT_EQ(CountKind(kTaxiNode), 20000u);
}

}  // namespace
