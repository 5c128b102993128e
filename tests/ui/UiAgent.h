// UiAgent.h - what agent.dll, inside the program under test, answers to the driver.
//
// Menus, key states and icons belong to the process that made them: asked from another process they show nothing
// (menus under Wine) or another handle (icons). A thread hook therefore loads agent.dll into the program, where a
// hidden window of class kAgentClass, titled with the process id, answers the messages below.
#pragma once

#include <windows.h>

namespace ui {

constexpr wchar_t kAgentClass[] = L"TarvoUiAgent";

enum AgentMessage : UINT {
    kAgentMenuState = WM_APP + 1,  // wParam command, lParam main window -> GetMenuState, 0xFFFFFFFF when absent
    kAgentMenuDump,                // wParam main window, lParam buffer of kAgentBufferBytes -> characters written
    kAgentKeyState,                // wParam key -> GetKeyState
    kAgentSetKey,                  // wParam key, lParam state byte: as if the key were held from now on
    kAgentIcon,                    // wParam HICON -> which stock icon it is (IDI_...), 0 none
    kAgentFocus,                   // -> window with the focus
    kAgentCursor,                  // -> which stock cursor is set now (IDC_...), 0 none of them
    kAgentHotSpot,                 // -> hot spot of the cursor that is set now, x in the low word, y in the high one
    kAgentGdiObjects,              // -> how many GDI objects the program has
    kAgentUserObjects,             // -> how many windows, menus, icons and cursors
    kAgentMark,                    // posted: counted when its turn comes
    kAgentMarks,                   // -> how many marks have been counted
    kAgentDrop,                    // wParam main window, lParam path: as if that file were dropped on it
    kAgentCatch,                   // wParam: from now on commands are caught on their way (1) or obeyed (0)
    kAgentEndTimer,                // wParam timer, lParam window -> whether it ran; it runs no more
    kAgentCaught,                  // -> the command caught last, 0 none; forgets it
    kAgentShow,                    // lParam window: paints what is to be painted of it and brings it onto the screen
    kAgentMouse,                   // wParam count, lParam MouseMessage[]: sent one after the other, nothing between
};

struct MouseMessage {
    HWND window;
    UINT message;
    WPARAM keys;
    LPARAM point;
};

constexpr UINT kAgentBufferBytes = 131072;

// Fields of one line of the menu dump: depth, id, state, type, text. A line ends with '\n'.
constexpr wchar_t kAgentFieldSeparator = L'\x1f';

}  // namespace ui
