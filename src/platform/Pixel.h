// Pixel.h - whole device pixels, y downward.
#pragma once

#include <cstdint>

namespace platform {

struct Pixel {
    int32_t x = 0, y = 0;
    bool operator==(const Pixel&) const = default;
};

struct PixelRect {
    int32_t left = 0, top = 0, right = 0, bottom = 0;  // right and bottom lie outside
    bool operator==(const PixelRect&) const = default;
};

}  // namespace platform
