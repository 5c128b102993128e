#include "map/HoldShortUpdate.h"

#include <gtest/gtest.h>

#include "fakes/ToolFixture.h"
#include "map/Selection.h"

namespace {

using namespace map;
using namespace model;

// The runway lies north-south through the middle; the tests stand to its east.
class HoldShortUpdateTest : public ToolFixture {
protected:
    void SetUp() override {
        ToolFixture::SetUp();
        runway = build::Runway(36);
        node = build::Node({ 80, 0 }, kHoldShortNode);
        onRunway = build::Node({ 0, 0 });
    }
    bool Reversed() const { return PayloadAs<TaxiNodeRecord>(node).reversed != 0; }
    void Reverse(bool reversed) const { PayloadAs<TaxiNodeRecord>(node).reversed = reversed; }
    void Update() const {
        BeginAction();
        UpdateHoldShort(node);
    }
    SceneryObject* runway = nullptr;
    SceneryObject* node = nullptr;
    SceneryObject* onRunway = nullptr;
};

TEST_F(HoldShortUpdateTest, OnAStraightEntranceTheFlagIsClear) {
    build::Link(node, onRunway);
    build::Link(build::Node({ 200, 0 }), node);
    Reverse(true);
    Update();
    EXPECT_FALSE(Reversed());
    EXPECT_TRUE(CanUndo());
}

TEST_F(HoldShortUpdateTest, WhatIsRightStaysUnrecorded) {
    build::Link(node, onRunway);
    Update();
    EXPECT_FALSE(Reversed());
    EXPECT_FALSE(CanUndo());
}

// Both arms point to the west, where the runway is; the one that reaches it bends away from the way as the crow flies.
TEST_F(HoldShortUpdateTest, TheDashedBarsLieOnTheArmThatLeadsNearestToTheRunway) {
    build::Link(node, build::Node({ 70, 0 }));
    build::Link(node, build::Node({ 5, 130 }));
    Update();
    EXPECT_TRUE(Reversed());
    build::Link(node, onRunway);
    PayloadAs<TaxiLinkPayload>(state.tail).width = 60;
    Update();
    EXPECT_FALSE(Reversed());
}

TEST_F(HoldShortUpdateTest, AnArmThatCrossesTheRunwayLeadsToIt) {
    build::Link(node, build::Node({ -500, 0 }));
    Reverse(true);
    Update();
    EXPECT_FALSE(Reversed());
}

TEST_F(HoldShortUpdateTest, ADeadEndBeforeTheRunwayHasItsDashedBarsAhead) {
    build::Link(node, build::Node({ 300, 0 }));
    Reverse(true);
    Update();
    EXPECT_FALSE(Reversed());
}

TEST_F(HoldShortUpdateTest, OtherNodesKeepTheirFlag) {
    build::Link(node, onRunway);
    for (const uint8_t type : { kNormalNode, kIlsHoldShortNode }) {
        PayloadAs<TaxiNodeRecord>(node).type = type;
        Reverse(true);
        Update();
        EXPECT_TRUE(Reversed());
    }
}

TEST_F(HoldShortUpdateTest, ANodeWithoutLinksKeepsTypeAndFlag) {
    Reverse(true);
    Update();
    EXPECT_TRUE(Reversed());
    EXPECT_EQ(PayloadAs<TaxiNodeRecord>(node).type, kHoldShortNode);
    build::Link(node, onRunway, kRunwayLink);  // no taxiway
    Update();
    EXPECT_TRUE(Reversed());
}

TEST_F(HoldShortUpdateTest, WithoutARunwayTheFlagStays) {
    build::Link(node, onRunway);
    Reverse(true);
    BeginAction();
    DeleteObject(runway);
    Update();
    EXPECT_TRUE(Reversed());
}

TEST_F(HoldShortUpdateTest, ANewNodeInAnEntranceIsUpdatedAndSoAreTheEndsOfTheSplitLink) {
    build::Link(node, onRunway);
    Reverse(true);
    Paint();
    tools.nodeKind = kHoldShortNode;
    SetTool(Tool::Nodes);
    const ByteList before = File();
    Click({ 40, 0 });
    EXPECT_FALSE(Reversed());
    ExpectOneAction(before);
}

TEST_F(HoldShortUpdateTest, AHoldShortNodeKeepsItsTypeWhenItsLinksGo) {
    SceneryObject* link = build::Link(node, onRunway);
    Reverse(true);
    BeginAction();
    DeleteObject(link);
    EXPECT_EQ(PayloadAs<TaxiNodeRecord>(node).type, kHoldShortNode);
    EXPECT_TRUE(Reversed());
}

TEST_F(HoldShortUpdateTest, WhenANeighbourMovesTheFlagFollowsInTheSameAction) {
    SceneryObject* a = build::Node({ 70, 0 });
    SceneryObject* b = build::Node({ 5, 130 });
    build::Link(node, a);
    build::Link(node, b);
    BeginAction();
    UpdateHoldShort(node);
    ASSERT_TRUE(Reversed());
    const ByteList before = File();
    Drag({ 5, 130 }, { 205, 130 });  // now the other arm is the one that leads to the runway
    EXPECT_FALSE(Reversed());
    Undo();
    EXPECT_EQ(File(), before);
    EXPECT_TRUE(Reversed());
}

TEST_F(HoldShortUpdateTest, WhenALinkIsDeletedTheFlagFollowsInTheSameAction) {
    build::Link(node, build::Node({ 70, 0 }));
    SceneryObject* away = build::Link(node, build::Node({ 5, 130 }));
    BeginAction();
    UpdateHoldShort(node);
    ASSERT_TRUE(Reversed());
    const ByteList before = File();
    DeselectAll();
    away->flags |= kSelected;
    EXPECT_EQ(EraseSelected(), 1);
    EXPECT_FALSE(Reversed());
    Undo();
    EXPECT_EQ(File(), before);
    EXPECT_TRUE(Reversed());
}

TEST_F(HoldShortUpdateTest, WhatTheUserTurnedStaysWhileItsSurroundingsDo) {
    build::Link(node, onRunway);
    Reverse(true);
    SceneryObject* other = build::Node({ 300, 200 });
    build::Link(build::Node({ 300, -200 }), other);
    Drag({ 300, 200 }, { 320, 220 });
    EXPECT_TRUE(Reversed());
    DeselectAll();
    other->flags |= kSelected;
    EXPECT_EQ(EraseSelected(), 2);
    EXPECT_TRUE(Reversed());
}

}  // namespace
