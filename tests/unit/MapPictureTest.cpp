// MapPictureTest.cpp - the view as a picture: the same map, finer.
#include "map/MapPicture.h"

#include <algorithm>
#include <cstdlib>

#include "fakes/MapFixture.h"

namespace {

struct MapPictureTest : MapFixture {
    void SetUp() override {
        MapFixture::SetUp();
        Open();
    }
    static std::vector<CanvasCall> Picture(int times) {
        RecordingCanvas log;
        map::PaintPicture(&log.canvas, map::PictureSizeOf(times));
        return log.calls;
    }
};

bool SameCall(const CanvasCall& a, const CanvasCall& b) {
    return a.name == b.name && a.points == b.points && a.path.points == b.path.points && a.text == b.text &&
           a.pen == b.pen && a.penWidth == b.penWidth && a.brush == b.brush;
}

// Of the first circle filled with the colour.
platform::PixelRect CircleOf(const std::vector<CanvasCall>& calls, platform::Colour fill) {
    for (const CanvasCall& call : calls) {
        if (call.name == "ellipse" && call.brush == fill)
            return { call.points[0].x, call.points[0].y, call.points[1].x, call.points[1].y };
    }
    return {};
}

int WidthOf(const platform::PixelRect& box) { return box.right - box.left; }

}  // namespace

TEST_F(MapPictureTest, OnceTheSizeIsTheMapOfTheScreen) {
    map::view.rotation = 0.4;
    build::Link(build::Node(), build::Node({ 100, 50 }));
    RecordingCanvas screen;
    Paint(&screen);
    std::vector<CanvasCall> picture = Picture(1);
    ASSERT_EQ(picture.size(), screen.calls.size() + 2);
    EXPECT_EQ(picture.front().name, "clip");
    EXPECT_EQ(picture.back().name, "unclip");
    for (size_t i = 0; i < screen.calls.size(); ++i) EXPECT_TRUE(SameCall(picture[i + 1], screen.calls[i])) << i;
}

TEST_F(MapPictureTest, EverythingLiesAtTheSamePlaceOnlyFiner) {
    build::Node({ 300, 200 });
    const platform::PixelRect once = CircleOf(Picture(1), map::InkOf(map::Ink::Node));
    for (int times = 2; times <= map::kMostPictureTimes; ++times) {
        const platform::PixelRect finer = CircleOf(Picture(times), map::InkOf(map::Ink::Node));
        EXPECT_NEAR(finer.left + finer.right, (once.left + once.right) * times, 2 * times) << times;
        EXPECT_NEAR(finer.top + finer.bottom, (once.top + once.bottom) * times, 2 * times) << times;
        EXPECT_NEAR(WidthOf(finer), WidthOf(once) * times, 2 * times) << times;
    }
}

TEST_F(MapPictureTest, AnOddSizeStaysCentredWhereTheScreenHasItsCentre) {
    map::ResizeView(801, 601);
    build::Node();
    const platform::PixelRect at = CircleOf(Picture(4), map::InkOf(map::Ink::Node));
    EXPECT_NEAR((at.left + at.right) / 2.0, 400 * 4, 1);
    EXPECT_NEAR((at.top + at.bottom) / 2.0, 300 * 4, 1);
    EXPECT_EQ(map::PictureSizeOf(4).width, 3204);
    EXPECT_EQ(map::PictureSizeOf(4).height, 2404);
}

TEST_F(MapPictureTest, ItEndsAtItsEdges) {
    build::Node();
    const std::vector<CanvasCall> calls = Picture(3);
    const std::vector<platform::Pixel> corners = { { 0, 0 }, { 2400, 0 }, { 2400, 1800 }, { 0, 1800 } };
    EXPECT_EQ(calls.front().path.points, corners);
    for (const CanvasCall& call : calls) EXPECT_TRUE(!call.Draws() || call.clipDepth >= 1);
}

TEST_F(MapPictureTest, LinesGrowWithThePicture) {
    build::Link(build::Node(), build::Node({ 100, 0 }));
    for (const CanvasCall& call : Picture(4)) EXPECT_TRUE(!call.Draws() || call.penWidth >= 4) << call.name;
}

TEST_F(MapPictureTest, WhatTheBarsOfTheWindowHideIsInThePicture) {
    app::settings.showLatLongGrid = true;
    map::SetVisible({ 0, 60, kWidth, kHeight - 20 });
    Scale(0.05);
    const auto lowest = [](const std::vector<CanvasCall>& calls) {
        int32_t y = 0;
        for (const CanvasCall& call : calls) {
            if (call.name == "text") y = std::max(y, call.run.at.y);
        }
        return y;
    };
    map::SetVisible({ 0, 60, kWidth, kHeight - 20 });
    const map::PixelBox before = map::view.visible;
    EXPECT_GT(lowest(Picture(1)), kHeight - 20) << "the labels stand at the edge of the picture";
    EXPECT_EQ(map::view.visible.top, before.top);
    EXPECT_EQ(map::view.visible.bottom, before.bottom);
}

TEST_F(MapPictureTest, TheViewIsAsBeforeAndTheScreenIsPaintedAgain) {
    map::view.rotation = 1.25;
    const map::MapView before = map::view;
    fake.repaints = 0;
    Picture(4);
    ExpectViewAsBefore(before);
}
