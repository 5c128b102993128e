// LightStrips.cpp - see LightStrips.h.
#include "map/LightStrips.h"

#include <algorithm>
#include <cassert>

#include "model/Records.h"

namespace map {

using model::EdgeLightsHead;
using model::EdgeLightStrip;
using model::SceneryObject;

namespace {

EdgeLightStrip* Strips(const SceneryObject* lights) {
    return reinterpret_cast<EdgeLightStrip*>(lights->payload + sizeof(EdgeLightsHead));
}

uint8_t& SelectionByte(const SceneryObject* lights, int part) {
    assert(part >= 1 && static_cast<uint32_t>(part - 1) / kStripParts < StripCount(lights));
    EdgeLightStrip& strip = Strips(lights)[(part - 1) / kStripParts];
    switch (static_cast<StripPart>((part - 1) % kStripParts)) {
    case StripPart::Segment: return strip.segmentSelected;
    case StripPart::Start: return strip.startSelected;
    default: return strip.endSelected;
    }
}

}  // namespace

uint32_t StripCount(const SceneryObject* lights) {
    if (lights->payloadSize < sizeof(EdgeLightsHead)) return 0;
    const size_t room = (lights->payloadSize - sizeof(EdgeLightsHead)) / sizeof(EdgeLightStrip);
    return static_cast<uint32_t>(std::min<size_t>(model::PayloadAs<EdgeLightsHead>(lights).stripCount, room));
}

LightStrip StripAt(const SceneryObject* lights, uint32_t index) {
    assert(index < StripCount(lights));
    const EdgeLightStrip& strip = Strips(lights)[index];
    return { .start = model::BglToLatLon({ strip.startLatitude, strip.startLongitude }),
             .end = model::BglToLatLon({ strip.endLatitude, strip.endLongitude }),
             .spacing = strip.spacing,
             .segmentSelected = strip.segmentSelected != 0,
             .startSelected = strip.startSelected != 0,
             .endSelected = strip.endSelected != 0 };
}

bool IsStripPartSelected(const SceneryObject* lights, int part) { return SelectionByte(lights, part) != 0; }

void SelectStripPart(SceneryObject* lights, int part, bool selected) { SelectionByte(lights, part) = selected; }

void SelectAllStripPoints(SceneryObject* lights) {
    for (uint32_t i = 0; i < StripCount(lights); ++i) {
        SelectStripPart(lights, PartNumber(i, StripPart::Start), true);
        SelectStripPart(lights, PartNumber(i, StripPart::End), true);
    }
}

void ClearStripSelection(SceneryObject* lights) {
    for (uint32_t i = 0; i < StripCount(lights); ++i) {
        Strips(lights)[i].segmentSelected = Strips(lights)[i].startSelected = Strips(lights)[i].endSelected = 0;
    }
}

bool AnyStripPartSelected(const SceneryObject* lights) {
    const EdgeLightStrip* strips = Strips(lights);
    return std::any_of(strips, strips + StripCount(lights), [](const EdgeLightStrip& strip) {
        return strip.segmentSelected || strip.startSelected || strip.endSelected;
    });
}

}  // namespace map
