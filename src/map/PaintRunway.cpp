// PaintRunway.cpp - runway surfaces with their shoulders, displaced thresholds, overruns and blast pads.
#include <algorithm>

#include "map/ApproachLights.h"
#include "map/MapView.h"
#include "map/Painter.h"
#include "map/RunwayShape.h"
#include "map/SlopeLights.h"
#include "model/ObjectList.h"
#include "model/Positions.h"

namespace map {

namespace {

constexpr double kShoulder = 7.5;            // metres beside the runway: ICAO Annex 14, 3.2, 60 m with one of 45 m
constexpr double kMostMetres = 30'000;       // beyond the length of any runway: a damaged record
constexpr double kChevronStep = 30.48;       // 100 feet along the blast pad
constexpr double kChevronStroke = 0.9144;    // 3 feet
constexpr double kBorderShare = 0.3;         // of the border's colour in the outline
constexpr uint32_t kSurfaceCodeMask = 0xFF;  // the high byte is no part of the code

double Metres(float value) { return value > 0 && value < kMostMetres ? double{ value } : 0; }

RunwayEnd MakeEnd(const model::RunwayAreaPart& threshold, const model::RunwayAreaPart& blastPad,
                  const model::RunwayAreaPart& overrun) {
    RunwayEnd end;
    end.displaced = Metres(threshold.length);
    end.displacedSurface = threshold.surface & kSurfaceCodeMask;
    end.blastPad = Metres(blastPad.length);
    end.blastPadWidth = Metres(blastPad.width);
    end.blastPadSurface = blastPad.surface & kSurfaceCodeMask;
    end.overrun = Metres(overrun.length);
    end.overrunWidth = Metres(overrun.width);
    end.overrunSurface = overrun.surface & kSurfaceCodeMask;
    return end;
}

void SelectGround(const Painter& painter, Colour colour) { Fill(painter, colour, colour); }

// Concrete is hardly darker than the background: the outline tells where the runway ends.
void SelectPavement(const Painter& painter, Colour colour) {
    Fill(painter, colour, Blend(colour, InkOf(Ink::RunwayBorder), kBorderShare));
}

void FillIfOnPage(const Painter& painter, std::span<const Point> figure) {
    if (Meets(BoundsOf(figure), painter.clip)) FillPolygon(painter.canvas, figure);
}

// Yellow arms that spread away from the runway, pavement that must not be used.
void PaintChevrons(const Painter& painter, const RunwayEnd& end, std::span<const Point> pad) {
    Outline outline;
    MoveTo(&outline, pad[0]);
    for (size_t i = 1; i < pad.size(); ++i) LineTo(&outline, pad[i]);
    Close(&outline);
    const platform::Path clip = PathOf(outline);
    if (clip.steps.empty()) return;
    platform::PushClip(painter.canvas, clip);
    const double share = std::min(1.0, std::max(0.35, kChevronStroke * painter.scale));
    const Colour colour = Blend(RunwayColour(end.blastPadSurface), InkOf(Ink::RunwayYellow), share);
    Stroke(painter, ScaledPixels(kChevronStroke), colour);
    const double half = end.blastPadWidth / 2;
    for (double at = kChevronStep / 2; at < end.blastPad; at += kChevronStep) {
        const std::array arms = { At(end.frame, -half, -at - half), At(end.frame, 0, -at),
                                  At(end.frame, half, -at - half) };
        if (Meets(BoundsOf(arms), painter.clip)) StrokeLines(painter.canvas, arms);
    }
    platform::PopClip(painter.canvas);
}

void PaintEnd(const Painter& painter, const RunwayShape& runway, const RunwayEnd& end, bool selected) {
    const double half = runway.width / 2;
    if (end.displaced > 0 && !selected) {
        SelectPavement(painter, RunwayColour(end.displacedSurface));
        FillIfOnPage(painter, Rectangle(end.frame, -half, half, 0, end.displaced));
    }
    if (end.overrun > 0) {
        const double beside = end.overrunWidth / 2;
        SelectPavement(painter, selected ? InkOf(Ink::SelectedFill) : RunwayColour(end.overrunSurface));
        FillIfOnPage(painter, Rectangle(end.frame, -beside, beside, -end.overrun, 0));
    }
    if (end.blastPad <= 0) return;
    const auto pad = Rectangle(end.frame, -end.blastPadWidth / 2, end.blastPadWidth / 2, -end.blastPad, 0);
    if (!Meets(BoundsOf(pad), painter.clip)) return;
    SelectGround(painter, selected ? InkOf(Ink::SelectedFill) : RunwayColour(end.blastPadSurface));
    FillPolygon(painter.canvas, pad);
    PaintChevrons(painter, end, pad);
}

void PaintShoulders(const Painter& painter, const RunwayShape& runway) {
    if (!(runway.marks & kEdgePavement) || !Meets(BoundsOf(runway.wholeArea), painter.clip)) return;
    const double half = runway.width / 2 + kShoulder;
    SelectGround(painter, TaxiwayColour(runway.surface));
    FillPolygon(painter.canvas, Rectangle(runway.frame, -half, half, -runway.length / 2, runway.length / 2));
}

void PaintSurface(const Painter& painter, SceneryObject* object) {
    const RunwayShape runway = ShapeOfRunway(object);
    if (!Meets(BoundsOf(runway.wholeArea), painter.clip)) return;
    std::array<Pixel, 4> places;
    for (size_t i = 0; i < 4; ++i) places[i] = ToPixel(runway.corners[i]);
    PlaceCorners(object, places);
    const bool selected = model::IsSelected(object);
    if (selected)
        Fill(painter, InkOf(Ink::SelectedFill), InkOf(Ink::SelectedOutline));
    else
        SelectPavement(painter, RunwayColour(runway.surface));
    FillIfOnPage(painter, runway.corners);
    for (const RunwayEnd& end : runway.ends) PaintEnd(painter, runway, end, selected);
}

}  // namespace

std::array<Point, 4> Rectangle(const GroundFrame& frame, double left, double right, double near, double far) {
    return { At(frame, left, near), At(frame, right, near), At(frame, right, far), At(frame, left, far) };
}

RunwayShape ShapeOfRunway(const SceneryObject* object) {
    const auto& payload = model::PayloadAs<model::RunwayPayload>(object);
    RunwayShape runway;
    runway.length = Metres(payload.body.length);
    runway.width = Metres(payload.body.width);
    runway.surface = payload.body.surface & kSurfaceCodeMask;
    runway.marks = payload.body.markings;
    runway.lights = payload.body.lights;
    const Point ahead = HeadingOnScreen(double{ payload.body.heading } * model::kRadiansPerDegree);
    runway.frame = { WorldToScreen(model::PositionOf(object)), TurnedRight(ahead), ahead, view.pixelsPerMetre };
    RunwayEnd& primary = runway.ends[0];
    RunwayEnd& secondary = runway.ends[1];
    primary = MakeEnd(payload.primaryThreshold, payload.primaryBlastPad, payload.primaryOverrun);
    secondary = MakeEnd(payload.secondaryThreshold, payload.secondaryBlastPad, payload.secondaryOverrun);
    primary.frame = runway.frame;
    primary.frame.origin = At(runway.frame, 0, -runway.length / 2);
    secondary.frame = { At(runway.frame, 0, runway.length / 2), runway.frame.right * -1, ahead * -1,
                        view.pixelsPerMetre };
    primary.number = payload.body.primaryNumber;
    primary.designator = payload.body.primaryDesignator;
    secondary.number = payload.body.secondaryNumber;
    secondary.designator = payload.body.secondaryDesignator;
    primary.approachLights = payload.primaryApproachLights;
    secondary.approachLights = payload.secondaryApproachLights;
    primary.slope = { payload.primaryLeftVasi, payload.primaryRightVasi };
    secondary.slope = { payload.secondaryLeftVasi, payload.secondaryRightVasi };
    primary.closed = (runway.marks & kPrimaryClosed) != 0;
    secondary.closed = (runway.marks & kSecondaryClosed) != 0;
    primary.stol = (runway.marks & kPrimaryStol) != 0;
    secondary.stol = (runway.marks & kSecondaryStol) != 0;
    secondary.marked = !(runway.marks & kSingleEnd);
    const double half = runway.width / 2;
    runway.corners = Rectangle(runway.frame, -half, half, -runway.length / 2, runway.length / 2);
    const double wide = std::max({ half + kShoulder, primary.blastPadWidth / 2, secondary.blastPadWidth / 2,
                                   primary.overrunWidth / 2, secondary.overrunWidth / 2 });
    runway.wholeArea = Rectangle(runway.frame, -wide, wide, -runway.length / 2 - PavedReach(primary),
                                 runway.length / 2 + PavedReach(secondary));
    return runway;
}

double PavedReach(const RunwayEnd& end) { return std::max(end.blastPad, end.overrun); }

void PaintRunwayShoulders(Painter* painter) {
    model::ForEachOfKind(model::kRunway,
                         [&](SceneryObject* runway) { PaintShoulders(*painter, ShapeOfRunway(runway)); });
}

void PaintRunwaySurfaces(Painter* painter) {
    model::ForEachOfKind(model::kRunway, [&](SceneryObject* runway) { PaintSurface(*painter, runway); });
}

void PaintRunwayMarkings(Painter* painter) {
    model::ForEachOfKind(model::kRunway, [&](SceneryObject* object) {
        if (!IsDrawn(object)) {
            PaintNamesOf(painter->canvas, ShapeOfRunway(object));
            return;
        }
        const RunwayShape runway = ShapeOfRunway(object);
        const Colour ground = model::IsSelected(object) ? InkOf(Ink::SelectedFill) : RunwayColour(runway.surface);
        PaintMarkingsOf(painter->canvas, runway, ground);
        PaintNamesOf(painter->canvas, runway);
    });
}

void PaintRunwayLights(Painter* painter) {
    model::ForEachOfKind(model::kRunway, [&](SceneryObject* object) {
        const RunwayShape runway = ShapeOfRunway(object);
        if (IsDrawn(object)) PaintLightsOf(painter->canvas, runway);
        if (runway.length <= 0 || runway.width <= 0) return;
        for (const RunwayEnd& end : runway.ends) {
            PaintApproachLights(painter->canvas, runway, end);
            PaintSlopeLights(painter->canvas, runway, end);
        }
    });
}

}  // namespace map
