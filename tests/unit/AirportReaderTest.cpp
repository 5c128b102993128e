// What each record of an airport becomes, in order, and what damage does to it.
#include "bgl/AirportReader.h"

#include <gtest/gtest.h>

#include <cstring>

#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/RandomAirport.h"
#include "fakes/SceneryBytes.h"

namespace {

using namespace model;

class AirportReader : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        ClearModel();
    }
    void TearDown() override { ClearModel(); }

    // Reads an airport record with these records inside it into the empty model. Whether nothing is said to be missing.
    static bool Read(const std::vector<ByteList>& records) {
        ClearModel();
        return bgl::ReadAirport(AirportRecordWith(records));
    }

    static SceneryObject* Only(uint32_t kind) {
        EXPECT_EQ(CountKind(kind), 1u);
        return FirstOfKind(state.head, kind);
    }
    static std::string PayloadOf(const SceneryObject* object) {
        return object ? HexOf({ object->payload, object->payloadSize }) : "no object";
    }
};

ByteList Numbered(size_t count, int first = 1) {
    ByteList bytes;
    for (size_t i = 0; i < count; ++i) bytes.push_back(static_cast<uint8_t>(first + static_cast<int>(i)));
    return bytes;
}

ByteList Node(uint32_t longitude) { return Join({ Hex("01 00 00 00"), U32(longitude), U32(5) }); }

ByteList Nodes(uint32_t count) {
    ByteList body = U16(count);
    for (uint32_t i = 0; i < count; ++i) body = Join({ body, Node(i) });
    return Record(0x1A, body);
}

ByteList Spots(uint32_t count) { return Record(0x1B, Join({ U16(count), Zeros(20 * count) })); }

ByteList LinkEntry(uint32_t start, uint32_t end, uint32_t type, uint32_t indexByte = 0) {
    return Join({ U16(start), U16(end), { static_cast<uint8_t>(type), static_cast<uint8_t>(indexByte) }, Zeros(14) });
}

TEST_F(AirportReader, AirportBodyIsKeptByteForByte) {
    const ByteList body = Join({ Numbered(34), U32(0x0262E681), U32(77), U32(0xC0000000) });
    bgl::ReadAirport(Record(0x03, body));
    EXPECT_EQ(PayloadOf(Only(kAirport)), HexOf(body));
    EXPECT_EQ(state.airport, Only(kAirport));
    EXPECT_EQ(state.icao, "KSEA");
    EXPECT_EQ(state.regionIdent, 77u);
    EXPECT_TRUE(state.loaded);
    EXPECT_FALSE(state.modified);
}

TEST_F(AirportReader, TowerComesFromTheAirportBodyAndFollowsTheAirport) {
    bgl::ReadAirport(Record(0x03, Numbered(46)));
    EXPECT_EQ(PayloadOf(Only(kTowerViewpoint)), HexOf(Numbered(12, 19)));
    EXPECT_EQ(state.airport->next, Only(kTowerViewpoint));
}

TEST_F(AirportReader, RunwayTakesThePartsThatFollowIt) {
    std::vector<ByteList> records = { Record(0x04, Numbered(46)) };
    for (uint16_t id = 0x05; id <= 0x0A; ++id) records.push_back(Record(id, Numbered(10, id * 16)));
    for (uint16_t id = 0x0B; id <= 0x0E; ++id) records.push_back(Record(id, Numbered(18, id * 5)));
    records.push_back(Record(0x0F, Numbered(2, 0x71)));
    records.push_back(Record(0x10, Numbered(2, 0x81)));
    Read(records);
    ByteList expected = Numbered(46);
    for (int id = 0x05; id <= 0x0A; ++id) expected = Join({ expected, Numbered(10, id * 16) });
    expected = Join({ expected, Numbered(2, 0x71), Numbered(2, 0x81) });
    for (int id = 0x0B; id <= 0x0E; ++id) expected = Join({ expected, Numbered(18, id * 5) });
    EXPECT_EQ(PayloadOf(Only(kRunway)), HexOf(Join({ expected, Zeros(1) })));
}

TEST_F(AirportReader, PartsAreReadInsideAndBehindTheRunwayRecord) {
    const ByteList inside = Record(0x0F, Numbered(2)), behind = Record(0x10, Numbered(2, 9));
    Read({ Record(0x04, Join({ Zeros(46), inside })), behind });
    const auto& runway = PayloadAs<RunwayPayload>(Only(kRunway));
    EXPECT_EQ(Copied(runway.primaryApproachLights), 0x0201);
    EXPECT_EQ(Copied(runway.secondaryApproachLights), 0x0A09);
}

TEST_F(AirportReader, PartsGoToTheLatestRunway) {
    Read({ Record(0x04, Zeros(46)), Record(0x04, Zeros(46)), Record(0x0F, Numbered(2)) });
    SceneryObject* first = FirstOfKind(state.head, kRunway);
    EXPECT_EQ(Copied(PayloadAs<RunwayPayload>(first).primaryApproachLights), 0);
    EXPECT_EQ(Copied(PayloadAs<RunwayPayload>(NextOfKind(first, kRunway)).primaryApproachLights), 0x0201);
}

TEST_F(AirportReader, RunwayPartBeforeAnyRunwayIsReadAndIgnored) {
    Read({ Record(0x05, Numbered(10)), Record(0x0B, Numbered(18)), Record(0x0F, Numbered(2)),
           Record(0x04, Numbered(46)) });
    EXPECT_EQ(PayloadOf(Only(kRunway)), HexOf(Join({ Numbered(46), Zeros(137) })));
}

TEST_F(AirportReader, PlainRecordsBecomeObjectsByteForByte) {
    Read({ Record(0x11, Numbered(18)), Record(0x26, Numbered(30, 50)) });
    EXPECT_EQ(PayloadOf(Only(kStartLocation)), HexOf(Numbered(18)));
    EXPECT_EQ(PayloadOf(Only(kHelipad)), HexOf(Numbered(30, 50)));
}

TEST_F(AirportReader, CommNameEndsWithAZero) {
    Read({ Record(0x12, Join({ U16(6), U32(119900000), Text("Tower ABC") })) });
    const auto& comm = PayloadAs<CommFrequencyRecord>(Only(kCommFrequency));
    EXPECT_EQ(Copied(comm.type), 6);
    EXPECT_EQ(Copied(comm.frequency), 119900000u);
    EXPECT_STREQ(comm.name, "Tower ABC");
    EXPECT_EQ(Only(kCommFrequency)->payloadSize, 55u);
}

TEST_F(AirportReader, CommLongerThanItsPayloadIsCutTo48Characters) {
    Read({ Record(0x12, Join({ Zeros(6), Text(std::string(80, 'x')) })), Nodes(1) });
    EXPECT_STREQ(PayloadAs<CommFrequencyRecord>(Only(kCommFrequency)).name, std::string(48, 'x').c_str());
    EXPECT_EQ(CountKind(kTaxiNode), 1u);
}

TEST_F(AirportReader, CommShorterThanItsFixedFieldsLeavesTheRestZero) {
    Read({ Record(0x12, Hex("06 00 11")), Nodes(1) });
    EXPECT_EQ(PayloadOf(Only(kCommFrequency)), HexOf(Join({ Hex("06 00 11"), Zeros(52) })));
}

TEST_F(AirportReader, NameClearsWhatWasThereBefore) {
    Read({ Record(0x19, Text("A long first name")), Record(0x19, Text("Short")) });
    EXPECT_EQ(AirportName(), "Short");
    EXPECT_EQ(std::string(state.airportName, 48), "Short" + std::string(43, '\0'));
}

TEST_F(AirportReader, NameLongerThanItsBufferIsCutTo48Characters) {
    Read({ Record(0x19, Text(std::string(50, 'n'))), Nodes(1) });
    EXPECT_EQ(AirportName(), std::string(48, 'n'));
    EXPECT_EQ(CountKind(kTaxiNode), 1u);
}

TEST_F(AirportReader, NodesComeInFileOrder) {
    Read({ Nodes(3) });
    std::string longitudes;
    for (SceneryObject* o = FirstOfKind(state.head, kTaxiNode); o; o = NextOfKind(o, kTaxiNode))
        longitudes += std::to_string(PayloadAs<TaxiNodeRecord>(o).longitude);
    EXPECT_EQ(longitudes, "012");
}

TEST_F(AirportReader, SpotTakesTheAirlineCodesThatItCounts) {
    const ByteList first = Join({ Hex("01 02 03 02"), Numbered(16), Hex("41 53 41 00 55 41 4C 00") });
    const ByteList second = Join({ Hex("0A 00 00 00"), Numbered(16, 40) });
    Read({ Record(0x1B, Join({ U16(2), first, second })) });
    ASSERT_EQ(CountKind(kParkingSpot), 2u);
    SceneryObject* spot = FirstOfKind(state.head, kParkingSpot);
    EXPECT_EQ(PayloadOf(spot), HexOf(first));
    EXPECT_EQ(PayloadOf(NextOfKind(spot, kParkingSpot)), HexOf(second));
}

TEST_F(AirportReader, LinkFromANodeToItselfDisappears) {
    Read({ Nodes(6), Spots(6), Record(0x1C, Join({ U16(1), LinkEntry(5, 5, 1) })) });
    EXPECT_EQ(CountKind(kTaxiLink), 0u);
}

TEST_F(AirportReader, ParkingLinkFromNode5ToSpot5Stays) {
    Read({ Nodes(6), Spots(6), Record(0x1C, Join({ U16(1), LinkEntry(5, 5, 0x63) })) });
    const auto& link = PayloadAs<TaxiLinkPayload>(Only(kTaxiLink));
    EXPECT_EQ(Copied(PayloadAs<TaxiNodeRecord>(link.start).longitude), 5u);
    EXPECT_EQ(KindOf(link.end), kParkingSpot);
}

TEST_F(AirportReader, OnlyTheLow12BitsOfTheEndFieldMakeASelfLoop) {
    Read({ Nodes(6), Record(0x1C, Join({ U16(2), LinkEntry(5, 0xA005, 0x61), LinkEntry(5, 0xA004, 0x61) })) });
    const auto& link = PayloadAs<TaxiLinkPayload>(Only(kTaxiLink));
    EXPECT_EQ(Copied(PayloadAs<TaxiNodeRecord>(link.end).longitude), 4u);
}

TEST_F(AirportReader, LinksResolveThoughTheirTargetsComeLater) {
    const ByteList links = Record(0x1C, Join({ U16(1), LinkEntry(1, 0, 1, 1) }));
    Read({ links, Nodes(2), Record(0x1D, Join({ U16(2), Zeros(8), Text("B"), Zeros(7) })) });
    const auto& link = PayloadAs<TaxiLinkPayload>(Only(kTaxiLink));
    ASSERT_NE(Copied(link.designator), nullptr);
    EXPECT_EQ(link.designator->payload[0], 'B');
    EXPECT_EQ(Only(kTaxiLink)->payloadSize, sizeof(TaxiLinkPayload));
}

TEST_F(AirportReader, LinkWithoutAnEndIsTakenOut) {
    Read({ Nodes(2), Record(0x1C, Join({ U16(2), LinkEntry(0, 9, 1), LinkEntry(0, 1, 1) })) });
    EXPECT_EQ(CountKind(kTaxiLink), 1u);
}

TEST_F(AirportReader, ApronNeedsItsOutlineAndItsSurface) {
    const ByteList a = Numbered(16), b = Numbered(24, 100), triangle = Numbered(6, 200);
    Read({ Record(0x37, Join({ Hex("04"), U16(2), a, Zeros(3) })),
           Record(0x30, Join({ Hex("11 03"), U16(3), U16(1), b, triangle, Zeros(3) })) });
    EXPECT_EQ(PayloadOf(Only(kApron)),
              HexOf(Join({ Zeros(20), Hex("04"), U16(2), Hex("11 03"), U16(3), U16(1), a, b, triangle })));
}

TEST_F(AirportReader, SurfaceWithoutOutlineIsIgnored) {
    const ByteList surface = Record(0x30, Join({ U16(4), U16(0), U16(0) }));
    Read({ surface, Nodes(1) });
    EXPECT_EQ(CountKind(kApron), 0u);
    EXPECT_EQ(CountKind(kTaxiNode), 1u);
}

TEST_F(AirportReader, OutlineServesOneSurfaceOnly) {
    const ByteList surface = Record(0x30, Join({ U16(4), U16(0), U16(0) }));
    Read({ Record(0x37, Join({ Hex("04"), U16(0) })), surface, surface });
    EXPECT_EQ(CountKind(kApron), 1u);
}

TEST_F(AirportReader, NewerOutlineReplacesOneThatFoundNoSurface) {
    Read({ Record(0x37, Join({ Hex("04"), U16(1), Numbered(8) })), Record(0x37, Join({ Hex("07"), U16(0) })),
           Record(0x30, Join({ U16(9), U16(0), U16(0) })) });
    EXPECT_EQ(PayloadOf(Only(kApron)), HexOf(Join({ Zeros(20), Hex("07 00 00 09 00 00 00 00 00") })));
}

TEST_F(AirportReader, OutlineThatFindsNoSurfaceMakesNoApron) {
    Read({ Record(0x37, Join({ Hex("04"), U16(1), Numbered(8) })), Nodes(1) });
    EXPECT_EQ(CountKind(kApron), 0u);
    EXPECT_EQ(CountKind(kTaxiNode), 1u);
}

ByteList EdgeLights(uint32_t carried, const std::vector<uint32_t>& vertices,
                    const std::vector<std::pair<uint32_t, uint32_t>>& edges) {
    ByteList body = Join({ U16(carried), U16(static_cast<uint32_t>(vertices.size())),
                           U16(static_cast<uint32_t>(edges.size())), U32(0xFF0000FF), F32(1), F32(800) });
    for (uint32_t vertex : vertices) body = Join({ body, U32(vertex), U32(vertex + 1) });
    for (const auto& [start, end] : edges) body = Join({ body, F32(60), U16(start), U16(end) });
    return Record(0x31, body);
}

ByteList Strip(uint32_t start, uint32_t end) {
    return Join({ F32(60), U32(start), U32(start + 1), U32(end), U32(end + 1), Zeros(3) });
}

TEST_F(AirportReader, TwoEdgeLightRecordsMakeOneObjectWithTheStripsOfBoth) {
    Read({ EdgeLights(1, { 10, 20, 30 }, { { 0, 1 }, { 1, 2 } }), Nodes(1), EdgeLights(2, { 50, 60 }, { { 1, 0 } }) });
    const ByteList latestHead = Join({ U16(2), U16(2), U16(1), U32(0xFF0000FF), F32(1), F32(800) });
    EXPECT_EQ(PayloadOf(Only(kApronEdgeLights)),
              HexOf(Join({ latestHead, U32(3), Strip(10, 20), Strip(20, 30), Strip(60, 50) })));
    EXPECT_EQ(Only(kApronEdgeLights)->next, Only(kTaxiNode));
}

TEST_F(AirportReader, EdgeThatNamesAMissingVertexIsDropped) {
    Read({ EdgeLights(0, { 10, 20 }, { { 0, 2 }, { 65535, 0 }, { 0, 1 } }) });
    EXPECT_EQ(Copied(PayloadAs<EdgeLightsHead>(Only(kApronEdgeLights)).stripCount), 1u);
}

TEST_F(AirportReader, UnknownRecordsAreSkippedByTheirSize) {
    Read({ Record(0x24, Join({ Nodes(9), Zeros(5) })), Record(0x33, U32(0xFE)), Nodes(2), Record(0x3D, Zeros(40)),
           Nodes(1) });
    EXPECT_EQ(CountKind(kTaxiNode), 3u);
}

TEST_F(AirportReader, SecondAirportRecordIsPassedWhole) {
    Read({ AirportRecordWith({ Nodes(3) }, "KBFI"), Nodes(1) });
    EXPECT_EQ(CountKind(kAirport), 1u);
    EXPECT_EQ(state.icao, "KSEA");
    EXPECT_EQ(CountKind(kTaxiNode), 1u);
}

TEST_F(AirportReader, SizeBelowSixEndsTheReading) {
    for (uint32_t size = 0; size < 6; ++size) {
        Read({ Nodes(1), RecordOfSize(0x24, size, {}), Nodes(1) });
        EXPECT_EQ(CountKind(kTaxiNode), 1u) << size;
    }
}

TEST_F(AirportReader, WhatLiesBehindADamagedRecordIsSaidToBeMissing) {
    for (uint32_t size : { 0u, 5u, 100u, 0x7FFFFFFFu }) {
        for (int id : { 0x19, 0x1A, 0x24 }) {
            const ByteList damaged = RecordOfSize(static_cast<uint16_t>(id), size, Zeros(14));
            EXPECT_FALSE(Read({ damaged, Nodes(1) })) << id << " of " << size;
        }
    }
    EXPECT_FALSE(Read({ Record(0x1A, Join({ U16(2), Node(0) })) })) << "the second node";
}

TEST_F(AirportReader, NothingIsMissingWhereTheBytesBehindTheLastRecordHoldNone) {
    for (size_t padding = 0; padding < 6; ++padding) EXPECT_TRUE(Read({ Nodes(1), Zeros(padding) })) << padding;
    EXPECT_FALSE(Read({ Nodes(1), Zeros(6) }));
    EXPECT_TRUE(Read({ RecordOfSize(0x1A, 24, Join({ U16(1), Node(0), Zeros(2) })) })) << "padding that is not there";
    EXPECT_TRUE(Read({ RecordOfSize(0x19, 20, Zeros(11)) })) << "of a name";
    EXPECT_FALSE(Read({ RecordOfSize(0x19, 20, Zeros(10)) }));
}

TEST_F(AirportReader, CountIsTrustedBeyondTheRecordsOwnSize) {
    // 3 nodes are claimed and lie there, though the record says that it ends after the first: behind
    // that the reading goes on, in the middle of the nodes.
    const ByteList nodes = RecordOfSize(0x1A, 20, Join({ U16(3), Node(0), Record(0x24, Zeros(18)) }));
    Read({ nodes, Nodes(2) });
    EXPECT_EQ(CountKind(kTaxiNode), 5u);
}

TEST_F(AirportReader, CountBeyondTheStretchKeepsWhatIsThere) {
    Read({ Record(0x1A, Join({ U16(65535), Node(0), Node(1), Hex("01 00 00") })) });
    EXPECT_EQ(CountKind(kTaxiNode), 2u);
    EXPECT_TRUE(state.loaded);
}

TEST_F(AirportReader, NothingIsReadBehindTheStretch) {
    ByteList bytes = AirportRecordWith({ RecordOfSize(0x1A, 0x7FFFFFFF, Join({ U16(3), Node(0) })) });
    const size_t end = bytes.size();
    bytes = Join({ bytes, Node(1), Node(2), Nodes(3) });
    bgl::ReadAirport(std::span(bytes).first(end));
    EXPECT_EQ(CountKind(kTaxiNode), 1u);
}

TEST_F(AirportReader, ApronWhoseVerticesAreCutShortIsNotMade) {
    Read({ Record(0x37, Join({ Hex("04"), U16(0) })),
           Record(0x30, Join({ U16(4), U16(65535), U16(65535), Zeros(90) })) });
    EXPECT_EQ(CountKind(kApron), 0u);
}

TEST_F(AirportReader, ClaimsThatOverlapDoNotMultiplyTheObjects) {
    // Each record claims all that follows it: without a limit these 64,000 bytes would make 40 million nodes.
    ByteList all;
    for (int i = 0; i < 8000; ++i) {
        const ByteList record = RecordOfSize(0x1A, 8, U16(65535));
        all.insert(all.end(), record.begin(), record.end());
    }
    Read({ all });
    EXPECT_LT(CountKind(kTaxiNode), 30000u);
    EXPECT_GT(CountKind(kTaxiNode), 5000u);
}

TEST_F(AirportReader, AirportRecordCutShortMakesNothing) {
    const ByteList whole = AirportRecordWith({});
    bgl::ReadAirport(std::span(whole).first(whole.size() - 1));
    EXPECT_EQ(state.head, nullptr);
    EXPECT_FALSE(state.loaded);
    bgl::ReadAirport({});
    EXPECT_EQ(state.head, nullptr);
}

// A file with every record; cut anywhere, what was read is a beginning of what the whole one gives.
class DamagedAirport : public AirportReader {
protected:
    void SetUp() override {
        AirportReader::SetUp();
        AirportCounts counts;
        counts.runways = counts.helipads = counts.comms = counts.starts = counts.aprons = 2;
        counts.nodes = counts.spots = counts.designators = counts.strips = 4;
        counts.links = 6;
        MakeRandomAirport(7, counts);
        record = SectionOf(SectionsOf(BuildFile()), 0x03)->subsections[0].bytes;
        ClearModel();
    }
    static std::vector<uint32_t> KindsInOrder() {
        std::vector<uint32_t> kinds;
        for (const SceneryObject* o = state.head; o; o = o->next) {
            if (KindOf(o) != kTaxiLink) kinds.push_back(KindOf(o));  // links may lose their ends
        }
        return kinds;
    }
    ByteList record;
};

TEST_F(DamagedAirport, CutAtEveryByteWhatWasReadStays) {
    EXPECT_TRUE(bgl::ReadAirport(record));
    const std::vector<uint32_t> whole = KindsInOrder();
    size_t before = 0;
    for (size_t size = 0; size <= record.size(); ++size) {
        ClearModel();
        const ByteList cut(record.begin(), record.begin() + static_cast<ptrdiff_t>(size));  // a block of its own
        bgl::ReadAirport(cut);
        const std::vector<uint32_t> kinds = KindsInOrder();
        ASSERT_LE(kinds.size(), whole.size()) << size;
        ASSERT_TRUE(std::equal(kinds.begin(), kinds.end(), whole.begin())) << size;
        ASSERT_GE(kinds.size(), before) << size;
        ASSERT_EQ(state.loaded, size >= 52) << size;
        before = kinds.size();
    }
    EXPECT_EQ(before, whole.size());
}

TEST_F(DamagedAirport, EveryByteMayHoldAnythingAndTheResultCanBeWritten) {
    for (size_t at = 0; at < record.size(); ++at) {
        for (int value : { 0x00, 0x7F, 0xFF }) {
            ByteList damaged = record;
            damaged[at] = static_cast<uint8_t>(value);
            ClearModel();
            bgl::ReadAirport(damaged);
            ASSERT_EQ(CountKind(kAirport), state.airport ? 1u : 0u);
            if (state.airport) BuildFile();
        }
    }
}

}  // namespace
