// PaintNavaids.cpp - ILS, marker beacons, NDBs and VORs.
//
// An ILS beam begins at the landing threshold of the runway it serves, as wide as it is there, so that the
// runway under it stays free for the mouse; without such a runway it begins at the antenna.
#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "map/MapView.h"
#include "map/Painter.h"
#include "map/RunwayShape.h"
#include "map/Selection.h"
#include "model/Ident.h"
#include "model/ObjectList.h"
#include "model/Positions.h"

namespace map {

namespace {

constexpr double kBeamLength = 5556;                     // 3 nautical miles of the beam are drawn
constexpr int kBarbs = 36;                               // lines across the right half of the beam
constexpr double kMostBeamWidth = 60;                    // degrees; more is no localizer
constexpr double kAntennaHalf = 22, kAntennaDepth = 3;   // metres: the row of antennas across the course
constexpr double kGlideSlopeReach = 18, kDmeReach = 11;  // metres from the middle to the corners
constexpr double kMarkerLength = 70, kMarkerWidth = 28;  // half the lens of a marker beacon
constexpr double kNdbRadius = 40, kVorRadius = 45;
constexpr double kCornerReach = 1.42;            // of half a square's side, from the middle to a corner
constexpr int kLeastSymbol = 9;                  // pixels
constexpr int kLabelHeight = 13, kLabelGap = 3;  // pixels

double SymbolReach(double metres) {
    return std::max(double(ScaledPixels(metres)), std::floor(FromScreen(kLeastSymbol)));
}

std::vector<Pixel> ToPixels(std::span<const Point> points) {
    std::vector<Pixel> pixels;
    for (const Point& point : points) pixels.push_back(ToPixel(point));
    return pixels;
}

// Symbols without a course lie on the map as a chart prints them, north up: they turn with it.
std::array<Point, 4> SquareAround(Point at, double half) {
    const Point ahead = HeadingOnScreen(0) * half, side = TurnedRight(ahead);
    return { at + ahead - side, at + ahead + side, at - ahead + side, at - ahead - side };
}

LatLon PositionOfCode(uint32_t latitude, uint32_t longitude) { return model::BglToLatLon({ latitude, longitude }); }

void PaintIdent(const Painter& painter, uint32_t packed, Point at, double radius, Colour colour) {
    const std::string text = model::UnpackIdent(packed >> model::kIdentShift);
    platform::TextRun run;
    run.text = text;
    run.at = ToPixel(at + Point{ radius + FromScreen(kLabelGap), 0 });
    run.alignY = platform::AlignY::Middle;
    run.height = kLabelHeight;
    run.bold = true;
    run.colour = colour;
    platform::DrawText(painter.canvas, run);
}

// Distance along the course from the antenna back to the threshold that this ILS serves, pixels.
double DistanceToThreshold(const model::IlsPayload& ils, Point antenna, Point course) {
    const uint32_t ident = ils.body.ident >> model::kIdentShift;
    double distance = 0;
    model::ForEachOfKind(model::kRunway, [&](SceneryObject* runway) {
        const model::RunwayRecord& body = model::PayloadAs<model::RunwayPayload>(runway).body;
        const std::array idents = { uint32_t{ body.primaryIls }, uint32_t{ body.secondaryIls } };
        const RunwayShape shape = ShapeOfRunway(runway);
        for (size_t i = 0; i < 2; ++i) {
            if (ident == 0 || idents[i] != ident) continue;
            const Point offset = antenna - At(shape.ends[i].frame, 0, shape.ends[i].displaced);
            distance = std::max(distance, offset.x * course.x + offset.y * course.y);
        }
    });
    return distance;
}

// An ILS on the screen: where the antenna stands and which way the course leads.
struct Course {
    Point antenna, along, right;
    double spread = 0;  // half the beam's width at a distance of 1
    Colour line, fill;
};

Course CourseOf(const model::IlsPayload& ils, bool selected) {
    Course course;
    course.antenna = WorldToScreen(PositionOfCode(ils.body.latitude, ils.body.longitude));
    course.along = HeadingOnScreen(double{ ils.localizer.heading } * model::kRadiansPerDegree);
    course.right = TurnedRight(course.along);
    const double width = std::clamp(double{ ils.localizer.width }, 0.0, kMostBeamWidth);
    course.spread = std::tan(width / 2 * model::kRadiansPerDegree);
    course.line = InkOf(selected ? Ink::SelectedOutline : Ink::Navaid);
    course.fill = InkOf(selected ? Ink::SelectedFill : Ink::NavaidFill);
    return course;
}

// The chart's feather: the beam's outline, notched at the far end, with barbs on its right half that leave the
// runway's name and its lights in sight. The selected beam is filled.
void PaintBeam(const Painter& painter, const model::IlsPayload& ils, const Course& course, bool selected,
               ScreenParts* parts) {
    const double near = DistanceToThreshold(ils, course.antenna, course.along);
    const double far = near + kBeamLength * painter.scale, notch = far - (far - near) * 0.08;
    const auto at = [&](double side, double distance) {
        return course.antenna - course.along * distance + course.right * (side * distance * course.spread);
    };
    const std::array beam = { at(-1, near), at(1, near), at(1, far), at(-1, far) };
    if (!Meets(BoundsOf(beam), painter.clip)) return;
    parts->beam = ToPixels(beam);
    const std::array rightHalf = { at(0, near), beam[1], beam[2], at(0, notch) };
    const std::array leftHalf = { at(0, near), beam[0], beam[3], at(0, notch) };
    Stroke(painter, 1, course.line);
    FillPolygon(painter.canvas, leftHalf);
    if (selected) Fill(painter, course.fill, course.line);
    FillPolygon(painter.canvas, rightHalf);
    const double step = (notch - near) / kBarbs;
    for (int i = 1; i < kBarbs && !selected; ++i) {
        StrokeLine(painter.canvas, at(0, near + i * step), at(1, near + (i + 1) * step));
    }
}

void PaintLocalizer(const Painter& painter, const model::IlsPayload& ils, bool selected, ScreenParts* parts) {
    const Course course = CourseOf(ils, selected);
    PaintBeam(painter, ils, course, selected, parts);
    const GroundFrame frame = { course.antenna, course.right, course.along, painter.scale };
    const double half = std::max(kAntennaHalf, FromScreen(kLeastSymbol) / painter.scale);
    const double depth = std::max(kAntennaDepth, FromScreen(2) / painter.scale);
    const auto row = Rectangle(frame, -half, half, -depth, depth);
    if (!Meets(BoundsOf(row), painter.clip)) return;
    parts->localizer = ToPixels(row);
    Fill(painter, selected ? course.fill : course.line, course.line);
    FillPolygon(painter.canvas, row);
    PaintIdent(painter, ils.body.ident, course.antenna, half * painter.scale, course.line);
}

void PaintGlideSlope(const Painter& painter, const model::IlsPayload& ils, bool selected, ScreenParts* parts) {
    const Point at = WorldToScreen(PositionOfCode(ils.glideSlope.latitude, ils.glideSlope.longitude));
    const double reach = SymbolReach(kGlideSlopeReach);
    if (!Meets(BoundsOf(at, reach), painter.clip)) return;
    // The point shows where the glide path comes from: against the course.
    const Point back = HeadingOnScreen(double{ ils.localizer.heading } * model::kRadiansPerDegree) * -reach;
    const Point side = TurnedRight(back);
    const std::array corners = { at + back, at - back * 0.6 + side * 0.6, at - back * 0.6 - side * 0.6 };
    parts->glideSlope = ToPixels(corners);
    Fill(painter, InkOf(selected ? Ink::SelectedFill : Ink::NavaidFill),
         InkOf(selected ? Ink::SelectedOutline : Ink::Navaid));
    FillPolygon(painter.canvas, corners);
}

void PaintDme(const Painter& painter, const model::DmePart& dme, bool selected, std::vector<Pixel>* place) {
    const Point at = WorldToScreen(PositionOfCode(dme.latitude, dme.longitude));
    const auto corners = SquareAround(at, SymbolReach(kDmeReach));
    if (!Meets(BoundsOf(corners), painter.clip)) return;
    *place = ToPixels(corners);
    Stroke(painter, 2, InkOf(selected ? Ink::SelectedFill : Ink::Navaid));
    FillPolygon(painter.canvas, corners);
}

void PaintIls(const Painter& painter, SceneryObject* object) {
    const auto& ils = model::PayloadAs<model::IlsPayload>(object);
    const bool whole = (object->flags & model::kWholeSelected) != 0;
    const auto lit = [&](int part) { return model::IsSelected(object) && (whole || (ils.selectedParts & part) != 0); };
    ScreenParts& parts = PlaceParts(object);
    PaintLocalizer(painter, ils, lit(model::kLocalizerPart), &parts);
    if (ils.body.flags & model::kHasGlideSlope) PaintGlideSlope(painter, ils, lit(model::kGlideSlopePart), &parts);
    if (ils.body.flags & model::kHasDme) PaintDme(painter, ils.dme, lit(model::kDmePart), &parts.dme);
}

// A lens across the course.
void PaintMarkerBeacon(const Painter& painter, SceneryObject* object) {
    const auto& beacon = model::PayloadAs<model::MarkerBeaconPayload>(object);
    const Point at = WorldToScreen(model::PositionOf(object));
    const Point ahead = HeadingOnScreen(beacon.heading * model::kTwoPi / 256);
    const double length = SymbolReach(kMarkerLength), width = length * (kMarkerWidth / kMarkerLength);
    if (!Meets(BoundsOf(at, length), painter.clip)) return;
    const Point tip = TurnedRight(ahead) * length, bulge = ahead * width;
    const std::array corners = { at - tip - bulge, at + tip - bulge, at + tip + bulge, at - tip + bulge };
    PlaceCorners(object, ToPixels(corners));
    Outline lens;
    MoveTo(&lens, at - tip);
    QuadTo(&lens, at + bulge * 2, at + tip);
    QuadTo(&lens, at - bulge * 2, at - tip);
    Close(&lens);
    Fill(painter, FillInk(object, Ink::NavaidFill), OutlineInk(object, Ink::Navaid));
    FillOutline(painter.canvas, lens);
    constexpr const char* kLetters[] = { "I", "M", "O", "B" };
    platform::TextRun run;
    run.text = kLetters[beacon.type & 3];
    run.at = ToPixel(at);
    run.alignX = platform::AlignX::Centre;
    run.alignY = platform::AlignY::Middle;
    run.height = kLabelHeight;
    run.colour = OutlineInk(object, Ink::Navaid);
    if (width * 2 >= FromScreen(kLabelHeight)) platform::DrawText(painter.canvas, run);
}

// Rings of dots around a middle dot.
void PaintNdb(const Painter& painter, SceneryObject* object) {
    const Point at = WorldToScreen(model::PositionOf(object));
    const double radius = SymbolReach(kNdbRadius);
    if (!Meets(BoundsOf(at, radius), painter.clip)) return;
    PlaceCircle(object, ToPixel(at), static_cast<int32_t>(radius));
    const Colour colour = FillInk(object, Ink::Navaid);
    FillOnly(painter, colour);
    const double dot = std::max(1.0, std::floor(radius * 0.06));
    FillCircle(painter.canvas, at, std::max(2.0, std::floor(radius * 0.14)));
    constexpr struct {
        double share;
        int dots;
    } kRings[] = { { 0.4, 10 }, { 0.68, 16 }, { 0.95, 22 } };
    for (const auto& ring : kRings) {
        for (int i = 0; i < ring.dots; ++i) {
            const Point outward = HeadingOnScreen(model::kTwoPi * i / ring.dots);
            FillCircle(painter.canvas, at + outward * (radius * ring.share), dot);
        }
    }
    PaintIdent(painter, model::PayloadAs<model::NdbPayload>(object).ident, at, radius, colour);
}

// A hexagon with a dot; with DME in a square, and a DME by itself the square alone.
void PaintVor(const Painter& painter, SceneryObject* object) {
    const auto& vor = model::PayloadAs<model::VorDmePayload>(object).body;
    const Point at = WorldToScreen(model::PositionOf(object));
    const double radius = SymbolReach(kVorRadius), half = std::floor(radius * 0.8);
    const double reach = vor.flags & model::kHasDme ? std::max(radius, half * kCornerReach) : radius;
    if (!Meets(BoundsOf(at, reach), painter.clip)) return;
    PlaceCircle(object, ToPixel(at), static_cast<int32_t>(radius));
    const Colour colour = FillInk(object, Ink::Navaid);
    Stroke(painter, 2, colour);
    if (vor.flags & model::kHasDme) FillPolygon(painter.canvas, SquareAround(at, half));
    if (vor.flags & model::kHasVor) {
        std::array<Point, 6> hexagon;
        for (int i = 0; i < 6; ++i) {
            const double east = model::kPi / 2;  // where the first corner lies
            hexagon[static_cast<size_t>(i)] = at + HeadingOnScreen(east + model::kTwoPi * i / 6) * half;
        }
        FillPolygon(painter.canvas, hexagon);
    }
    FillOnly(painter, colour);
    FillCircle(painter.canvas, at, std::max(1.0, std::floor(radius * 0.1)));
    PaintIdent(painter, vor.ident, at, reach, colour);
}

void PaintNavaid(const Painter& painter, SceneryObject* object) {
    if (model::IsReplacedStock(object)) return;
    switch (model::KindOf(object)) {
    case model::kIls: PaintIls(painter, object); break;
    case model::kMarkerBeacon: PaintMarkerBeacon(painter, object); break;
    case model::kNdb: PaintNdb(painter, object); break;
    case model::kVorDme: PaintVor(painter, object); break;
    default: break;
    }
}

}  // namespace

void PaintNavaids(Painter* painter) {
    for (SceneryObject* o = model::state.head; o; o = o->next) PaintNavaid(*painter, o);
}

}  // namespace map
