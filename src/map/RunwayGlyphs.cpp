// RunwayGlyphs.cpp - see RunwayGlyphs.h.
//
// The table holds the middle lines of the strokes on a grid of 20 x 30 units, y away from the reader, for
// strokes 5 units wide. The grid is stretched to twice its height on the ground, so that cross strokes
// come out twice as thick as upright ones: a pilot sees them foreshortened.
#include "map/RunwayGlyphs.h"

#include <algorithm>
#include <vector>

namespace map {

namespace {

constexpr double kGridWidth = 20, kGridHeight = 30, kHalfStroke = 2.5;
constexpr double kLongestMitre = 2;  // of the half stroke

using Stroke = std::vector<Point>;

struct Glyph {
    char character;
    std::vector<Stroke> strokes;
};

const Stroke kRound = { { 9.9, 2.5 },  { 13.5, 2.5 }, { 17.5, 6.5 }, { 17.5, 23.5 }, { 13.5, 27.5 },
                        { 6.5, 27.5 }, { 2.5, 23.5 }, { 2.5, 6.5 },  { 6.5, 2.5 },   { 10, 2.5 } };
const Stroke kSixLoop = { { 9.9, 2.5 }, { 13.5, 2.5 }, { 17.5, 6.5 }, { 17.5, 13 }, { 13.5, 17 },
                          { 6.5, 17 },  { 2.5, 13 },   { 2.5, 6.5 },  { 6.5, 2.5 }, { 10, 2.5 } };
const Stroke kSixStem = { { 2.5, 9 }, { 2.5, 22.5 }, { 7.5, 27.5 }, { 16.5, 27.5 } };

Stroke UpsideDown(Stroke stroke) {
    for (Point& point : stroke) point = { kGridWidth - point.x, kGridHeight - point.y };
    return stroke;
}

const std::vector<Glyph>& Glyphs() {
    static const std::vector<Glyph> kGlyphs = {
        { '0', { kRound } },
        { '1', { { { 10.5, 0 }, { 10.5, 30 } }, { { 4.5, 22 }, { 10, 27 } } } },
        { '2',
          { { { 2.5, 20 },
              { 2.5, 23.5 },
              { 6.5, 27.5 },
              { 13.5, 27.5 },
              { 17.5, 23.5 },
              { 17.5, 18 },
              { 2.5, 6.5 },
              { 2.5, 2.5 },
              { 20, 2.5 } } } },
        { '3',
          { { { 2.5, 20.5 },
              { 2.5, 23.5 },
              { 6.5, 27.5 },
              { 13.5, 27.5 },
              { 17.5, 23.5 },
              { 17.5, 18.5 },
              { 14, 15 },
              { 7, 15 } },
            { { 7, 15 },
              { 14, 15 },
              { 17.5, 11.5 },
              { 17.5, 6.5 },
              { 13.5, 2.5 },
              { 6.5, 2.5 },
              { 2.5, 6.5 },
              { 2.5, 9.5 } } } },
        { '4', { { { 14.5, 0 }, { 14.5, 30 } }, { { 13.5, 28 }, { 3, 10 }, { 20, 10 } } } },
        { '5',
          { { { 19, 27.5 },
              { 3.5, 27.5 },
              { 3.5, 17 },
              { 13.5, 17 },
              { 17.5, 13 },
              { 17.5, 6.5 },
              { 13.5, 2.5 },
              { 6.5, 2.5 },
              { 2.5, 6.5 },
              { 2.5, 9 } } } },
        { '6', { kSixLoop, kSixStem } },
        { '7', { { { 0, 27.5 }, { 17, 27.5 }, { 8, 0 } } } },
        { '8',
          { { { 9.9, 2.5 },
              { 13.5, 2.5 },
              { 17.5, 6 },
              { 17.5, 11.5 },
              { 14, 15 },
              { 6, 15 },
              { 2.5, 11.5 },
              { 2.5, 6 },
              { 6.5, 2.5 },
              { 10, 2.5 } },
            { { 9.9, 15 },
              { 14, 15 },
              { 17, 18 },
              { 17, 24 },
              { 13.5, 27.5 },
              { 6.5, 27.5 },
              { 3, 24 },
              { 3, 18 },
              { 6, 15 },
              { 10, 15 } } } },
        { '9', { UpsideDown(kSixLoop), UpsideDown(kSixStem) } },
        { 'C',
          { { { 17.5, 20.5 },
              { 17.5, 23.5 },
              { 13.5, 27.5 },
              { 6.5, 27.5 },
              { 2.5, 23.5 },
              { 2.5, 6.5 },
              { 6.5, 2.5 },
              { 13.5, 2.5 },
              { 17.5, 6.5 },
              { 17.5, 9.5 } } } },
        { 'E', { { { 19, 27.5 }, { 2.5, 27.5 }, { 2.5, 2.5 }, { 19, 2.5 } }, { { 2.5, 15 }, { 15, 15 } } } },
        { 'H', { { { 2.5, 0 }, { 2.5, 30 } }, { { 17.5, 0 }, { 17.5, 30 } }, { { 2.5, 15 }, { 17.5, 15 } } } },
        { 'L', { { { 2.5, 30 }, { 2.5, 2.5 }, { 19, 2.5 } } } },
        { 'N', { { { 2.5, 0 }, { 2.5, 30 } }, { { 17.5, 0 }, { 17.5, 30 } }, { { 2.5, 29 }, { 17.5, 1 } } } },
        { 'O', { kRound } },
        { 'R',
          { { { 2.5, 0 }, { 2.5, 27.5 }, { 13.5, 27.5 }, { 17.5, 23.5 }, { 17.5, 18 }, { 13.5, 14 }, { 2.5, 14 } },
            { { 10, 14 }, { 17, 0 } } } },
        { 'S',
          { { { 17.5, 21 },
              { 17.5, 23.5 },
              { 13.5, 27.5 },
              { 6.5, 27.5 },
              { 2.5, 23.5 },
              { 2.5, 19 },
              { 6, 16 },
              { 14, 14 },
              { 17.5, 11 },
              { 17.5, 6.5 },
              { 13.5, 2.5 },
              { 6.5, 2.5 },
              { 2.5, 6.5 },
              { 2.5, 9 } } } },
        { 'T', { { { 0, 27.5 }, { 20, 27.5 } }, { { 10, 0 }, { 10, 27.5 } } } },
        { 'W', { { { 1.5, 30 }, { 5.5, 2 }, { 10, 20 }, { 14.5, 2 }, { 18.5, 30 } } } },
    };
    return kGlyphs;
}

// The offset of a stroke's left border at point i: square at the ends, mitred at the bends.
Point BorderOffset(const Stroke& stroke, size_t i) {
    const auto leftOf = [&](size_t from) {
        const Point step = stroke[from + 1] - stroke[from];
        return TurnedRight(step) * (1 / Length(step));
    };
    if (i == 0) return leftOf(0) * kHalfStroke;
    if (i + 1 == stroke.size()) return leftOf(i - 1) * kHalfStroke;
    const Point sum = leftOf(i - 1) + leftOf(i);
    const double square = sum.x * sum.x + sum.y * sum.y;  // 4 where the stroke runs straight on
    const double mitre = std::min(2 / square, kLongestMitre / Length(sum));
    return sum * (mitre * kHalfStroke);
}

}  // namespace

Point At(const GroundFrame& frame, double right, double ahead) {
    return frame.origin + (frame.right * right + frame.ahead * ahead) * frame.scale;
}

void AddGlyph(Outline* outline, const GroundFrame& frame, char character, double right, double ahead, double size) {
    const auto& glyphs = Glyphs();
    const auto found =
        std::find_if(glyphs.begin(), glyphs.end(), [=](const Glyph& glyph) { return glyph.character == character; });
    if (found == glyphs.end()) return;
    const auto onGround = [&](Point grid) {
        return At(frame, right + grid.x / kGridWidth * kGlyphWidth * size,
                  ahead + grid.y / kGridHeight * kGlyphHeight * size);
    };
    for (const Stroke& stroke : found->strokes) {
        MoveTo(outline, onGround(stroke[0] + BorderOffset(stroke, 0)));
        for (size_t i = 1; i < stroke.size(); ++i) LineTo(outline, onGround(stroke[i] + BorderOffset(stroke, i)));
        for (size_t i = stroke.size(); i-- > 0;) LineTo(outline, onGround(stroke[i] - BorderOffset(stroke, i)));
        Close(outline);
    }
}

double GlyphLineWidth(size_t characters, double size, double gap) {
    const auto count = static_cast<double>(characters);
    return (count * kGlyphWidth + (count - 1) * gap) * size;
}

void AddGlyphLine(Outline* outline, const GroundFrame& frame, std::string_view text, double right, double ahead,
                  double size, double gap) {
    double at = right - GlyphLineWidth(text.size(), size, gap) / 2;
    for (const char character : text) {
        AddGlyph(outline, frame, character, at, ahead, size);
        at += (kGlyphWidth + gap) * size;
    }
}

}  // namespace map
