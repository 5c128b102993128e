// BuildObjects.h - objects for tests, made in one line each. All are appended to the object list.
#pragma once

#include <cstring>
#include <initializer_list>
#include <string_view>
#include <vector>

#include "model/Geodesy.h"
#include "model/Ident.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "model/Records.h"
#include "model/SceneryObject.h"

namespace build {

// Metres from the middle of the test airport, 47 degrees north, 122 degrees west.
struct Place {
    double east = 0, north = 0;
};

inline constexpr model::LatLon kMiddle = { 47 * model::kRadiansPerDegree, 122 * model::kRadiansPerDegree };

inline model::LatLon At(Place place) { return model::LocalToLatLon(kMiddle, { place.east, place.north }); }

inline model::EncodedPoint Encoded(Place place) {
    const model::BglPoint code = model::LatLonToBgl(At(place));
    return { code.lonCode, code.latCode };
}

inline model::SceneryObject* Append(uint32_t kind, size_t payloadSize) {
    model::SceneryObject* object = model::CreateObject(kind, static_cast<uint32_t>(payloadSize));
    model::AppendObject(object);
    return object;
}

template <class Record>
model::SceneryObject* Placed(uint32_t kind, Place place) {
    model::SceneryObject* object = Append(kind, sizeof(Record));
    model::SetPosition(object, At(place));
    return object;
}

inline model::SceneryObject* Airport(std::string_view ident) {
    model::SceneryObject* object = Placed<model::AirportRecord>(model::kAirport, {});
    model::PayloadAs<model::AirportRecord>(object).ident = model::PackIdent(ident) << model::kIdentShift | 1;
    model::state.icao = ident;
    return object;
}

inline model::SceneryObject* Tower(Place place = {}) {
    return Placed<model::TowerViewpointRecord>(model::kTowerViewpoint, place);
}

inline model::SceneryObject* Runway(uint8_t primary, uint8_t primaryDesignator = 0, Place place = {}) {
    model::SceneryObject* object = Placed<model::RunwayPayload>(model::kRunway, place);
    model::RunwayRecord& body = model::PayloadAs<model::RunwayPayload>(object).body;
    body.primaryNumber = primary;
    body.primaryDesignator = primaryDesignator;
    body.secondaryNumber = static_cast<uint8_t>(primary > 18 ? primary - 18 : primary + 18);
    body.secondaryDesignator = static_cast<uint8_t>(
        primaryDesignator == 1 || primaryDesignator == 2 ? 3 - primaryDesignator : primaryDesignator);
    body.length = 2000;
    body.width = 45;
    return object;
}

inline model::SceneryObject* Node(Place place = {}, uint8_t type = model::kNormalNode) {
    model::SceneryObject* object = Placed<model::TaxiNodeRecord>(model::kTaxiNode, place);
    model::PayloadAs<model::TaxiNodeRecord>(object).type = type;
    return object;
}

inline model::SceneryObject* Spot(Place place = {}, std::initializer_list<std::string_view> codes = {}) {
    model::SceneryObject* object = Append(model::kParkingSpot, sizeof(model::ParkingSpotRecord) + 4 * codes.size());
    model::PayloadAs<model::ParkingSpotRecord>(object).packed = static_cast<uint32_t>(codes.size()) << 24 | 0x1201;
    uint8_t* out = object->payload + sizeof(model::ParkingSpotRecord);
    for (std::string_view code : codes) {
        std::memcpy(out, code.data(), code.size());
        out += 4;
    }
    model::SetPosition(object, At(place));
    return object;
}

inline model::SceneryObject* Designator(std::string_view name) {
    model::SceneryObject* object = Append(model::kTaxiDesignator, sizeof(model::TaxiDesignatorRecord));
    std::memcpy(object->payload, name.data(), name.size());
    return object;
}

inline model::SceneryObject* Link(model::SceneryObject* start, model::SceneryObject* end,
                                  uint32_t type = model::kTaxiwayLink, model::SceneryObject* designator = nullptr) {
    model::SceneryObject* object = Append(model::kTaxiLink, sizeof(model::TaxiLinkPayload));
    auto& link = model::PayloadAs<model::TaxiLinkPayload>(object);
    link.flagsWord = type;
    link.width = 23;
    link.start = start;
    link.end = end;
    link.designator = designator;
    return object;
}

// An apron whose surface is its outline, without triangles.
inline model::SceneryObject* Apron(const std::vector<model::EncodedPoint>& outline) {
    const size_t bytes = outline.size() * sizeof(model::EncodedPoint);
    model::SceneryObject* object = Append(model::kApron, sizeof(model::ApronHead) + 2 * bytes);
    auto& head = model::PayloadAs<model::ApronHead>(object);
    head.outlineCount = head.vertexCount = static_cast<uint16_t>(outline.size());
    head.drawFlags = 3;
    if (outline.empty()) return object;
    std::memcpy(object->payload + sizeof head, outline.data(), bytes);
    std::memcpy(object->payload + sizeof head + bytes, outline.data(), bytes);
    return object;
}

inline model::SceneryObject* EdgeLights(const std::vector<model::EdgeLightStrip>& strips) {
    const size_t bytes = strips.size() * sizeof(model::EdgeLightStrip);
    model::SceneryObject* object = Append(model::kApronEdgeLights, sizeof(model::EdgeLightsHead) + bytes);
    model::PayloadAs<model::EdgeLightsHead>(object).stripCount = static_cast<uint32_t>(strips.size());
    if (bytes > 0) std::memcpy(object->payload + sizeof(model::EdgeLightsHead), strips.data(), bytes);
    return object;
}

inline model::SceneryObject* Marker(Place place = {}) {
    return Placed<model::ReferenceMarkerPayload>(model::kReferenceMarker, place);
}

inline model::SceneryObject* Guideline(model::SceneryObject* from, model::SceneryObject* to) {
    model::SceneryObject* object = Append(model::kGuideline, sizeof(model::GuidelinePayload));
    model::PayloadAs<model::GuidelinePayload>(object) = { from, to };
    return object;
}

inline model::SceneryObject* Ils(std::string_view ident, Place place = {}) {
    model::SceneryObject* object = Placed<model::IlsPayload>(model::kIls, place);
    model::VorRecord& body = model::PayloadAs<model::IlsPayload>(object).body;
    body.type = model::kIlsType;
    body.ident = model::PackIdent(ident) << model::kIdentShift | 2;
    return object;
}

// With a glide slope and a DME at places of their own.
inline model::SceneryObject* IlsWithParts(std::string_view ident, Place place, Place slopePlace, Place dmePlace) {
    model::SceneryObject* object = Ils(ident, place);
    auto& payload = model::PayloadAs<model::IlsPayload>(object);
    payload.body.flags = model::kHasGlideSlope | model::kHasDme;
    const model::EncodedPoint slope = Encoded(slopePlace), dme = Encoded(dmePlace);
    payload.glideSlope.longitude = slope.longitude;
    payload.glideSlope.latitude = slope.latitude;
    payload.dme.longitude = dme.longitude;
    payload.dme.latitude = dme.latitude;
    return object;
}

inline model::SceneryObject* Ndb(Place place = {}) { return Placed<model::NdbPayload>(model::kNdb, place); }
inline model::SceneryObject* Vor(Place place = {}) { return Placed<model::VorDmePayload>(model::kVorDme, place); }

// The objects of the list, from its head.
inline std::vector<model::SceneryObject*> List() {
    std::vector<model::SceneryObject*> objects;
    for (model::SceneryObject* o = model::state.head; o; o = o->next) objects.push_back(o);
    return objects;
}

// The same from its tail, put in order: equal to List() when both directions agree.
inline std::vector<model::SceneryObject*> ListFromTail() {
    std::vector<model::SceneryObject*> objects;
    for (model::SceneryObject* o = model::state.tail; o; o = o->prev) objects.insert(objects.begin(), o);
    return objects;
}

}  // namespace build
