// Lamps.h - the lamps of runways, approaches and taxiways as dots of light on the map.
#pragma once

#include <algorithm>
#include <array>
#include <span>

#include "map/Palette.h"
#include "map/RunwayGlyphs.h"
#include "map/Shapes.h"
#include "model/Geodesy.h"

namespace map {

struct Lamps {
    Canvas* canvas;
    Box clip;
    int radius;  // pixels
};
Lamps LampsOf(Canvas* canvas, double radius);  // metres; on the page of the view

// What lies outside the page is left out.
void PaintLamp(const Lamps& lamps, Point at, Ink ink);
void PaintFlash(const Lamps& lamps, Point at);  // a flashing white lamp: with rays

// `count` lamps from one side to the other, `near` ahead of the frame's origin; fewer where they would run
// together on the screen.
void PaintLampBar(const Lamps& lamps, const GroundFrame& frame, double left, double right, double near, int count,
                  Ink ink);

// The same on both sides of the centre line, from `inner` outward with `gap` metres between lamps.
void PaintLampWings(const Lamps& lamps, const GroundFrame& frame, double inner, double gap, double near, int count,
                    Ink ink);

// Doubles a spacing until lamps that far apart are told apart on the screen.
double ThinnedSpacing(double metres);

// How many even spaces near the wanted one fit into the length; at least 1.
int SpacesAlong(double length, double spacing);

// Lamps along a line or a quadratic curve on the screen, about `spacing` pixels apart, half a space from either
// end: the next piece of the same line goes on evenly. `wanted` tells where there is to be a lamp.
template <class Wanted>
void PaintLampsAlong(const Lamps& lamps, std::span<const Point> line, double spacing, Ink ink, Wanted wanted);

double LengthOfLine(std::span<const Point> line);              // two points, or three of a curve; pixels
Point PointOnLine(std::span<const Point> line, double share);  // 0 to 1

}  // namespace map

template <class Wanted>
void map::PaintLampsAlong(const Lamps& lamps, std::span<const Point> line, double spacing, Ink ink, Wanted wanted) {
    if (!Meets(BoundsOf(line), lamps.clip)) return;
    const int count = static_cast<int>(std::clamp(LengthOfLine(line) / spacing + 0.5, 1.0, 10'000.0));
    for (int i = 0; i < count; ++i) {
        const Point at = PointOnLine(line, (i + 0.5) / count);
        if (wanted(at)) PaintLamp(lamps, at, ink);
    }
}
