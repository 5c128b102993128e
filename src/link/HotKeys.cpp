// HotKeys.cpp - see HotKeys.h.
#include "link/HotKeys.h"

#include "link/Ipc.h"
#include "link/Offsets.h"

namespace simlink {

HotKeyState hotKeys;

namespace {

constexpr uint32_t kCodeBits = 0xFFFFFF;    // what is above them tells of a press
constexpr uint32_t kWatched = 0x10000;      // beside the code of a registered key
constexpr uint32_t kSlotCountLimit = 1000;  // a larger count is no count
constexpr uint32_t kFirstSlot = 1;

using SlotTable = std::array<uint32_t, 1 + kHotKeySlots>;  // the count, then the slots

bool WriteSlot(uint32_t offset, uint32_t value) {
    IpcError error;
    return IpcWrite(offset, sizeof value, &value, &error) && IpcProcess(&error);
}

bool ReadTable(SlotTable* table) {
    IpcError error;
    return IpcRead(kHotKeyTable, sizeof *table, table->data(), &error) && IpcProcess(&error);
}

// A link that broke could not give its slots back. Taking new ones each time would fill the table.
bool FreeLeftSlots(const HotKeyState& before, SlotTable* table) {
    if (before.window != ipc.window) return true;  // another server, another table
    for (const HotKeySlot& slot : before.slots) {
        if (slot.offset == 0) continue;
        uint32_t& entry = (*table)[(slot.offset - SlotOffset(kFirstSlot)) / 4 + 1];
        if ((entry & kCodeBits) != slot.written) continue;
        if (!WriteSlot(slot.offset, 0)) return false;
        entry = 0;
    }
    return true;
}

}  // namespace

bool RegisterHotKeys(const HotKeyCodes& codes) {
    const HotKeyState before = hotKeys;
    SlotTable table{};
    if (!ReadTable(&table)) return false;
    hotKeys = {};
    hotKeys.window = ipc.window;
    if (table[0] < kHotKeySlots || table[0] >= kSlotCountLimit) return true;
    if (!FreeLeftSlots(before, &table)) {
        hotKeys = before;
        return false;
    }
    uint32_t slot = kFirstSlot;
    for (size_t key = 0; key < kHotKeys; ++key, ++slot) {
        while (slot <= kHotKeySlots && table[slot] != 0) ++slot;
        if (slot > kHotKeySlots) break;
        const uint32_t written = codes[key] | kWatched;
        hotKeys.slots[key] = { SlotOffset(slot), written, written };
        if (!WriteSlot(SlotOffset(slot), written)) return false;
    }
    return true;
}

bool HasHotKeys() { return hotKeys.slots[kNodeKey].offset != 0; }

bool UnregisterHotKeys() {
    IpcError error;
    constexpr uint32_t kFree = 0;
    for (HotKeySlot& slot : hotKeys.slots) {
        if (slot.offset != 0 && !IpcWrite(slot.offset, sizeof kFree, &kFree, &error)) return false;
    }
    hotKeys = {};
    return IpcProcess(&error);
}

bool IsPressed(const HotKeySlot& slot) { return slot.offset != 0 && slot.value > kCodeBits; }

bool AcknowledgeHotKey(HotKeySlot* slot) {
    slot->value &= kCodeBits;
    return WriteSlot(slot->offset, slot->value);
}

}  // namespace simlink
