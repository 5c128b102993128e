#include <gtest/gtest.h>

#include <algorithm>

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

TEST_F(MarkingsTest, RunwayMarkingsStayInsideTheRunway) {
    Scale(0.25);
    SceneryObject* runway = WideRunway();
    PayloadAs<RunwayPayload>(runway).body.markings = 0x7F;
    PayloadAs<RunwayPayload>(runway).primaryThreshold = { 4, 200, 45 };
    PaintOpen();
    ASSERT_EQ(log.Drawn("clip").size(), 1u);
    const std::vector<Pixel> outline = log.Drawn("clip")[0].points;
    EXPECT_EQ(outline.size(), 4u);
    EXPECT_EQ(log.Drawn("unclip").size(), 1u);
    int clipped = 0;
    for (const CanvasCall& call : log.Drawn()) clipped += call.clipDepth > 0;
    EXPECT_GT(clipped, 60);
}

TEST_F(MarkingsTest, EachMarkingFlagAddsItsMarks) {
    Scale(0.3);
    SceneryObject* runway = WideRunway();
    auto& body = PayloadAs<RunwayPayload>(runway).body;
    body.length = 2400;
    Open();
    const auto marks = [&](uint16_t flags) {
        body.markings = flags;
        RecordingCanvas one;
        Paint(&one);
        int count = 0;
        for (const CanvasCall& call : one.Drawn()) count += call.clipDepth > 0;
        return count;
    };
    EXPECT_EQ(marks(0), 0);
    EXPECT_EQ(marks(0x0001), 2);       // edge lines
    EXPECT_EQ(marks(0x0002), 2 * 12);  // twelve threshold stripes for 150 feet
    EXPECT_EQ(marks(0x0004), 2 * 2);   // aiming points
    EXPECT_EQ(marks(0x0008),
              2 * 2 * 8);              // touchdown zone: 3, 2 and 2, 1 bars a side; the last lies too near the middle
    EXPECT_EQ(marks(0x0020), 2);       // designations
    EXPECT_EQ(marks(0x0122), 1 + 12);  // nothing at the secondary end
    EXPECT_EQ(marks(0x0200), 2);       // a cross of two bars
    EXPECT_EQ(marks(0x1000), 1);       // STOL
    EXPECT_EQ(marks(0x0010), 39);      // 120 feet and 80 feet of gap in 2400 m
}

TEST_F(MarkingsTest, ThresholdStripesCountTheWidth) {
    Scale(0.3);
    SceneryObject* runway = WideRunway();
    auto& body = PayloadAs<RunwayPayload>(runway).body;
    body.markings = 0x0002;
    Open();
    const struct {
        float feet;
        int stripes;
    } kRows[] = { { 60, 4 }, { 75, 6 }, { 100, 8 }, { 150, 12 }, { 200, 16 } };
    for (const auto& row : kRows) {
        body.width = row.feet * 0.3048f;
        RecordingCanvas one;
        Paint(&one);
        int count = 0;
        for (const CanvasCall& call : one.Drawn()) count += call.clipDepth > 0;
        EXPECT_EQ(count, 2 * row.stripes) << row.feet;
    }
}

TEST_F(MarkingsTest, TheArrowHeadsBeforeADisplacedThresholdNeverOverlap) {
    const std::pair<double, size_t> rows[] = { { 25, 1 }, { 60, 2 }, { 75, 3 }, { 100, 4 }, { 200, 4 } };
    for (const auto& [feet, heads] : rows) {
        SetUp();
        SceneryObject* runway = build::Runway(36);
        auto& payload = PayloadAs<RunwayPayload>(runway);
        payload.body.surface = 4;
        payload.body.width = static_cast<float>(feet * kMetresPerFoot);
        payload.primaryThreshold = { 4, 25, payload.body.width };  // room for the row alone
        Open();
        Scale(8);
        view.centre = build::At({ 0, -985 });
        RecordingCanvas page;
        Paint(&page);
        std::vector<std::pair<int, int>> spans;
        for (const CanvasCall& call : page.FilledWith(InkOf(Ink::RunwayMarking))) {
            if (call.points.size() == 3) spans.push_back({ call.points[2].x, call.points[1].x });
        }
        ASSERT_EQ(spans.size(), heads) << feet;
        for (size_t i = 1; i < spans.size(); ++i) EXPECT_GT(spans[i].first, spans[i - 1].second) << feet;
    }
}

TEST_F(MarkingsTest, AClosedEndsCrossLiesOnItsDesignation) {
    constexpr uint16_t kAllOfOneEnd = 0x0002 | 0x0020 | 0x0200;
    SceneryObject* runway = build::Runway(36);
    PayloadAs<RunwayPayload>(runway).body.markings = kAllOfOneEnd;
    Open();
    Scale(4);
    view.centre = build::At({ 0, -930 });
    Paint(&log);
    const std::vector<CanvasCall> cross = log.FilledWith(InkOf(Ink::RunwayYellow));
    ASSERT_EQ(cross.size(), 2u);
    for (const CanvasCall& bar : cross) {
        const double y = (bar.points[0].y + bar.points[2].y) / 2.0;
        EXPECT_NEAR(y, PixelOf({ 0, -1000 + (20 + 150 + 40 + 30) * kMetresPerFoot }).y, 2);
    }
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
