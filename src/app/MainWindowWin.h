// MainWindowWin.h - the one top-level window.
#pragma once

#include <windows.h>

namespace app {

bool RegisterMainWindow(HINSTANCE instance);
HWND CreateMainWindow(HINSTANCE instance);  // null when that fails

// Where the map lies in the window, in client pixels.
RECT MapArea();

}  // namespace app
