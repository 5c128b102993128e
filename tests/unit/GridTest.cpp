#include "map/Grid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "fakes/MapFixture.h"

namespace {

using namespace map;

// On the equator a minute of longitude is 1852.1759 m, so the scale is easily set.
class GridTest : public MapFixture {
protected:
    void SetUp() override {
        MapFixture::SetUp();
        view.centre = view.home = {};
        app::settings.showLatLongGrid = true;
    }
    static void PixelsPerMinute(double pixels) { Scale(pixels / 1852.1759); }

    // Of a point to the nearest one between the ends.
    static double DistanceToLine(platform::Pixel at, platform::Pixel from, platform::Pixel to) {
        const double dx = to.x - from.x, dy = to.y - from.y, x = at.x - from.x, y = at.y - from.y;
        const double share = std::clamp((x * dx + y * dy) / (dx * dx + dy * dy), 0.0, 1.0);
        return std::hypot(x - share * dx, y - share * dy);
    }

    // Positions are cut to whole pixels, so a line may lie one lower than it should.
    static void ExpectPixels(const std::vector<int>& found, const std::vector<int>& expected) {
        ASSERT_EQ(found.size(), expected.size());
        for (size_t i = 0; i < found.size(); ++i)
            EXPECT_TRUE(found[i] == expected[i] || found[i] == expected[i] - 1) << found[i];
    }
};

TEST_F(GridTest, TheStepComesFromTheSetting) {
    constexpr int kSteps[] = { 60, 30, 20, 15, 12, 10, 6, 5, 4, 3 };
    PixelsPerMinute(1000);
    for (int i = 0; i < 10; ++i) {
        app::settings.latLongGridDivs = i;
        EXPECT_EQ(ChooseGridSpacing().step, kSteps[i]);
    }
}

TEST_F(GridTest, AnUnknownSettingMeansThirtySeconds) {
    PixelsPerMinute(1000);
    for (const int bad : { -1, 10, 4711 }) {
        app::settings.latLongGridDivs = bad;
        EXPECT_EQ(ChooseGridSpacing().step, 30);
    }
}

TEST_F(GridTest, LinesCloserThanSixteenPixelsGiveWayToMinutes) {
    PixelsPerMinute(32.1);
    EXPECT_EQ(ChooseGridSpacing().step, 30);
    PixelsPerMinute(31.9);
    EXPECT_EQ(ChooseGridSpacing().step, 60);
}

TEST_F(GridTest, MinutesCloserThanSixteenPixelsGiveWayToDegrees) {
    PixelsPerMinute(15.9);
    EXPECT_EQ(ChooseGridSpacing().step, 3600);
}

TEST_F(GridTest, TheSpacingIsMeasuredAtTheLatitudeOfTheCentre) {
    PixelsPerMinute(40);
    EXPECT_EQ(ChooseGridSpacing().step, 30);
    view.centre.lat = 60 * model::kRadiansPerDegree;  // half as wide
    EXPECT_EQ(ChooseGridSpacing().step, 60);
}

TEST_F(GridTest, LabelsTakeTheLargestRoundStepBelowHalfTheHeight) {
    PixelsPerMinute(240);  // 600 pixels are 150 seconds
    EXPECT_EQ(ChooseGridSpacing().labelStep, 60);
    PixelsPerMinute(320);  // 112 seconds
    EXPECT_EQ(ChooseGridSpacing().labelStep, 30);
}

TEST_F(GridTest, LabelsStayWholeMultiplesOfTheGrid) {
    app::settings.latLongGridDivs = 3;  // 15 seconds
    PixelsPerMinute(400);               // half the height is 45 seconds
    EXPECT_EQ(ChooseGridSpacing().labelStep, 30);
    PixelsPerMinute(1100);  // half the height is 16 seconds
    EXPECT_EQ(ChooseGridSpacing().labelStep, 15);
}

TEST_F(GridTest, LabelledLinesAreSeventyPixelsApart) {
    app::settings.latLongGridDivs = 0;
    PixelsPerMinute(20);
    const GridSpacing spacing = ChooseGridSpacing();
    EXPECT_EQ(spacing.step, 60);
    EXPECT_GE(spacing.labelStep / 60.0 * 20, 70);
    EXPECT_EQ(spacing.labelStep % spacing.step, 0);
}

TEST_F(GridTest, LabelsOfMinutesAndDegreesStandAtRoundParts) {
    PixelsPerMinute(21);  // half the height is 14 minutes and a bit
    EXPECT_EQ(ChooseGridSpacing().step, 60);
    EXPECT_EQ(ChooseGridSpacing().labelStep, 720);  // a fifth of a degree
    PixelsPerMinute(15.9);                          // half the height is 19 minutes
    EXPECT_EQ(ChooseGridSpacing().labelStep, 3600);
    PixelsPerMinute(0.5);  // a degree is 30 pixels: three make room for a label
    EXPECT_EQ(ChooseGridSpacing().labelStep, 10800);
}

TEST_F(GridTest, DecimalLabelsShowTenthsOrHundredthsOfMinutes) {
    EXPECT_EQ(GridLabel(49 * 3600 + 15 * 60 + 30, 30), "49 15.5");
    EXPECT_EQ(GridLabel(49 * 3600 + 6, 6), "49 00.1");
    EXPECT_EQ(GridLabel(49 * 3600 + 5 * 60 + 15, 15), "49 05.25");
}

TEST_F(GridTest, LabelsInSecondsShowAllThreeParts) {
    app::settings.latLongGridDecimal = false;
    EXPECT_EQ(GridLabel(-(49 * 3600 + 5 * 60 + 6), 30), "49 05 06");
}

TEST_F(GridTest, LongitudesBeyondTheDateLineCountBack) { EXPECT_EQ(GridLabel(181 * 3600, 3600), "179 00.0"); }

TEST_F(GridTest, LinesAreDrawnAtWholeMultiplesOfTheStep) {
    Open();
    PixelsPerMinute(240);  // 800 pixels are 200 seconds, 600 are 150: lines at -90 to 90 and -60 to 60
    RecordingCanvas log;
    Paint(&log);
    std::vector<int> parallels, meridians;  // where they cross the left and the upper edge
    for (const CanvasCall& line : log.StrokedWith(InkOf(Ink::GridLine))) {
        ASSERT_EQ(line.points.size(), 2u);
        const platform::Pixel from = line.points[0], to = line.points[1];
        if (from.y == to.y)
            parallels.push_back(from.y);
        else if (from.x == to.x)
            meridians.push_back(from.x);
        else
            ADD_FAILURE() << "a slanting line from " << from.x << ' ' << from.y << " to " << to.x << ' ' << to.y;
    }
    std::sort(parallels.begin(), parallels.end());
    std::sort(meridians.begin(), meridians.end());
    // Thirty seconds are 120 pixels, and the middle is the equator and the prime meridian.
    ExpectPixels(parallels, { 60, 180, 300, 420, 540 });
    ExpectPixels(meridians, { 40, 160, 280, 400, 520, 640, 760 });
}

TEST_F(GridTest, OffTheEquatorMeridiansAreCloserThanParallels) {
    Open();
    PixelsPerMinute(240);
    view.centre.lat = 60 * model::kRadiansPerDegree;
    RecordingCanvas log;
    Paint(&log);
    // A minute of longitude is 120 pixels here, so half a minute is 60; meridians lean but little.
    std::vector<double> crossings;  // of the row of pixels in the middle
    for (const CanvasCall& line : log.StrokedWith(InkOf(Ink::GridLine))) {
        const platform::Pixel from = line.points.front(), to = line.points.back();
        if (std::abs(to.y - from.y) < 300) continue;
        crossings.push_back(from.x + (to.x - from.x) * (300.0 - from.y) / (to.y - from.y));
    }
    std::sort(crossings.begin(), crossings.end());
    ASSERT_GE(crossings.size(), 5u);
    for (size_t i = 1; i < crossings.size(); ++i) EXPECT_NEAR(crossings[i] - crossings[i - 1], 60, 1.5) << i;
    const auto middle = std::min_element(crossings.begin(), crossings.end(),
                                         [](double a, double b) { return std::abs(a - 400) < std::abs(b - 400); });
    EXPECT_NEAR(*middle, 400, 1.5);
}

// The two corners of a diagonal would leave the others bare.
TEST_F(GridTest, OnATurnedMapLinesReachEveryCorner) {
    Open();
    PixelsPerMinute(240);  // thirty seconds are 120 pixels
    view.rotation = model::kPi / 4;
    RecordingCanvas log;
    Paint(&log);
    for (const platform::Pixel corner :
         { platform::Pixel{ 0, 0 }, { kWidth, 0 }, { kWidth, kHeight }, { 0, kHeight } }) {
        double nearest = 1e9;
        for (const CanvasCall& line : log.StrokedWith(InkOf(Ink::GridLine)))
            nearest = std::min(nearest, DistanceToLine(corner, line.points.front(), line.points.back()));
        EXPECT_LT(nearest, 120) << corner.x << ' ' << corner.y;
    }
}

TEST_F(GridTest, LabelsStandAtTheLeftAndTheBottom) {
    Open();
    PixelsPerMinute(240);
    RecordingCanvas log;
    Paint(&log);
    int left = 0, bottom = 0;
    for (const CanvasCall& call : log.Drawn("text")) {
        if (call.points[0].x < 10)
            ++left;
        else if (call.points[0].y > 580)
            ++bottom;
        else
            ADD_FAILURE() << call.text;
    }
    EXPECT_GE(left, 2);
    EXPECT_GE(bottom, 3);
}

TEST_F(GridTest, AHiddenGridDrawsNothing) {
    Open();
    app::settings.showLatLongGrid = false;
    RecordingCanvas log;
    Paint(&log);
    EXPECT_TRUE(log.StrokedWith(InkOf(Ink::GridLine)).empty());
    EXPECT_TRUE(log.Drawn("text").empty());
}

TEST_F(GridTest, AViewOfTheWholeEarthStillHasFewLines) {
    Open();
    for (const double span : { 1e6, 1e8, 1e12, 1e300 }) {
        view.span = span;
        ResizeView(kWidth, kHeight);
        RecordingCanvas log;
        Paint(&log);
        EXPECT_LE(log.StrokedWith(InkOf(Ink::GridLine)).size(), 5000u) << span;
    }
}

TEST_F(GridTest, AViewOfNoPlaceOnEarthHasNoLines) {
    Open();
    for (const double latitude : { 3.0, -3.0, 1e20, -1e20 }) {
        view.centre.lat = latitude;
        RecordingCanvas log;
        Paint(&log);
        EXPECT_TRUE(log.StrokedWith(InkOf(Ink::GridLine)).empty()) << latitude;
    }
}

TEST_F(GridTest, LabelsStandWhereTheBarsLeaveThemInSight) {
    PixelsPerMinute(200);
    Open();
    const auto lowest = [] {
        RecordingCanvas log;
        Paint(&log);
        int y = 0;
        for (const CanvasCall& call : log.Drawn("text")) y = std::max(y, call.points[0].y);
        return y;
    };
    EXPECT_GT(lowest(), kHeight - 10);
    SetVisible({ 0, 60, kWidth, kHeight - 40 });
    EXPECT_LT(lowest(), kHeight - 40);
    EXPECT_GT(lowest(), kHeight - 50);
}

}  // namespace
