// FakeSimulator.h - the simulator's end of the link: values at numbered places, read and written through a shared block.
//
// Serves the unit tests in process and the stand-in program of the user-interface tests.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

struct FakeSimulator {
    std::vector<uint8_t> memory;
    uint16_t clientVersion = 0;    // where it belongs it would lie upon the simulator's own version
    int requests = 0;              // reads and writes answered so far
    int stopAfter = -1;            // of the next block, then the server gives up; -1 answers all
    std::vector<uint32_t> writes;  // the offsets written to, in order
};

constexpr uint32_t kFakeMemory = 65536;

// A healthy simulator: its versions, 56 free slots for hot keys, an aircraft at 0 N 0 E.
FakeSimulator HealthySimulator();

// Answers the requests of a block in place. False when the list is not one.
bool Serve(FakeSimulator* simulator, uint8_t* block, size_t size);

void PutValue(FakeSimulator* simulator, uint32_t offset, uint64_t value, size_t size);
uint64_t ValueAt(const FakeSimulator& simulator, uint32_t offset, size_t size);
void PutAircraft(FakeSimulator* simulator, int64_t latitude, int64_t longitude, uint32_t heading);

// As a pressed hot key shows in its slot, 1 to 56.
uint32_t SlotValue(const FakeSimulator& simulator, uint32_t slot);
void PutSlot(FakeSimulator* simulator, uint32_t slot, uint32_t value);
void PressSlot(FakeSimulator* simulator, uint32_t slot);
