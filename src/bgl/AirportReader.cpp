// AirportReader.cpp - see AirportReader.h.
//
// Counts and body sizes are trusted as the records give them: a list that claims more entries than its
// own record holds reads on into the next record, and the record's size alone says where the reading goes
// on. Only the end of the stretch bounds them, and a limit on bytes read again, so that no damaged file
// makes more objects than its size explains. An object whose body is cut short is not made.
#include "bgl/AirportReader.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "bgl/ByteReader.h"
#include "bgl/RecordIds.h"
#include "model/Ident.h"
#include "model/Links.h"
#include "model/ObjectList.h"
#include "model/Records.h"

namespace bgl {

namespace {

using model::SceneryObject;

constexpr size_t kReadAgain = 4;  // bodies may add up to so many times the stretch

struct Reading {
    ByteReader in;
    size_t bodyBytesLeft = 0;         // see kReadAgain
    SceneryObject* runway = nullptr;  // whose parts follow
    bool outlinePending = false;
    Bytes outlineHead, outline;  // of a 0x0037 that waits for its 0x0030
    SceneryObject* edgeLights = nullptr;
    std::vector<model::EdgeLightStrip> strips;  // for edgeLights
};

// Where the reading goes on after a record.
enum class Next { End, Inside, Behind };

bool TakeBody(Reading* reading, size_t size, Bytes* body) {
    if (size > reading->bodyBytesLeft || !TakeBytes(&reading->in, size, body)) return false;
    reading->bodyBytesLeft -= size;
    return true;
}

template <class T>
bool TakeValue(Reading* reading, T* value) {
    Bytes body;
    if (!TakeBody(reading, sizeof(T), &body)) return false;
    *value = ValueAt<T>(body, 0);
    return true;
}

// Appends an object whose payload starts with the body.
SceneryObject* AppendWith(uint32_t kind, size_t payloadSize, Bytes body) {
    SceneryObject* object = model::CreateObject(kind, static_cast<uint32_t>(payloadSize));
    std::copy(body.begin(), body.end(), object->payload);
    model::AppendObject(object);
    return object;
}

Next ReadAirportBody(Reading* reading, const RecordHead&) {
    if (model::state.airport) return Next::Behind;  // one airport at a time: a second is passed whole
    Bytes body;
    if (!TakeBody(reading, sizeof(model::AirportRecord), &body)) return Next::End;
    AppendWith(model::kAirport, body.size(), body);
    const auto airport = ValueAt<model::AirportRecord>(body, 0);
    model::state.icao = model::UnpackIdent(airport.ident >> model::kIdentShift);
    model::state.regionIdent = airport.regionIdent;
    AppendWith(model::kTowerViewpoint, sizeof(model::TowerViewpointRecord),
               body.subspan(offsetof(model::AirportRecord, towerLongitude), sizeof(model::TowerViewpointRecord)));
    return Next::Inside;
}

Next ReadRunway(Reading* reading, const RecordHead&) {
    Bytes body;
    if (!TakeBody(reading, sizeof(model::RunwayRecord), &body)) return Next::End;
    reading->runway = AppendWith(model::kRunway, sizeof(model::RunwayPayload), body);
    return Next::Inside;
}

// Stores one of several equal parts of the current runway; without a runway it is read and dropped.
Next ReadRunwayPart(Reading* reading, size_t firstPart, size_t partSize, int index) {
    Bytes body;
    if (!TakeBody(reading, partSize, &body)) return Next::End;
    if (reading->runway) {
        uint8_t* part = reading->runway->payload + firstPart + static_cast<size_t>(index) * partSize;
        std::copy(body.begin(), body.end(), part);
    }
    return Next::Behind;
}

Next ReadRunwayArea(Reading* reading, const RecordHead& head) {
    return ReadRunwayPart(reading, offsetof(model::RunwayPayload, primaryThreshold), sizeof(model::RunwayAreaPart),
                          head.id - kPrimaryThreshold);
}

Next ReadVasi(Reading* reading, const RecordHead& head) {
    return ReadRunwayPart(reading, offsetof(model::RunwayPayload, primaryLeftVasi), sizeof(model::VasiPart),
                          head.id - kPrimaryLeftVasi);
}

Next ReadApproachLights(Reading* reading, const RecordHead& head) {
    return ReadRunwayPart(reading, offsetof(model::RunwayPayload, primaryApproachLights), sizeof(uint16_t),
                          head.id - kPrimaryApproachLights);
}

template <class Record>
Next ReadPlainObject(Reading* reading, uint32_t kind) {
    Bytes body;
    if (!TakeBody(reading, sizeof(Record), &body)) return Next::End;
    AppendWith(kind, sizeof(Record), body);
    return Next::Behind;
}

Next ReadStart(Reading* reading, const RecordHead&) {
    return ReadPlainObject<model::StartLocationRecord>(reading, model::kStartLocation);
}

Next ReadHelipad(Reading* reading, const RecordHead&) {
    return ReadPlainObject<model::HelipadRecord>(reading, model::kHelipad);
}

Next ReadComm(Reading* reading, const RecordHead& head) {
    constexpr size_t kMost = sizeof(model::CommFrequencyRecord) - 1;  // the last byte ends the name
    Bytes body;
    if (!TakeBody(reading, std::min<size_t>(head.size - kRecordHeadSize, kMost), &body)) return Next::End;
    AppendWith(model::kCommFrequency, sizeof(model::CommFrequencyRecord), body);
    return Next::Behind;
}

Next ReadName(Reading* reading, const RecordHead& head) {
    const size_t wanted = std::min<size_t>(head.size - kRecordHeadSize, model::kAirportNameSize);
    const size_t held = std::min(wanted, BytesLeft(reading->in));
    Bytes body;
    if (!TakeBody(reading, held, &body)) return Next::End;
    char* name = model::state.airportName;
    std::fill(std::copy(body.begin(), body.end(), name), name + model::kAirportNameSize, '\0');
    return held < wanted ? Next::End : Next::Behind;
}

// A u16 count, then that many entries of one size; those that are whole are kept.
template <class Keep>
Next ReadList(Reading* reading, size_t entrySize, Keep keep) {
    uint16_t count;
    if (!TakeValue(reading, &count)) return Next::End;
    for (int i = 0; i < count; ++i) {
        Bytes entry;
        if (!TakeBody(reading, entrySize, &entry)) return Next::End;
        keep(entry);
    }
    return Next::Behind;
}

Next ReadTaxiNodes(Reading* reading, const RecordHead&) {
    return ReadList(reading, sizeof(model::TaxiNodeRecord),
                    [](Bytes entry) { AppendWith(model::kTaxiNode, entry.size(), entry); });
}

Next ReadTaxiNames(Reading* reading, const RecordHead&) {
    return ReadList(reading, sizeof(model::TaxiDesignatorRecord),
                    [](Bytes entry) { AppendWith(model::kTaxiDesignator, entry.size(), entry); });
}

Next ReadTaxiLinks(Reading* reading, const RecordHead&) {
    return ReadList(reading, model::kTaxiLinkFileSize, [](Bytes entry) {
        const auto start = ValueAt<uint16_t>(entry, offsetof(model::TaxiLinkPayload, startIndex));
        const auto end = ValueAt<uint16_t>(entry, offsetof(model::TaxiLinkPayload, endField)) & 0x0FFF;
        const auto type = ValueAt<uint8_t>(entry, offsetof(model::TaxiLinkPayload, flagsWord)) & model::kLinkTypeMask;
        const bool selfLoop = type != model::kParkingLink && start == end;
        if (!selfLoop) AppendWith(model::kTaxiLink, sizeof(model::TaxiLinkPayload), entry);
    });
}

Next ReadParkingSpots(Reading* reading, const RecordHead&) {
    uint16_t count;
    if (!TakeValue(reading, &count)) return Next::End;
    for (int i = 0; i < count; ++i) {
        Bytes fixed, codes;
        if (!TakeBody(reading, sizeof(model::ParkingSpotRecord), &fixed)) return Next::End;
        const size_t codesSize = model::kParkingCodeSize * fixed[3];  // the packed word's top byte counts the codes
        if (!TakeBody(reading, codesSize, &codes)) return Next::End;
        SceneryObject* spot = AppendWith(model::kParkingSpot, fixed.size() + codesSize, fixed);
        std::copy(codes.begin(), codes.end(), spot->payload + fixed.size());
    }
    return Next::Behind;
}

Next ReadApronOutline(Reading* reading, const RecordHead&) {
    reading->outlinePending = false;  // a newer outline replaces one that found no surface
    Bytes head, vertices;
    if (!TakeBody(reading, 3, &head)) return Next::End;
    if (!TakeBody(reading, sizeof(model::EncodedPoint) * ValueAt<uint16_t>(head, 1), &vertices)) return Next::End;
    reading->outlineHead = head;
    reading->outline = vertices;
    reading->outlinePending = true;
    return Next::Behind;
}

Next ReadApronSurface(Reading* reading, const RecordHead&) {
    if (!reading->outlinePending) return Next::Behind;
    constexpr size_t kHeadSize = 6;
    Bytes head, rest;
    if (!TakeBody(reading, kHeadSize, &head)) return Next::End;
    const size_t restSize = sizeof(model::EncodedPoint) * ValueAt<uint16_t>(head, 2) +
                            sizeof(model::ApronTriangle) * ValueAt<uint16_t>(head, 4);
    if (!TakeBody(reading, restSize, &rest)) return Next::End;
    SceneryObject* apron = AppendWith(model::kApron, sizeof(model::ApronHead) + reading->outline.size() + restSize, {});
    uint8_t* to = apron->payload + offsetof(model::ApronHead, outlineSurface);
    for (Bytes part : { reading->outlineHead, head, reading->outline, rest })
        to = std::copy(part.begin(), part.end(), to);
    reading->outlinePending = false;
    return Next::Behind;
}

#pragma pack(push, 1)
struct EdgeEntry {
    float spacing;
    uint16_t start, end;
};
#pragma pack(pop)

// Resolves the edges' vertex numbers to positions. An edge that names a vertex that the record lacks is dropped.
void AddStrips(Bytes vertices, Bytes edges, std::vector<model::EdgeLightStrip>* strips) {
    const size_t vertexCount = vertices.size() / sizeof(model::EncodedPoint);
    for (size_t at = 0; at < edges.size(); at += sizeof(EdgeEntry)) {
        const auto edge = ValueAt<EdgeEntry>(edges, at);
        if (edge.start >= vertexCount || edge.end >= vertexCount) continue;
        const auto start = ValueAt<model::EncodedPoint>(vertices, edge.start * sizeof(model::EncodedPoint));
        const auto end = ValueAt<model::EncodedPoint>(vertices, edge.end * sizeof(model::EncodedPoint));
        strips->push_back({ edge.spacing, start.longitude, start.latitude, end.longitude, end.latitude, 0, 0, 0 });
    }
}

Next ReadEdgeLights(Reading* reading, const RecordHead&) {
    constexpr size_t kHeadSize = offsetof(model::EdgeLightsHead, stripCount);
    Bytes head, vertices, edges;
    if (!TakeBody(reading, kHeadSize, &head)) return Next::End;
    const size_t vertexCount = ValueAt<uint16_t>(head, offsetof(model::EdgeLightsHead, vertexCount));
    const size_t edgeCount = ValueAt<uint16_t>(head, offsetof(model::EdgeLightsHead, edgeCount));
    if (!TakeBody(reading, vertexCount * sizeof(model::EncodedPoint), &vertices)) return Next::End;
    if (!TakeBody(reading, edgeCount * sizeof(EdgeEntry), &edges)) return Next::End;
    if (!reading->edgeLights)
        reading->edgeLights = AppendWith(model::kApronEdgeLights, sizeof(model::EdgeLightsHead), {});
    std::copy(head.begin(), head.end(), reading->edgeLights->payload);
    AddStrips(vertices, edges, &reading->strips);
    return Next::Behind;
}

// All edge light records together make one object; its strips are known at the end.
void FinishEdgeLights(Reading* reading) {
    if (!reading->edgeLights) return;
    const size_t size = reading->strips.size() * sizeof(model::EdgeLightStrip);
    model::ResizePayload(reading->edgeLights, static_cast<uint32_t>(sizeof(model::EdgeLightsHead) + size));
    auto& head = model::PayloadAs<model::EdgeLightsHead>(reading->edgeLights);
    head.stripCount = static_cast<uint32_t>(reading->strips.size());
    if (size > 0) std::memcpy(reading->edgeLights->payload + sizeof head, reading->strips.data(), size);
}

Next ReadRecord(Reading* reading, const RecordHead& head) {
    switch (head.id) {
    case kAirportRecord: return ReadAirportBody(reading, head);
    case kRunwayRecord: return ReadRunway(reading, head);
    case kPrimaryThreshold:
    case kSecondaryThreshold:
    case kPrimaryBlastPad:
    case kSecondaryBlastPad:
    case kPrimaryOverrun:
    case kSecondaryOverrun: return ReadRunwayArea(reading, head);
    case kPrimaryLeftVasi:
    case kPrimaryRightVasi:
    case kSecondaryLeftVasi:
    case kSecondaryRightVasi: return ReadVasi(reading, head);
    case kPrimaryApproachLights:
    case kSecondaryApproachLights: return ReadApproachLights(reading, head);
    case kStartRecord: return ReadStart(reading, head);
    case kCommRecord: return ReadComm(reading, head);
    case kNameRecord: return ReadName(reading, head);
    case kTaxiNodeRecord: return ReadTaxiNodes(reading, head);
    case kParkingRecord: return ReadParkingSpots(reading, head);
    case kTaxiLinkRecord: return ReadTaxiLinks(reading, head);
    case kTaxiNameRecord: return ReadTaxiNames(reading, head);
    case kHelipadRecord: return ReadHelipad(reading, head);
    case kApronOutlineRecord: return ReadApronOutline(reading, head);
    case kApronSurfaceRecord: return ReadApronSurface(reading, head);
    case kEdgeLightsRecord: return ReadEdgeLights(reading, head);
    default: return Next::Behind;
    }
}

void ReadRecords(Reading* reading) {
    for (;;) {
        const size_t start = reading->in.at;
        RecordHead head;
        if (!TakeRecordHead(&reading->in, &head)) return;
        const Next next = ReadRecord(reading, head);
        if (next == Next::End) return;
        if (next == Next::Inside) continue;
        if (head.size > reading->in.bytes.size() - start) return;
        reading->in.at = start + head.size;
    }
}

}  // namespace

void ReadAirport(std::span<const uint8_t> bytes) {
    Reading reading;
    reading.in.bytes = bytes;
    reading.bodyBytesLeft = bytes.size() * kReadAgain;
    ReadRecords(&reading);
    FinishEdgeLights(&reading);
    model::ResolveLinks();
    model::state.loaded = model::state.airport != nullptr;
}

}  // namespace bgl
