// SlopeLights.cpp - see SlopeLights.h.
//
// The record's bias is that of the innermost unit of the bar farthest from the threshold; the other bars lie before
// it, the other units farther from the runway. Units of a bar stand 16 feet apart (FAA JO 6850.2), the lights of a
// PAPI by the record's spacing. The colours are those on the slope: far bars red and near ones white, the inner
// half of a PAPI red. A T-VASIS has ten lights on each side, its leg in steps of 90 m (ICAO Annex 14).
#include "map/SlopeLights.h"

#include <cmath>

#include "model/Names.h"

namespace map {

namespace {

using enum model::SlopeLights;

constexpr double kUnitRadius = 0.8, kUnitGap = Feet(16);                 // metres
constexpr double kUsualBarSpacing = Feet(700), kUsualUnitSpacing = 9.0;  // where the record has none
constexpr double kMostMetres = 30'000;
constexpr double kPanelWidth = 3, kPanelDepth = 0.8, kPanelStep = 12;
constexpr double kLegStep = 90, kLegFirst = 45;
constexpr int kMostBars = 3;

// Units of the VASI systems on one side: far, middle and near bar.
constexpr int kVasiUnits[][kMostBars] = {
    { 1, 0, 1 }, { 1, 1, 1 }, { 2, 0, 2 }, { 2, 2, 2 }, { 3, 0, 3 }, { 2, 3, 3 }
};

struct Unit {
    Lamps lamps;
    GroundFrame frame;  // origin at the innermost unit of the far bar, right: away from the runway
    double spacing;
    uint16_t type;
};

bool IsPlace(float x, float z) { return std::abs(x) < kMostMetres && std::abs(z) < kMostMetres; }

void Bar(const Unit& unit, double near, int count, Ink ink) {
    for (int i = 0; i < count; ++i) PaintLamp(unit.lamps, At(unit.frame, i * kUnitGap, near), ink);
}

void PaintVasi(const Unit& unit) {
    const auto& units = kVasiUnits[unit.type - kVasi2];
    const double spacing = unit.spacing > 0 ? unit.spacing : kUsualBarSpacing;
    const double near = units[1] > 0 ? 2 * spacing : spacing;
    Bar(unit, 0, units[0], Ink::LightRed);
    Bar(unit, -spacing, units[1], Ink::LightRed);
    Bar(unit, -near, units[2], Ink::LightWhite);
}

void PaintPapi(const Unit& unit) {
    const int count = unit.type == kPapi2 ? 2 : 4;
    const double spacing = unit.spacing > 0 ? unit.spacing : kUsualUnitSpacing;
    for (int i = 0; i < count; ++i) {
        PaintLamp(unit.lamps, At(unit.frame, i * spacing, 0), i < count / 2 ? Ink::LightRed : Ink::LightWhite);
    }
}

// A bar of four lights, and a leg of three before and three behind it.
void PaintTVasi(const Unit& unit) {
    Bar(unit, 0, 4, Ink::LightWhite);
    const double middle = 1.5 * kUnitGap;
    for (int i = 0; i < 3; ++i) {
        for (const double side : { -1.0, 1.0 }) {
            PaintLamp(unit.lamps, At(unit.frame, middle, side * (kLegFirst + i * kLegStep)), Ink::LightWhite);
        }
    }
}

// The ball between its row of green datum lights.
void PaintBall(const Unit& unit) {
    Bar(unit, 0, 5, Ink::LightGreen);
    PaintLamp(unit.lamps, At(unit.frame, 2 * kUnitGap, 0), Ink::LightYellow);
}

// Painted panels, the middle one set back.
void PaintPanels(const Unit& unit) {
    platform::SetPen(unit.lamps.canvas, platform::kNoPen, 0);
    platform::SetBrush(unit.lamps.canvas, InkOf(Ink::LightYellow));
    const double spacing = unit.spacing > 0 ? unit.spacing : kPanelStep;
    for (int i = 0; i < 3; ++i) {
        const double across = i * (kPanelWidth + 1), near = i == 1 ? 0 : -spacing;
        FillPolygon(unit.lamps.canvas, Rectangle(unit.frame, across, across + kPanelWidth, near, near + kPanelDepth));
    }
}

void PaintSystem(const Unit& unit) {
    if (unit.type >= kVasi2 && unit.type <= kVasi16) PaintVasi(unit);
    if (unit.type == kPapi2 || unit.type == kPapi4) PaintPapi(unit);
    if (unit.type == kTricolour) Bar(unit, 0, 1, Ink::LightGreen);
    if (unit.type == kPulsating) Bar(unit, 0, 1, Ink::LightWhite);
    if (unit.type == kTVasi) PaintTVasi(unit);
    if (unit.type == kBall) PaintBall(unit);
    if (unit.type == kAlignedPanels || unit.type == kPanels) PaintPanels(unit);
}

}  // namespace

void PaintSlopeLights(Canvas* canvas, const RunwayShape& runway, const RunwayEnd& end) {
    for (size_t side = 0; side < end.slope.size(); ++side) {
        const model::VasiPart part = end.slope[side];
        const uint16_t type = part.type;
        if (type == kNoSlopeLights || !IsPlace(part.biasX, part.biasZ)) continue;
        const double outward = side == 0 ? -1 : 1;
        GroundFrame frame = end.frame;
        frame.origin = At(end.frame, outward * double{ part.biasX }, runway.length / 2 - double{ part.biasZ });
        frame.right = end.frame.right * outward;
        const float spacing = part.spacing;
        const Unit unit = { LampsOf(canvas, kUnitRadius), frame,
                            spacing > 0 && spacing < kMostMetres ? double{ spacing } : 0, type };
        const double reach = (kMostBars * std::max(unit.spacing, kUsualBarSpacing) + kLegStep) * frame.scale;
        if (Meets(BoundsOf(frame.origin, reach), unit.lamps.clip)) PaintSystem(unit);
    }
}

}  // namespace map
