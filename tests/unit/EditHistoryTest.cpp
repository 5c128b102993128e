#include "model/EditHistory.h"

#include <gtest/gtest.h>

#include "fakes/HistoryFixture.h"
#include "model/Links.h"

namespace {

using namespace history;

class EditHistory : public HistoryFixture {};

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

}  // namespace
