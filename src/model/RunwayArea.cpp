// RunwayArea.cpp - see RunwayArea.h. Offsets are taken from the examined position to the runway's centre, as
// everywhere: the east distance follows the parallel of the second point.
#include "model/RunwayArea.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "model/ObjectList.h"
#include "model/Positions.h"
#include "model/Records.h"

namespace model {

namespace {

// Headings nearer to each other than this are equal: a heading and its reciprocal differ by rounding.
constexpr double kSameAngle = 1e-9;  // radians

// The angle between two lines, 0 to a quarter turn.
double AngleBetweenLines(double a, double b) {
    const double angle = std::fabs(std::remainder(a - b, kPi));
    return std::min(angle, kPi - angle);
}

}  // namespace

RunwayArea AreaOf(SceneryObject* runway) {
    const auto& payload = PayloadAs<RunwayPayload>(runway);
    RunwayArea area;
    area.runway = runway;
    area.centre = PositionOf(runway);
    area.heading = double{ payload.body.heading } * kRadiansPerDegree;
    area.sine = std::sin(area.heading);
    area.cosine = std::cos(area.heading);
    const double half = double{ payload.body.length } / 2;
    area.low = -(half + double{ payload.primaryBlastPad.length });
    area.high = half + double{ payload.secondaryBlastPad.length };
    area.width = double{ payload.body.width };
    area.halfWidth = area.width / 2;
    return area;
}

std::vector<RunwayArea> RunwayAreas() {
    std::vector<RunwayArea> areas;
    ForEachOfKind(kRunway, [&](SceneryObject* runway) { areas.push_back(AreaOf(runway)); });
    return areas;
}

Point PlaceOnRunway(const RunwayArea& area, LatLon position) {
    const Local toCentre = LatLonToLocal(position, area.centre);
    return { toCentre.north * area.sine - toCentre.east * area.cosine,
             -toCentre.east * area.sine - toCentre.north * area.cosine };
}

bool Contains(const RunwayArea& area, LatLon position) {
    const Point place = PlaceOnRunway(area, position);
    return place.y >= area.low && place.y <= area.high && std::fabs(place.x) <= area.halfWidth;
}

LatLon MidpointOf(LatLon start, LatLon end) {
    Polar way = RangeAndBearing(start, end);
    way.range /= 2;
    return OffsetByPolar(start, way);
}

const RunwayArea* RunwayUnder(std::span<const RunwayArea> areas, LatLon start, LatLon end) {
    const LatLon middle = MidpointOf(start, end);
    const double direction = RangeAndBearing(start, end).bearing;
    const RunwayArea* best = nullptr;
    double bestAngle = std::numeric_limits<double>::infinity();
    for (const RunwayArea& area : areas) {
        const double angle = AngleBetweenLines(area.heading, direction);
        if (!(angle < bestAngle - kSameAngle)) continue;  // before the costlier test
        if (!Contains(area, start) && !Contains(area, end) && !Contains(area, middle)) continue;
        best = &area;
        bestAngle = angle;
    }
    return best;
}

}  // namespace model
