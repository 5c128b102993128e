// RandomAirport.cpp - see RandomAirport.h.
#include "RandomAirport.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "model/Ident.h"
#include "model/Links.h"
#include "model/ObjectList.h"
#include "model/Records.h"

namespace {

using namespace model;

constexpr uint32_t kTurn = 0x30000000, kPoleToPole = 0x20000000;
constexpr int kCellShift = 21;

float AnyFloat(Random* random) {
    uint32_t bits = static_cast<uint32_t>(Next(random));
    if (OneIn(random, 3)) bits = 0;
    float value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

template <class Record>
void FillWithAnything(Random* random, Record* record) {
    auto* bytes = reinterpret_cast<uint8_t*>(record);
    for (size_t i = 0; i < sizeof(Record); ++i) bytes[i] = static_cast<uint8_t>(Next(random));
}

uint32_t AnyIdent(Random* random, uint32_t lowBits) {
    static const char* const kFew[] = { "ISEA", "ABC", "AB", "SEA", "" };  // so that some are equal
    const char letters[] = { static_cast<char>('A' + Below(random, 26)), static_cast<char>('0' + Below(random, 10)),
                             0 };
    return PackIdent(OneIn(random, 3) ? letters : kFew[Below(random, 5)]) << kIdentShift | lowBits;
}

EncodedPoint AnyPoint(Random* random) { return { Below(random, kTurn), Below(random, kPoleToPole) }; }

// A point of one of a few cells, which are the same for every navaid of a seed.
EncodedPoint PointInFewCells(Random* random, uint64_t seed, uint32_t cells) {
    Random place{ seed * 31 + Below(random, std::max(cells, 1u)) };
    const EncodedPoint any = AnyPoint(&place);
    const uint32_t inCell = (1u << kCellShift) - 1;
    return { (any.longitude & ~inCell) + Below(random, inCell + 1),
             (any.latitude & ~inCell) + Below(random, inCell + 1) };
}

// Any length up to the place's; characters of all 8-bit values but 0.
void FillName(Random* random, char* name, size_t size) {
    const uint32_t length = Below(random, static_cast<uint32_t>(size) + 1);
    for (uint32_t i = 0; i < length; ++i) name[i] = static_cast<char>(1 + Below(random, 255));
}

std::string AnyText(Random* random) {
    std::string text(Below(random, 20), ' ');
    for (char& c : text) c = static_cast<char>(1 + Below(random, 255));
    return text;
}

SceneryObject* Make(uint32_t kind, size_t size) { return CreateObject(kind, static_cast<uint32_t>(size)); }

template <class Record>
SceneryObject* MakePlain(Random* random, uint32_t kind) {
    SceneryObject* object = Make(kind, sizeof(Record));
    FillWithAnything(random, &PayloadAs<Record>(object));
    return object;
}

SceneryObject* MakeAirport(Random* random) {
    SceneryObject* object = MakePlain<AirportRecord>(random, kAirport);
    auto& airport = PayloadAs<AirportRecord>(object);
    const EncodedPoint place = AnyPoint(random);
    airport.longitude = place.longitude;
    airport.latitude = place.latitude;
    static const char* const kIdents[] = { "KSEA", "S36", "W", "CAB3", "12345", "" };
    state.icao = kIdents[Below(random, 6)];
    if (!state.icao.empty()) airport.ident = PackIdent(state.icao) << kIdentShift | Below(random, 32);
    state.regionIdent = airport.regionIdent;
    return object;
}

SceneryObject* MakeRunway(Random* random) {
    SceneryObject* object = Make(kRunway, sizeof(RunwayPayload));
    auto& runway = PayloadAs<RunwayPayload>(object);
    FillWithAnything(random, &runway.body);
    runway.body.primaryNumber = static_cast<uint8_t>(1 + Below(random, 36));
    runway.body.primaryDesignator = static_cast<uint8_t>(Below(random, 4));
    for (size_t offset = sizeof(RunwayRecord); offset < sizeof(RunwayPayload) - 1; ++offset) {
        const bool present = Below(random, 4) == 0;
        if (present) object->payload[offset] = static_cast<uint8_t>(Next(random));
    }
    const auto fill = [&](RunwayAreaPart& part) { part = { 4, AnyFloat(random), AnyFloat(random) }; };
    fill(runway.primaryThreshold);
    fill(runway.secondaryThreshold);
    fill(runway.primaryBlastPad);
    fill(runway.secondaryBlastPad);
    if (OneIn(random, 2)) runway.primaryLeftVasi = {};
    if (OneIn(random, 2)) runway.primaryApproachLights = 0;
    return object;
}

SceneryObject* MakeComm(Random* random) {
    SceneryObject* object = Make(kCommFrequency, sizeof(CommFrequencyRecord));
    auto& comm = PayloadAs<CommFrequencyRecord>(object);
    comm.type = static_cast<uint16_t>(Below(random, 20));
    comm.frequency = 118000000 + Below(random, 19000000);
    FillName(random, comm.name, kCommNameSize);
    return object;
}

SceneryObject* MakeSpot(Random* random) {
    const uint32_t codes = OneIn(random, 200) ? 255 : Below(random, 4);
    SceneryObject* object = Make(kParkingSpot, sizeof(ParkingSpotRecord) + 4 * codes);
    for (uint32_t i = 0; i < object->payloadSize; ++i) object->payload[i] = static_cast<uint8_t>(Next(random));
    auto& spot = PayloadAs<ParkingSpotRecord>(object);
    spot.packed = (spot.packed & 0xFFFFFF) | codes << 24;
    return object;
}

SceneryObject* MakeApronOf(Random* random, uint32_t a, uint32_t b) {
    const uint32_t t = b < 3 ? 0 : b - 2;
    SceneryObject* object =
        Make(kApron, sizeof(ApronHead) + sizeof(EncodedPoint) * (a + b) + sizeof(ApronTriangle) * t);
    for (uint32_t i = 0; i < object->payloadSize; ++i) object->payload[i] = static_cast<uint8_t>(Next(random));
    auto& head = PayloadAs<ApronHead>(object);
    head.outlineCount = static_cast<uint16_t>(a);
    head.vertexCount = static_cast<uint16_t>(b);
    head.triangleCount = static_cast<uint16_t>(t);
    return object;
}

SceneryObject* MakeApron(Random* random, uint32_t mostVertices) {
    const uint32_t a = Below(random, mostVertices + 1), b = OneIn(random, 2) ? a : Below(random, mostVertices + 1);
    return MakeApronOf(random, a, b);
}

SceneryObject* MakeEdgeLights(Random* random, uint32_t count) {
    SceneryObject* object = Make(kApronEdgeLights, sizeof(EdgeLightsHead) + sizeof(EdgeLightStrip) * count);
    auto& head = PayloadAs<EdgeLightsHead>(object);
    head = { static_cast<uint16_t>(Next(random)), 7, 9, 0xFF0000FF, 1, AnyFloat(random), count };
    EncodedPoint end = AnyPoint(random);
    for (uint32_t i = 0; i < count; ++i) {  // mostly chains, as somebody draws them
        const EncodedPoint start = OneIn(random, 4) ? AnyPoint(random) : end;
        end = AnyPoint(random);
        const EdgeLightStrip strip = {
            AnyFloat(random), start.longitude, start.latitude, end.longitude, end.latitude, 1, 0, 1
        };
        std::memcpy(object->payload + sizeof head + i * sizeof strip, &strip, sizeof strip);
    }
    return object;
}

SceneryObject* MakeVorOrIls(Random* random, bool isIls, EncodedPoint place) {
    SceneryObject* object = Make(isIls ? kIls : kVorDme, isIls ? sizeof(IlsPayload) : sizeof(VorDmePayload));
    auto& body = PayloadAs<VorRecord>(object);
    FillWithAnything(random, &body);
    body.type = static_cast<uint8_t>(isIls ? kIlsType : 1 + Below(random, 3));
    body.longitude = place.longitude;
    body.latitude = place.latitude;
    body.ident = AnyIdent(random, 2);
    if (isIls) {
        auto& ils = PayloadAs<IlsPayload>(object);
        FillWithAnything(random, &ils.localizer);
        if (body.flags & kHasGlideSlope) FillWithAnything(random, &ils.glideSlope);
        if (body.flags & kHasDme) FillWithAnything(random, &ils.dme);
        FillName(random, ils.name, kNavaidNameSize);
    } else {
        auto& vor = PayloadAs<VorDmePayload>(object);
        if (body.flags & kHasDme) FillWithAnything(random, &vor.dme);
        FillName(random, vor.name, kNavaidNameSize);
    }
    return object;
}

SceneryObject* MakeMarker(Random* random, EncodedPoint place) {
    SceneryObject* object = MakePlain<MarkerBeaconPayload>(random, kMarkerBeacon);
    auto& marker = PayloadAs<MarkerBeaconPayload>(object);
    marker.longitude = place.longitude;
    marker.latitude = place.latitude;
    return object;
}

SceneryObject* MakeNdb(Random* random, EncodedPoint place) {
    SceneryObject* object = MakePlain<NdbPayload>(random, kNdb);
    auto& ndb = PayloadAs<NdbPayload>(object);
    ndb.longitude = place.longitude;
    ndb.latitude = place.latitude;
    ndb.ident = AnyIdent(random, 3);
    std::memset(ndb.name, 0, sizeof ndb.name);
    FillName(random, ndb.name, kNavaidNameSize);
    return object;
}

// The objects by kind while they are made, because links point to others.
struct Parts {
    std::vector<SceneryObject*> nodes, spots, designators, runways, all;
};

SceneryObject* Keep(SceneryObject* object, Parts* parts, std::vector<SceneryObject*>* kind = nullptr) {
    parts->all.push_back(object);
    if (kind) kind->push_back(object);
    return object;
}

SceneryObject* AnyOf(Random* random, const std::vector<SceneryObject*>& objects) {
    return objects[Below(random, static_cast<uint32_t>(objects.size()))];
}

void MakeLink(Random* random, Parts* parts) {
    const bool canPark = !parts->spots.empty();
    if (parts->nodes.empty() || (parts->nodes.size() < 2 && !canPark)) return;
    SceneryObject* object = Make(kTaxiLink, sizeof(TaxiLinkPayload));
    auto& link = PayloadAs<TaxiLinkPayload>(object);
    const bool parks = canPark && (parts->nodes.size() < 2 || OneIn(random, 3));
    uint32_t type = parks ? uint32_t{ kParkingLink } : Below(random, 16);
    if (!parks && type == kParkingLink) type = kTaxiwayLink;
    link.flagsWord = (static_cast<uint32_t>(Next(random)) & ~0xFu) | type;
    link.endField = static_cast<uint16_t>(Next(random));
    link.width = AnyFloat(random);
    link.carried[0] = static_cast<uint32_t>(Next(random));
    link.start = AnyOf(random, parts->nodes);
    do link.end = AnyOf(random, parks ? parts->spots : parts->nodes);
    while (link.end == link.start);
    const auto& names = type == kRunwayLink ? parts->runways : parts->designators;
    if (!names.empty() && !OneIn(random, 5)) link.designator = AnyOf(random, names);
    Keep(object, parts);
}

void MakeNavaids(Random* random, uint64_t seed, const AirportCounts& counts, Parts* parts) {
    const auto place = [&] { return PointInFewCells(random, seed, counts.cells); };
    for (uint32_t i = 0; i < counts.ilss; ++i) Keep(MakeVorOrIls(random, true, place()), parts);
    for (uint32_t i = 0; i < counts.vors; ++i) Keep(MakeVorOrIls(random, false, place()), parts);
    for (uint32_t i = 0; i < counts.markers; ++i) Keep(MakeMarker(random, place()), parts);
    for (uint32_t i = 0; i < counts.ndbs; ++i) Keep(MakeNdb(random, place()), parts);
    for (uint32_t i = 0; i < counts.stockNavaids; ++i)
        Keep(MakeVorOrIls(random, OneIn(random, 2), AnyPoint(random)), parts)->flags |= kStock;
}

void MakeTaxiNetwork(Random* random, const AirportCounts& counts, Parts* parts) {
    for (uint32_t i = 0; i < counts.runways; ++i) Keep(MakeRunway(random), parts, &parts->runways);
    for (uint32_t i = 0; i < counts.nodes; ++i)
        Keep(MakePlain<TaxiNodeRecord>(random, kTaxiNode), parts, &parts->nodes);
    for (uint32_t i = 0; i < counts.spots; ++i) Keep(MakeSpot(random), parts, &parts->spots);
    for (uint32_t i = 0; i < counts.designators; ++i)
        Keep(MakePlain<TaxiDesignatorRecord>(random, kTaxiDesignator), parts, &parts->designators);
    for (uint32_t i = 0; i < counts.links; ++i) MakeLink(random, parts);
}

bool IsCarried(const SceneryObject* object) {
    const uint32_t kind = KindOf(object);
    const bool isOpen = kind == kApron && (object->flags & kOutlineOpen) != 0;
    return !isOpen && !IsStock(object) && kind != kReferenceMarker && kind != kGuideline;
}

void MakeRunwayReadable(RunwayPayload* runway) {
    runway->primaryOverrun = runway->secondaryOverrun = {};
    for (RunwayAreaPart* part : { &runway->primaryThreshold, &runway->secondaryThreshold, &runway->primaryBlastPad,
                                  &runway->secondaryBlastPad }) {
        const float length = part->length;
        if (length == 0) *part = {};
    }
}

void MakeVorReadable(VorDmePayload* vor) {
    if (!(vor->body.flags & kHasDme)) return;
    vor->dme.longitude = vor->body.longitude;
    vor->dme.latitude = vor->body.latitude;
    vor->dme.altitude = vor->body.altitude;
}

// No designator reads as the first one; of runways of one name the first is found.
void MakeLinkReadable(SceneryObject* firstName, TaxiLinkPayload* link) {
    if (LinkTypeOf(*link) != kRunwayLink) {
        if (!link->designator) link->designator = firstName;
        return;
    }
    if (!link->designator) return;
    const RunwayRecord named = PayloadAs<RunwayPayload>(link->designator).body;
    SceneryObject* runway = FirstOfKind(state.head, kRunway);
    for (;; runway = NextOfKind(runway, kRunway)) {
        const RunwayRecord& body = PayloadAs<RunwayPayload>(runway).body;
        if (body.primaryNumber == named.primaryNumber && body.primaryDesignator == named.primaryDesignator) break;
    }
    link->designator = runway;
}

void MakeTowerReadable(AirportRecord* airport) {
    SceneryObject* tower = FirstOfKind(state.head, kTowerViewpoint);
    if (!tower) {
        tower = Make(kTowerViewpoint, sizeof(TowerViewpointRecord));
        PayloadAs<TowerViewpointRecord>(tower) = { kPlaceholderLongitude, kPlaceholderLatitude, 0 };
        AppendObject(tower);
    }
    const TowerViewpointRecord place = PayloadAs<TowerViewpointRecord>(tower);
    airport->towerLongitude = place.longitude;
    airport->towerLatitude = place.latitude;
    airport->towerAltitude = place.altitude;
}

void Shuffle(Random* random, std::vector<SceneryObject*>* objects) {
    for (size_t i = objects->size(); i > 1; --i)
        std::swap((*objects)[i - 1], (*objects)[Below(random, static_cast<uint32_t>(i))]);
}

}  // namespace

uint64_t Next(Random* random) {
    uint64_t z = random->state += 0x9E3779B97F4A7C15;
    z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9;
    z = (z ^ z >> 27) * 0x94D049BB133111EB;
    return z ^ z >> 31;
}

uint32_t Below(Random* random, uint32_t limit) { return static_cast<uint32_t>((Next(random) >> 32) * limit >> 32); }

bool OneIn(Random* random, uint32_t limit) { return Below(random, limit) == 0; }

AirportCounts SmallCounts(Random* random) {
    AirportCounts counts;
    for (uint32_t* count : { &counts.runways, &counts.helipads, &counts.comms, &counts.starts, &counts.designators,
                             &counts.aprons, &counts.openAprons, &counts.strips, &counts.ilss, &counts.vors,
                             &counts.markers, &counts.ndbs, &counts.stockNavaids }) {
        *count = Below(random, 4) * Below(random, 2);
    }
    counts.nodes = Below(random, 9);
    counts.spots = Below(random, 5);
    counts.links = Below(random, 12);
    counts.cells = 1 + Below(random, 8);
    return counts;
}

AirportCounts LargeCounts() {
    AirportCounts counts;
    counts.runways = 4;
    counts.helipads = 2;
    counts.comms = 16;
    counts.starts = 8;
    counts.nodes = 800;
    counts.spots = 400;
    counts.links = 1100;
    counts.designators = 40;
    counts.aprons = 12;
    counts.strips = 150;
    counts.ilss = 6;
    counts.vors = 2;
    counts.markers = 4;
    counts.ndbs = 2;
    counts.cells = 1;
    counts.apronVertices = 60;
    return counts;
}

void MakeRandomAirport(uint64_t seed, const AirportCounts& counts) {
    ClearModel();
    Random random{ seed };
    Parts parts;
    Keep(MakeAirport(&random), &parts);
    FillName(&random, state.airportName, kAirportNameSize);
    state.country = AnyText(&random);
    state.state = AnyText(&random);
    state.city = AnyText(&random);
    state.loaded = true;
    if (!OneIn(&random, 10)) Keep(MakePlain<TowerViewpointRecord>(&random, kTowerViewpoint), &parts);
    MakeTaxiNetwork(&random, counts, &parts);
    for (uint32_t i = 0; i < counts.helipads; ++i) Keep(MakePlain<HelipadRecord>(&random, kHelipad), &parts);
    for (uint32_t i = 0; i < counts.starts; ++i) Keep(MakePlain<StartLocationRecord>(&random, kStartLocation), &parts);
    for (uint32_t i = 0; i < counts.comms; ++i) Keep(MakeComm(&random), &parts);
    for (uint32_t i = 0; i < counts.aprons; ++i) Keep(MakeApron(&random, counts.apronVertices), &parts);
    for (uint32_t i = 0; i < counts.openAprons; ++i)
        Keep(MakeApron(&random, counts.apronVertices), &parts)->flags |= kOutlineOpen;
    if (const uint32_t exact = counts.exactApronVertices) Keep(MakeApronOf(&random, exact, exact), &parts);
    if (counts.strips > 0) Keep(MakeEdgeLights(&random, counts.strips), &parts);
    MakeNavaids(&random, seed, counts, &parts);
    if (OneIn(&random, 3)) Keep(MakePlain<ReferenceMarkerPayload>(&random, kReferenceMarker), &parts);
    Shuffle(&random, &parts.all);
    for (SceneryObject* object : parts.all) {
        if (OneIn(&random, 5)) object->flags |= kSelected;
        object->view[0] = static_cast<int32_t>(Next(&random));
        AppendObject(object);
    }
}

void MakeReadable() {
    SceneryObject* const firstName = FirstOfKind(state.head, kTaxiDesignator);
    for (SceneryObject *object = state.head, *next; object; object = next) {
        next = object->next;
        if (!IsCarried(object)) {
            UnlinkObject(object);
            FreeObject(object);
            continue;
        }
        switch (KindOf(object)) {
        case kRunway: MakeRunwayReadable(&PayloadAs<RunwayPayload>(object)); break;
        case kVorDme: MakeVorReadable(&PayloadAs<VorDmePayload>(object)); break;
        case kTaxiLink: MakeLinkReadable(firstName, &PayloadAs<TaxiLinkPayload>(object)); break;
        case kNdb: std::fill_n(PayloadAs<NdbPayload>(object).unused, sizeof NdbPayload::unused, uint8_t{}); break;
        default: break;
        }
    }
    auto& airport = PayloadAs<AirportRecord>(state.airport);
    MakeTowerReadable(&airport);
    state.icao = UnpackIdent(airport.ident >> kIdentShift);
}
