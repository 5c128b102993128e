// The layouts are checked by the compiler (Records.h); here the bytes are checked as a file has them.
#include "model/Records.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <vector>

#include "model/SceneryObject.h"
#include "model/SpotBits.h"

namespace {

using namespace model;

template <class Record>
std::vector<uint8_t> BytesOf(const Record& record) {
    std::vector<uint8_t> bytes(sizeof record);
    std::memcpy(bytes.data(), &record, sizeof record);
    return bytes;
}

template <class Record>
Record FromCountedBytes() {
    std::vector<uint8_t> bytes(sizeof(Record));
    for (size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<uint8_t>(i);
    Record record;
    std::memcpy(&record, bytes.data(), sizeof record);
    return record;
}

constexpr uint32_t Word(uint32_t offset) {
    return offset | (offset + 1) << 8 | (offset + 2) << 16 | (offset + 3) << 24;
}

TEST(Records, PayloadSizesAreThoseOfCreation) {
    EXPECT_EQ(sizeof(AirportRecord), 46u);
    EXPECT_EQ(sizeof(TowerViewpointRecord), 12u);
    EXPECT_EQ(sizeof(RunwayPayload), 183u);
    EXPECT_EQ(sizeof(HelipadRecord), 30u);
    EXPECT_EQ(sizeof(CommFrequencyRecord), 55u);
    EXPECT_EQ(sizeof(StartLocationRecord), 18u);
    EXPECT_EQ(sizeof(TaxiNodeRecord), 12u);
    EXPECT_EQ(sizeof(TaxiDesignatorRecord), 8u);
    EXPECT_EQ(sizeof(ParkingSpotRecord), 20u);
    EXPECT_EQ(sizeof(ApronHead), 29u);
    EXPECT_EQ(sizeof(EdgeLightsHead), 22u);
    EXPECT_EQ(sizeof(EdgeLightStrip), 23u);
    EXPECT_EQ(sizeof(ReferenceMarkerPayload), 16u);
    EXPECT_EQ(sizeof(IlsPayload), 238u);
    EXPECT_EQ(sizeof(MarkerBeaconPayload), 38u);
    EXPECT_EQ(sizeof(NdbPayload), 99u);
    EXPECT_EQ(sizeof(VorDmePayload), 117u);
    EXPECT_EQ(sizeof(TaxiLinkPayload), 20 + 3 * sizeof(void*));
    EXPECT_EQ(sizeof(GuidelinePayload), 2 * sizeof(void*));
    EXPECT_EQ(sizeof(TaxiLinkPayload) - 3 * sizeof(void*), size_t{ kTaxiLinkFileSize });
}

TEST(Records, PartsHaveTheSizesOfTheirRecordsWithoutTheHead) {
    EXPECT_EQ(sizeof(EncodedPoint), 8u);
    EXPECT_EQ(sizeof(RunwayRecord), 46u);
    EXPECT_EQ(sizeof(RunwayAreaPart), 10u);
    EXPECT_EQ(sizeof(VasiPart), 18u);
    EXPECT_EQ(sizeof(ApronTriangle), 6u);
    EXPECT_EQ(sizeof(VorRecord), 34u);
    EXPECT_EQ(sizeof(LocalizerPart), 10u);
    EXPECT_EQ(sizeof(GlideSlopePart), 22u);
    EXPECT_EQ(sizeof(DmePart), 18u);
    EXPECT_EQ(sizeof(RunwayPayload), 46u + 6 * 10 + 2 * 2 + 4 * 18 + 1);
    EXPECT_EQ(sizeof(IlsPayload) - offsetof(IlsPayload, name), 154u);
}

TEST(Records, AirportFieldsLieWhereTheFileHasThem) {
    const auto airport = FromCountedBytes<AirportRecord>();
    EXPECT_EQ(airport.runwayCount, 0);
    EXPECT_EQ(airport.commCount, 1);
    EXPECT_EQ(airport.startCount, 2);
    EXPECT_EQ(airport.approachCount, 3);
    EXPECT_EQ(airport.apronCount, 4);
    EXPECT_EQ(airport.helipadCount, 5);
    EXPECT_EQ(uint32_t{ airport.longitude }, Word(6));
    EXPECT_EQ(uint32_t{ airport.latitude }, Word(10));
    EXPECT_EQ(int32_t{ airport.altitude }, static_cast<int32_t>(Word(14)));
    EXPECT_EQ(uint32_t{ airport.towerLongitude }, Word(18));
    EXPECT_EQ(uint32_t{ airport.towerLatitude }, Word(22));
    EXPECT_EQ(int32_t{ airport.towerAltitude }, static_cast<int32_t>(Word(26)));
    EXPECT_EQ(uint32_t{ airport.ident }, Word(34));
    EXPECT_EQ(uint32_t{ airport.regionIdent }, Word(38));
    EXPECT_EQ(uint32_t{ airport.fuel }, Word(42));
}

TEST(Records, RunwayPartsFollowTheBodyInTheOrderOfThePayload) {
    const auto runway = FromCountedBytes<RunwayPayload>();
    EXPECT_EQ(uint16_t{ runway.body.surface }, 0x0100);
    EXPECT_EQ(runway.body.primaryNumber, 2);
    EXPECT_EQ(runway.body.primaryDesignator, 3);
    EXPECT_EQ(runway.body.secondaryNumber, 4);
    EXPECT_EQ(runway.body.secondaryDesignator, 5);
    EXPECT_EQ(uint32_t{ runway.body.primaryIls }, Word(6));
    EXPECT_EQ(uint32_t{ runway.body.secondaryIls }, Word(10));
    EXPECT_EQ(uint32_t{ runway.body.longitude }, Word(14));
    EXPECT_EQ(uint16_t{ runway.body.markings }, 0x2B2A);
    EXPECT_EQ(runway.body.lights, 44);
    EXPECT_EQ(runway.body.pattern, 45);
    EXPECT_EQ(uint16_t{ runway.primaryThreshold.surface }, 0x2F2E);    // 46
    EXPECT_EQ(uint16_t{ runway.secondaryThreshold.surface }, 0x3938);  // 56
    EXPECT_EQ(uint16_t{ runway.primaryBlastPad.surface }, 0x4342);     // 66
    EXPECT_EQ(uint16_t{ runway.secondaryBlastPad.surface }, 0x4D4C);   // 76
    EXPECT_EQ(uint16_t{ runway.primaryOverrun.surface }, 0x5756);      // 86
    EXPECT_EQ(uint16_t{ runway.secondaryOverrun.surface }, 0x6160);    // 96
    EXPECT_EQ(uint16_t{ runway.primaryApproachLights }, 0x6B6A);       // 106
    EXPECT_EQ(uint16_t{ runway.secondaryApproachLights }, 0x6D6C);     // 108
    EXPECT_EQ(uint16_t{ runway.primaryLeftVasi.type }, 0x6F6E);        // 110
    EXPECT_EQ(uint16_t{ runway.primaryRightVasi.type }, 0x8180);       // 128
    EXPECT_EQ(uint16_t{ runway.secondaryLeftVasi.type }, 0x9392);      // 146
    EXPECT_EQ(uint16_t{ runway.secondaryRightVasi.type }, 0xA5A4);     // 164
    EXPECT_EQ(runway.unused, 182);
}

TEST(Records, SmallRecordsLieAsInTheFile) {
    const auto helipad = FromCountedBytes<HelipadRecord>();
    EXPECT_EQ(helipad.type, 1);
    EXPECT_EQ(uint32_t{ helipad.carried }, Word(2));
    EXPECT_EQ(uint32_t{ helipad.longitude }, Word(6));
    EXPECT_EQ(uint32_t{ helipad.latitude }, Word(10));
    EXPECT_EQ(int32_t{ helipad.altitude }, static_cast<int32_t>(Word(14)));
    const auto comm = FromCountedBytes<CommFrequencyRecord>();
    EXPECT_EQ(uint16_t{ comm.type }, 0x0100);
    EXPECT_EQ(uint32_t{ comm.frequency }, Word(2));
    EXPECT_EQ(comm.name[0], 6);
    const auto start = FromCountedBytes<StartLocationRecord>();
    EXPECT_EQ(start.number, 0);
    EXPECT_EQ(start.designatorAndType, 1);
    EXPECT_EQ(uint32_t{ start.longitude }, Word(2));
    EXPECT_EQ(uint32_t{ start.latitude }, Word(6));
    const auto node = FromCountedBytes<TaxiNodeRecord>();
    EXPECT_EQ(node.reversed, 1);
    EXPECT_EQ(uint16_t{ node.carried }, 0x0302);
    EXPECT_EQ(uint32_t{ node.longitude }, Word(4));
    EXPECT_EQ(uint32_t{ node.latitude }, Word(8));
}

TEST(Records, NavaidPartsLieAtTheirFixedPlaces) {
    const auto ils = FromCountedBytes<IlsPayload>();
    EXPECT_EQ(ils.body.flags, 1);
    EXPECT_EQ(uint32_t{ ils.body.longitude }, Word(2));
    EXPECT_EQ(uint32_t{ ils.body.latitude }, Word(6));
    EXPECT_EQ(uint32_t{ ils.body.ident }, Word(26));
    EXPECT_EQ(uint32_t{ ils.body.region }, Word(30));
    EXPECT_EQ(ils.localizer.runwayNumber, 34);
    EXPECT_EQ(uint16_t{ ils.glideSlope.carried }, 0x2D2C);  // 44
    EXPECT_EQ(uint16_t{ ils.dme.carried }, 0x4342);         // 66
    EXPECT_EQ(static_cast<uint8_t>(ils.name[0]), 84);
    const auto vor = FromCountedBytes<VorDmePayload>();
    EXPECT_EQ(uint32_t{ vor.dme.longitude }, Word(36));
    EXPECT_EQ(uint32_t{ vor.dme.latitude }, Word(40));
    EXPECT_EQ(int32_t{ vor.dme.altitude }, static_cast<int32_t>(Word(44)));
    EXPECT_EQ(static_cast<uint8_t>(vor.name[0]), 52);
    const auto ndb = FromCountedBytes<NdbPayload>();
    EXPECT_EQ(uint32_t{ ndb.longitude }, Word(6));
    EXPECT_EQ(uint32_t{ ndb.latitude }, Word(10));
    EXPECT_EQ(uint32_t{ ndb.ident }, Word(26));
    EXPECT_EQ(uint32_t{ ndb.region }, Word(30));
    EXPECT_EQ(static_cast<uint8_t>(ndb.name[0]), 34);
    const auto marker = FromCountedBytes<MarkerBeaconPayload>();
    EXPECT_EQ(uint32_t{ marker.longitude }, Word(2));
    EXPECT_EQ(uint32_t{ marker.latitude }, Word(6));
    EXPECT_EQ(kMarkerBeaconFileSize, 22u);
}

TEST(Records, LinkFlagsWordHoldsTypeIndexAndSurface) {
    TaxiLinkPayload link = {};
    link.flagsWord = 0xA5F07B63;
    EXPECT_EQ(LinkTypeOf(link), 3u);
    EXPECT_EQ(LinkIndexByte(link), 0x7Bu);
    EXPECT_EQ(LinkSurface(link), 0xA5u);
    EXPECT_EQ(BytesOf(link)[4], 0x63);  // type byte
    EXPECT_EQ(BytesOf(link)[5], 0x7B);  // designator index or runway number
}

TEST(Records, ParkingPackedWordHoldsNameTypeNumberAndCodeCount) {
    ParkingSpotRecord spot = {};
    spot.packed = 0xFEABC9E5;  // 1111'1110 1010'1011'1100 1001 11 100101
    EXPECT_EQ(ParkingNameCode(spot), 0x25u);
    EXPECT_EQ(ParkingTypeCode(spot), 0x9u);
    EXPECT_EQ(ParkingNumber(spot), 0xABCu);
    EXPECT_EQ(ParkingCodeCount(spot), 0xFEu);
    EXPECT_EQ(BytesOf(spot)[3], 0xFE);
}

}  // namespace
