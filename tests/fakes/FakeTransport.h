// FakeTransport.h - the link's system as tests see it: a simulator in the same process, and a clock that only moves
// when the link waits.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "FakeSimulator.h"
#include "link/Transport.h"

struct FakeTransport {
    std::map<std::string, simlink::Handle> windows;  // by class
    bool notResponding = false;
    bool noMessage = false, noName = false, noBlock = false, noView = false;  // what fails
    FakeSimulator simulator = HealthySimulator();
    // What happens to a sent message; none: the simulator answers at once.
    std::function<simlink::Sent(uint8_t* block)> answer;

    uint64_t now = 1'000'000;
    std::vector<uint32_t> pauses;
    int sends = 0, windowSearches = 0;
    uint32_t lastTimeout = 0, lastMessage = 0;
    uint16_t lastNumber = 0;
    simlink::Handle lastWindow = 0;
    std::vector<std::string> names;     // every one that was added
    std::vector<std::string> messages;  // every one that was registered

    int openNames = 0, openBlocks = 0, openViews = 0;
    std::vector<uint8_t> block;  // of the open view; larger than asked for, so that an overrun can be seen
};

extern FakeTransport fakeTransport;

constexpr simlink::Handle kFakeWindow = 77;
constexpr uint32_t kFakeMessage = 0xC123;
constexpr uint16_t kFakeName = 0xC456;
constexpr uint8_t kGuardByte = 0xA5;

// A running simulator, and the link closed.
void ResetTransport();

// Nothing was written behind the end of the block.
bool IsGuardWhole();

// The answers of a server in trouble.
simlink::Sent TimesOut();
simlink::Sent ServeBlock(uint8_t* block);  // what a healthy one does
