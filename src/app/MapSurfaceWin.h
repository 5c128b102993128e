// MapSurfaceWin.h - the off-screen bitmap of the map.
#pragma once

#include <windows.h>

namespace app {

// Draws the whole map off screen and copies it into `area` of the window's device context, then draws the feedback of
// the active tool on the window itself.
void PaintMapArea(HDC window, const RECT& area, double textScale);

void FreeMapSurface();

}  // namespace app
