#include "link/Ipc.h"

#include <gtest/gtest.h>

#include <cstring>
#include <iterator>
#include <map>
#include <string>

#include "fakes/FakeTransport.h"

namespace {

using simlink::ErrorText;
using simlink::ipc;
using simlink::IpcClose;
using simlink::IpcError;
using simlink::IpcOpen;
using simlink::IpcProcess;
using simlink::IpcRead;
using simlink::IpcWrite;
using simlink::Sent;

constexpr uint32_t kAny = 0;

uint32_t BlockWord(size_t place) {
    uint32_t value;
    std::memcpy(&value, fakeTransport.block.data() + place, sizeof value);
    return value;
}

void SetBlockWord(size_t place, uint32_t value) {
    std::memcpy(fakeTransport.block.data() + place, &value, sizeof value);
}

class LinkIpcTest : public testing::Test {
protected:
    void SetUp() override { ResetTransport(); }
    void TearDown() override {
        IpcClose();
        EXPECT_EQ(fakeTransport.openNames, 0);
        EXPECT_EQ(fakeTransport.openBlocks, 0);
        EXPECT_EQ(fakeTransport.openViews, 0);
    }

    IpcError Open(uint32_t version = kAny) {
        IpcError error = IpcError::BadData;
        const bool done = IpcOpen(version, &error);
        EXPECT_EQ(done, error == IpcError::Okay);
        return error;
    }
    IpcError Process() {
        IpcError error = IpcError::Okay;
        const bool done = IpcProcess(&error);
        EXPECT_EQ(done, error == IpcError::Okay);
        return error;
    }
    IpcError Read(uint32_t offset, uint32_t size, void* to) {
        IpcError error = IpcError::BadData;
        const bool done = IpcRead(offset, size, to, &error);
        EXPECT_EQ(done, error == IpcError::Okay);
        return error;
    }
    IpcError Write(uint32_t offset, uint32_t size, const void* from) {
        IpcError error = IpcError::BadData;
        const bool done = IpcWrite(offset, size, from, &error);
        EXPECT_EQ(done, error == IpcError::Okay);
        return error;
    }
    // After a read of four bytes was queued: spoils a word of the answer and processes.
    IpcError ProcessSpoiled(size_t place, uint32_t value) {
        fakeTransport.answer = [place, value](uint8_t* block) {
            const Sent sent = ServeBlock(block);
            SetBlockWord(place, value);
            return sent;
        };
        return Process();
    }
};

TEST_F(LinkIpcTest, EveryErrorHasItsTextByCode) {
    const std::map<int, std::string> texts = {
        { 0, "Okay" },
        { 1, "Attempt to Open when already Open" },
        { 2, "Cannot link to FSUIPC or WideClient" },
        { 3, "Failed to Register common message with Windows" },
        { 4, "Failed to create Atom for mapping filename" },
        { 5, "Failed to create a file mapping object" },
        { 6, "Failed to open a view to the file map" },
        { 7, "Incorrect version of FSUIPC, or not FSUIPC" },
        { 8, "Sim is not version requested" },
        { 9, "Call cannot execute, link not Open" },
        { 10, "Call cannot execute: no requests accumulated" },
        { 11, "IPC timed out all retries" },
        { 12, "IPC sendmessage failed all retries" },
        { 13, "IPC request contains bad data" },
        { 14, "Maybe running on WideClient, but FS not running on Server, or wrong FSUIPC" },
        { 15, "Read or Write request cannot be added, memory for Process is full" },
    };
    ASSERT_EQ(texts.size(), size_t{ simlink::kIpcErrors });
    for (const auto& [code, text] : texts) EXPECT_EQ(ErrorText(static_cast<IpcError>(code)), text);
}

TEST_F(LinkIpcTest, OpensAndKnowsBothVersions) {
    EXPECT_EQ(Open(), IpcError::Okay);
    EXPECT_EQ(ipc.interfaceVersion, 0x19980005u);
    EXPECT_EQ(ipc.simulatorVersion, 7u);
    EXPECT_EQ(ipc.window, kFakeWindow);
    EXPECT_FALSE(ipc.foundAsSimulator);
    EXPECT_EQ(fakeTransport.simulator.clientVersion, 1004);
    EXPECT_EQ(fakeTransport.messages, std::vector<std::string>{ "FsasmLib:IPC" });
}

TEST_F(LinkIpcTest, TheServerIsSentTheRegisteredMessageWithTheNumberOfTheBlocksName) {
    Open();
    EXPECT_EQ(fakeTransport.lastWindow, kFakeWindow);
    EXPECT_EQ(fakeTransport.lastMessage, kFakeMessage);
    EXPECT_EQ(fakeTransport.lastNumber, kFakeName);
}

TEST_F(LinkIpcTest, AnOpenLinkIsNotOpenedAgain) {
    Open();
    EXPECT_EQ(Open(), IpcError::AlreadyOpen);
    EXPECT_NE(ipc.view, nullptr);
    EXPECT_EQ(ipc.opens, 1u);
}

TEST_F(LinkIpcTest, WithoutAWindowNothingIsTried) {
    fakeTransport.windows.clear();
    EXPECT_EQ(Open(), IpcError::NoServer);
    EXPECT_EQ(fakeTransport.windowSearches, 2);
    EXPECT_TRUE(fakeTransport.messages.empty());
    EXPECT_EQ(ipc.opens, 0u);
}

TEST_F(LinkIpcTest, TheSimulatorsOwnWindowIsTakenInPlaceOfTheInterfaces) {
    fakeTransport.windows = { { "FS98MAIN", 5 } };
    EXPECT_EQ(Open(), IpcError::Okay);
    EXPECT_EQ(ipc.window, 5u);
    EXPECT_TRUE(ipc.foundAsSimulator);
}

TEST_F(LinkIpcTest, TheInterfacesWindowComesFirst) {
    fakeTransport.windows["FS98MAIN"] = 5;
    Open();
    EXPECT_EQ(ipc.window, kFakeWindow);
}

TEST_F(LinkIpcTest, EachStepOfOpeningHasItsError) {
    fakeTransport.noMessage = true;
    EXPECT_EQ(Open(), IpcError::NoMessage);
    EXPECT_EQ(ipc.opens, 0u);
    fakeTransport.noMessage = false;
    fakeTransport.noName = true;
    EXPECT_EQ(Open(), IpcError::NoAtom);
    fakeTransport.noName = false;
    fakeTransport.noBlock = true;
    EXPECT_EQ(Open(), IpcError::NoMapping);
    fakeTransport.noBlock = false;
    fakeTransport.noView = true;
    EXPECT_EQ(Open(), IpcError::NoView);
    EXPECT_EQ(fakeTransport.sends, 0);
    EXPECT_EQ(ipc.opens, 3u);
    EXPECT_EQ(ipc.message, 0u);
}

TEST_F(LinkIpcTest, TheBlocksNameHasTheProcessAndTheCountInCapitalHexadecimal) {
    ipc.opens = 0x1E;
    Open();
    IpcClose();
    Open();
    EXPECT_EQ(fakeTransport.names, (std::vector<std::string>{ "FsasmLib:IPC:ABC:1F", "FsasmLib:IPC:ABC:20" }));
}

TEST_F(LinkIpcTest, AnInterfaceThatDoesNotKnowItsVersionsIsAskedFiveTimes) {
    PutValue(&fakeTransport.simulator, 0x3304, 0, 4);
    EXPECT_EQ(Open(), IpcError::WrongServer);
    EXPECT_EQ(fakeTransport.sends, 5);
    EXPECT_EQ(fakeTransport.pauses, (std::vector<uint32_t>{ 100, 100, 100, 100 }));
    EXPECT_EQ(fakeTransport.simulator.writes, std::vector<uint32_t>{ 0x330A }) << "our version only goes out once";
}

TEST_F(LinkIpcTest, AsSoonAsBothVersionsAreThereTheyAreJudged) {
    PutValue(&fakeTransport.simulator, 0x3308, 0, 4);
    fakeTransport.answer = [](uint8_t* block) {
        if (fakeTransport.sends == 3) PutValue(&fakeTransport.simulator, 0x3308, 0xFADE0006, 4);
        return ServeBlock(block);
    };
    EXPECT_EQ(Open(), IpcError::Okay);
    EXPECT_EQ(fakeTransport.sends, 3);
    EXPECT_EQ(ipc.simulatorVersion, 6u);
}

TEST_F(LinkIpcTest, AnOldInterfaceIsRefused) {
    PutValue(&fakeTransport.simulator, 0x3304, 0x19980004, 4);
    EXPECT_EQ(Open(), IpcError::WrongServer);
    EXPECT_EQ(ipc.view, nullptr);
    EXPECT_EQ(fakeTransport.sends, 1);
}

TEST_F(LinkIpcTest, ASimulatorWithoutItsMarkIsRefused) {
    PutValue(&fakeTransport.simulator, 0x3308, 0xFADD0007, 4);
    EXPECT_EQ(Open(), IpcError::WrongServer);
}

TEST_F(LinkIpcTest, BehindTheSimulatorsWindowTheErrorIsAnother) {
    fakeTransport.windows = { { "FS98MAIN", 5 } };
    PutValue(&fakeTransport.simulator, 0x3304, 1, 4);
    EXPECT_EQ(Open(), IpcError::NotOnServer);
}

TEST_F(LinkIpcTest, OnlyTheRequestedSimulatorIsAccepted) {
    EXPECT_EQ(Open(6), IpcError::WrongSimulator);
    EXPECT_EQ(ipc.view, nullptr);
    EXPECT_EQ(Open(7), IpcError::Okay);
}

TEST_F(LinkIpcTest, AFailedRequestFailsTheOpenWithItsError) {
    fakeTransport.answer = [](uint8_t*) { return Sent{ true, 0, 0 }; };
    EXPECT_EQ(Open(), IpcError::BadData);
    EXPECT_EQ(ipc.view, nullptr);
    EXPECT_EQ(fakeTransport.sends, 1);
}

TEST_F(LinkIpcTest, NothingGoesWithoutAnOpenLink) {
    uint32_t value = 0;
    EXPECT_EQ(Read(0x20, 4, &value), IpcError::NotOpen);
    EXPECT_EQ(Write(0x20, 4, &value), IpcError::NotOpen);
    EXPECT_EQ(Process(), IpcError::NotOpen);
    IpcClose();
    IpcClose();
}

TEST_F(LinkIpcTest, AnEmptyQueueIsNotSent) {
    Open();
    const int sends = fakeTransport.sends;
    EXPECT_EQ(Process(), IpcError::NothingQueued);
    EXPECT_EQ(fakeTransport.sends, sends);
}

TEST_F(LinkIpcTest, RequestsLieInTheBlockAsTheServerExpectsThem) {
    Open();
    uint32_t value = 0;
    const uint8_t bytes[3] = { 1, 2, 3 };
    fakeTransport.block[16] = 9;  // left from before
    Read(0x560, 4, &value);
    Write(0x5DC, 3, bytes);
    EXPECT_EQ(BlockWord(0), 1u);
    EXPECT_EQ(BlockWord(4), 0x560u);
    EXPECT_EQ(BlockWord(8), 4u);
    EXPECT_NE(BlockWord(12), 0u);
    EXPECT_EQ(BlockWord(16), 0u) << "room for the answer is zeroed";
    EXPECT_EQ(BlockWord(20), 2u);
    EXPECT_EQ(BlockWord(24), 0x5DCu);
    EXPECT_EQ(BlockWord(28), 3u);
    EXPECT_EQ(fakeTransport.block[32], 1);
    EXPECT_EQ(fakeTransport.block[34], 3);
    EXPECT_EQ(ipc.queued, 35u);
    Process();
    EXPECT_EQ(BlockWord(35), 0u) << "the list ends with a zero";
}

TEST_F(LinkIpcTest, AReadThatFillsTheQueueFitsAndOneByteMoreDoesNot) {
    Open();
    std::vector<uint8_t> data(32493);
    EXPECT_EQ(Read(0, 32493, data.data()), IpcError::QueueFull);
    EXPECT_EQ(ipc.queued, 0u);
    EXPECT_EQ(Read(0, 32492, data.data()), IpcError::Okay);
    EXPECT_EQ(Process(), IpcError::Okay);
    EXPECT_TRUE(IsGuardWhole());
}

TEST_F(LinkIpcTest, AWriteThatFillsTheQueueFitsAndOneByteMoreDoesNot) {
    Open();
    const std::vector<uint8_t> data(32497, 7);
    EXPECT_EQ(Write(0, 32497, data.data()), IpcError::QueueFull);
    EXPECT_EQ(Write(0, 32496, data.data()), IpcError::Okay);
    EXPECT_EQ(Write(0, 0, nullptr), IpcError::QueueFull);
    EXPECT_EQ(Process(), IpcError::Okay);
    EXPECT_TRUE(IsGuardWhole());
}

TEST_F(LinkIpcTest, ASizeBeyondAllBoundsIsRefused) {
    Open();
    uint32_t value = 0;
    EXPECT_EQ(Read(0, 0xFFFFFFF0, &value), IpcError::QueueFull);
    EXPECT_EQ(Write(0, 0xFFFFFFFF, &value), IpcError::QueueFull);
}

TEST_F(LinkIpcTest, AnswersReachTheirDestinations) {
    Open();
    PutValue(&fakeTransport.simulator, 0x560, 0x1122334455667788, 8);
    PutValue(&fakeTransport.simulator, 0x580, 0xAABBCCDD, 4);
    uint64_t latitude = 0;
    uint32_t heading = 0;
    uint16_t one = 1;
    Read(0x560, 8, &latitude);
    Write(0x5DC, 2, &one);
    Read(0x100, 4, nullptr);
    Read(0x100, 0, &heading);
    Read(0x580, 4, &heading);
    EXPECT_EQ(Process(), IpcError::Okay);
    EXPECT_EQ(latitude, 0x1122334455667788u);
    EXPECT_EQ(heading, 0xAABBCCDDu);
    EXPECT_EQ(ValueAt(fakeTransport.simulator, 0x5DC, 2), 1u);
    EXPECT_EQ(ipc.queued, 0u);
    EXPECT_EQ(Process(), IpcError::NothingQueued) << "the queue is empty again";
}

TEST_F(LinkIpcTest, ASendThatFailsIsTriedNineTimes) {
    Open();
    fakeTransport.sends = 0;
    fakeTransport.answer = [](uint8_t*) { return TimesOut(); };
    uint32_t value = 5;
    Read(0x20, 4, &value);
    EXPECT_EQ(Process(), IpcError::SendFailed);
    EXPECT_EQ(fakeTransport.sends, 9);
    EXPECT_EQ(fakeTransport.lastTimeout, 2000u);
    EXPECT_EQ(fakeTransport.pauses, std::vector<uint32_t>(8, 100));
    EXPECT_EQ(value, 5u);
}

TEST_F(LinkIpcTest, AFailureWithoutAReasonIsATimeOut) {
    Open();
    fakeTransport.answer = [](uint8_t*) { return Sent{}; };
    uint32_t value = 0;
    Read(0x20, 4, &value);
    EXPECT_EQ(Process(), IpcError::TimedOut);
}

TEST_F(LinkIpcTest, ALaterTryMaySucceed) {
    Open();
    fakeTransport.sends = 0;
    PutValue(&fakeTransport.simulator, 0x20, 42, 4);
    fakeTransport.answer = [](uint8_t* block) { return fakeTransport.sends < 9 ? TimesOut() : ServeBlock(block); };
    uint32_t value = 0;
    Read(0x20, 4, &value);
    EXPECT_EQ(Process(), IpcError::Okay);
    EXPECT_EQ(value, 42u);
}

TEST_F(LinkIpcTest, AnyAnswerButOneIsBadDataAndNotTriedAgain) {
    for (uint64_t answer : { uint64_t{ 0 }, uint64_t{ 2 }, uint64_t{ 0x100000001 } }) {
        Open();
        fakeTransport.sends = 0;
        fakeTransport.answer = [answer](uint8_t*) { return Sent{ true, answer, 0 }; };
        uint32_t value = 5;
        Read(0x20, 4, &value);
        EXPECT_EQ(Process(), IpcError::BadData);
        EXPECT_EQ(fakeTransport.sends, 1);
        EXPECT_EQ(value, 5u);
        IpcClose();
        fakeTransport.answer = nullptr;
    }
}

TEST_F(LinkIpcTest, AZeroOrAnUnknownTypeEndsTheWalk) {
    for (uint32_t type : { 0u, 3u, 0xFFFFFFFFu }) {
        ResetTransport();
        Open();
        uint32_t first = 5, second = 6;
        Read(0x20, 4, &first);
        Read(0x20, 4, &second);
        EXPECT_EQ(ProcessSpoiled(20, type), IpcError::Okay);
        EXPECT_EQ(first, 0u);
        EXPECT_EQ(second, 6u) << "left as it was";
    }
}

TEST_F(LinkIpcTest, AHeaderThatCameBackChangedIsBadData) {
    struct {
        size_t place;
        uint32_t value;
    } const rows[] = {
        { 0, 2 },  { 8, 5 },  { 8, 0 },           { 8, 0x7FFFFFFF },  { 8, 0xFFFFFFFF },
        { 12, 0 }, { 12, 2 }, { 12, 0xDEADBEEF }, { 28, 0x00010000 }, { 20, 1 },
    };
    for (const auto& row : rows) {
        ResetTransport();
        Open();
        struct {
            uint32_t before = 11, value = 5, after = 12;
        } place;
        const uint32_t written = 3;
        Read(0x20, 4, &place.value);
        Write(0x24, 4, &written);
        EXPECT_EQ(ProcessSpoiled(row.place, row.value), IpcError::BadData) << row.place << ' ' << row.value;
        EXPECT_EQ(place.before, 11u);
        EXPECT_EQ(place.after, 12u);
        IpcClose();
    }
}

TEST_F(LinkIpcTest, NoTwoRequestsShareAToken) {
    Open();
    uint32_t a = 1, b = 2;
    Read(0x20, 4, &a);
    Read(0x24, 4, &b);
    fakeTransport.answer = [](uint8_t* block) {
        const Sent sent = ServeBlock(block);
        const uint32_t first = BlockWord(12), second = BlockWord(32);
        SetBlockWord(12, second);
        SetBlockWord(32, first);
        return sent;
    };
    EXPECT_EQ(Process(), IpcError::BadData);
    EXPECT_EQ(a, 1u);
    EXPECT_EQ(b, 2u);
}

TEST_F(LinkIpcTest, ClosingForgetsWhatWasQueued) {
    Open();
    uint32_t value = 0;
    Read(0x20, 4, &value);
    IpcClose();
    Open();
    EXPECT_EQ(Process(), IpcError::NothingQueued);
}

}  // namespace
