// FakeSimulator.cpp - see FakeSimulator.h.
#include "FakeSimulator.h"

namespace {

constexpr uint32_t kClientVersion = 0x330A, kSlots = 0x3210, kSlotCount = 0x320C;

uint32_t Word(const uint8_t* at) {
    uint32_t value;
    std::memcpy(&value, at, sizeof value);
    return value;
}

bool Answer(FakeSimulator* simulator, uint32_t type, uint32_t offset, uint32_t size, uint8_t* data) {
    if (offset > kFakeMemory || size > kFakeMemory - offset) return false;
    ++simulator->requests;
    if (size == 0) return true;
    if (type == 1) {
        std::memcpy(data, simulator->memory.data() + offset, size);
        return true;
    }
    simulator->writes.push_back(offset);
    if (offset == kClientVersion && size == sizeof simulator->clientVersion)
        std::memcpy(&simulator->clientVersion, data, size);
    else
        std::memcpy(simulator->memory.data() + offset, data, size);
    return true;
}

}  // namespace

FakeSimulator HealthySimulator() {
    FakeSimulator simulator;
    simulator.memory.assign(kFakeMemory, 0);
    PutValue(&simulator, 0x3304, 0x19980005, 4);
    PutValue(&simulator, 0x3308, 0xFADE0007, 4);
    PutValue(&simulator, kSlotCount, 56, 4);
    return simulator;
}

bool Serve(FakeSimulator* simulator, uint8_t* block, size_t size) {
    size_t at = 0;
    for (int served = 0; at + 4 <= size && served != simulator->stopAfter; ++served) {
        const uint32_t type = Word(block + at);
        if (type == 0) return true;
        const size_t header = type == 1 ? 16 : 12;
        if (type > 2 || at + header > size) return false;
        const uint32_t length = Word(block + at + 8);
        if (length > size - at - header) return false;
        if (!Answer(simulator, type, Word(block + at + 4), length, block + at + header)) return false;
        at += header + length;
    }
    return true;
}

void PutValue(FakeSimulator* simulator, uint32_t offset, uint64_t value, size_t size) {
    if (size <= sizeof value && offset <= kFakeMemory - size)
        std::memcpy(simulator->memory.data() + offset, &value, size);
}

uint64_t ValueAt(const FakeSimulator& simulator, uint32_t offset, size_t size) {
    uint64_t value = 0;
    if (size <= sizeof value && offset <= kFakeMemory - size)
        std::memcpy(&value, simulator.memory.data() + offset, size);
    return value;
}

void PutAircraft(FakeSimulator* simulator, int64_t latitude, int64_t longitude, uint32_t heading) {
    PutValue(simulator, 0x0560, static_cast<uint64_t>(latitude), 8);
    PutValue(simulator, 0x0568, static_cast<uint64_t>(longitude), 8);
    PutValue(simulator, 0x0580, heading, 4);
}

uint32_t SlotValue(const FakeSimulator& simulator, uint32_t slot) {
    return static_cast<uint32_t>(ValueAt(simulator, kSlots + 4 * (slot - 1), 4));
}

void PutSlot(FakeSimulator* simulator, uint32_t slot, uint32_t value) {
    PutValue(simulator, kSlots + 4 * (slot - 1), value, 4);
}

void PressSlot(FakeSimulator* simulator, uint32_t slot) {
    PutSlot(simulator, slot, SlotValue(*simulator, slot) | 0x01000000);
}
