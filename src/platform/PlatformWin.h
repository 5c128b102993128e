// PlatformWin.h - what the Win32 shell adds to Platform.h.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "platform/Platform.h"

namespace platform {

// The window that owns message boxes and is repainted; null when there is none.
void UseMainWindow(HWND window);
HWND MainWindow();

// What a dialog or a box opens over: the dialog that is open last, else the main window.
HWND OwnerOfDialogs();

// While it lives, the program's windows take no input, but for the two: something modal is open. Windows itself only
// disables the owner of a modal dialog, not what stands beside it.
struct OthersDisabled {
    OthersDisabled(HWND keep, HWND keepToo);
    ~OthersDisabled();
    OthersDisabled(const OthersDisabled&) = delete;
    OthersDisabled& operator=(const OthersDisabled&) = delete;
    std::vector<HWND> disabled;
};

// For the paint: whether a repaint was requested since the last call. Without, the window was only uncovered.
bool TakeRepaintRequest();

// A message box with a title of its own.
Answer ShowTitledMessage(std::string_view title, std::string_view text, Buttons buttons, Icon icon);

// A font of the system's own windows, for that resolution; null when there is none. The caller deletes it.
enum class SystemFont { Message, StatusBar };
HFONT MakeSystemFont(SystemFont font, int dpi);

int DpiOf(HWND window);                   // 96 is 100 %
int ScaleToDpi(int pixelsAt96, int dpi);  // rounded

}  // namespace platform
