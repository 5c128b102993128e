// PngWin.h - PNG files by the system's own codec.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace platform {

// The file for a picture of 32-bit pixels, 0x00RRGGBB, top row first; width x height of them. False when the system cannot
// make it. COM is initialised on the calling thread.
bool PngFile(std::span<const uint32_t> pixels, uint32_t width, uint32_t height, std::vector<uint8_t>* bytes);

}  // namespace platform
