// SpotBits.h - the fields of a parking spot's packed word (ParkingSpotRecord in Records.h).
#pragma once

#include <cstdint>

#include "model/Records.h"

namespace model {

constexpr uint32_t kParkingNameMask = 0x3F;
constexpr int kParkingPushbackShift = 6;  // two bits, left and right: carried
constexpr int kParkingTypeShift = 8, kParkingNumberShift = 12;
constexpr uint32_t kParkingTypeMask = 0xFu << kParkingTypeShift, kParkingNumberMask = 0xFFFu << kParkingNumberShift;
constexpr int kParkingCountShift = 24;  // of the airline codes that follow

inline uint32_t ParkingNameCode(const ParkingSpotRecord& spot) { return spot.packed & kParkingNameMask; }
inline uint32_t ParkingTypeCode(const ParkingSpotRecord& spot) {
    return (spot.packed & kParkingTypeMask) >> kParkingTypeShift;
}
inline uint32_t ParkingNumber(const ParkingSpotRecord& spot) {
    return (spot.packed & kParkingNumberMask) >> kParkingNumberShift;
}
inline uint32_t ParkingCodeCount(const ParkingSpotRecord& spot) { return spot.packed >> kParkingCountShift; }

}  // namespace model
