#include "link/HotKeys.h"

#include <gtest/gtest.h>

#include "fakes/FakeTransport.h"
#include "link/Ipc.h"

namespace {

using namespace simlink;

constexpr HotKeyCodes kCodes = { 190, 79, 77 };
constexpr uint32_t kNodeValue = 0x100BE, kParkingValue = 0x1004F, kMarkerValue = 0x1004D;

class LinkHotKeysTest : public testing::Test {
protected:
    void SetUp() override {
        ResetTransport();
        Open();
    }
    void TearDown() override { ResetTransport(); }

    static void Open() {
        IpcError error;
        ASSERT_TRUE(IpcOpen(0, &error));
    }
    static uint32_t Slot(uint32_t slot) { return SlotValue(fakeTransport.simulator, slot); }
    static void TakeSlots(uint32_t first, uint32_t last) {
        for (uint32_t slot = first; slot <= last; ++slot) PutSlot(&fakeTransport.simulator, slot, 0x10055);
    }
    static uint32_t OffsetOf(HotKey key) { return hotKeys.slots[key].offset; }
};

TEST_F(LinkHotKeysTest, TheThreeKeysTakeTheFirstFreeSlots) {
    EXPECT_TRUE(RegisterHotKeys(kCodes));
    EXPECT_EQ(Slot(1), kNodeValue);
    EXPECT_EQ(Slot(2), kParkingValue);
    EXPECT_EQ(Slot(3), kMarkerValue);
    EXPECT_EQ(OffsetOf(kNodeKey), 0x3210u);
    EXPECT_EQ(OffsetOf(kParkingKey), 0x3214u);
    EXPECT_EQ(OffsetOf(kMarkerKey), 0x3218u);
    EXPECT_TRUE(HasHotKeys());
}

TEST_F(LinkHotKeysTest, TakenSlotsArePassedOver) {
    TakeSlots(1, 3);
    TakeSlots(5, 5);
    TakeSlots(7, 55);
    RegisterHotKeys(kCodes);
    EXPECT_EQ(Slot(4), kNodeValue);
    EXPECT_EQ(Slot(6), kParkingValue);
    EXPECT_EQ(Slot(56), kMarkerValue);
    EXPECT_EQ(OffsetOf(kMarkerKey), 0x3210u + 4 * 55);
}

TEST_F(LinkHotKeysTest, TheLaterKeysGoWithoutWhenSlotsAreScarce) {
    TakeSlots(1, 54);
    EXPECT_TRUE(RegisterHotKeys(kCodes));
    EXPECT_EQ(Slot(55), kNodeValue);
    EXPECT_EQ(Slot(56), kParkingValue);
    EXPECT_EQ(OffsetOf(kMarkerKey), 0u);
}

TEST_F(LinkHotKeysTest, WithAllSlotsTakenThereAreNone) {
    TakeSlots(1, 56);
    const auto memory = fakeTransport.simulator.memory;
    EXPECT_TRUE(RegisterHotKeys(kCodes));
    EXPECT_FALSE(HasHotKeys());
    EXPECT_EQ(fakeTransport.simulator.memory, memory);
}

TEST_F(LinkHotKeysTest, TheCountOfTheTableDecidesWhetherThereAreAny) {
    struct {
        uint32_t count;
        bool registered;
    } const rows[] = {
        { 0, false }, { 55, false }, { 56, true }, { 999, true }, { 1000, false }, { 0xFFFFFFFF, false }
    };
    for (const auto& row : rows) {
        PutValue(&fakeTransport.simulator, 0x320C, row.count, 4);
        TakeSlots(1, 1);
        EXPECT_TRUE(RegisterHotKeys(kCodes));
        EXPECT_EQ(HasHotKeys(), row.registered) << row.count;
        UnregisterHotKeys();
    }
}

TEST_F(LinkHotKeysTest, EachSlotIsWrittenByARequestOfItsOwn) {
    fakeTransport.sends = 0;
    RegisterHotKeys(kCodes);
    EXPECT_EQ(fakeTransport.sends, 4);
    EXPECT_EQ(fakeTransport.simulator.requests, 3 + 4);
}

TEST_F(LinkHotKeysTest, UnregisteringFreesTheSlots) {
    TakeSlots(2, 2);
    RegisterHotKeys(kCodes);
    fakeTransport.sends = 0;
    EXPECT_TRUE(UnregisterHotKeys());
    EXPECT_EQ(fakeTransport.sends, 1);
    for (uint32_t slot : { 1u, 3u, 4u }) EXPECT_EQ(Slot(slot), 0u);
    EXPECT_EQ(Slot(2), 0x10055u) << "another's";
    EXPECT_FALSE(HasHotKeys());
}

TEST_F(LinkHotKeysTest, AKeyWithoutASlotIsNotUnregistered) {
    TakeSlots(1, 55);
    PutValue(&fakeTransport.simulator, 0, 0x12345678, 4);
    RegisterHotKeys(kCodes);
    UnregisterHotKeys();
    EXPECT_EQ(Slot(56), 0u);
    EXPECT_EQ(ValueAt(fakeTransport.simulator, 0, 4), 0x12345678u);
}

TEST_F(LinkHotKeysTest, APressIsWhatLiesAboveTheThirdByte) {
    HotKeySlot slot = { 0x3210, kNodeValue, 0xFFFFFF };
    EXPECT_FALSE(IsPressed(slot));
    slot.value = 0x01000000;
    EXPECT_TRUE(IsPressed(slot));
    slot.value = 0xFFFFFFFF;
    EXPECT_TRUE(IsPressed(slot));
    slot.offset = 0;
    EXPECT_FALSE(IsPressed(slot)) << "without a slot the value is something else's";
}

TEST_F(LinkHotKeysTest, AcknowledgingClearsTheTopByteHereAndThere) {
    RegisterHotKeys(kCodes);
    PutSlot(&fakeTransport.simulator, 2, 0x2C000000 | kParkingValue);
    hotKeys.slots[kParkingKey].value = 0x2C000000 | kParkingValue;
    EXPECT_TRUE(AcknowledgeHotKey(&hotKeys.slots[kParkingKey]));
    EXPECT_EQ(Slot(2), kParkingValue);
    EXPECT_FALSE(IsPressed(hotKeys.slots[kParkingKey]));
}

TEST_F(LinkHotKeysTest, AFailedRequestIsReported) {
    fakeTransport.answer = [](uint8_t*) { return Sent{ true, 0, 0 }; };
    EXPECT_FALSE(RegisterHotKeys(kCodes));
    EXPECT_FALSE(HasHotKeys());
}

TEST_F(LinkHotKeysTest, SlotsThatABrokenLinkLeftAreUsedAgain) {
    for (int i = 0; i < 60; ++i) {
        ASSERT_TRUE(RegisterHotKeys(kCodes));
        ASSERT_EQ(OffsetOf(kNodeKey), 0x3210u) << i;
        if (i == 20) PressSlot(&fakeTransport.simulator, 2);  // pressed while nobody listened
        IpcClose();
        Open();
    }
    EXPECT_EQ(Slot(2), kParkingValue);
    EXPECT_EQ(Slot(4), 0u);
}

TEST_F(LinkHotKeysTest, SlotsOfAnotherServerAreNotTouched) {
    RegisterHotKeys(kCodes);
    IpcClose();
    fakeTransport.windows["UIPCMAIN"] = kFakeWindow + 1;  // started anew; another program was faster
    Open();
    RegisterHotKeys(kCodes);
    EXPECT_EQ(Slot(1), kNodeValue);
    EXPECT_EQ(OffsetOf(kNodeKey), 0x3210u + 12);
}

}  // namespace
