#include "model/Geodesy.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

using namespace model;

constexpr double kDegree = kRadiansPerDegree;

// Geographic degrees: north and EAST positive.
LatLon Position(double north, double east) { return { north * kDegree, -east * kDegree }; }

TEST(Geodesy, RadiiComeFromTheTwoCircumferences) {
    EXPECT_NEAR(kEastWestRadius * kTwoPi, 40075000.0, 1e-3);
    EXPECT_NEAR(kNorthSouthRadius * kTwoPi, 40007000.0, 1e-3);
    EXPECT_NEAR(kEastWestRadius * kDegree, 111319.4444, 1e-4);
    EXPECT_NEAR(kNorthSouthRadius * kDegree, 111130.5556, 1e-4);
}

TEST(Geodesy, UnitFactorsAreThoseOfTheProgram) {
    EXPECT_EQ(kFeetPerMetre, 3.280839895);
    EXPECT_EQ(kMetresPerFoot, 0.3048);
    EXPECT_EQ(kMetresPerNauticalMile, 1852.1759);
    EXPECT_EQ(kDegreesPerRadian, 57.29577951308232);
    EXPECT_EQ(kRadiansPerDegree, 0.017453292519943295);
}

TEST(LatLonToLocal, APointNorthAndEastHasPositiveOffsets) {
    const Local offset = LatLonToLocal(Position(0, 0), Position(1, 1));
    EXPECT_NEAR(offset.north, 111130.5556, 1e-3);
    EXPECT_GT(offset.east, 0);
    EXPECT_LT(LatLonToLocal(Position(0, 0), Position(0, -1)).east, 0);
    EXPECT_LT(LatLonToLocal(Position(0, 0), Position(-1, 0)).north, 0);
}

TEST(LatLonToLocal, ADegreeOfLongitudeAtTheEquatorIs111319Metres) {
    EXPECT_NEAR(LatLonToLocal(Position(0, 10), Position(0, 11)).east, 111319.4444, 1e-3);
    EXPECT_NEAR(LatLonToLocal(Position(0, 10), Position(0, 9)).east, -111319.4444, 1e-3);
}

TEST(LatLonToLocal, PointsOnOneMeridianHaveEastOfExactlyZeroInEitherOrder) {
    for (const double longitude : { -179.9, -122.3, 0.0, 8.5, 180.0 }) {
        const LatLon south = Position(-35.12345, longitude), north = Position(47.98765, longitude);
        EXPECT_EQ(LatLonToLocal(south, north).east, 0);
        EXPECT_EQ(LatLonToLocal(north, south).east, 0);
        EXPECT_FALSE(std::signbit(LatLonToLocal(south, north).east));
    }
}

TEST(LatLonToLocal, APointIsNoDistanceFromItself) {
    const LatLon point = Position(47.449, -122.309);
    EXPECT_EQ(LatLonToLocal(point, point).east, 0);
    EXPECT_EQ(LatLonToLocal(point, point).north, 0);
}

TEST(LatLonToLocal, TheEastDistanceFollowsTheParallelOfTheSecondPoint) {
    const LatLon equator = Position(0, 0), sixty = Position(60, 0.1);
    // Along the parallel of 60 degrees a degree is half as long as along the equator.
    EXPECT_NEAR(LatLonToLocal(equator, sixty).east, 5565.97, 0.05);
    EXPECT_NEAR(LatLonToLocal(sixty, equator).east, -11131.94, 0.05);
}

TEST(LatLonToLocal, PointsBesideThe180thMeridianAreNearEachOther) {
    const Local east = LatLonToLocal(Position(0, 179.9), Position(0, -179.9));
    EXPECT_NEAR(east.east, 0.2 * 111319.4444, 0.01);
    const Local west = LatLonToLocal(Position(0, -179.9), Position(0, 179.9));
    EXPECT_NEAR(west.east, -0.2 * 111319.4444, 0.01);
}

TEST(LatLonToLocal, OppositePointsAreHalfATurnAway) {
    EXPECT_NEAR(std::fabs(LatLonToLocal(Position(0, 0), Position(0, 180)).east), kPi * kEastWestRadius, 1);
}

TEST(LatLonToLocal, AtThePoleEveryPointOfTheParallelIsTheSame) {
    EXPECT_NEAR(LatLonToLocal(Position(90, 0), Position(90, 90)).east, 0, 0.5);
}

TEST(LocalToLatLon, NorthAndEastMoveTheRightWay) {
    const LatLon moved = LocalToLatLon(Position(0, 0), { 111319.4444, 111130.5556 });
    EXPECT_NEAR(moved.lat / kDegree, 1, 1e-6);
    EXPECT_LT(moved.lon, 0);  // east is negative
    EXPECT_NEAR(LocalToLatLon(Position(0, 0), { 111319.4444, 0 }).lon / kDegree, -1, 1e-6);
    EXPECT_NEAR(LocalToLatLon(Position(0, 0), { -111319.4444, 0 }).lon / kDegree, 1, 1e-6);
}

TEST(LocalToLatLon, EastOfZeroKeepsTheLongitude) {
    const LatLon origin = Position(47.3, -122.7);
    for (int north = -2000; north <= 2000; ++north)
        ASSERT_EQ(LocalToLatLon(origin, { 0, static_cast<double>(north) }).lon, origin.lon) << north;
}

TEST(LocalToLatLon, AMicrometreIsNotLostAnywhere) {
    for (double lat = -80; lat <= 80; lat += 7.3) {
        const LatLon origin = Position(lat, 13.7);
        for (double east = -4000; east <= 4000; east += 333.3) {
            for (const double tiny : { 0.0, 1e-5, 0.1 }) {
                const Local offset = LatLonToLocal(origin, LocalToLatLon(origin, { east + tiny, -east / 3 }));
                ASSERT_NEAR(offset.east, east + tiny, 1e-6) << lat;
                ASSERT_NEAR(offset.north, -east / 3, 1e-6) << lat;
            }
        }
    }
}

TEST(LocalToLatLon, AtAPoleTheLongitudeStays) {
    const LatLon pole = Position(90, 45);
    EXPECT_EQ(LocalToLatLon(pole, { 5000, 0 }).lon, pole.lon);
    EXPECT_EQ(LocalToLatLon(pole, { -5000, 0 }).lon, pole.lon);
    const LatLon nearPole = { kPi / 2 - 0.99e-6, 0.5 };
    EXPECT_EQ(LocalToLatLon(nearPole, { 5000, 0 }).lon, 0.5);
    const LatLon fartherOut = { kPi / 2 - 1.01e-5, 0.5 };
    EXPECT_NE(LocalToLatLon(fartherOut, { 50, 0 }).lon, 0.5);
}

TEST(LocalToLatLon, AnEastOffsetLongerThanTheParallelTurnsHalfWay) {
    const LatLon moved = LocalToLatLon(Position(89.99, 0), { 100000, 0 });
    EXPECT_NEAR(std::fabs(moved.lon), kPi, 1e-9);
}

TEST(LocalToLatLon, IsTheInverseOfLatLonToLocalAtAnAirport) {
    std::mt19937 random(42);
    std::uniform_real_distribution<double> metres(-5000, 5000), north(-70, 70), east(-180, 180);
    for (int i = 0; i < 2000; ++i) {
        const LatLon origin = Position(north(random), east(random));
        const Local offset = { metres(random), metres(random) };
        const Local back = LatLonToLocal(origin, LocalToLatLon(origin, offset));
        EXPECT_NEAR(back.north, offset.north, 1e-3);
        const double coarse = std::fabs(offset.east) > 20 ? 0.02 : 0.5;  // acos near 1
        EXPECT_NEAR(back.east, offset.east, coarse);
    }
}

TEST(LocalToPolar, BearingsAreClockwiseFromNorth) {
    EXPECT_NEAR(LocalToPolar({ 0, 5 }).bearing, 0, 1e-15);
    EXPECT_NEAR(LocalToPolar({ 5, 5 }).bearing, kPi / 4, 1e-15);
    EXPECT_EQ(LocalToPolar({ 5, 0 }).bearing, 1.5707963267948966);
    EXPECT_NEAR(LocalToPolar({ 5, -5 }).bearing, 3 * kPi / 4, 1e-15);
    EXPECT_NEAR(LocalToPolar({ 0, -5 }).bearing, kPi, 1e-15);
    EXPECT_NEAR(LocalToPolar({ -5, -5 }).bearing, 5 * kPi / 4, 1e-15);
    EXPECT_EQ(LocalToPolar({ -5, 0 }).bearing, 4.71238898038469);
    EXPECT_NEAR(LocalToPolar({ -5, 5 }).bearing, 7 * kPi / 4, 1e-14);
    EXPECT_EQ(LocalToPolar({ 0, 0 }).bearing, 0);
    EXPECT_EQ(LocalToPolar({ 0, 0 }).range, 0);
}

TEST(LocalToPolar, TheRangeIsTheDistance) {
    EXPECT_NEAR(LocalToPolar({ 3, -4 }).range, 5, 1e-15);
    EXPECT_NEAR(LocalToPolar({ -8, 0 }).range, 8, 1e-15);
}

TEST(LocalToPolar, TheBearingIsAlwaysBelowAFullTurn) {
    EXPECT_EQ(LocalToPolar({ -1e-300, 1 }).bearing, 0);
    EXPECT_EQ(LocalToPolar({ -1e-17, 1 }).bearing, 0);
    std::mt19937 random(7);
    std::uniform_real_distribution<double> exponent(-30, 6), sign(-1, 1);
    for (int i = 0; i < 5000; ++i) {
        const double east = std::copysign(std::pow(10, exponent(random)), sign(random));
        const double north = std::copysign(std::pow(10, exponent(random)), sign(random));
        const double bearing = LocalToPolar({ east, north }).bearing;
        EXPECT_GE(bearing, 0);
        EXPECT_LT(bearing, kTwoPi);
    }
}

TEST(PolarToLocal, IsTheInverseOfLocalToPolar) {
    const Local east = PolarToLocal({ 10, kPi / 2 });
    EXPECT_NEAR(east.east, 10, 1e-12);
    EXPECT_NEAR(east.north, 0, 1e-12);
    for (double degrees = 0; degrees < 360; degrees += 7.5) {
        const Polar polar = LocalToPolar(PolarToLocal({ 1234.5, degrees * kDegree }));
        EXPECT_NEAR(polar.range, 1234.5, 1e-9);
        EXPECT_NEAR(polar.bearing, degrees * kDegree, 1e-12);
    }
}

TEST(Geodesy, DistanceAndBearingChainTheTwoSteps) {
    const LatLon from = Position(47, -122), to = OffsetByPolar(from, { 5000, 200 * kDegree });
    EXPECT_NEAR(DistanceBetween(from, to), 5000, 0.01);
    EXPECT_NEAR(RangeAndBearing(from, to).bearing, 200 * kDegree, 1e-5);
    EXPECT_EQ(RangeAndBearing(from, to).range, DistanceBetween(from, to));
}

TEST(Geodesy, OffsetByPolarIsPolarToLocalThenLocalToLatLon) {
    const LatLon origin = Position(-33.9, 151.2);
    const Polar polar = { 777, 1.25 };
    const LatLon direct = OffsetByPolar(origin, polar), chained = LocalToLatLon(origin, PolarToLocal(polar));
    EXPECT_EQ(direct.lat, chained.lat);
    EXPECT_EQ(direct.lon, chained.lon);
}

TEST(BglToLatLon, LatitudeCodeZeroIsExactlyTheNorthPole) {
    EXPECT_EQ(BglToLatLon({ 0, 0 }).lat, kPi / 2);
    EXPECT_EQ(BglToLatLon({ 0x10000000, 0 }).lat, 0);
    EXPECT_EQ(BglToLatLon({ 0x20000000, 0 }).lat, -kPi / 2);
}

TEST(BglToLatLon, LongitudeGrowsEastwardFrom180West) {
    EXPECT_EQ(BglToLatLon({ 0, 402653184 }).lon, 0);
    EXPECT_EQ(BglToLatLon({ 0, 0 }).lon, kPi);  // 180 west
    EXPECT_NEAR(BglToLatLon({ 0, 805306368 }).lon, -kPi, 1e-15);
    EXPECT_NEAR(BglToLatLon({ 0, 402653184 + 402653184 / 2 }).lon, -kPi / 2, 1e-15);  // 90 east
}

TEST(LatLonToBgl, TruncatesTowardZero) {
    const double unit = kPi / 2 / 268435456.0;
    EXPECT_EQ(LatLonToBgl({ kPi / 2, 0 }).latCode, 0u);
    EXPECT_EQ(LatLonToBgl({ kPi / 2 - 0.999 * unit, 0 }).latCode, 0u);
    EXPECT_EQ(LatLonToBgl({ kPi / 2 - 1.001 * unit, 0 }).latCode, 1u);
    EXPECT_EQ(LatLonToBgl({ kPi / 2 - 1.999 * unit, 0 }).latCode, 1u);
    EXPECT_EQ(LatLonToBgl({ 0, 0 }).lonCode, 402653184u);
    EXPECT_EQ(LatLonToBgl({ 0, kPi }).lonCode, 0u);
}

TEST(LatLonToBgl, ADecodedCodeEncodesToItselfOrOneUnitLess) {
    std::mt19937 random(3);
    std::uniform_int_distribution<uint32_t> lat(0, 0x20000000), lon(0, 0x30000000);
    for (int i = 0; i < 20000; ++i) {
        const BglPoint code = { lat(random), lon(random) };
        const BglPoint back = LatLonToBgl(BglToLatLon(code));
        EXPECT_LE(code.latCode - back.latCode, 1u);
        EXPECT_LE(code.lonCode - back.lonCode, 1u);
    }
}

TEST(LatLonToBgl, NeighbouringAirportsOfTheWorldDecodeWithinAnEncodedUnit) {
    const LatLon seattle = Position(47.449, -122.309);
    const LatLon back = BglToLatLon(LatLonToBgl(seattle));
    EXPECT_NEAR(back.lat, seattle.lat, 6e-9);
    EXPECT_NEAR(back.lon, seattle.lon, 8e-9);
}

TEST(Geodesy, AMoveAcrossTheHundredAndEightiethMeridianStaysWhereItIs) {
    for (const double east : { -100.0, 100.0 }) {
        const LatLon start = { 0.3, east < 0 ? kPi - 1e-6 : -kPi + 1e-6 };
        const LatLon moved = LocalToLatLon(start, { east, 0 });
        const BglPoint code = LatLonToBgl(moved);
        EXPECT_LE(code.lonCode, 0x30000000u);
        EXPECT_NEAR(DistanceBetween(start, BglToLatLon(code)), 100, 0.2);
    }
}

TEST(Geodesy, PlacesBeyondAPoleAreEncodedAsThePole) {
    EXPECT_EQ(LatLonToBgl({ kPi / 2 + 0.1, 0 }).latCode, 0u);
    EXPECT_EQ(LatLonToBgl({ -kPi / 2 - 0.1, 0 }).latCode, 0x20000000u);
    EXPECT_EQ(LatLonToBgl({ std::nan(""), 0 }).latCode, 0u);
}

}  // namespace
