// StatusText.cpp - see StatusText.h.
#include "app/StatusText.h"

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

model::LatLon PositionAt(platform::Pixel cursor) {
    return map::ScreenToWorld({ static_cast<double>(cursor.x), static_cast<double>(cursor.y) });
}

bool HasOrigin() { return model::state.loaded && map::tools.hasClick; }

}  // namespace

std::string PositionText(platform::Pixel cursor) {
    if (!model::state.loaded) return {};
    const model::CoordinateTexts texts = model::FormatLatLon(PositionAt(cursor));
    return texts.latitude + "   " + texts.longitude;
}

std::string DistanceText(platform::Pixel cursor) {
    if (!HasOrigin()) return {};
    const double metres = model::RangeAndBearing(map::tools.lastClick, PositionAt(cursor)).range;
    return settings.metric ? Formatted("Distance: %2.1lf m", metres)
                           : Formatted("Distance: %2.1lf ft", metres * model::kFeetPerMetre);
}

std::string AngleText(platform::Pixel cursor) {
    if (!HasOrigin()) return {};
    const double bearing = model::RangeAndBearing(map::tools.lastClick, PositionAt(cursor)).bearing;
    return Formatted("Angle: %3.1lf*", bearing * model::kDegreesPerRadian);
}

std::string RotationText() { return Formatted("%5.1lf*", map::view.rotation * model::kDegreesPerRadian); }

}  // namespace app
