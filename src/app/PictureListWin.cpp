// PictureListWin.cpp - see PictureListWin.h.
//
// GDI knows no soft edges. Each picture is therefore drawn several times too large, once on black and once on white: the
// difference of the two tells how much of the ground shows through, and the mean of a block is the pixel.
#include "app/PictureListWin.h"

#include <array>
#include <cstdint>
#include <vector>

#include "app/Toolbar.h"
#include "platform/CanvasGdiWin.h"
#include "platform/PlatformWin.h"

namespace app {

namespace {

// Of 0xAARRGGBB pixels.
struct Bitmap {
    int width = 0, height = 0;
    HBITMAP handle = nullptr;
    uint32_t* pixels = nullptr;
};

Bitmap MakeBitmap(int width, int height) {
    const platform::PixelBitmap made = platform::MakePixelBitmap(width, height);
    return { width, height, made.handle, made.pixels };
}

void DrawOn(const Bitmap& bitmap, ToolPicture picture, int unit, int ground) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ before = SelectObject(dc, bitmap.handle);
    const RECT all = { 0, 0, bitmap.width, bitmap.height };
    FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(ground)));
    platform::GdiCanvas gdi = platform::OpenGdiCanvas(dc, 1);
    DrawToolPicture(&gdi.canvas, picture, unit);
    platform::CloseGdiCanvas(&gdi);
    GdiFlush();
    SelectObject(dc, before);
    DeleteDC(dc);
}

struct Sums {
    std::array<uint32_t, 3> onBlack{}, onWhite{};
    uint32_t count = 0;
};

Sums SumBlock(const Bitmap& black, const Bitmap& white, const RECT& block) {
    Sums sums;
    for (LONG y = block.top; y < block.bottom; ++y) {
        for (LONG x = block.left; x < block.right; ++x) {
            const auto index = static_cast<size_t>(y) * static_cast<size_t>(black.width) + static_cast<size_t>(x);
            for (size_t channel = 0; channel < 3; ++channel) {
                sums.onBlack[channel] += black.pixels[index] >> (8 * channel) & 0xFF;
                sums.onWhite[channel] += white.pixels[index] >> (8 * channel) & 0xFF;
            }
            ++sums.count;
        }
    }
    return sums;
}

// One pixel of the small picture, colours not multiplied by the alpha.
uint32_t PixelFrom(const Sums& sums, bool disabled) {
    const uint32_t full = sums.count * 255;
    const uint32_t alpha = full - (sums.onWhite[1] - sums.onBlack[1]);  // the sum of the coverage
    if (alpha == 0) return 0;
    std::array<uint32_t, 3> colour;
    for (size_t channel = 0; channel < 3; ++channel) colour[channel] = sums.onBlack[channel] * 255 / alpha;
    if (!disabled) return (alpha / sums.count) << 24 | colour[2] << 16 | colour[1] << 8 | colour[0];
    const uint32_t grey = (colour[2] * 30 + colour[1] * 59 + colour[0] * 11) / 100;
    return (alpha * 2 / 5 / sums.count) << 24 | grey * 0x010101;
}

// The big pictures' blocks become the pixels of the small one.
void Shrink(const Bitmap& black, const Bitmap& white, bool disabled, const Bitmap& small) {
    for (int y = 0; y < small.height; ++y) {
        for (int x = 0; x < small.width; ++x) {
            const RECT block = { x * black.width / small.width, y * black.height / small.height,
                                 (x + 1) * black.width / small.width, (y + 1) * black.height / small.height };
            small.pixels[y * small.width + x] = PixelFrom(SumBlock(black, white, block), disabled);
        }
    }
}

// By way of an icon, whose alpha has one meaning on every system.
void AddTo(HIMAGELIST list, const Bitmap& picture) {
    const std::vector<uint8_t> zeros(static_cast<size_t>((picture.width + 15) / 16 * 2 * picture.height));
    ICONINFO icon{};
    icon.fIcon = TRUE;
    icon.hbmColor = picture.handle;
    icon.hbmMask = CreateBitmap(picture.width, picture.height, 1, 1, zeros.data());
    const HICON handle = CreateIconIndirect(&icon);
    ImageList_ReplaceIcon(list, -1, handle);
    DestroyIcon(handle);
    DeleteObject(icon.hbmMask);
}

}  // namespace

PictureLists MakePictureLists(int dpi) {
    const int width = platform::ScaleToDpi(kPictureWidth, dpi), height = platform::ScaleToDpi(kPictureHeight, dpi);
    const int unit = platform::ScaleToDpi(8, dpi);
    const Bitmap black = MakeBitmap(kPictureWidth * unit, kPictureHeight * unit);
    const Bitmap white = MakeBitmap(kPictureWidth * unit, kPictureHeight * unit);
    const Bitmap small = MakeBitmap(width, height);
    PictureLists lists;
    lists.normal = ImageList_Create(width, height, ILC_COLOR32 | ILC_MASK, kToolPictures, 0);
    lists.disabled = ImageList_Create(width, height, ILC_COLOR32 | ILC_MASK, kToolPictures, 0);
    for (int picture = 0; picture < kToolPictures && black.pixels && white.pixels && small.pixels; ++picture) {
        DrawOn(black, static_cast<ToolPicture>(picture), unit, BLACK_BRUSH);
        DrawOn(white, static_cast<ToolPicture>(picture), unit, WHITE_BRUSH);
        Shrink(black, white, false, small);
        AddTo(lists.normal, small);
        Shrink(black, white, true, small);
        AddTo(lists.disabled, small);
    }
    for (const Bitmap& bitmap : { black, white, small }) {
        if (bitmap.handle) DeleteObject(bitmap.handle);
    }
    return lists;
}

void FreePictureLists(const PictureLists& lists) {
    if (lists.normal) ImageList_Destroy(lists.normal);
    if (lists.disabled) ImageList_Destroy(lists.disabled);
}

}  // namespace app
