// PlatformWin.h - what the Win32 shell adds to Platform.h.
#pragma once

#include <windows.h>

#include <string>

#include "platform/Platform.h"

namespace platform {

// The window that owns message boxes and is repainted; null when there is none.
void UseMainWindow(HWND window);
HWND MainWindow();

// A message box with a title of its own.
Answer ShowTitledMessage(std::string_view title, std::string_view text, Buttons buttons, Icon icon);

int DpiOf(HWND window);                   // 96 is 100 %
int ScaleToDpi(int pixelsAt96, int dpi);  // rounded

}  // namespace platform
