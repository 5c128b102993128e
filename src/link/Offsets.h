// Offsets.h - the simulator's numbered values that the link uses.
#pragma once

#include <cstdint>

namespace simlink {

constexpr uint32_t kGroundOffset = 0x0020;     // 4, read with the rest of a poll
constexpr uint32_t kLatitudeOffset = 0x0560;   // 8
constexpr uint32_t kLongitudeOffset = 0x0568;  // 8
constexpr uint32_t kAltitudeOffset = 0x0570;   // 8
constexpr uint32_t kHeadingOffset = 0x0580;    // 4

constexpr uint32_t kSlewModeOffset = 0x05DC;  // 2
constexpr uint32_t kSlewMotionA = 0x05E4;     // 2, the rates of slewing
constexpr uint32_t kSlewMotionB = 0x05E6;     // 2
constexpr uint32_t kSlewMotionC = 0x05EB;     // 1
constexpr uint32_t kSlewMotionD = 0x05ED;     // 1

constexpr uint32_t kHotKeyTable = 0x320C;  // 228: a count, then the slots
constexpr uint32_t kHotKeySlots = 56;
constexpr uint32_t SlotOffset(uint32_t slot) { return 0x3210 + 4 * (slot - 1); }  // slot 1 to 56

constexpr uint32_t kInterfaceVersionOffset = 0x3304;  // 4
constexpr uint32_t kSimulatorVersionOffset = 0x3308;  // 4
constexpr uint32_t kClientVersionOffset = 0x330A;     // 2, only ever written

}  // namespace simlink
