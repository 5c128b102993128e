// MapSurfaceWin.cpp - see MapSurfaceWin.h.
//
// The bitmap is kept from one paint to the next and made anew only when the size of the map changes. The window is
// touched once, by the copy, so nothing flickers.
#include "app/MapSurfaceWin.h"

#include "map/MapView.h"
#include "map/PaintMap.h"
#include "platform/CanvasGdiWin.h"

namespace app {

namespace {

struct Surface {
    HDC dc = nullptr;
    HBITMAP bitmap = nullptr;
    HGDIOBJ firstBitmap = nullptr;
    int width = 0, height = 0;
};
Surface surface;

// False when the system has no memory for it; the next paint tries again.
bool PrepareSurface(HDC window, int width, int height) {
    if (surface.bitmap && surface.width == width && surface.height == height) return true;
    FreeMapSurface();
    surface.dc = CreateCompatibleDC(window);
    surface.bitmap = CreateCompatibleBitmap(window, width, height);
    if (!surface.dc || !surface.bitmap) {
        FreeMapSurface();
        return false;
    }
    surface.firstBitmap = SelectObject(surface.dc, surface.bitmap);
    surface.width = width;
    surface.height = height;
    return true;
}

void DrawOffScreen(double textScale) {
    platform::GdiCanvas gdi = platform::OpenGdiCanvas(surface.dc, textScale);
    map::PaintMap(&gdi.canvas);
    platform::CloseGdiCanvas(&gdi);
}

// On the window, but in pixels of the map and nowhere outside it.
void DrawFeedback(HDC window, const RECT& area, double textScale) {
    const int state = SaveDC(window);
    IntersectClipRect(window, area.left, area.top, area.right, area.bottom);
    SetViewportOrgEx(window, area.left, area.top, nullptr);
    platform::GdiCanvas gdi = platform::OpenGdiCanvas(window, textScale);
    map::PaintFeedback(&gdi.canvas);
    platform::CloseGdiCanvas(&gdi);
    RestoreDC(window, state);
}

}  // namespace

void PaintMapArea(HDC window, const RECT& area, double textScale) {
    const int width = area.right - area.left, height = area.bottom - area.top;
    if (width <= 0 || height <= 0 || !PrepareSurface(window, width, height)) return;
    map::ResizeView(width, height);
    DrawOffScreen(textScale);
    BitBlt(window, area.left, area.top, width, height, surface.dc, 0, 0, SRCCOPY);
    DrawFeedback(window, area, textScale);
}

void FreeMapSurface() {
    if (surface.firstBitmap) SelectObject(surface.dc, surface.firstBitmap);
    if (surface.bitmap) DeleteObject(surface.bitmap);
    if (surface.dc) DeleteDC(surface.dc);
    surface = {};
}

}  // namespace app
