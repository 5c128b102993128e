// MapSurfaceWin.h - the off-screen bitmap of the map.
#pragma once

#include <windows.h>

namespace app {

// Tells the map the size of the window's client area and what the bars leave of it. An area without pixels is not told.
void MeasureMap(const RECT& client, const RECT& visible);

// Draws the whole map off screen and copies it into the window's device context, then draws the feedback of the active
// tool on the window itself.
void PaintMapArea(HDC window, const RECT& client, const RECT& visible, double textScale);

// Has the window painted again without drawing the map anew.
void RepaintFeedback();

void FreeMapSurface();

}  // namespace app
