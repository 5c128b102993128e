// ToolbarWin.h - the rebar above the map and the toolbar in it.
#pragma once

#include <windows.h>

namespace app {

// Makes the rebar, a child of the main window, which gets the toolbar's commands and tooltip questions. Null when
// that fails.
HWND CreateToolbars(HWND mainWindow, int dpi);

// Buttons and pictures for another resolution.
void ScaleToolbars(int dpi);

// The buttons show again which commands are enabled and which tool is active.
void ShowToolbarStates();

}  // namespace app
