// ToolCombosWin.h - the boxes in the toolbars: three combo boxes and the read-out of the rotation.
#pragma once

#include <windows.h>

namespace app {

// Makes the box of that control id and fills it; null when that fails.
HWND CreateToolBox(HWND toolbar, int id);

// The boxes list and show again what is current. Costs little when nothing has changed.
void ShowToolBoxes();
void ShowRotation();

// What the main window hears: a notice of a box (false when it is of none), the timer that an opened list of parking
// specs starts, and the message that the end of typing in the designator box posts.
constexpr UINT kTypingFinished = WM_USER;
bool OnComboNotice(int id, int code);
void OnComboTimer();
void CommitTypedDesignator();

// A press on the map ends what is going on in the boxes; false when that already was what the press did.
bool LeaveToolBoxes();

}  // namespace app
