// Placing.cpp - see Placing.h.
#include "map/Placing.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "map/MapView.h"
#include "map/Tools.h"

namespace map {

LatLon UnderPixel(Pixel at) { return ScreenToWorld({ double(at.x), double(at.y) }); }

bool IsPlaceable(LatLon* position) {
    if (!std::isfinite(position->lat) || !std::isfinite(position->lon)) return false;
    if (std::fabs(position->lat) >= model::kPi / 2 || std::fabs(position->lon) > 2 * model::kTwoPi) return false;
    while (position->lon > model::kPi) position->lon -= model::kTwoPi;
    while (position->lon <= -model::kPi) position->lon += model::kTwoPi;
    return true;
}

model::EncodedPoint Encode(LatLon place) {
    const model::BglPoint code = model::LatLonToBgl(place);
    return { code.lonCode, code.latCode };
}

bool PlaceUnder(Pixel at, LatLon* place) {
    *place = UnderPixel(at);
    return IsPlaceable(place);
}

bool StandsNowhere(const model::SceneryObject* tower) {
    const auto& record = model::PayloadAs<model::TowerViewpointRecord>(tower);
    const bool isZero = record.longitude == 0 && record.latitude == 0 && record.altitude == 0;
    return isZero ||
           (record.longitude == model::kPlaceholderLongitude && record.latitude == model::kPlaceholderLatitude);
}

bool IsTowerPlaced(const model::SceneryObject* tower) {
    return !StandsNowhere(tower) && model::PayloadAs<model::TowerViewpointRecord>(tower).altitude != 0;
}

bool IsDrag(Pixel from, Pixel to) {
    const auto apart = [](int32_t a, int32_t b) { return std::abs(int64_t{ a } - b) >= kDragThreshold; };
    return apart(from.x, to.x) || apart(from.y, to.y);
}

PressPlace PressedAt(Pixel at) { return { at, UnderPixel(at) }; }

// On a map that stands still whole pixels are compared: close up, the ground is not exact enough for a click.
bool IsPulled(const PressPlace& press, Pixel to) {
    const LatLon now = UnderPixel(press.at);
    if (now.lat == press.place.lat && now.lon == press.place.lon) return IsDrag(press.at, to);
    return model::DistanceBetween(press.place, UnderPixel(to)) * view.pixelsPerMetre >= kDragThreshold;
}

}  // namespace map
