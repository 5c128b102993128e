// ToolPictures.cpp - the toolbar's pictures, drawn in units of a 21 x 20 grid so that they are sharp at any resolution.
//
// What a tool makes has the colours that it has on the map by day.
#include <cmath>
#include <initializer_list>
#include <vector>

#include "app/Toolbar.h"

namespace app {

namespace {

using platform::Colour;
using platform::kNoBrush;
using platform::kNoPen;
using platform::Pixel;
using platform::Rgb;

constexpr Colour kInk = Rgb(60, 60, 64);
constexpr Colour kPaper = Rgb(255, 255, 255);
constexpr Colour kArrow = Rgb(45, 90, 190);

constexpr Colour kNormalNode = Rgb(110, 110, 255);
constexpr Colour kHoldShortNode = Rgb(255, 0, 0);
constexpr Colour kIlsHoldShortNode = Rgb(230, 230, 0);
constexpr Colour kNormalLink = Rgb(140, 140, 255);
constexpr Colour kRunwayLink = Rgb(40, 40, 40);
constexpr Colour kApronLink = Rgb(0, 190, 0);
constexpr Colour kClosedCross = Rgb(250, 220, 0);
constexpr Colour kParkingFill = Rgb(160, 255, 160);
constexpr Colour kParkingOutline = Rgb(40, 170, 40);
constexpr Colour kApronSurface = Rgb(195, 195, 180);
constexpr Colour kLightStrip = Rgb(0, 0, 120);
constexpr Colour kBlueLamp = Rgb(60, 90, 255);
constexpr Colour kMarker = Rgb(200, 0, 160);
constexpr Colour kGuideline = Rgb(220, 80, 190);
constexpr Colour kPlus = Rgb(0, 140, 0);

struct Spot {
    double x, y;
};

struct Sheet {
    platform::Canvas* canvas;
    int unit;
    bool mirrored = false;  // left and right exchanged
};

Pixel At(const Sheet& sheet, Spot spot) {
    const double x = sheet.mirrored ? kPictureWidth - spot.x : spot.x;
    return { static_cast<int32_t>(std::lround(x * sheet.unit)),
             static_cast<int32_t>(std::lround(spot.y * sheet.unit)) };
}

// A width of 0 draws no outline.
void UsePen(const Sheet& sheet, double width, Colour colour) {
    const auto pixels = static_cast<int>(std::lround(width * sheet.unit));
    platform::SetPen(sheet.canvas, pixels > 0 ? pixels : kNoPen, colour);
}

void Line(const Sheet& sheet, Spot from, Spot to, double width, Colour colour) {
    UsePen(sheet, width, colour);
    platform::DrawLine(sheet.canvas, At(sheet, from), At(sheet, to));
}

void Area(const Sheet& sheet, std::initializer_list<Spot> corners, Colour fill, double width = 1, Colour ink = kInk) {
    std::vector<Pixel> pixels;
    for (Spot corner : corners) pixels.push_back(At(sheet, corner));
    UsePen(sheet, width, ink);
    platform::SetBrush(sheet.canvas, fill);
    platform::DrawPolygon(sheet.canvas, pixels);
}

void Box(const Sheet& sheet, Spot from, Spot to, Colour fill, double width = 1, Colour ink = kInk) {
    Area(sheet, { from, { to.x, from.y }, to, { from.x, to.y } }, fill, width, ink);
}

void Disc(const Sheet& sheet, Spot centre, double radius, Colour fill, double width = 1, Colour ink = kInk) {
    UsePen(sheet, width, ink);
    platform::SetBrush(sheet.canvas, fill);
    platform::DrawCircle(sheet.canvas, At(sheet, centre), static_cast<int>(std::lround(radius * sheet.unit)));
}

void Curve(const Sheet& sheet, Spot from, Spot control1, Spot control2, Spot to, double width, Colour colour) {
    platform::Path path;
    platform::MoveTo(&path, At(sheet, from));
    platform::CurveTo(&path, At(sheet, control1), At(sheet, control2), At(sheet, to));
    UsePen(sheet, width, colour);
    platform::SetBrush(sheet.canvas, kNoBrush);
    platform::DrawPath(sheet.canvas, path);
}

void DrawFolder(const Sheet& sheet) {
    constexpr Colour kBack = Rgb(226, 178, 74), kFront = Rgb(252, 216, 120), kEdge = Rgb(134, 98, 28);
    Area(sheet, { { 2, 4.5 }, { 7.5, 4.5 }, { 9.5, 6.5 }, { 17, 6.5 }, { 17, 16 }, { 2, 16 } }, kBack, 1, kEdge);
    Area(sheet, { { 2, 16 }, { 5, 9.5 }, { 19.5, 9.5 }, { 17, 16 } }, kFront, 1, kEdge);
}

void DrawDisk(const Sheet& sheet) {
    constexpr Colour kCase = Rgb(84, 118, 200), kEdge = Rgb(34, 54, 120), kMetal = Rgb(208, 212, 220);
    Area(sheet, { { 3, 3 }, { 15.5, 3 }, { 18, 5.5 }, { 18, 17 }, { 3, 17 } }, kCase, 1, kEdge);
    Box(sheet, { 6.5, 3 }, { 14, 7.5 }, kMetal, 0.7, kEdge);
    Box(sheet, { 11, 4 }, { 12.7, 6.5 }, kEdge, 0);
    Box(sheet, { 5.5, 10.5 }, { 15.5, 17 }, kPaper, 0.7, kEdge);
    Line(sheet, { 7.5, 12.7 }, { 13.5, 12.7 }, 0.7, kInk);
    Line(sheet, { 7.5, 14.8 }, { 13.5, 14.8 }, 0.7, kInk);
}

void DrawPrinter(const Sheet& sheet) {
    constexpr Colour kCase = Rgb(176, 180, 188), kLamp = Rgb(0, 190, 0);
    Box(sheet, { 6, 2.5 }, { 15, 9 }, kPaper);
    Area(sheet, { { 3.5, 8 }, { 17.5, 8 }, { 19, 9.5 }, { 19, 14.5 }, { 2, 14.5 }, { 2, 9.5 } }, kCase);
    Box(sheet, { 15.5, 9.7 }, { 17, 11 }, kLamp, 0);
    Box(sheet, { 5.5, 12 }, { 15.5, 17.5 }, kPaper);
    Line(sheet, { 7.5, 14 }, { 13.5, 14 }, 0.7, kInk);
    Line(sheet, { 7.5, 15.8 }, { 13.5, 15.8 }, 0.7, kInk);
}

void DrawTurn(Sheet sheet, bool mirrored) {
    sheet.mirrored = mirrored;
    Curve(sheet, { 6.5, 8.5 }, { 12, 5.5 }, { 17, 8.5 }, { 16, 15.5 }, 2.2, kArrow);
    Area(sheet, { { 2.8, 9.8 }, { 7.2, 4.2 }, { 9.6, 11.4 } }, kArrow, 0.4, kArrow);
}

void DrawMagnifier(const Sheet& sheet, bool plus) {
    constexpr Colour kGlass = Rgb(222, 238, 255), kHandle = Rgb(150, 100, 50);
    Line(sheet, { 12.8, 12.3 }, { 17.3, 16.8 }, 2.6, kHandle);
    Disc(sheet, { 9, 8.5 }, 5.6, kGlass, 1.4);
    Line(sheet, { 6.4, 8.5 }, { 11.6, 8.5 }, 1.5, kArrow);
    if (plus) Line(sheet, { 9, 5.9 }, { 9, 11.1 }, 1.5, kArrow);
}

void DrawPadlock(const Sheet& sheet) {
    constexpr Colour kBrass = Rgb(240, 200, 80), kEdge = Rgb(134, 98, 28);
    Line(sheet, { 7.2, 9.5 }, { 7.2, 7 }, 1.8, kInk);
    Line(sheet, { 13.8, 9.5 }, { 13.8, 7 }, 1.8, kInk);
    Curve(sheet, { 7.2, 7 }, { 7.2, 1.6 }, { 13.8, 1.6 }, { 13.8, 7 }, 1.8, kInk);
    Box(sheet, { 5, 9.2 }, { 16, 17.2 }, kBrass, 1, kEdge);
    Disc(sheet, { 10.5, 12.2 }, 1.2, kInk, 0);
    Line(sheet, { 10.5, 12.5 }, { 10.5, 14.6 }, 1, kInk);
}

void DrawPointer(const Sheet& sheet) {
    Area(sheet,
         { { 6, 2.5 }, { 6, 15.2 }, { 9, 12.4 }, { 11.2, 17.2 }, { 13.4, 16.2 }, { 11.2, 11.5 }, { 15.2, 11.5 } },
         kPaper, 1.1, Rgb(0, 0, 0));
}

void DrawNode(const Sheet& sheet, Colour colour) {
    Line(sheet, { 2, 10 }, { 19, 10 }, 1.4, kNormalLink);
    Disc(sheet, { 10.5, 10 }, 4.6, colour, 0.9);
}

void DrawLink(const Sheet& sheet, Colour colour) {
    Line(sheet, { 4, 14.8 }, { 17, 5.2 }, 2.4, colour);
    Disc(sheet, { 4, 14.8 }, 2.2, kNormalNode, 0.8);
    Disc(sheet, { 17, 5.2 }, 2.2, kNormalNode, 0.8);
}

// The cross has an edge here: yellow on the toolbar's light ground is hard to see.
void DrawClosedLink(const Sheet& sheet) {
    DrawLink(sheet, kNormalLink);
    for (const Colour colour : { kInk, kClosedCross }) {
        const double width = colour == kInk ? 2.6 : 1.4;
        Line(sheet, { 6.8, 9.5 }, { 14.2, 10.5 }, width, colour);
        Line(sheet, { 10, 13.7 }, { 11, 6.3 }, width, colour);
    }
}

// A spot as the map shows it: a circle with an arrowhead.
void DrawParking(const Sheet& sheet) {
    Disc(sheet, { 10.5, 10 }, 7.6, kParkingFill, 1.4, kParkingOutline);
    Area(sheet, { { 10.5, 4.6 }, { 14.6, 14.4 }, { 10.5, 12.2 }, { 6.4, 14.4 } }, kParkingFill, 1.4, kParkingOutline);
}

constexpr double kCorner = 1.7;  // the handle of a corner

void DrawCorner(const Sheet& sheet, Spot at, Colour colour) {
    Box(sheet, { at.x - kCorner, at.y - kCorner }, { at.x + kCorner, at.y + kCorner }, colour, 0.7);
}

void DrawApron(const Sheet& sheet) {
    constexpr Spot kCorners[] = { { 4, 6 }, { 13, 3.5 }, { 17.5, 9 }, { 14.5, 16.5 }, { 4.5, 15 } };
    Area(sheet, { kCorners[0], kCorners[1], kCorners[2], kCorners[3], kCorners[4] }, kApronSurface, 1.2);
    for (Spot corner : kCorners) DrawCorner(sheet, corner, kPaper);
}

void DrawApronPoint(const Sheet& sheet) {
    Area(sheet, { { 3, 9.5 }, { 15, 9.5 }, { 17, 17 }, { 3.5, 17 } }, kApronSurface, 1.2);
    DrawCorner(sheet, { 9, 9.5 }, kArrow);
    Line(sheet, { 15.6, 1.8 }, { 15.6, 7.2 }, 1.6, kPlus);
    Line(sheet, { 12.9, 4.5 }, { 18.3, 4.5 }, 1.6, kPlus);
}

void DrawEdgeLights(const Sheet& sheet) {
    Line(sheet, { 3.5, 15.5 }, { 17.5, 4.5 }, 1.2, kLightStrip);
    for (Spot lamp : { Spot{ 3.7, 15.4 }, Spot{ 8.3, 11.8 }, Spot{ 12.9, 8.2 }, Spot{ 17.5, 4.5 } })
        Disc(sheet, lamp, 2, kBlueLamp, 0.7, kLightStrip);
}

void DrawCrossMark(const Sheet& sheet, Spot at, double reach) {
    UsePen(sheet, 1.4, kMarker);
    platform::SetBrush(sheet.canvas, kNoBrush);
    platform::DrawCircle(sheet.canvas, At(sheet, at), static_cast<int>(std::lround(reach * 0.66 * sheet.unit)));
    Line(sheet, { at.x - reach, at.y }, { at.x + reach, at.y }, 1.2, kMarker);
    Line(sheet, { at.x, at.y - reach }, { at.x, at.y + reach }, 1.2, kMarker);
}

void DrawGuideline(const Sheet& sheet) {
    Line(sheet, { 5.5, 14.2 }, { 15.5, 5.8 }, 1.8, kGuideline);
    DrawCrossMark(sheet, { 4.7, 14.8 }, 3.4);
    DrawCrossMark(sheet, { 16.3, 5.2 }, 3.4);
}

}  // namespace

void DrawToolPicture(platform::Canvas* canvas, ToolPicture picture, int unit) {
    const Sheet sheet = { canvas, unit };
    switch (picture) {
    case ToolPicture::Open: return DrawFolder(sheet);
    case ToolPicture::Save: return DrawDisk(sheet);
    case ToolPicture::Print: return DrawPrinter(sheet);
    case ToolPicture::Undo: return DrawTurn(sheet, false);
    case ToolPicture::Redo: return DrawTurn(sheet, true);
    case ToolPicture::ZoomIn: return DrawMagnifier(sheet, true);
    case ToolPicture::ZoomOut: return DrawMagnifier(sheet, false);
    case ToolPicture::Lock: return DrawPadlock(sheet);
    case ToolPicture::Pointer: return DrawPointer(sheet);
    case ToolPicture::NormalNode: return DrawNode(sheet, kNormalNode);
    case ToolPicture::HoldShortNode: return DrawNode(sheet, kHoldShortNode);
    case ToolPicture::IlsHoldShortNode: return DrawNode(sheet, kIlsHoldShortNode);
    case ToolPicture::NormalLink: return DrawLink(sheet, kNormalLink);
    case ToolPicture::RunwayLink: return DrawLink(sheet, kRunwayLink);
    case ToolPicture::ApronLink: return DrawLink(sheet, kApronLink);
    case ToolPicture::ClosedLink: return DrawClosedLink(sheet);
    case ToolPicture::Parking: return DrawParking(sheet);
    case ToolPicture::Apron: return DrawApron(sheet);
    case ToolPicture::ApronPoint: return DrawApronPoint(sheet);
    case ToolPicture::EdgeLights: return DrawEdgeLights(sheet);
    case ToolPicture::Marker: return DrawCrossMark(sheet, { 10.5, 10 }, 7.5);
    case ToolPicture::Guideline: return DrawGuideline(sheet);
    }
}

}  // namespace app
