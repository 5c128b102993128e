// Geodesy.cpp - see Geodesy.h. The flat frame is good for the few miles of an airport; what matters is
// that both directions use the same formulas.
#include "model/Geodesy.h"

#include <algorithm>
#include <cmath>

#include "model/Geometry.h"

namespace model {

namespace {

constexpr double kLatUnitsPerQuarter = 268435456.0;  // 2^28 from pole to equator
constexpr double kLonUnitsPerHalf = kEncodedTurn / 2.0;
constexpr double kPoleCosine = 1e-6;

// Of a great circle. By half angles, as in the haversine formula: the cosine of an angle as small as those of an
// airport tells it to 0.1 m only. More than 1 is half a turn, no number is 0.
double AngleOfHalfSine(double sine) { return std::isnan(sine) ? 0 : 2 * std::asin(std::min(1.0, std::fabs(sine))); }

// What is no number is 0.
uint32_t Code(double units, double most) { return units > 0 ? static_cast<uint32_t>(std::min(units, most)) : 0; }

}  // namespace

Local LatLonToLocal(LatLon origin, LatLon point) {
    double dLon = point.lon - origin.lon;
    if (dLon > kPi)
        dLon -= kTwoPi;
    else if (dLon < -kPi)
        dLon += kTwoPi;
    Local offset;
    offset.north = (point.lat - origin.lat) * kNorthSouthRadius;
    offset.east = AngleOfHalfSine(std::cos(point.lat) * std::sin(dLon / 2)) * kEastWestRadius;
    if (dLon > 0) offset.east = -offset.east;  // west of the origin
    return offset;
}

LatLon LocalToLatLon(LatLon origin, Local offset) {
    LatLon point;
    point.lat = origin.lat + offset.north / kNorthSouthRadius;
    const double angle = std::fabs(offset.east) / kEastWestRadius;
    const double cosLat = std::cos(point.lat);
    const double change = cosLat < kPoleCosine ? 0 : AngleOfHalfSine(std::sin(angle / 2) / cosLat);
    point.lon = offset.east >= 0 ? origin.lon - change : origin.lon + change;
    return point;
}

Polar LocalToPolar(Local offset) {
    Polar polar;
    polar.range = std::sqrt(Square(offset.east) + Square(offset.north));
    if (offset.north == 0) {
        if (offset.east < 0)
            polar.bearing = 4.71238898038469;
        else if (offset.east > 0)
            polar.bearing = 1.5707963267948966;
        return polar;
    }
    polar.bearing = std::atan(offset.east / offset.north);
    if (offset.north < 0)
        polar.bearing += kPi;
    else if (polar.bearing < 0)
        polar.bearing += kTwoPi;
    if (polar.bearing >= kTwoPi) polar.bearing = 0;  // a hair west of north
    return polar;
}

Local PolarToLocal(Polar polar) {
    return { polar.range * std::sin(polar.bearing), polar.range * std::cos(polar.bearing) };
}

double DistanceBetween(LatLon from, LatLon to) { return RangeAndBearing(from, to).range; }

Polar RangeAndBearing(LatLon from, LatLon to) { return LocalToPolar(LatLonToLocal(from, to)); }

LatLon OffsetByPolar(LatLon origin, Polar polar) { return LocalToLatLon(origin, PolarToLocal(polar)); }

LatLon BglToLatLon(BglPoint code) {
    return { kPi / 2 - code.latCode / kLatUnitsPerQuarter * (kPi / 2), kPi - code.lonCode * kPi / kLonUnitsPerHalf };
}

BglPoint LatLonToBgl(LatLon position) {
    const double lat = (kPi / 2 - position.lat) * (2 / kPi) * kLatUnitsPerQuarter;
    double lon = (kPi - position.lon) * (1 / kPi) * kLonUnitsPerHalf;
    if (lon < 0)
        lon += 2 * kLonUnitsPerHalf;
    else if (lon > 2 * kLonUnitsPerHalf)
        lon -= 2 * kLonUnitsPerHalf;
    return { Code(lat, 2 * kLatUnitsPerQuarter), Code(lon, 2 * kLonUnitsPerHalf) };
}

}  // namespace model
