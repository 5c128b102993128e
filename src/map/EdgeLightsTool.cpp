// EdgeLightsTool.cpp - see EdgeLightsTool.h.
#include "map/EdgeLightsTool.h"

#include <algorithm>
#include <vector>

#include "map/LightStrips.h"
#include "map/MapHost.h"
#include "map/MapView.h"
#include "map/Placing.h"
#include "map/ScreenPlace.h"
#include "map/Selection.h"
#include "map/Tools.h"
#include "model/EdgeLights.h"
#include "model/EditHistory.h"
#include "model/ObjectList.h"
#include "model/Records.h"
#include "platform/Platform.h"

namespace map {

using model::EdgeLightsHead;
using model::EdgeLightStrip;
using model::EncodedPoint;
using model::PayloadAs;

namespace {

constexpr uint32_t kBlue = 0xFF0000FF;          // ARGB
constexpr float kBrightness = 1, kLimit = 800;  // as the simulator's own strips
constexpr uint32_t kMostStrips = 32767;         // two vertices each, as many as a file can number

StripDrag drag;
PressPlace pressed;
EncodedPoint first;  // where the strip begins

SceneryObject* Lights() { return model::FirstOfKind(model::state.head, model::kApronEdgeLights); }

// The end of a strip that was painted at the pixel.
bool FindStripEnd(Pixel at, EncodedPoint* point) {
    const SceneryObject* lights = Lights();
    if (!lights || !IsDrawn(lights)) return false;
    const std::vector<Pixel>& ends = PartsOf(lights).stripEnds;
    const std::vector<EdgeLightStrip> strips = model::StripsOf(lights);
    for (size_t i = 0; i < std::min(ends.size(), 2 * strips.size()); ++i) {
        if (!HitsCircle(at, ends[i], kPointReach)) continue;
        const EdgeLightStrip& strip = strips[i / 2];
        *point = i % 2 == 0 ? EncodedPoint{ strip.startLongitude, strip.startLatitude }
                            : EncodedPoint{ strip.endLongitude, strip.endLatitude };
        return true;
    }
    return false;
}

bool FindPoint(Pixel at, EncodedPoint* point) {
    LatLon place;
    if (FindStripEnd(at, point)) return true;
    if (!PlaceUnder(at, &place)) return false;
    *point = Encode(place);
    return true;
}

LatLon Decode(EncodedPoint point) { return model::BglToLatLon({ point.latitude, point.longitude }); }

bool MakesStrip(EncodedPoint last, Pixel pointer) {
    return IsPulled(pressed, pointer) && (last.longitude != first.longitude || last.latitude != first.latitude);
}

EdgeLightStrip StripTo(EncodedPoint last) {
    const model::EdgeLightDefaults& defaults = model::state.edgeLights;
    EdgeLightStrip strip = {};
    strip.startLongitude = first.longitude;
    strip.startLatitude = first.latitude;
    strip.endLongitude = last.longitude;
    strip.endLatitude = last.latitude;
    strip.startSelected = strip.endSelected = strip.segmentSelected = 1;
    strip.spacing =
        static_cast<float>(defaults.adjust ? model::AdjustedSpacing(model::StripLength(strip), defaults.optimumSpacing)
                                           : defaults.optimumSpacing);
    return strip;
}

void AppendStrip(SceneryObject* lights, const EdgeLightStrip& strip) {
    std::vector<EdgeLightStrip> strips = model::StripsOf(lights);
    strips.push_back(strip);
    model::ResizePayload(lights,
                         static_cast<uint32_t>(sizeof(EdgeLightsHead) + strips.size() * sizeof(EdgeLightStrip)));
    PayloadAs<EdgeLightsHead>(lights).stripCount = static_cast<uint32_t>(strips.size());
    model::SetStrips(lights, strips);
    lights->flags |= model::kSelected;
}

void AddStrip(const EdgeLightStrip& strip) {
    DeselectAll();
    model::BeginAction();
    if (SceneryObject* lights = Lights()) {
        SceneryObject* edited = model::CopyObject(lights);
        AppendStrip(edited, strip);
        return model::ModifyObject(edited, lights);
    }
    SceneryObject* lights = model::CreateObject(model::kApronEdgeLights, sizeof(EdgeLightsHead));
    auto& head = PayloadAs<EdgeLightsHead>(lights);
    head.colour = kBlue;
    head.brightness = kBrightness;
    head.maximumAltitude = kLimit;
    AppendStrip(lights, strip);
    model::AddObject(lights);
}

bool HasRoom() {
    const SceneryObject* lights = Lights();
    if (!lights || StripCount(lights) < kMostStrips) return true;
    ShowRemark("A scenery file can hold no more strips of apron edge lights");
    return false;
}

}  // namespace

const StripDrag& CurrentStripDrag() { return drag; }

bool BeginStrip(Pixel at) {
    drag = {};
    pressed = PressedAt(at);
    drag.active = FindPoint(at, &first);
    drag.from = Decode(first);
    model::state.busy = drag.active;
    return drag.active;
}

void FollowStrip(Pixel pointer) {
    if (!drag.active) return;
    EncodedPoint last = {};
    drag.hasTo = FindPoint(pointer, &last) && MakesStrip(last, pointer);
    drag.to = Decode(last);
    drag.spacing = drag.hasTo ? double{ StripTo(last).spacing } : 0;
    platform::RequestRepaint();  // its lamps are part of the map
}

void FinishStrip(Pixel pointer) {
    if (!drag.active) return;
    model::state.busy = false;
    EncodedPoint last = {};
    if (FindPoint(pointer, &last) && MakesStrip(last, pointer) && HasRoom()) AddStrip(StripTo(last));
    ForgetStrip();
    platform::RequestRepaint();
}

void CancelStrip() {
    DropDrawing(drag.active);
    ForgetStrip();
}

void ForgetStrip() { drag = {}; }

}  // namespace map
