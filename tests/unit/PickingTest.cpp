#include "map/Selection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "fakes/PickFixture.h"
#include "map/ScreenPlace.h"

namespace {

using namespace map;
using namespace model;

class PickingTest : public PickFixture {};

TEST_F(PickingTest, CircleTestIncludesTheBoundary) {
    EXPECT_TRUE(HitsCircle({ 3, 4 }, { 0, 0 }, 5));
    EXPECT_FALSE(HitsCircle({ 4, 4 }, { 0, 0 }, 5));
    EXPECT_TRUE(HitsCircle({ 7, 7 }, { 7, 7 }, 0));
    EXPECT_FALSE(HitsCircle({ -2'000'000'000, 0 }, { 2'000'000'000, 0 }, 5));
}

TEST_F(PickingTest, AFlatSegmentIsHitWithinThreePixelsAbove) {
    EXPECT_TRUE(HitsSegment({ 5, 3 }, { 0, 0 }, { 10, 0 }));
    EXPECT_FALSE(HitsSegment({ 5, 4 }, { 0, 0 }, { 10, 0 }));
    EXPECT_TRUE(HitsSegment({ 5, -2 }, { 0, 0 }, { 10, 0 }));
    EXPECT_FALSE(HitsSegment({ 5, -3 }, { 0, 0 }, { 10, 0 }));  // strictly
}

TEST_F(PickingTest, TheFarEndOfASegmentLiesOutside) {
    EXPECT_TRUE(HitsSegment({ 0, 0 }, { 0, 0 }, { 10, 0 }));
    EXPECT_TRUE(HitsSegment({ 9, 0 }, { 0, 0 }, { 10, 0 }));
    EXPECT_FALSE(HitsSegment({ 10, 0 }, { 0, 0 }, { 10, 0 }));
    EXPECT_FALSE(HitsSegment({ -1, 0 }, { 0, 0 }, { 10, 0 }));
}

TEST_F(PickingTest, ASegmentDrawnBackwardsIsTheSameTheOtherWayRound) {
    EXPECT_TRUE(HitsSegment({ 10, 0 }, { 10, 0 }, { 0, 0 }));
    EXPECT_TRUE(HitsSegment({ 1, 0 }, { 10, 0 }, { 0, 0 }));
    EXPECT_FALSE(HitsSegment({ 0, 0 }, { 10, 0 }, { 0, 0 }));
}

TEST_F(PickingTest, ASteepSegmentExchangesTheAxes) {
    EXPECT_TRUE(HitsSegment({ 3, 5 }, { 0, 0 }, { 0, 10 }));
    EXPECT_FALSE(HitsSegment({ -3, 5 }, { 0, 0 }, { 0, 10 }));
    EXPECT_FALSE(HitsSegment({ 0, 10 }, { 0, 0 }, { 0, 10 }));
    EXPECT_TRUE(HitsSegment({ 5, 13 }, { 0, 0 }, { 10, 20 }));
}

TEST_F(PickingTest, ADiagonalCountsAsFlat) {
    EXPECT_TRUE(HitsSegment({ 5, 8 }, { 0, 0 }, { 10, 10 }));
    EXPECT_FALSE(HitsSegment({ 5, 9 }, { 0, 0 }, { 10, 10 }));
}

TEST_F(PickingTest, ASegmentOfNoLengthIsNeverHit) { EXPECT_FALSE(HitsSegment({ 4, 4 }, { 4, 4 }, { 4, 4 })); }

TEST_F(PickingTest, APixelBesideANodeStillPicksIt) {
    SceneryObject* node = build::Node();
    Paint();
    const Pixel centre = ScreenPoint(node, 0);
    EXPECT_EQ(ScreenRadius(node), 6);
    EXPECT_EQ(PickObject(Beside(centre, 7)).object, node);
    EXPECT_EQ(PickObject(Beside(centre, 8)).object, nullptr);
}

TEST_F(PickingTest, APixelBesideASpotDoesNot) {
    SceneryObject* spot = BigSpot({}, 20);
    Paint();
    EXPECT_EQ(PickObject(Beside(ScreenPoint(spot, 0), 20)).object, spot);
    EXPECT_EQ(PickObject(Beside(ScreenPoint(spot, 0), 21)).object, nullptr);
}

// A start is picked one pixel beside its symbol, the reference point and the tower are not.
TEST_F(PickingTest, OnlyAStartHasAPixelToSpareAmongTheSymbols) {
    layers.starts = true;
    SceneryObject* start = build::Placed<StartLocationRecord>(kStartLocation, { -200, 0 });
    SceneryObject* tower = build::Tower({ 200, 0 });
    PayloadAs<TowerViewpointRecord>(tower).altitude = 1;
    SetPosition(state.airport, build::kMiddle);
    Paint();
    for (const auto& [object, reach] : { std::pair{ start, 1 }, { tower, 0 }, { state.airport, 0 } }) {
        const Pixel centre = ScreenPoint(object, 0);
        const int radius = ScreenRadius(object) + reach;
        ASSERT_GT(radius, 5);
        EXPECT_EQ(PickObject(Beside(centre, radius)).object, object) << "kind " << KindOf(object);
        EXPECT_EQ(PickObject(Beside(centre, radius + 1)).object, nullptr) << "kind " << KindOf(object);
    }
}

TEST_F(PickingTest, ANodeIsPickedBeforeTheRunwayUnderIt) {
    SceneryObject* runway = build::Runway(36);
    SceneryObject* node = build::Node();
    Paint();
    EXPECT_EQ(PickedAt({ 0, 0 }), node);
    EXPECT_EQ(PickedAt({ 0, 50 }), runway);
    EXPECT_EQ(PickedAt({ 30, 50 }), nullptr);  // 22.5 m wide on either side
}

TEST_F(PickingTest, ALinkIsPickedBeforeTheSpotUnderIt) {
    SceneryObject* spot = BigSpot({}, 30);
    SceneryObject* link = build::Link(build::Node({ -100, 0 }), build::Node({ 100, 0 }));
    Paint();
    EXPECT_EQ(PickedAt({ 0, 0 }), link);
    EXPECT_EQ(PickedAt({ 0, 15 }), spot);
}

TEST_F(PickingTest, KindsArePickedInTheirOrder) {
    layers = { .network = true,
               .lights = true,
               .starts = true,
               .navaids = true,
               .holdShortLimits = false,
               .highlightedDesignator = nullptr };
    std::vector<SceneryObject*> order(1, FlatStrip());
    order.push_back(build::Ndb());
    order.push_back(build::Node());
    order.push_back(build::Link(build::Node({ -120, 0 }), build::Node({ 120, 0 })));
    order.push_back(BigSpot({}, 30));
    order.push_back(build::Placed<StartLocationRecord>(kStartLocation, {}));
    order.push_back(state.airport);
    SetPosition(state.airport, build::kMiddle);
    order.push_back(build::Tower());
    PayloadAs<TowerViewpointRecord>(order.back()).altitude = 1;
    order.push_back(build::Runway(36));
    order.push_back(build::Placed<HelipadRecord>(kHelipad, {}));
    PayloadAs<HelipadRecord>(order.back()).length = PayloadAs<HelipadRecord>(order.back()).width = 60;
    order.push_back(SquareApron());
    order.push_back(build::Marker());
    Paint();
    // The one that was hit is made invisible, and the next one shows.
    for (SceneryObject* expected : order) {
        SceneryObject* hit = PickedAt({ 0, 1 });
        ASSERT_EQ(hit, expected) << "kind " << KindOf(expected);
        hit->view[kDrawnWord] = 0;
    }
    EXPECT_EQ(PickedAt({ 0, 1 }), nullptr);
}

TEST_F(PickingTest, AmongObjectsOfAKindTheEarliestWins) {
    SceneryObject* first = build::Node();
    build::Node({ 1, 0 });
    Paint();
    EXPECT_EQ(PickedAt({ 1, 0 }), first);
}

TEST_F(PickingTest, AGuidelineIsPickedOnlyWhileTheNetworkIsShown) {
    SceneryObject* guideline = build::Guideline(build::Marker({ -100, 0 }), build::Marker({ 100, 0 }));
    Paint();
    EXPECT_EQ(PickedAt({ 0, 0 }), guideline);
    layers.network = false;
    Paint();
    EXPECT_EQ(PickedAt({ 0, 0 }), nullptr);
    EXPECT_NE(PickedAt({ 100, 0 }), nullptr);  // its marker
}

TEST_F(PickingTest, AGuidelineIsPickedAfterItsMarkersAndTheApronUnderIt) {
    SceneryObject* from = build::Marker({ -150, 0 });
    SceneryObject* guideline = build::Guideline(from, build::Marker({ 150, 0 }));
    SceneryObject* apron = SquareApron();
    SceneryObject* onApron = build::Marker({ 0, 50 });
    Paint();
    EXPECT_EQ(PickedAt({ -150, 0 }), from);  // the line begins here
    EXPECT_EQ(PickedAt({ -130, 0 }), guideline);
    EXPECT_EQ(PickedAt({ 0, 0 }), apron);
    EXPECT_EQ(PickedAt({ 0, 50 }), apron);
    apron->view[kDrawnWord] = 0;
    EXPECT_EQ(PickedAt({ 0, 50 }), onApron);
    EXPECT_EQ(PickedAt({ 0, 0 }), guideline);
}

TEST_F(PickingTest, AMarkerIsHitWithinFivePixels) {
    SceneryObject* marker = build::Marker();
    Paint();
    EXPECT_EQ(PickObject(Beside(ScreenPoint(marker, 0), 5)).object, marker);
    EXPECT_EQ(PickObject(Beside(ScreenPoint(marker, 0), 6)).object, nullptr);
}

TEST_F(PickingTest, ALayerHiddenSinceThePaintIsNotPicked) {
    build::Node();
    Paint();
    layers.network = false;
    EXPECT_EQ(PickedAt({ 0, 0 }), nullptr);
}

TEST_F(PickingTest, AReplacedStockNavaidIsNotPicked) {
    layers.navaids = true;
    SceneryObject* stock = build::Ndb();
    Paint();
    EXPECT_EQ(PickedAt({ 0, 0 }), stock);
    stock->flags |= kStock;
    stock->related = build::Ndb({ 200, 0 });
    EXPECT_EQ(PickedAt({ 0, 0 }), nullptr);
}

TEST_F(PickingTest, AMarkerBeaconIsHitInsideItsCorners) {
    layers.navaids = true;
    SceneryObject* beacon = build::Placed<MarkerBeaconPayload>(kMarkerBeacon, { 60, 0 });
    PayloadAs<MarkerBeaconPayload>(beacon).heading = 64;  // a quarter turn: the tips lie north and south
    Paint();
    const Pixel middle = PixelOf({ 60, 0 });
    int right = 0, up = 0;  // from the middle to its edges
    for (int i = 0; i < 4; ++i) {
        right = std::max(right, ScreenPoint(beacon, i).x - middle.x);
        up = std::max(up, middle.y - ScreenPoint(beacon, i).y);
    }
    EXPECT_GT(up, 2 * right);
    EXPECT_EQ(PickObject(middle).object, beacon);
    EXPECT_EQ(PickObject(Beside(middle, right - 2, 2 - up)).object, beacon);
    EXPECT_EQ(PickObject(Beside(middle, right + 1)).object, nullptr);
    EXPECT_EQ(PickObject(Beside(middle, 0, -up - 1)).object, nullptr);
    layers.navaids = false;
    EXPECT_EQ(PickObject(middle).object, nullptr);
}

TEST_F(PickingTest, AVorIsHitWithinItsCircle) {
    layers.navaids = true;
    SceneryObject* vor = build::Vor();
    Paint();
    const Pixel middle = ScreenPoint(vor, 0);
    EXPECT_EQ(PickObject(Beside(middle, ScreenRadius(vor))).object, vor);
    EXPECT_EQ(PickObject(Beside(middle, ScreenRadius(vor) + 1)).object, nullptr);
}

TEST_F(PickingTest, AnIlsHasOnlyThePartsItIsFlaggedWith) {
    layers.navaids = true;
    PayloadAs<IlsPayload>(Ils()).body.flags = 0;
    Paint();
    EXPECT_EQ(PickedAt({ 120, 0 }), nullptr);
    EXPECT_EQ(PickedAt({ 200, 0 }), nullptr);
}

// Of two kinds in one place the earlier in the order is hit, whichever comes first in the list; of one kind the first.
TEST_F(PickingTest, TheListDecidesOnlyWithinAKind) {
    for (const bool nodeFirst : { true, false }) {
        ClearModel();
        Open();
        SetPosition(state.airport, build::At({ -390, 290 }));
        SceneryObject* node = nodeFirst ? build::Node() : nullptr;
        SceneryObject* spot = BigSpot({}, 30);
        if (!node) node = build::Node();
        SceneryObject* sameNode = build::Node();
        SceneryObject* sameSpot = BigSpot({}, 30);
        Paint();
        EXPECT_EQ(PickedAt({ 0, 0 }), node);
        EXPECT_EQ(PickedAt({ 20, 0 }), spot);
        EXPECT_NE(PickedAt({ 0, 0 }), sameNode);
        EXPECT_NE(PickedAt({ 20, 0 }), sameSpot);
    }
}

}  // namespace
