// MapSurfaceWin.cpp - see MapSurfaceWin.h.
//
// The bitmap is kept from one paint to the next and made anew only when the size of the map changes. The window is
// touched once, by the copy, so nothing flickers.
#include "app/MapSurfaceWin.h"

#include "map/MapView.h"
#include "map/PaintMap.h"
#include "platform/CanvasGdiWin.h"
#include "platform/PlatformWin.h"

namespace app {

namespace {

struct Surface {
    HDC dc = nullptr;
    HBITMAP bitmap = nullptr;
    HGDIOBJ firstBitmap = nullptr;
    int width = 0, height = 0;
    bool drawn = false;  // holds the map as it was when last asked for
};
Surface surface;

// False when the system has no memory for it; the next paint tries again.
bool PrepareSurface(HDC window, int width, int height) {
    if (surface.bitmap && surface.width == width && surface.height == height) return true;
    FreeMapSurface();
    surface.dc = CreateCompatibleDC(window);
    surface.bitmap = CreateCompatibleBitmap(window, width, height);
    if (surface.dc && surface.bitmap) surface.firstBitmap = SelectObject(surface.dc, surface.bitmap);
    if (!surface.firstBitmap) {
        FreeMapSurface();
        return false;
    }
    surface.width = width;
    surface.height = height;
    return true;
}

void DrawOffScreen(double textScale) {
    platform::GdiCanvas gdi = platform::OpenGdiCanvas(surface.dc, textScale);
    map::PaintMap(&gdi.canvas);
    platform::CloseGdiCanvas(&gdi);
    surface.drawn = true;
}

void DrawFeedback(HDC window, double textScale) {
    const int state = SaveDC(window);
    platform::GdiCanvas gdi = platform::OpenGdiCanvas(window, textScale);
    map::PaintFeedback(&gdi.canvas);
    platform::CloseGdiCanvas(&gdi);
    RestoreDC(window, state);
}

}  // namespace

void MeasureMap(const RECT& client, const RECT& visible) {
    if (client.right <= 0 || client.bottom <= 0) return;
    map::ResizeView(client.right, client.bottom);
    map::SetVisible({ visible.left, visible.top, visible.right, visible.bottom });
}

void PaintMapArea(HDC window, const RECT& client, const RECT& visible, double textScale) {
    if (client.right <= 0 || client.bottom <= 0 || !PrepareSurface(window, client.right, client.bottom)) return;
    MeasureMap(client, visible);
    if (platform::TakeRepaintRequest() || !surface.drawn) DrawOffScreen(textScale);
    BitBlt(window, 0, 0, client.right, client.bottom, surface.dc, 0, 0, SRCCOPY);
    DrawFeedback(window, textScale);
}

void RepaintFeedback() {
    if (platform::MainWindow()) InvalidateRect(platform::MainWindow(), nullptr, FALSE);
}

void FreeMapSurface() {
    if (surface.firstBitmap) SelectObject(surface.dc, surface.firstBitmap);
    if (surface.bitmap) DeleteObject(surface.bitmap);
    if (surface.dc) DeleteDC(surface.dc);
    surface = {};
}

}  // namespace app
