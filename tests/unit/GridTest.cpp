#include "map/Grid.h"

#include <gtest/gtest.h>

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
    view.centre.lat = 0.0001;
    RecordingCanvas log;
    Paint(&log);
    EXPECT_EQ(log.StrokedWith(InkOf(Ink::GridLine)).size(), 7u + 5u);
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

}  // namespace
