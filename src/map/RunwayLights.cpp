// RunwayLights.cpp - edge, threshold, end, touchdown zone and centre-line lights of a runway, to scale.
//
// Spacings follow FAA AC 150/5340-30. Edge lights turn yellow over the last 2000 feet (half of a shorter
// runway) where the markings are those of a precision runway, centre-line lights alternate with red from
// 3000 feet before the end and are all red over the last 1000 feet where the record says so; both as a
// landing pilot sees them, so each half of the runway is lit for those coming from the other end.
#include <algorithm>
#include <cmath>

#include "map/ApproachLights.h"
#include "map/Lamps.h"
#include "map/MapView.h"
#include "map/Painter.h"
#include "map/RunwayShape.h"

namespace map {

namespace {

constexpr double kEdgeSpacing = Feet(200), kEdgeOffset = Feet(8);  // beside the pavement
constexpr double kCentreSpacing = Feet(50);
constexpr double kEndSpacing = Feet(10);  // between the lights of a threshold row
constexpr double kEndOffset = Feet(2), kThresholdOffset = Feet(10);
constexpr int kEndGroup = 3, kPrecisionEndGroup = 4;  // lights at each side of a threshold
constexpr double kCautionZone = Feet(2000), kMixedZone = Feet(3000), kRedZone = Feet(1000);
constexpr double kZoneLength = Feet(3000), kZoneStep = Feet(100), kZoneInner = Feet(36), kZoneGap = Feet(5);
constexpr int kZoneLamps = 3;
constexpr double kFullWidth = Feet(150);  // of a runway whose touchdown zone lights stand where they should
constexpr double kLampRadius = 0.5;       // metres

void EdgeLights(const Lamps& lamps, const RunwayShape& runway) {
    const double caution = runway.marks & kPrecision ? std::min(kCautionZone, runway.length / 2) : 0;
    const double half = runway.width / 2 + kEdgeOffset;
    const int spaces = SpacesAlong(runway.length, kEdgeSpacing);
    for (int i = 0; i <= spaces; ++i) {
        const double along = runway.length * i / spaces;
        const bool yellow = std::min(along, runway.length - along) < caution;
        for (const double across : { -half, half }) {
            PaintLamp(lamps, At(runway.ends[0].frame, across, along), yellow ? Ink::LightYellow : Ink::LightWhite);
        }
    }
}

bool IsCentreRed(const RunwayShape& runway, double along, int number) {
    const double left = std::min(along, runway.length - along);
    return (runway.lights & model::kRedLights) && (left < kRedZone || (left < kMixedZone && number % 2 == 0));
}

void CentreLights(const Lamps& lamps, const RunwayShape& runway) {
    const int spaces = SpacesAlong(runway.length, kCentreSpacing);
    for (int i = 1; i < spaces; ++i) {
        const double along = runway.length * i / spaces;
        PaintLamp(lamps, At(runway.ends[0].frame, 0, along),
                  IsCentreRed(runway, along, i) ? Ink::LightRed : Ink::LightWhite);
    }
}

// A row across the runway, or a group at each side whose outermost light is in line with the edge lights.
void Row(const Lamps& lamps, const RunwayShape& runway, const GroundFrame& frame, double near, int group, Ink ink) {
    const double half = runway.width / 2;
    if (group == 0) {
        PaintLampBar(lamps, frame, -half, half, near, static_cast<int>(std::lround(2 * half / kEndSpacing)) + 1, ink);
        return;
    }
    const int lights = std::min(group, static_cast<int>(half / kEndSpacing) + 1);
    PaintLampWings(lamps, frame, half - kEndSpacing * (lights - 1), kEndSpacing, near, lights, ink);
}

// The approach lights' own bar takes the place of the runway's green lights.
bool HasThresholdBar(const RunwayEnd& end) {
    return ApproachSystemOf(end.approachLights & model::kApproachSystemMask).thresholdBar;
}

// Red lights end the runway; green ones, outside them, mark the threshold for those who arrive. Aircraft roll over
// a displaced threshold: its green lights stand beside the runway.
void EndLights(const Lamps& lamps, const RunwayShape& runway, const RunwayEnd& end) {
    const int group = end.approachLights & model::kApproachSystemMask ? kPrecisionEndGroup : kEndGroup;
    Row(lamps, runway, end.frame, -kEndOffset, group, Ink::LightRed);
    if (HasThresholdBar(end)) return;
    if (end.displaced > 0)
        PaintLampWings(lamps, end.frame, runway.width / 2 + kEdgeOffset, kEndSpacing, end.displaced, group,
                       Ink::LightGreen);
    else
        Row(lamps, runway, end.frame, -kThresholdOffset, group, Ink::LightGreen);
}

void TouchdownZone(const Lamps& lamps, const RunwayShape& runway, const RunwayEnd& end) {
    const double shrink = std::min(1.0, runway.width / kFullWidth);
    const double length = std::min(kZoneLength, runway.length / 2 - end.displaced);
    const double step = ThinnedSpacing(kZoneStep);
    for (int row = 1; row * step < length + kLampRadius; ++row) {
        PaintLampWings(lamps, end.frame, kZoneInner * shrink, kZoneGap * shrink, end.displaced + row * step, kZoneLamps,
                       Ink::LightWhite);
    }
}

}  // namespace

void PaintLightsOf(Canvas* canvas, const RunwayShape& runway) {
    if (runway.length <= 0 || runway.width <= 0) return;
    const Lamps lamps = LampsOf(canvas, kLampRadius);
    if (runway.lights & model::kEdgeLightsMask) EdgeLights(lamps, runway);
    if (runway.lights & model::kCentreLightsMask) CentreLights(lamps, runway);
    for (const RunwayEnd& end : runway.ends) {
        if (end.approachLights & model::kTouchdownLights) TouchdownZone(lamps, runway, end);
        if (runway.lights & model::kEdgeLightsMask) EndLights(lamps, runway, end);
        if ((end.approachLights & model::kEndLights) && !HasThresholdBar(end))
            Row(lamps, runway, end.frame, end.displaced - kThresholdOffset, 0, Ink::LightGreen);
    }
}

}  // namespace map
