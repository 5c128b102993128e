// OneField.cpp - see OneField.h.
#include "fakes/OneField.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <set>

#include "dialogs/PositionField.h"
#include "map/NewObjects.h"
#include "model/Ident.h"
#include "model/SpotBits.h"

namespace {

using namespace model;

constexpr size_t kFileHead = 56;
constexpr uint32_t kIndexSections[] = { 0x27, 0x28, 0x29 };

// How many bytes of a record come before the records inside it; none inside: all.
size_t BodySize(uint16_t id) {
    if (id == 0x0004) return sizeof(RunwayRecord);
    return id == 0x0013 || id == 0x0017 ? kNavaidBodySize : kToTheEnd;
}

std::string InHex(const char* form, uint32_t number) {
    char text[16];
    std::snprintf(text, sizeof text, form, number);
    return text;
}

void AddRecords(const std::string& before, const std::vector<FoundRecord>& records, FileParts* parts) {
    std::map<uint16_t, int> counts;
    for (const FoundRecord& record : records) {
        const std::string name = before + InHex("%04X", record.id) + "#" + std::to_string(counts[record.id]++);
        const size_t size = std::min(BodySize(record.id), record.body.size());
        (*parts)[name] = ByteList(record.body.begin(), record.body.begin() + static_cast<ptrdiff_t>(size));
        AddRecords(name + "/", RecordsIn(std::span(record.body).subspan(size)), parts);
    }
}

uint8_t Allowed(const Place& place, size_t at) {
    if (at < place.from || (place.size != kToTheEnd && at >= place.from + place.size)) return 0;
    const uint32_t bits = place.size > 4 ? 0xFF : place.bits >> 8 * (at - place.from);
    return static_cast<uint8_t>(bits);
}

// A point that the texts of the dialogs cannot hold: a field that is read back when only the other was changed shows.
EncodedPoint Untyped(int thousandths) {
    char latitude[32], longitude[32];
    std::snprintf(latitude, sizeof latitude, "N47* %07.4f'", 5 + thousandths / 1000.0);
    std::snprintf(longitude, sizeof longitude, "W122* %07.4f'", 5 + thousandths / 1000.0);
    EncodedPoint point{};
    dialogs::BadField bad;
    EXPECT_TRUE(dialogs::ReadPoint({}, { latitude, longitude }, &point, &bad));
    ++point.latitude;
    ++point.longitude;
    EncodedPoint again{};
    EXPECT_TRUE(dialogs::ReadPoint({}, dialogs::ShowPoint(point), &again, &bad));
    EXPECT_TRUE(again.latitude != point.latitude && again.longitude != point.longitude);
    return point;
}

int placed;  // objects so far

template <class Record>
Record& Add(uint32_t kind) {
    SceneryObject* object = build::Append(kind, sizeof(Record));
    dialogs::SetPoint(object, Untyped(++placed * 10));
    return PayloadAs<Record>(object);
}

SceneryObject* Last() { return state.tail; }

template <size_t N>
void SetName(char (&name)[N], const char* text) {
    std::memcpy(name, text, std::strlen(text));
}

void AddAirport() {
    auto& airport = Add<AirportRecord>(kAirport);
    state.icao = "KSEA";
    state.airport = Last();
    airport.altitude = 123456;
    airport.magneticVariation = 343.5F;
    airport.ident = PackIdent("KSEA") << kIdentShift | 0x15;
    airport.regionIdent = 0x01234567;
    airport.fuel = 0x2ABCDEF1;
    state.country = "USA", state.state = "Washington", state.city = "Seattle";
    SetAirportName("Test Field");
    state.loaded = true;
    Add<TowerViewpointRecord>(kTowerViewpoint).altitude = 150500;
}

void AddRunway(uint8_t number) {
    auto& runway = Add<RunwayPayload>(kRunway);
    const EncodedPoint place = dialogs::PointOf(Last());
    runway.body = { 0x0104,
                    number,
                    0,
                    static_cast<uint8_t>(number + 18),
                    0,
                    0,
                    0,
                    place.longitude,
                    place.latitude,
                    123456,
                    2000,
                    45,
                    number * 10.25F,
                    300,
                    0xE000,
                    0xE0,
                    0xC0 };
    int step = 0;
    for (RunwayAreaPart* part : { &runway.primaryThreshold, &runway.secondaryThreshold, &runway.primaryBlastPad,
                                  &runway.secondaryBlastPad, &runway.primaryOverrun, &runway.secondaryOverrun })
        *part = { 0x0204, 60.0F + static_cast<float>(++step), 44 };
    runway.primaryApproachLights = runway.secondaryApproachLights = 0xE003;
    for (VasiPart* unit :
         { &runway.primaryLeftVasi, &runway.primaryRightVasi, &runway.secondaryLeftVasi, &runway.secondaryRightVasi })
        *unit = { 7, 40.0F + static_cast<float>(++step), 700.25F, 9, 3 };
}

void AddPlaces() {
    for (int i = 0; i < 2; ++i) Add<HelipadRecord>(kHelipad) = { 4, 0xC1, 0xA5A5A5A5, 0, 0, 120000, 15, 15, 33.5F };
    for (SceneryObject* pad = FirstOfKind(state.head, kHelipad); pad; pad = NextOfKind(pad, kHelipad))
        dialogs::SetPoint(pad, Untyped(++placed * 10));
    for (const uint32_t hertz : { 118300000u, 121900000u }) {
        auto& comm = PayloadAs<CommFrequencyRecord>(build::Append(kCommFrequency, sizeof(CommFrequencyRecord)));
        comm.type = 6;
        comm.frequency = hertz;
        SetName(comm.name, "Tower of some name");
    }
    for (const uint8_t number : { uint8_t{ 16 }, uint8_t{ 9 } }) {
        auto& start = Add<StartLocationRecord>(kStartLocation);
        start.number = number;
        start.designatorAndType = StartNibbles(kRunwayStart, 0);
        start.altitude = 123456;
        start.heading = number * 10.25F;
    }
}

SceneryObject* AddNode(uint8_t type) {
    auto& node = Add<TaxiNodeRecord>(kTaxiNode);
    node.type = type;
    node.carried = 0xA5A5;
    return Last();
}

SceneryObject* AddSpot(std::initializer_list<std::string_view> codes) {
    SceneryObject* spot = build::Spot({}, codes);
    auto& record = PayloadAs<ParkingSpotRecord>(spot);
    constexpr uint32_t kPushback = 0xC0, kArea = 12, kType = 2, kNumber = 7;
    record.packed =
        (record.packed & 0xFF000000) | kNumber << kParkingNumberShift | kType << kParkingTypeShift | kPushback | kArea;
    record.radius = static_cast<float>(map::DefaultSpotRadius(kType));
    record.heading = 12.25F;
    dialogs::SetPoint(spot, Untyped(++placed * 10));
    return spot;
}

void AddLink(SceneryObject* start, SceneryObject* end, uint32_t type, SceneryObject* designator) {
    constexpr uint32_t kOthers = 0x90, kLeftSolid = 1u << 18, kRightDashed = 2u << 21, kAsphalt = 4u << 24;
    auto& link = PayloadAs<TaxiLinkPayload>(build::Link(start, end, type, designator));
    link.flagsWord |= kLinkDrawFlags | kOthers | kLeftSolid | kRightDashed | kAsphalt;
    link.width = 23.4F;
    link.carried[0] = link.carried[1] = 0xA5A5A5A5;
}

void AddNetwork() {
    SceneryObject* blank = build::Designator("");
    SceneryObject* alpha = build::Designator("A");
    build::Designator("B");
    SceneryObject *a = AddNode(kNormalNode), *b = AddNode(kNormalNode);
    AddNode(kHoldShortNode);
    AddSpot({});
    SceneryObject* spot = AddSpot({ "JAL", "KLM" });
    AddLink(a, b, kTaxiwayLink, alpha);
    AddLink(b, a, kRunwayLink, NextOfKind(FirstOfKind(state.head, kRunway), kRunway));
    AddLink(a, spot, kParkingLink, blank);
    for (int i = 0; i < 2; ++i) {
        auto& head = PayloadAs<ApronHead>(build::Apron({ Untyped(0), Untyped(100), Untyped(200) }));
        head.outlineSurface = head.surface = 4;
        head.drawFlags = 0xFE;
    }
    const EncodedPoint from = Untyped(0), to = Untyped(1000), other = Untyped(700);
    SceneryObject* lights =
        build::EdgeLights({ { 31, from.longitude, from.latitude, to.longitude, to.latitude, 0, 0, 0 },
                            { 31, to.longitude, from.latitude, other.longitude, to.latitude, 0, 0, 0 } });
    auto& head = PayloadAs<EdgeLightsHead>(lights);
    head.carried = 0xA5A5;
    head.colour = 0xFF0000FF;
    head.brightness = 1;
    head.maximumAltitude = 800;
}

void SetBody(uint8_t type, uint8_t flags, uint32_t hertz, const char* ident, uint32_t region, VorRecord* body) {
    body->type = type;
    body->flags = flags;
    body->altitude = 123456;
    body->frequency = hertz;
    body->range = 50017;
    body->magneticVariation = 343.5F;
    body->ident = PackIdent(ident) << kIdentShift | 0x12;
    body->region = region;
}

// The second ILS stands at the base end of the second runway, with all its parts.
void AddIls(const char* ident, uint8_t number, uint8_t flags, uint32_t region) {
    auto& ils = Add<IlsPayload>(kIls);
    SetBody(kIlsType, flags, 110300000, ident, region, &ils.body);
    ils.localizer = { number, 0, number * 10.25F, 4.5F };
    SetName(ils.name, number == 9 ? "ILS/DME 9" : "ILS/DME 16");
    if ((flags & kHasGlideSlope) == 0) return;
    const EncodedPoint slope = Untyped(++placed * 10), dme = Untyped(++placed * 10);
    ils.glideSlope = { 0xA5A5, slope.longitude, slope.latitude, 123000, 18520, 3 };
    ils.dme = { 0x5A5A, dme.longitude, dme.latitude, 124000, 18520 };
}

void AddNavaids() {
    const uint32_t here = RegionWordWithAirport(0x123, PayloadAs<AirportRecord>(state.airport).ident);
    AddIls("IAAA", 16, 0xA5, 0x123);
    AddIls("IBBB", 9, 0xBD, here);
    SceneryObject* runway = NextOfKind(FirstOfKind(state.head, kRunway), kRunway);
    PayloadAs<RunwayPayload>(runway).body.primaryIls = PackIdent("IBBB");
    for (const char* ident : { "VAA", "VBB" }) {
        auto& vor = Add<VorDmePayload>(kVorDme);
        SetBody(1, 0xB1, 113500000, ident, std::strcmp(ident, "VBB") == 0 ? here : 0x123, &vor.body);
        vor.dme.carried = 0xA5A5;
        vor.dme.range = 50000;
        SetName(vor.name, "Some VOR");
    }
    for (const char* ident : { "NA", "NB" }) {
        auto& ndb = Add<NdbPayload>(kNdb);
        ndb.type = 1;
        ndb.frequency = 350000;
        ndb.altitude = 123456;
        ndb.range = 30000;
        ndb.magneticVariation = 343.5F;
        ndb.ident = PackIdent(ident) << kIdentShift | 0x13;
        ndb.region = std::strcmp(ident, "NB") == 0 ? here : 0x123;
        SetName(ndb.name, "Some NDB");
    }
    for (int i = 0; i < 2; ++i) {
        auto& marker = Add<MarkerBeaconPayload>(kMarkerBeacon);
        marker.heading = 64;
        marker.type = 1;
        marker.altitude = 123456;
        marker.ident = PackIdent("MM") << kIdentShift | 0x14;
        marker.region = 0x123;
    }
}

}  // namespace

FileParts PartsOf(const ByteList& file) {
    FileParts parts;
    parts["file"] = ByteList(file.begin(), file.begin() + static_cast<ptrdiff_t>(kFileHead));
    for (const FoundSection& section : SectionsOf(file)) {
        ByteList& table = parts["sections"];
        for (const uint32_t number : { section.type, section.sectionClass }) table = Join({ table, U32(number) });
        const std::string before = InHex("%02X", section.type);
        for (const FoundSubsection& subsection : section.subsections) {
            table = Join({ table, U32(subsection.id), U32(subsection.recordCount) });
            if (std::ranges::find(kIndexSections, section.type) != std::end(kIndexSections))
                parts[before] = Join({ parts[before], subsection.bytes });
            else if (section.type != 0x03)
                AddRecords(before + ":", RecordsIn(subsection.bytes), &parts);
            else
                parts["0003"] = ByteList(subsection.bytes.begin() + 6, subsection.bytes.begin() + 52);
        }
    }
    AddRecords("", AirportPartsOf(file), &parts);
    return parts;
}

void ExpectOnlyThere(const FileParts& before, const FileParts& after, const std::vector<Place>& places) {
    std::set<std::string> names;
    for (const auto& [name, bytes] : before) names.insert(name);
    for (const auto& [name, bytes] : after) names.insert(name);
    std::set<const Place*> touched;
    for (const std::string& name : names) {
        const auto find = [&](const FileParts& parts) {
            const auto found = parts.find(name);
            return found == parts.end() ? ByteList{} : found->second;
        };
        const ByteList was = find(before), is = find(after);
        for (size_t at = 0; at < std::max(was.size(), is.size()); ++at) {
            const bool both = at < was.size() && at < is.size();
            const auto changed = static_cast<uint8_t>(both ? was[at] ^ is[at] : 0xFF);
            uint8_t allowed = 0;
            for (const Place& place : places) {
                if (place.part != name) continue;
                if (changed & Allowed(place, at)) touched.insert(&place);
                allowed = static_cast<uint8_t>(allowed | Allowed(place, at));
            }
            EXPECT_EQ(changed & ~allowed, 0) << "part " << name << ", byte " << at;
        }
    }
    for (const Place& place : places)
        EXPECT_TRUE(!place.surely || touched.contains(&place))
            << place.part << " from " << place.from << " is as it was";
}

void OneFieldTest::MakeAirport() {
    model::ClearModel();
    placed = 0;
    AddAirport();
    AddRunway(16);
    AddRunway(9);
    AddPlaces();
    AddNetwork();
    AddNavaids();
}

model::SceneryObject* OneFieldTest::Subject(uint32_t kind, int index) {
    model::SceneryObject* object = model::FirstOfKind(model::state.head, kind);
    for (; object && index > 0; --index) object = model::NextOfKind(object, kind);
    EXPECT_NE(object, nullptr) << kind;
    return object;
}

void OneFieldTest::Start(bool metric) {
    Reset();
    app::settings.metric = app::settings.metricParkingRadius = metric;
    MakeAirport();
}
