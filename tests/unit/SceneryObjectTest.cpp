#include "model/SceneryObject.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"

namespace {

using namespace model;

class SceneryObjectTest : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        ClearModel();
    }
    void TearDown() override { ClearModel(); }
};

TEST_F(SceneryObjectTest, ACreatedObjectIsZeroedAndInNoList) {
    SceneryObject* object = CreateObject(kRunway, 183);
    EXPECT_EQ(object->flags, 3u);
    EXPECT_EQ(object->payloadSize, 183u);
    EXPECT_EQ(object->next, nullptr);
    EXPECT_EQ(object->prev, nullptr);
    EXPECT_EQ(object->historyNext, nullptr);
    EXPECT_EQ(object->related, nullptr);
    EXPECT_TRUE(std::all_of(object->view, object->view + kViewWords, [](int32_t word) { return word == 0; }));
    EXPECT_TRUE(std::all_of(object->payload, object->payload + 183, [](uint8_t byte) { return byte == 0; }));
    EXPECT_EQ(state.head, nullptr);
    FreeObject(object);
}

TEST_F(SceneryObjectTest, AnObjectMayHaveAnEmptyPayload) {
    SceneryObject* object = CreateObject(kTaxiNode, 0);
    SceneryObject* copy = CopyObject(object);
    EXPECT_EQ(copy->payloadSize, 0u);
    FreeObject(object);
    FreeObject(copy);
}

TEST_F(SceneryObjectTest, ACopyHasAllHeaderWordsNextAndPrevIncluded) {
    build::Node();
    SceneryObject* object = build::Node();
    SceneryObject* last = build::Node();
    object->flags |= kSelected | kStock | kFaultMarkB;
    object->related = last;
    for (int i = 0; i < kViewWords; ++i) object->view[i] = 100 + i;
    SceneryObject* copy = CopyObject(object);
    EXPECT_EQ(copy->next, last);
    EXPECT_EQ(copy->prev, state.head);
    EXPECT_EQ(copy->flags, object->flags);
    EXPECT_EQ(copy->related, last);
    EXPECT_TRUE(std::equal(copy->view, copy->view + kViewWords, object->view));
    EXPECT_EQ(copy->payloadSize, 12u);
    FreeObject(copy);
}

TEST_F(SceneryObjectTest, ChangingACopysPayloadDoesNotChangeTheSource) {
    SceneryObject* object = build::Node({ 10, 20 });
    const std::vector<uint8_t> before(object->payload, object->payload + object->payloadSize);
    SceneryObject* copy = CopyObject(object);
    EXPECT_NE(copy->payload, object->payload);
    EXPECT_TRUE(std::equal(before.begin(), before.end(), copy->payload));
    std::fill_n(copy->payload, copy->payloadSize, uint8_t{ 0xAA });
    EXPECT_TRUE(std::equal(before.begin(), before.end(), object->payload));
    FreeObject(copy);
}

TEST_F(SceneryObjectTest, ResizeCopyHasFourBytesACodeAndOnlyTheFirstTwentyBytesOfTheSource) {
    SceneryObject* spot = build::Spot({ 1, 2 }, { "KLM", "BAW" });
    for (const uint32_t codes : { 0u, 1u, 2u, 3u, 255u }) {
        SceneryObject* copy = ResizeCopy(spot, codes);
        ASSERT_EQ(copy->payloadSize, 20 + 4 * codes);
        EXPECT_TRUE(std::equal(spot->payload, spot->payload + 20, copy->payload));
        EXPECT_TRUE(
            std::all_of(copy->payload + 20, copy->payload + copy->payloadSize, [](uint8_t byte) { return byte == 0; }));
        EXPECT_EQ(copy->prev, spot->prev);
        EXPECT_EQ(copy->flags, spot->flags);
        FreeObject(copy);
    }
    EXPECT_EQ(spot->payloadSize, 28u);
}

TEST_F(SceneryObjectTest, ResizePayloadKeepsTheCommonStartAndZeroesTheRest) {
    SceneryObject* object = CreateObject(kApronEdgeLights, 4);
    std::fill_n(object->payload, 4, uint8_t{ 7 });
    ResizePayload(object, 8);
    EXPECT_EQ(std::vector<uint8_t>(object->payload, object->payload + 8),
              (std::vector<uint8_t>{ 7, 7, 7, 7, 0, 0, 0, 0 }));
    ResizePayload(object, 2);
    EXPECT_EQ(std::vector<uint8_t>(object->payload, object->payload + 2), (std::vector<uint8_t>{ 7, 7 }));
    EXPECT_EQ(object->payloadSize, 2u);
    FreeObject(object);
}

TEST_F(SceneryObjectTest, FreeingNothingIsAllowed) { FreeObject(nullptr); }

TEST_F(SceneryObjectTest, TheKindIsTheLowFiveBitsAlone) {
    SceneryObject* object = CreateObject(kVorDme, 117);
    object->flags = 0xFFFFFFE0u | kVorDme;
    EXPECT_EQ(KindOf(object), kVorDme);
    EXPECT_TRUE(IsSelected(object));
    EXPECT_TRUE(IsStock(object));
    FreeObject(object);
}

TEST_F(SceneryObjectTest, OnlyAStockObjectWithAReplacementIsReplacedStock) {
    SceneryObject *stock = build::Ndb(), *replacement = build::Ndb();
    EXPECT_FALSE(IsReplacedStock(stock));
    stock->flags |= kStock;
    EXPECT_FALSE(IsReplacedStock(stock));
    stock->related = replacement;
    replacement->related = stock;
    EXPECT_TRUE(IsReplacedStock(stock));
    EXPECT_FALSE(IsReplacedStock(replacement));
}

TEST_F(SceneryObjectTest, KindsAndFlagsHaveTheValuesThatFilesAndChainsRelyOn) {
    EXPECT_EQ(kAirport, 1u);
    EXPECT_EQ(kTowerViewpoint, 2u);
    EXPECT_EQ(kRunway, 3u);
    EXPECT_EQ(kHelipad, 5u);
    EXPECT_EQ(kCommFrequency, 6u);
    EXPECT_EQ(kStartLocation, 7u);
    EXPECT_EQ(kTaxiNode, 8u);
    EXPECT_EQ(kTaxiLink, 9u);
    EXPECT_EQ(kTaxiDesignator, 10u);
    EXPECT_EQ(kParkingSpot, 11u);
    EXPECT_EQ(kApron, 12u);
    EXPECT_EQ(kApronEdgeLights, 13u);
    EXPECT_EQ(kReferenceMarker, 14u);
    EXPECT_EQ(kGuideline, 15u);
    EXPECT_EQ(kIls, 16u);
    EXPECT_EQ(kMarkerBeacon, 17u);
    EXPECT_EQ(kNdb, 18u);
    EXPECT_EQ(kVorDme, 19u);
    EXPECT_EQ(kKindMask, 0x1Fu);
    EXPECT_EQ(kSelected, 0x20u);
    EXPECT_EQ(kWholeSelected, 0x40u);
    EXPECT_EQ(kOutlineOpen, 0x80u);
    EXPECT_EQ(kHistoryMask, 0x700u);
    EXPECT_EQ(kGroupStart, 0x800u);
    EXPECT_EQ(kNewNode | kSelected, 0x1020u);
    EXPECT_EQ(kNewLink | kSelected, 0x2020u);
    EXPECT_EQ(kStock, 0x4000u);
}

}  // namespace
