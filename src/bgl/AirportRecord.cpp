// AirportRecord.cpp - see AirportRecord.h.
//
// The order of the records is fixed. The size of a name record rounds down, so some names end without
// their zero; the overruns that the reader keeps are never written. Both are meant.
#include "bgl/AirportRecord.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

#include "bgl/RecordIds.h"
#include "model/Ident.h"
#include "model/Links.h"
#include "model/ObjectList.h"
#include "model/Records.h"
#include "model/SpotBits.h"
#include "platform/Text.h"

namespace bgl {

namespace {

using model::SceneryObject;

constexpr uint32_t kDeleteAllButApproaches = 0xFE;  // what the stock airport loses under this one
constexpr uint16_t kDeleteRecordSize = 10;

using model::KindLists;

bool IsOpenApron(const SceneryObject* apron) { return (apron->flags & model::kOutlineOpen) != 0; }

uint8_t CountByte(const std::vector<SceneryObject*>& objects) {
    assert(objects.size() <= UINT8_MAX);
    return static_cast<uint8_t>(objects.size());
}

void UpdateAirport(const KindLists& lists, model::AirportRecord* airport) {
    airport->runwayCount = CountByte(lists[model::kRunway]);
    airport->commCount = CountByte(lists[model::kCommFrequency]);
    airport->startCount = CountByte(lists[model::kStartLocation]);
    airport->approachCount = 0;
    airport->apronCount = CountByte(lists[model::kApron]);
    airport->helipadCount = CountByte(lists[model::kHelipad]);
    model::TowerViewpointRecord tower = { model::kPlaceholderLongitude, model::kPlaceholderLatitude, 0 };
    const auto& towers = lists[model::kTowerViewpoint];
    if (!towers.empty()) tower = model::PayloadAs<model::TowerViewpointRecord>(towers.front());
    airport->towerLongitude = tower.longitude;
    airport->towerLatitude = tower.latitude;
    airport->towerAltitude = tower.altitude;
    // A word that already spells the identifier stays as it is: a few words that no packing makes decode, too.
    const std::string spelled = model::UnpackIdent(airport->ident >> model::kIdentShift);
    if (platform::EqualNoCase(spelled, model::state.icao)) return;
    airport->ident =
        model::PackIdent(model::state.icao) << model::kIdentShift | (airport->ident & model::kIdentLowBits);
}

void WriteName(ByteWriter* out) {
    const size_t bodySize = ((model::AirportName().size() + 9) & ~size_t{ 3 }) - kRecordHeadSize;
    const size_t held = std::min(bodySize, model::kAirportNameSize);
    BeginRecord(out, kNameRecord, static_cast<uint32_t>(bodySize + kRecordHeadSize));
    PutBytes(out, model::state.airportName, held);
    PutZeros(out, bodySize - held);
}

void WriteArea(uint16_t id, const model::RunwayAreaPart& part, ByteWriter* out) {
    const float length = part.length;
    if (length != 0) PutRecord(out, id, &part, sizeof part);
}

template <class Part>
void WriteUnlessZero(uint16_t id, const Part& part, ByteWriter* out) {
    const auto* bytes = reinterpret_cast<const uint8_t*>(&part);
    if (std::any_of(bytes, bytes + sizeof part, [](uint8_t byte) { return byte != 0; }))
        PutRecord(out, id, &part, sizeof part);
}

void WriteRunway(const model::RunwayPayload& runway, ByteWriter* out) {
    const size_t start = BeginRecord(out, kRunwayRecord);
    Put(out, runway.body);
    WriteArea(kPrimaryBlastPad, runway.primaryBlastPad, out);
    WriteArea(kSecondaryBlastPad, runway.secondaryBlastPad, out);
    WriteArea(kPrimaryThreshold, runway.primaryThreshold, out);
    WriteArea(kSecondaryThreshold, runway.secondaryThreshold, out);
    WriteUnlessZero(kPrimaryApproachLights, runway.primaryApproachLights, out);
    WriteUnlessZero(kSecondaryApproachLights, runway.secondaryApproachLights, out);
    WriteUnlessZero(kPrimaryLeftVasi, runway.primaryLeftVasi, out);
    WriteUnlessZero(kPrimaryRightVasi, runway.primaryRightVasi, out);
    WriteUnlessZero(kSecondaryLeftVasi, runway.secondaryLeftVasi, out);
    WriteUnlessZero(kSecondaryRightVasi, runway.secondaryRightVasi, out);
    EndRecord(out, start);
}

void WriteComm(const SceneryObject* object, ByteWriter* out) {
    const auto& comm = model::PayloadAs<model::CommFrequencyRecord>(object);
    const auto* nameEnd = std::find(comm.name, comm.name + model::kCommNameSize, '\0');
    const size_t recordSize = (static_cast<size_t>(nameEnd - comm.name) + 15) & ~size_t{ 3 };
    PutRecord(out, kCommRecord, object->payload, recordSize - kRecordHeadSize);
}

// One record of all objects of a kind, each as the first `entrySize` bytes of its payload; none when
// there are no objects.
void WriteList(uint16_t id, const std::vector<SceneryObject*>& objects, size_t entrySize, ByteWriter* out) {
    if (objects.empty()) return;
    const size_t start = BeginRecord(out, id);
    Put(out, static_cast<uint16_t>(objects.size()));
    for (const SceneryObject* object : objects) PutBytes(out, object->payload, entrySize);
    EndRecord(out, start);
}

void WriteParkingSpots(const std::vector<SceneryObject*>& spots, ByteWriter* out) {
    if (spots.empty()) return;
    const size_t start = BeginRecord(out, kParkingRecord);
    Put(out, static_cast<uint16_t>(spots.size()));
    for (const SceneryObject* spot : spots) {
        assert(spot->payloadSize ==
               sizeof(model::ParkingSpotRecord) +
                   model::kParkingCodeSize * ParkingCodeCount(model::PayloadAs<model::ParkingSpotRecord>(spot)));
        PutBytes(out, spot->payload, spot->payloadSize);
    }
    EndRecord(out, start);
}

void WriteApron(const SceneryObject* apron, ByteWriter* out) {
    const auto& head = model::PayloadAs<model::ApronHead>(apron);
    const size_t outlineSize = sizeof(model::EncodedPoint) * head.outlineCount;
    const size_t surfaceSize =
        sizeof(model::EncodedPoint) * head.vertexCount + sizeof(model::ApronTriangle) * head.triangleCount;
    assert(apron->payloadSize == sizeof head + outlineSize + surfaceSize);
    constexpr size_t kHeads = offsetof(model::ApronHead, outlineSurface),
                     kSurfaceHead = offsetof(model::ApronHead, surface);
    const uint8_t* outline = apron->payload + sizeof head;

    size_t start = BeginRecord(out, kApronOutlineRecord);
    PutBytes(out, apron->payload + kHeads, kSurfaceHead - kHeads);
    PutBytes(out, outline, outlineSize);
    PutZeros(out, 3);
    EndRecord(out, start);

    const size_t recordSize = (surfaceSize + 15) & ~size_t{ 3 };
    start = BeginRecord(out, kApronSurfaceRecord, static_cast<uint32_t>(recordSize));
    PutBytes(out, apron->payload + kSurfaceHead, sizeof head - kSurfaceHead);
    PutBytes(out, outline + outlineSize, surfaceSize);
    PutZeros(out, start + recordSize - out->bytes.size());
}

void WriteEdgeLights(const SceneryObject* edgeLights, ByteWriter* out) {
    const EdgeTables tables = MakeEdgeTables(edgeLights);
    auto head = model::PayloadAs<model::EdgeLightsHead>(edgeLights);
    head.vertexCount = static_cast<uint16_t>(tables.vertexCount);
    head.edgeCount = static_cast<uint16_t>(tables.edgeCount);
    const size_t start = BeginRecord(out, kEdgeLightsRecord);
    PutBytes(out, &head, offsetof(model::EdgeLightsHead, stripCount));
    PutBytes(out, tables.vertices.bytes.data(), tables.vertices.bytes.size());
    PutBytes(out, tables.edges.bytes.data(), tables.edges.bytes.size());
    EndRecord(out, start);
}

}  // namespace

EdgeTables MakeEdgeTables(const SceneryObject* edgeLights) {
    EdgeTables tables;
    std::unordered_map<uint64_t, uint32_t> numbers;
    const auto numberOf = [&](uint32_t longitude, uint32_t latitude) {
        const auto [place, isNew] =
            numbers.try_emplace(uint64_t{ longitude } << 32 | latitude, static_cast<uint32_t>(numbers.size()));
        if (isNew) Put(&tables.vertices, model::EncodedPoint{ longitude, latitude });
        return static_cast<uint16_t>(place->second);
    };
    tables.edgeCount = model::PayloadAs<model::EdgeLightsHead>(edgeLights).stripCount;
    assert(edgeLights->payloadSize == sizeof(model::EdgeLightsHead) + tables.edgeCount * sizeof(model::EdgeLightStrip));
    const Bytes strips(edgeLights->payload + sizeof(model::EdgeLightsHead),
                       tables.edgeCount * sizeof(model::EdgeLightStrip));
    for (size_t at = 0; at < strips.size(); at += sizeof(model::EdgeLightStrip)) {
        const auto strip = ValueAt<model::EdgeLightStrip>(strips, at);
        PutBytes(&tables.edges, strips.data() + at, sizeof strip.spacing);
        Put(&tables.edges, numberOf(strip.startLongitude, strip.startLatitude));
        Put(&tables.edges, numberOf(strip.endLongitude, strip.endLatitude));
    }
    tables.vertexCount = numbers.size();
    return tables;
}

void WriteAirportRecord(ByteWriter* out) {
    model::UpdateLinkIndices();
    KindLists lists = model::SortByKind();
    std::erase_if(lists[model::kApron], IsOpenApron);
    auto& airport = model::PayloadAs<model::AirportRecord>(model::state.airport);
    UpdateAirport(lists, &airport);
    const size_t start = BeginRecord(out, kAirportRecord);
    Put(out, airport);
    WriteName(out);
    BeginRecord(out, kDeleteAirportRecord, kDeleteRecordSize);
    Put(out, kDeleteAllButApproaches);
    for (const SceneryObject* runway : lists[model::kRunway])
        WriteRunway(model::PayloadAs<model::RunwayPayload>(runway), out);
    for (const SceneryObject* pad : lists[model::kHelipad])
        PutRecord(out, kHelipadRecord, pad->payload, sizeof(model::HelipadRecord));
    for (const SceneryObject* place : lists[model::kStartLocation])
        PutRecord(out, kStartRecord, place->payload, sizeof(model::StartLocationRecord));
    for (const SceneryObject* comm : lists[model::kCommFrequency]) WriteComm(comm, out);
    WriteList(kTaxiNodeRecord, lists[model::kTaxiNode], sizeof(model::TaxiNodeRecord), out);
    WriteParkingSpots(lists[model::kParkingSpot], out);
    WriteList(kTaxiLinkRecord, lists[model::kTaxiLink], model::kTaxiLinkFileSize, out);
    WriteList(kTaxiNameRecord, lists[model::kTaxiDesignator], sizeof(model::TaxiDesignatorRecord), out);
    for (const SceneryObject* apron : lists[model::kApron]) WriteApron(apron, out);
    const auto& edgeLights = lists[model::kApronEdgeLights];
    if (!edgeLights.empty()) WriteEdgeLights(edgeLights.front(), out);
    EndRecord(out, start);
}

}  // namespace bgl
