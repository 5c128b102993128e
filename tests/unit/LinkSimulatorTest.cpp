#include "link/Simulator.h"

#include <gtest/gtest.h>

#include <limits>

#include "fakes/FakeTransport.h"
#include "link/Ipc.h"

namespace {

using namespace simlink;
using model::kPi;

constexpr HotKeyCodes kCodes = { 190, 79, 77 };
constexpr uint64_t kPeriod = 100;
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

class LinkSimulatorTest : public testing::Test {
protected:
    void SetUp() override { ResetTransport(); }
    void TearDown() override {
        IpcClose();
        EXPECT_EQ(fakeTransport.openNames + fakeTransport.openBlocks + fakeTransport.openViews, 0);
    }

    // The timer's next tick.
    static TickResult Next() {
        fakeTransport.now += kPeriod;
        return Tick(kCodes);
    }
    static void Hang() {
        fakeTransport.answer = [](uint8_t*) { return TimesOut(); };
    }
    static void Recover() { fakeTransport.answer = nullptr; }

    // How long the ticks wait before they try again.
    static uint64_t WaitUntilNextAttempt() {
        const uint64_t start = fakeTransport.now;
        const int sends = fakeTransport.sends;
        while (fakeTransport.sends == sends && fakeTransport.now - start < 60'000) {
            fakeTransport.now += 1;
            const uint64_t before = fakeTransport.now;
            Tick(kCodes);
            if (fakeTransport.sends != sends) return before - start;
        }
        return 60'000;
    }
};

TEST_F(LinkSimulatorTest, TheFirstTickOpensRegistersAndPolls) {
    PutAircraft(&fakeTransport.simulator, 1000, -2000, 0x40000000);
    PutValue(&fakeTransport.simulator, 0x570, 77, 8);
    PutValue(&fakeTransport.simulator, 0x20, 78, 4);
    EXPECT_EQ(Next(), TickResult::Polled);
    EXPECT_TRUE(simulator.connected);
    EXPECT_EQ(simulator.position.latitude, 1000);
    EXPECT_EQ(simulator.position.longitude, -2000);
    EXPECT_EQ(simulator.heading, 0x40000000u);
    EXPECT_EQ(simulator.altitude, 77);
    EXPECT_EQ(simulator.ground, 78u);
    EXPECT_TRUE(HasHotKeys());
}

TEST_F(LinkSimulatorTest, APollIsOneRoundTripOfEightReads) {
    Next();
    const int sends = fakeTransport.sends, requests = fakeTransport.simulator.requests;
    Next();
    EXPECT_EQ(fakeTransport.sends, sends + 1);
    EXPECT_EQ(fakeTransport.simulator.requests, requests + 8);
    EXPECT_EQ(ipc.opens, 1u);
}

TEST_F(LinkSimulatorTest, ThePollReadsTheSlotsOfTheHotKeys) {
    Next();
    PressSlot(&fakeTransport.simulator, 3);
    Next();
    EXPECT_TRUE(IsPressed(hotKeys.slots[kMarkerKey]));
    EXPECT_FALSE(IsPressed(hotKeys.slots[kNodeKey]));
}

TEST_F(LinkSimulatorTest, WithoutSlotsThePollReadsTheFirstOffsetAndNothingCountsAsPressed) {
    PutValue(&fakeTransport.simulator, 0x320C, 10, 4);
    PutValue(&fakeTransport.simulator, 0, 0xFFFFFFFF, 4);
    EXPECT_EQ(Next(), TickResult::Polled);
    EXPECT_EQ(hotKeys.slots[kNodeKey].value, 0xFFFFFFFFu);
    for (const HotKeySlot& slot : hotKeys.slots) EXPECT_FALSE(IsPressed(slot));
    EXPECT_TRUE(simulator.connected) << "the aircraft is shown all the same";
}

TEST_F(LinkSimulatorTest, WithoutASimulatorEveryTickLooksForItsWindow) {
    fakeTransport.windows.clear();
    for (int i = 1; i <= 20; ++i) {
        EXPECT_EQ(Next(), TickResult::Failed);
        EXPECT_EQ(fakeTransport.windowSearches, 2 * i);
    }
    EXPECT_EQ(fakeTransport.sends, 0);
    fakeTransport.windows["UIPCMAIN"] = kFakeWindow;
    EXPECT_EQ(Next(), TickResult::Polled);
}

TEST_F(LinkSimulatorTest, AFailedPollClosesTheLink) {
    Next();
    fakeTransport.answer = [](uint8_t*) { return Sent{ true, 0, 0 }; };
    EXPECT_EQ(Next(), TickResult::Failed);
    EXPECT_FALSE(simulator.connected);
    EXPECT_EQ(ipc.view, nullptr);
}

TEST_F(LinkSimulatorTest, AHangingSimulatorCostsNineTriesOnce) {
    Next();
    Hang();
    const uint64_t start = fakeTransport.now;
    EXPECT_EQ(Next(), TickResult::Failed);
    EXPECT_EQ(fakeTransport.now - start, kPeriod + 9 * 2000 + 8 * 100);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(Next(), TickResult::Waiting);
}

TEST_F(LinkSimulatorTest, AfterEachFailureTheNextAttemptWaitsLongerUpToFiveSeconds) {
    Next();
    Hang();
    Next();
    for (uint64_t wait : { 500u, 1000u, 2000u, 4000u, 5000u, 5000u, 5000u }) EXPECT_EQ(WaitUntilNextAttempt(), wait);
    Recover();
    EXPECT_EQ(WaitUntilNextAttempt(), 5000u);
    EXPECT_TRUE(simulator.connected);
    Hang();
    Next();
    EXPECT_EQ(WaitUntilNextAttempt(), 500u) << "an answered poll starts the waiting anew";
}

TEST_F(LinkSimulatorTest, ManyFailuresKeepTheLongestWait) {
    Next();
    fakeTransport.answer = [](uint8_t*) { return Sent{ true, 0, 0 }; };
    Next();
    for (int i = 0; i < 100; ++i) WaitUntilNextAttempt();
    EXPECT_EQ(WaitUntilNextAttempt(), 5000u);
}

TEST_F(LinkSimulatorTest, AWindowKnownToHangIsNotAsked) {
    Next();
    Hang();
    Next();
    fakeTransport.notResponding = true;
    const int sends = fakeTransport.sends;
    const uint64_t start = fakeTransport.now;
    while (fakeTransport.now - start < 60'000) Next();
    EXPECT_EQ(fakeTransport.sends, sends);
    EXPECT_LT(fakeTransport.now - start, 61'000u) << "no tick blocked";
    fakeTransport.notResponding = false;
    Recover();
    EXPECT_LE(WaitUntilNextAttempt(), 5000u);
    EXPECT_TRUE(simulator.connected);
}

TEST_F(LinkSimulatorTest, AWrongVersionIsAskedForRarely) {
    PutValue(&fakeTransport.simulator, 0x3304, 0, 4);
    EXPECT_EQ(Next(), TickResult::Failed);
    EXPECT_EQ(Next(), TickResult::Waiting);
    EXPECT_FALSE(simulator.connected);
}

TEST_F(LinkSimulatorTest, AServerThatAnswersLateIsPolledLessOften) {
    Next();
    fakeTransport.answer = [](uint8_t* block) {
        fakeTransport.now += 1000;
        return ServeBlock(block);
    };
    EXPECT_EQ(Next(), TickResult::Polled);
    EXPECT_EQ(WaitUntilNextAttempt(), 4000u);
    EXPECT_TRUE(simulator.connected);
}

TEST_F(LinkSimulatorTest, AFailedRegistrationClosesTheLink) {
    fakeTransport.answer = [](uint8_t* block) {
        return fakeTransport.sends == 3 ? Sent{ true, 0, 0 } : ServeBlock(block);
    };
    EXPECT_EQ(Next(), TickResult::Failed);
    EXPECT_EQ(ipc.view, nullptr);
    EXPECT_EQ(fakeTransport.sends, 3);
}

TEST_F(LinkSimulatorTest, MovingTheAircraftStopsTheSlewFirst) {
    Next();
    for (uint32_t offset = 0x5DC; offset < 0x5F0; ++offset) PutValue(&fakeTransport.simulator, offset, 0xEE, 1);
    fakeTransport.simulator.writes.clear();
    const int sends = fakeTransport.sends;
    EXPECT_TRUE(MoveAircraft({ 0.5, 1.25 }, kPi));
    EXPECT_EQ(fakeTransport.sends, sends + 2);
    EXPECT_EQ(fakeTransport.simulator.writes,
              (std::vector<uint32_t>{ 0x5DC, 0x5E4, 0x5E6, 0x5EB, 0x5ED, 0x560, 0x568, 0x580 }));
    EXPECT_EQ(ValueAt(fakeTransport.simulator, 0x5DC, 2), 1u);
    EXPECT_EQ(ValueAt(fakeTransport.simulator, 0x5E4, 4), 0u);
    EXPECT_EQ(ValueAt(fakeTransport.simulator, 0x5E8, 3), 0xEEEEEEu) << "not ours";
    EXPECT_EQ(ValueAt(fakeTransport.simulator, 0x5EB, 1), 0u);
    EXPECT_EQ(ValueAt(fakeTransport.simulator, 0x5EC, 1), 0xEEu);
    EXPECT_EQ(ValueAt(fakeTransport.simulator, 0x5ED, 1), 0u);
    Next();
    const model::LatLon position = ToLatLon(simulator.position);
    EXPECT_NEAR(position.lat, 0.5, 1e-12);
    EXPECT_NEAR(position.lon, 1.25, 1e-12);
    EXPECT_NEAR(HeadingRadians(simulator.heading), kPi, 1e-8);
}

TEST_F(LinkSimulatorTest, AMoveIsKnownAtOnceAndAFailedOneIsNot) {
    PutAircraft(&fakeTransport.simulator, 5, 6, 7);
    Next();
    const model::LatLon place = { 0.5, 1.25 };
    EXPECT_TRUE(MoveAircraft(place, kPi));
    EXPECT_EQ(simulator.position.latitude, FromLatLon(place).latitude);
    EXPECT_EQ(simulator.position.longitude, FromLatLon(place).longitude);
    EXPECT_EQ(simulator.heading, HeadingFromRadians(kPi));
    fakeTransport.answer = [](uint8_t*) { return Sent{ true, 0, 0 }; };
    EXPECT_FALSE(MoveAircraft({ -0.5, 0 }, 0));
    EXPECT_EQ(simulator.position.latitude, FromLatLon(place).latitude);
}

TEST_F(LinkSimulatorTest, StoppingTheSlewMovesNothing) {
    PutAircraft(&fakeTransport.simulator, 5, 6, 7);
    Next();
    EXPECT_TRUE(StopSlew());
    EXPECT_EQ(ValueAt(fakeTransport.simulator, 0x5DC, 2), 1u);
    EXPECT_EQ(ValueAt(fakeTransport.simulator, 0x560, 8), 5u);
}

TEST_F(LinkSimulatorTest, NothingIsSentWithoutAConnection) {
    EXPECT_FALSE(MoveAircraft({ 0.5, 1 }, 0));
    EXPECT_FALSE(StopSlew());
    EXPECT_EQ(fakeTransport.sends, 0);
}

TEST_F(LinkSimulatorTest, APlaceThatIsNoneIsNotSent) {
    Next();
    const int sends = fakeTransport.sends;
    EXPECT_FALSE(MoveAircraft({ kNoNumber, 1 }, 0));
    EXPECT_FALSE(MoveAircraft({ 0, kInfinity }, 0));
    EXPECT_FALSE(MoveAircraft({ 1.6, 1 }, 0));
    EXPECT_FALSE(MoveAircraft({ 0, 0 }, kNoNumber));
    EXPECT_EQ(fakeTransport.sends, sends);
    EXPECT_TRUE(simulator.connected);
}

TEST_F(LinkSimulatorTest, AFailedMoveClosesTheLinkUntilALaterTick) {
    Next();
    fakeTransport.answer = [](uint8_t*) { return Sent{ true, 0, 0 }; };
    const int sends = fakeTransport.sends;
    EXPECT_FALSE(MoveAircraft({ 0.5, 1 }, 0));
    EXPECT_EQ(fakeTransport.sends, sends + 1) << "the position is not sent after the slew failed";
    EXPECT_FALSE(simulator.connected);
    Recover();
    EXPECT_EQ(Next(), TickResult::Waiting);
    WaitUntilNextAttempt();
    EXPECT_TRUE(simulator.connected);
}

TEST_F(LinkSimulatorTest, ReleasingGivesTheHotKeysBackAndCloses) {
    Next();
    ReleaseLink();
    for (uint32_t slot : { 1u, 2u, 3u }) EXPECT_EQ(SlotValue(fakeTransport.simulator, slot), 0u);
    EXPECT_EQ(ipc.view, nullptr);
    EXPECT_FALSE(simulator.connected);
    ReleaseLink();
}

TEST_F(LinkSimulatorTest, ReleasingDoesNotWaitForAWindowKnownToHang) {
    Next();
    fakeTransport.notResponding = true;
    const int sends = fakeTransport.sends;
    ReleaseLink();
    EXPECT_EQ(fakeTransport.sends, sends);
}

TEST_F(LinkSimulatorTest, ASimulatorThatComesAndGoesTenTimesIsFoundEachTime) {
    for (uintptr_t round = 0; round < 10; ++round) {
        fakeTransport.simulator = HealthySimulator();
        fakeTransport.windows["UIPCMAIN"] = kFakeWindow + round;
        Recover();
        WaitUntilNextAttempt();
        ASSERT_TRUE(simulator.connected) << round;
        EXPECT_EQ(SlotValue(fakeTransport.simulator, 1), 0x100BEu);
        fakeTransport.windows.clear();
        fakeTransport.answer = [](uint8_t*) { return Sent{ false, 0, 1400 }; };
        EXPECT_EQ(Next(), TickResult::Failed);
    }
}

}  // namespace
