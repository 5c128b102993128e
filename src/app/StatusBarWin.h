// StatusBarWin.h - the status bar below the map.
#pragma once

#include <windows.h>

#include "platform/Pixel.h"

namespace app {

HWND CreateStatusBar(HWND mainWindow, int dpi);  // null when that fails
void ScaleStatusBar(int dpi);

// Shows the read-outs for the pointer, a pixel of the map.
void ShowStatus(platform::Pixel cursor);

}  // namespace app
