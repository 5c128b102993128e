// SessionWin.h - what reaches the main window from outside: timers, dropped files, the end of the Windows session.
#pragma once

#include <windows.h>

#include <shellapi.h>

namespace app {

// Timers, and files may be dropped. Once the window is made. False without the timers: no backup would ever be written.
bool OpenSession(HWND window);

void OnTimer(WPARAM timer);
void OnDroppedFiles(HWND window, HDROP drop);

// WM_QUERYENDSESSION and WM_ENDSESSION with their parameters.
bool OnQueryEndSession(HWND window, LPARAM reason);
void OnEndSession(bool ends, LPARAM reason);

// The close message: ends the program unless the user wants to go on.
void OnClose(HWND window);

}  // namespace app
