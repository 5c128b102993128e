#include "map/Selection.h"

#include <gtest/gtest.h>

#include "fakes/MapFixture.h"
#include "map/ApronShape.h"
#include "map/LightStrips.h"
#include "map/ScreenPlace.h"

namespace {

using namespace map;
using namespace model;

class SelectionTest : public MapFixture {
protected:
    void SetUp() override {
        MapFixture::SetUp();
        Scale(1);
        Open();
        SetPosition(state.airport, build::At({ -390, 290 }));  // out of the way, in a corner
    }
    static SceneryObject* PickedAt(build::Place place) { return PickObject(PixelOf(place)).object; }
    static Pixel Beside(Pixel at, int dx, int dy = 0) { return { at.x + dx, at.y + dy }; }
    static SceneryObject* SquareApron() {
        return build::Apron({ build::Encoded({ -100, -100 }), build::Encoded({ 100, -100 }),
                              build::Encoded({ 100, 100 }), build::Encoded({ -100, 100 }) });
    }
    static SceneryObject* Spot(build::Place place, float radius) {
        SceneryObject* spot = build::Spot(place);
        PayloadAs<ParkingSpotRecord>(spot).radius = radius;
        return spot;
    }
    static SceneryObject* Ils() {
        SceneryObject* ils = build::IlsWithParts("IABC", { 0, 100 }, { 120, 0 }, { 200, 0 });
        PayloadAs<IlsPayload>(ils).localizer.width = 5;
        return ils;
    }
    static SceneryObject* Strip() {
        const EncodedPoint from = build::Encoded({ -100, 0 }), to = build::Encoded({ 100, 0 });
        return build::EdgeLights({ { 60, from.longitude, from.latitude, to.longitude, to.latitude, 0, 0, 0 } });
    }
};

TEST_F(SelectionTest, CircleTestIncludesTheBoundary) {
    EXPECT_TRUE(HitsCircle({ 3, 4 }, { 0, 0 }, 5));
    EXPECT_FALSE(HitsCircle({ 4, 4 }, { 0, 0 }, 5));
    EXPECT_TRUE(HitsCircle({ 7, 7 }, { 7, 7 }, 0));
    EXPECT_FALSE(HitsCircle({ -2'000'000'000, 0 }, { 2'000'000'000, 0 }, 5));
}

TEST_F(SelectionTest, AFlatSegmentIsHitWithinThreePixelsAbove) {
    EXPECT_TRUE(HitsSegment({ 5, 3 }, { 0, 0 }, { 10, 0 }));
    EXPECT_FALSE(HitsSegment({ 5, 4 }, { 0, 0 }, { 10, 0 }));
    EXPECT_TRUE(HitsSegment({ 5, -2 }, { 0, 0 }, { 10, 0 }));
    EXPECT_FALSE(HitsSegment({ 5, -3 }, { 0, 0 }, { 10, 0 }));  // strictly
}

TEST_F(SelectionTest, TheFarEndOfASegmentLiesOutside) {
    EXPECT_TRUE(HitsSegment({ 0, 0 }, { 0, 0 }, { 10, 0 }));
    EXPECT_TRUE(HitsSegment({ 9, 0 }, { 0, 0 }, { 10, 0 }));
    EXPECT_FALSE(HitsSegment({ 10, 0 }, { 0, 0 }, { 10, 0 }));
    EXPECT_FALSE(HitsSegment({ -1, 0 }, { 0, 0 }, { 10, 0 }));
}

TEST_F(SelectionTest, ASegmentDrawnBackwardsIsTheSameTheOtherWayRound) {
    EXPECT_TRUE(HitsSegment({ 10, 0 }, { 10, 0 }, { 0, 0 }));
    EXPECT_TRUE(HitsSegment({ 1, 0 }, { 10, 0 }, { 0, 0 }));
    EXPECT_FALSE(HitsSegment({ 0, 0 }, { 10, 0 }, { 0, 0 }));
}

TEST_F(SelectionTest, ASteepSegmentExchangesTheAxes) {
    EXPECT_TRUE(HitsSegment({ 3, 5 }, { 0, 0 }, { 0, 10 }));
    EXPECT_FALSE(HitsSegment({ -3, 5 }, { 0, 0 }, { 0, 10 }));
    EXPECT_FALSE(HitsSegment({ 0, 10 }, { 0, 0 }, { 0, 10 }));
    EXPECT_TRUE(HitsSegment({ 5, 13 }, { 0, 0 }, { 10, 20 }));
}

TEST_F(SelectionTest, ADiagonalCountsAsFlat) {
    EXPECT_TRUE(HitsSegment({ 5, 8 }, { 0, 0 }, { 10, 10 }));
    EXPECT_FALSE(HitsSegment({ 5, 9 }, { 0, 0 }, { 10, 10 }));
}

TEST_F(SelectionTest, ASegmentOfNoLengthIsNeverHit) { EXPECT_FALSE(HitsSegment({ 4, 4 }, { 4, 4 }, { 4, 4 })); }

TEST_F(SelectionTest, APixelBesideANodeStillPicksIt) {
    SceneryObject* node = build::Node();
    Paint();
    const Pixel centre = ScreenPoint(node, 0);
    EXPECT_EQ(ScreenRadius(node), 6);
    EXPECT_EQ(PickObject(Beside(centre, 7)).object, node);
    EXPECT_EQ(PickObject(Beside(centre, 8)).object, nullptr);
}

TEST_F(SelectionTest, APixelBesideASpotDoesNot) {
    SceneryObject* spot = Spot({}, 20);
    Paint();
    EXPECT_EQ(PickObject(Beside(ScreenPoint(spot, 0), 20)).object, spot);
    EXPECT_EQ(PickObject(Beside(ScreenPoint(spot, 0), 21)).object, nullptr);
}

TEST_F(SelectionTest, ANodeIsPickedBeforeTheRunwayUnderIt) {
    SceneryObject* runway = build::Runway(36);
    SceneryObject* node = build::Node();
    Paint();
    EXPECT_EQ(PickedAt({ 0, 0 }), node);
    EXPECT_EQ(PickedAt({ 0, 50 }), runway);
    EXPECT_EQ(PickedAt({ 30, 50 }), nullptr);  // 22.5 m wide on either side
}

TEST_F(SelectionTest, ALinkIsPickedBeforeTheSpotUnderIt) {
    SceneryObject* spot = Spot({}, 30);
    SceneryObject* link = build::Link(build::Node({ -100, 0 }), build::Node({ 100, 0 }));
    Paint();
    EXPECT_EQ(PickedAt({ 0, 0 }), link);
    EXPECT_EQ(PickedAt({ 0, 15 }), spot);
}

TEST_F(SelectionTest, KindsArePickedInTheirOrder) {
    layers = { .network = true,
               .lights = true,
               .starts = true,
               .navaids = true,
               .holdShortLimits = false,
               .highlightedDesignator = nullptr };
    std::vector<SceneryObject*> order(1, Strip());
    order.push_back(build::Ndb());
    order.push_back(build::Node());
    order.push_back(build::Link(build::Node({ -120, 0 }), build::Node({ 120, 0 })));
    order.push_back(Spot({}, 30));
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

TEST_F(SelectionTest, AmongObjectsOfAKindTheEarliestWins) {
    SceneryObject* first = build::Node();
    build::Node({ 1, 0 });
    Paint();
    EXPECT_EQ(PickedAt({ 1, 0 }), first);
}

TEST_F(SelectionTest, AGuidelineIsPickedOnlyWhileTheNetworkIsShown) {
    SceneryObject* guideline = build::Guideline(build::Marker({ -100, 0 }), build::Marker({ 100, 0 }));
    Paint();
    EXPECT_EQ(PickedAt({ 0, 0 }), guideline);
    layers.network = false;
    Paint();
    EXPECT_EQ(PickedAt({ 0, 0 }), nullptr);
    EXPECT_NE(PickedAt({ 100, 0 }), nullptr);  // its marker
}

TEST_F(SelectionTest, AMarkerIsHitWithinFivePixels) {
    SceneryObject* marker = build::Marker();
    Paint();
    EXPECT_EQ(PickObject(Beside(ScreenPoint(marker, 0), 5)).object, marker);
    EXPECT_EQ(PickObject(Beside(ScreenPoint(marker, 0), 6)).object, nullptr);
}

TEST_F(SelectionTest, ALayerHiddenSinceThePaintIsNotPicked) {
    build::Node();
    Paint();
    layers.network = false;
    EXPECT_EQ(PickedAt({ 0, 0 }), nullptr);
}

TEST_F(SelectionTest, AReplacedStockNavaidIsNotPicked) {
    layers.navaids = true;
    SceneryObject* stock = build::Ndb();
    Paint();
    EXPECT_EQ(PickedAt({ 0, 0 }), stock);
    stock->flags |= kStock;
    stock->related = build::Ndb({ 200, 0 });
    EXPECT_EQ(PickedAt({ 0, 0 }), nullptr);
}

TEST_F(SelectionTest, TheClickedObjectIsSelectedAloneOrAdded) {
    SceneryObject* a = build::Node({ -50, 0 });
    SceneryObject* b = build::Node({ 50, 0 });
    Paint();
    SelectAt(PixelOf({ -50, 0 }), false);
    EXPECT_TRUE(IsSelected(a));
    SelectAt(PixelOf({ 50, 0 }), true);
    EXPECT_TRUE(IsSelected(a) && IsSelected(b));
    SelectAt(PixelOf({ 50, 0 }), true);
    EXPECT_TRUE(IsSelected(a) && !IsSelected(b));
    SelectAt(PixelOf({ 50, 0 }), false);
    EXPECT_TRUE(!IsSelected(a) && IsSelected(b));
}

TEST_F(SelectionTest, AClickOnEmptyMapDeselectsEverything) {
    SceneryObject* node = build::Node();
    Paint();
    SelectAt(PixelOf({ 0, 0 }), false);
    SelectAt(PixelOf({ 200, 200 }), true);
    EXPECT_TRUE(IsSelected(node));
    SelectAt(PixelOf({ 200, 200 }), false);
    EXPECT_FALSE(IsSelected(node));
}

TEST_F(SelectionTest, AMissRepaintsOnlyWhenSomethingWasSelected) {
    build::Node();
    Paint();
    SelectAt(PixelOf({ 200, 200 }), false);
    EXPECT_EQ(fake.repaints, 0);
    SelectAt(PixelOf({ 0, 0 }), false);
    EXPECT_EQ(fake.repaints, 1);
    SelectAt(PixelOf({ 200, 200 }), false);
    EXPECT_EQ(fake.repaints, 2);
}

TEST_F(SelectionTest, AClickOnTheRingOfTheFaultMarkerHidesIt) {
    faultMarker = { true, build::At({ 200, 200 }) };
    Paint();
    const Pixel middle = PixelOf({ 200, 200 });
    for (const int beside : { 0, 12, 24 }) SelectAt(Beside(middle, beside), false);
    EXPECT_TRUE(faultMarker.shown);
    EXPECT_EQ(fake.repaints, 0);
    SelectAt(Beside(middle, 16), true);
    EXPECT_FALSE(faultMarker.shown);
    EXPECT_EQ(fake.repaints, 1);
    SelectAt(Beside(middle, 16), false);
    EXPECT_EQ(fake.repaints, 1);
}

TEST_F(SelectionTest, AnObjectUnderTheRingIsSelectedAndTheFaultMarkerStays) {
    faultMarker = { true, build::At({ -16, 0 }) };
    SceneryObject* node = build::Node();
    Paint();
    SelectAt(PixelOf({ 0, 0 }), false);
    EXPECT_TRUE(IsSelected(node));
    EXPECT_TRUE(faultMarker.shown);
}

TEST_F(SelectionTest, DeselectingSaysWhetherAnythingWasSelected) {
    build::Node()->flags |= kSelected;
    EXPECT_TRUE(DeselectAll());
    EXPECT_FALSE(DeselectAll());
}

TEST_F(SelectionTest, AnIlsIsSelectedByItsParts) {
    layers.navaids = true;
    SceneryObject* ils = Ils();
    Paint();
    auto& parts = PayloadAs<IlsPayload>(ils).selectedParts;
    SelectAt(PixelOf({ 120, 0 }), true);
    EXPECT_EQ(parts, kGlideSlopePart);
    EXPECT_TRUE(IsSelected(ils));
    SelectAt(PixelOf({ 200, 0 }), true);
    EXPECT_EQ(parts, kGlideSlopePart | kDmePart);
    SelectAt(PixelOf({ 0, 100 }), true);
    EXPECT_EQ(parts, kAllIlsParts);
    SelectAt(PixelOf({ 120, 0 }), true);
    EXPECT_EQ(parts, kLocalizerPart | kDmePart);
    SelectAt(PixelOf({ 0, -150 }), false);  // in the beam, 250 m before the antenna
    EXPECT_EQ(parts, kLocalizerPart);
    SelectAt(PixelOf({ 0, -150 }), true);
    EXPECT_EQ(parts, 0);
    EXPECT_FALSE(IsSelected(ils));
}

TEST_F(SelectionTest, AnIlsHasOnlyThePartsItIsFlaggedWith) {
    layers.navaids = true;
    PayloadAs<IlsPayload>(Ils()).body.flags = 0;
    Paint();
    EXPECT_EQ(PickedAt({ 120, 0 }), nullptr);
    EXPECT_EQ(PickedAt({ 200, 0 }), nullptr);
}

TEST_F(SelectionTest, AnApronIsSelectedWholeOrByVertex) {
    SceneryObject* apron = SquareApron();
    Paint();
    SelectAt(PixelOf({ 0, 0 }), false);
    EXPECT_EQ(apron->flags & (kSelected | kWholeSelected), kSelected | kWholeSelected);
    SelectAt(PixelOf({ 100, 100 }), false);
    EXPECT_EQ(apron->flags & (kSelected | kWholeSelected), kSelected);
    EXPECT_TRUE(IsVertexSelected(apron, 2));
    EXPECT_FALSE(IsVertexSelected(apron, 0));
    SelectAt(PixelOf({ 100, 100 }), true);
    EXPECT_FALSE(IsSelected(apron));
    SelectAt(PixelOf({ 0, 0 }), true);
    SelectAt(PixelOf({ 0, 0 }), true);
    EXPECT_EQ(apron->flags & (kSelected | kWholeSelected), 0u);
}

TEST_F(SelectionTest, WhatIsLeftOfAnApronIsSelectedByItsLineOrItsCorners) {
    SceneryObject* apron = build::Apron({ build::Encoded({ -100, 0 }), build::Encoded({ 100, 0 }) });
    Paint();
    SelectAt(PixelOf({ 0, 0 }), false);
    EXPECT_EQ(apron->flags & (kSelected | kWholeSelected), kSelected | kWholeSelected);
    SelectAt(PixelOf({ 100, 0 }), false);
    EXPECT_EQ(apron->flags & (kSelected | kWholeSelected), kSelected);
    EXPECT_TRUE(IsVertexSelected(apron, 1));
    EXPECT_EQ(PickedAt({ 0, 20 }), nullptr);
    EXPECT_EQ(PickedAt({ 120, 0 }), nullptr);
}

TEST_F(SelectionTest, TheLastCornerOfAnApronCanBeSelected) {
    SceneryObject* apron = build::Apron({ build::Encoded({ 100, 0 }) });
    Paint();
    EXPECT_EQ(PickedAt({ 0, 0 }), nullptr);
    SelectAt(PixelOf({ 100, 0 }), false);
    EXPECT_TRUE(IsVertexSelected(apron, 0));
}

TEST_F(SelectionTest, DeselectingAnApronForgetsItsVertices) {
    SceneryObject* apron = SquareApron();
    Paint();
    SelectAt(PixelOf({ 100, 100 }), false);
    DeselectAll();
    EXPECT_FALSE(AnyVertexSelected(apron));
}

TEST_F(SelectionTest, ALightStripIsSelectedByPointOrSegment) {
    layers.lights = true;
    SceneryObject* lights = Strip();
    Paint();
    SelectAt(PixelOf({ -100, 0 }), false);
    EXPECT_TRUE(StripAt(lights, 0).startSelected);
    SelectAt(PixelOf({ 0, 0 }), true);
    EXPECT_TRUE(StripAt(lights, 0).segmentSelected && StripAt(lights, 0).startSelected);
    SelectAt(PixelOf({ 100, 0 }), false);
    EXPECT_TRUE(StripAt(lights, 0).endSelected);
    EXPECT_FALSE(StripAt(lights, 0).segmentSelected || StripAt(lights, 0).startSelected);
    layers.lights = false;
    EXPECT_EQ(PickedAt({ 0, 0 }), nullptr);
}

TEST_F(SelectionTest, SelectAllLeavesOutVorsNdbsAndReplacedStock) {
    SceneryObject* node = build::Node();
    SceneryObject* ndb = build::Ndb();
    SceneryObject* vor = build::Vor();
    SceneryObject* stock = build::Ils("IABC");
    SceneryObject* replacement = Ils();
    stock->flags |= kStock;
    stock->related = replacement;
    SceneryObject* lights = Strip();
    SelectAll();
    EXPECT_EQ(node->flags & (kSelected | kWholeSelected), kSelected | kWholeSelected);
    for (const SceneryObject* left : { ndb, vor, stock }) EXPECT_FALSE(IsSelected(left));
    EXPECT_EQ(PayloadAs<IlsPayload>(replacement).selectedParts, kAllIlsParts);
    EXPECT_TRUE(StripAt(lights, 0).startSelected && StripAt(lights, 0).endSelected);
    EXPECT_EQ(fake.repaints, 1);
    DeselectAll();
    EXPECT_EQ(node->flags & (kSelected | kWholeSelected), 0u);
    EXPECT_EQ(PayloadAs<IlsPayload>(replacement).selectedParts, 0);
    EXPECT_FALSE(AnyStripPartSelected(lights));
}

TEST_F(SelectionTest, AWhollySelectedStripIsSelectedInAllItsParts) {
    layers.lights = true;
    SceneryObject* lights = Strip();
    SelectAll();
    EXPECT_TRUE(IsPickSelected({ lights, PartNumber(0, StripPart::Segment) }));
    EXPECT_TRUE(IsPickSelected({ lights, PartNumber(0, StripPart::End) }));
    DeselectAll();
    EXPECT_FALSE(IsPickSelected({ lights, PartNumber(0, StripPart::Segment) }));
}

// Of two kinds in one place the earlier in the order is hit, whichever comes first in the list; of one kind the first.
TEST_F(SelectionTest, TheListDecidesOnlyWithinAKind) {
    for (const bool nodeFirst : { true, false }) {
        ClearModel();
        Open();
        SetPosition(state.airport, build::At({ -390, 290 }));
        SceneryObject* node = nodeFirst ? build::Node() : nullptr;
        SceneryObject* spot = Spot({}, 30);
        if (!node) node = build::Node();
        SceneryObject* sameNode = build::Node();
        SceneryObject* sameSpot = Spot({}, 30);
        Paint();
        EXPECT_EQ(PickedAt({ 0, 0 }), node);
        EXPECT_EQ(PickedAt({ 20, 0 }), spot);
        EXPECT_NE(PickedAt({ 0, 0 }), sameNode);
        EXPECT_NE(PickedAt({ 20, 0 }), sameSpot);
    }
}

}  // namespace
