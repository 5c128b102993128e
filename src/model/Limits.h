// Limits.h - how many objects of a kind a scenery file can hold: what its counts and indices have room for.
#pragma once

#include <cstddef>

namespace model {

constexpr size_t kMostNodes = 4096;  // links number their ends with 12 bits
constexpr size_t kMostSpots = 4096;
constexpr size_t kMostDesignators = 256;  // a link names its designator in one byte
constexpr size_t kMostLinks = 65535;
constexpr size_t kMostCounted = 255;       // runways, frequencies, start locations, helipads, aprons: a byte each
constexpr size_t kMostEdgeLights = 65535;  // vertices, and as many edges
constexpr size_t kMostParkingCodes = 255;  // of a spot: the count is one byte

}  // namespace model
