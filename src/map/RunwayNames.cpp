// RunwayNames.cpp - the names of a runway's ends, as a chart prints them.
//
// Once the painted designation is too small to read, or where none is painted, the name stands before the end, upright
// for those who approach it.
#include <cmath>

#include "map/MapView.h"
#include "map/Painter.h"
#include "map/RunwayShape.h"
#include "model/Names.h"

namespace map {

namespace {

constexpr double kReadableGlyph = 14;               // pixels from foot to top of the painted number
constexpr double kShortestRunway = 60;              // pixels; shorter ones get no names
constexpr int kNameHeight = 14, kNameDistance = 4;  // pixels

bool IsPaintReadable(const RunwayShape& runway, const RunwayEnd& end) {
    if (!(runway.marks & kDesignation) || !end.marked || !HasRoomForDesignation(runway, end)) return false;
    return DesignationSize(runway.width) * kGlyphHeight * view.pixelsPerMetre >= FromScreen(kReadableGlyph);
}

void PaintName(Canvas* canvas, const RunwayEnd& end) {
    const Point at = At(end.frame, 0, -PavedReach(end)) - end.frame.ahead * FromScreen(kNameDistance);
    if (!Meets(BoundsOf(at, FromScreen(3 * kNameHeight)), ClipBox())) return;
    const std::string name = model::RunwayEndName(end.number, end.designator);
    platform::TextRun run;
    run.text = name;
    run.at = ToPixel(at);
    run.alignX = platform::AlignX::Centre;
    run.height = kNameHeight;
    run.bold = true;
    run.colour = InkOf(Ink::RunwayName);
    run.angle = std::atan2(end.frame.ahead.x, -end.frame.ahead.y);
    platform::DrawText(canvas, run);
}

}  // namespace

void PaintNamesOf(Canvas* canvas, const RunwayShape& runway) {
    if (runway.length * view.pixelsPerMetre < FromScreen(kShortestRunway)) return;
    for (const RunwayEnd& end : runway.ends) {
        if (!IsPaintReadable(runway, end)) PaintName(canvas, end);
    }
}

}  // namespace map
