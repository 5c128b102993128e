#include "link/Units.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace {

using namespace simlink;
using model::kPi;
using model::kRadiansPerDegree;
using model::kTwoPi;

constexpr int64_t kLowest = std::numeric_limits<int64_t>::min(), kHighest = std::numeric_limits<int64_t>::max();

TEST(LinkUnits, AQuarterTurnOfLatitudeIsTheEarthsQuarterInMetres) {
    const int64_t pole = 10'001'750 * int64_t{ 1LL << 32 };
    EXPECT_NEAR(ToLatLon({ pole, 0 }).lat, kPi / 2, 1e-12);
    EXPECT_NEAR(ToLatLon({ -pole / 2, 0 }).lat, -kPi / 4, 1e-12);
    EXPECT_NEAR(static_cast<double>(FromLatLon({ kPi / 2, 0 }).latitude), static_cast<double>(pole), 1e5);
}

TEST(LinkUnits, EastIsPositiveInTheSimulatorAndNegativeHere) {
    EXPECT_NEAR(ToLatLon({ 0, int64_t{ 1 } << 62 }).lon, -kPi / 2, 1e-12);
    EXPECT_NEAR(ToLatLon({ 0, -(int64_t{ 1 } << 61) }).lon, kPi / 4, 1e-12);
    EXPECT_GT(FromLatLon({ 0, -1 }).longitude, 0);
    EXPECT_LT(FromLatLon({ 0, 1 }).longitude, 0);
}

TEST(LinkUnits, PositionsComeBackToLessThanAMillimetre) {
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> latitude(-1.5, 1.5), longitude(-kPi, kPi);
    for (int i = 0; i < 10'000; ++i) {
        const model::LatLon position = { latitude(random), longitude(random) };
        const model::LatLon back = ToLatLon(FromLatLon(position));
        EXPECT_NEAR(back.lat, position.lat, 1e-12);
        EXPECT_NEAR(back.lon, position.lon, 1e-12);
    }
}

TEST(LinkUnits, ValuesAreTruncatedTowardZero) {
    EXPECT_EQ(FromLatLon({ 1.9 / 27347395979986300.0, 0 }).latitude, 1);
    EXPECT_EQ(FromLatLon({ -1.9 / 27347395979986300.0, 0 }).latitude, -1);
    EXPECT_EQ(FromLatLon({ 0, 1.9 / 2935890503282001408.0 }).longitude, -1);
}

TEST(LinkUnits, BothEndsOfTheLongitudesAreHeld) {
    EXPECT_EQ(FromLatLon({ 0, kPi }).longitude, kLowest);
    EXPECT_GE(FromLatLon({ 0, -kPi }).longitude, kHighest - 2048);
    EXPECT_NEAR(ToLatLon({ 0, kLowest }).lon, kPi, 1e-12);
    const double beyond = 190 * kRadiansPerDegree, within = -170 * kRadiansPerDegree;
    EXPECT_NEAR(ToLatLon(FromLatLon({ 0, beyond })).lon, within, 1e-12);
    EXPECT_NEAR(ToLatLon(FromLatLon({ 0, -beyond })).lon, -within, 1e-12);
}

TEST(LinkUnits, HeadingsAreUnsignedPartsOfATurn) {
    EXPECT_EQ(HeadingRadians(0), 0);
    EXPECT_NEAR(HeadingRadians(0x40000000), kPi / 2, 1e-9);
    EXPECT_NEAR(HeadingRadians(0xC0000000), 1.5 * kPi, 1e-9);
    EXPECT_LT(HeadingRadians(0xFFFFFFFF), kTwoPi);
    EXPECT_GE(HeadingRadians(0xFFFFFFFF), 0);
    EXPECT_NEAR(HeadingFromRadians(kPi), 0x80000000u, 2);
    EXPECT_EQ(HeadingFromRadians(0), 0u);
    EXPECT_NEAR(HeadingFromRadians(-kPi / 2), 0xC0000000u, 2);
    EXPECT_NEAR(HeadingFromRadians(kTwoPi + 1), HeadingFromRadians(1), 2);
    HeadingFromRadians(std::nextafter(kTwoPi, 0));
}

TEST(LinkUnits, ALatitudeBeyondThePoleIsNotOnEarth) {
    EXPECT_TRUE(IsOnEarth({ 0, kLowest }));
    EXPECT_TRUE(IsOnEarth(FromLatLon({ 1.57, 3 })));
    EXPECT_FALSE(IsOnEarth({ kHighest, 0 }));
    EXPECT_FALSE(IsOnEarth({ kLowest, 0 }));
}

}  // namespace
