#include "map/PaintMap.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "fakes/MapFixture.h"
#include "fakes/RandomAirport.h"
#include "map/ScreenPlace.h"
#include "map/Selection.h"
#include "map/Shapes.h"

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

TEST_F(PaintMapTest, WhatIsDrawnOverTheNetworkKeepsItsOrder) {
    Scale(2);
    layers.lights = layers.navaids = true;
    ConcreteApron({ -60, -60 }, { 60, 60 })->flags |= kSelected;
    build::Link(build::Node({ -50, 0 }), build::Node({ 50, 5 }));
    PayloadAs<RunwayPayload>(WideRunway()).body.lights = 1;
    build::Vor({ -30, -30 });
    const EncodedPoint from = build::Encoded({ -40, -40 }), to = build::Encoded({ 40, -40 });
    build::EdgeLights({ { 20, from.longitude, from.latitude, to.longitude, to.latitude, 0, 0, 0 } });
    build::Guideline(build::Marker({ 10, 10 }), build::Marker({ 20, 10 }));
    Open();
    view.lockedToSim = true;
    simAircraft = { true, build::kMiddle };
    Paint(&log);
    const std::vector<Colour> order = {
        InkOf(Ink::TaxiLink),       InkOf(Ink::LightWhite), InkOf(Ink::ReferencePoint), InkOf(Ink::Navaid),
        InkOf(Ink::EdgeLightStrip), InkOf(Ink::Marker),     InkOf(Ink::Guideline),      InkOf(Ink::CrossHair),
    };
    int before = -1;
    for (size_t i = 0; i < order.size(); ++i) {
        const int at = log.FirstWith(order[i]);
        EXPECT_GT(at, before) << "layer " << i;
        before = at;
    }
    const auto drawn = log.Drawn();
    const auto outline = std::find_if(drawn.begin(), drawn.end(), [](const CanvasCall& call) {
        return call.name == "polyline" && call.pen == InkOf(Ink::SelectedOutline);
    });
    EXPECT_GT(outline - drawn.begin(), log.FirstWith(InkOf(Ink::Navaid)));
    EXPECT_LT(outline - drawn.begin(), log.FirstWith(InkOf(Ink::EdgeLightStrip)));
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

TEST_F(PaintMapTest, WhatIsLeftOfAnApronIsSeenOnTopWhetherSelectedOrNot) {
    const EncodedPoint west = build::Encoded({ -50, 0 }), east = build::Encoded({ 50, 0 });
    for (const std::vector<EncodedPoint>& corners : { std::vector{ west, east }, std::vector{ west } }) {
        ClearModel();
        WideRunway();
        Open();
        SceneryObject* apron = build::Apron(corners);
        for (const uint32_t selected : { 0u, kSelected | kWholeSelected }) {
            apron->flags = kApron | selected;
            RecordingCanvas page;
            Paint(&page);
            EXPECT_TRUE(IsDrawn(apron));
            EXPECT_EQ(PartsOf(apron).apron.size(), corners.size());
            EXPECT_TRUE(page.FilledWith(ApronColour(0)).empty());
            std::vector<CanvasCall> marks;
            const Colour outline = InkOf(selected ? Ink::SelectedOutline : Ink::ApronOutline);
            for (const CanvasCall& call : page.StrokedWith(outline)) {
                const bool onTop = selected || call.brush == InkOf(Ink::Background);
                if (call.name == "polygon" && call.points.size() == 4 && onTop) marks.push_back(call);
            }
            EXPECT_EQ(page.FirstWith(InkOf(Ink::SelectedOutline)) >= 0, selected != 0) << "else it looks selected";
            ASSERT_EQ(marks.size(), corners.size());
            for (const CanvasCall& mark : marks)
                EXPECT_EQ(mark.brush, InkOf(selected ? Ink::SelectedFill : Ink::Background));
            EXPECT_GT(page.FirstWith(outline), page.FirstWith(RunwayColour(4)));
        }
    }
}

TEST_F(PaintMapTest, AnApronWithoutCornersIsNotDrawn) {
    SceneryObject* apron = build::Apron({});
    apron->flags |= kSelected | kWholeSelected;
    PaintOpen();
    EXPECT_FALSE(IsDrawn(apron));
    EXPECT_EQ(log.FirstWith(InkOf(Ink::SelectedOutline)), -1);
}

TEST_F(PaintMapTest, AnUnselectedApronHasABlackOutline) {
    ConcreteApron({ -300, -300 }, { 300, 300 });
    PaintOpen();
    const auto aprons = log.FilledWith(Rgb(195, 195, 180));
    ASSERT_EQ(aprons.size(), 1u);
    EXPECT_EQ(aprons[0].pen, Rgb(0, 0, 0));
    EXPECT_EQ(aprons[0].points.size(), 4u);
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

TEST_F(PaintMapTest, TheClipRectangleIsATenthLargerInWholePixels) {
    ResizeView(805, 609);
    const Box clip = ClipBox();
    EXPECT_EQ(clip.left, -80);
    EXPECT_EQ(clip.top, -60);
    EXPECT_EQ(clip.right, 885);
    EXPECT_EQ(clip.bottom, 669);
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

// However near the map is: marks, chevrons, lamps and lines beside the page are not handed to the canvas.
TEST_F(PaintMapTest, NothingBesideTheClipRectangleReachesTheCanvas) {
    SceneryObject* object = WideRunway();
    auto& runway = PayloadAs<RunwayPayload>(object);
    runway.body.markings = 0x1E7F;
    runway.body.lights = 0x1F;
    runway.primaryApproachLights = runway.secondaryApproachLights = 0xE0 | 7;
    runway.primaryThreshold = runway.secondaryThreshold = { 4, 300, 45 };
    runway.primaryBlastPad = runway.secondaryBlastPad = { 4, 300, 45 };
    runway.primaryOverrun = { 4, 300, 45 };
    Open();
    layers.lights = true;
    Scale(4);
    for (const double north : { -1350.0, -1150.0, -1000.0, -880.0, -600.0, 0.0, 850.0, 1200.0 }) {
        view.centre = build::At({ 0, north });
        RecordingCanvas page;
        Paint(&page);
        size_t checked = 0;
        for (const CanvasCall& call : page.Drawn()) {
            if (call.name == "text") continue;
            std::vector<Point> points;
            for (const Pixel point : call.points) points.push_back({ double(point.x), double(point.y) });
            EXPECT_TRUE(Meets(BoundsOf(points), Grown(ClipBox(), 1, 1))) << call.name << " at " << north;
            ++checked;
        }
        EXPECT_GT(checked, 3u) << north;
    }
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

TEST_F(PaintMapTest, TheAircraftIsACrossOf44Pixels) {
    Open();
    simAircraft = { true, build::At({ 100, 0 }) };
    Paint(&log);
    EXPECT_TRUE(log.StrokedWith(InkOf(Ink::CrossHair)).empty());  // drawn after the copy while unlocked
    PaintFeedback(&log.canvas);
    const auto lines = log.StrokedWith(InkOf(Ink::CrossHair));
    ASSERT_EQ(lines.size(), 2u);
    const Pixel centre = WorldToPixel(simAircraft.position);
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

TEST_F(PaintMapTest, WithoutAnAirportNoAircraftIsDrawn) {
    simAircraft = { true, build::kMiddle };
    PaintFeedback(&log.canvas);
    EXPECT_TRUE(log.Drawn().empty());
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
