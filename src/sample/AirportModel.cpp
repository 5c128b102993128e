// AirportModel.cpp - see AirportModel.h.
#include "sample/AirportModel.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "model/Ident.h"
#include "model/ObjectList.h"
#include "model/Triangulate.h"
#include "platform/Text.h"
#include "sample/PlanGeometry.h"

namespace sample {

namespace {

using model::PayloadAs;
using model::SceneryObject;

constexpr uint32_t kAirportLowBits = 1;                   // kind of object in the low bits of an ident word
constexpr float kLightSpacing = 60.96f;                   // metres: 200 feet
constexpr uint32_t kBlueLights = 0xFF0000FF;              // ARGB
constexpr float kLightBrightness = 1, kLightLimit = 800;  // as the simulator's own strips

uint32_t FuelWord(const AirportPlan& plan) {
    constexpr uint32_t kHundredOctane = 3u << 4, kJetA = 3u << 14;
    return (plan.avgas ? model::kAvgas | kHundredOctane : 0) | (plan.jetFuel ? model::kJetFuel | kJetA : 0);
}

void AppendAirport(const AirportPlan& plan) {
    SceneryObject* object = model::CreateObject(model::kAirport, sizeof(model::AirportRecord));
    auto& body = PayloadAs<model::AirportRecord>(object);
    const model::EncodedPoint at = Encoded(plan, {});
    body.longitude = at.longitude;
    body.latitude = at.latitude;
    body.altitude = Millimetres(plan.elevation);
    body.magneticVariation = WestVariation(plan.variation);
    body.ident = model::PackIdent(plan.ident) << model::kIdentShift | kAirportLowBits;
    body.fuel = FuelWord(plan);
    model::AppendObject(object);
    model::SetAirportName(platform::Windows1252FromUtf8(plan.name));
    model::state.airport = object;
    model::state.country = platform::Windows1252FromUtf8(plan.country);
    model::state.state = platform::Windows1252FromUtf8(plan.state);
    model::state.city = platform::Windows1252FromUtf8(plan.city);
    model::state.icao = model::UnpackIdent(model::PackIdent(plan.ident));
}

void AppendTower(const AirportPlan& plan) {
    if (!plan.hasTower) return;
    SceneryObject* object = model::CreateObject(model::kTowerViewpoint, sizeof(model::TowerViewpointRecord));
    const model::EncodedPoint at = Encoded(plan, plan.tower);
    PayloadAs<model::TowerViewpointRecord>(object) = { at.longitude, at.latitude,
                                                       Millimetres(plan.elevation + plan.towerHeight) };
    model::AppendObject(object);
}

void AppendHelipads(const AirportPlan& plan) {
    constexpr uint8_t kHShape = 1;
    for (const HelipadPlan& pad : plan.helipads) {
        SceneryObject* object = model::CreateObject(model::kHelipad, sizeof(model::HelipadRecord));
        const model::EncodedPoint at = Encoded(plan, pad.at);
        PayloadAs<model::HelipadRecord>(object) = { pad.surface,
                                                    kHShape,
                                                    0,
                                                    at.longitude,
                                                    at.latitude,
                                                    Millimetres(plan.elevation),
                                                    static_cast<float>(pad.length),
                                                    static_cast<float>(pad.width),
                                                    static_cast<float>(pad.heading) };
        model::AppendObject(object);
    }
}

void AppendHelipadStarts(const AirportPlan& plan) {
    uint8_t number = 0;
    for (const HelipadPlan& pad : plan.helipads) {
        SceneryObject* object = model::CreateObject(model::kStartLocation, sizeof(model::StartLocationRecord));
        const model::EncodedPoint at = Encoded(plan, pad.at);
        PayloadAs<model::StartLocationRecord>(object) = { ++number,
                                                          model::StartNibbles(model::kHelipadStart, 0),
                                                          at.longitude,
                                                          at.latitude,
                                                          Millimetres(plan.elevation),
                                                          static_cast<float>(pad.heading) };
        model::AppendObject(object);
    }
}

void AppendComms(const AirportPlan& plan) {
    for (const CommPlan& comm : plan.comms) {
        SceneryObject* object = model::CreateObject(model::kCommFrequency, sizeof(model::CommFrequencyRecord));
        auto& body = PayloadAs<model::CommFrequencyRecord>(object);
        body.type = comm.type;
        body.frequency = comm.frequency;
        StoreText(comm.name, body.name, sizeof body.name);
        model::AppendObject(object);
    }
}

void AppendAprons(const AirportPlan& plan) {
    for (const ApronPlan& apron : plan.aprons) {
        std::vector<model::EncodedPoint> outline;
        for (const Local corner : apron.outline) outline.push_back(Encoded(plan, corner));
        SceneryObject* empty = model::CreateObject(model::kApron, sizeof(model::ApronHead));
        auto& head = PayloadAs<model::ApronHead>(empty);
        head.outlineSurface = head.surface = apron.surface;
        head.drawFlags = model::kDrawApron;
        model::AppendObject(model::CopyWithOutline(empty, outline));
        model::FreeObject(empty);
    }
}

void AppendLights(const AirportPlan& plan) {
    if (plan.lights.empty()) return;
    const auto count = static_cast<uint32_t>(plan.lights.size());
    SceneryObject* object = model::CreateObject(
        model::kApronEdgeLights,
        static_cast<uint32_t>(sizeof(model::EdgeLightsHead) + count * sizeof(model::EdgeLightStrip)));
    auto& head = PayloadAs<model::EdgeLightsHead>(object);
    head.colour = kBlueLights;
    head.brightness = kLightBrightness;
    head.maximumAltitude = kLightLimit;
    head.stripCount = count;
    uint8_t* place = object->payload + sizeof(model::EdgeLightsHead);
    for (const LightStrip& strip : plan.lights) {
        const model::EncodedPoint from = Encoded(plan, strip.from), to = Encoded(plan, strip.to);
        const double length = Distance(strip.from, strip.to);
        const double gaps = std::max(1.0, std::round(length / kLightSpacing));  // so that the strip ends at a light
        const model::EdgeLightStrip made{
            static_cast<float>(length / gaps), from.longitude, from.latitude, to.longitude, to.latitude, 0, 0, 0
        };
        std::memcpy(place, &made, sizeof made);
        place += sizeof made;
    }
    model::AppendObject(object);
}

}  // namespace

void MakeAirportModel(const AirportPlan& plan) {
    model::ClearModel();
    AppendAirport(plan);
    AppendTower(plan);
    std::vector<SceneryObject*> runways;
    for (const RunwayPlan& runway : plan.runways) {
        runways.push_back(MakeRunway(plan, runway));
        model::AppendObject(runways.back());
    }
    AppendHelipads(plan);
    for (const RunwayPlan& runway : plan.runways) {
        for (int end = 0; end < 2; ++end) model::AppendObject(MakeStart(plan, runway, end));
    }
    AppendHelipadStarts(plan);
    AppendComms(plan);
    AppendNetwork(plan, runways);
    AppendAprons(plan);
    AppendLights(plan);
    for (const RunwayPlan& runway : plan.runways) {
        for (int end = 0; end < 2; ++end) {
            if (!runway.ends[end].ils.ident.empty()) model::AppendObject(MakeIls(plan, runway, end));
        }
    }
    model::state.loaded = true;
}

model::EncodedPoint Encoded(const AirportPlan& plan, Local place) {
    const model::BglPoint code = model::LatLonToBgl(model::LocalToLatLon(plan.reference, place));
    return { code.lonCode, code.latCode };
}

int32_t Millimetres(double metres) { return static_cast<int32_t>(std::lround(metres * 1000)); }

float WestVariation(double eastVariation) { return static_cast<float>(Wrapped(-eastVariation)); }

void StoreText(const std::string& utf8, char* field, size_t size) {
    const std::string text = platform::Windows1252FromUtf8(utf8);
    const size_t length = std::min(text.size(), size - 1);
    std::fill(std::copy_n(text.begin(), length, field), field + size, '\0');
}

}  // namespace sample
