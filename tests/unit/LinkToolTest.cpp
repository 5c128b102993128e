#include "map/LinkTool.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "fakes/ToolFixture.h"
#include "map/NewObjects.h"
#include "map/ScreenPlace.h"
#include "map/Selection.h"
#include "model/Links.h"

namespace {

using namespace map;
using namespace model;

class LinkToolTest : public ToolFixture {
protected:
    void SetUp() override {
        ToolFixture::SetUp();
        SetTool(Tool::Links);
    }
    static void Use(uint32_t kind) {
        tools.linkKind = kind;
        SetTool(Tool::Links);
    }
    // Pressed at the last pixel to the right that still takes the node or spot, released so many pixels beside it.
    static void SlipOff(const SceneryObject* object, int pixels) {
        Pixel rim = ScreenPoint(object, 0);
        while (LinkEndObjectAt({ rim.x + 1, rim.y }) == object) ++rim.x;
        OnButtonDown(rim, {});
        EXPECT_EQ(CurrentLinkDrag().from.object, object);
        OnButtonUp({ rim.x + pixels, rim.y }, {});
    }
    static std::string NameOf(const SceneryObject* designator) {
        return std::string(PayloadAs<TaxiDesignatorRecord>(designator).name);
    }
};

TEST_F(LinkToolTest, ALinkJoinsTheTwoNodesItIsDrawnBetween) {
    SceneryObject* a = build::Node({ -100, 0 });
    SceneryObject* b = build::Node({ 100, 0 });
    build::Designator("");
    const ByteList before = File();
    Drag({ -100, 0 }, { 100, 0 });
    SceneryObject* link = state.tail;
    ASSERT_EQ(KindOf(link), kTaxiLink);
    EXPECT_EQ(Copied(LinkOf(link).start), a);
    EXPECT_EQ(Copied(LinkOf(link).end), b);
    EXPECT_EQ(LinkTypeOf(LinkOf(link)), kTaxiwayLink);
    EXPECT_EQ(link->flags, kTaxiLink | 0x2020u);
    ExpectOneAction(before);
}

TEST_F(LinkToolTest, EachKindMakesItsType) {
    const std::pair<uint32_t, uint32_t> rows[] = {
        { 1, kTaxiwayLink }, { 2, kRunwayLink }, { 4, kApronRouteLink }, { 5, kClosedLink }
    };
    double north = -200;
    for (const auto& [kind, type] : rows) {
        Use(kind);
        Drag({ -100, north }, { 100, north });
        EXPECT_EQ(LinkTypeOf(LinkOf(state.tail)), type);
        north += 100;
    }
}

TEST_F(LinkToolTest, EmptyEndsGetNormalNodes) {
    const ByteList before = File();
    tools.nodeKind = kHoldShortNode;
    Drag({ -100, 0 }, { 100, 0 });
    ASSERT_EQ(AllOf(kTaxiNode).size(), 2u);
    for (const SceneryObject* node : AllOf(kTaxiNode)) EXPECT_EQ(PayloadAs<TaxiNodeRecord>(node).type, kNormalNode);
    EXPECT_LT(DistanceTo(Copied(LinkOf(state.tail).start), { -100, 0 }), 1.6);
    EXPECT_LT(DistanceTo(Copied(LinkOf(state.tail).end), { 100, 0 }), 1.6);
    ExpectOneAction(before);
}

TEST_F(LinkToolTest, ALinkToASpotIsAParkingLinkWithoutAName) {
    SceneryObject* node = build::Node({ -100, 0 });
    SceneryObject* spot = BigSpot({ 100, 0 });
    layers.highlightedDesignator = build::Designator("A");
    Drag({ -100, 0 }, { 100, 0 });
    EXPECT_EQ(Copied(LinkOf(state.tail).start), node);
    EXPECT_EQ(Copied(LinkOf(state.tail).end), spot);
    EXPECT_EQ(LinkTypeOf(LinkOf(state.tail)), kParkingLink);
    EXPECT_EQ(NameOf(Copied(LinkOf(state.tail).designator)), "");
}

TEST_F(LinkToolTest, ALinkFromASpotIsTurnedRound) {
    SceneryObject* node = build::Node({ -100, 0 });
    SceneryObject* spot = BigSpot({ 100, 0 });
    Drag({ 100, 0 }, { -100, 0 });
    EXPECT_EQ(Copied(LinkOf(state.tail).start), node);
    EXPECT_EQ(Copied(LinkOf(state.tail).end), spot);
    EXPECT_EQ(LinkTypeOf(LinkOf(state.tail)), kParkingLink);
}

TEST_F(LinkToolTest, TwoSpotsAreNotJoined) {
    BigSpot({ -100, 0 });
    BigSpot({ 100, 0 });
    const ByteList before = File();
    Drag({ -100, 0 }, { 100, 0 });
    EXPECT_EQ(File(), before);
    EXPECT_FALSE(CanUndo());
    EXPECT_EQ(fake.remark, "A taxi link cannot join two parking spots");
    Press({ 300, 200 });
    EXPECT_EQ(fake.remark, "");
}

TEST_F(LinkToolTest, AReleaseOnTheStartCreatesNothing) {
    build::Node({ -100, 0 });
    const ByteList before = File();
    Drag({ -100, 0 }, { -97, 2 });
    EXPECT_EQ(File(), before);
    Drag({ 100, 0 }, { 101, 1 });  // a click on the ground
    EXPECT_EQ(File(), before);
    Drag({ 100, 0 }, { 104, 0 });  // within the node that would be made
    EXPECT_EQ(File(), before);
    EXPECT_FALSE(CanUndo());
    EXPECT_FALSE(state.busy);
}

TEST_F(LinkToolTest, AClickOnTheRimOfTheStartThatSlipsOffItCreatesNothing) {
    const SceneryObject* starts[] = { build::Node({ -100, 0 }), BigSpot({ 100, 0 }) };
    Paint();
    const ByteList before = File();
    for (const SceneryObject* start : starts) {
        for (const int slip : { 1, 2 }) {
            SlipOff(start, slip);
            EXPECT_EQ(File(), before);
        }
    }
    SlipOff(starts[0], kDragThreshold);
    EXPECT_EQ(CountKind(kTaxiLink), 1u) << "a pull";
}

TEST_F(LinkToolTest, AnObjectCloseBesideTheStartIsJoinedByTheSmallestPull) {
    SceneryObject* node = build::Node({ -100, 0 });
    SceneryObject* spot = BigSpot({ -72, 0 });
    Paint();
    SlipOff(node, 2);
    EXPECT_NE(Between(node, spot), nullptr);
}

TEST_F(LinkToolTest, AnEndOnALinkSplitsIt) {
    SceneryObject* a = build::Node({ 0, -100 });
    SceneryObject* b = build::Node({ 0, 100 });
    build::Link(a, b, kClosedLink);
    const ByteList before = File();
    Drag({ -100, 0 }, { 3, 0 });
    ASSERT_EQ(AllOf(kTaxiNode).size(), 4u);
    SceneryObject* middle = Copied(LinkOf(state.tail).end);
    EXPECT_LT(DistanceTo(middle, { 0, 0 }), 0.5);
    EXPECT_EQ(AllOf(kTaxiLink).size(), 3u);
    EXPECT_EQ(LinkTypeOf(LinkOf(Between(middle, a))), kClosedLink);
    EXPECT_EQ(LinkTypeOf(LinkOf(Between(middle, b))), kClosedLink);
    ExpectOneAction(before);
}

TEST_F(LinkToolTest, BothEndsOnOneLinkReplaceThePieceBetween) {
    SceneryObject* a = build::Node({ -200, 0 });
    SceneryObject* b = build::Node({ 200, 0 });
    build::Link(a, b);
    const ByteList before = File();
    Use(kClosedLink);
    Drag({ -100, 0 }, { 100, 0 });
    EXPECT_EQ(AllOf(kTaxiLink).size(), 3u);
    EXPECT_EQ(LinkTypeOf(LinkOf(state.tail)), kClosedLink);
    ExpectOneAction(before);
}

TEST_F(LinkToolTest, ANewLinkReplacesTheOneBetweenTheSameEnds) {
    SceneryObject* a = build::Node({ -100, 0 });
    SceneryObject* b = build::Node({ 100, 0 });
    build::Link(b, a, kClosedLink);
    Drag({ -100, 0 }, { 100, 0 });
    EXPECT_EQ(AllOf(kTaxiLink).size(), 1u);
    EXPECT_EQ(LinkTypeOf(LinkOf(state.tail)), kTaxiwayLink);
}

TEST_F(LinkToolTest, NewLinksGetTheCurrentName) {
    SceneryObject* name = build::Designator("B");
    layers.highlightedDesignator = name;
    Drag({ -100, 0 }, { 100, 0 });
    EXPECT_EQ(Copied(LinkOf(state.tail).designator), name);
}

TEST_F(LinkToolTest, WithoutACurrentNameThereIsABlankOne) {
    build::Designator("B");
    const ByteList before = File();
    Drag({ -100, 0 }, { 100, 0 });
    ASSERT_EQ(AllOf(kTaxiDesignator).size(), 2u);
    SceneryObject* blank = BlankDesignator();
    ASSERT_NE(blank, nullptr);
    EXPECT_EQ(Copied(LinkOf(state.tail).designator), blank);
    Drag({ -100, 100 }, { 100, 100 });
    EXPECT_EQ(Copied(LinkOf(state.tail).designator), blank);
    Undo();
    ExpectOneAction(before);
}

TEST_F(LinkToolTest, ANameThatIsGoneIsNotUsed) {
    SceneryObject* name = build::Designator("B");
    layers.highlightedDesignator = name;
    BeginAction();
    DeleteObject(name);
    Drag({ -100, 0 }, { 100, 0 });
    EXPECT_EQ(Copied(LinkOf(state.tail).designator), BlankDesignator());
}

TEST_F(LinkToolTest, ARunwayLinkIsNamedAfterTheRunwayUnderIt) {
    SceneryObject* runway = build::Runway(36);
    PayloadAs<RunwayPayload>(runway).body.width = 47;
    Use(kRunwayLink);
    Drag({ 0, -100 }, { 0, 100 });
    EXPECT_EQ(Copied(LinkOf(state.tail).designator), runway);
    EXPECT_EQ(Copied(LinkOf(state.tail).width), 47);
    EXPECT_EQ(fake.remark, "");
}

TEST_F(LinkToolTest, ElsewhereARunwayLinkIsMadeAndARemarkSaysSo) {
    Use(kRunwayLink);
    Drag({ 0, -100 }, { 0, 100 });
    EXPECT_EQ(LinkTypeOf(LinkOf(state.tail)), kRunwayLink);
    EXPECT_EQ(Copied(LinkOf(state.tail).designator), nullptr);
    EXPECT_EQ(fake.remark, "No runway lies under the new link");
}

TEST_F(LinkToolTest, ARunwayIsNoNameForATaxiway) {
    layers.highlightedDesignator = build::Runway(36);
    Drag({ 200, -100 }, { 200, 100 });
    EXPECT_EQ(Copied(LinkOf(state.tail).designator), BlankDesignator());
}

TEST_F(LinkToolTest, NewLinksLookLikeTheirTemplate) {
    TaxiLinkPayload pattern{};
    pattern.flagsWord = kClosedLink | 0x60 | 7 << 8 | 0xA50000 | 22u << 24;
    pattern.width = 31;
    pattern.carried[1] = 77;
    pattern.start = state.airport;
    UseLinkTemplate(pattern);
    Drag({ -100, 0 }, { 100, 0 });
    const TaxiLinkPayload& link = LinkOf(state.tail);
    EXPECT_EQ(Copied(link.flagsWord), kTaxiwayLink | 0x60u | 0xA50000u | 22u << 24);
    EXPECT_EQ(Copied(link.width), 31);
    EXPECT_EQ(Copied(link.carried[1]), 77u);
}

TEST_F(LinkToolTest, NothingIsDrawnWhereThereIsNoPlaceOnEarth) {
    view.span = 1e300;
    ResizeView(kWidth, kHeight);
    OnButtonDown({ 10, 10 }, {});
    OnMouseMove({ 300, 300 }, {});
    OnButtonUp({ 300, 300 }, {});
    EXPECT_FALSE(CanUndo());
    EXPECT_FALSE(state.busy);
}

TEST_F(LinkToolTest, WhatWasDeletedUnderTheDragIsNotUsed) {
    SceneryObject* a = build::Node({ -100, 0 });
    Paint();
    Press({ -100, 0 });
    BeginAction();
    DeleteObject(a);
    DragTo({ 100, 0 });
    Release({ 100, 0 });
    EXPECT_EQ(CountKind(kTaxiLink), 0u);
    EXPECT_FALSE(state.busy);
}

TEST_F(LinkToolTest, NothingIsUndoneUnderTheDrag) {
    Drag({ -100, 0 }, { 100, 0 });
    Press({ 0, 100 });
    EXPECT_TRUE(state.busy);
    Undo();
    EXPECT_EQ(CountKind(kTaxiLink), 1u);
    CancelDrag();
    Undo();
    EXPECT_EQ(CountKind(kTaxiLink), 0u);
}

TEST_F(LinkToolTest, TheEndThatAReleaseWouldTakeIsKnown) {
    build::Node({ -100, 0 });
    SceneryObject* b = build::Node({ 100, 0 });
    build::Link(build::Node({ 50, 100 }), build::Node({ 50, 300 }));
    Paint();
    Press({ -100, 0 });
    DragTo({ -98, 0 });
    EXPECT_FALSE(CurrentLinkDrag().hasTo);
    DragTo({ 101, 2 });
    ASSERT_TRUE(CurrentLinkDrag().hasTo);
    EXPECT_EQ(CurrentLinkDrag().to.object, b);
    DragTo({ 54, 200 });
    EXPECT_TRUE(CurrentLinkDrag().to.onLink);
    EXPECT_LT(DistanceBetween(CurrentLinkDrag().to.position, build::At({ 50, 200 })), 1.6);
    DragTo({ 0, 200 });
    EXPECT_TRUE(CurrentLinkDrag().hasTo);
    EXPECT_FALSE(CurrentLinkDrag().to.onLink);
    EXPECT_EQ(CurrentLinkDrag().to.object, nullptr);
}

TEST_F(LinkToolTest, TooManyNodesAreRefused) {
    for (int i = 0; i < 4095; ++i) build::Node({ 5000.0 + i, 0 });
    Paint();
    Drag({ -100, 0 }, { 100, 0 });  // needs two
    EXPECT_EQ(CountKind(kTaxiNode), 4095u);
    EXPECT_EQ(fake.remark, "A scenery file can hold no more than 4096 taxi nodes");
    SetTool(Tool::Nodes);
    Click({ 0, 100 });
    EXPECT_EQ(CountKind(kTaxiNode), 4096u);
    Click({ 0, 200 });
    EXPECT_EQ(CountKind(kTaxiNode), 4096u);
}

TEST_F(LinkToolTest, ATooShortLinkIsRefusedWithARemark) {
    Paint();
    Press({ 0, 0 });
    DragTo({ 5, 0 });
    Release({ 5, 0 });
    EXPECT_FALSE(CanUndo());
    EXPECT_EQ(fake.remark, "A taxi link is at least 20 feet long");
    Press({ 0, 0 });  // a click is no attempt
    Release({ 1, 0 });
    EXPECT_EQ(fake.remark, "");
}

TEST_F(LinkToolTest, ALayerHiddenUnderTheDragIsStillReleasedOn) {
    SceneryObject* a = build::Node({ -100, 0 });
    SceneryObject* b = build::Node({ 100, 0 });
    Paint();
    Press({ -100, 0 });
    DragTo({ 0, 0 });
    layers.network = false;
    Paint();
    DragTo({ 100, 0 });
    EXPECT_EQ(CurrentLinkDrag().to.object, b);
    Release({ 100, 0 });
    EXPECT_EQ(CountKind(kTaxiNode), 2u);
    EXPECT_NE(Between(a, b), nullptr);
    EXPECT_TRUE(layers.network) << "nothing is made unseen";
}

TEST_F(LinkToolTest, ALinkPulledWithTheMapMayEndAtThePixelWhereItBegan) {
    Paint();
    const Pixel at = PixelOf({ 0, 0 });
    OnButtonDown(at, {});
    OnMouseMove({ at.x + 50, at.y }, {});
    PanStep(PanDirection::Right);
    OnMouseMove(at, {});
    OnButtonUp(at, {});
    ASSERT_EQ(CountKind(kTaxiLink), 1u);
    EXPECT_NEAR(
        DistanceBetween(PositionOf(Copied(LinkOf(state.tail).start)), PositionOf(Copied(LinkOf(state.tail).end))),
        kWidth * 0.05, 2);
}

TEST_F(LinkToolTest, ABlankNameIsNotMadeBeyondTheMostNames) {
    for (int i = 0; i < 256; ++i) build::Designator("A");
    const ByteList before = File();
    Drag({ -100, 0 }, { 100, 0 });
    EXPECT_EQ(File(), before);
    EXPECT_EQ(fake.remark, "A scenery file can hold no more than 256 taxiway names");
    layers.highlightedDesignator = FirstOfKind(state.head, kTaxiDesignator);
    Drag({ -100, 0 }, { 100, 0 });
    EXPECT_EQ(CountKind(kTaxiLink), 1u);
    Use(kRunwayLink);
    Drag({ -100, 100 }, { 100, 100 });
    EXPECT_EQ(CountKind(kTaxiLink), 2u);
}

TEST_F(LinkToolTest, TheLinksThatAreSplitCountTooWhenThereIsNoRoom) {
    SceneryObject* far = build::Node({ 5000, 0 });
    SceneryObject* farther = build::Node({ 5000, 100 });
    build::Link(build::Node({ 0, -100 }), build::Node({ 0, 100 }));
    for (int i = 0; i < 65532; ++i) build::Link(far, farther);
    build::Designator("");
    ASSERT_EQ(CountKind(kTaxiLink), 65533u);
    build::Link(far, farther);
    Press({ -100, 0 });
    Release({ 0, 0 });  // one new link, and one for two
    EXPECT_EQ(CountKind(kTaxiLink), 65534u);
    EXPECT_EQ(fake.remark, "A scenery file can hold no more than 65535 taxi links");
    EXPECT_FALSE(CanUndo());
    Press({ -200, 50 });
    Release({ -100, 50 });
    EXPECT_EQ(CountKind(kTaxiLink), 65535u);
    SetTool(Tool::Nodes);
    Press({ 0, 50 });
    EXPECT_EQ(CountKind(kTaxiLink), 65535u) << "a node would split the link";
    EXPECT_EQ(fake.remark, "A scenery file can hold no more than 65535 taxi links");
}

}  // namespace
