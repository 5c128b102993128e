#include "map/Selection.h"

#include <gtest/gtest.h>

#include "fakes/PickFixture.h"
#include "map/ApronShape.h"
#include "map/LightStrips.h"
#include "map/ScreenPlace.h"

namespace {

using namespace map;
using namespace model;

class SelectionTest : public PickFixture {};

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

// It was selected with three parts, and no click could take out those that it does not have.
TEST_F(SelectionTest, TakingTheLocalizerOutOfAnIlsWithoutOtherPartsDeselectsIt) {
    layers.navaids = true;
    SceneryObject* ils = Ils();
    PayloadAs<IlsPayload>(ils).body.flags = 0;
    Paint();
    SelectAll();
    SelectAt(PixelOf({ 0, 100 }), true);
    EXPECT_FALSE(IsSelected(ils));
    EXPECT_EQ(PayloadAs<IlsPayload>(ils).selectedParts, 0);
    PayloadAs<IlsPayload>(ils).body.flags = kHasDme;
    Paint();
    SelectAll();
    SelectAt(PixelOf({ 0, 100 }), true);
    EXPECT_TRUE(IsSelected(ils));
    EXPECT_EQ(PayloadAs<IlsPayload>(ils).selectedParts, kDmePart);
}

TEST_F(SelectionTest, AnIlsThatIsNotSelectedHasNoSelectedParts) {
    layers.navaids = true;
    SceneryObject* ils = Ils();
    PayloadAs<IlsPayload>(ils).selectedParts = kAllIlsParts;
    Paint();
    EXPECT_FALSE(IsPickSelected({ ils, kGlideSlopePart }));
    SelectAt(PixelOf({ 120, 0 }), false);
    EXPECT_EQ(PayloadAs<IlsPayload>(ils).selectedParts, kGlideSlopePart);
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
    SceneryObject* lights = FlatStrip();
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

TEST_F(SelectionTest, AnotherClickTakesAPartOfALightStripOutAgain) {
    layers.lights = true;
    SceneryObject* lights = FlatStrip();
    Paint();
    for (const double east : { -100.0, 0.0, 100.0 }) SelectAt(PixelOf({ east, 0 }), true);
    SelectAt(PixelOf({ 0, 0 }), true);
    EXPECT_FALSE(StripAt(lights, 0).segmentSelected);
    EXPECT_TRUE(StripAt(lights, 0).startSelected && StripAt(lights, 0).endSelected);
    SelectAt(PixelOf({ -100, 0 }), true);
    EXPECT_FALSE(StripAt(lights, 0).startSelected);
    EXPECT_TRUE(IsSelected(lights));
    SelectAt(PixelOf({ 100, 0 }), true);
    EXPECT_FALSE(IsSelected(lights));
}

TEST_F(SelectionTest, APartOfAWhollySelectedStripIsTakenOut) {
    layers.lights = true;
    const EncodedPoint a = build::Encoded({ -100, 0 }), b = build::Encoded({ 100, 0 });
    const EncodedPoint c = build::Encoded({ -100, 90 }), d = build::Encoded({ 100, 90 });
    SceneryObject* lights = build::EdgeLights({ { 60, a.longitude, a.latitude, b.longitude, b.latitude, 0, 0, 0 },
                                                { 60, c.longitude, c.latitude, d.longitude, d.latitude, 0, 0, 0 } });
    Paint();
    lights->flags |= kSelected | kWholeSelected;
    SelectAt(PixelOf({ 0, 0 }), true);
    EXPECT_EQ(lights->flags & (kSelected | kWholeSelected), kSelected);
    const LightStrip out = StripAt(lights, 0), kept = StripAt(lights, 1);
    EXPECT_FALSE(out.segmentSelected || out.startSelected || out.endSelected);
    EXPECT_TRUE(kept.startSelected && kept.endSelected);
    SelectAll();
    SelectAt(PixelOf({ 100, 90 }), true);
    EXPECT_TRUE(StripAt(lights, 0).startSelected && StripAt(lights, 0).endSelected && StripAt(lights, 1).startSelected);
    EXPECT_FALSE(StripAt(lights, 1).endSelected || StripAt(lights, 1).segmentSelected);
}

TEST_F(SelectionTest, SelectAllLeavesOutVorsNdbsAndReplacedStock) {
    SceneryObject* node = build::Node();
    SceneryObject* ndb = build::Ndb();
    SceneryObject* vor = build::Vor();
    SceneryObject* stock = build::Ils("IABC");
    SceneryObject* replacement = Ils();
    stock->flags |= kStock;
    stock->related = replacement;
    SceneryObject* lights = FlatStrip();
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
    SceneryObject* lights = FlatStrip();
    SelectAll();
    EXPECT_TRUE(IsPickSelected({ lights, PartNumber(0, StripPart::Segment) }));
    EXPECT_TRUE(IsPickSelected({ lights, PartNumber(0, StripPart::End) }));
    DeselectAll();
    EXPECT_FALSE(IsPickSelected({ lights, PartNumber(0, StripPart::Segment) }));
}

}  // namespace
