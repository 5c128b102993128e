#include <gtest/gtest.h>

#include <algorithm>

#include "fakes/MapFixture.h"
#include "map/ScreenPlace.h"

namespace {

using namespace map;
using namespace model;
using platform::Rgb;

class PaintNetworkTest : public MapFixture {
protected:
    RecordingCanvas log;

    void PaintOpen() {
        Open();
        Paint(&log);
    }
};

TEST_F(PaintNetworkTest, ANodeIsACircleOfTwentyFeet) {
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

TEST_F(PaintNetworkTest, ANodeSmallerThanHalfAPixelHasRadiusOne) {
    Scale(0.01);
    SceneryObject* node = build::Node();
    PaintOpen();
    const auto nodes = log.FilledWith(InkOf(Ink::Node));
    ASSERT_EQ(nodes.size(), 1u);
    EXPECT_EQ(nodes[0].points[1].x - nodes[0].points[0].x, 3);
    EXPECT_EQ(ScreenRadius(node), 1);
}

TEST_F(PaintNetworkTest, NodesAreColouredByKindAndSelection) {
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

TEST_F(PaintNetworkTest, NightNodesHaveTheirNightColours) {
    layers.lights = true;
    build::Node({ 0, 100 });
    build::Node({ 0, 0 }, kHoldShortNode);
    build::Node({ 0, -100 }, kIlsHoldShortNode);
    PaintOpen();
    EXPECT_EQ(log.FilledWith(Rgb(55, 55, 128)).size(), 1u);
    EXPECT_EQ(log.FilledWith(Rgb(128, 0, 0)).size(), 1u);
    EXPECT_EQ(log.FilledWith(Rgb(100, 100, 0)).size(), 1u);
}

TEST_F(PaintNetworkTest, HoldShortLimitsAreRingsOf225Feet) {
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

TEST_F(PaintNetworkTest, ARingReachesFartherThanItsNode) {
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

TEST_F(PaintNetworkTest, ARingIsToScaleHoweverNearTheMapIs) {
    layers.holdShortLimits = true;
    SceneryObject* node = build::Node({ 0, 0 }, kHoldShortNode);
    Open();
    Scale(2000);
    view.centre = build::At({ 60, 0 });
    Paint(&log);
    EXPECT_FALSE(IsDrawn(node));
    const auto rings = log.StrokedWith(InkOf(Ink::HoldShortNode));
    ASSERT_EQ(rings.size(), 1u);
    EXPECT_EQ(rings[0].points[1].x - rings[0].points[0].x, 2 * 137'160 + 1);  // 68.58 x 2000
}

TEST_F(PaintNetworkTest, NoPenIsSoWideThatItWouldBeNone) {
    SceneryObject* start = build::Node({ -10, 0 });
    build::Link(start, build::Node({ 10, 0 }));
    Open();
    view.centre = PositionOf(start);
    Scale((platform::kNoPen + 0.1) / 0.4572);
    Paint(&log);
    ASSERT_EQ(log.StrokedWith(InkOf(Ink::TaxiLink)).size(), 1u);
    EXPECT_EQ(log.StrokedWith(InkOf(Ink::TaxiLink))[0].penWidth, platform::kNoPen - 1);
}

TEST_F(PaintNetworkTest, LinksAreColouredByType) {
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

TEST_F(PaintNetworkTest, LinksAreAFootAndAHalfWideAndNeverThinnerThanAPixel) {
    build::Link(build::Node({ -10, 0 }), build::Node({ 10, 0 }));
    Open();
    Paint(&log);
    EXPECT_EQ(log.StrokedWith(InkOf(Ink::TaxiLink))[0].penWidth, 1);
    Scale(10);
    RecordingCanvas near;
    Paint(&near);
    EXPECT_EQ(near.StrokedWith(InkOf(Ink::TaxiLink))[0].penWidth, 5);  // 4.57
}

TEST_F(PaintNetworkTest, AClosedLinkHasALineAndACross) {
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

TEST_F(PaintNetworkTest, ACrossIsSeenWhereItsLinkLiesBesideThePage) {
    Scale(10);
    build::Link(build::Node({ -20, 36.1 }), build::Node({ 20, 36.1 }), kClosedLink);  // 61 pixels above the map
    PaintOpen();
    EXPECT_TRUE(log.StrokedWith(InkOf(Ink::TaxiLink)).empty());
    const auto cross = log.StrokedWith(InkOf(Ink::ClosedCross));
    ASSERT_EQ(cross.size(), 2u);
    EXPECT_GT(std::max(cross[0].points[0].y, cross[0].points[1].y), 40);
}

TEST_F(PaintNetworkTest, AClosedLinkOnTheHighlightedNameIsRedWithTheCross) {
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

TEST_F(PaintNetworkTest, ASelectedLinkTakesTheSelectedColour) {
    build::Link(build::Node({ -100, 0 }), build::Node({ 100, 0 }))->flags |= kSelected;
    PaintOpen();
    EXPECT_EQ(log.StrokedWith(Rgb(255, 200, 30)).size(), 1u);
}

TEST_F(PaintNetworkTest, SelectedSpotsAreDrawnOverTheOthers) {
    SceneryObject* first = build::Spot({ 0, 0 });
    PayloadAs<ParkingSpotRecord>(first).radius = 20;
    PayloadAs<ParkingSpotRecord>(build::Spot({ 5, 0 })).radius = 20;
    first->flags |= kSelected;
    PaintOpen();
    EXPECT_GT(log.FirstWith(InkOf(Ink::SelectedFill)), log.FirstWith(InkOf(Ink::ParkingFill)));
}

TEST_F(PaintNetworkTest, ASpotHasACircleAndAPointerOfFivePoints) {
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

TEST_F(PaintNetworkTest, ThePointerShowsTheHeadingLessTheTurnOfTheMap) {
    Scale(2);
    SceneryObject* spot = build::Spot();
    auto& record = PayloadAs<ParkingSpotRecord>(spot);
    record.radius = 20;
    Open();
    const struct {
        float heading;
        double turn;
        Point tip;  // 0.35 x 40 from the middle
    } kRows[] = { { 90, 0, { 414, 300 } }, { 90, kPi / 2, { 400, 286 } }, { 0, kPi / 2, { 386, 300 } } };
    for (const auto& row : kRows) {
        record.heading = row.heading;
        view.rotation = row.turn;
        RecordingCanvas page;
        Paint(&page);
        const auto drawn = page.FilledWith(InkOf(Ink::ParkingFill));
        ASSERT_EQ(drawn.size(), 2u);
        EXPECT_NEAR(drawn[1].points[0].x, row.tip.x, 1) << row.heading << " turned by " << row.turn;
        EXPECT_NEAR(drawn[1].points[0].y, row.tip.y, 1) << row.heading << " turned by " << row.turn;
    }
}

TEST_F(PaintNetworkTest, ASpotWhoseCentreLiesOutsideIsNotDrawn) {
    SceneryObject* spot = build::Spot({ 0, 800 });
    PayloadAs<ParkingSpotRecord>(spot).radius = 1000;
    PaintOpen();
    EXPECT_TRUE(log.FilledWith(InkOf(Ink::ParkingFill)).empty());
    EXPECT_FALSE(IsDrawn(spot));
}

TEST_F(PaintNetworkTest, LabelsShowNameAndNumberOrTheFirstCode) {
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

TEST_F(PaintNetworkTest, ACodeOfFourCharactersIsNotTerminatedAndStillShown) {
    build::Spot({ 0, 0 }, { "ABCD" });
    app::settings.showLabels = 2;
    PaintOpen();
    ASSERT_EQ(log.Drawn("text").size(), 1u);
    EXPECT_EQ(log.Drawn("text")[0].text, "ABCD");
}

TEST_F(PaintNetworkTest, ASpotWithoutCodesHasNoCodeLabel) {
    build::Spot();
    app::settings.showLabels = 2;
    PaintOpen();
    EXPECT_TRUE(log.Drawn("text").empty());
}

}  // namespace
