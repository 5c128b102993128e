// CanvasSvg.h - a canvas that writes a picture as SVG, for the command line tool and for documentation.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/Canvas.h"

namespace platform {

// The whole document, UTF-8, of a picture of width x height pixels that `paint` has drawn.
std::string SvgDocument(int32_t width, int32_t height, const std::function<void(Canvas*)>& paint);

}  // namespace platform
