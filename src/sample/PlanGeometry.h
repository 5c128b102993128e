// PlanGeometry.h - plane geometry in metres east and north, with headings in degrees true.
#pragma once

#include <optional>

#include "sample/AirportPlan.h"

namespace sample {

inline Local operator+(Local a, Local b) { return { a.east + b.east, a.north + b.north }; }
inline Local operator-(Local a, Local b) { return { a.east - b.east, a.north - b.north }; }
inline Local operator*(Local a, double k) { return { a.east * k, a.north * k }; }
inline double Dot(Local a, Local b) { return a.east * b.east + a.north * b.north; }
inline double Cross(Local a, Local b) { return a.east * b.north - a.north * b.east; }
double Length(Local a);
inline double Distance(Local a, Local b) { return Length(a - b); }

Local Ahead(double heading);  // the unit vector that way
inline Local RightOf(double heading) { return Ahead(heading + 90); }
double HeadingOf(Local direction);             // [0, 360)
double Wrapped(double heading);                // into [0, 360)
double HeadingDifference(double a, double b);  // 0 to 180

// A point seen from a runway: along the heading and to the right, from the centre.
struct RunwayFrame {
    double along = 0, right = 0;
};
RunwayFrame InFrame(const RunwayPlan& runway, Local point);
Local FromFrame(const RunwayPlan& runway, RunwayFrame point);
inline Local PrimaryEnd(const RunwayPlan& runway) { return FromFrame(runway, { -runway.length / 2, 0 }); }
inline Local SecondaryEnd(const RunwayPlan& runway) { return FromFrame(runway, { runway.length / 2, 0 }); }

double DistanceToSegment(Local point, Local from, Local to);
// Where along from-to (0 to 1) the nearest point to `point` lies.
double NearestOnSegment(Local point, Local from, Local to);
// Where the two segments cross, as a part of the first and a part of the second. Parallel ones never do.
struct Crossing {
    double onFirst = 0, onSecond = 0;
};
std::optional<Crossing> SegmentCrossing(Local from1, Local to1, Local from2, Local to2);
double DistanceToRunway(const RunwayPlan& runway, Local point);  // 0 on its pavement

}  // namespace sample
