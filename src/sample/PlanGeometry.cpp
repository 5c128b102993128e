// PlanGeometry.cpp - see PlanGeometry.h.
#include "sample/PlanGeometry.h"

#include <algorithm>
#include <cmath>

namespace sample {

double Length(Local a) { return std::sqrt(Dot(a, a)); }

Local Ahead(double heading) {
    const double angle = heading * model::kRadiansPerDegree;
    return { std::sin(angle), std::cos(angle) };
}

double Wrapped(double heading) {
    const double wrapped = std::fmod(heading, 360.0);
    return wrapped < 0 ? wrapped + 360 : wrapped;
}

double HeadingOf(Local direction) {
    return Wrapped(std::atan2(direction.east, direction.north) * model::kDegreesPerRadian);
}

double HeadingDifference(double a, double b) {
    const double difference = Wrapped(a - b);
    return difference > 180 ? 360 - difference : difference;
}

RunwayFrame InFrame(const RunwayPlan& runway, Local point) {
    const Local offset = point - runway.centre;
    return { Dot(offset, Ahead(runway.heading)), Dot(offset, RightOf(runway.heading)) };
}

Local FromFrame(const RunwayPlan& runway, RunwayFrame point) {
    return runway.centre + Ahead(runway.heading) * point.along + RightOf(runway.heading) * point.right;
}

double NearestOnSegment(Local point, Local from, Local to) {
    const Local way = to - from;
    const double square = Dot(way, way);
    return square == 0 ? 0 : std::clamp(Dot(point - from, way) / square, 0.0, 1.0);
}

double DistanceToSegment(Local point, Local from, Local to) {
    return Distance(point, from + (to - from) * NearestOnSegment(point, from, to));
}

std::optional<Crossing> SegmentCrossing(Local from1, Local to1, Local from2, Local to2) {
    const Local way1 = to1 - from1, way2 = to2 - from2;
    const double area = Cross(way1, way2);
    if (std::fabs(area) < 1e-9 * (1 + Length(way1) * Length(way2))) return std::nullopt;
    const Local between = from2 - from1;
    const Crossing crossing{ Cross(between, way2) / area, Cross(between, way1) / area };
    const bool both =
        crossing.onFirst >= 0 && crossing.onFirst <= 1 && crossing.onSecond >= 0 && crossing.onSecond <= 1;
    return both ? std::optional(crossing) : std::nullopt;
}

double DistanceToRunway(const RunwayPlan& runway, Local point) {
    const RunwayFrame frame = InFrame(runway, point);
    const double along = std::max(0.0, std::fabs(frame.along) - runway.length / 2);
    const double across = std::max(0.0, std::fabs(frame.right) - runway.width / 2);
    return std::sqrt(along * along + across * across);
}

}  // namespace sample
