// UiInput.h - keys, mouse and pictures.
//
// Two ways to move the mouse: sent messages are exact and enough where the program reads only the message; real
// input also moves the pointer, fills GetKeyState and reaches whatever lies under it.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

namespace ui {

// Sent messages; coordinates are of the client area, `keys` are MK_ flags.
void SendMouse(HWND window, UINT message, int x, int y, WPARAM keys = 0);
void SendClick(HWND window, int x, int y, WPARAM keys = 0);
void SendDrag(HWND window, std::initializer_list<POINT> points, WPARAM keys = 0);
void SendWheel(HWND window, int x, int y, int delta, WPARAM keys = 0);
void PostKey(HWND window, WORD key);  // key down and up through the queue, so accelerators see it

// Real input. The window must be in front.
bool BringToFront(HWND window);
void TapKey(WORD key, std::initializer_list<WORD> modifiers = {});
void TypeText(const std::wstring& text, DWORD apart = 0);  // the keys say that so many milliseconds lie between them
void MovePointer(HWND window, int x, int y);
void MouseButton(DWORD flags, DWORD data = 0);  // MOUSEEVENTF_ flags
void ClickPointer(HWND window, int x, int y);
void DoubleClickPointer(HWND window, int x, int y);
void DragPointer(HWND window, std::initializer_list<POINT> points);
void ParkPointer();  // to the lower right corner: hover looks and tooltips would spoil a picture

struct Picture {
    int width = 0, height = 0;
    std::vector<uint32_t> pixels;  // 0x00RRGGBB, top row first
};
// Of a window that the agent's program has: as it is painted up to now.
Picture GrabClient(HWND window);
Picture GrabWindow(HWND window);  // with the frame, as far as it is on the screen
// Painting goes on after a window has come up: grabs until two pictures agree.
Picture GrabStable(const std::function<Picture()>& grab);
bool SaveBmp(const Picture& picture, const std::wstring& path);

}  // namespace ui
