// EdgeLights.cpp - see EdgeLights.h.
#include "model/EdgeLights.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstring>

#include "model/Geodesy.h"

namespace model {

std::vector<EdgeLightStrip> StripsOf(const SceneryObject* lights) {
    const size_t room = (lights->payloadSize - sizeof(EdgeLightsHead)) / sizeof(EdgeLightStrip);
    std::vector<EdgeLightStrip> strips(std::min<size_t>(PayloadAs<EdgeLightsHead>(lights).stripCount, room));
    if (!strips.empty())
        std::memcpy(strips.data(), lights->payload + sizeof(EdgeLightsHead), strips.size() * sizeof(EdgeLightStrip));
    return strips;
}

void SetStrips(SceneryObject* lights, const std::vector<EdgeLightStrip>& strips) {
    assert(sizeof(EdgeLightsHead) + strips.size() * sizeof(EdgeLightStrip) <= lights->payloadSize);
    if (!strips.empty())
        std::memcpy(lights->payload + sizeof(EdgeLightsHead), strips.data(), strips.size() * sizeof(EdgeLightStrip));
}

double StripLength(const EdgeLightStrip& strip) {
    return DistanceBetween(BglToLatLon({ strip.startLatitude, strip.startLongitude }),
                           BglToLatLon({ strip.endLatitude, strip.endLongitude }));
}

double AdjustedSpacing(double stripLength, double optimum) {
    if (!(stripLength > 0)) return optimum;  // lamps without a distance would have no end
    return stripLength / std::max(1.0, std::round(stripLength / optimum));
}

}  // namespace model
