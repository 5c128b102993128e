// CanvasGdiWin.h - a canvas on a GDI device context: the off-screen bitmap, the window, the printer.
#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "platform/Canvas.h"

namespace platform {

struct GdiTarget {
    HDC dc = nullptr;
    double textScale = 1;  // of font heights: the resolution of the monitor
    HPEN pen = nullptr;    // owned; null while a stock pen is selected
    HBRUSH brush = nullptr;
    HGDIOBJ firstPen = nullptr, firstBrush = nullptr, firstFont = nullptr;  // what was selected before
    int penWidth = 1;
    Colour penColour = 0;
    bool hasPen = true, hasBrush = true;
    std::vector<HRGN> clips;  // owned; the clips in force before each push, null for none
};

struct GdiCanvas {
    std::unique_ptr<GdiTarget> target;  // stays where it is: the canvas points to it
    Canvas canvas;
};

GdiCanvas OpenGdiCanvas(HDC dc, double textScale);

// Gives the device context back as it was; every pen, brush and region of ours is gone.
void CloseGdiCanvas(GdiCanvas* gdi);

// A bitmap to draw on whose pixels can be read, 0x00RRGGBB, top row first. The handle is the caller's; null when the
// system has no memory for it. GdiFlush before reading.
struct PixelBitmap {
    HBITMAP handle = nullptr;
    uint32_t* pixels = nullptr;
};
PixelBitmap MakePixelBitmap(int width, int height);

// Frees the fonts that the canvases share; when the program ends or the resolution changes.
void FreeGdiFonts();

}  // namespace platform
