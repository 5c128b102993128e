// LinkReattachTest.cpp - pulling an end of a taxi link to another node, spot or place.
#include <gtest/gtest.h>

#include "fakes/ToolFixture.h"
#include "map/LinkTool.h"
#include "map/Selection.h"
#include "model/Links.h"

namespace {

using namespace map;
using namespace model;

class LinkReattachTest : public ToolFixture {
protected:
    static std::string NameOf(const SceneryObject* designator) {
        return std::string(PayloadAs<TaxiDesignatorRecord>(designator).name);
    }
    // Selects the link and pulls the handle at one of its ends.
    static void PullEnd(SceneryObject* link, bool start, build::Place to) {
        SetTool(Tool::Pointer);
        DeselectAll();
        link->flags |= kSelected;
        Paint();
        Point nearStart, nearEnd;
        ASSERT_TRUE(LinkHandlesOf(link, &nearStart, &nearEnd));
        const Point handle = start ? nearStart : nearEnd;
        OnButtonDown({ int(handle.x), int(handle.y) }, {});
        DragTo(to);
        Release(to);
        Paint();
    }
};

TEST_F(LinkReattachTest, AnEndIsReattachedToAnotherNode) {
    SceneryObject* a = build::Node({ -100, 0 });
    SceneryObject* b = build::Node({ 100, 0 });
    SceneryObject* c = build::Node({ 0, 150 });
    SceneryObject* link = build::Link(a, b, kClosedLink, build::Designator("A"));
    const ByteList before = File();
    PullEnd(link, false, { 0, 150 });
    EXPECT_EQ(Copied(LinkOf(link).start), a);
    EXPECT_EQ(Copied(LinkOf(link).end), c);
    EXPECT_EQ(link->flags & 0x2020u, 0x2020u);
    EXPECT_EQ(CountKind(kTaxiNode), 3u);  // the node that it left stays
    ExpectOneAction(before);
}

TEST_F(LinkReattachTest, ReattachedToASpotALinkBecomesAParkingLinkAndBack) {
    SceneryObject* a = build::Node({ -100, 0 });
    SceneryObject* b = build::Node({ 100, 0 });
    SceneryObject* spot = BigSpot({ 0, 150 });
    SceneryObject* link = build::Link(a, b, kTaxiwayLink, build::Designator("A"));  // the last of the list
    const ByteList before = File();
    PullEnd(link, true, { 0, 150 });
    EXPECT_EQ(Copied(LinkOf(link).start), b);
    EXPECT_EQ(Copied(LinkOf(link).end), spot);
    EXPECT_EQ(LinkTypeOf(LinkOf(link)), kParkingLink);
    EXPECT_EQ(NameOf(Copied(LinkOf(link).designator)), "");
    EXPECT_EQ(build::List(), build::ListFromTail());
    ExpectOneAction(before);
    PullEnd(link, false, { -100, 0 });
    EXPECT_EQ(Copied(LinkOf(link).end), a);
    EXPECT_EQ(LinkTypeOf(LinkOf(link)), kApronRouteLink);
}

TEST_F(LinkReattachTest, ReattachedOntoItselfALinkGetsShorter) {
    SceneryObject* a = build::Node({ -100, 0 });
    SceneryObject* b = build::Node({ 100, 0 });
    SceneryObject* link = build::Link(a, b);
    PullEnd(link, false, { 20, 0 });
    EXPECT_EQ(CountKind(kTaxiLink), 1u);
    EXPECT_LT(DistanceTo(Copied(LinkOf(link).end), { 20, 0 }), 2);
    EXPECT_EQ(CountKind(kTaxiNode), 3u);
}

TEST_F(LinkReattachTest, ReattachingReplacesTheLinkThatIsThere) {
    SceneryObject* a = build::Node({ -100, 0 });
    SceneryObject* b = build::Node({ 100, 0 });
    SceneryObject* c = build::Node({ 0, 150 });
    SceneryObject* link = build::Link(a, b, kClosedLink);
    build::Link(c, a);
    const ByteList before = File();
    PullEnd(link, false, { 0, 150 });
    EXPECT_EQ(AllOf(kTaxiLink), std::vector<SceneryObject*>{ link });
    ExpectOneAction(before);
}

TEST_F(LinkReattachTest, ReattachingToEitherOfItsOwnEndsOrNotAtAllChangesNothing) {
    SceneryObject* a = build::Node({ -100, 0 });
    SceneryObject* b = build::Node({ 100, 0 });
    SceneryObject* link = build::Link(a, b);
    const ByteList before = File();
    PullEnd(link, false, { -100, 0 });
    PullEnd(link, false, { 100, 0 });
    Point nearStart, nearEnd;
    ASSERT_TRUE(LinkHandlesOf(link, &nearStart, &nearEnd));
    OnButtonDown({ int(nearEnd.x), int(nearEnd.y) }, {});
    OnButtonUp({ int(nearEnd.x) + 1, int(nearEnd.y) }, {});
    EXPECT_EQ(File(), before);
    EXPECT_FALSE(CanUndo());
}

TEST_F(LinkReattachTest, ReattachingBetweenTwoSpotsIsRefused) {
    SceneryObject* a = build::Node({ -100, 0 });
    SceneryObject* link = build::Link(a, BigSpot({ 150, 0 }), kParkingLink);
    BigSpot({ 0, 150 });
    const ByteList before = File();
    PullEnd(link, true, { 0, 150 });
    EXPECT_EQ(File(), before);
    EXPECT_FALSE(CanUndo());
}

TEST_F(LinkReattachTest, OnlyASingleSelectedLinkHasHandles) {
    SceneryObject* a = build::Node({ -100, 0 });
    SceneryObject* link = build::Link(a, build::Node({ 100, 0 }));
    EXPECT_EQ(OnlySelectedLink(), nullptr);
    link->flags |= kSelected;
    EXPECT_EQ(OnlySelectedLink(), link);
    a->flags |= kSelected;
    EXPECT_EQ(OnlySelectedLink(), nullptr);
}

TEST_F(LinkReattachTest, ALayerHiddenUnderAReattachIsStillReleasedOn) {
    SceneryObject* a = build::Node({ -100, 0 });
    SceneryObject* link = build::Link(a, build::Node({ 100, 0 }));
    SceneryObject* c = build::Node({ 0, 150 });
    SetTool(Tool::Pointer);
    link->flags |= kSelected;
    Paint();
    Point nearStart, nearEnd;
    ASSERT_TRUE(LinkHandlesOf(link, &nearStart, &nearEnd));
    OnButtonDown({ int(nearEnd.x), int(nearEnd.y) }, {});
    layers.network = false;
    Paint();
    DragTo({ 0, 150 });
    Release({ 0, 150 });
    EXPECT_EQ(Copied(LinkOf(link).end), c);
    EXPECT_EQ(CountKind(kTaxiNode), 3u);
    EXPECT_TRUE(layers.network);
}

TEST_F(LinkReattachTest, AReattachedRunwayLinkTakesTheRunwayUnderIt) {
    SceneryObject* old = build::Runway(36, 0, { -300, 0 });
    SceneryObject* runway = build::Runway(36, 1);
    PayloadAs<RunwayPayload>(runway).body.width = 61;
    build::Node({ 0, 100 });
    SceneryObject* link = build::Link(build::Node({ 0, -100 }), build::Node({ -200, -100 }), kRunwayLink, old);
    const ByteList before = File();
    PullEnd(link, false, { 0, 100 });
    EXPECT_EQ(Copied(LinkOf(link).designator), runway);
    EXPECT_EQ(Copied(LinkOf(link).width), 61);
    EXPECT_EQ(fake.remark, "");
    ExpectOneAction(before);
}

TEST_F(LinkReattachTest, AReattachedRunwayLinkBesideAllRunwaysKeepsItsNameAndARemarkSaysSo) {
    SceneryObject* runway = build::Runway(36, 0, { -300, 0 });
    SceneryObject* link = build::Link(build::Node({ 0, -100 }), build::Node({ 100, -100 }), kRunwayLink, runway);
    build::Node({ 0, 100 });
    PullEnd(link, false, { 0, 100 });
    EXPECT_EQ(Copied(LinkOf(link).designator), runway);
    EXPECT_EQ(Copied(LinkOf(link).width), 23);
    EXPECT_EQ(fake.remark, "No runway lies under the link");
}

TEST_F(LinkReattachTest, AReattachedLinkLosesNoNameWhereNoBlankOneFits) {
    SceneryObject* b = build::Node({ 100, 0 });
    SceneryObject* name = build::Designator("A");
    for (int i = 1; i < 256; ++i) build::Designator("B");
    SceneryObject* link = build::Link(build::Node({ -100, 0 }), b, kTaxiwayLink, name);
    BigSpot({ 0, 150 });
    PullEnd(link, false, { 0, 150 });
    EXPECT_EQ(Copied(LinkOf(link).end), b);
    EXPECT_EQ(fake.remark, "A scenery file can hold no more than 256 taxiway names");
    EXPECT_FALSE(CanUndo());
}

}  // namespace
