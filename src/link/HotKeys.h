// HotKeys.h - keys that the simulator watches for us: each has a slot of the simulator's table.
//
// A slot holds the key's code and, once the key was pressed, something in its top byte, until it is written back.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "link/Transport.h"

namespace simlink {

enum HotKey : size_t { kNodeKey, kParkingKey, kMarkerKey, kHotKeys };

using HotKeyCodes = std::array<uint8_t, kHotKeys>;  // virtual-key codes

struct HotKeySlot {
    uint32_t offset = 0;   // 0 until the key has a slot
    uint32_t written = 0;  // what was registered there
    uint32_t value = 0;    // as last polled
};

struct HotKeyState {
    std::array<HotKeySlot, kHotKeys> slots;
    Handle window = 0;  // the server's that has them
};

extern HotKeyState hotKeys;

// After a fresh open. Keys that find no free slot stay unregistered. False when a request failed.
bool RegisterHotKeys(const HotKeyCodes& codes);

bool UnregisterHotKeys();
bool HasHotKeys();

bool IsPressed(const HotKeySlot& slot);

// Tells the simulator that the press was seen, and forgets it.
bool AcknowledgeHotKey(HotKeySlot* slot);

}  // namespace simlink
