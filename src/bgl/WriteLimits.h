// WriteLimits.h - what a scenery file's fields can hold.
#pragma once

#include <cstddef>
#include <string>

namespace bgl {

constexpr size_t kMostNodes = 4096;  // links number their ends with 12 bits
constexpr size_t kMostSpots = 4096;
constexpr size_t kMostDesignators = 256;
constexpr size_t kMostLinks = 65535;
constexpr size_t kMostCounted = 255;       // runways, frequencies, start locations, helipads, aprons: a byte each
constexpr size_t kMostEdgeLights = 65535;  // vertices, and as many edges
constexpr size_t kMostCells = 8;           // of one section

// Empty when the open airport fits, else the message that says which limit it exceeds.
std::string WhatDoesNotFit();

}  // namespace bgl
