// CursorPictures.h - the pictures of the mouse pointer over the map: arrow, hand and arrows, and for the tools a cross
// with what the tool places beside it.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "map/ToolCursor.h"

namespace app {

constexpr int kCursorSize = 32;  // pixels, both ways

struct CursorPicture {
    int hotX = 0, hotY = 0;
    std::array<uint32_t, kCursorSize * kCursorSize> pixels{};  // 0xAARRGGBB, rows from the top
};

// Dark lines with a light rim by day, the other way round by night.
CursorPicture DrawCursor(map::CursorShape shape, bool night);

int CursorTimes(int dpi);  // how many times its size a picture is shown at that resolution; whole, so that it is sharp

// `times` x kCursorSize pixels, both ways.
std::vector<uint32_t> EnlargedPixels(const CursorPicture& picture, int times);

}  // namespace app
