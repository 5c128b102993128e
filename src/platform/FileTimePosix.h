// FileTimePosix.h - Unix time as the times of Windows, which count 100 ns from 1601.
#pragma once

#include <cstdint>

namespace platform {

inline constexpr uint64_t kUnixEpochAsFileTime = 116444736000000000;  // 1970-01-01

}  // namespace platform
