// CursorsWin.cpp - see CursorsWin.h.
#include "app/CursorsWin.h"

#include <cstring>
#include <vector>

#include "app/CursorPictures.h"

namespace app {

namespace {

HCURSOR cursors[map::kCursorShapes][2];  // by shape; day, night
int times = 1;                           // their size

HBITMAP ColourBitmap(const CursorPicture& picture) {
    BITMAPV5HEADER head{};
    head.bV5Size = sizeof head;
    head.bV5Width = kCursorSize * times;
    head.bV5Height = -kCursorSize * times;
    head.bV5Planes = 1;
    head.bV5BitCount = 32;
    head.bV5Compression = BI_BITFIELDS;
    head.bV5RedMask = 0x00FF0000;
    head.bV5GreenMask = 0x0000FF00;
    head.bV5BlueMask = 0x000000FF;
    head.bV5AlphaMask = 0xFF000000;
    void* bits = nullptr;
    const HDC screen = GetDC(nullptr);
    const HBITMAP bitmap =
        CreateDIBSection(screen, reinterpret_cast<const BITMAPINFO*>(&head), DIB_RGB_COLORS, &bits, nullptr, 0);
    ReleaseDC(nullptr, screen);
    const std::vector<uint32_t> pixels = EnlargedPixels(picture, times);
    if (bitmap) std::memcpy(bits, pixels.data(), pixels.size() * sizeof pixels[0]);
    return bitmap;
}

HCURSOR MakeCursor(const CursorPicture& picture) {
    const HBITMAP colour = ColourBitmap(picture);
    const HBITMAP mask = CreateBitmap(kCursorSize * times, kCursorSize * times, 1, 1, nullptr);
    ICONINFO info{};
    info.fIcon = FALSE;
    info.xHotspot = static_cast<DWORD>(picture.hotX * times);
    info.yHotspot = static_cast<DWORD>(picture.hotY * times);
    info.hbmMask = mask;
    info.hbmColor = colour;
    const HCURSOR cursor = colour && mask ? CreateIconIndirect(&info) : nullptr;
    if (colour) DeleteObject(colour);
    if (mask) DeleteObject(mask);
    return cursor;
}

}  // namespace

HCURSOR CursorFor(map::CursorShape shape, bool night, int dpi) {
    if (CursorTimes(dpi) != times) FreeCursors();
    times = CursorTimes(dpi);
    HCURSOR& cursor = cursors[static_cast<int>(shape)][night ? 1 : 0];
    if (!cursor) cursor = MakeCursor(DrawCursor(shape, night));
    return cursor ? cursor : LoadCursorW(nullptr, IDC_ARROW);
}

void FreeCursors() {
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));  // one of them may be set
    for (auto& pair : cursors) {
        for (HCURSOR& cursor : pair) {
            if (cursor) DestroyCursor(cursor);
            cursor = nullptr;
        }
    }
}

}  // namespace app
