// MarkingsTest.cpp - what is painted on taxiways, and the lamps of runways, taxiways and aprons: from which scale
// on, where, and by night only.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "fakes/MapFixture.h"
#include "map/ScreenPlace.h"

namespace {

using namespace map;
using namespace model;
using platform::Rgb;

class MarkingsTest : public MapFixture {
protected:
    RecordingCanvas log;

    void PaintOpen() {
        Open();
        Paint(&log);
    }
    static SceneryObject* WideRunway() {
        SceneryObject* runway = build::Runway(36);
        PayloadAs<RunwayPayload>(runway).body.surface = 4;
        return runway;
    }
};

TEST_F(MarkingsTest, TaxiwayLinesAreDrawnFromAScaleOfThreeTenths) {
    auto& link = PayloadAs<TaxiLinkPayload>(build::Link(build::Node({ -90, 0 }), build::Node({ 90, 0 })));
    link.flagsWord |= 1u << 16 | 1u << 18 | 1u << 21;
    Open();
    Scale(0.299);
    Paint(&log);
    EXPECT_TRUE(log.StrokedWith(InkOf(Ink::TaxiwayLine)).empty());
    Scale(0.301);
    RecordingCanvas single;
    Paint(&single);
    EXPECT_GE(single.StrokedWith(InkOf(Ink::TaxiwayLine)).size(), 3u);  // the centre line and two edges
}

TEST_F(MarkingsTest, CentreLinesAreAFootWideAndAtLeastAPixel) {
    auto& link = PayloadAs<TaxiLinkPayload>(build::Link(build::Node({ -300, 0 }), build::Node({ 300, 0 })));
    link.flagsWord |= 1u << 16;
    Open();
    const struct {
        double scale;
        int width;
    } kRows[] = { { 0.5, 1 }, { 1, 1 }, { 5.9, 2 }, { 10, 3 } };
    for (const auto& row : kRows) {
        Scale(row.scale);
        RecordingCanvas page;
        Paint(&page);
        const auto lines = page.StrokedWith(InkOf(Ink::TaxiwayLine));
        ASSERT_EQ(lines.size(), 1u);
        EXPECT_EQ(lines[0].penWidth, row.width) << row.scale;
    }
}

TEST_F(MarkingsTest, EdgeLinesAreDoubleFromSixPixelsToTheMetre) {
    auto& link = PayloadAs<TaxiLinkPayload>(build::Link(build::Node({ -300, 0 }), build::Node({ 300, 0 })));
    link.flagsWord |= 1u << 18;
    Open();
    Scale(5.9);
    Paint(&log);
    ASSERT_EQ(log.StrokedWith(InkOf(Ink::TaxiwayLine)).size(), 1u);
    EXPECT_EQ(log.StrokedWith(InkOf(Ink::TaxiwayLine))[0].penWidth, 3);  // 1.5 feet
    Scale(6.1);
    RecordingCanvas near;
    Paint(&near);
    ASSERT_EQ(near.StrokedWith(InkOf(Ink::TaxiwayLine)).size(), 2u);
    EXPECT_EQ(near.StrokedWith(InkOf(Ink::TaxiwayLine))[0].penWidth, 1);  // half a foot
}

TEST_F(MarkingsTest, TheLeftEdgeLineLiesOnTheLeftFromStartToEnd) {
    Scale(2);
    auto& link = PayloadAs<TaxiLinkPayload>(build::Link(build::Node({ 0, -100 }), build::Node({ 0, 100 })));
    link.flagsWord |= 1u << 18;
    PaintOpen();
    const auto lines = log.StrokedWith(InkOf(Ink::TaxiwayLine));
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_LT(lines[0].points[0].x, 400);
}

TEST_F(MarkingsTest, DashedEdgesAreManyShortLines) {
    Scale(2);
    auto& link = PayloadAs<TaxiLinkPayload>(build::Link(build::Node({ 0, -100 }), build::Node({ 0, 100 })));
    link.flagsWord |= 2u << 18;
    PaintOpen();
    const auto lines = log.StrokedWith(InkOf(Ink::TaxiwayLine));
    EXPECT_EQ(lines.size(), 17u);  // 200 m in steps of 40 feet
    EXPECT_NEAR(std::abs(lines[3].points[1].y - lines[3].points[0].y), 9.1, 1);
}

TEST_F(MarkingsTest, HoldShortMarkingsTurnTheirDashesToTheRunway) {
    Scale(4);
    WideRunway();  // along the meridian of the middle
    SceneryObject* hold = build::Node({ 60, 0 }, kHoldShortNode);
    build::Link(hold, build::Node({ 100, 0 }));
    Open();
    const auto middleOfSolidBars = [&] {
        RecordingCanvas one;
        Paint(&one);
        // Solid bars span the taxiway of 23 m, dashes do not.
        double sum = 0;
        int bars = 0;
        for (const CanvasCall& call : one.FilledWith(InkOf(Ink::TaxiwayLine))) {
            const auto [low, high] =
                std::minmax_element(call.points.begin(), call.points.end(), [](Pixel a, Pixel b) { return a.y < b.y; });
            if (high->y - low->y < 60) continue;
            sum += (call.points[0].x + call.points[2].x) / 2.0;
            ++bars;
        }
        return sum / bars;
    };
    const double at = PixelOf({ 60, 0 }).x;
    EXPECT_GT(middleOfSolidBars(), at + 0.5);  // away from the runway
    PayloadAs<TaxiNodeRecord>(hold).reversed = 1;
    EXPECT_LT(middleOfSolidBars(), at - 0.5);
}

TEST_F(MarkingsTest, AnIlsHoldShortNodeHasALadderAndNoBars) {
    Scale(6);
    WideRunway();
    SceneryObject* hold = build::Node({ 60, 0 }, kIlsHoldShortNode);
    build::Link(hold, build::Node({ 100, 0 }));
    Open();
    auto& node = PayloadAs<TaxiNodeRecord>(hold);
    struct Marks {
        size_t all = 0, across = 0, rungs = 0;
        double middle = 0;  // of those across the taxiway of 23 m
    };
    const auto marks = [] {
        RecordingCanvas page;
        Paint(&page);
        Marks found;
        for (const CanvasCall& call : page.FilledWith(InkOf(Ink::TaxiwayLine))) {
            const int across = std::abs(call.points[2].y - call.points[0].y);
            const int along = std::abs(call.points[2].x - call.points[0].x);
            ++found.all;
            if (along >= 13) ++found.rungs;  // 8 feet are 14.6 pixels
            if (across < 130) continue;
            ++found.across;
            found.middle += (call.points[0].x + call.points[2].x) / 4.0;
        }
        return found;
    };
    for (const bool reversed : { false, true }) {
        node.reversed = reversed;
        const Marks ladder = marks();
        EXPECT_EQ(ladder.across, 2u);
        EXPECT_NEAR(ladder.middle, PixelOf({ 60, 0 }).x, 1) << "the rails lie on both sides of the node";
        EXPECT_EQ(ladder.rungs, 14u) << "pairs, 10 feet and somewhat more from each other";
        EXPECT_EQ(ladder.all, 16u);
    }
    node.type = kHoldShortNode;
    EXPECT_EQ(marks().across, 2u);
    EXPECT_EQ(marks().rungs, 0u);
    EXPECT_GT(marks().all, 20u) << "two rows of dashes";
}

TEST_F(MarkingsTest, RunwayLightsAreDrawnByNightOnly) {
    Scale(0.25);
    SceneryObject* runway = WideRunway();
    PayloadAs<RunwayPayload>(runway).body.lights = 0x01;
    Open();
    Paint(&log);
    EXPECT_TRUE(log.FilledWith(InkOf(Ink::LightGreen)).empty());
    layers.lights = true;
    RecordingCanvas night;
    Paint(&night);
    EXPECT_FALSE(night.FilledWith(InkOf(Ink::LightGreen)).empty());
    EXPECT_FALSE(night.FilledWith(InkOf(Ink::LightRed)).empty());
    EXPECT_FALSE(night.FilledWith(InkOf(Ink::LightWhite)).empty());
}

TEST_F(MarkingsTest, ApronLightsStandAtTheirSpacingByNight) {
    Scale(2);
    const EncodedPoint from = build::Encoded({ 0, -50 }), to = build::Encoded({ 0, 50 });
    build::EdgeLights({ { 25, from.longitude, from.latitude, to.longitude, to.latitude, 0, 0, 0 } });
    Open();
    Paint(&log);
    EXPECT_TRUE(log.FilledWith(InkOf(Ink::LightBlue)).empty());
    layers.lights = true;
    RecordingCanvas night;
    Paint(&night);
    EXPECT_EQ(night.FilledWith(InkOf(Ink::LightBlue)).size(), 5u);
}

TEST_F(MarkingsTest, LampsThatADamagedFileSetsTooCloseAreNotDrawn) {
    layers.lights = true;
    const EncodedPoint from = build::Encoded({ 0, -50 }), to = build::Encoded({ 0, 50 });
    SceneryObject* lights =
        build::EdgeLights({ { 0.5f, from.longitude, from.latitude, to.longitude, to.latitude, 0, 0, 0 } });
    Open();
    const auto lamps = [] {
        RecordingCanvas night;
        Paint(&night);
        return night.FilledWith(InkOf(Ink::LightBlue)).size();
    };
    Scale(2000);
    EXPECT_GT(lamps(), 0u);
    const float spacing = 0.005f;  // 10 pixels
    std::memcpy(lights->payload + sizeof(EdgeLightsHead), &spacing, sizeof spacing);
    EXPECT_EQ(lamps(), 0u);
}

TEST_F(MarkingsTest, TaxiwayEdgeLinesNeverCrossARunway) {
    Scale(2);
    WideRunway();  // 22.5 m to either side of the middle
    auto& link = PayloadAs<TaxiLinkPayload>(build::Link(build::Node({ -100, 0 }), build::Node({ 100, 0 })));
    link.flagsWord |= 1u << 18;
    PaintOpen();
    const auto lines = log.StrokedWith(InkOf(Ink::TaxiwayLine));
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_NEAR(lines[0].points[1].x, 400 - 45, 2);
    EXPECT_NEAR(lines[1].points[0].x, 400 + 45, 2);
}

TEST_F(MarkingsTest, CentreLinesEndAtTheEdgeOfARunwayTheyMeet) {
    Scale(2);
    WideRunway();
    SceneryObject* meeting = build::Node();
    PayloadAs<TaxiLinkPayload>(build::Link(meeting, build::Node({ 0, 400 }), kRunwayLink)).width = 45;
    PayloadAs<TaxiLinkPayload>(build::Link(build::Node({ 100, 0 }), meeting)).flagsWord |= 1u << 16;
    PaintOpen();
    const auto lines = log.StrokedWith(InkOf(Ink::TaxiwayLine));
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_NEAR(lines[0].points[0].x, 600, 1);
    EXPECT_NEAR(lines[0].points[1].x, 445, 1);
}

}  // namespace
