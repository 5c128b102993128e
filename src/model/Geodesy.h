// Geodesy.h - the earth model and the conversions between positions, local offsets and file codes.
//
// Angles are radians; latitude is north-positive, longitude is stored WEST-positive (the negated
// geographic longitude). The file encoding, the sign of offsets and the hemisphere letters are built on
// that; it is not a mistake to repair.
#pragma once

#include <cstdint>

namespace model {

constexpr double kPi = 3.14159265358979323846;
constexpr double kTwoPi = 2 * kPi;

constexpr double kEastWestRadius = 6378134.344407706;    // m: a circumference of 40,075,000 m
constexpr double kNorthSouthRadius = 6367311.808277457;  // m: a circumference of 40,007,000 m

constexpr double kFeetPerMetre = 3.280839895;
constexpr double kMetresPerFoot = 0.3048;
constexpr double kMetresPerNauticalMile = 1852.1759;  // deliberately not 1852
constexpr double kDegreesPerRadian = 57.29577951308232;
constexpr double kRadiansPerDegree = 0.017453292519943295;

struct LatLon {
    double lat = 0, lon = 0;  // radians, west-positive longitude
};
struct Local {
    double east = 0, north = 0;  // metres
};
struct Polar {
    double range = 0;    // metres
    double bearing = 0;  // radians clockwise from true north, [0, 2 pi)
};
struct BglPoint {
    uint32_t latCode = 0, lonCode = 0;
};

// Offset of `point` from `origin`. The east distance is measured along the parallel of `point`, not of
// `origin`. Equal longitudes give an east offset of exactly 0.
Local LatLonToLocal(LatLon origin, LatLon point);

// The inverse. Where the resulting latitude lies at a pole the longitude stays that of `origin`.
LatLon LocalToLatLon(LatLon origin, Local offset);

Polar LocalToPolar(Local offset);
Local PolarToLocal(Polar polar);

double DistanceBetween(LatLon from, LatLon to);  // metres
Polar RangeAndBearing(LatLon from, LatLon to);
LatLon OffsetByPolar(LatLon origin, Polar polar);

// The scenery file's fixed-point angles: latitude code 0 is the north pole and grows southward over
// 2^29 units, longitude code 0 is 180 degrees west and grows eastward over 3 x 2^28 units a turn.
constexpr int64_t kEncodedTurn = 0x30000000;
LatLon BglToLatLon(BglPoint code);
// Truncates toward zero. A longitude beyond half a turn is taken once around the earth first, and a latitude
// beyond a pole lies at it: the codes have no places for them.
BglPoint LatLonToBgl(LatLon position);

}  // namespace model
