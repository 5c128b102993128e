// PaintTools.cpp - what a tool shows while it is used: the line or outline under construction, the end that a release
// would take, the selection rectangle, and the handles of what is selected.
#include <array>
#include <vector>

#include "map/ApronTool.h"
#include "map/EdgeLightsTool.h"
#include "map/LinkTool.h"
#include "map/MapView.h"
#include "map/MarkerTool.h"
#include "map/Painter.h"
#include "map/PaintMap.h"
#include "map/PointerTool.h"
#include "map/ScreenPlace.h"
#include "map/SelectionBox.h"
#include "map/Tools.h"
#include "map/TurnDrag.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "model/Records.h"

namespace map {

namespace {

constexpr int kLineWidth = 2, kCandidateWidth = 2;  // pixels
constexpr int kNewEnd = 4, kCorner = 3;             // pixels, half the size of a mark
constexpr int kCandidateMargin = 4;                 // pixels around the symbol of an end
constexpr int kHandle = 4;                          // pixels, radius of a handle's knob

Painter FeedbackPainter(Canvas* canvas) {
    Painter painter;
    painter.canvas = canvas;
    painter.clip = ClipBox();
    painter.scale = view.pixelsPerMetre;
    return painter;
}

// The colour of the links that are being made. A new apron link is green wherever it begins.
Ink LinkInk(const LinkDrag& drag) {
    const uint32_t type =
        drag.link ? model::LinkTypeOf(model::PayloadAs<model::TaxiLinkPayload>(drag.link)) : tools.linkKind;
    const auto isSpot = [](const LinkEnd& end) { return end.object && KindOf(end.object) == model::kParkingSpot; };
    if (isSpot(drag.from) || (drag.hasTo && isSpot(drag.to)) || type == model::kApronRouteLink ||
        type == model::kParkingLink)
        return Ink::ParkingLink;
    return type == model::kRunwayLink ? Ink::RunwayLink : Ink::TaxiLink;
}

void MarkNewEnd(const Painter& painter, Point at, Ink ink) {
    Fill(painter, InkOf(Ink::Background), InkOf(ink));
    FillCircle(painter.canvas, at, kNewEnd);
}

// The end lights up: what is there already gets a ring, a link that would be split and empty ground a small circle.
void PaintCandidate(const Painter& painter, const LinkEnd& end, Ink ink) {
    const Point at = WorldToScreen(end.position);
    if (!Contains(painter.clip, at)) return;
    if (!end.object) return MarkNewEnd(painter, at, end.onLink ? Ink::SelectedOutline : ink);
    const int32_t radius = IsDrawn(end.object) ? ScreenRadius(end.object) : 0;
    Stroke(painter, kCandidateWidth, InkOf(Ink::SelectedFill));
    FillCircle(painter.canvas, at, radius + kCandidateMargin);
}

void PaintLinkDrag(const Painter& painter) {
    const LinkDrag& drag = CurrentLinkDrag();
    if (!drag.active) return;
    const Ink ink = LinkInk(drag);
    const Point pointer = { double(tools.cursor.x), double(tools.cursor.y) };
    const Point to = drag.hasTo ? WorldToScreen(drag.to.position) : pointer;
    Stroke(painter, kLineWidth, InkOf(ink));
    StrokeLine(painter.canvas, WorldToScreen(drag.from.position), to);
    PaintCandidate(painter, drag.from, ink);
    if (drag.hasTo) PaintCandidate(painter, drag.to, ink);
}

void PaintRubberLine(const Painter& painter, LatLon from, LatLon to, Ink ink) {
    Stroke(painter, 1, InkOf(ink));
    StrokeLine(painter.canvas, WorldToScreen(from), WorldToScreen(to));
}

void PaintStripDrag(const Painter& painter) {
    const StripDrag& drag = CurrentStripDrag();
    if (!drag.active) return;
    MarkNewEnd(painter, WorldToScreen(drag.from), Ink::EdgeLightStrip);
    if (!drag.hasTo) return;
    PaintRubberLine(painter, drag.from, drag.to, Ink::EdgeLightStrip);
    MarkNewEnd(painter, WorldToScreen(drag.to), Ink::EdgeLightStrip);
}

void PaintGuidelineDrag(const Painter& painter) {
    const GuidelineDrag& drag = CurrentGuidelineDrag();
    if (drag.active && drag.hasTo) PaintRubberLine(painter, drag.from, drag.to, Ink::Guideline);
}

// The outline so far, the edge to the pointer, and the one that would close it.
void PaintOutline(const Painter& painter) {
    if (tools.outline.empty()) return;
    std::vector<Point> points;
    for (const LatLon& corner : tools.outline) points.push_back(WorldToScreen(corner));
    const Point pointer = { double(tools.cursor.x), double(tools.cursor.y) };
    Stroke(painter, kLineWidth, InkOf(Ink::SelectedOutline));
    StrokeLines(painter.canvas, points);
    Stroke(painter, 1, InkOf(Ink::SelectedOutline));
    StrokeLine(painter.canvas, points.back(), pointer);
    StrokeLine(painter.canvas, pointer, points.front());
    Fill(painter, InkOf(Ink::SelectedFill), InkOf(Ink::SelectedOutline));
    for (const Point& point : points) {
        if (Contains(painter.clip, point)) FillCircle(painter.canvas, point, kCorner);
    }
}

void PaintBox(const Painter& painter) {
    if (!IsBoxOpen()) return;
    const BoxCorners box = CornersOfBox(tools.cursor);
    const auto at = [](int32_t x, int32_t y) { return Point{ double(x), double(y) }; };
    const std::array corners = { at(box.left, box.top), at(box.right, box.top), at(box.right, box.bottom),
                                 at(box.left, box.bottom) };
    Stroke(painter, 1, InkOf(Ink::SelectedOutline));
    FillPolygon(painter.canvas, corners);
}

void PaintKnob(const Painter& painter, Point at) {
    if (!Contains(painter.clip, at)) return;
    Fill(painter, InkOf(Ink::Background), InkOf(Ink::SelectedOutline));
    FillCircle(painter.canvas, at, kHandle);
}

void PaintTurnHandle(const Painter& painter, const SceneryObject* object) {
    const Point middle = WorldToScreen(model::PositionOf(object)), knob = TurnHandleOf(object);
    if (!Contains(painter.clip, middle)) return;
    Stroke(painter, 1, InkOf(Ink::SelectedOutline));
    StrokeLine(painter.canvas, middle, knob);
    PaintKnob(painter, knob);
}

// While the selection is moved the handles are out of the way.
void PaintHandles(const Painter& painter) {
    const PointerDrag drag = CurrentPointerDrag();
    if (tools.toolMode != Tool::Pointer || drag == PointerDrag::Move || drag == PointerDrag::Reattach) return;
    for (const SceneryObject* object : TurnableObjects()) PaintTurnHandle(painter, object);
    const SceneryObject* link = OnlySelectedLink();
    Point nearStart, nearEnd;
    if (!link || !LinkHandlesOf(link, &nearStart, &nearEnd)) return;
    PaintKnob(painter, nearStart);
    PaintKnob(painter, nearEnd);
}

}  // namespace

// The area of the apron under construction lies beneath everything, as it will once it is closed; so do the lamps of the
// strip that is pulled.
void PaintToolPreview(Painter* painter) {
    std::vector<Point> corners;
    for (const LatLon& corner : tools.outline) corners.push_back(WorldToScreen(corner));
    if (CanCloseOutline() && Meets(BoundsOf(corners), painter->clip)) {
        Fill(*painter, ApronColour(kNewApronSurface), InkOf(Ink::ApronOutline));
        FillPolygon(painter->canvas, corners);
    }
    const StripDrag& strip = CurrentStripDrag();
    if (strip.active && strip.hasTo)
        PaintStripLamps(*painter, WorldToScreen(strip.from), WorldToScreen(strip.to), strip.spacing);
}

void PaintToolFeedback(Canvas* canvas) {
    if (!model::state.airport) return;
    const Painter painter = FeedbackPainter(canvas);
    PaintHandles(painter);
    PaintOutline(painter);
    PaintLinkDrag(painter);
    PaintStripDrag(painter);
    PaintGuidelineDrag(painter);
    PaintBox(painter);
}

}  // namespace map
