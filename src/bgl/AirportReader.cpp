// AirportReader.cpp - see AirportReader.h.
//
// Counts and body sizes are trusted as the records give them: a list that claims more entries than its
// own record holds reads on into the next record, and the record's size alone says where the reading goes
// on. Only the end of the stretch bounds them, and a limit on bytes read again, so that no damaged file
// makes more objects than its size explains. An object whose body is cut short is not made.
#include "bgl/AirportReader.h"

#include <algorithm>

#include "bgl/RecordIds.h"
#include "bgl/RecordReading.h"
#include "model/Ident.h"
#include "model/Links.h"
#include "model/ObjectList.h"
#include "model/Records.h"

namespace bgl {

namespace {

using model::SceneryObject;

constexpr size_t kReadAgain = 4;  // bodies may add up to so many times the stretch

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
    return wanted - held > kPadding ? Next::End : Next::Behind;
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
    case kApronOutlineRecord: return ReadApronOutline(reading);
    case kApronSurfaceRecord: return ReadApronSurface(reading);
    case kEdgeLightsRecord: return ReadEdgeLights(reading);
    default: return Next::Behind;
    }
}

// Whether nothing was missed.
bool ReadRecords(Reading* reading) {
    while (HoldsRecord(reading->in)) {
        const size_t start = reading->in.at;
        RecordHead head;
        if (!TakeRecordHead(&reading->in, &head)) return false;
        const Next next = ReadRecord(reading, head);
        if (next == Next::End) return false;
        if (next == Next::Inside) continue;
        if (head.size > reading->in.bytes.size() - start) return !HoldsRecord(reading->in);
        reading->in.at = start + head.size;
    }
    return true;
}

}  // namespace

bool ReadAirport(std::span<const uint8_t> bytes) {
    Reading reading;
    reading.in.bytes = bytes;
    reading.bodyBytesLeft = bytes.size() * kReadAgain;
    const bool isWhole = ReadRecords(&reading);
    FinishEdgeLights(&reading.apron);
    model::ResolveLinks();
    model::state.loaded = model::state.airport != nullptr;
    return isWhole;
}

}  // namespace bgl
