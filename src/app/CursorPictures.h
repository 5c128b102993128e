// CursorPictures.h - the pictures of the mouse pointer for the map's tools: a cross with what the tool places beside it.
#pragma once

#include <array>
#include <cstdint>

#include "map/ToolCursor.h"

namespace app {

constexpr int kCursorSize = 32;  // pixels, both ways

struct CursorPicture {
    int hotX = 0, hotY = 0;
    std::array<uint32_t, kCursorSize * kCursorSize> pixels{};  // 0xAARRGGBB, rows from the top
};

// Whether the shape has a picture of its own; the others are the system's arrow, hand and move cursors.
bool HasCursorPicture(map::CursorShape shape);

// Dark lines on light ground by day, the other way round by night.
CursorPicture DrawCursor(map::CursorShape shape, bool night);

}  // namespace app
