// DumpFields.cpp - the decoded fields of each kind. Names are as written in the simulator's own terms.
#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "cli/Dump.h"
#include "cli/DumpNavaids.h"
#include "cli/DumpValues.h"
#include "model/Ident.h"
#include "model/Names.h"
#include "model/Positions.h"
#include "model/Records.h"
#include "model/SpotBits.h"
#include "model/Triangulate.h"
#include "platform/Text.h"

namespace cli {

namespace {

using model::PayloadAs;
using model::SceneryObject;

void AirportFields(JsonWriter* json, const model::AirportRecord& airport) {
    Text(json, "ident", ShiftedIdent(airport.ident));
    Text(json, "region", model::UnpackIdent(airport.regionIdent));
    Position(json, airport.longitude, airport.latitude);
    Elevation(json, "elevation", airport.altitude);
    Float(json, "magneticVariation", airport.magneticVariation);
    Key(json, "tower");
    OpenObject(json);
    Position(json, airport.towerLongitude, airport.towerLatitude);
    Elevation(json, "elevation", airport.towerAltitude);
    CloseObject(json);
    Boolean(json, "jetFuel", (airport.fuel & model::kJetFuel) != 0);
    Boolean(json, "avgas", (airport.fuel & model::kAvgas) != 0);
    Key(json, "counts");
    OpenObject(json);
    Integer(json, "runways", airport.runwayCount);
    Integer(json, "comms", airport.commCount);
    Integer(json, "starts", airport.startCount);
    Integer(json, "approaches", airport.approachCount);
    Integer(json, "aprons", airport.apronCount);
    Integer(json, "helipads", airport.helipadCount);
    CloseObject(json);
}

void AreaPart(JsonWriter* json, const char* key, const model::RunwayAreaPart& part) {
    if (part.length == 0) return;
    Key(json, key);
    OpenObject(json);
    Surface(json, part.surface);
    Float(json, "length", part.length);
    Float(json, "width", part.width);
    CloseObject(json);
}

void Vasi(JsonWriter* json, const char* key, const model::VasiPart& vasi) {
    const auto* bytes = reinterpret_cast<const uint8_t*>(&vasi);
    if (std::all_of(bytes, bytes + sizeof vasi, [](uint8_t byte) { return byte == 0; })) return;  // absent
    Key(json, key);
    OpenObject(json);
    Integer(json, "type", vasi.type);
    Float(json, "biasX", vasi.biasX);
    Float(json, "biasZ", vasi.biasZ);
    Float(json, "spacing", vasi.spacing);
    Float(json, "pitch", vasi.pitch);
    CloseObject(json);
}

void RunwayFields(JsonWriter* json, const model::RunwayPayload& runway) {
    const model::RunwayRecord& body = runway.body;
    Text(json, "primary", model::RunwayEndName(body.primaryNumber, body.primaryDesignator));
    Text(json, "secondary", model::RunwayEndName(body.secondaryNumber, body.secondaryDesignator));
    Text(json, "primaryIls", model::UnpackIdent(body.primaryIls));
    Text(json, "secondaryIls", model::UnpackIdent(body.secondaryIls));
    Position(json, body.longitude, body.latitude);
    Elevation(json, "elevation", body.altitude);
    Float(json, "heading", body.heading);
    Float(json, "length", body.length);
    Float(json, "width", body.width);
    Surface(json, body.surface);
    Float(json, "patternAltitude", body.patternAltitude);
    Integer(json, "markings", body.markings);
    Integer(json, "lights", body.lights);
    Integer(json, "pattern", body.pattern);
    AreaPart(json, "primaryThreshold", runway.primaryThreshold);
    AreaPart(json, "secondaryThreshold", runway.secondaryThreshold);
    AreaPart(json, "primaryBlastPad", runway.primaryBlastPad);
    AreaPart(json, "secondaryBlastPad", runway.secondaryBlastPad);
    AreaPart(json, "primaryOverrun", runway.primaryOverrun);
    AreaPart(json, "secondaryOverrun", runway.secondaryOverrun);
    Integer(json, "primaryApproachLights", runway.primaryApproachLights);
    Integer(json, "secondaryApproachLights", runway.secondaryApproachLights);
    Vasi(json, "primaryLeftVasi", runway.primaryLeftVasi);
    Vasi(json, "primaryRightVasi", runway.primaryRightVasi);
    Vasi(json, "secondaryLeftVasi", runway.secondaryLeftVasi);
    Vasi(json, "secondaryRightVasi", runway.secondaryRightVasi);
}

void HelipadFields(JsonWriter* json, const model::HelipadRecord& helipad) {
    Position(json, helipad.longitude, helipad.latitude);
    Elevation(json, "elevation", helipad.altitude);
    Float(json, "heading", helipad.heading);
    Float(json, "length", helipad.length);
    Float(json, "width", helipad.width);
    Surface(json, helipad.surface);
    Integer(json, "type", helipad.type);
}

void CommFields(JsonWriter* json, const model::CommFrequencyRecord& comm) {
    Name(json, "name", comm.name, model::kCommNameSize);
    Integer(json, "type", comm.type);
    Integer(json, "frequency", comm.frequency);
}

void StartFields(JsonWriter* json, const model::StartLocationRecord& start) {
    Text(json, "name", model::RunwayEndName(start.number, model::StartSuffix(start)));
    Integer(json, "type", model::StartTypeOf(start));
    Position(json, start.longitude, start.latitude);
    Elevation(json, "elevation", start.altitude);
    Float(json, "heading", start.heading);
}

void NodeFields(JsonWriter* json, const model::TaxiNodeRecord& node) {
    Position(json, node.longitude, node.latitude);
    Integer(json, "type", node.type);
    Boolean(json, "reversed", node.reversed != 0);
}

const char* EdgeLineName(model::EdgeLine line) {
    constexpr const char* kNames[] = { "none", "solid", "dashed", "3" };
    return kNames[static_cast<size_t>(line)];
}

void LinkFields(JsonWriter* json, const model::TaxiLinkPayload& link, const ListPositions& positions) {
    Integer(json, "type", LinkTypeOf(link));
    Float(json, "width", link.width);
    Surface(json, LinkSurface(link));
    const uint32_t flags = link.flagsWord;
    Boolean(json, "centreLine", (flags & model::kLinkCentreLine) != 0);
    Boolean(json, "centreLights", (flags & model::kLinkCentreLights) != 0);
    Text(json, "leftEdge", EdgeLineName(EdgeLineOf(flags, model::LinkSide::Left)));
    Boolean(json, "leftLights", (flags & model::kLinkLeftLights) != 0);
    Text(json, "rightEdge", EdgeLineName(EdgeLineOf(flags, model::LinkSide::Right)));
    Boolean(json, "rightLights", (flags & model::kLinkRightLights) != 0);
    Reference(json, "start", link.start, positions);
    Reference(json, "end", link.end, positions);
    Reference(json, "designator", link.designator, positions);
}

void SpotFields(JsonWriter* json, const SceneryObject* object) {
    const auto& spot = PayloadAs<model::ParkingSpotRecord>(object);
    Text(json, "name", model::ParkingNameText(ParkingNameCode(spot)));
    Integer(json, "number", ParkingNumber(spot));
    Integer(json, "typeCode", ParkingTypeCode(spot));
    Text(json, "type", model::ParkingTypeName(ParkingTypeCode(spot)));
    Position(json, spot.longitude, spot.latitude);
    Float(json, "heading", spot.heading);
    Float(json, "radius", spot.radius);
    Key(json, "codes");
    OpenArray(json);
    for (size_t at = sizeof spot; at + model::kParkingCodeSize <= object->payloadSize; at += model::kParkingCodeSize) {
        const std::string_view code(reinterpret_cast<const char*>(object->payload) + at, model::kParkingCodeSize);
        WriteText(json, platform::Utf8FromWindows1252(code.substr(0, code.find('\0'))));
    }
    CloseArray(json);
}

void ApronFields(JsonWriter* json, const SceneryObject* object) {
    const auto& head = PayloadAs<model::ApronHead>(object);
    Surface(json, head.surface);
    Integer(json, "outlineSurfaceCode", head.outlineSurface);
    Integer(json, "drawFlags", head.drawFlags);
    Integer(json, "vertices", head.vertexCount);
    Integer(json, "triangles", head.triangleCount);
    Key(json, "outline");
    OpenArray(json);
    for (const model::EncodedPoint& point : model::ApronOutline(object)) {
        PositionPair(json, point.longitude, point.latitude);
    }
    CloseArray(json);
}

void EdgeLightsFields(JsonWriter* json, const SceneryObject* object) {
    const auto& head = PayloadAs<model::EdgeLightsHead>(object);
    Integer(json, "colour", head.colour);
    Float(json, "brightness", head.brightness);
    Float(json, "maximumAltitude", head.maximumAltitude);
    Key(json, "strips");
    OpenArray(json);
    for (uint32_t i = 0; i < head.stripCount; ++i) {
        model::EdgeLightStrip strip;
        std::memcpy(&strip, object->payload + sizeof head + i * sizeof strip, sizeof strip);
        OpenObject(json);
        Float(json, "spacing", strip.spacing);
        Key(json, "start");
        PositionPair(json, strip.startLongitude, strip.startLatitude);
        Key(json, "end");
        PositionPair(json, strip.endLongitude, strip.endLatitude);
        CloseObject(json);
    }
    CloseArray(json);
}

void TowerFields(JsonWriter* json, const model::TowerViewpointRecord& tower) {
    Position(json, tower.longitude, tower.latitude);
    Elevation(json, "elevation", tower.altitude);
}

void GuidelineFields(JsonWriter* json, const model::GuidelinePayload& guideline, const ListPositions& positions) {
    Reference(json, "from", guideline.from, positions);
    Reference(json, "to", guideline.to, positions);
}

}  // namespace

void WriteFields(JsonWriter* json, const SceneryObject* o, const ListPositions& positions) {
    switch (KindOf(o)) {
    case model::kAirport: return AirportFields(json, PayloadAs<model::AirportRecord>(o));
    case model::kTowerViewpoint: return TowerFields(json, PayloadAs<model::TowerViewpointRecord>(o));
    case model::kRunway: return RunwayFields(json, PayloadAs<model::RunwayPayload>(o));
    case model::kHelipad: return HelipadFields(json, PayloadAs<model::HelipadRecord>(o));
    case model::kCommFrequency: return CommFields(json, PayloadAs<model::CommFrequencyRecord>(o));
    case model::kStartLocation: return StartFields(json, PayloadAs<model::StartLocationRecord>(o));
    case model::kTaxiNode: return NodeFields(json, PayloadAs<model::TaxiNodeRecord>(o));
    case model::kTaxiLink: return LinkFields(json, PayloadAs<model::TaxiLinkPayload>(o), positions);
    case model::kTaxiDesignator: return Name(json, "name", PayloadAs<model::TaxiDesignatorRecord>(o).name, 8);
    case model::kParkingSpot: return SpotFields(json, o);
    case model::kApron: return ApronFields(json, o);
    case model::kApronEdgeLights: return EdgeLightsFields(json, o);
    case model::kReferenceMarker: return Position(json, model::PositionOf(o));
    case model::kGuideline: return GuidelineFields(json, PayloadAs<model::GuidelinePayload>(o), positions);
    case model::kIls: return IlsFields(json, PayloadAs<model::IlsPayload>(o));
    case model::kMarkerBeacon: return MarkerFields(json, PayloadAs<model::MarkerBeaconPayload>(o));
    case model::kNdb: return NdbFields(json, PayloadAs<model::NdbPayload>(o));
    case model::kVorDme: return VorDmeFields(json, PayloadAs<model::VorDmePayload>(o));
    default: return;
    }
}

}  // namespace cli
