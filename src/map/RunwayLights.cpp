// RunwayLights.cpp - edge, threshold and centre-line lights of a runway, to scale.
//
// Spacings follow FAA AC 150/5340-30. Edge lights turn yellow over the last 2000 feet of a runway with
// precision markings, centre-line lights red over the last 1000 feet where the record says so; both as a
// landing pilot sees them, so each half of the runway is lit for those coming from the other end.
#include <algorithm>
#include <cmath>

#include "map/MapView.h"
#include "map/Painter.h"
#include "map/RunwayShape.h"

namespace map {

namespace {

constexpr double Feet(double feet) { return feet * model::kMetresPerFoot; }

constexpr double kEdgeSpacing = Feet(200), kEdgeOffset = Feet(8);  // beside the pavement
constexpr double kCentreSpacing = Feet(50);
constexpr double kEndSpacing = Feet(10);  // between the lights of a threshold row
constexpr double kCautionZone = Feet(2000), kRedZone = Feet(1000);
constexpr double kStrobeOffset = Feet(60);  // runway end identifier lights
constexpr double kLampRadius = 0.5;         // metres
constexpr double kClosestLamps = 3;         // pixels; closer rows are thinned out
constexpr uint8_t kEdgeLights = 0x03, kCentreLights = 0x0C, kCentreRed = 0x10;
constexpr uint16_t kStrobes = 0x40;

struct Lamps {
    Canvas* canvas;
    Box clip;
    int radius;
};

void Lamp(const Lamps& lamps, Point at, Ink ink) {
    if (!Meets(BoundsOf(at, lamps.radius), lamps.clip)) return;
    platform::SetPen(lamps.canvas, platform::kNoPen, 0);
    platform::SetBrush(lamps.canvas, InkOf(ink));
    FillCircle(lamps.canvas, at, lamps.radius);
}

// Doubles the spacing until the lamps keep apart on the screen.
double Thinned(double spacing) {
    while (spacing * view.pixelsPerMetre < kClosestLamps && spacing < Feet(20'000)) spacing *= 2;
    return spacing;
}

// An even spacing near the wanted one that ends exactly at the other end.
int SpacesAlong(double length, double spacing) {
    return std::max(1, static_cast<int>(std::lround(length / Thinned(spacing))));
}

void EdgeLights(const Lamps& lamps, const RunwayShape& runway) {
    const bool caution = (runway.marks & kPrecision) != 0 && runway.length > 2 * kCautionZone;
    const double half = runway.width / 2 + kEdgeOffset;
    const int spaces = SpacesAlong(runway.length, kEdgeSpacing);
    for (int i = 0; i <= spaces; ++i) {
        const double along = runway.length * i / spaces;
        const bool yellow = caution && std::min(along, runway.length - along) < kCautionZone;
        for (const double across : { -half, half }) {
            Lamp(lamps, At(runway.ends[0].frame, across, along), yellow ? Ink::LightYellow : Ink::LightWhite);
        }
    }
}

void CentreLights(const Lamps& lamps, const RunwayShape& runway) {
    const int spaces = SpacesAlong(runway.length, kCentreSpacing);
    for (int i = 1; i < spaces; ++i) {
        const double along = runway.length * i / spaces;
        const bool red = (runway.lights & kCentreRed) && std::min(along, runway.length - along) < kRedZone;
        Lamp(lamps, At(runway.ends[0].frame, 0, along), red ? Ink::LightRed : Ink::LightWhite);
    }
}

// Red lights end the runway; green ones, outside them, mark the threshold for those who arrive.
void EndLights(const Lamps& lamps, const RunwayShape& runway, const RunwayEnd& end) {
    const int spaces = SpacesAlong(runway.width, kEndSpacing);
    for (int i = 0; i <= spaces; ++i) {
        const double across = runway.width * i / spaces - runway.width / 2;
        Lamp(lamps, At(end.frame, across, Feet(-2)), Ink::LightRed);
        Lamp(lamps, At(end.frame, across, end.displaced - Feet(10)), Ink::LightGreen);
    }
    if (!(end.approachLights & kStrobes)) return;
    for (const double side : { -1.0, 1.0 }) {
        const double across = side * (runway.width / 2 + kStrobeOffset);
        Lamp(lamps, At(end.frame, across, end.displaced), Ink::LightWhite);
    }
}

}  // namespace

void PaintLightsOf(Canvas* canvas, const RunwayShape& runway) {
    if (runway.length <= 0 || runway.width <= 0) return;
    const Lamps lamps = { canvas, ClipBox(), ScaledPixels(kLampRadius) };
    if (runway.lights & kEdgeLights) {
        EdgeLights(lamps, runway);
        for (const RunwayEnd& end : runway.ends) EndLights(lamps, runway, end);
    }
    if (runway.lights & kCentreLights) CentreLights(lamps, runway);
}

}  // namespace map
