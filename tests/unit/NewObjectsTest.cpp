#include "map/NewObjects.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "fakes/ToolFixture.h"
#include "model/SpotBits.h"

namespace {

using namespace map;
using namespace model;

class NewObjectsTest : public ToolFixture {
protected:
    void SetUp() override {
        ToolFixture::SetUp();
        SetTool(Tool::Parking);
    }
    static const ParkingSpotRecord& Made() { return PayloadAs<ParkingSpotRecord>(state.tail); }
    static uint32_t NumberMade(int type) {
        tools.lastParkingType = type;
        Click({ 0, 0 });
        return ParkingNumber(Made());
    }
    static void GiveNumber(SceneryObject* spot, uint32_t name, uint32_t number) {
        PayloadAs<ParkingSpotRecord>(spot).packed = name | number << 12;
    }
};

TEST_F(NewObjectsTest, APressMakesASpotThere) {
    const ByteList before = File();
    Click({ 50, -20 });
    ASSERT_EQ(KindOf(state.tail), kParkingSpot);
    EXPECT_LT(DistanceTo(state.tail, { 50, -20 }), 1.6);
    EXPECT_EQ(state.tail->flags, kParkingSpot | 0x1020u);
    ExpectOneAction(before);
}

TEST_F(NewObjectsTest, EveryTypeHasItsRadiusAndGatesTheirName) {
    const double radii[] = { 20, 20, 10, 14, 18, 50, 44, 26, 31, 38, 54, 20 };
    for (int type = 0; type < 12; ++type) {
        tools.lastParkingType = type;
        Click({ 0, 0 });
        const bool gate = type >= 8 && type <= 10;
        EXPECT_EQ(Copied(Made().radius), static_cast<float>(radii[type])) << type;
        EXPECT_EQ(ParkingTypeCode(Made()), static_cast<uint32_t>(type));
        EXPECT_EQ(ParkingNameCode(Made()), gate ? 10u : 1u) << type;
        EXPECT_EQ(Made().packed >> 6 & 3, gate ? 3u : 0u) << type;
    }
}

TEST_F(NewObjectsTest, TheHeadingIsTheRotationOfTheMap) {
    Click({ 0, 0 });
    EXPECT_EQ(Copied(Made().heading), 0);
    view.rotation = 75 * kRadiansPerDegree;
    Click({ 50, 0 });
    EXPECT_NEAR(Copied(Made().heading), 75, 1e-4);
    view.rotation = kTwoPi - 1e-12;
    Click({ 100, 0 });
    EXPECT_EQ(Copied(Made().heading), 0);  // never 360
}

TEST_F(NewObjectsTest, TheCodesAreCopied) {
    tools.parkingCodes = { "AFR", "KLMX", "" };
    Click({ 0, 0 });
    EXPECT_EQ(ParkingCodeCount(Made()), 3u);
    ASSERT_EQ(state.tail->payloadSize, 32u);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(state.tail->payload) + 20, 12),
              std::string("AFR\0KLMX\0\0\0\0", 12));
}

TEST_F(NewObjectsTest, MoreCodesThanASpotCanHaveAreCut) {
    tools.parkingCodes.assign(300, "ABC");
    Click({ 0, 0 });
    EXPECT_EQ(ParkingCodeCount(Made()), 255u);
    EXPECT_EQ(state.tail->payloadSize, 20u + 4 * 255);
}

TEST_F(NewObjectsTest, TheNumberIsTheCountPlusOne) {
    GiveNumber(build::Spot({ 300, 0 }), 5, 77);
    GiveNumber(build::Spot({ 300, 100 }), 10, 78);
    EXPECT_EQ(NumberMade(9), 3u);
    EXPECT_EQ(NumberMade(2), 4u);
}

TEST_F(NewObjectsTest, ATakenNumberOfTheSameNameIsPassedOver) {
    GiveNumber(build::Spot({ 300, 0 }), 10, 3);
    GiveNumber(build::Spot({ 300, 100 }), 10, 4);
    EXPECT_EQ(NumberMade(9), 5u);
    EXPECT_EQ(NumberMade(2), 4u);  // 4 is taken by a gate, this is no gate
}

TEST_F(NewObjectsTest, NumbersBeginAgainAtOneWhenTheyRunOut) {
    for (uint32_t i = 0; i < 4000; ++i) GiveNumber(build::Spot({ 5000, 0 }), 10, 4095 - i % 95);
    EXPECT_EQ(NumberMade(9), 1u);  // 4001 to 4095 are taken
    EXPECT_EQ(NumberMade(2), 4002u);
}

TEST_F(NewObjectsTest, TooManySpotsAreRefused) {
    for (uint32_t i = 0; i < 4096; ++i) build::Spot({ 5000, 0 });
    Click({ 0, 0 });
    EXPECT_EQ(CountKind(kParkingSpot), 4096u);
    EXPECT_EQ(fake.remark, "A scenery file can hold no more than 4096 parking spots");
    EXPECT_FALSE(CanUndo());
}

TEST_F(NewObjectsTest, LinksHaveRoomUpToWhatAFileCanCount) {
    for (uint32_t i = 0; i < 65534; ++i) AppendObject(CreateObject(kTaxiLink, sizeof(TaxiLinkPayload)));
    EXPECT_TRUE(HasRoomFor(kTaxiLink));
    EXPECT_EQ(fake.remark, "");
    EXPECT_FALSE(HasRoomFor(kTaxiLink, 2));
    EXPECT_EQ(fake.remark, "A scenery file can hold no more than 65535 taxi links");
}

TEST_F(NewObjectsTest, WhatIsMadeIsTheOnlySelection) {
    Click({ 0, 0 });
    SceneryObject* first = state.tail;
    Click({ 100, 0 });
    EXPECT_FALSE(IsSelected(first));
    EXPECT_TRUE(IsSelected(state.tail));
}

TEST_F(NewObjectsTest, TemplatesForTaxiwaysAndApronsAreTwo) {
    TaxiLinkPayload taxiway{}, apron{};
    taxiway.flagsWord = kTaxiwayLink | 0x60 | 3u << 24;
    taxiway.width = 11;
    apron.flagsWord = kApronRouteLink | 5u << 24;
    apron.width = 12;
    UseLinkTemplate(taxiway);
    UseLinkTemplate(apron);
    EXPECT_EQ(Copied(LinkFromTemplate(kClosedLink).width), 11);
    EXPECT_EQ(Copied(LinkFromTemplate(kRunwayLink).width), 11);
    EXPECT_EQ(Copied(LinkFromTemplate(kApronRouteLink).width), 12);
    const TaxiLinkPayload parking = LinkFromTemplate(kParkingLink);
    EXPECT_EQ(Copied(parking.flagsWord), kParkingLink | 0x60u | 5u << 24);  // connectors have their surface drawn
    TaxiLinkPayload runway{};
    runway.flagsWord = kRunwayLink;
    runway.width = 60;
    UseLinkTemplate(runway);
    EXPECT_EQ(Copied(LinkFromTemplate(kRunwayLink).width), 11);
}

TEST_F(NewObjectsTest, ALinkOfAnUnknownTypeIsNoTemplate) {
    for (const uint32_t type : { 0u, 6u, 15u }) {
        TaxiLinkPayload odd{};
        odd.flagsWord = type;
        odd.width = 99;
        UseLinkTemplate(odd);
        EXPECT_EQ(Copied(LinkFromTemplate(kTaxiwayLink).width), 22.86F) << type;
        EXPECT_EQ(Copied(LinkFromTemplate(kParkingLink).width), 22.86F) << type;
    }
}

TEST_F(NewObjectsTest, TheFirstTemplatesAreWideAndPaved) {
    const uint32_t taxiway = LinkFromTemplate(kTaxiwayLink).flagsWord;
    EXPECT_EQ(taxiway, kTaxiwayLink | 0x60u | 0x10000u | 4u << 24);
    EXPECT_EQ(Copied(LinkFromTemplate(kTaxiwayLink).width), 22.86F);
    EXPECT_EQ(LinkFromTemplate(kApronRouteLink).flagsWord & 0x60u, 0u);
    EXPECT_EQ(LinkFromTemplate(kRunwayLink).flagsWord & 0xFF0000u, 0u);
}

}  // namespace
