// What each object becomes in the file, byte by byte, and when saving is refused or fails.
#include "bgl/AirportWriter.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>

#include "bgl/OpenAirport.h"
#include "fakes/AirportFixture.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/RandomAirport.h"
#include "fakes/SceneryBytes.h"
#include "model/Links.h"

namespace {

using namespace model;

class AirportWriter : public AirportFixture {
protected:
    void SetUp() override {
        AirportFixture::SetUp();
        auto& record = PayloadAs<AirportRecord>(airport);
        record.longitude = 0x07B12FA6;
        record.latitude = 0x07908B15;
        record.altitude = 132000;
    }

    AirportRecord& Record() const { return PayloadAs<AirportRecord>(airport); }
    static std::vector<ByteList> Bodies(uint16_t id) { return PartsWithId(AirportPartsOf(BuildFile()), id); }
    static std::string Body(uint16_t id) {
        const std::vector<ByteList> bodies = Bodies(id);
        return bodies.size() == 1 ? HexOf(bodies[0]) : std::to_string(bodies.size()) + " records";
    }
};

std::string Same(std::string_view digits) { return HexOf(Hex(digits)); }

TEST_F(AirportWriter, SmallestAirportByteForByte) {
    SetAirportName("Sea");
    Record().fuel = 0xC0000000;
    const ByteList file = BuildFile();
    EXPECT_EQ(HexOf(std::span(file).first(56)), Same("01 02 92 19  38 00 00 00  66 55 44 33 22 11 C4 01"
                                                     "03 18 05 08  02 00 00 00"
                                                     "F1 0F 08 00  00 00 00 00 00 00 00 00 00 00 00 00"
                                                     "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"));
    EXPECT_EQ(HexOf(std::span(file).subspan(56, 40)),
              Same("03 00 00 00  01 00 00 00  01 00 00 00  60 00 00 00  10 00 00 00"
                   "27 00 00 00  03 00 00 00  01 00 00 00  70 00 00 00  10 00 00 00"));
    EXPECT_EQ(HexOf(std::span(file).subspan(96, 32)), Same("F1 0F 08 00  01 00 00 00  80 00 00 00  4A 00 00 00"
                                                           "02 00 00 00  01 00 00 00  CA 00 00 00  5A 00 00 00"));
    EXPECT_EQ(HexOf(std::span(file).subspan(128, 74)),
              Same("03 00 4A 00 00 00"
                   "00 00 00 00 00 00  A6 2F B1 07  15 8B 90 07  A0 03 02 00"
                   "00 00 00 18  00 00 00 10  00 00 00 00  00 00 00 00  81 E6 62 02  00 00 00 00  00 00 00 C0"
                   "19 00 0C 00 00 00  53 65 61 00 00 00"
                   "33 00 0A 00 00 00  FE 00 00 00"));
    EXPECT_EQ(file.size(), 202u + 90);
}

TEST_F(AirportWriter, CountsAreThoseOfTheModelAndApproachesAreNone) {
    Record().approachCount = 9;
    for (int i = 0; i < 2; ++i) build::Runway(16);
    for (int i = 0; i < 3; ++i) build::Append(kCommFrequency, sizeof(CommFrequencyRecord));
    for (int i = 0; i < 4; ++i) build::Append(kStartLocation, sizeof(StartLocationRecord));
    for (int i = 0; i < 5; ++i) build::Apron({});
    for (int i = 0; i < 6; ++i) build::Append(kHelipad, sizeof(HelipadRecord));
    const ByteList body = SectionOf(SectionsOf(BuildFile()), 3)->subsections[0].bytes;
    EXPECT_EQ(HexOf(std::span(body).subspan(6, 6)), Same("02 03 04 00 05 06"));
}

TEST_F(AirportWriter, TowerIsTheFirstViewpoint) {
    for (int i = 0; i < 2; ++i) {
        auto& tower = PayloadAs<TowerViewpointRecord>(build::Tower());
        tower = { 0x11111111u + static_cast<uint32_t>(i), 0x02222222, -5 };
    }
    BuildFile();
    EXPECT_EQ(Copied(Record().towerLongitude), 0x11111111u);
    EXPECT_EQ(Copied(Record().towerLatitude), 0x02222222u);
    EXPECT_EQ(Copied(Record().towerAltitude), -5);
}

TEST_F(AirportWriter, WithoutViewpointTheTowerStandsAtZeroNorthZeroEast) {
    Record().towerLongitude = Record().towerLatitude = 1;
    Record().towerAltitude = 1;
    BuildFile();
    EXPECT_EQ(Copied(Record().towerLongitude), 0x18000000u);
    EXPECT_EQ(Copied(Record().towerLatitude), 0x10000000u);
    EXPECT_EQ(Copied(Record().towerAltitude), 0);
}

TEST_F(AirportWriter, IdentIsThePackedCodeWithTheLowBitsThatItHeld) {
    Record().ident = 0xFFFFFFF3;
    state.icao = "ksea";
    BuildFile();
    EXPECT_EQ(Copied(Record().ident), 0x0262E680u | 0x13);
}

TEST_F(AirportWriter, AnEmptyIcaoIsPackedAsNothing) {
    Record().ident = 0x12345678;
    state.icao = "";
    BuildFile();
    EXPECT_EQ(Copied(Record().ident), 0x18u);
}

struct NameCase {
    size_t length, recordSize;
};

// The size rounds down after 9 is added, so that one length in four has no zero behind it.
constexpr NameCase kNameCases[] = {
    { 0, 8 },   { 1, 8 },   { 2, 8 },   { 3, 12 },  { 6, 12 },  { 7, 16 },  { 10, 16 },
    { 11, 20 }, { 14, 20 }, { 44, 52 }, { 45, 52 }, { 46, 52 }, { 47, 56 }, { 48, 56 }
};

TEST_F(AirportWriter, TheNamesRecordIsItsLengthAndNineRoundedDownToWholeFours) {
    for (const NameCase& c : kNameCases) {
        const std::string name(c.length, 'n');
        SetAirportName(name);
        EXPECT_EQ(Body(0x19), HexOf(Join({ Text(name), Zeros(c.recordSize - 6 - c.length) }))) << c.length;
    }
}

TEST_F(AirportWriter, NameOfTenCharactersGetsARecordOf16BytesWithoutAZero) {
    SetAirportName("Tenletters");
    EXPECT_EQ(Body(0x19), HexOf(Text("Tenletters")));
    SetAirportName("Elevenchars");
    EXPECT_EQ(Body(0x19), HexOf(Join({ Text("Elevenchars"), Zeros(3) })));
}

TEST_F(AirportWriter, NamesOf47And48CharactersReadBackWhole) {
    for (size_t length : { 46u, 47u, 48u }) {
        BeginAgain();
        const std::string name(length, 'x');
        SetAirportName(name);
        ASSERT_TRUE(bgl::OpenAirportBytes(BuildFile(), ""));
        EXPECT_EQ(AirportName(), name);
    }
}

TEST_F(AirportWriter, DeleteRecordHasTenBytes) { EXPECT_EQ(Body(0x33), Same("FE 00 00 00")); }

TEST_F(AirportWriter, RunwayWithoutPartsHas52Bytes) {
    SceneryObject* runway = build::Runway(16, 1);
    for (uint32_t i = 0; i < 46; ++i) runway->payload[i] = static_cast<uint8_t>(i);
    EXPECT_EQ(Body(0x04), HexOf({ runway->payload, 46 }));
}

TEST_F(AirportWriter, RunwayPartsHaveTheirOrderAndTheOverrunsAreNeverWritten) {
    SceneryObject* runway = build::Runway(16);
    for (uint32_t i = 46; i < 183; ++i) runway->payload[i] = static_cast<uint8_t>(i);
    const auto part = [&](uint16_t id, size_t offset, size_t size) {
        const uint8_t* first = runway->payload + offset;
        return ::Record(id, ByteList(first, first + size));
    };
    const ByteList body(runway->payload, runway->payload + 46);
    EXPECT_EQ(Body(0x04), HexOf(Join({ body, part(0x07, 66, 10), part(0x08, 76, 10), part(0x05, 46, 10),
                                       part(0x06, 56, 10), part(0x0F, 106, 2), part(0x10, 108, 2), part(0x0B, 110, 18),
                                       part(0x0C, 128, 18), part(0x0D, 146, 18), part(0x0E, 164, 18) })));
}

TEST_F(AirportWriter, RunwayAreaIsThereWhenItsLengthIsNotZero) {
    auto& runway = PayloadAs<RunwayPayload>(build::Runway(16));
    runway.primaryThreshold = { 4, 0, 45 };  // a width alone makes no part
    runway.secondaryThreshold = { 4, -0.0f, 45 };
    EXPECT_EQ(Bodies(0x04)[0].size(), 46u);
    for (float length : { 0.001f, -3.0f, std::numeric_limits<float>::quiet_NaN(), 1e-40f }) {
        runway.primaryThreshold.length = length;
        EXPECT_EQ(Bodies(0x04)[0].size(), 46u + 16) << length;
    }
}

TEST_F(AirportWriter, OtherRunwayPartsAreThereWhenAnyByteIsNotZero) {
    auto& runway = PayloadAs<RunwayPayload>(build::Runway(16));
    runway.secondaryRightVasi.pitch = -0.0f;  // one bit
    EXPECT_EQ(Bodies(0x04)[0].size(), 46u + 24);
    runway.primaryApproachLights = 0x8000;
    EXPECT_EQ(Bodies(0x04)[0].size(), 46u + 24 + 8);
}

TEST_F(AirportWriter, PlainRecordsCarryTheirPayload) {
    SceneryObject* pad = build::Append(kHelipad, sizeof(HelipadRecord));
    SceneryObject* start = build::Append(kStartLocation, sizeof(StartLocationRecord));
    for (uint32_t i = 0; i < 30; ++i) pad->payload[i] = static_cast<uint8_t>(i + 1);
    for (uint32_t i = 0; i < 18; ++i) start->payload[i] = static_cast<uint8_t>(i + 101);
    EXPECT_EQ(Body(0x26), HexOf({ pad->payload, 30 }));
    EXPECT_EQ(Body(0x11), HexOf({ start->payload, 18 }));
}

TEST_F(AirportWriter, CommNameOfLengthFourHasNoZero) {
    SceneryObject* object = build::Append(kCommFrequency, sizeof(CommFrequencyRecord));
    auto& comm = PayloadAs<CommFrequencyRecord>(object);
    comm.type = 6;
    comm.frequency = 0x01020304;
    const ByteList fixed = Hex("06 00 04 03 02 01");
    EXPECT_EQ(Body(0x12), HexOf(fixed));
    std::strcpy(comm.name, "Twr");
    EXPECT_EQ(Body(0x12), HexOf(Join({ fixed, Text("Twr"), Zeros(1) })));
    std::strcpy(comm.name, "Towr");
    EXPECT_EQ(Body(0x12), HexOf(Join({ fixed, Text("Towr") })));
    std::strcpy(comm.name, "Tower");
    EXPECT_EQ(Body(0x12), HexOf(Join({ fixed, Text("Tower"), Zeros(3) })));
    std::memset(comm.name, 'c', 48);
    EXPECT_EQ(Body(0x12), HexOf(Join({ fixed, Text(std::string(48, 'c')) })));
}

TEST_F(AirportWriter, WithoutObjectsThereAreNoListRecords) {
    for (const FoundRecord& part : AirportPartsOf(BuildFile()))
        EXPECT_TRUE(part.id == 0x19 || part.id == 0x33) << part.id;
}

TEST_F(AirportWriter, NodesSpotsLinksAndNamesInOneRecordEach) {
    SceneryObject* nodes[2] = { build::Append(kTaxiNode, 12), build::Append(kTaxiNode, 12) };
    nodes[1]->payload[0] = 2;
    SceneryObject* spot = build::Spot({}, { "ASA", "UAL" });
    std::memset(spot->payload + 4, 0x55, 16);
    SceneryObject* name = build::Designator("A12");
    SceneryObject* taxi = build::Link(nodes[1], nodes[0], 0x61, name);
    build::Link(nodes[1], spot, 0x63, name);
    PayloadAs<TaxiLinkPayload>(taxi).carried[1] = 0x0A0B0C0D;
    PayloadAs<TaxiLinkPayload>(taxi).endField = 0xF123;
    EXPECT_EQ(Body(0x1A), Same("02 00  00 00 00 00 00 00 00 00 00 00 00 00  02 00 00 00 00 00 00 00 00 00 00 00"));
    EXPECT_EQ(Body(0x1B), Same("01 00  01 12 00 02  55 55 55 55 55 55 55 55 55 55 55 55 55 55 55 55"
                               "41 53 41 00  55 41 4C 00"));
    EXPECT_EQ(Body(0x1C), Same("02 00  01 00 00 F0 61 00 00 00 00 00 B8 41 00 00 00 00 0D 0C 0B 0A"
                               "01 00 00 00 63 00 00 00 00 00 B8 41 00 00 00 00 00 00 00 00"));
    EXPECT_EQ(Body(0x1D), Same("01 00  41 31 32 00 00 00 00 00"));
}

TEST_F(AirportWriter, RunwayLinkCarriesNumberAndDesignatorOfItsRunway) {
    SceneryObject* runway = build::Runway(34, 2);
    SceneryObject *a = build::Node(), *b = build::Node();
    build::Link(a, b, 0x62, runway);
    EXPECT_EQ(Body(0x1C), Same("01 00  00 00 01 20 62 22 00 00 00 00 B8 41 00 00 00 00 00 00 00 00"));
}

TEST_F(AirportWriter, ApronBecomesAnOutlineAndASurface) {
    SceneryObject* apron = build::Append(kApron, 29 + 8 + 16 + 6);
    for (uint32_t i = 0; i < apron->payloadSize; ++i) apron->payload[i] = static_cast<uint8_t>(i);
    auto& head = PayloadAs<ApronHead>(apron);
    head.outlineCount = 1;
    head.vertexCount = 2;
    head.triangleCount = 1;
    EXPECT_EQ(Body(0x37), Same("14 01 00  1D 1E 1F 20 21 22 23 24  00 00 00"));
    EXPECT_EQ(Body(0x30), Same("17 18 02 00 01 00  25 26 27 28 29 2A 2B 2C 2D 2E 2F 30 31 32 33 34"
                               "35 36 37 38 39 3A  00 00"));
}

TEST_F(AirportWriter, SurfaceRecordSizesRoundDown) {
    const struct {
        uint16_t vertices, triangles;
        size_t size;
    } cases[] = { { 0, 0, 12 }, { 1, 0, 20 }, { 3, 1, 44 - 6 + 6 }, { 4, 2, 56 } };
    for (const auto& c : cases) {
        BeginAgain();
        SceneryObject* apron = build::Append(kApron, 29 + 8u * c.vertices + 6u * c.triangles);
        PayloadAs<ApronHead>(apron).vertexCount = c.vertices;
        PayloadAs<ApronHead>(apron).triangleCount = c.triangles;
        const size_t rule = (8u * c.vertices + 6u * c.triangles + 15u) / 4 * 4;
        EXPECT_EQ(rule, c.size);
        EXPECT_EQ(Bodies(0x30)[0].size() + 6, rule);
    }
}

TEST_F(AirportWriter, ApronBeingDrawnIsNeitherWrittenNorCounted) {
    build::Apron({})->flags |= kOutlineOpen | kSelected;
    EXPECT_EQ(Bodies(0x37).size(), 0u);
    EXPECT_EQ(Bodies(0x30).size(), 0u);
    EXPECT_EQ(Record().apronCount, 0);
}

TEST_F(AirportWriter, StripsThatShareAnEndShareAVertex) {
    const EdgeLightStrip first = { 60.96f, 1, 2, 3, 4, 1, 1, 1 }, second = { 30, 3, 4, 3, 5, 0, 0, 0 };
    SceneryObject* lights = build::EdgeLights({ first, second });
    auto& head = PayloadAs<EdgeLightsHead>(lights);
    head.vertexCount = 99;  // as read; the written ones are counted
    head.edgeCount = 99;
    head.colour = 0xFF0000FF;
    head.brightness = 1;
    head.maximumAltitude = 800;
    EXPECT_EQ(Body(0x31), Same("00 00 03 00 02 00 FF 00 00 FF 00 00 80 3F 00 00 48 44"
                               "01 00 00 00 02 00 00 00  03 00 00 00 04 00 00 00  03 00 00 00 05 00 00 00"
                               "0A D7 73 42 00 00 01 00  00 00 F0 41 01 00 02 00"));
}

TEST_F(AirportWriter, OnlyTheFirstEdgeLightObjectIsWritten) {
    build::EdgeLights({ { 1, 2, 3, 4, 5, 0, 0, 0 } });
    build::EdgeLights({ { 9, 9, 9, 9, 9, 0, 0, 0 } });
    EXPECT_EQ(Bodies(0x31).size(), 1u);
    EXPECT_EQ(Bodies(0x31)[0].size(), 18u + 16 + 8);
}

TEST_F(AirportWriter, RecordsComeInTheOrderOfTheFormat) {
    AirportCounts counts;
    counts.runways = counts.helipads = counts.comms = counts.starts = counts.aprons = counts.strips = 2;
    counts.nodes = counts.spots = counts.designators = counts.links = 3;
    MakeRandomAirport(11, counts);
    std::vector<uint16_t> ids;
    for (const FoundRecord& part : AirportPartsOf(BuildFile())) ids.push_back(part.id);
    const std::vector<uint16_t> expected = { 0x19, 0x33, 0x04, 0x04, 0x26, 0x26, 0x11, 0x11, 0x12, 0x12,
                                             0x1A, 0x1B, 0x1C, 0x1D, 0x37, 0x30, 0x37, 0x30, 0x31 };
    EXPECT_EQ(ids, expected);
}

TEST_F(AirportWriter, MarkersAndGuidelinesAreNotWritten) {
    const ByteList before = BuildFile();
    build::Guideline(build::Marker(), build::Marker({ 10, 10 }));
    EXPECT_EQ(BuildFile(), before);
}

TEST_F(AirportWriter, SectionsComeInTheOrderOfTheFormat) {
    for (uint32_t kind : { kNdb, kMarkerBeacon, kVorDme, kIls }) {
        build::Append(kind, kind == kNdb            ? sizeof(NdbPayload)
                            : kind == kMarkerBeacon ? sizeof(MarkerBeaconPayload)
                            : kind == kVorDme       ? sizeof(VorDmePayload)
                                                    : sizeof(IlsPayload));
    }
    std::string text;
    for (const FoundSection& section : SectionsOf(BuildFile()))
        text += HexOf({ { static_cast<uint8_t>(section.type), static_cast<uint8_t>(section.sectionClass) } });
    EXPECT_EQ(text, Same("03 01  13 01  18 01  17 01  28 04  29 04  27 03"));
}

TEST_F(AirportWriter, WithoutAirportNothingIsWrittenAndNothingIsSaid) {
    ClearModel();
    build::Node();
    ByteList bytes = { 1 };
    std::string refusal = "old";
    EXPECT_FALSE(bgl::BuildAirportFile(1, &bytes, &refusal));
    EXPECT_TRUE(bytes.empty());
    EXPECT_TRUE(refusal.empty());
}

TEST_F(AirportWriter, LinksWithoutADesignatorHoldZeroAndNoRecordIsAdded) {
    SceneryObject *a = build::Node(), *b = build::Node();
    build::Designator("A");
    SceneryObject* name = build::Designator("B");
    build::Link(a, b, kTaxiwayLink, name);
    build::Link(b, a);
    EXPECT_EQ(Body(0x1D), Same("02 00  41 00 00 00 00 00 00 00  42 00 00 00 00 00 00 00"));
    const ByteList links = Bodies(0x1C).at(0);
    EXPECT_EQ(links[2 + 5], 1);
    EXPECT_EQ(links[2 + 20 + 5], 0);
}

}  // namespace
