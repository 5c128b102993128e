// MapMouseWin.h - the mouse of the main window, passed on to the map.
#pragma once

#include <windows.h>

namespace app {

// A message of the main window: whether it was one of the mouse and is done with.
bool OnMapMouse(UINT message, WPARAM wParam, LPARAM lParam);

// Shows the cursor of the active tool; false when the pointer is not on the map.
bool OnMapCursor();

// The map has changed, or what a press would do there: another cursor may belong to the pointer though it rests.
void RefreshMapCursor();

}  // namespace app
