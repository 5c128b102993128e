// Units.cpp - see Units.h.
#include "link/Units.h"

#include <cmath>
#include <limits>

namespace simlink {

namespace {

constexpr double kRadiansPerLatitude = 3.6566552834932875e-17, kLatitudePerRadian = 27347395979986300.0;
constexpr double kRadiansPerLongitude = 3.4061215800865545e-19, kLongitudePerRadian = 2935890503282001408.0;
constexpr double kRadiansPerHeading = 1.4629180792671596e-9, kHeadingPerRadian = 683565275.5764316;

// Truncated. Half a turn of longitude is one more than the type holds.
int64_t ToWhole(double value) {
    constexpr double kBeyond = 9223372036854775808.0;
    if (value >= kBeyond) return std::numeric_limits<int64_t>::max();
    if (value <= -kBeyond) return std::numeric_limits<int64_t>::min();
    return static_cast<int64_t>(value);
}

}  // namespace

model::LatLon ToLatLon(SimPosition position) {
    return { static_cast<double>(position.latitude) * kRadiansPerLatitude,
             -static_cast<double>(position.longitude) * kRadiansPerLongitude };
}

SimPosition FromLatLon(model::LatLon position) {
    const bool beyond = std::fabs(position.lon) > model::kPi;
    const double longitude = beyond ? std::remainder(position.lon, model::kTwoPi) : position.lon;
    return { ToWhole(position.lat * kLatitudePerRadian), ToWhole(-longitude * kLongitudePerRadian) };
}

double HeadingRadians(uint32_t heading) {
    const double radians = heading * kRadiansPerHeading;
    return radians < model::kTwoPi ? radians : radians - model::kTwoPi;
}

uint32_t HeadingFromRadians(double radians) {
    double turned = std::fmod(radians, model::kTwoPi);
    if (turned < 0) turned += model::kTwoPi;
    return static_cast<uint32_t>(static_cast<uint64_t>(turned * kHeadingPerRadian));  // a full turn is 0
}

bool IsOnEarth(SimPosition position) { return std::fabs(ToLatLon(position).lat) <= model::kPi / 2; }

}  // namespace simlink
