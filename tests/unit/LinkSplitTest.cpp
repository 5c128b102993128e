#include "map/LinkSplit.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "fakes/MapFixture.h"
#include "model/EditHistory.h"
#include "model/Links.h"

namespace {

using namespace map;
using namespace model;

class LinkSplitTest : public MapFixture {
protected:
    static std::vector<SceneryObject*> Links() {
        std::vector<SceneryObject*> links;
        for (SceneryObject* o : build::List()) {
            if (KindOf(o) == kTaxiLink) links.push_back(o);
        }
        return links;
    }
    static const TaxiLinkPayload& Of(const SceneryObject* link) { return PayloadAs<TaxiLinkPayload>(link); }
    // The link between two objects, in this direction; null when there is none.
    static SceneryObject* Between(const SceneryObject* start, const SceneryObject* end) {
        for (SceneryObject* link : Links()) {
            if (Of(link).start == start && Of(link).end == end) return link;
        }
        return nullptr;
    }
    static bool OnLink(build::Place place) {
        LatLon point = build::At(place);
        return OnLinkTest(build::At({ 0, 0 }), build::At({ 0, 100 }), &point);
    }
    static double DistanceTo(const SceneryObject* object, build::Place place) {
        return DistanceBetween(PositionOf(object), build::At(place));
    }
};

TEST_F(LinkSplitTest, APointUpTo20FeetBesideALinkLiesOnIt) {
    EXPECT_TRUE(OnLink({ 5.9, 50 }));
    EXPECT_TRUE(OnLink({ -5.9, 50 }));
    EXPECT_FALSE(OnLink({ 6.3, 50 }));
}

TEST_F(LinkSplitTest, NothingSplitsWithin20FeetOfEitherEnd) {
    EXPECT_FALSE(OnLink({ 0, 5.9 }));
    EXPECT_TRUE(OnLink({ 0, 6.3 }));
    EXPECT_TRUE(OnLink({ 0, 93.7 }));
    EXPECT_FALSE(OnLink({ 0, 94.1 }));
    EXPECT_FALSE(OnLink({ 0, -20 }));
    EXPECT_FALSE(OnLink({ 0, 120 }));
}

TEST_F(LinkSplitTest, APointOnALinkIsMovedOntoIt) {
    LatLon point = build::At({ 5, 50 });
    ASSERT_TRUE(OnLinkTest(build::At({ 0, 0 }), build::At({ 0, 100 }), &point));
    EXPECT_LT(DistanceBetween(point, build::At({ 0, 50 })), 0.2);
}

TEST_F(LinkSplitTest, APointBesideALinkStaysWhereItIs) {
    LatLon point = build::At({ 50, 50 });
    const LatLon before = point;
    EXPECT_FALSE(OnLinkTest(build::At({ 0, 0 }), build::At({ 0, 100 }), &point));
    EXPECT_EQ(point.lat, before.lat);
    EXPECT_EQ(point.lon, before.lon);
}

TEST_F(LinkSplitTest, BearingsOnEitherSideOfNorthAreClose) {
    LatLon left = build::At({ -2, 60 }), right = build::At({ 2, 60 });
    EXPECT_TRUE(OnLinkTest(build::At({ 0, 0 }), build::At({ 1, 100 }), &left));
    EXPECT_TRUE(OnLinkTest(build::At({ 0, 0 }), build::At({ -1, 100 }), &right));
}

TEST_F(LinkSplitTest, ALinkOfNoLengthIsNeverHit) {
    LatLon point = build::At({ 0, 10 });
    EXPECT_FALSE(OnLinkTest(build::At({ 0, 0 }), build::At({ 0, 0 }), &point));
}

TEST_F(LinkSplitTest, SplittingMakesTwoCopiesFromTheNode) {
    SceneryObject* name = build::Designator("B");
    SceneryObject* a = build::Node({ 0, 0 });
    SceneryObject* b = build::Node({ 0, 100 });
    SceneryObject* old = build::Link(a, b, kClosedLink, name);
    PayloadAs<TaxiLinkPayload>(old).flagsWord |= 0x04A50000;
    PayloadAs<TaxiLinkPayload>(old).carried[0] = 77;
    SceneryObject* node = build::Node({ 0, 50 });
    BeginAction();
    SplitLink(old, node);
    ASSERT_EQ(Links().size(), 2u);
    EXPECT_TRUE(Of(Links()[0]).start == node);
    EXPECT_TRUE(Of(Links()[0]).end == a);
    EXPECT_TRUE(Of(Links()[1]).start == node);
    EXPECT_TRUE(Of(Links()[1]).end == b);
    for (const SceneryObject* link : Links()) {
        EXPECT_EQ(link->flags, kTaxiLink | 0x2020u);
        EXPECT_EQ(Of(link).flagsWord, kClosedLink | 0x04A50000u);
        EXPECT_TRUE(Of(link).designator == name);
        EXPECT_EQ(Of(link).carried[0], 77u);
        EXPECT_EQ(Of(link).width, 23);
    }
}

TEST_F(LinkSplitTest, AHalfThatEndsAtASpotIsAParkingLinkAndTheOtherAnApronRoute) {
    SceneryObject* a = build::Node({ 0, 0 });
    SceneryObject* spot = build::Spot({ 0, 100 });
    SceneryObject* old = build::Link(a, spot, kParkingLink);
    SceneryObject* node = build::Node({ 0, 50 });
    BeginAction();
    SplitLink(old, node);
    EXPECT_EQ(LinkTypeOf(Of(Between(node, spot))), kParkingLink);
    EXPECT_EQ(LinkTypeOf(Of(Between(node, a))), kApronRouteLink);
}

TEST_F(LinkSplitTest, TheHalfOfARunwayLinkThatEndsAtASpotLosesTheRunwaysName) {
    SceneryObject* runway = build::Runway(36);
    SceneryObject* other = build::Designator("B");
    SceneryObject* a = build::Node({ 0, 0 });
    SceneryObject* spot = build::Spot({ 0, 100 });
    SceneryObject* old = build::Link(a, spot, kRunwayLink, runway);
    SceneryObject* node = build::Node({ 0, 50 });
    BeginAction();
    SplitLink(old, node);
    const TaxiLinkPayload &toSpot = Of(Between(node, spot)), &along = Of(Between(node, a));
    EXPECT_EQ(LinkTypeOf(toSpot), kParkingLink);
    ASSERT_TRUE(toSpot.designator && KindOf(toSpot.designator) == kTaxiDesignator);
    EXPECT_TRUE(IsBlankDesignator(toSpot.designator) && toSpot.designator != other);
    EXPECT_EQ(LinkTypeOf(along), kRunwayLink);
    EXPECT_TRUE(along.designator == runway);
    Undo();
    EXPECT_EQ(Links(), std::vector<SceneryObject*>{ old });
    EXPECT_EQ(BlankDesignator(), nullptr);
}

TEST_F(LinkSplitTest, TwoObjectsAreNeverJoinedTwice) {
    SceneryObject* a = build::Node({ 0, 0 });
    SceneryObject* b = build::Node({ 0, 100 });
    SceneryObject* same = build::Link(a, b);
    SceneryObject* reversed = build::Link(b, a);
    SceneryObject* added = CreateObject(kTaxiLink, sizeof(TaxiLinkPayload));
    PayloadAs<TaxiLinkPayload>(added).start = a;
    PayloadAs<TaxiLinkPayload>(added).end = b;
    BeginAction();
    AddLink(added);
    EXPECT_EQ(Links(), std::vector<SceneryObject*>{ added });
    Undo();
    EXPECT_EQ(Links(), (std::vector<SceneryObject*>{ same, reversed }));
}

TEST_F(LinkSplitTest, ANodeJoinsEveryLinkThatPassesUnderIt) {
    SceneryObject* a = build::Node({ 0, -100 });
    SceneryObject* b = build::Node({ 0, 100 });
    SceneryObject* c = build::Node({ -100, 0 });
    SceneryObject* d = build::Node({ 100, 0 });
    SceneryObject* e = build::Node({ 100, 60 });
    build::Link(a, b);
    build::Link(c, d);
    SceneryObject* beside = build::Link(d, e);
    SceneryObject* node = build::Node({ 2, 3 });
    BeginAction();
    JoinNodeIntoLinks(node);
    EXPECT_EQ(Links().size(), 5u);
    for (const SceneryObject* end : { a, b, c, d }) EXPECT_NE(Between(node, end), nullptr);
    EXPECT_EQ(Links()[0], beside);
    EXPECT_LT(DistanceTo(node, { 0, 0 }), 0.3);
}

TEST_F(LinkSplitTest, ANodesOwnLinksAreNotSplitByIt) {
    SceneryObject* a = build::Node({ 0, 0 });
    SceneryObject* node = build::Node({ 0, 50 });
    SceneryObject* own = build::Link(a, node);
    BeginAction();
    JoinNodeIntoLinks(node);
    EXPECT_EQ(Links(), std::vector<SceneryObject*>{ own });
}

TEST_F(LinkSplitTest, OneUndoPutsEverythingBack) {
    SceneryObject* a = build::Node({ 0, 0 });
    SceneryObject* b = build::Node({ 0, 100 });
    SceneryObject* old = build::Link(a, b);
    const auto before = build::List();
    BeginAction();
    SceneryObject* node = CreateObject(kTaxiNode, sizeof(TaxiNodeRecord));
    SetPosition(node, build::At({ 3, 40 }));
    AddObject(node);
    JoinNodeIntoLinks(node);
    EXPECT_EQ(Links().size(), 2u);
    Undo();
    EXPECT_EQ(build::List(), before);
    EXPECT_TRUE(Of(old).start == a);
    Redo();
    EXPECT_EQ(Links().size(), 2u);
    EXPECT_NE(Between(node, b), nullptr);
    EXPECT_LT(DistanceTo(node, { 0, 40 }), 0.3);
    EXPECT_EQ(build::List(), build::ListFromTail());
}

// Three links under one press, two of them sharing an end, in every order of the list.
TEST_F(LinkSplitTest, TheOrderOfTheListMakesNoDifference) {
    const build::Place ends[] = { { -100, 0 }, { 100, 3 }, { 0, -100 }, { 4, 100 } };
    const std::pair<size_t, size_t> joined[] = { { 0, 1 }, { 2, 3 }, { 0, 3 } };
    std::vector<size_t> order = { 0, 1, 2 };
    std::string expected;
    do {
        ClearModel();
        std::vector<SceneryObject*> nodes;
        for (const build::Place place : ends) nodes.push_back(build::Node(place));
        for (const size_t i : order) {
            SceneryObject* link = build::Link(nodes[joined[i].first], nodes[joined[i].second]);
            PayloadAs<TaxiLinkPayload>(link).width = static_cast<float>(10 + i);
        }
        SceneryObject* node = build::Node({ -48, 47 });  // near the third
        SceneryObject* middle = build::Node({ 1, 4 });   // near the first two
        BeginAction();
        JoinNodeIntoLinks(node);
        JoinNodeIntoLinks(middle);
        std::vector<std::string> network;
        for (SceneryObject* link : Links()) {
            const auto number = [&](const SceneryObject* end) {
                size_t at = 0;
                for (SceneryObject* o : build::List()) {
                    if (o == end) break;
                    at += KindOf(o) == kTaxiNode;
                }
                return std::to_string(at);
            };
            network.push_back(number(Of(link).start) + "-" + number(Of(link).end) + ":" +
                              std::to_string(float{ Of(link).width }));
        }
        std::sort(network.begin(), network.end());
        std::string text;
        for (const std::string& line : network) text += line + " ";
        for (const SceneryObject* end : { node, middle }) {
            text += std::to_string(EncodedPositionOf(end).latCode) + "," +
                    std::to_string(EncodedPositionOf(end).lonCode) + " ";
        }
        if (expected.empty()) expected = text;
        EXPECT_EQ(text, expected);
    } while (std::next_permutation(order.begin(), order.end()));
}

// The flags of the nodes at the ends are the same however the list is ordered.
TEST_F(LinkSplitTest, HoldShortFlagsDoNotDependOnTheOrderOfTheList) {
    const build::Place ends[] = { { 100, 0 }, { 300, 0 }, { 200, -120 }, { 203, 130 }, { 60, 200 } };
    const std::pair<size_t, size_t> joined[] = { { 0, 1 }, { 2, 3 }, { 0, 4 }, { 3, 4 } };
    std::vector<size_t> order = { 0, 1, 2, 3 };
    std::vector<int> expected;
    do {
        ClearModel();
        build::Runway(36);
        std::vector<SceneryObject*> nodes;
        for (const build::Place place : ends) {
            nodes.push_back(build::Node(place, kHoldShortNode));
            PayloadAs<TaxiNodeRecord>(nodes.back()).reversed = 1;
        }
        for (const size_t i : order) build::Link(nodes[joined[i].first], nodes[joined[i].second]);
        SceneryObject* middle = build::Node({ 201, 2 }, kHoldShortNode);
        BeginAction();
        JoinNodeIntoLinks(middle);
        nodes.push_back(middle);
        std::vector<int> flags;
        for (const SceneryObject* node : nodes) flags.push_back(PayloadAs<TaxiNodeRecord>(node).reversed);
        if (expected.empty()) expected = flags;
        EXPECT_EQ(flags, expected);
    } while (std::next_permutation(order.begin(), order.end()));
    EXPECT_NE(std::count(expected.begin(), expected.end(), 0), 0);
}

TEST_F(LinkSplitTest, WhereHalvesWouldJoinTheSameTwoObjectsThatOfTheNearestLinkStays) {
    SceneryObject* a = build::Node({ 0, -100 });
    SceneryObject* b = build::Node({ 1, 100 });
    SceneryObject* c = build::Node({ -6, 100 });
    for (const bool nearestFirst : { true, false }) {
        BeginAction();
        for (SceneryObject* link : Links()) DeleteObject(link);
        if (nearestFirst) build::Link(a, b, kClosedLink);
        build::Link(a, c, kTaxiwayLink);
        if (!nearestFirst) build::Link(a, b, kClosedLink);
        SceneryObject* node = build::Node({ 1, 0 });
        BeginAction();
        JoinNodeIntoLinks(node);
        ASSERT_NE(Between(node, a), nullptr);
        EXPECT_EQ(LinkTypeOf(Of(Between(node, a))), kClosedLink);
        EXPECT_NE(Between(node, b), nullptr);
        EXPECT_NE(Between(node, c), nullptr);
        EXPECT_EQ(Links().size(), 3u);
    }
}

}  // namespace
