// ToolbarWin.h - the rebar above the map and the two toolbars in it.
#pragma once

#include <windows.h>

namespace app {

// Makes the rebar, a child of the main window, which gets the toolbars' commands and tooltip questions. Null when
// that fails.
HWND CreateToolbars(HWND mainWindow, int dpi);

// Buttons, boxes and pictures for another resolution.
void ScaleToolbars(int dpi);

// Lays out the toolbars for the width of the window: beside each other, below each other, or in several rows each.
void FitToolbars(int width);

// The buttons show again which commands are enabled and which tool is active, the boxes what is current.
void ShowToolbarStates();

}  // namespace app
