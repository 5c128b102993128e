#include "map/PointerTool.h"

#include <gtest/gtest.h>

#include <limits>

#include "fakes/ToolFixture.h"
#include "map/ApronShape.h"
#include "map/LightStrips.h"
#include "map/ScreenPlace.h"
#include "map/Selection.h"
#include "map/SelectionBox.h"
#include "map/TurnDrag.h"

namespace {

using namespace map;
using namespace model;

class PointerToolTest : public ToolFixture {
protected:
    static bool All(std::initializer_list<SceneryObject*> objects) {
        for (const SceneryObject* object : objects) {
            if (!IsSelected(object)) return false;
        }
        return true;
    }
    static bool None(std::initializer_list<SceneryObject*> objects) {
        for (const SceneryObject* object : objects) {
            if (IsSelected(object)) return false;
        }
        return true;
    }
    static void Box(build::Place from, build::Place to, KeyState keys = {}) { Drag(from, to, keys); }
    static float HeadingOf(const SceneryObject* spot) { return PayloadAs<ParkingSpotRecord>(spot).heading; }
    static Pixel HandleOf(const SceneryObject* object) {
        const Point handle = TurnHandleOf(object);
        return { int(handle.x), int(handle.y) };
    }
};

TEST_F(PointerToolTest, ASelectedGroupIsDraggedByAnyOfItsObjects) {
    SceneryObject* a = build::Node({ -100, 0 });
    SceneryObject* b = build::Node({ 100, 0 });
    Paint();
    Click({ -100, 0 });
    Click({ 100, 0 }, { .shift = true });
    Drag({ -100, 0 }, { -100, 60 });
    EXPECT_LT(DistanceTo(a, { -100, 60 }), 1);
    EXPECT_LT(DistanceTo(b, { 100, 60 }), 1);
    EXPECT_TRUE(All({ a, b }));
}

TEST_F(PointerToolTest, AClickOnOneOfAGroupSelectsItAlone) {
    SceneryObject* a = build::Node({ -100, 0 });
    SceneryObject* b = build::Node({ 100, 0 });
    Paint();
    Click({ -100, 0 });
    Click({ 100, 0 }, { .ctrl = true });
    Click({ 100, 0 });
    EXPECT_TRUE(None({ a }) && All({ b }));
}

TEST_F(PointerToolTest, TheRectangleAddsWhatLiesInside) {
    SceneryObject* inside = build::Node({ -50, 0 });
    SceneryObject* spot = BigSpot({ 0, 0 });
    SceneryObject* outside = build::Node({ 200, 0 });
    SceneryObject* within = build::Link(inside, spot, kParkingLink);
    SceneryObject* across = build::Link(inside, outside);
    Box({ -100, 100 }, { 100, -100 });
    EXPECT_TRUE(All({ inside, spot, within }));
    EXPECT_TRUE(None({ outside, across }));
    Box({ 260, 60 }, { 150, -60 }, { .shift = true });  // from the other side; nothing is deselected
    EXPECT_TRUE(All({ inside, spot, within, outside }));
    Box({ 260, 60 }, { 150, -60 });
    EXPECT_TRUE(None({ inside, spot, within }) && All({ outside }));
}

TEST_F(PointerToolTest, TheRectangleTakesEveryKindByItsRule) {
    layers.navaids = true;
    SceneryObject* marker = build::Marker({ -50, 50 });
    SceneryObject* other = build::Marker({ 50, 50 });
    SceneryObject* line = build::Guideline(marker, other);
    SceneryObject* pad = build::Placed<HelipadRecord>(kHelipad, { 0, -50 });
    PayloadAs<HelipadRecord>(pad).length = PayloadAs<HelipadRecord>(pad).width = 30;
    SceneryObject* tower = build::Tower({ -70, 0 });
    PayloadAs<TowerViewpointRecord>(tower).altitude = 1;
    SceneryObject* runway = build::Runway(36, 0, { 80, 0 });
    PayloadAs<RunwayPayload>(runway).body.length = 150;
    SceneryObject* longOne = build::Runway(36, 0, { -85, 0 });
    PayloadAs<RunwayPayload>(longOne).body.length = 300;
    SceneryObject* vor = build::Vor({ 20, 20 });
    SceneryObject* ndb = build::Ndb({ -20, 20 });
    layers.starts = true;
    SceneryObject* start = build::Placed<StartLocationRecord>(kStartLocation, { 0, 80 });
    SetPosition(state.airport, build::At({ 30, 80 }));
    Box({ -110, 110 }, { 110, -110 });
    EXPECT_TRUE(All({ marker, other, line, pad, tower, runway, vor, ndb }));
    EXPECT_TRUE(None({ longOne, start, state.airport }));
}

TEST_F(PointerToolTest, HiddenLayersAreNotInTheRectangle) {
    SceneryObject* a = build::Node({ -50, 0 });
    SceneryObject* link = build::Link(a, build::Node({ 50, 0 }));
    SceneryObject* vor = build::Vor();
    SceneryObject* lights = Strip({ -50, -60 }, { 50, -60 });
    SceneryObject* line = build::Guideline(build::Marker({ -50, 60 }), build::Marker({ 50, 60 }));
    layers.navaids = layers.lights = true;
    Paint();
    layers.network = layers.navaids = layers.lights = false;
    Press({ -100, 100 });
    DragTo({ 100, -100 });
    Release({ 100, -100 });
    EXPECT_TRUE(None({ a, link, vor, lights }));
    EXPECT_TRUE(All({ line })) << "only links need to be shown";
}

TEST_F(PointerToolTest, OfApronsTheVerticesInsideAreSelected) {
    SceneryObject* apron = SquareApron();
    Box({ 60, 140 }, { 140, -140 });
    EXPECT_TRUE(IsSelected(apron));
    EXPECT_TRUE(IsVertexSelected(apron, 1) && IsVertexSelected(apron, 2));
    EXPECT_FALSE(IsVertexSelected(apron, 0) || IsVertexSelected(apron, 3));
    EXPECT_FALSE(apron->flags & kWholeSelected);
}

TEST_F(PointerToolTest, AWhollySelectedApronStaysSo) {
    SceneryObject* apron = SquareApron();
    Paint();
    Click({ 0, 0 });
    Box({ 60, 140 }, { 140, -140 }, { .shift = true });
    EXPECT_TRUE(apron->flags & kWholeSelected);
    EXPECT_FALSE(AnyVertexSelected(apron));
}

TEST_F(PointerToolTest, OfEdgeLightsThePointsInsideAreSelected) {
    layers.lights = true;
    SceneryObject* lights = Strip({ -100, 0 }, { 100, 0 });
    Box({ -140, 60 }, { -60, -60 });
    EXPECT_TRUE(IsSelected(lights));
    EXPECT_TRUE(StripAt(lights, 0).startSelected);
    EXPECT_FALSE(StripAt(lights, 0).endSelected || StripAt(lights, 0).segmentSelected);
}

TEST_F(PointerToolTest, OfAnIlsThePartsInsideAreSelected) {
    layers.navaids = true;
    SceneryObject* ils = build::Ils("IABC", { 0, 100 });
    PayloadAs<IlsPayload>(ils).localizer.width = 5;
    PayloadAs<IlsPayload>(ils).body.flags = kHasDme;
    const EncodedPoint dme = build::Encoded({ 200, -100 });
    PayloadAs<IlsPayload>(ils).dme.longitude = dme.longitude;
    PayloadAs<IlsPayload>(ils).dme.latitude = dme.latitude;
    Box({ 150, -50 }, { 250, -150 });
    EXPECT_TRUE(IsSelected(ils));
    EXPECT_EQ(PayloadAs<IlsPayload>(ils).selectedParts, kDmePart);
}

TEST_F(PointerToolTest, TheRectangleHoldsToTheGroundWhenTheMapScrolls) {
    SceneryObject* node = build::Node({ -300, 0 });
    Paint();
    Press({ -350, 100 });
    OnMouseMove({ kWidth - 2, kHeight / 2 + 100 }, {});
    for (int i = 0; i < 3; ++i) OnDragTimer();
    Paint();
    OnButtonUp({ kWidth - 2, kHeight / 2 + 100 }, {});
    EXPECT_TRUE(IsSelected(node));
}

// Eight steps of 40 pixels: what the rectangle began with is no longer painted.
TEST_F(PointerToolTest, TheRectangleKeepsWhatHasScrolledOutOfSight) {
    layers.navaids = layers.lights = true;
    SceneryObject* node = build::Node({ -380, 0 });
    SceneryObject* spot = BigSpot({ -380, 60 });
    SceneryObject* link = build::Link(node, spot, kParkingLink);
    SceneryObject* marker = build::Marker({ -370, 20 });
    SceneryObject* other = build::Marker({ -360, 30 });
    SceneryObject* line = build::Guideline(marker, other);
    SceneryObject* pad = build::Placed<HelipadRecord>(kHelipad, { -370, -50 });
    PayloadAs<HelipadRecord>(pad).length = PayloadAs<HelipadRecord>(pad).width = 30;
    SceneryObject* tower = build::Tower({ -370, -20 });
    PayloadAs<TowerViewpointRecord>(tower).altitude = 1;
    SceneryObject* runway = build::Runway(36, 0, { -375, 0 });
    PayloadAs<RunwayPayload>(runway).body.length = 150;
    SceneryObject* vor = build::Vor({ -380, 20 });
    SceneryObject* ndb = build::Ndb({ -380, -20 });
    SceneryObject* beacon = build::Placed<MarkerBeaconPayload>(kMarkerBeacon, { -370, 70 });
    SceneryObject* apron =
        build::Apron({ build::Encoded({ -385, -90 }), build::Encoded({ -365, -90 }), build::Encoded({ -365, -190 }) });
    SceneryObject* lights = Strip({ -370, 90 }, { -370, 190 });
    SceneryObject* ils = build::Ils("IABC", { -370, -60 });
    PayloadAs<IlsPayload>(ils).body.flags = kHasDme | kHasGlideSlope;
    for (SceneryObject* o : build::List()) o->flags &= ~kSelected;
    SceneryObject* outside = build::Node({ -380, 150 });
    SceneryObject* across = build::Link(node, outside);
    Paint();
    OnButtonDown({ 5, kHeight / 2 + 100 }, {});
    OnMouseMove({ kWidth - 2, kHeight / 2 - 100 }, {});
    for (int i = 0; i < 8; ++i) OnDragTimer();
    Paint();
    ASSERT_FALSE(IsDrawn(node));
    ASSERT_FALSE(IsDrawn(apron));
    OnButtonUp({ kWidth - 2, kHeight / 2 - 100 }, {});
    EXPECT_TRUE(
        All({ node, spot, link, marker, other, line, pad, tower, runway, vor, ndb, beacon, apron, lights, ils }));
    EXPECT_TRUE(None({ outside, across }));
    EXPECT_TRUE(IsVertexSelected(apron, 0) && IsVertexSelected(apron, 1));
    EXPECT_FALSE(IsVertexSelected(apron, 2));
    EXPECT_TRUE(StripAt(lights, 0).startSelected);
    EXPECT_FALSE(StripAt(lights, 0).endSelected);
    EXPECT_EQ(PayloadAs<IlsPayload>(ils).selectedParts, kLocalizerPart);
}

TEST_F(PointerToolTest, ATowerThatStandsNowhereIsNotInTheRectangle) {
    SceneryObject* tower = build::Tower({ 0, 0 });  // its altitude is 0: it is not drawn
    Box({ -100, 100 }, { 100, -100 });
    EXPECT_TRUE(None({ tower }));
}

TEST_F(PointerToolTest, WithEverythingSelectedAStripTakesAllAlong) {
    layers.lights = true;
    SceneryObject* lights = Strip({ -100, 0 }, { 100, 0 });
    SceneryObject* node = build::Node({ 0, 100 });
    SelectAll();
    Drag({ 0, 0 }, { 0, -60 });
    EXPECT_LT(DistanceTo(node, { 0, 40 }), 1.6);                                          // a pixel is a metre
    EXPECT_LT(DistanceBetween(StripAt(lights, 0).start, build::At({ -100, -60 })), 1.6);  // a pixel is a metre
}

TEST_F(PointerToolTest, AnEscapedRectangleSelectsNothing) {
    SceneryObject* node = build::Node();
    Paint();
    Press({ -100, 100 });
    DragTo({ 100, -100 });
    EXPECT_TRUE(IsBoxOpen());
    EXPECT_EQ(CurrentPointerDrag(), PointerDrag::Box);
    Escape();
    EXPECT_FALSE(IsBoxOpen());
    Release({ 100, -100 });
    EXPECT_FALSE(IsSelected(node));
}

TEST_F(PointerToolTest, TheHandleTurnsASelectedSpot) {
    SceneryObject* spot = BigSpot({ 0, 0 });
    const ByteList before = File();
    Paint();
    Click({ 0, 0 });
    const Pixel handle = HandleOf(spot);
    EXPECT_NEAR(handle.x, kWidth / 2, 1);
    EXPECT_LT(handle.y, kHeight / 2 - 20);
    OnButtonDown(handle, {});
    OnMouseMove(PixelOf({ 100, 0 }), {});
    EXPECT_NEAR(HeadingOf(spot), 90, 1);  // shown while it is dragged
    EXPECT_TRUE(state.busy);
    EXPECT_EQ(CurrentPointerDrag(), PointerDrag::Turn);
    OnMouseMove(PixelOf({ -100, -100 }), {});
    OnButtonUp(PixelOf({ -100, -100 }), {});
    EXPECT_NEAR(HeadingOf(spot), 225, 1);
    EXPECT_LT(DistanceTo(spot, { 0, 0 }), 0.1);
    EXPECT_FALSE(state.busy);
    ExpectOneAction(before);
}

TEST_F(PointerToolTest, OnATurnedMapTheHandleFollowsTheGround) {
    SceneryObject* spot = BigSpot({ 0, 0 });
    view.rotation = kPi / 2;  // east is up
    Paint();
    OnButtonDown({ kWidth / 2, kHeight / 2 }, {});
    OnButtonUp({ kWidth / 2, kHeight / 2 }, {});
    EXPECT_LT(HandleOf(spot).x, kWidth / 2 - 20);
    OnButtonDown(HandleOf(spot), {});
    OnMouseMove({ kWidth / 2, 10 }, {});
    OnButtonUp({ kWidth / 2, 10 }, {});
    EXPECT_NEAR(HeadingOf(spot), 90, 0.05);
}

TEST_F(PointerToolTest, StartsAndHelipadsTurnToo) {
    layers.starts = true;
    SceneryObject* start = build::Placed<StartLocationRecord>(kStartLocation, { -200, 0 });
    SceneryObject* pad = build::Placed<HelipadRecord>(kHelipad, { 200, 0 });
    PayloadAs<HelipadRecord>(pad).length = PayloadAs<HelipadRecord>(pad).width = 40;
    Paint();
    for (SceneryObject* object : { start, pad }) {
        const Pixel at = WorldToPixel(PositionOf(object));
        OnButtonDown(at, {});
        OnButtonUp(at, {});
        Paint();
        const Pixel handle = HandleOf(object);
        EXPECT_EQ(TurnHandleAt(handle), object);
        OnButtonDown(handle, {});
        OnMouseMove({ at.x + 90, at.y }, {});
        OnButtonUp({ at.x + 90, at.y }, {});
        Paint();
    }
    EXPECT_NEAR(Copied(PayloadAs<StartLocationRecord>(start).heading), 90, 1);
    EXPECT_NEAR(Copied(PayloadAs<HelipadRecord>(pad).heading), 90, 1);
}

TEST_F(PointerToolTest, WhatIsNotSelectedHasNoHandle) {
    SceneryObject* spot = BigSpot({ 0, 0 });
    SceneryObject* node = build::Node({ 200, 0 });
    node->flags |= kSelected;
    Paint();
    EXPECT_TRUE(TurnableObjects().empty());
    spot->flags |= kSelected;
    EXPECT_EQ(TurnableObjects(), std::vector<SceneryObject*>{ spot });
    layers.network = false;
    EXPECT_TRUE(TurnableObjects().empty());
}

TEST_F(PointerToolTest, OfManySelectedSpotsTheOneNearestToThePointerHasAHandle) {
    for (int i = 0; i < kMostHandles; ++i) BigSpot({ 40.0 * i, 0 })->flags |= kSelected;
    Paint();
    EXPECT_EQ(TurnableObjects().size(), size_t{ kMostHandles });
    SceneryObject* last = BigSpot({ 0, 100 });
    last->flags |= kSelected;
    Paint();
    const int requests = fake.feedbackRequests;
    OnMouseMove(PixelOf({ 10, 200 }), {});
    EXPECT_EQ(TurnableObjects(), std::vector<SceneryObject*>{ last });
    EXPECT_GT(fake.feedbackRequests, requests);
    OnMouseMove(PixelOf({ 150, 30 }), {});
    ASSERT_EQ(TurnableObjects().size(), 1u);
    SceneryObject* near = TurnableObjects()[0];
    EXPECT_NE(near, last);
    const Pixel handle = HandleOf(near);
    OnMouseMove(handle, {});
    OnButtonDown(handle, {});
    OnMouseMove(PixelOf({ 350, 0 }), {});  // past all the others
    EXPECT_EQ(TurnableObjects(), std::vector<SceneryObject*>{ near });
    OnButtonUp(PixelOf({ 350, 0 }), {});
    EXPECT_NEAR(HeadingOf(near), 90, 3);
    EXPECT_EQ(HeadingOf(last), 0);
}

TEST_F(PointerToolTest, ATurnOfLessThanThreePixelsIsAClick) {
    SceneryObject* spot = BigSpot({ 0, 0 });
    spot->flags |= kSelected;
    Paint();
    const Pixel handle = HandleOf(spot);
    OnButtonDown(handle, {});
    OnButtonUp({ handle.x + 2, handle.y }, {});
    EXPECT_EQ(HeadingOf(spot), 0);
    EXPECT_FALSE(CanUndo());
    EXPECT_TRUE(IsSelected(spot));
}

TEST_F(PointerToolTest, ACancelledTurnLeavesNothing) {
    SceneryObject* spot = BigSpot({ 0, 0 });
    spot->flags |= kSelected;
    const ByteList before = File();
    Paint();
    OnButtonDown(HandleOf(spot), {});
    OnMouseMove(PixelOf({ 100, 0 }), {});
    CancelDrag();
    EXPECT_EQ(File(), before);
    EXPECT_FALSE(state.busy || CanUndo());
}

TEST_F(PointerToolTest, ATurnThatChangesNoByteIsNoEdit) {
    SceneryObject* spot = BigSpot({ 0, 0 });
    PayloadAs<ParkingSpotRecord>(spot).heading = std::numeric_limits<float>::quiet_NaN();
    ASSERT_TRUE(BeginTurn(spot));
    FinishTurn();
    EXPECT_FALSE(CanUndo() || state.modified || state.busy);
    ASSERT_TRUE(BeginTurn(spot));
    FollowTurn(PixelOf({ 100, 0 }));
    FinishTurn();
    EXPECT_TRUE(CanUndo());
    EXPECT_NEAR(HeadingOf(spot), 90, 1);
}

TEST_F(PointerToolTest, WhatWasHiddenBetweenPressAndPullIsNotTurned) {
    SceneryObject* spot = BigSpot({ 0, 0 });
    spot->flags |= kSelected;
    Paint();
    OnButtonDown(HandleOf(spot), {});
    layers.network = false;
    OnMouseMove(PixelOf({ 100, 0 }), {});
    EXPECT_EQ(CurrentPointerDrag(), PointerDrag::None);
    OnButtonUp(PixelOf({ 100, 0 }), {});
    EXPECT_EQ(HeadingOf(spot), 0);
    EXPECT_FALSE(CanUndo() || state.busy);
    EXPECT_FALSE(BeginTurn(build::Node()));
}

TEST_F(PointerToolTest, ASpotDeletedUnderTheTurnIsLeftAlone) {
    SceneryObject* spot = BigSpot({ 0, 0 });
    spot->flags |= kSelected;
    Paint();
    OnButtonDown(HandleOf(spot), {});
    OnMouseMove(PixelOf({ 100, 0 }), {});
    BeginAction();
    DeleteObject(spot);
    OnMouseMove(PixelOf({ 0, -100 }), {});
    OnButtonUp(PixelOf({ 0, -100 }), {});
    EXPECT_EQ(CountKind(kParkingSpot), 0u);
    EXPECT_FALSE(state.busy);
}

}  // namespace
