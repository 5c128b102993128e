#include "model/Positions.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"

namespace {

using namespace model;

class Positions : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        ClearModel();
    }
    void TearDown() override { ClearModel(); }
};

struct Case {
    uint32_t kind;
    uint32_t payloadSize;
    uint32_t longitudeAt, latitudeAt;
};
constexpr Case kCases[] = {
    { kAirport, 46, 6, 10 },      { kTowerViewpoint, 12, 0, 4 }, { kRunway, 183, 14, 18 },     { kHelipad, 30, 6, 10 },
    { kStartLocation, 18, 2, 6 }, { kTaxiNode, 12, 4, 8 },       { kParkingSpot, 20, 12, 16 }, { kIls, 238, 2, 6 },
    { kMarkerBeacon, 38, 2, 6 },  { kNdb, 99, 6, 10 },           { kVorDme, 117, 2, 6 },
};

TEST_F(Positions, EachKindKeepsItsPositionWhereItsRecordHasIt) {
    for (const Case& c : kCases) {
        SceneryObject* object = build::Append(c.kind, c.payloadSize);
        const uint32_t longitude = 0x0A0B0C0D, latitude = 0x01020304;
        std::memcpy(object->payload + c.longitudeAt, &longitude, 4);
        std::memcpy(object->payload + c.latitudeAt, &latitude, 4);
        ASSERT_TRUE(HasPosition(object)) << c.kind;
        EXPECT_EQ(EncodedPositionOf(object).lonCode, longitude) << c.kind;
        EXPECT_EQ(EncodedPositionOf(object).latCode, latitude) << c.kind;
        const LatLon decoded = BglToLatLon({ latitude, longitude });
        EXPECT_EQ(PositionOf(object).lat, decoded.lat);
        EXPECT_EQ(PositionOf(object).lon, decoded.lon);
    }
}

TEST_F(Positions, SettingChangesTheEightBytesAlone) {
    for (const Case& c : kCases) {
        SceneryObject* object = build::Append(c.kind, c.payloadSize);
        std::fill_n(object->payload, c.payloadSize, uint8_t{ 0xEE });
        SetPosition(object, build::At({ 100, 200 }));
        const BglPoint expected = LatLonToBgl(build::At({ 100, 200 }));
        EXPECT_EQ(EncodedPositionOf(object).lonCode, expected.lonCode);
        EXPECT_EQ(EncodedPositionOf(object).latCode, expected.latCode);
        for (uint32_t i = 0; i < c.payloadSize; ++i) {
            const bool isPosition = i >= c.longitudeAt && i < c.longitudeAt + 8;
            EXPECT_TRUE(isPosition || object->payload[i] == 0xEE) << c.kind << ' ' << i;
        }
    }
}

TEST_F(Positions, AReferenceMarkerKeepsItsPositionExactly) {
    SceneryObject* marker = build::Marker();
    SetPosition(marker, { 0.123456789012345, -1.5 });
    EXPECT_TRUE(HasPosition(marker));
    EXPECT_EQ(PositionOf(marker).lat, 0.123456789012345);
    EXPECT_EQ(PositionOf(marker).lon, -1.5);
}

TEST_F(Positions, OtherKindsHaveNone) {
    for (const uint32_t kind : { kCommFrequency, kTaxiLink, kTaxiDesignator, kApron, kApronEdgeLights, kGuideline })
        EXPECT_FALSE(HasPosition(build::Append(kind, 64))) << kind;
}

TEST_F(Positions, FlagsDoNotMatter) {
    SceneryObject* node = build::Node({ 5, 5 });
    node->flags |= 0xFFFFFFE0u;
    EXPECT_TRUE(HasPosition(node));
    node->flags = kTaxiNode;
}

}  // namespace
