#include "map/MoveDrag.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "fakes/ToolFixture.h"
#include "map/ApronShape.h"
#include "map/LightStrips.h"
#include "map/Selection.h"
#include "model/EdgeLights.h"
#include "model/Triangulate.h"

namespace {

using namespace map;
using namespace model;

class MoveDragTest : public ToolFixture {
protected:
    // The ground's step at this scale, and the file's.
    static constexpr double kNear = 1.6;
    static EncodedPoint PointAt(const SceneryObject* object, size_t offset) {
        EncodedPoint point;
        std::memcpy(&point, object->payload + offset, sizeof point);
        return point;
    }
    static double DistanceOf(EncodedPoint point, build::Place place) {
        return DistanceBetween(BglToLatLon({ point.latitude, point.longitude }), build::At(place));
    }
    static void MoveAll(build::Place by) {
        SelectAll();
        BeginMove(PixelOf({ 0, 0 }));
        FollowMove(PixelOf(by));
        FinishMove();
    }
};

TEST_F(MoveDragTest, WhatIsPickedMoves) {
    layers.navaids = layers.starts = layers.lights = true;
    SceneryObject* helipad = build::Placed<HelipadRecord>(kHelipad, { -300, -200 });
    PayloadAs<HelipadRecord>(helipad).length = PayloadAs<HelipadRecord>(helipad).width = 30;
    const std::pair<SceneryObject*, build::Place> rows[] = {
        { build::Node({ -300, 0 }), { -300, 0 } },
        { BigSpot({ -300, 100 }), { -300, 100 } },
        { helipad, { -300, -200 } },
        { build::Placed<StartLocationRecord>(kStartLocation, { -200, 0 }), { -200, 0 } },
        { build::Marker({ -200, 100 }), { -200, 100 } },
        { build::Vor({ -200, -200 }), { -200, -200 } },
        { build::Ndb({ -100, -200 }), { -100, -200 } },
        { build::Runway(36, 0, { 350, 0 }), { 350, 200 } },
    };
    for (const auto& [object, place] : rows) {
        const LatLon home = PositionOf(object);
        Drag(place, { place.east + 40, place.north + 30 });
        EXPECT_NEAR(DistanceBetween(home, PositionOf(object)), 50, kNear) << KindOf(object);
        ASSERT_TRUE(CanUndo()) << KindOf(object);
        Undo();
        EXPECT_EQ(DistanceBetween(home, PositionOf(object)), 0) << KindOf(object);
        EXPECT_FALSE(CanUndo()) << KindOf(object);
    }
}

TEST_F(MoveDragTest, TheTowerAndTheReferencePointMove) {
    SceneryObject* tower = build::Tower({ 0, 100 });
    PayloadAs<TowerViewpointRecord>(tower).altitude = 1;
    SetPosition(state.airport, build::At({ -100, 0 }));
    const ByteList before = File();
    Drag({ -100, 0 }, { -60, 0 });
    EXPECT_LT(DistanceTo(state.airport, { -60, 0 }), kNear);
    ExpectOneAction(before);
    SlewHome();
    EXPECT_LT(DistanceBetween(view.centre, build::At({ -60, 0 })), kNear);
    view.centre = build::kMiddle;
    Paint();
    Drag({ 0, 100 }, { 0, 160 });
    EXPECT_LT(DistanceTo(tower, { 0, 160 }), kNear);
}

TEST_F(MoveDragTest, ATowerThatStandsNowhereStaysThere) {
    SceneryObject* tower = build::Tower();
    PayloadAs<TowerViewpointRecord>(tower) = { kPlaceholderLongitude, kPlaceholderLatitude, 0 };
    build::Node();
    MoveAll({ 50, 0 });
    EXPECT_EQ(Copied(PayloadAs<TowerViewpointRecord>(tower).longitude), kPlaceholderLongitude);
}

TEST_F(MoveDragTest, TheZerosOfAFileWithoutATowerStayZeros) {
    SceneryObject* tower = build::Tower();
    PayloadAs<TowerViewpointRecord>(tower) = {};
    SceneryObject* node = build::Node();
    MoveAll({ 50, 0 });
    EXPECT_EQ(Copied(PayloadAs<TowerViewpointRecord>(tower).longitude), 0u);
    EXPECT_LT(DistanceTo(node, { 50, 0 }), kNear) << "the other objects move";
}

TEST_F(MoveDragTest, ALinkTakesItsEndsWithIt) {
    SceneryObject* a = build::Node({ -100, 0 });
    SceneryObject* b = BigSpot({ 100, 0 });
    build::Link(a, b, kParkingLink);
    const ByteList before = File();
    Drag({ 0, 0 }, { 0, 50 });
    EXPECT_LT(DistanceTo(a, { -100, 50 }), kNear);
    EXPECT_LT(DistanceTo(b, { 100, 50 }), kNear);
    ExpectOneAction(before);
}

TEST_F(MoveDragTest, EachObjectMovesOnce) {
    SceneryObject* a = build::Node({ -100, 0 });
    SceneryObject* b = build::Node({ 100, 0 });
    SceneryObject* marker = build::Marker({ 0, 100 });
    SceneryObject* other = build::Marker({ 100, 100 });
    build::Guideline(marker, other);
    build::Link(a, b);
    MoveAll({ 40, 30 });
    EXPECT_LT(DistanceTo(a, { -60, 30 }), kNear);
    EXPECT_LT(DistanceTo(b, { 140, 30 }), kNear);
    EXPECT_LT(DistanceTo(marker, { 40, 130 }), kNear);
    EXPECT_LT(DistanceTo(other, { 140, 130 }), kNear);
}

TEST_F(MoveDragTest, AGuidelineTakesItsMarkersWithIt) {
    SceneryObject* a = build::Marker({ -100, 0 });
    SceneryObject* b = build::Marker({ 100, 0 });
    build::Guideline(a, b);
    Drag({ 0, 0 }, { 0, 50 });
    EXPECT_LT(DistanceTo(a, { -100, 50 }), kNear);
    EXPECT_LT(DistanceTo(b, { 100, 50 }), kNear);
}

TEST_F(MoveDragTest, AWholeApronMovesWithItsSurface) {
    SceneryObject* apron = SquareApron();
    const ByteList before = File();
    Drag({ 0, 0 }, { 40, 30 });
    for (size_t i = 0; i < 8; ++i) {  // outline, then surface
        const build::Place corner[] = { { -60, -70 }, { 140, -70 }, { 140, 130 }, { -60, 130 } };
        EXPECT_LT(DistanceOf(PointAt(apron, sizeof(ApronHead) + 8 * i), corner[i % 4]), kNear) << i;
    }
    EXPECT_EQ(Copied(PayloadAs<ApronHead>(apron).triangleCount), 0);  // as it was
    ExpectOneAction(before);
}

TEST_F(MoveDragTest, AVertexMovesAloneAndTheSurfaceIsMadeAnew) {
    SceneryObject* apron = SquareApron();
    const ByteList before = File();
    Drag({ 100, 100 }, { 140, 160 });
    EXPECT_LT(DistanceBetween(map::ApronCorners(apron)[2], build::At({ 140, 160 })), kNear);
    EXPECT_LT(DistanceBetween(map::ApronCorners(apron)[1], build::At({ 100, -100 })), 0.1);
    EXPECT_EQ(Copied(PayloadAs<ApronHead>(apron).triangleCount), 2);
    EXPECT_LT(DistanceOf(PointAt(apron, sizeof(ApronHead) + 8 * 6), { 140, 160 }), kNear);
    EXPECT_TRUE(IsSelected(apron) && IsVertexSelected(apron, 2));
    ExpectOneAction(before);
}

TEST_F(MoveDragTest, AVertexOfAWholeSelectedApronIsDraggedAlone) {
    SceneryObject* apron = SquareApron();
    Paint();
    Click({ 0, 0 });
    Drag({ 100, 100 }, { 140, 160 });
    EXPECT_LT(DistanceBetween(map::ApronCorners(apron)[0], build::At({ -100, -100 })), 0.1);
    EXPECT_LT(DistanceBetween(map::ApronCorners(apron)[2], build::At({ 140, 160 })), kNear);
}

TEST_F(MoveDragTest, AStripMovesByItsSegmentAndItsEndsAlone) {
    layers.lights = true;
    SceneryObject* lights = Strip({ -100, 0 }, { 100, 0 });
    Drag({ 0, 0 }, { 0, 50 });
    EXPECT_LT(DistanceBetween(StripAt(lights, 0).start, build::At({ -100, 50 })), kNear);
    EXPECT_LT(DistanceBetween(StripAt(lights, 0).end, build::At({ 100, 50 })), kNear);
    Drag({ 100, 50 }, { 100, 150 });
    EXPECT_LT(DistanceBetween(StripAt(lights, 0).start, build::At({ -100, 50 })), kNear);
    EXPECT_LT(DistanceBetween(StripAt(lights, 0).end, build::At({ 100, 150 })), kNear);
    EXPECT_EQ(StripAt(lights, 0).spacing, 60);
}

TEST_F(MoveDragTest, StripsThatWereJoinedStayJoined) {
    layers.lights = true;
    const EncodedPoint a = build::Encoded({ -100, 0 }), b = build::Encoded({ 0, 0 }), c = build::Encoded({ 100, 0 });
    SceneryObject* lights = build::EdgeLights({ { 60, a.longitude, a.latitude, b.longitude, b.latitude, 0, 0, 0 },
                                                { 60, b.longitude, b.latitude, c.longitude, c.latitude, 0, 0, 0 } });
    state.edgeLights = { true, 50 };
    Drag({ 0, 0 }, { 0, 80 });
    EXPECT_EQ(StripAt(lights, 0).end.lat, StripAt(lights, 1).start.lat);
    EXPECT_LT(DistanceBetween(StripAt(lights, 1).start, build::At({ 0, 80 })), kNear);
    EXPECT_NEAR(StripAt(lights, 0).spacing, std::sqrt(100.0 * 100 + 80 * 80) / 3, 0.5);  // ends at a lamp
}

TEST_F(MoveDragTest, OfAnIlsTheSelectedPartsMove) {
    layers.navaids = true;
    SceneryObject* ils = build::IlsWithParts("IABC", { 0, 100 }, { 120, 0 }, { 200, 0 });
    auto& payload = PayloadAs<IlsPayload>(ils);
    payload.selectedParts = kGlideSlopePart;
    ils->flags |= kSelected;
    BeginMove(PixelOf({ 0, 0 }));
    FollowMove(PixelOf({ 30, 0 }));
    FinishMove();
    EXPECT_LT(DistanceTo(ils, { 0, 100 }), 0.1);
    const auto& now = PayloadAs<IlsPayload>(ils);
    EXPECT_LT(DistanceOf({ now.glideSlope.longitude, now.glideSlope.latitude }, { 150, 0 }), kNear);
    EXPECT_EQ(Copied(now.dme.longitude), build::Encoded({ 200, 0 }).longitude);
}

TEST_F(MoveDragTest, AVorTakesItsDmeWithIt) {
    layers.navaids = true;
    SceneryObject* vor = build::Vor();
    auto& payload = PayloadAs<VorDmePayload>(vor);
    payload.body.flags = kHasDme;
    payload.dme.longitude = payload.body.longitude;
    payload.dme.latitude = payload.body.latitude;
    Drag({ 0, 0 }, { 50, 0 });
    const auto& now = PayloadAs<VorDmePayload>(vor);
    EXPECT_LT(DistanceTo(vor, { 50, 0 }), kNear);
    EXPECT_EQ(Copied(now.dme.longitude), Copied(now.body.longitude));
}

TEST_F(MoveDragTest, AMovedStockNavaidGetsAReplacement) {
    layers.navaids = true;
    SceneryObject* stock = build::Vor();
    stock->flags |= kStock;
    const ByteList before = File();
    Drag({ 0, 0 }, { 50, 0 });
    SceneryObject* replacement = state.tail;
    ASSERT_NE(replacement, stock);
    EXPECT_EQ(replacement->related, stock);
    EXPECT_EQ(stock->related, replacement);
    EXPECT_FALSE(IsStock(replacement) || IsSelected(stock));
    EXPECT_TRUE(IsSelected(replacement));
    EXPECT_LT(DistanceTo(replacement, { 50, 0 }), kNear);
    EXPECT_LT(DistanceTo(stock, { 0, 0 }), 0.1);
    EXPECT_EQ(build::List(), build::ListFromTail());
    Undo();
    EXPECT_EQ(File(), before);
    EXPECT_EQ(stock->related, nullptr);
    EXPECT_FALSE(CanUndo());
}

TEST_F(MoveDragTest, StockNavaidsThatCannotBeSeenStay) {
    SceneryObject* stock = build::Ils("IABC");
    stock->flags |= kStock;
    SceneryObject* node = build::Node();
    MoveAll({ 50, 0 });
    EXPECT_LT(DistanceTo(node, { 50, 0 }), kNear);
    EXPECT_LT(DistanceTo(stock, { 0, 0 }), 0.1);
    EXPECT_EQ(stock->related, nullptr);
}

TEST_F(MoveDragTest, AMovePastAPoleStopsBeforeIt) {
    view.centre = { 89.9 * kRadiansPerDegree, 0 };
    SceneryObject* node = build::Node();
    SetPosition(node, view.centre);
    Scale(0.05);
    Paint();
    OnButtonDown({ kWidth / 2, kHeight / 2 }, {});
    OnMouseMove({ kWidth / 2, kHeight / 2 - 10 }, {});
    const LatLon reached = PositionOf(node);
    EXPECT_GT(reached.lat, view.centre.lat);
    Scale(0.0001);
    OnMouseMove({ kWidth / 2, 0 }, {});
    EXPECT_LT(PositionOf(node).lat, kPi / 2);
    OnButtonUp({ kWidth / 2, 0 }, {});
    EXPECT_LT(PositionOf(node).lat, kPi / 2);
}

TEST_F(MoveDragTest, AMarkerBackWhereItBeganAfterTheMapMovedIsNotMoved) {
    SceneryObject* marker = build::Marker({ -200, 40 });
    const std::vector<uint8_t> before(marker->payload, marker->payload + marker->payloadSize);
    SelectAll();
    const Pixel at = PixelOf({ -200, 40 });
    BeginMove(at);
    FollowMove(PixelOf({ 250, -170 }));
    EXPECT_GT(DistanceTo(marker, { -200, 40 }), 400);
    // As scrolling there and back may leave it, and more.
    view.centre.lat += 0.0003 / kNorthSouthRadius;
    view.centre.lon += 0.0004 / kEastWestRadius;
    FollowMove(at);
    FinishMove();
    EXPECT_EQ(std::memcmp(marker->payload, before.data(), before.size()), 0);
    EXPECT_FALSE(CanUndo() || state.modified || state.busy);
}

TEST_F(MoveDragTest, AMoveOfCentimetresIsAMove) {
    SceneryObject* marker = build::Marker({ -200, 40 });
    SelectAll();
    BeginMove(PixelOf({ -200, 40 }));
    view.centre.lat += 0.02 / kNorthSouthRadius;
    FollowMove(PixelOf({ -200, 40 }));
    FinishMove();
    EXPECT_TRUE(CanUndo());
    EXPECT_GT(DistanceTo(marker, { -200, 40 }), 0.01);
}

TEST_F(MoveDragTest, NothingMovesWhenNothingHasAPlace) {
    build::Designator("A")->flags |= kSelected;
    BeginMove(PixelOf({ 0, 0 }));
    EXPECT_FALSE(state.busy);
    FollowMove(PixelOf({ 50, 0 }));
    FinishMove();
    EXPECT_FALSE(CanUndo());
}

}  // namespace
