#include "map/PaintMap.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "fakes/MapFixture.h"
#include "fakes/RandomAirport.h"
#include "map/ScreenPlace.h"
#include "map/Selection.h"

namespace {

using namespace map;
using namespace model;
using platform::Rgb;

class PaintMapTest : public MapFixture {
protected:
    RecordingCanvas log;

    void PaintOpen() {
        Open();
        Paint(&log);
    }
    static SceneryObject* ConcreteApron(build::Place low, build::Place high) {
        return build::Apron({ build::Encoded({ low.east, low.north }), build::Encoded({ high.east, low.north }),
                              build::Encoded({ high.east, high.north }), build::Encoded({ low.east, high.north }) });
    }
    static SceneryObject* WideRunway() {
        SceneryObject* runway = build::Runway(36);
        PayloadAs<RunwayPayload>(runway).body.surface = 4;
        return runway;
    }
};

TEST_F(PaintMapTest, WithoutAnAirportOnlyTheBackgroundIsDrawn) {
    Paint(&log);
    ASSERT_EQ(log.Drawn().size(), 1u);
    const CanvasCall call = log.Drawn()[0];
    EXPECT_EQ(call.brush, Rgb(230, 225, 204));
    EXPECT_EQ(call.pen, Rgb(230, 225, 204));
    EXPECT_EQ(call.points[0], (Pixel{ 0, 0 }));
    EXPECT_EQ(call.points[2], (Pixel{ 799, 599 }));
}

TEST_F(PaintMapTest, TheBackgroundIsBlackWhileLightsAreShown) {
    layers.lights = true;
    PaintOpen();
    EXPECT_EQ(log.Drawn()[0].brush, Rgb(0, 0, 0));
}

TEST_F(PaintMapTest, LayersCoverEachOtherInTheirOrder) {
    Scale(2);
    app::settings.showLatLongGrid = true;
    app::settings.showLabels = 1;
    layers.starts = layers.navaids = true;
    ConcreteApron({ -60, -60 }, { 60, 60 })->flags |= kSelected | kWholeSelected;
    SceneryObject* a = build::Node({ -50, 0 });
    SceneryObject* b = build::Node({ 50, 5 });
    auto& link = PayloadAs<TaxiLinkPayload>(build::Link(a, b, kApronRouteLink));
    link.flagsWord |= 1u << 16;
    PayloadAs<TaxiLinkPayload>(build::Link(a, build::Node({ -50, 60 }))).flagsWord |= 12u << 24;
    PayloadAs<ParkingSpotRecord>(build::Spot({ 20, -40 })).radius = 10;
    WideRunway();
    build::Marker({ 10, 10 });
    SceneryObject* start = build::Placed<StartLocationRecord>(kStartLocation, { 30, 30 });
    static_cast<void>(start);
    PayloadAs<TowerViewpointRecord>(build::Tower({ 40, 40 })).altitude = 1000;
    build::Vor({ -30, -30 });
    SceneryObject* pad = build::Placed<HelipadRecord>(kHelipad, { 0, 50 });
    PayloadAs<HelipadRecord>(pad) = { .surface = 8,
                                      .type = 2,
                                      .carried = 0,
                                      .longitude = 0,
                                      .latitude = 0,
                                      .altitude = 0,
                                      .length = 20,
                                      .width = 20,
                                      .heading = 0 };
    SetPosition(pad, build::At({ 0, 50 }));
    PaintOpen();
    const std::vector<Colour> order = {
        InkOf(Ink::Background),    InkOf(Ink::SelectedFill), InkOf(Ink::GridLine),       TaxiwayColour(12),
        RunwayColour(4),           RunwayColour(8),          InkOf(Ink::TaxiwayLine),    InkOf(Ink::ParkingFill),
        InkOf(Ink::Node),          InkOf(Ink::ParkingLink),  InkOf(Ink::ReferencePoint), InkOf(Ink::Tower),
        InkOf(Ink::StartLocation), InkOf(Ink::Navaid),       InkOf(Ink::ParkingLabel),   InkOf(Ink::Marker),
    };
    int before = -1;
    for (size_t i = 0; i < order.size(); ++i) {
        const int at = log.FirstWith(order[i]);
        EXPECT_GT(at, before) << "layer " << i;
        before = at;
    }
}

TEST_F(PaintMapTest, ASelectedApronStaysVisibleAboveRunwaysAndTaxiways) {
    SceneryObject* apron = ConcreteApron({ -300, -300 }, { 300, 300 });
    apron->flags |= kSelected | kWholeSelected;
    WideRunway();
    PaintOpen();
    const auto outlines = log.Drawn("polyline");
    ASSERT_EQ(outlines.size(), 1u);
    EXPECT_EQ(outlines[0].pen, InkOf(Ink::SelectedOutline));
    EXPECT_EQ(outlines[0].points.size(), 5u);
    const auto drawn = log.Drawn();
    const auto lastRunway = std::find_if(drawn.rbegin(), drawn.rend(),
                                         [](const CanvasCall& call) { return call.brush == RunwayColour(4); });
    const auto outline =
        std::find_if(drawn.rbegin(), drawn.rend(), [](const CanvasCall& call) { return call.name == "polyline"; });
    EXPECT_LT(outline - drawn.rbegin(), lastRunway - drawn.rbegin());
}

TEST_F(PaintMapTest, AnApronInItsMakingIsNotDrawn) {
    SceneryObject* apron = ConcreteApron({ -300, -300 }, { 300, 300 });
    apron->flags |= kOutlineOpen;
    PaintOpen();
    EXPECT_TRUE(log.FilledWith(ApronColour(0)).empty());
    EXPECT_FALSE(IsDrawn(apron));
}

TEST_F(PaintMapTest, AnUnselectedApronHasABlackOutline) {
    ConcreteApron({ -300, -300 }, { 300, 300 });
    PaintOpen();
    const auto aprons = log.FilledWith(Rgb(195, 195, 180));
    ASSERT_EQ(aprons.size(), 1u);
    EXPECT_EQ(aprons[0].pen, Rgb(0, 0, 0));
    EXPECT_EQ(aprons[0].points.size(), 4u);
}

TEST_F(PaintMapTest, ANodeIsACircleOfTwentyFeet) {
    Scale(2);
    SceneryObject* node = build::Node({ 30, 20 });
    PaintOpen();
    const auto nodes = log.FilledWith(Rgb(110, 110, 255));
    ASSERT_EQ(nodes.size(), 1u);
    const Pixel centre = WorldToPixel(PositionOf(node));
    EXPECT_EQ(ScreenPoint(node, 0), centre);
    EXPECT_EQ(nodes[0].points[0], (Pixel{ centre.x - 12, centre.y - 12 }));  // 6.096 x 2 is 12.19
    EXPECT_EQ(nodes[0].points[1], (Pixel{ centre.x + 13, centre.y + 13 }));
}

TEST_F(PaintMapTest, ANodeSmallerThanHalfAPixelHasRadiusOne) {
    Scale(0.01);
    SceneryObject* node = build::Node();
    PaintOpen();
    const auto nodes = log.FilledWith(InkOf(Ink::Node));
    ASSERT_EQ(nodes.size(), 1u);
    EXPECT_EQ(nodes[0].points[1].x - nodes[0].points[0].x, 3);
    EXPECT_EQ(ScreenRadius(node), 1);
}

TEST_F(PaintMapTest, NodesAreColouredByKindAndSelection) {
    build::Node({ 0, 100 });
    build::Node({ 0, 0 }, kHoldShortNode);
    build::Node({ 0, -100 }, kIlsHoldShortNode);
    build::Node({ 100, 0 }, kHoldShortNode)->flags |= kSelected;
    PaintOpen();
    EXPECT_EQ(log.FilledWith(Rgb(110, 110, 255)).size(), 1u);
    EXPECT_EQ(log.FilledWith(Rgb(255, 0, 0)).size(), 1u);
    EXPECT_EQ(log.FilledWith(Rgb(230, 230, 0)).size(), 1u);
    EXPECT_EQ(log.FilledWith(Rgb(255, 200, 30)).size(), 1u);
}

TEST_F(PaintMapTest, NightNodesHaveTheirNightColours) {
    layers.lights = true;
    build::Node({ 0, 100 });
    build::Node({ 0, 0 }, kHoldShortNode);
    build::Node({ 0, -100 }, kIlsHoldShortNode);
    PaintOpen();
    EXPECT_EQ(log.FilledWith(Rgb(55, 55, 128)).size(), 1u);
    EXPECT_EQ(log.FilledWith(Rgb(128, 0, 0)).size(), 1u);
    EXPECT_EQ(log.FilledWith(Rgb(100, 100, 0)).size(), 1u);
}

TEST_F(PaintMapTest, HoldShortLimitsAreRingsOf225Feet) {
    layers.holdShortLimits = true;
    build::Node({ 0, 0 }, kHoldShortNode);
    build::Node({ 0, 100 });
    build::Node({ 0, -100 }, kIlsHoldShortNode);
    PaintOpen();
    const auto rings = log.StrokedWith(InkOf(Ink::HoldShortNode));
    const auto ring = std::find_if(rings.begin(), rings.end(),
                                   [](const CanvasCall& call) { return call.brush == platform::kNoBrush; });
    ASSERT_NE(ring, rings.end());
    EXPECT_EQ(ring->points[1].x - ring->points[0].x, 2 * 34 + 1);  // 68.58 x 0.5 is 34.29
    EXPECT_EQ(std::count_if(rings.begin(), rings.end(),
                            [](const CanvasCall& call) { return call.brush == platform::kNoBrush; }),
              1);
}

TEST_F(PaintMapTest, ARingReachesFartherThanItsNode) {
    layers.holdShortLimits = true;
    SceneryObject* node = build::Node({ 900, 0 }, kHoldShortNode);  // 50 pixels outside: beyond the ring
    Open();
    Paint(&log);
    EXPECT_TRUE(log.StrokedWith(InkOf(Ink::HoldShortNode)).size() <= 1u);
    SetPosition(node, build::At({ 860, 0 }));  // 30 pixels outside
    RecordingCanvas second;
    Paint(&second);
    EXPECT_EQ(second.StrokedWith(InkOf(Ink::HoldShortNode)).size(), 2u);
}

TEST_F(PaintMapTest, LinksAreColouredByType) {
    SceneryObject* a = build::Node({ -100, 0 });
    SceneryObject* b = build::Node({ 100, 0 });
    const struct {
        uint32_t type;
        Colour colour;
    } kRows[] = { { kTaxiwayLink, Rgb(140, 140, 255) },
                  { kRunwayLink, Rgb(40, 40, 40) },
                  { kParkingLink, Rgb(0, 190, 0) },
                  { kApronRouteLink, Rgb(0, 190, 0) },
                  { kClosedLink, Rgb(140, 140, 255) } };
    SceneryObject* link = build::Link(a, b);
    Open();
    for (const auto& row : kRows) {
        PayloadAs<TaxiLinkPayload>(link).flagsWord = row.type;
        RecordingCanvas one;
        Paint(&one);
        ASSERT_EQ(one.StrokedWith(row.colour).size(), 1u) << row.type;
        EXPECT_EQ(one.StrokedWith(row.colour)[0].points[0], WorldToPixel(PositionOf(a)));
        EXPECT_EQ(one.StrokedWith(row.colour)[0].points[1], WorldToPixel(PositionOf(b)));
    }
}

TEST_F(PaintMapTest, LinksAreAFootAndAHalfWideAndNeverThinnerThanAPixel) {
    build::Link(build::Node({ -10, 0 }), build::Node({ 10, 0 }));
    Open();
    Paint(&log);
    EXPECT_EQ(log.StrokedWith(InkOf(Ink::TaxiLink))[0].penWidth, 1);
    Scale(10);
    RecordingCanvas near;
    Paint(&near);
    EXPECT_EQ(near.StrokedWith(InkOf(Ink::TaxiLink))[0].penWidth, 5);  // 4.57
}

TEST_F(PaintMapTest, AClosedLinkHasALineAndACross) {
    build::Link(build::Node({ -100, 0 }), build::Node({ 100, 0 }), kClosedLink);
    PaintOpen();
    EXPECT_EQ(log.StrokedWith(Rgb(140, 140, 255)).size(), 1u);
    const auto cross = log.StrokedWith(Rgb(250, 220, 0));
    ASSERT_EQ(cross.size(), 2u);
    // 50 feet from the middle at 45 degrees, at half a pixel to the metre.
    EXPECT_NEAR(cross[0].points[0].x, 400 - 5.39, 1);
    EXPECT_NEAR(cross[0].points[1].x, 400 + 5.39, 1);
    EXPECT_NEAR(std::abs(cross[0].points[0].y - 300), 5.39, 1);
}

TEST_F(PaintMapTest, AClosedLinkOnTheHighlightedNameIsRedWithTheCross) {
    SceneryObject* name = build::Designator("A");
    build::Link(build::Node({ -100, 0 }), build::Node({ 100, 0 }), kClosedLink, name);
    build::Link(build::Node({ -100, 50 }), build::Node({ 100, 50 }), kTaxiwayLink, build::Designator("B"));
    build::Link(build::Node({ -100, 90 }), build::Node({ 100, 90 }), kTaxiwayLink, nullptr);
    layers.highlightedDesignator = name;
    PaintOpen();
    EXPECT_EQ(log.StrokedWith(Rgb(255, 0, 0)).size(), 1u);
    EXPECT_EQ(log.StrokedWith(Rgb(250, 220, 0)).size(), 2u);
    EXPECT_EQ(log.StrokedWith(Rgb(140, 140, 255)).size(), 2u);
}

TEST_F(PaintMapTest, ASelectedLinkTakesTheSelectedColour) {
    build::Link(build::Node({ -100, 0 }), build::Node({ 100, 0 }))->flags |= kSelected;
    PaintOpen();
    EXPECT_EQ(log.StrokedWith(Rgb(255, 200, 30)).size(), 1u);
}

TEST_F(PaintMapTest, SelectedSpotsAreDrawnOverTheOthers) {
    SceneryObject* first = build::Spot({ 0, 0 });
    PayloadAs<ParkingSpotRecord>(first).radius = 20;
    PayloadAs<ParkingSpotRecord>(build::Spot({ 5, 0 })).radius = 20;
    first->flags |= kSelected;
    PaintOpen();
    EXPECT_GT(log.FirstWith(InkOf(Ink::SelectedFill)), log.FirstWith(InkOf(Ink::ParkingFill)));
}

TEST_F(PaintMapTest, ASpotHasACircleAndAPointerOfFivePoints) {
    Scale(2);
    SceneryObject* spot = build::Spot();
    PayloadAs<ParkingSpotRecord>(spot).radius = 20;
    PayloadAs<ParkingSpotRecord>(spot).heading = 0;
    PaintOpen();
    const auto drawn = log.FilledWith(InkOf(Ink::ParkingFill));
    ASSERT_EQ(drawn.size(), 2u);
    EXPECT_EQ(drawn[0].points[1].x - drawn[0].points[0].x, 2 * 40 + 1);
    EXPECT_EQ(drawn[0].pen, InkOf(Ink::ParkingOutline));
    ASSERT_EQ(drawn[1].points.size(), 5u);
    EXPECT_NEAR(drawn[1].points[0].y, 286, 1);    // 0.35 x 40 ahead: up
    EXPECT_NEAR(drawn[1].points[1].y, 326.4, 1);  // 0.66 x 40 behind
    EXPECT_NEAR(drawn[1].points[1].x, 422.8, 1);  // 0.57 x 40 beside
}

TEST_F(PaintMapTest, ASpotWhoseCentreLiesOutsideIsNotDrawn) {
    SceneryObject* spot = build::Spot({ 0, 800 });
    PayloadAs<ParkingSpotRecord>(spot).radius = 1000;
    PaintOpen();
    EXPECT_TRUE(log.FilledWith(InkOf(Ink::ParkingFill)).empty());
    EXPECT_FALSE(IsDrawn(spot));
}

TEST_F(PaintMapTest, HiddenLayersAreNeitherDrawnNorPicked) {
    layers.network = false;
    SceneryObject* node = build::Node();
    SceneryObject* spot = build::Spot({ 50, 0 });
    SceneryObject* link = build::Link(node, spot, kParkingLink);
    SceneryObject* vor = build::Vor({ 0, 100 });
    SceneryObject* start = build::Placed<StartLocationRecord>(kStartLocation, { 0, -100 });
    app::settings.showLabels = 1;
    PaintOpen();
    for (const SceneryObject* object : { node, spot, link, vor, start }) EXPECT_FALSE(IsDrawn(object));
    EXPECT_TRUE(log.Drawn("text").empty());
}

TEST_F(PaintMapTest, WhatLiesOutsideTheClipRectangleIsNotDrawn) {
    // A tenth of 800 and 600 pixels around the map: 960 m east, 720 m north.
    build::Link(build::Node({ 1200, 0 }), build::Node({ 1200, 100 }));
    build::Runway(36, 0, { 1300, 0 });
    build::Vor({ 0, 2000 });
    build::Marker({ 0, -2000 });
    ConcreteApron({ 1000, 0 }, { 1100, 100 });
    PayloadAs<ParkingSpotRecord>(build::Spot({ -1000, 0 })).radius = 30;
    layers.navaids = layers.starts = layers.lights = true;
    build::Placed<StartLocationRecord>(kStartLocation, { 1300, 0 });
    PaintOpen();
    // The background and the reference point, which is a circle and two lines.
    EXPECT_EQ(log.Drawn().size(), 4u);
    for (const SceneryObject* o : build::List()) EXPECT_EQ(IsDrawn(o), KindOf(o) == kAirport);
}

TEST_F(PaintMapTest, AnObjectThatMovedOffThePageIsNoLongerPicked) {
    SceneryObject* node = build::Node();
    Open();
    Paint();
    EXPECT_TRUE(IsDrawn(node));
    view.centre = build::At({ 50'000, 0 });
    Paint();
    EXPECT_FALSE(IsDrawn(node));
}

TEST_F(PaintMapTest, TheTowerAtItsPlaceholderIsNotDrawn) {
    SceneryObject* tower = build::Tower();
    auto& record = PayloadAs<TowerViewpointRecord>(tower);
    Open();
    Paint();
    EXPECT_FALSE(IsDrawn(tower));  // its altitude is 0
    record.altitude = 1000;
    Paint();
    EXPECT_TRUE(IsDrawn(tower));
    record.longitude = kPlaceholderLongitude;
    record.latitude = kPlaceholderLatitude;
    view.centre = {};
    Paint();
    EXPECT_FALSE(IsDrawn(tower));
}

TEST_F(PaintMapTest, AReplacedStockNavaidIsNotDrawn) {
    layers.navaids = true;
    SceneryObject* stock = build::Vor();
    SceneryObject* replacement = build::Vor({ 50, 0 });
    stock->flags |= kStock;
    stock->related = replacement;
    replacement->related = stock;
    PaintOpen();
    EXPECT_FALSE(IsDrawn(stock));
    EXPECT_TRUE(IsDrawn(replacement));
}

TEST_F(PaintMapTest, LabelsShowNameAndNumberOrTheFirstCode) {
    SceneryObject* spot = build::Spot({ 0, 0 }, { "JAL", "KLMX" });
    PayloadAs<ParkingSpotRecord>(spot).packed = 12u | 7u << 12 | 2u << 24;  // Gate A 7
    Open();
    app::settings.showLabels = 1;
    Paint(&log);
    ASSERT_EQ(log.Drawn("text").size(), 1u);
    EXPECT_EQ(log.Drawn("text")[0].text, "Gate A 7");
    EXPECT_EQ(log.Drawn("text")[0].run.colour, Rgb(20, 80, 20));
    app::settings.showLabels = 2;
    RecordingCanvas codes;
    Paint(&codes);
    ASSERT_EQ(codes.Drawn("text").size(), 1u);
    EXPECT_EQ(codes.Drawn("text")[0].text, "JAL");
}

TEST_F(PaintMapTest, ACodeOfFourCharactersIsNotTerminatedAndStillShown) {
    build::Spot({ 0, 0 }, { "ABCD" });
    app::settings.showLabels = 2;
    PaintOpen();
    ASSERT_EQ(log.Drawn("text").size(), 1u);
    EXPECT_EQ(log.Drawn("text")[0].text, "ABCD");
}

TEST_F(PaintMapTest, ASpotWithoutCodesHasNoCodeLabel) {
    build::Spot();
    app::settings.showLabels = 2;
    PaintOpen();
    EXPECT_TRUE(log.Drawn("text").empty());
}

TEST_F(PaintMapTest, TaxiwayLinesAreDrawnFromAScaleOfThreeTenths) {
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

TEST_F(PaintMapTest, EdgeLinesAreDoubleFromSixPixelsToTheMetre) {
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

TEST_F(PaintMapTest, TheLeftEdgeLineLiesOnTheLeftFromStartToEnd) {
    Scale(2);
    auto& link = PayloadAs<TaxiLinkPayload>(build::Link(build::Node({ 0, -100 }), build::Node({ 0, 100 })));
    link.flagsWord |= 1u << 18;
    PaintOpen();
    const auto lines = log.StrokedWith(InkOf(Ink::TaxiwayLine));
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_LT(lines[0].points[0].x, 400);
}

TEST_F(PaintMapTest, DashedEdgesAreManyShortLines) {
    Scale(2);
    auto& link = PayloadAs<TaxiLinkPayload>(build::Link(build::Node({ 0, -100 }), build::Node({ 0, 100 })));
    link.flagsWord |= 2u << 18;
    PaintOpen();
    const auto lines = log.StrokedWith(InkOf(Ink::TaxiwayLine));
    EXPECT_EQ(lines.size(), 17u);  // 200 m in steps of 40 feet
    EXPECT_NEAR(std::abs(lines[3].points[1].y - lines[3].points[0].y), 9.1, 1);
}

TEST_F(PaintMapTest, HoldShortMarkingsTurnTheirDashesToTheRunway) {
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

TEST_F(PaintMapTest, RunwayMarkingsStayInsideTheRunway) {
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

TEST_F(PaintMapTest, EachMarkingFlagAddsItsMarks) {
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

TEST_F(PaintMapTest, ThresholdStripesCountTheWidth) {
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

TEST_F(PaintMapTest, RunwayLightsAreDrawnByNightOnly) {
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

TEST_F(PaintMapTest, ApronLightsStandAtTheirSpacingByNight) {
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

TEST_F(PaintMapTest, TheAircraftIsACrossOf44Pixels) {
    Open();
    simAircraft = { true, build::At({ 100, 0 }) };
    Paint(&log);
    EXPECT_TRUE(log.StrokedWith(InkOf(Ink::CrossHair)).empty());  // drawn after the copy while unlocked
    PaintFeedback(&log.canvas);
    const auto lines = log.StrokedWith(InkOf(Ink::CrossHair));
    ASSERT_EQ(lines.size(), 2u);
    const Pixel centre = PixelOf({ 100, 0 });
    EXPECT_EQ(lines[0].points[0], (Pixel{ centre.x - 22, centre.y }));
    EXPECT_EQ(lines[1].points[1], (Pixel{ centre.x, centre.y + 22 }));
    view.lockedToSim = true;
    RecordingCanvas locked;
    Paint(&locked);
    EXPECT_EQ(locked.StrokedWith(Rgb(255, 60, 40)).size(), 2u);
    RecordingCanvas feedback;
    PaintFeedback(&feedback.canvas);
    EXPECT_TRUE(feedback.Drawn().empty());
}

TEST_F(PaintMapTest, TheFaultMarkerIsDrawnWhileShown) {
    Open();
    faultMarker = { true, build::kMiddle };
    Paint(&log);
    EXPECT_EQ(log.StrokedWith(InkOf(Ink::FaultMarker)).size(), 5u);
    faultMarker.shown = false;
    RecordingCanvas hidden;
    Paint(&hidden);
    EXPECT_TRUE(hidden.StrokedWith(InkOf(Ink::FaultMarker)).empty());
}

TEST_F(PaintMapTest, SurfaceTablesRunIntoEachOtherAtCode24) {
    EXPECT_EQ(ApronColour(24), TaxiwayColour(0));
    EXPECT_EQ(TaxiwayColour(24), RunwayColour(0));
    EXPECT_EQ(RunwayColour(24), Rgb(60, 0, 0));
    EXPECT_EQ(ApronColour(25), ApronColour(0));
    EXPECT_EQ(RunwayColour(255), RunwayColour(0));
    EXPECT_EQ(TaxiwayColour(23), Rgb(52, 54, 56));
    EXPECT_EQ(RunwayColour(23), Rgb(123, 130, 132));
}

TEST_F(PaintMapTest, SurfacesAreDimmedByNight) {
    layers.lights = true;
    EXPECT_EQ(ApronColour(0), Rgb(51, 51, 47));  // 195, 195, 180 x 0.26, rounded
}

TEST_F(PaintMapTest, NothingIsHandedToTheCanvasBeyondItsReach) {
    constexpr int kReach = 1 << 26;
    size_t drawn = 0;
    for (uint64_t seed = 1; seed <= 12; ++seed) {
        Random random = { seed };
        MakeRandomAirport(seed, SmallCounts(&random));
        layers = { .network = true,
                   .lights = seed % 2 == 0,
                   .starts = true,
                   .navaids = true,
                   .holdShortLimits = true,
                   .highlightedDesignator = nullptr };
        app::settings.showLabels = static_cast<int>(seed % 3);
        app::settings.showLatLongGrid = true;
        if (seed % 3 == 0) SelectAll();
        for (const SceneryObject* focus : build::List()) {
            if (!HasPosition(focus) || Below(&random, 4) != 0) continue;
            view.centre = PositionOf(focus);
            view.rotation = 0.3 * static_cast<double>(seed);
            for (const double scale : { 1e-9, 1e-4, 0.2, 3.0, 1e3, 1e6, 1e9, 1e15, 1e300 }) {
                Scale(scale);
                RecordingCanvas one;
                Paint(&one);
                EXPECT_EQ(one.clipDepth, 0);
                drawn += one.Drawn().size();
                for (const CanvasCall& call : one.calls) {
                    for (const Pixel& point : call.points) {
                        ASSERT_LE(std::abs(point.x), kReach) << call.name << " at scale " << scale;
                        ASSERT_LE(std::abs(point.y), kReach) << call.name << " at scale " << scale;
                    }
                }
            }
        }
    }
    EXPECT_GT(drawn, 10'000u);
}

}  // namespace
