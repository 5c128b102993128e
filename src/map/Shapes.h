// Shapes.h - figures in screen coordinates with fractions, and how they reach a canvas.
//
// A figure is culled and cut in doubles and only then rounded (toward zero). Zoomed in far enough, an
// edge may reach far beyond what drawing targets can take: such figures are cut to a large safe box first.
#pragma once

#include <span>
#include <vector>

#include "model/Geodesy.h"
#include "model/Geometry.h"
#include "platform/Canvas.h"

namespace map {

using model::Pixel;
using model::Point;
using platform::Canvas;

constexpr double Feet(double feet) { return feet * model::kMetresPerFoot; }  // in metres

constexpr double kSafeReach = 1 << 24;  // no coordinate handed to a canvas is farther from 0, either way

// Truncated toward zero. Beyond the range of a pixel it stays at the end of the range; not-a-number lands
// there too, so that it is culled like anything far away.
int32_t ToWhole(double value);
Pixel ToPixel(Point point);

// Metres at the scale of the view in whole pixels: half added and truncated, at least 1 and at most the reach above.
int ScaledPixels(double metres);

// What is so many pixels long on a screen, on the page that is painted: the same there, more on a fine printer.
double FromScreen(double pixels);

// Inline: they are most of what a paint computes.
constexpr Point operator+(Point a, Point b) { return { a.x + b.x, a.y + b.y }; }
constexpr Point operator-(Point a, Point b) { return { a.x - b.x, a.y - b.y }; }
constexpr Point operator*(Point a, double factor) { return { a.x * factor, a.y * factor }; }
constexpr Point TurnedRight(Point a) { return { -a.y, a.x }; }  // by a quarter turn, as seen on the screen
double Length(Point a);
Point HeadingOnScreen(double heading);  // unit vector of a true heading (radians) at the view's rotation

struct Box {
    double left = 0, top = 0, right = 0, bottom = 0;
};
Box BoundsOf(std::span<const Point> points);  // of at least one point
Box BoundsOf(Point centre, double radius);
bool Meets(const Box& a, const Box& b);  // touching counts; not-a-number meets nothing
bool Contains(const Box& box, Point point);
Box Grown(const Box& box, double dx, double dy);
Box ClientBox();   // the client rectangle
Box VisibleBox();  // what the bars of the window leave of it
Box ClipBox();     // grown by a tenth of its size on every side: what lies outside is not drawn

// An outline of lines and curves; several closed figures may follow each other.
struct Outline {
    std::vector<platform::Path::Step> steps;
    std::vector<Point> points;
    Point last;  // end of the last step
};
void MoveTo(Outline* outline, Point to);
void LineTo(Outline* outline, Point to);
// A quadratic curve through `control`; drawn as the equivalent cubic, computed in whole pixels with the
// division by three truncated.
void QuadTo(Outline* outline, Point control, Point to);
void Close(Outline* outline);
void Clear(Outline* outline);
platform::Path PathOf(const Outline& outline);  // cut to the safe box

// With the pen and brush in force.
void StrokeLine(Canvas* canvas, Point from, Point to);
void StrokeLines(Canvas* canvas, std::span<const Point> points);
void FillPolygon(Canvas* canvas, std::span<const Point> points);
void FillOutline(Canvas* canvas, const Outline& outline);
void FillCircle(Canvas* canvas, Point centre, double radius);  // radius rounded already

// What remains of the segment inside the box; false when nothing does.
bool CutToBox(const Box& box, Point* from, Point* to);

}  // namespace map
