#include "platform/CanvasSvg.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "fakes/RecordingCanvas.h"

namespace {

using namespace platform;

bool Holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

TEST(CanvasSvg, TheDocumentHasTheSizeOfThePicture) {
    const std::string svg = SvgDocument(320, 200, [](Canvas*) {});
    EXPECT_TRUE(svg.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));
    EXPECT_TRUE(Holds(svg, "width=\"320\" height=\"200\" viewBox=\"0 0 320 200\""));
    EXPECT_TRUE(svg.ends_with("</svg>\n"));
}

TEST(CanvasSvg, AFigureHasTheColoursOfPenAndBrush) {
    const std::string svg = SvgDocument(10, 10, [](Canvas* canvas) {
        SetPen(canvas, 3, Rgb(1, 2, 255));
        SetBrush(canvas, Rgb(16, 32, 48));
        DrawPolygon(canvas, std::array{ Pixel{ 0, 0 }, Pixel{ 5, 0 }, Pixel{ 5, -5 } });
    });
    EXPECT_TRUE(
        Holds(svg, "<polygon points=\"0,0 5,0 5,-5\" fill=\"#102030\" stroke=\"#0102ff\" stroke-width=\"3\"/>"));
}

TEST(CanvasSvg, NoPenAndNoBrushAreNone) {
    const std::string svg = SvgDocument(10, 10, [](Canvas* canvas) {
        SetPen(canvas, kNoPen, 0);
        SetBrush(canvas, kNoBrush);
        DrawCircle(canvas, { 4, 5 }, 3);
    });
    EXPECT_TRUE(Holds(svg, "<ellipse cx=\"4.00\" cy=\"5.00\" rx=\"3.00\" ry=\"3.00\" fill=\"none\" stroke=\"none\"/>"));
}

TEST(CanvasSvg, LinesAreNeverFilled) {
    const std::string svg = SvgDocument(10, 10, [](Canvas* canvas) {
        SetPen(canvas, 1, 0);
        SetBrush(canvas, 0);
        DrawLine(canvas, { 1, 2 }, { 3, 4 });
        DrawPolyline(canvas, std::array{ Pixel{ 0, 0 }, Pixel{ 5, 0 }, Pixel{ 5, 5 } });
    });
    EXPECT_TRUE(Holds(svg, "<path d=\"M1,2L3,4\" fill=\"none\""));
    EXPECT_TRUE(Holds(svg, "<polyline points=\"0,0 5,0 5,5\" fill=\"none\""));
}

TEST(CanvasSvg, PathsKeepTheirCurvesAndFigures) {
    const std::string svg = SvgDocument(10, 10, [](Canvas* canvas) {
        Path path;
        MoveTo(&path, { 0, 0 });
        LineTo(&path, { 9, 0 });
        CurveTo(&path, { 9, 3 }, { 6, 6 }, { 0, 6 });
        ClosePath(&path);
        DrawPath(canvas, path);
    });
    EXPECT_TRUE(Holds(svg, "d=\"M0,0L9,0C9,3 6,6 0,6Z\""));
}

TEST(CanvasSvg, ClipsNestAndHaveIdsOfTheirOwn) {
    const std::string svg = SvgDocument(10, 10, [](Canvas* canvas) {
        Path path;
        MoveTo(&path, { 0, 0 });
        LineTo(&path, { 9, 0 });
        LineTo(&path, { 9, 9 });
        ClosePath(&path);
        PushClip(canvas, path);
        PushClip(canvas, path);
        PopClip(canvas);
        PopClip(canvas);
    });
    EXPECT_TRUE(Holds(svg, "<clipPath id=\"clip1\"><path d=\"M0,0L9,0L9,9Z\"/></clipPath>"));
    EXPECT_TRUE(Holds(svg, "clip-path=\"url(#clip2)\""));
    size_t opened = 0, closed = 0;
    for (size_t at = 0; (at = svg.find("<g", at)) != std::string::npos; ++at) ++opened;
    for (size_t at = 0; (at = svg.find("</g>", at)) != std::string::npos; ++at) ++closed;
    EXPECT_EQ(opened, closed);
}

TEST(CanvasSvg, TextIsEscapedPlacedAndTurned) {
    const std::string svg = SvgDocument(10, 10, [](Canvas* canvas) {
        TextRun run;
        run.text = "A<B>&\x01";
        run.at = { 7, 8 };
        run.alignX = AlignX::Centre;
        run.bold = true;
        run.angle = 3.14159265358979323846 / 2;
        run.colour = Rgb(255, 0, 0);
        DrawText(canvas, run);
    });
    EXPECT_TRUE(Holds(svg, ">A&lt;B&gt;&amp;?</text>"));
    EXPECT_TRUE(Holds(svg, "text-anchor=\"middle\" font-weight=\"bold\" transform=\"rotate(90.00 7 8)\""));
    EXPECT_TRUE(Holds(svg, "fill=\"#ff0000\""));
}

TEST(Canvas, SelectingThePenOrBrushInForceDoesNothing) {
    RecordingCanvas log;
    SetPen(&log.canvas, 1, 5);
    SetPen(&log.canvas, 1, 5);
    SetBrush(&log.canvas, 6);
    SetBrush(&log.canvas, 6);
    SetPen(&log.canvas, 2, 5);
    SetPen(&log.canvas, 2, 7);
    SetBrush(&log.canvas, kNoBrush);
    EXPECT_EQ(log.Drawn("pen").size(), 3u);
    EXPECT_EQ(log.Drawn("brush").size(), 2u);
}

TEST(Canvas, TheFirstBrushIsSelectedWhateverItIs) {
    RecordingCanvas log;
    SetBrush(&log.canvas, 0);
    EXPECT_EQ(log.Drawn("brush").size(), 1u);
}

TEST(Canvas, NoPenIsThinnerThanTheThinnest) {
    RecordingCanvas log;
    log.canvas.thinnestPen = 3;
    for (int width : { 1, 3, 5, platform::kNoPen }) SetPen(&log.canvas, width, static_cast<platform::Colour>(width));
    std::vector<int> widths;
    for (const CanvasCall& call : log.calls) widths.push_back(call.penWidth);
    EXPECT_EQ(widths, (std::vector<int>{ 3, 3, 5, platform::kNoPen }));
}

TEST(Canvas, NoPenHasNoColour) {
    RecordingCanvas log;
    SetPen(&log.canvas, kNoPen, 1);
    SetPen(&log.canvas, kNoPen, 2);
    EXPECT_EQ(log.Drawn("pen").size(), 1u);
}

TEST(Canvas, FiguresWithTooFewPointsAreNotDrawn) {
    RecordingCanvas log;
    DrawPolyline(&log.canvas, std::array{ Pixel{ 0, 0 } });
    DrawPolygon(&log.canvas, std::array{ Pixel{ 0, 0 }, Pixel{ 1, 1 } });
    DrawPath(&log.canvas, {});
    DrawText(&log.canvas, {});
    EXPECT_TRUE(log.calls.empty());
}

}  // namespace
