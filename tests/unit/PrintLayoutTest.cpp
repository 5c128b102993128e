// PrintLayoutTest.cpp - scale, box, clip, pens and title of the printed page.
#include "map/PrintLayout.h"

#include <algorithm>
#include <cmath>

#include "fakes/MapFixture.h"

namespace {

using map::Paper;
using map::PrintDevice;
using map::PrintPage;
using map::PrintSettings;

constexpr double kFeet = model::kFeetPerMetre;

// A fine printer with a sheet of A4.
constexpr PrintDevice kA4Printer = { 4958, 7016, 150, 150, 4658, 6716, 600, 600 };

PrintSettings MetricPage() {
    PrintSettings settings;
    settings.paper = map::UsualPaper(true);
    return settings;
}

// The view of the fixture shows 1600 m x 1200 m.
struct PrintLayoutTest : MapFixture {
    void SetUp() override {
        MapFixture::SetUp();
        app::settings.metric = true;
        Open();
    }
    static PrintPage Fitted(PrintSettings* settings) {
        map::FitPrintScale(settings);
        return map::PlanPage(*settings, kA4Printer);
    }
    static PrintPage AtScale(PrintSettings* settings, double scale) {
        settings->fitPage = false;
        settings->printScale = scale;
        return Fitted(settings);
    }
};

platform::Pixel CentreOf(const CanvasCall& ellipse) {
    return { (ellipse.points[0].x + ellipse.points[1].x) / 2, (ellipse.points[0].y + ellipse.points[1].y) / 2 };
}

// In the order of the object list.
std::vector<platform::Pixel> NodesOn(const RecordingCanvas& log) {
    std::vector<platform::Pixel> centres;
    for (const CanvasCall& call : log.FilledWith(map::InkOf(map::Ink::Node))) {
        if (call.name == "ellipse") centres.push_back(CentreOf(call));
    }
    return centres;
}

}  // namespace

TEST_F(PrintLayoutTest, AWideViewOnATallPageIsLimitedByItsWidth) {
    app::settings.metric = false;
    PrintSettings settings;
    settings.paper = map::UsualPaper(false);
    map::FitPrintScale(&settings);
    EXPECT_NEAR(settings.printScale, 1600 * kFeet / 6.5, 1e-6);
    std::swap(settings.paper.width, settings.paper.height);
    map::FitPrintScale(&settings);
    EXPECT_NEAR(settings.printScale, 1200 * kFeet / 6.5, 1e-6) << "now the height limits";
}

TEST_F(PrintLayoutTest, GroundAndPaperUnitsAreIndependent) {
    PrintSettings settings = MetricPage();
    map::FitPrintScale(&settings);
    EXPECT_NEAR(settings.printScale, 100, 1e-9);
    EXPECT_EQ(map::ScaleLabel(settings.paper), "S&cale (m/cm):");
    EXPECT_EQ(map::ScaleLabel(map::UsualPaper(false)), "S&cale (m/in):");
    app::settings.metric = false;
    map::FitPrintScale(&settings);
    EXPECT_NEAR(settings.printScale, 100 * kFeet, 1e-6);
    EXPECT_EQ(map::ScaleLabel(settings.paper), "S&cale (ft/cm):");
    EXPECT_EQ(map::ScaleLabel(map::UsualPaper(false)), "S&cale (ft/in):");
}

TEST_F(PrintLayoutTest, AScaleThatWasChosenStaysUntilFitIsAskedFor) {
    PrintSettings settings = MetricPage();
    AtScale(&settings, 250);
    Scale(2);
    map::FitPrintScale(&settings);
    EXPECT_EQ(map::ScaleText(settings), "250");
    settings.fitPage = true;
    map::FitPrintScale(&settings);
    EXPECT_EQ(map::ScaleText(settings), "25");
}

TEST_F(PrintLayoutTest, NoViewGivesAScaleBelowEight) {
    PrintSettings settings = MetricPage();
    Scale(1000);
    map::FitPrintScale(&settings);
    EXPECT_EQ(settings.printScale, map::kLeastPrintScale);
    Scale(1e-300);
    map::FitPrintScale(&settings);
    EXPECT_EQ(map::ScaleText(settings), "4294967295");
}

TEST_F(PrintLayoutTest, ASpanOfNothingBecomesTheFirstOne) {
    PrintSettings settings = MetricPage();
    map::view.span = 0;
    map::ResizeView(kWidth, kHeight);
    map::FitPrintScale(&settings);
    EXPECT_EQ(map::view.span, map::kInitialSpan);
    EXPECT_NEAR(settings.printScale, map::kInitialSpan * kWidth / kHeight / 16, 1e-6);
}

TEST_F(PrintLayoutTest, TheFittedViewFillsTheMarginsInOneDirectionAndIsCentredInTheOther) {
    PrintSettings settings = MetricPage();
    const PrintPage page = Fitted(&settings);
    EXPECT_EQ(page.box.left, std::lround(2.5 * 4958 / 21 - 150));
    EXPECT_EQ(page.box.right, std::lround(18.5 * 4958 / 21 - 150));
    EXPECT_EQ(page.box.top, std::lround((29.7 / 2 - 6) * 7016 / 29.7 - 150));
    EXPECT_EQ(page.box.bottom, std::lround((29.7 / 2 + 6) * 7016 / 29.7 - 150));
    EXPECT_NEAR(page.pixelsPerMetre, (4958 / 21.0 + 7016 / 29.7) / 2 / 100, 1e-9);
}

TEST_F(PrintLayoutTest, AtALargeScaleTheMarginsCutTheView) {
    PrintSettings settings = MetricPage();
    const PrintPage page = AtScale(&settings, 10);
    EXPECT_EQ(page.box.left, std::lround(2.5 * 4958 / 21 - 150));
    EXPECT_EQ(page.box.right, std::lround(18.5 * 4958 / 21 - 150));
    EXPECT_EQ(page.box.top, std::lround(2.5 * 7016 / 29.7 - 150));
    EXPECT_EQ(page.box.bottom, std::lround(27.2 * 7016 / 29.7 - 150));
}

TEST_F(PrintLayoutTest, AtASmallScaleTheViewLiesInTheMiddle) {
    PrintSettings settings = MetricPage();
    const PrintPage page = AtScale(&settings, 400);
    EXPECT_EQ(page.box.left, std::lround((10.5 - 2) * 4958 / 21 - 150));
    EXPECT_EQ(page.box.right, std::lround((10.5 + 2) * 4958 / 21 - 150));
}

TEST_F(PrintLayoutTest, NothingReachesBeyondWhatThePrinterCanReach) {
    PrintSettings settings = MetricPage();
    settings.paper.left = settings.paper.top = settings.paper.right = settings.paper.bottom = 0;
    const PrintPage page = AtScale(&settings, 10);
    EXPECT_EQ(page.box, (platform::PixelRect{ 0, 0, 4658, 6716 }));
}

TEST_F(PrintLayoutTest, WithoutRoomNothingIsDrawn) {
    PrintSettings settings = MetricPage();
    settings.printBorder = settings.printTitle = true;
    settings.paper.left = 30;
    const PrintPage page = Fitted(&settings);
    EXPECT_TRUE(map::IsEmpty(page));
    RecordingCanvas log;
    map::PaintPage(&log.canvas, page);
    map::PaintPageFrame(&log.canvas, page, settings);
    EXPECT_TRUE(log.calls.empty());
    settings.paper = {};
    EXPECT_TRUE(map::IsEmpty(Fitted(&settings)));
}

TEST_F(PrintLayoutTest, AThousandMetresAreWhatTheScaleSays) {
    build::Node({ 0, -500 });
    build::Node({ 0, 500 });
    PrintSettings settings = MetricPage();
    const PrintPage page = Fitted(&settings);
    RecordingCanvas log;
    map::PaintPage(&log.canvas, page);
    const std::vector<platform::Pixel> centres = NodesOn(log);
    ASSERT_EQ(centres.size(), 2u);
    const double pixels = 10 * 600 / 2.54;  // 1000 m at 100 m to the centimetre
    EXPECT_NEAR(centres[0].y - centres[1].y, pixels, pixels * 0.0005 + 1);
    EXPECT_NEAR((centres[0].y + centres[1].y) / 2.0, (page.box.bottom - page.box.top) / 2.0, 1.5) << "in the middle";
    EXPECT_NEAR(centres[0].x, (page.box.right - page.box.left) / 2.0, 1.5);
}

// Sixteen pairs of nodes 1000 m apart, each pair a little farther north, on a page of 3000 pixels to the 1000 m.
TEST_F(PrintLayoutTest, TheScaleIsExactToHalfAPixel) {
    for (int i = 0; i < 16; ++i) {
        build::Node({ i * 40.0 - 300, -500 + i * 0.02 });
        build::Node({ i * 40.0 - 300, 500 + i * 0.02 });
    }
    PrintSettings settings;
    settings.paper = map::UsualPaper(false);
    settings.fitPage = false;
    settings.printScale = 200;
    for (const double rotation : { 0.0, 0.7, 3.1 }) {
        map::view.rotation = rotation;
        RecordingCanvas log;
        map::PaintPage(&log.canvas, map::PlanPage(settings, { 5100, 6600, 0, 0, 5100, 6600, 600, 600 }));
        const std::vector<platform::Pixel> nodes = NodesOn(log);
        ASSERT_EQ(nodes.size(), 32u);
        double sum = 0;
        for (size_t i = 0; i < nodes.size(); i += 2) {
            const double dx = nodes[i].x - nodes[i + 1].x, dy = nodes[i].y - nodes[i + 1].y;
            const double distance = std::sqrt(dx * dx + dy * dy);
            EXPECT_NEAR(distance, 3000, 1.5) << "each end is a whole pixel";
            sum += distance;
        }
        EXPECT_NEAR(sum / 16, 3000, 0.5) << rotation;
    }
}

TEST_F(PrintLayoutTest, LabelsKeepClearOfOneAnotherOnPaper) {
    app::settings.showLabels = 1;
    for (uint32_t i = 0; i < 36; ++i) build::Spot({ (i % 6) * 20.0 - 60, (i / 6) * 20.0 - 60 });
    const auto labels = [](const RecordingCanvas& log) { return log.Drawn("text").size(); };
    PrintSettings settings = MetricPage();
    RecordingCanvas screen, paper;
    Paint(&screen);
    map::PaintPage(&paper.canvas, Fitted(&settings));
    ASSERT_GT(labels(screen), 0u);
    ASSERT_LT(labels(screen), 36u) << "the labels do not crowd";
    EXPECT_LT(labels(paper), 36u) << "letters are six times as large there as on the screen";
}

TEST_F(PrintLayoutTest, WhatHasASizeOnTheScreenHasOneOnPaper) {
    build::Marker();
    PrintSettings settings = MetricPage();
    const PrintPage page = Fitted(&settings);
    RecordingCanvas screen, paper;
    Paint(&screen);
    map::PaintPage(&paper.canvas, page);
    const auto width = [](const RecordingCanvas& log) {
        const CanvasCall line = log.StrokedWith(map::InkOf(map::Ink::Marker)).back();
        return std::max(std::abs(line.points[0].x - line.points[1].x), std::abs(line.points[0].y - line.points[1].y));
    };
    ASSERT_EQ(width(screen), 10);
    EXPECT_NEAR(width(paper), 10 * page.textScale, 1.5);
    RecordingCanvas sample;
    map::PaintPage(&sample.canvas, map::PlanPage(settings, map::SampleDevice(settings.paper, 210, 297)));
    EXPECT_NEAR(width(sample), 10 * 25 / 96.0, 1.5) << "the page in miniature";
}

TEST_F(PrintLayoutTest, TheSampleIsASheetOfFewPixels) {
    const PrintDevice device = map::SampleDevice(map::UsualPaper(true), 210, 297);
    EXPECT_EQ(device.sheetWidth, 210);
    EXPECT_EQ(device.height, 297);
    EXPECT_EQ(device.left, 0);
    EXPECT_EQ(device.perInchX, 25);
    EXPECT_EQ(device.perInchY, 25);
    EXPECT_EQ(map::SampleDevice(map::UsualPaper(false), 85, 110).perInchY, 10);
    EXPECT_EQ(map::SampleDevice({}, 85, 110).perInchY, 100000) << "a paper of no size";
}

TEST_F(PrintLayoutTest, TheMapIsClippedToItsBox) {
    build::Node();
    PrintSettings settings = MetricPage();
    const PrintPage page = Fitted(&settings);
    RecordingCanvas log;
    map::PaintPage(&log.canvas, page);
    ASSERT_FALSE(log.calls.empty());
    ASSERT_EQ(log.calls.front().name, "clip");
    const int32_t right = page.box.right - page.box.left, bottom = page.box.bottom - page.box.top;
    const std::vector<platform::Pixel> corners = { { 0, 0 }, { right, 0 }, { right, bottom }, { 0, bottom } };
    EXPECT_EQ(log.calls.front().path.points, corners);
    EXPECT_EQ(log.calls.back().name, "unclip");
    for (const CanvasCall& call : log.Drawn()) EXPECT_GE(call.clipDepth, 1);
}

TEST_F(PrintLayoutTest, LinesStayVisibleOnAFinePrinter) {
    PrintSettings settings = MetricPage();
    EXPECT_EQ(Fitted(&settings).penWidth, 3);
    EXPECT_EQ(AtScale(&settings, 500).penWidth, 1);  // 0.47 pixels a metre
    EXPECT_EQ(AtScale(&settings, 350).penWidth, 2);  // 0.67
    EXPECT_EQ(AtScale(&settings, 50000).penWidth, 1);
    build::Link(build::Node(), build::Node({ 100, 0 }));
    const PrintPage page = AtScale(&settings, 100);
    RecordingCanvas log;
    map::PaintPage(&log.canvas, page);
    for (const CanvasCall& call : log.calls) EXPECT_GE(call.penWidth, 3) << call.name;
    EXPECT_EQ(log.canvas.thinnestPen, 1) << "for whatever is drawn next";
}

TEST_F(PrintLayoutTest, TheBorderIsOnePixelOfBlackAroundTheBox) {
    PrintSettings settings = MetricPage();
    const PrintPage page = Fitted(&settings);
    RecordingCanvas none;
    map::PaintPageFrame(&none.canvas, page, settings);
    EXPECT_TRUE(none.calls.empty());
    settings.printBorder = true;
    RecordingCanvas log;
    map::PaintPageFrame(&log.canvas, page, settings);
    ASSERT_EQ(log.Drawn().size(), 1u);
    const CanvasCall border = log.Drawn()[0];
    EXPECT_EQ(border.penWidth, 1);
    EXPECT_EQ(border.pen, 0u);
    EXPECT_EQ(border.brush, platform::kNoBrush);
    const int32_t right = page.box.right - page.box.left - 1, bottom = page.box.bottom - page.box.top - 1;
    const std::vector<platform::Pixel> corners = { { 0, 0 }, { right, 0 }, { right, bottom }, { 0, bottom } };
    EXPECT_EQ(border.points, corners);
}

TEST_F(PrintLayoutTest, TheTitleTellsAirportAndScale) {
    model::SetAirportName("Z\xFCrich");
    PrintSettings settings = MetricPage();
    settings.printTitle = true;
    const PrintPage page = AtScale(&settings, 123.6);
    RecordingCanvas log;
    map::PaintPageFrame(&log.canvas, page, settings);
    ASSERT_EQ(log.Drawn().size(), 1u);
    const CanvasCall title = log.Drawn()[0];
    EXPECT_EQ(title.text, "KTST  Z\xC3\xBCrich,  Scale: 124 m/cm");
    EXPECT_EQ(title.run.at, (platform::Pixel{ 8, 5 }));
    EXPECT_EQ(title.run.height, -83) << "ten points at 600 to the inch";
    EXPECT_EQ(title.run.colour, 0u);
    EXPECT_FALSE(title.run.bold);
}

TEST_F(PrintLayoutTest, TheViewIsAsBefore) {
    map::view.rotation = 1.25;
    map::view.centre.lat += 0.001;
    map::view.lastDragPoint = { 7, 9 };
    const map::MapView before = map::view;
    PrintSettings settings = MetricPage();
    const PrintPage page = Fitted(&settings);
    RecordingCanvas log;
    fake.repaints = 0;
    map::PaintPage(&log.canvas, page);
    ExpectViewAsBefore(before);
}

TEST_F(PrintLayoutTest, TheGridIsAsWideOnPaperAsOnTheScreen) {
    app::settings.showLatLongGrid = true;
    PrintSettings settings = MetricPage();
    const auto labels = [](const RecordingCanvas& log) { return log.Drawn("text").size(); };
    Scale(0.05);
    RecordingCanvas screen, paper;
    Paint(&screen);
    map::PaintPage(&paper.canvas, Fitted(&settings));
    ASSERT_GT(labels(screen), 0u);
    EXPECT_LE(labels(paper), labels(screen));
}

TEST_F(PrintLayoutTest, AScaleIsReadAsAWholeNumberOfAtLeastEight) {
    EXPECT_EQ(map::ScaleFromText("250"), 250);
    EXPECT_EQ(map::ScaleFromText("  250 "), 250);
    EXPECT_EQ(map::ScaleFromText("12.9"), 12);
    EXPECT_EQ(map::ScaleFromText("8"), 8);
    for (const char* text : { "7", "0", "", "   ", "-20", "many" }) EXPECT_EQ(map::ScaleFromText(text), 8) << text;
    EXPECT_EQ(map::ScaleFromText("99999999999999999999"), 4294967295.0);
}

TEST_F(PrintLayoutTest, ThePaperIsWhatThePageSetupTells) {
    const Paper paper = map::PaperFrom({ 21590, 27940, 1000, 1100, 1200, 1300 }, true);
    EXPECT_TRUE(paper.metric);
    EXPECT_DOUBLE_EQ(paper.width, 21.59);
    EXPECT_DOUBLE_EQ(paper.height, 27.94);
    EXPECT_DOUBLE_EQ(paper.left, 1);
    EXPECT_DOUBLE_EQ(paper.top, 1.1);
    EXPECT_DOUBLE_EQ(paper.right, 1.2);
    EXPECT_DOUBLE_EQ(paper.bottom, 1.3);
    EXPECT_DOUBLE_EQ(map::PaperFrom({ 8268, 11693, 0, 0, 0, 0 }, false).left, 1) << "no margins told";
    EXPECT_DOUBLE_EQ(map::PaperFrom({}, false).height, 11) << "no paper told";
    EXPECT_DOUBLE_EQ(map::PaperFrom({ 8268, 11693, 0, 500, 0, 0 }, false).left, 0) << "a margin may be nothing";
}

TEST_F(PrintLayoutTest, ThePageSetupGetsThePaperBackAsItToldIt) {
    for (const bool metric : { false, true }) {
        const map::PageSetupRecord record = map::RecordOf(map::PaperFrom({ 8268, 11693, 583, 0, 1001, 2999 }, metric));
        EXPECT_EQ(record.width, 8268);
        EXPECT_EQ(record.height, 11693);
        EXPECT_EQ(record.left, 583);
        EXPECT_EQ(record.top, 0);
        EXPECT_EQ(record.right, 1001);
        EXPECT_EQ(record.bottom, 2999);
    }
}

TEST_F(PrintLayoutTest, ThePaperIsMetricWhereTheSystemsMeasureIs) {
    EXPECT_TRUE(map::IsPaperMetric("0"));
    for (const char* measure : { "1", "", "2", "x" }) EXPECT_FALSE(map::IsPaperMetric(measure)) << measure;
}

TEST_F(PrintLayoutTest, ASheetChosenWithThePrinterTakesTheOthersPlace) {
    Paper paper = map::UsualPaper(true);
    map::TakeSheetOf(kA4Printer, &paper);
    EXPECT_DOUBLE_EQ(paper.width, 21.0) << "what differs by a rounding stays";
    PrintDevice turned = kA4Printer;
    std::swap(turned.sheetWidth, turned.sheetHeight);
    map::TakeSheetOf(turned, &paper);
    EXPECT_NEAR(paper.width, 29.7, 0.01);
    EXPECT_NEAR(paper.height, 21.0, 0.02);
    Paper inches = map::UsualPaper(false);
    map::TakeSheetOf(kA4Printer, &inches);
    EXPECT_NEAR(inches.width, 4958 / 600.0, 1e-9);
    map::TakeSheetOf({}, &inches);
    EXPECT_NEAR(inches.width, 0, 1e-9);
}
