// ProgramParts.h - the parts of the main window: map, toolbars, status bar, and how to work on the map.
#pragma once

#include <windows.h>

#include <commctrl.h>
#include <string>

#include "Resource.h"
#include "UiControls.h"
#include "UiDriver.h"
#include "UiInput.h"

namespace ui {

inline HWND ChildOfClass(HWND parent, const wchar_t* className) {
    for (HWND child : Children(parent)) {
        if (ClassOf(child) == className) return child;
    }
    return nullptr;
}

inline HWND ToolbarOf(HWND mainWindow) { return ChildWithId(mainWindow, IDC_FIRST_TOOLBAR); }
inline HWND SecondToolbarOf(HWND mainWindow) { return ChildWithId(mainWindow, IDC_SECOND_TOOLBAR); }

// The toolbar that has the button.
inline HWND ToolbarWith(HWND mainWindow, int id) {
    const HWND first = ToolbarOf(mainWindow);
    return ToolButtonState(first, id) >= 0 ? first : SecondToolbarOf(mainWindow);
}

inline HWND StatusBarOf(HWND mainWindow) { return ChildOfClass(mainWindow, STATUSCLASSNAMEW); }

// What can be seen of the map, in client coordinates of the main window: between the toolbars and the status bar.
inline RECT MapArea(HWND mainWindow) {
    RECT area{}, bar{};
    GetClientRect(mainWindow, &area);
    GetWindowRect(ChildOfClass(mainWindow, REBARCLASSNAMEW), &bar);
    area.top += bar.bottom - bar.top;
    GetWindowRect(StatusBarOf(mainWindow), &bar);
    area.bottom -= bar.bottom - bar.top;
    return area;
}

// The place that the view looks at: the map has the whole client area.
inline POINT MapMiddle(HWND mainWindow) {
    RECT client{};
    GetClientRect(mainWindow, &client);
    return { client.right / 2, client.bottom / 2 };
}

inline int MapHeight(HWND mainWindow) {
    RECT client{};
    GetClientRect(mainWindow, &client);
    return client.bottom;
}

enum StatusPart { kPositionPart, kDistancePart, kAnglePart, kSimulatorPart, kNoticePart };

inline std::wstring RotationText(HWND mainWindow) { return TextOf(ChildWithId(mainWindow, IDC_ROTATION)); }

inline std::wstring StatusText(HWND mainWindow, StatusPart part) {
    const HWND bar = StatusBarOf(mainWindow);
    const size_t length = LOWORD(SendMessageW(bar, SB_GETTEXTLENGTHW, part, 0));
    std::wstring text(length + 1, L'\0');
    const RemoteMemory memory(bar, text.size() * sizeof(wchar_t));
    SendMessageW(bar, SB_GETTEXTW, part, reinterpret_cast<LPARAM>(memory.address));
    memory.Get(text.data(), text.size() * sizeof(wchar_t));
    text.resize(length);
    return text;
}

// The position that is read out when the pointer is so many pixels right of the middle of the map.
inline std::wstring PositionBeside(HWND mainWindow, int dx) {
    const POINT middle = MapMiddle(mainWindow);
    SendMouse(mainWindow, WM_MOUSEMOVE, middle.x + dx, middle.y);
    return StatusText(mainWindow, kPositionPart);
}

// Presses a toolbar button as the mouse does: a greyed one then does nothing.
inline void ClickToolButton(HWND mainWindow, int id) {
    const HWND toolbar = ToolbarWith(mainWindow, id);
    const RECT button = ToolButtonRect(toolbar, id);
    SendClick(toolbar, (button.left + button.right) / 2, (button.top + button.bottom) / 2);
    Settle(mainWindow);
}

inline Picture GrabMap(HWND mainWindow) {
    BringToFront(mainWindow);
    ParkPointer();
    return GrabStable([&] { return GrabClient(mainWindow); });
}

inline uint32_t PixelAt(const Picture& picture, int x, int y) {
    return picture.pixels[static_cast<size_t>(y) * static_cast<size_t>(picture.width) + static_cast<size_t>(x)];
}

// How many pixels of the map have that colour, 0x00RRGGBB.
inline int CountColour(const Picture& picture, const RECT& area, uint32_t colour) {
    int count = 0;
    for (int y = area.top; y < area.bottom && y < picture.height; ++y) {
        for (int x = area.left; x < area.right && x < picture.width; ++x) count += PixelAt(picture, x, y) == colour;
    }
    return count;
}

// The same around a pixel. What is placed there by a click lies up to a pixel beside it: positions are kept in steps.
inline int CountColourAround(const Picture& picture, POINT at, uint32_t colour) {
    constexpr int kReach = 3;
    return CountColour(picture, { at.x - kReach, at.y - kReach, at.x + kReach + 1, at.y + kReach + 1 }, colour);
}

// Ground without anything on it: the corner of the map, after zooming out far enough to leave the airport behind.
inline POINT GoToEmptyGround(HWND mainWindow) {
    const RECT area = MapArea(mainWindow);
    const POINT middle = MapMiddle(mainWindow);
    SendWheel(mainWindow, middle.x, middle.y, -6 * 120);
    Settle(mainWindow);
    return { area.left + 37, area.top + 41 };
}

// One node by the toolbar's button and a click: the airport is modified from then on.
inline POINT CreateNode(HWND mainWindow, int button) {
    ClickToolButton(mainWindow, button);
    const POINT at = GoToEmptyGround(mainWindow);
    SendClick(mainWindow, at.x, at.y);
    Settle(mainWindow);
    return at;
}

}  // namespace ui
