// MapPicture.h - the view as a picture, at the size of the window or several times as fine.
#pragma once

#include <cstdint>

#include "platform/Canvas.h"

namespace map {

constexpr int kMostPictureTimes = 4;

struct PictureSize {
    int32_t width = 0, height = 0;  // pixels
    int times = 1;                  // pixels of the picture to one of the screen, in each direction
};

// The picture of the view as the window shows it now. `times` is from 1 to kMostPictureTimes.
PictureSize PictureSizeOf(int times);

// Paints the picture: all that the view shows at the same place, finer. Text is the canvas's own: its target multiplies
// heights by `times`. The view is as before when it returns.
void PaintPicture(platform::Canvas* canvas, const PictureSize& picture);

}  // namespace map
