// PaintPlacesTest.cpp - single symbols: starts, tower, reference point, helipads, markers, guidelines, strips.
#include <gtest/gtest.h>

#include <cmath>

#include "fakes/MapFixture.h"
#include "map/ScreenPlace.h"

namespace {

using namespace map;
using namespace model;

class PaintPlacesTest : public MapFixture {
protected:
    RecordingCanvas log;

    void SetUp() override {
        MapFixture::SetUp();
        Open();
        Scale(2);
    }
    static SceneryObject* Pad(uint8_t type, float heading = 0) {
        SceneryObject* pad = build::Placed<HelipadRecord>(kHelipad, { 60, 0 });
        auto& record = PayloadAs<HelipadRecord>(pad);
        record.surface = 4;
        record.type = type;
        record.length = 40;
        record.width = 20;
        record.heading = heading;
        return pad;
    }
    size_t MarksOf(uint8_t type) {
        SceneryObject* pad = Pad(type);
        RecordingCanvas one;
        Paint(&one);
        Remove(pad);
        size_t marks = 0;
        for (const CanvasCall& call : one.Drawn()) {
            marks += call.pen == InkOf(Ink::HelipadMarking) || call.brush == InkOf(Ink::HelipadMarking);
        }
        return marks;
    }
    static void Remove(SceneryObject* object) {
        UnlinkObject(object);
        FreeObject(object);
    }
};

TEST_F(PaintPlacesTest, AStartIsAnArrowAlongItsHeading) {
    layers.starts = true;
    SceneryObject* start = build::Placed<StartLocationRecord>(kStartLocation, { 0, 60 });
    PayloadAs<StartLocationRecord>(start).heading = 90;
    Paint(&log);
    const auto arrows = log.FilledWith(InkOf(Ink::StartLocation));
    ASSERT_EQ(arrows.size(), 1u);
    ASSERT_EQ(arrows[0].points.size(), 7u);
    const Pixel centre = ScreenPoint(start, 0);
    EXPECT_NEAR(arrows[0].points[0].x, centre.x + 24, 1);  // 12 m ahead: east
    EXPECT_NEAR(arrows[0].points[0].y, centre.y, 1);
}

TEST_F(PaintPlacesTest, AStartTurnsWithTheMap) {
    layers.starts = true;
    build::Placed<StartLocationRecord>(kStartLocation, {});
    view.rotation = 0.5 * kPi;
    Paint(&log);
    const auto arrows = log.FilledWith(InkOf(Ink::StartLocation));
    ASSERT_EQ(arrows.size(), 1u);
    EXPECT_NEAR(arrows[0].points[0].x, 400 - 24, 1);  // north is on the left
}

TEST_F(PaintPlacesTest, TheReferencePointIsACircleWithACross) {
    Paint(&log);
    EXPECT_EQ(log.StrokedWith(InkOf(Ink::ReferencePoint)).size(), 3u);
    EXPECT_EQ(ScreenRadius(state.airport), 30);  // 15 m
}

TEST_F(PaintPlacesTest, AMarkerIsFivePixelsAtAnyScale) {
    SceneryObject* marker = build::Marker({ 50, 50 });
    for (const double scale : { 0.01, 1.0, 2.0 }) {
        Scale(scale);
        RecordingCanvas one;
        Paint(&one);
        EXPECT_EQ(ScreenRadius(marker), 5);
        EXPECT_EQ(one.StrokedWith(InkOf(Ink::Marker)).size(), 3u);
    }
}

TEST_F(PaintPlacesTest, AGuidelineJoinsItsMarkers) {
    SceneryObject* a = build::Marker({ -50, 0 });
    SceneryObject* b = build::Marker({ 50, 30 });
    SceneryObject* line = build::Guideline(a, b);
    Paint(&log);
    const auto lines = log.StrokedWith(InkOf(Ink::Guideline));
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].points[0], ScreenPoint(a, 0));
    EXPECT_EQ(lines[0].points[1], ScreenPoint(b, 0));
    EXPECT_EQ(ScreenPoint(line, 1), ScreenPoint(b, 0));
}

TEST_F(PaintPlacesTest, AHelipadHasItsSizeItsHeadingAndItsSurface) {
    SceneryObject* pad = Pad(0, 90);
    Paint(&log);
    const auto pads = log.FilledWith(RunwayColour(4));
    ASSERT_EQ(pads.size(), 1u);
    EXPECT_NEAR(std::abs(ScreenPoint(pad, 2).x - ScreenPoint(pad, 0).x), 80, 2);  // 40 m along the heading
    EXPECT_NEAR(std::abs(ScreenPoint(pad, 2).y - ScreenPoint(pad, 0).y), 40, 2);
}

TEST_F(PaintPlacesTest, HelipadsAreMarkedByType) {
    EXPECT_EQ(MarksOf(0), 0u);
    EXPECT_EQ(MarksOf(1), 2u);  // the border and the H
    EXPECT_EQ(MarksOf(2), 1u);  // the border
    EXPECT_EQ(MarksOf(3), 1u);  // a circle
    EXPECT_EQ(MarksOf(4), 3u);  // the border and a cross
}

TEST_F(PaintPlacesTest, AMedicalPadsLetterIsRed) {
    Pad(4);
    Paint(&log);
    EXPECT_EQ(log.FilledWith(InkOf(Ink::HelipadMedical)).size(), 1u);
}

TEST_F(PaintPlacesTest, ATransparentPadIsNotFilled) {
    Pad(0x10);
    Paint(&log);
    EXPECT_TRUE(log.FilledWith(RunwayColour(4)).empty());
    EXPECT_EQ(log.StrokedWith(RunwayColour(4)).size(), 1u);
}

TEST_F(PaintPlacesTest, AClosedPadIsCrossedOut) {
    Pad(0x20);
    Paint(&log);
    EXPECT_EQ(log.StrokedWith(InkOf(Ink::RunwayYellow)).size(), 2u);
}

TEST_F(PaintPlacesTest, AnOverrunIsPavedOutsideTheEnd) {
    SceneryObject* runway = build::Runway(36, 0, { 0, 350 });
    auto& payload = PayloadAs<RunwayPayload>(runway);
    payload.body.length = 500;
    payload.primaryOverrun = { 12, 100, 30 };
    Paint(&log);
    const auto areas = log.FilledWith(RunwayColour(12));
    ASSERT_EQ(areas.size(), 1u);
    int low = 0;
    for (const Pixel& point : areas[0].points) low = std::max(low, point.y);
    EXPECT_NEAR(low, 300, 2);  // 350 - 250 - 100 m: the middle
}

TEST_F(PaintPlacesTest, ASelectedStripIsLitWithItsPoints) {
    layers.lights = true;
    const EncodedPoint from = build::Encoded({ 0, -50 }), to = build::Encoded({ 0, 50 });
    SceneryObject* lights =
        build::EdgeLights({ { 25, from.longitude, from.latitude, to.longitude, to.latitude, 1, 0, 1 } });
    lights->flags |= kSelected;
    Paint(&log);
    EXPECT_EQ(log.StrokedWith(InkOf(Ink::SelectedFill)).size(), 1u);
    EXPECT_EQ(log.FilledWith(InkOf(Ink::SelectedFill)).size(), 1u);
    EXPECT_EQ(PartsOf(lights).stripEnds.size(), 2u);
}

}  // namespace
