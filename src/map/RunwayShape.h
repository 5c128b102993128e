// RunwayShape.h - a runway laid out on the screen.
#pragma once

#include <array>

#include "map/Palette.h"
#include "map/RunwayGlyphs.h"
#include "model/Records.h"
#include "model/RunwayBits.h"

namespace map {

using enum model::RunwayMarks;

// Seen by a pilot landing on this end: the frame's origin is the middle of the end, ahead is inward.
struct RunwayEnd {
    GroundFrame frame;
    double displaced = 0;  // metres of displaced threshold, inside the runway
    double blastPad = 0;   // metres, outside the runway
    double blastPadWidth = 0;
    double overrun = 0;  // metres, outside the runway, under the blast pad
    double overrunWidth = 0;
    uint32_t displacedSurface = 0, blastPadSurface = 0, overrunSurface = 0;
    uint32_t number = 0, designator = 0;
    uint16_t approachLights = 0;
    std::array<model::VasiPart, 2> slope = {};  // on the left and on the right of the landing pilot
    bool closed = false, stol = false, marked = true;
};

struct RunwayShape {
    double length = 0, width = 0;  // metres
    uint32_t surface = 0;
    uint16_t marks = 0;
    uint8_t lights = 0;
    GroundFrame frame;               // origin at the centre, ahead toward the secondary end
    std::array<RunwayEnd, 2> ends;   // primary, secondary
    std::array<Point, 4> corners;    // of the runway proper: left and right of the primary end, then the other
    std::array<Point, 4> wholeArea;  // with shoulders and blast pads, for culling
};

// Lengths that are no lengths count as 0.
RunwayShape ShapeOfRunway(const model::SceneryObject* runway);

double PavedReach(const RunwayEnd& end);  // metres of pavement outside the runway

// The painted designation's share of its full size, for a runway of that width.
double DesignationSize(double runwayWidth);

// Whether the runway is long enough for the designation of that end, behind the other marks of its threshold.
bool HasRoomForDesignation(const RunwayShape& runway, const RunwayEnd& end);

// Corners of a rectangle of the frame, in order around it.
std::array<Point, 4> Rectangle(const GroundFrame& frame, double left, double right, double near, double far);

void PaintMarkingsOf(Canvas* canvas, const RunwayShape& runway, Colour ground);  // inside its outline
void PaintLightsOf(Canvas* canvas, const RunwayShape& runway);                   // on the runway itself
void PaintNamesOf(Canvas* canvas, const RunwayShape& runway);  // before its ends, while the paint cannot be read

}  // namespace map
