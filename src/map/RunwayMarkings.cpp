// RunwayMarkings.cpp - the paint on a runway, to scale.
//
// Dimensions follow FAA AC 150/5340-1 (given there in feet), those beside the centre line shrunk for
// runways narrower than 150 feet. That circular marks the touchdown zone of precision runways only; on others
// the record's flag draws the plain pattern of ICAO Annex 14, 5.2.6. A mark too thin to see is drawn as a
// one-pixel line, the paler the thinner it is, so that a runway keeps its look when the map is zoomed out.
#include <algorithm>
#include <cmath>
#include <string>

#include "map/MapView.h"
#include "map/Painter.h"
#include "map/RunwayShape.h"
#include "model/Names.h"

namespace map {

namespace {

constexpr double kFullWidth = Feet(150);   // of a runway with markings of full size
constexpr double kStripeStart = Feet(20);  // threshold stripes, from the landing threshold
constexpr double kStripeLength = Feet(150);
constexpr double kStripeWidth = Feet(5.75);
constexpr double kDesignationGap = Feet(40);  // before and behind the designation
constexpr double kPlainDesignationStart = Feet(20);
constexpr double kLetterGap = Feet(20);  // between the letter and the number
constexpr double kDigitGap = Feet(15);   // between two digits
constexpr double kNumberShare = 0.7;     // of the runway's width, at most, for the number
constexpr double kAimingStart = Feet(1020), kAimingWidth = Feet(30);
constexpr double kAimingLength = Feet(150), kShortAimingLength = Feet(100);
constexpr double kLongRunway = Feet(4200);  // from here the aiming point is of full length
constexpr double kInnerEdge = Feet(36);     // aiming point and touchdown marks, from the centre line
constexpr double kZoneStep = Feet(500), kZoneLength = Feet(75), kZoneWidth = Feet(6), kZoneGap = Feet(5);
constexpr double kZoneMiddle = Feet(900);          // kept free of touchdown marks, each side of the middle
constexpr int kZoneBars[] = { 3, 0, 2, 2, 1, 1 };  // at each step; the aiming point is at the second
constexpr double kPlainZoneWidth = 3;              // metres, of the one bar that stands for any number of them
constexpr double kDashLength = Feet(120), kDashGap = Feet(80);
constexpr double kArrowLength = Feet(120), kArrowGap = Feet(80), kArrowHead = Feet(45), kArrowHeadWidth = Feet(15);
constexpr double kHeadRoom = Feet(25);  // of the runway's width for each head of the row before a displaced threshold
constexpr int kMostHeads = 4;
constexpr double kThresholdBar = Feet(10);
constexpr double kCrossArm = Feet(30), kCrossStroke = Feet(10);
constexpr double kFaintest = 0.3;     // share of the paint in the thinnest line
constexpr double kSmallestGlyph = 4;  // pixels

struct MarkPainter {
    Canvas* canvas;
    const RunwayShape* runway;
    Colour ground;
    Box clip;
};

Colour Paint(const MarkPainter& marks, Ink ink, double metres) {
    const double share = std::clamp(metres * view.pixelsPerMetre, kFaintest, 1.0);
    return Blend(marks.ground, InkOf(ink), share);
}

// A painted rectangle in the frame of one end.
void Bar(const MarkPainter& marks, const GroundFrame& frame, double left, double right, double near, double far,
         Ink ink = Ink::RunwayMarking) {
    const auto corners = Rectangle(frame, left, right, near, far);
    if (!Meets(BoundsOf(corners), marks.clip)) return;
    const double thin = std::min(right - left, far - near);
    const Colour colour = Paint(marks, ink, thin);
    if (thin * view.pixelsPerMetre >= 1) {
        platform::SetPen(marks.canvas, platform::kNoPen, 0);
        platform::SetBrush(marks.canvas, colour);
        FillPolygon(marks.canvas, corners);
        return;
    }
    platform::SetPen(marks.canvas, 1, colour);
    const bool along = right - left <= far - near;
    const double across = (left + right) / 2, level = (near + far) / 2;
    StrokeLine(marks.canvas, At(frame, along ? across : left, along ? near : level),
               At(frame, along ? across : right, along ? far : level));
}

void BarPair(const MarkPainter& marks, const GroundFrame& frame, double inner, double width, double near,
             double length) {
    Bar(marks, frame, inner, inner + width, near, near + length);
    Bar(marks, frame, -inner - width, -inner, near, near + length);
}

double Shrink(const RunwayShape& runway) { return std::min(1.0, runway.width / kFullWidth); }

int StripesPerSide(double width) {
    constexpr struct {
        double width;
        int stripes;
    } kRows[] = { { Feet(190), 8 }, { Feet(140), 6 }, { Feet(95), 4 }, { Feet(70), 3 } };
    for (const auto& row : kRows) {
        if (width >= row.width) return row.stripes;
    }
    return 2;
}

// Stripes and gaps of one width from the edges inward; the middle gap is two wide. On a runway narrower
// than its stripes need, all of them shrink.
void ThresholdStripes(const MarkPainter& marks, const RunwayEnd& end) {
    const int count = StripesPerSide(marks.runway->width);
    const double width = std::min(kStripeWidth, marks.runway->width / (4 * count + 1));
    for (int i = 0; i < count; ++i) {
        BarPair(marks, end.frame, width * (1 + 2 * i), width, end.displaced + kStripeStart, kStripeLength);
    }
}

void PaintGlyphs(const MarkPainter& marks, const Outline& glyphs, double size) {
    if (kGlyphHeight * size * view.pixelsPerMetre < kSmallestGlyph) return;
    if (glyphs.points.empty() || !Meets(BoundsOf(glyphs.points), marks.clip)) return;
    platform::SetPen(marks.canvas, platform::kNoPen, 0);
    platform::SetBrush(marks.canvas, Paint(marks, Ink::RunwayMarking, Feet(5) * size));
    FillOutline(marks.canvas, glyphs);
}

// The letter stands before the number, where a landing pilot reads it below. Returns where it ends.
double Designation(const MarkPainter& marks, const RunwayEnd& end, double from) {
    const std::string name = model::RunwayEndName(end.number, end.designator);
    const size_t digits = std::min(name.find_first_not_of("0123456789"), name.size());
    const std::string number = name.substr(0, digits), letters = name.substr(digits);
    const double size = DesignationSize(marks.runway->width);
    Outline glyphs;
    double at = from;
    for (const std::string& line : { letters, number }) {
        if (line.empty()) continue;
        if (at > from) at += kLetterGap * size;
        AddGlyphLine(&glyphs, end.frame, line, 0, at, size, kDigitGap);
        at += kGlyphHeight * size;
    }
    PaintGlyphs(marks, glyphs, size);
    return at;
}

double StolMark(const MarkPainter& marks, const RunwayEnd& end, double from) {
    constexpr double kGap = Feet(8);
    const double size = std::min(1.0, marks.runway->width * kNumberShare / GlyphLineWidth(4, 1, kGap));
    Outline glyphs;
    AddGlyphLine(&glyphs, end.frame, "STOL", 0, from, size, kGap);
    PaintGlyphs(marks, glyphs, size);
    return from + kGlyphHeight * size;
}

// Of a runway too short for the usual place, by the distance there is to land: ICAO Annex 14, table 5-1. Metres from the
// landing threshold.
double ShortAimingStart(double landingDistance) {
    constexpr struct { double below, start; } kRows[] = { { 800, 150 }, { 1200, 250 }, { 2400, 300 } };
    for (const auto& row : kRows) {
        if (landingDistance < row.below) return row.start;
    }
    return 400;
}

void AimingPoint(const MarkPainter& marks, const RunwayEnd& end) {
    const double length = marks.runway->length >= kLongRunway ? kAimingLength : kShortAimingLength;
    const double limit = marks.runway->length / 2 - length, shrink = Shrink(*marks.runway);
    double near = end.displaced + kAimingStart;
    if (near > limit) near = end.displaced + ShortAimingStart(marks.runway->length - end.displaced);
    if (near > limit) return;
    BarPair(marks, end.frame, kInnerEdge * shrink, kAimingWidth * shrink, near, length);
}

// A precision runway's bars tell how far it is to the threshold; on others there is one a side at every place.
void TouchdownZone(const MarkPainter& marks, const RunwayEnd& end) {
    const double shrink = Shrink(*marks.runway);
    const bool coded = (marks.runway->marks & kPrecision) != 0;
    const double width = coded ? kZoneWidth : kPlainZoneWidth;
    double near = end.displaced;
    for (const int bars : kZoneBars) {
        near += kZoneStep;
        if (near + kZoneLength > marks.runway->length / 2 - kZoneMiddle) return;
        for (int i = 0; i < (coded ? bars : std::min(bars, 1)); ++i) {
            const double inner = (kInnerEdge + i * (kZoneWidth + kZoneGap)) * shrink;
            BarPair(marks, end.frame, inner, width * shrink, near, kZoneLength);
        }
    }
}

void ArrowHead(const MarkPainter& marks, const RunwayEnd& end, double across, double tip) {
    const std::array corners = { At(end.frame, across, tip),
                                 At(end.frame, across + kArrowHeadWidth / 2, tip - kArrowHead),
                                 At(end.frame, across - kArrowHeadWidth / 2, tip - kArrowHead) };
    if (!Meets(BoundsOf(corners), marks.clip)) return;
    platform::SetPen(marks.canvas, platform::kNoPen, 0);
    platform::SetBrush(marks.canvas, Paint(marks, Ink::RunwayMarking, kArrowHeadWidth / 2));
    FillPolygon(marks.canvas, corners);
}

// Arrows along the centre line lead to the displaced threshold's bar; a row of heads stands before it.
void DisplacedThreshold(const MarkPainter& marks, const RunwayEnd& end) {
    const double half = marks.runway->width / 2, bar = end.displaced - kThresholdBar;
    if (bar <= 0) return;
    Bar(marks, end.frame, -half, half, bar, end.displaced);
    double tip = bar - Feet(5);
    if (tip < kArrowHead) return;
    const int heads = std::clamp(static_cast<int>(std::lround(2 * half / kHeadRoom)), 1, kMostHeads);
    for (int i = 0; i < heads; ++i) ArrowHead(marks, end, half * ((2 * i + 1.0) / heads - 1), tip);
    tip -= kArrowHead + kArrowGap / 2;
    for (; tip >= kArrowLength; tip -= kArrowLength + kArrowGap) {
        ArrowHead(marks, end, 0, tip);
        Bar(marks, end.frame, -Feet(1.5), Feet(1.5), tip - kArrowLength, tip - kArrowHead);
    }
}

// A closed end's cross, on its designation or where that would be.
void ClosedCross(const MarkPainter& marks, const RunwayEnd& end) {
    const double arm = std::min(kCrossArm, marks.runway->width * 0.4), half = kCrossStroke * arm / kCrossArm / 2;
    const double start = marks.runway->marks & kThresholdStripes ? kStripeStart + kStripeLength + kDesignationGap
                                                                 : kPlainDesignationStart;
    const double near = std::min(end.displaced + start + kGlyphHeight / 2, marks.runway->length / 2);
    const GroundFrame middle = { At(end.frame, 0, near), end.frame.right, end.frame.ahead, end.frame.scale };
    for (const double turn : { 1.0, -1.0 }) {
        GroundFrame stroke = middle;
        stroke.ahead = (middle.ahead + middle.right * turn) * std::sqrt(0.5);
        stroke.right = TurnedRight(stroke.ahead);
        Bar(marks, stroke, -half, half, -arm, arm, Ink::RunwayYellow);
    }
}

bool HasStripes(const RunwayShape& runway, const RunwayEnd& end) {
    return (runway.marks & kThresholdStripes) && end.displaced + kStripeStart + kStripeLength < runway.length / 2;
}

double DesignationStart(const RunwayShape& runway, const RunwayEnd& end) {
    const bool striped = HasStripes(runway, end);
    return end.displaced + (striped ? kStripeStart + kStripeLength + kDesignationGap : kPlainDesignationStart);
}

// Everything at one end, from the threshold inward. Returns where its centre line may begin.
double MarkEnd(const MarkPainter& marks, const RunwayEnd& end) {
    const uint16_t flags = marks.runway->marks;
    if (end.displaced > 0) DisplacedThreshold(marks, end);
    if (!end.marked) return end.displaced;
    const double limit = marks.runway->length / 2;
    double at = end.displaced;
    if (HasStripes(*marks.runway, end)) {
        ThresholdStripes(marks, end);
        at += kStripeStart + kStripeLength;
    }
    if ((flags & kDesignation) && HasRoomForDesignation(*marks.runway, end))
        at = Designation(marks, end, DesignationStart(*marks.runway, end));
    if (end.stol && at + kDesignationGap + kGlyphHeight < limit) at = StolMark(marks, end, at + kDesignationGap);
    if (flags & kAimingPoints) AimingPoint(marks, end);
    if (flags & kTouchdownMarks) TouchdownZone(marks, end);
    return at > end.displaced ? at + kDesignationGap : at;
}

// By what the runway is used for: precision approaches, others by instruments (those have a marked threshold), by sight.
double CentreLineWidth(uint16_t flags) {
    if (flags & kPrecision) return Feet(3);
    return flags & kThresholdStripes ? Feet(1.5) : Feet(1);
}

// Dashes of full length from end to end; the gaps between them give way.
void CentreLine(const MarkPainter& marks, double primaryStart, double secondaryStart) {
    const RunwayShape& runway = *marks.runway;
    const double room = runway.length - primaryStart - secondaryStart;
    const double count = std::floor((room + kDashGap) / (kDashLength + kDashGap));
    if (count < 1) return;
    const double gap = count > 1 ? (room - count * kDashLength) / (count - 1) : 0;
    const double half = CentreLineWidth(runway.marks) / 2;
    for (double i = 0; i < count; ++i) {
        const double near = primaryStart + i * (kDashLength + gap);
        Bar(marks, runway.ends[0].frame, -half, half, near, near + kDashLength);
    }
}

// Seen from so far that they would cover the runway's outline, they move one pixel inward.
void EdgeLines(const MarkPainter& marks) {
    const RunwayShape& runway = *marks.runway;
    const double width = runway.width >= Feet(100) ? Feet(3) : Feet(1.5);
    const double near = runway.ends[0].displaced, far = runway.length - runway.ends[1].displaced;
    const double inset = width * view.pixelsPerMetre < 1 ? 1 / view.pixelsPerMetre : 0;
    const double inner = runway.width / 2 - width - inset;
    if (far > near && inner > 0) BarPair(marks, runway.ends[0].frame, inner, width, near, far - near);
}

}  // namespace

bool HasRoomForDesignation(const RunwayShape& runway, const RunwayEnd& end) {
    return DesignationStart(runway, end) + 3 * kGlyphHeight < runway.length / 2;
}

double DesignationSize(double runwayWidth) {
    return std::min(1.0, runwayWidth * kNumberShare / GlyphLineWidth(2, 1, kDigitGap));
}

void PaintMarkingsOf(Canvas* canvas, const RunwayShape& runway, Colour ground) {
    Outline outline;
    MoveTo(&outline, runway.corners[0]);
    for (size_t i = 1; i < runway.corners.size(); ++i) LineTo(&outline, runway.corners[i]);
    Close(&outline);
    const platform::Path clip = PathOf(outline);
    if (clip.steps.empty() || runway.length <= 0 || runway.width <= 0) return;
    const MarkPainter marks = { canvas, &runway, ground, ClipBox() };
    platform::PushClip(canvas, clip);
    if (runway.marks & kEdgeLines) EdgeLines(marks);
    const double primaryStart = MarkEnd(marks, runway.ends[0]), secondaryStart = MarkEnd(marks, runway.ends[1]);
    if (runway.marks & kCentreLine) CentreLine(marks, primaryStart, secondaryStart);
    for (const RunwayEnd& end : runway.ends) {
        if (end.closed) ClosedCross(marks, end);
    }
    platform::PopClip(canvas);
}

}  // namespace map
