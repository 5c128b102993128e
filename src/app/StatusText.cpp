// StatusText.cpp - see StatusText.h.
#include "app/StatusText.h"

#include <cmath>
#include <cstdio>

#include "app/Settings.h"
#include "map/MapView.h"
#include "map/Tools.h"
#include "model/CoordinateText.h"
#include "model/ObjectList.h"

namespace app {

namespace {

std::string Formatted(const char* format, double value) {
    char text[400];  // the largest double takes 309 digits
    std::snprintf(text, sizeof text, format, value);
    return text;
}

model::LatLon CursorPosition(platform::Pixel cursor) {
    return map::ScreenToWorld({ static_cast<double>(cursor.x), static_cast<double>(cursor.y) });
}

// A hair below a full turn shows as 0, never as 360.
double ShownDegrees(double radians) {
    const double degrees = radians * model::kDegreesPerRadian;
    return degrees < 359.95 ? degrees : 0;
}

// From the origin of the read-outs to the pointer. False when there is none.
bool FindWay(platform::Pixel cursor, model::Polar* way) {
    model::LatLon origin;
    if (!model::state.loaded || !map::ReadOutOrigin(&origin)) return false;
    *way = model::RangeAndBearing(origin, CursorPosition(cursor));
    return true;
}

}  // namespace

std::string PositionText(platform::Pixel cursor) {
    if (!model::state.loaded) return {};
    const model::LatLon position = CursorPosition(cursor);
    if (!(std::fabs(position.lat) <= model::kPi / 2 && std::fabs(position.lon) <= 2 * model::kTwoPi)) return {};
    const model::CoordinateTexts texts = model::FormatLatLon(position);
    return texts.latitude + "   " + texts.longitude;
}

std::string DistanceText(platform::Pixel cursor) {
    model::Polar way;
    if (!FindWay(cursor, &way)) return {};
    const double metres = way.range;
    return settings.metric ? Formatted("Distance: %2.1lf m", metres)
                           : Formatted("Distance: %2.1lf ft", metres * model::kFeetPerMetre);
}

std::string AngleText(platform::Pixel cursor) {
    model::Polar way;
    if (!FindWay(cursor, &way)) return {};
    return Formatted("Angle: %3.1lf*", ShownDegrees(way.bearing));
}

std::string RotationText() { return Formatted("%5.1lf*", ShownDegrees(map::view.rotation)); }

}  // namespace app
