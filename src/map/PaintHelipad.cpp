// PaintHelipad.cpp - helipads: the pad in its surface colour and the mark of its type, to scale.
#include <algorithm>

#include "map/MapView.h"
#include "map/Painter.h"
#include "map/RunwayShape.h"
#include "model/ObjectList.h"
#include "model/Positions.h"

namespace map {

namespace {

enum PadType : uint8_t { kPlainPad = 0, kLetterPad = 1, kSquarePad = 2, kCirclePad = 3, kMedicalPad = 4 };

constexpr double kMostMetres = 5'000;                  // a damaged record
constexpr double kStroke = 0.04;                       // of the pad's smaller side, also the distance from its border
constexpr double kLetterHeight = 0.5;                  // of the smaller side
constexpr double kCircleRadius = 0.42;                 // of the smaller side
constexpr double kCrossArm = 0.36, kCrossHalf = 0.13;  // a medical pad's cross

double Metres(float value) { return value > 0 && value < kMostMetres ? double{ value } : 0; }

struct Pad {
    GroundFrame frame;
    double length = 0, width = 0;  // metres
    double side = 0;               // the smaller of the two
};

Pad PadOf(const SceneryObject* object) {
    const auto& record = model::PayloadAs<model::HelipadRecord>(object);
    const Point ahead = HeadingOnScreen(double{ record.heading } * model::kRadiansPerDegree);
    Pad pad;
    pad.frame = { WorldToScreen(model::PositionOf(object)), TurnedRight(ahead), ahead, view.pixelsPerMetre };
    pad.length = Metres(record.length);
    pad.width = Metres(record.width);
    pad.side = std::min(pad.length, pad.width);
    return pad;
}

// A line along the border, inside it.
void PaintBorder(const Painter& painter, const Pad& pad, Ink ink) {
    const double inset = pad.side * kStroke * 1.5;
    const auto corners = Rectangle(pad.frame, -pad.width / 2 + inset, pad.width / 2 - inset, -pad.length / 2 + inset,
                                   pad.length / 2 - inset);
    Stroke(painter, ScaledPixels(pad.side * kStroke), InkOf(ink));
    FillPolygon(painter.canvas, corners);
}

void PaintLetter(const Painter& painter, const Pad& pad, Ink ink, double share) {
    const double size = pad.side * share / kGlyphHeight;
    Outline letter;
    // Painted numerals are narrow; the H of a pad is not, so it is set on a frame stretched to the side.
    GroundFrame wide = pad.frame;
    wide.right = wide.right * 2;
    AddGlyphLine(&letter, wide, "H", 0, -kGlyphHeight * size / 2, size, 0);
    FillOnly(painter, InkOf(ink));
    FillOutline(painter.canvas, letter);
}

void PaintMedicalCross(const Painter& painter, const Pad& pad) {
    const double arm = pad.side * kCrossArm, half = pad.side * kCrossHalf;
    FillOnly(painter, InkOf(Ink::HelipadMarking));
    FillPolygon(painter.canvas, Rectangle(pad.frame, -half, half, -arm, arm));
    FillPolygon(painter.canvas, Rectangle(pad.frame, -arm, arm, -half, half));
    PaintLetter(painter, pad, Ink::HelipadMedical, kCrossHalf * 2);
}

void PaintClosedMark(const Painter& painter, const Pad& pad) {
    Stroke(painter, ScaledPixels(pad.side * kStroke * 2), InkOf(Ink::RunwayYellow));
    const double reach = pad.side * kCrossArm;
    StrokeLine(painter.canvas, At(pad.frame, -reach, -reach), At(pad.frame, reach, reach));
    StrokeLine(painter.canvas, At(pad.frame, -reach, reach), At(pad.frame, reach, -reach));
}

void PaintMark(const Painter& painter, const Pad& pad, uint8_t type) {
    switch (type & model::kPadTypeMask) {
    case kLetterPad:
        PaintBorder(painter, pad, Ink::HelipadMarking);
        PaintLetter(painter, pad, Ink::HelipadMarking, kLetterHeight);
        break;
    case kSquarePad: PaintBorder(painter, pad, Ink::HelipadMarking); break;
    case kCirclePad:
        Stroke(painter, ScaledPixels(pad.side * kStroke), InkOf(Ink::HelipadMarking));
        FillCircle(painter.canvas, pad.frame.origin, ScaledPixels(pad.side * kCircleRadius));
        break;
    case kMedicalPad:
        PaintBorder(painter, pad, Ink::HelipadMarking);
        PaintMedicalCross(painter, pad);
        break;
    default: break;
    }
    if (type & model::kPadClosed) PaintClosedMark(painter, pad);
}

void PaintHelipad(const Painter& painter, SceneryObject* object) {
    const auto& record = model::PayloadAs<model::HelipadRecord>(object);
    const Pad pad = PadOf(object);
    const auto corners = Rectangle(pad.frame, -pad.width / 2, pad.width / 2, -pad.length / 2, pad.length / 2);
    if (!Meets(BoundsOf(corners), painter.clip)) return;
    std::array<Pixel, 4> places;
    for (size_t i = 0; i < 4; ++i) places[i] = ToPixel(corners[i]);
    PlaceCorners(object, places);
    const Colour surface = RunwayColour(record.surface);
    if (model::IsSelected(object))
        Fill(painter, InkOf(Ink::SelectedFill), InkOf(Ink::SelectedOutline));
    else if (record.type & model::kPadTransparent)
        Stroke(painter, 1, surface);
    else
        Fill(painter, surface, surface);
    FillPolygon(painter.canvas, corners);
    PaintMark(painter, pad, record.type);
}

}  // namespace

void PaintHelipads(Painter* painter) {
    model::ForEachOfKind(model::kHelipad, [&](SceneryObject* pad) { PaintHelipad(*painter, pad); });
}

}  // namespace map
