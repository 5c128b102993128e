// DumpNavaids.cpp - see DumpNavaids.h.
#include "cli/DumpNavaids.h"

#include "cli/DumpValues.h"
#include "model/Ident.h"
#include "model/Names.h"

namespace cli {

namespace {

void NavaidWords(JsonWriter* json, uint32_t ident, uint32_t region) {
    Text(json, "ident", ShiftedIdent(ident));
    Text(json, "region", model::UnpackIdent(region & model::kRegionMask));
    Text(json, "ofAirport", model::UnpackIdent(region >> model::kRegionBits));
}

void Dme(JsonWriter* json, const model::DmePart& dme) {
    Key(json, "dme");
    OpenObject(json);
    Position(json, dme.longitude, dme.latitude);
    Elevation(json, "elevation", dme.altitude);
    Float(json, "range", dme.range);
    CloseObject(json);
}

void GlideSlope(JsonWriter* json, const model::GlideSlopePart& slope) {
    Key(json, "glideSlope");
    OpenObject(json);
    Position(json, slope.longitude, slope.latitude);
    Elevation(json, "elevation", slope.altitude);
    Float(json, "range", slope.range);
    Float(json, "pitch", slope.pitch);
    CloseObject(json);
}

void VorBody(JsonWriter* json, const model::VorRecord& body) {
    NavaidWords(json, body.ident, body.region);
    Integer(json, "type", body.type);
    Integer(json, "navaidFlags", body.flags);
    Position(json, body.longitude, body.latitude);
    Elevation(json, "elevation", body.altitude);
    Integer(json, "frequency", body.frequency);
    Float(json, "range", body.range);
    Float(json, "magneticVariation", body.magneticVariation);
}

}  // namespace

void IlsFields(JsonWriter* json, const model::IlsPayload& ils) {
    Name(json, "name", ils.name, model::kNavaidNameSize);
    VorBody(json, ils.body);
    Text(json, "runway", model::RunwayEndName(ils.localizer.runwayNumber, ils.localizer.runwayDesignator));
    Float(json, "heading", ils.localizer.heading);
    Float(json, "width", ils.localizer.width);
    if (ils.body.flags & model::kHasGlideSlope) GlideSlope(json, ils.glideSlope);
    if (ils.body.flags & model::kHasDme) Dme(json, ils.dme);
}

void MarkerFields(JsonWriter* json, const model::MarkerBeaconPayload& marker) {
    NavaidWords(json, marker.ident, marker.region);
    Integer(json, "type", marker.type);
    Float(json, "heading", static_cast<float>(marker.heading) * 360 / 256);
    Position(json, marker.longitude, marker.latitude);
    Elevation(json, "elevation", marker.altitude);
}

void NdbFields(JsonWriter* json, const model::NdbPayload& ndb) {
    Name(json, "name", ndb.name, model::kNavaidNameSize);
    NavaidWords(json, ndb.ident, ndb.region);
    Integer(json, "type", ndb.type);
    Position(json, ndb.longitude, ndb.latitude);
    Elevation(json, "elevation", ndb.altitude);
    Integer(json, "frequency", ndb.frequency);
    Float(json, "range", ndb.range);
    Float(json, "magneticVariation", ndb.magneticVariation);
}

void VorDmeFields(JsonWriter* json, const model::VorDmePayload& vor) {
    Name(json, "name", vor.name, model::kNavaidNameSize);
    VorBody(json, vor.body);
    if (vor.body.flags & model::kHasDme) Dme(json, vor.dme);
}

}  // namespace cli
