// NavaidRecords.cpp - see NavaidRecords.h.
//
// Payloads keep every body at a fixed place, so both directions copy. Name records round their size in
// two ways, and some names end without their zero; that is meant.
#include "bgl/NavaidRecords.h"

#include <algorithm>
#include <cassert>
#include <cstddef>

#include "bgl/RecordIds.h"
#include "model/Positions.h"

namespace bgl {

namespace {

using model::IlsPayload;
using model::NdbPayload;
using model::SceneryObject;
using model::VorDmePayload;

// Where a sub-record's body lies in the payload.
struct PartPlace {
    uint16_t id;
    size_t offset, size;
};
constexpr PartPlace kIlsParts[] = {
    { kLocalizerRecord, offsetof(IlsPayload, localizer), sizeof(model::LocalizerPart) },
    { kGlideSlopeRecord, offsetof(IlsPayload, glideSlope), sizeof(model::GlideSlopePart) },
    { kDmeRecord, offsetof(IlsPayload, dme), sizeof(model::DmePart) },
    { kNameRecord, offsetof(IlsPayload, name), model::kNavaidNameSize },
};
constexpr PartPlace kVorDmeParts[] = {
    { kDmeRecord, offsetof(VorDmePayload, dme), sizeof(model::DmePart) },
    { kNameRecord, offsetof(VorDmePayload, name), model::kNavaidNameSize },
};
constexpr PartPlace kNdbParts[] = {
    { kNameRecord, offsetof(NdbPayload, name), model::kNavaidNameSize },
};

// Copies the sub-records that belong to the payload. A name may be shorter than its place, or longer.
void CopyParts(Bytes records, std::span<const PartPlace> parts, SceneryObject* object) {
    WalkRecords(records, [&](const RecordHead& head, Bytes body) {
        for (const PartPlace& part : parts) {
            if (part.id != head.id || (part.id != kNameRecord && body.size() < part.size)) continue;
            uint8_t* place = object->payload + part.offset;
            std::fill(std::copy_n(body.begin(), std::min(body.size(), part.size), place), place + part.size, uint8_t{});
        }
    });
}

SceneryObject* MakeWithParts(uint32_t kind, size_t payloadSize, Bytes body, size_t bodySize,
                             std::span<const PartPlace> parts) {
    if (body.size() < bodySize) return nullptr;
    SceneryObject* object = model::CreateObject(kind, static_cast<uint32_t>(payloadSize));
    std::copy_n(body.begin(), bodySize, object->payload);
    CopyParts(body.subspan(bodySize), parts, object);
    return object;
}

size_t NameLength(const char* name) {
    return static_cast<size_t>(std::find(name, name + model::kNavaidNameSize, '\0') - name);
}

void WriteNameOfSize(const char* name, size_t recordSize, ByteWriter* out) {
    const size_t length = NameLength(name);
    const size_t start = BeginRecord(out, kNameRecord, static_cast<uint32_t>(recordSize));
    PutBytes(out, name, length);
    PutZeros(out, start + recordSize - out->bytes.size());
}

void WriteVorName(const char* name, ByteWriter* out) {
    WriteNameOfSize(name, (NameLength(name) + 9) & ~size_t{ 3 }, out);
}

void WriteIls(const IlsPayload& ils, ByteWriter* out) {
    const size_t start = BeginRecord(out, kVorRecord);
    Put(out, ils.body);
    PutRecord(out, kLocalizerRecord, &ils.localizer, sizeof ils.localizer);
    if (ils.body.flags & model::kHasGlideSlope)
        PutRecord(out, kGlideSlopeRecord, &ils.glideSlope, sizeof ils.glideSlope);
    if (ils.body.flags & model::kHasDme) PutRecord(out, kDmeRecord, &ils.dme, sizeof ils.dme);
    WriteVorName(ils.name, out);
    EndRecord(out, start);
}

void WriteVorDme(VorDmePayload* vor, ByteWriter* out) {
    const size_t start = BeginRecord(out, kVorRecord);
    Put(out, vor->body);
    if (vor->body.flags & model::kHasDme) {
        vor->dme.longitude = vor->body.longitude;
        vor->dme.latitude = vor->body.latitude;
        vor->dme.altitude = vor->body.altitude;
        PutRecord(out, kDmeRecord, &vor->dme, sizeof vor->dme);
    }
    WriteVorName(vor->name, out);
    EndRecord(out, start);
}

void WriteNdb(const NdbPayload& ndb, ByteWriter* out) {
    const size_t start = BeginRecord(out, kNdbRecord);
    PutBytes(out, &ndb, model::kNavaidBodySize);
    WriteNameOfSize(ndb.name, kRecordHeadSize + ((NameLength(ndb.name) + 3) & ~size_t{ 3 }), out);
    EndRecord(out, start);
}

}  // namespace

SceneryObject* MakeNavaid(const RecordHead& head, Bytes body) {
    switch (head.id) {
    case kVorRecord:
        if (!body.empty() && body[0] == model::kIlsType)
            return MakeWithParts(model::kIls, sizeof(IlsPayload), body, model::kNavaidBodySize, kIlsParts);
        return MakeWithParts(model::kVorDme, sizeof(VorDmePayload), body, model::kNavaidBodySize, kVorDmeParts);
    case kNdbRecord: return MakeWithParts(model::kNdb, sizeof(NdbPayload), body, model::kNavaidBodySize, kNdbParts);
    case kMarkerRecord:
        return MakeWithParts(model::kMarkerBeacon, sizeof(model::MarkerBeaconPayload), body,
                             model::kMarkerBeaconFileSize, {});
    default: return nullptr;
    }
}

void WriteNavaid(SceneryObject* navaid, ByteWriter* out) {
    switch (KindOf(navaid)) {
    case model::kIls: return WriteIls(model::PayloadAs<IlsPayload>(navaid), out);
    case model::kVorDme: return WriteVorDme(&model::PayloadAs<VorDmePayload>(navaid), out);
    case model::kNdb: return WriteNdb(model::PayloadAs<NdbPayload>(navaid), out);
    case model::kMarkerBeacon: return PutRecord(out, kMarkerRecord, navaid->payload, model::kMarkerBeaconFileSize);
    default: assert(false && "no navaid");
    }
}

bool IsNavaid(const SceneryObject* object) {
    const uint32_t kind = KindOf(object);
    return kind == model::kIls || kind == model::kMarkerBeacon || kind == model::kNdb || kind == model::kVorDme;
}

NavaidKey KeyOf(const SceneryObject* navaid) {
    const model::BglPoint place = model::EncodedPositionOf(navaid);
    NavaidKey key = { { place.lonCode, place.latCode }, 0, 0 };
    switch (KindOf(navaid)) {
    case model::kMarkerBeacon: {
        const auto& marker = model::PayloadAs<model::MarkerBeaconPayload>(navaid);
        key.ident = marker.ident;
        key.region = marker.region;
        break;
    }
    case model::kNdb: {
        const auto& ndb = model::PayloadAs<NdbPayload>(navaid);
        key.ident = ndb.ident;
        key.region = ndb.region;
        break;
    }
    default: {
        const auto& body = model::PayloadAs<model::VorRecord>(navaid);  // starts both payloads
        key.ident = body.ident;
        key.region = body.region;
    }
    }
    return key;
}

}  // namespace bgl
