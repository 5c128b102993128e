// RunwayGlyphs.h - the painted digits and letters of runways and helipads, as outlines.
#pragma once

#include <string_view>

#include "map/Shapes.h"

namespace map {

// Painted numerals are 20 feet wide and 60 feet high.
constexpr double kGlyphWidth = 6.096, kGlyphHeight = 18.288;  // metres

// A flat piece of ground on the screen: metres to the right and ahead of its origin.
struct GroundFrame {
    Point origin;        // on the screen
    Point right, ahead;  // unit vectors on the screen
    double scale = 0;    // pixels per metre
};
Point At(const GroundFrame& frame, double right, double ahead);

// Adds the strokes of one character whose lower left corner lies at (right, ahead), `size` times the full
// size. Digits and the letters of runway names, STOL and helipads are known; others add nothing.
void AddGlyph(Outline* outline, const GroundFrame& frame, char character, double right, double ahead, double size);

// A line of characters centred on `right`; the gap is metres between them at full size.
void AddGlyphLine(Outline* outline, const GroundFrame& frame, std::string_view text, double right, double ahead,
                  double size, double gap);
double GlyphLineWidth(size_t characters, double size, double gap);  // metres

}  // namespace map
