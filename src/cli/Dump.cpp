// Dump.cpp - the frame of the dump: names, object list, payloads. The fields are in DumpFields.cpp.
#include "cli/Dump.h"

#include <string_view>

#include "model/ObjectList.h"
#include "platform/Text.h"

namespace cli {

namespace {

using model::SceneryObject;

const char* KindName(uint32_t kind) {
    switch (kind) {
    case model::kAirport: return "Airport";
    case model::kTowerViewpoint: return "TowerViewpoint";
    case model::kRunway: return "Runway";
    case model::kHelipad: return "Helipad";
    case model::kCommFrequency: return "CommFrequency";
    case model::kStartLocation: return "StartLocation";
    case model::kTaxiNode: return "TaxiNode";
    case model::kTaxiLink: return "TaxiLink";
    case model::kTaxiDesignator: return "TaxiDesignator";
    case model::kParkingSpot: return "ParkingSpot";
    case model::kApron: return "Apron";
    case model::kApronEdgeLights: return "ApronEdgeLights";
    case model::kReferenceMarker: return "ReferenceMarker";
    case model::kGuideline: return "Guideline";
    case model::kIls: return "Ils";
    case model::kMarkerBeacon: return "MarkerBeacon";
    case model::kNdb: return "Ndb";
    case model::kVorDme: return "VorDme";
    default: return "Unknown";
    }
}

// Payload bytes that mirror a file: pointers are memory only.
uint32_t FileBytes(const SceneryObject* object) {
    switch (KindOf(object)) {
    case model::kTaxiLink: return model::kTaxiLinkFileSize;
    case model::kGuideline: return 0;
    default: return object->payloadSize;
    }
}

std::string Hex(const uint8_t* bytes, uint32_t count) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text;
    text.reserve(size_t{ count } * 2);
    for (uint32_t i = 0; i < count; ++i) {
        text += kDigits[bytes[i] >> 4];
        text += kDigits[bytes[i] & 0xF];
    }
    return text;
}

void WriteNamed(JsonWriter* json, const char* key, std::string_view windows1252) {
    Key(json, key);
    WriteText(json, platform::Utf8FromWindows1252(windows1252));
}

void WriteObject(JsonWriter* json, const SceneryObject* object, const ListPositions& positions) {
    OpenObject(json);
    Key(json, "kind");
    WriteInteger(json, KindOf(object));
    Key(json, "what");
    WriteText(json, KindName(KindOf(object)));
    Key(json, "flags");
    WriteInteger(json, object->flags);
    Key(json, "payload");
    WriteText(json, Hex(object->payload, FileBytes(object)));
    if (object->related) {
        Key(json, "related");
        WriteInteger(json, positions.at(object->related));
    }
    WriteFields(json, object, positions);
    CloseObject(json);
}

}  // namespace

std::string DumpModel() {
    ListPositions positions;
    for (const SceneryObject* o = model::state.head; o; o = o->next) {
        positions.emplace(o, static_cast<int64_t>(positions.size()));
    }
    JsonWriter json;
    OpenObject(&json);
    WriteNamed(&json, "airport", model::state.icao);
    WriteNamed(&json, "name", model::AirportName());
    WriteNamed(&json, "country", model::state.country);
    WriteNamed(&json, "state", model::state.state);
    WriteNamed(&json, "city", model::state.city);
    Key(&json, "objects");
    OpenArray(&json);
    for (const SceneryObject* o = model::state.head; o; o = o->next) {
        LineBreak(&json);
        WriteObject(&json, o, positions);
    }
    CloseArray(&json);
    CloseObject(&json);
    return json.text + '\n';
}

}  // namespace cli
