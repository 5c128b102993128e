// UiInput.cpp - keys, mouse and pictures of the program under test.
#include "UiInput.h"

#include <cstdio>

#include "UiAgent.h"
#include "UiDriver.h"

namespace ui {
namespace {

LPARAM PointParameter(int x, int y) { return MAKELPARAM(static_cast<WORD>(x), static_cast<WORD>(y)); }

void SendKeyInput(WORD key, bool up) {
    bool extended = (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_DELETE || key == VK_INSERT;
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = (up ? KEYEVENTF_KEYUP : 0u) | (extended ? KEYEVENTF_EXTENDEDKEY : 0u);
    SendInput(1, &input, sizeof input);
}

// The X server echoes each real move a few milliseconds later; a second move before the echo leaves stale
// mouse messages behind it. Nothing tells whether the echo is still to come, so this is the one fixed pause.
void LetPointerEcho() { Sleep(15); }

// Again when the late echo of an earlier move has taken the pointer back.
void SendPointer(POINT to) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dx = (to.x * 65536 + 32768) / GetSystemMetrics(SM_CXSCREEN);
    input.mi.dy = (to.y * 65536 + 32768) / GetSystemMetrics(SM_CYSCREEN);
    input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE;
    const bool arrived = WaitUntil([&] {
        SendInput(1, &input, sizeof input);
        LetPointerEcho();
        POINT now = {};
        return GetCursorPos(&now) && now.x == to.x && now.y == to.y;
    });
    if (!arrived) fprintf(stderr, "the pointer does not come to %ld, %ld\n", to.x, to.y);
}

Picture Grab(HDC source, const RECT& rect) {
    Picture picture;
    picture.width = static_cast<int>(rect.right - rect.left);
    picture.height = static_cast<int>(rect.bottom - rect.top);
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = picture.width;
    info.bmiHeader.biHeight = -picture.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    HDC memory = CreateCompatibleDC(source);
    HBITMAP bitmap = CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap) {
        HGDIOBJ before = SelectObject(memory, bitmap);
        BitBlt(memory, 0, 0, picture.width, picture.height, source, static_cast<int>(rect.left),
               static_cast<int>(rect.top), SRCCOPY);
        GdiFlush();
        const auto* first = static_cast<const uint32_t*>(bits);
        picture.pixels.assign(first, first + static_cast<ptrdiff_t>(picture.width) * picture.height);
        for (uint32_t& pixel : picture.pixels) pixel &= 0xFFFFFF;
        SelectObject(memory, before);
        DeleteObject(bitmap);
    }
    DeleteDC(memory);
    return picture;
}

}  // namespace

void SendMouse(HWND window, UINT message, int x, int y, WPARAM keys) {
    SendMessageW(window, message, keys, PointParameter(x, y));
}

void SendClick(HWND window, int x, int y, WPARAM keys) { SendDrag(window, { { x, y } }, keys); }

// Sent one by one they would leave room for what the system has to say between press and release: a late echo of the
// real pointer, a change of the active window.
void SendDrag(HWND window, std::initializer_list<POINT> points, WPARAM keys) {
    std::vector<MouseMessage> messages;
    const auto add = [&](UINT message, POINT at, WPARAM held) {
        messages.push_back({ window, message, held, PointParameter(at.x, at.y) });
    };
    const POINT* first = points.begin();
    const POINT* last = points.end() - 1;
    add(WM_MOUSEMOVE, *first, keys);
    add(WM_LBUTTONDOWN, *first, keys | MK_LBUTTON);
    for (const POINT* point = first + 1; point <= last; ++point) add(WM_MOUSEMOVE, *point, keys | MK_LBUTTON);
    add(WM_LBUTTONUP, *last, keys);
    if (SendUninterrupted(messages)) return;
    for (const MouseMessage& each : messages) SendMessageW(each.window, each.message, each.keys, each.point);
}

void SendWheel(HWND window, int x, int y, int delta, WPARAM keys) {
    POINT point = { x, y };  // the wheel message alone carries screen coordinates
    ClientToScreen(window, &point);
    WPARAM parameter = (static_cast<WPARAM>(static_cast<WORD>(delta)) << 16) | keys;
    SendMessageW(window, WM_MOUSEWHEEL, parameter, PointParameter(point.x, point.y));
}

void PostKey(HWND window, WORD key) {
    LPARAM scan = static_cast<LPARAM>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC)) << 16;
    PostMessageW(window, WM_KEYDOWN, key, scan | 1);
    PostMessageW(window, WM_KEYUP, key, scan | static_cast<LPARAM>(0xC0000001));
    Settle(window);
}

bool BringToFront(HWND window) {
    DWORD own = GetCurrentThreadId(), other = GetWindowThreadProcessId(window, nullptr);
    AttachThreadInput(own, other, TRUE);
    SetForegroundWindow(window);
    AttachThreadInput(own, other, FALSE);
    return WaitUntil([&] { return GetForegroundWindow() == window; });
}

void TapKey(WORD key, std::initializer_list<WORD> modifiers) {
    for (WORD modifier : modifiers) SendKeyInput(modifier, false);
    SendKeyInput(key, false);
    SendKeyInput(key, true);
    for (const WORD* modifier = modifiers.end(); modifier != modifiers.begin();) SendKeyInput(*--modifier, true);
}

void TypeText(const std::wstring& text, DWORD apart) {
    DWORD time = apart ? GetTickCount() : 0;  // 0: when it arrives
    for (wchar_t character : text) {
        INPUT input = {};
        input.type = INPUT_KEYBOARD;
        input.ki.wScan = character;
        input.ki.dwFlags = KEYEVENTF_UNICODE;
        input.ki.time = time;
        time += apart;
        SendInput(1, &input, sizeof input);
        input.ki.dwFlags |= KEYEVENTF_KEYUP;
        SendInput(1, &input, sizeof input);
    }
}

void MovePointer(HWND window, int x, int y) {
    POINT point = { x, y };
    ClientToScreen(window, &point);
    SendPointer(point);
    Settle(window);
}

void MouseButton(DWORD flags, DWORD data) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.mouseData = data;
    SendInput(1, &input, sizeof input);
}

void ClickPointer(HWND window, int x, int y) { DragPointer(window, { { x, y } }); }

// Both presses bear the same time: however busy the machine is, no pause between them makes two clicks of it.
void DoubleClickPointer(HWND window, int x, int y) {
    MovePointer(window, x, y);
    INPUT inputs[4] = {};
    const DWORD now = GetTickCount();
    for (int i = 0; i < 4; ++i) {
        inputs[i].type = INPUT_MOUSE;
        inputs[i].mi.dwFlags = i % 2 == 0 ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_LEFTUP;
        inputs[i].mi.time = now;
    }
    SendInput(4, inputs, sizeof inputs[0]);
    LetPointerEcho();
    Settle(window);
}

void DragPointer(HWND window, std::initializer_list<POINT> points) {
    const POINT* point = points.begin();
    MovePointer(window, point->x, point->y);
    MouseButton(MOUSEEVENTF_LEFTDOWN);
    for (++point; point != points.end(); ++point) MovePointer(window, point->x, point->y);
    MouseButton(MOUSEEVENTF_LEFTUP);
    LetPointerEcho();
    Settle(window);
}

void ParkPointer() { SendPointer({ GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1 }); }

Picture GrabClient(HWND window) {
    ShowPainted(window);
    RECT rect;
    GetClientRect(window, &rect);
    HDC source = GetDC(window);
    Picture picture = Grab(source, rect);
    ReleaseDC(window, source);
    return picture;
}

// Clipped to the screen: a bitmap that reaches outside it comes out black as a whole.
Picture GrabWindow(HWND window) {
    ShowPainted(window);
    RECT rect, screen = { 0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN) };
    GetWindowRect(window, &rect);
    IntersectRect(&rect, &rect, &screen);
    HDC source = GetDC(nullptr);
    Picture picture = Grab(source, rect);
    ReleaseDC(nullptr, source);
    return picture;
}

Picture GrabStable(const std::function<Picture()>& grab) {
    Picture last = grab();
    WaitUntil([&] {
        Sleep(40);
        Picture next = grab();
        bool same = next.pixels == last.pixels;
        last = std::move(next);
        return same;
    });
    return last;
}

bool SaveBmp(const Picture& picture, const std::wstring& path) {
    FILE* file = _wfopen(path.c_str(), L"wb");
    if (!file) return false;
    size_t bytes = picture.pixels.size() * sizeof(uint32_t);
    constexpr DWORD kHeaders = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
    BITMAPFILEHEADER fileHeader = { 0x4D42, static_cast<DWORD>(kHeaders + bytes), 0, 0, kHeaders };
    BITMAPINFOHEADER header = { sizeof header, picture.width, -picture.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0 };
    bool written = fwrite(&fileHeader, sizeof fileHeader, 1, file) == 1 &&
                   fwrite(&header, sizeof header, 1, file) == 1 &&
                   fwrite(picture.pixels.data(), 1, bytes, file) == bytes;
    return (fclose(file) == 0) && written;
}

}  // namespace ui
