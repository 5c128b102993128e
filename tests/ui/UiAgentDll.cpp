// UiAgentDll.cpp - agent.dll: answers from inside the program under test. The program needs no change for it.
#include <windows.h>

#include <cstdio>
#include <cwchar>
#include <shlobj.h>

#include "fakes/GuiObjectsWin.h"
#include "UiAgent.h"

namespace ui {
namespace {

HWND agentWindow;
HINSTANCE instance;
LRESULT marks;
bool catching;
WPARAM caught;

wchar_t* DumpMenu(HMENU menu, int depth, wchar_t* out, const wchar_t* end) {
    constexpr int kLineCharacters = 400;
    int count = GetMenuItemCount(menu);
    for (int i = 0; i < count && end - out > kLineCharacters; ++i) {
        wchar_t text[256] = L"";
        MENUITEMINFOW info = {};
        info.cbSize = sizeof info;
        info.fMask = MIIM_ID | MIIM_STATE | MIIM_FTYPE | MIIM_STRING | MIIM_SUBMENU;
        info.dwTypeData = text;
        info.cch = 256;
        if (!GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &info)) continue;
        const wchar_t separator = kAgentFieldSeparator;
        int written = swprintf(out, kLineCharacters, L"%d%lc%u%lc%u%lc%u%lc%ls\n", depth, separator, info.wID,
                               separator, info.fState, separator, info.fType, separator, text);
        if (written > 0) out += written;
        if (info.hSubMenu) out = DumpMenu(info.hSubMenu, depth + 1, out, end);
    }
    return out;
}

LRESULT DumpMenuOf(HWND window, wchar_t* buffer) {
    wchar_t* end = DumpMenu(GetMenu(window), 0, buffer, buffer + kAgentBufferBytes / sizeof(wchar_t) - 1);
    *end = 0;
    return end - buffer;
}

LRESULT SetKey(WPARAM key, LPARAM state) {
    BYTE keys[256];
    if (!GetKeyboardState(keys)) return FALSE;
    keys[key & 0xFF] = static_cast<BYTE>(state);
    return SetKeyboardState(keys);
}

LRESULT StockIcon(WPARAM icon) {
    const LPCWSTR stock[] = { IDI_APPLICATION, IDI_HAND, IDI_QUESTION, IDI_EXCLAMATION, IDI_ASTERISK };
    for (LPCWSTR id : stock) {
        if (LoadIconW(nullptr, id) == reinterpret_cast<HICON>(icon)) return reinterpret_cast<LRESULT>(id);
    }
    return 0;
}

LRESULT StockCursor() {
    const LPCWSTR stock[] = { IDC_ARROW,  IDC_CROSS, IDC_WAIT,    IDC_HAND,     IDC_SIZEALL,  IDC_SIZENS,
                              IDC_SIZEWE, IDC_IBEAM, IDC_UPARROW, IDC_SIZENWSE, IDC_SIZENESW, IDC_NO };
    HCURSOR current = GetCursor();
    for (LPCWSTR id : stock) {
        if (current && LoadCursorW(nullptr, id) == current) return reinterpret_cast<LRESULT>(id);
    }
    return 0;
}

LRESULT HotSpot() {
    ICONINFO info{};
    if (!GetIconInfo(GetCursor(), &info)) return -1;
    if (info.hbmMask) DeleteObject(info.hbmMask);
    if (info.hbmColor) DeleteObject(info.hbmColor);
    return MAKELONG(info.xHotspot, info.yHotspot);
}

// A posted command, as menus give it, is taken away from the program and remembered.
void Catch(MSG* message) {
    if (!catching || message->message != WM_COMMAND) return;
    caught = LOWORD(message->wParam);
    message->message = WM_NULL;
}

LRESULT TakeCaught() {
    const WPARAM command = caught;
    caught = 0;
    return static_cast<LRESULT>(command);
}

// The block belongs to whom takes the message, so it must be made in that process.
LRESULT DropFile(HWND window, const wchar_t* path) {
    const size_t characters = wcslen(path) + 2;  // a list of paths ends with a second zero
    const HGLOBAL block = GlobalAlloc(GHND, sizeof(DROPFILES) + characters * sizeof(wchar_t));
    if (!block) return FALSE;
    auto* drop = static_cast<DROPFILES*>(GlobalLock(block));
    drop->pFiles = sizeof(DROPFILES);
    drop->fWide = TRUE;
    wcscpy(reinterpret_cast<wchar_t*>(drop + 1), path);
    GlobalUnlock(block);
    return PostMessageW(window, WM_DROPFILES, reinterpret_cast<WPARAM>(block), 0);
}

LRESULT SendMouseMessages(const MouseMessage* messages, size_t count) {
    for (size_t i = 0; i < count; ++i)
        SendMessageW(messages[i].window, messages[i].message, messages[i].keys, messages[i].point);
    return 0;
}

// Wine paints into memory of the program's, which goes to the display when the thread looks for messages; what a closed
// window has uncovered is told by the display at such a look. A pixel is asked for last: the display answers after it has
// done all that it was told before.
LRESULT Show(HWND window) {
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 0, QS_ALLINPUT);
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 0, 0);
    const HDC screen = GetDC(nullptr);
    GetPixel(screen, 0, 0);
    return ReleaseDC(nullptr, screen);
}

LRESULT CALLBACK AgentProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case kAgentMenuState:
        return GetMenuState(GetMenu(reinterpret_cast<HWND>(lParam)), static_cast<UINT>(wParam), MF_BYCOMMAND);
    case kAgentMenuDump: return DumpMenuOf(reinterpret_cast<HWND>(wParam), reinterpret_cast<wchar_t*>(lParam));
    case kAgentKeyState: return GetKeyState(static_cast<int>(wParam));
    case kAgentSetKey: return SetKey(wParam, lParam);
    case kAgentIcon: return StockIcon(wParam);
    case kAgentFocus: return reinterpret_cast<LRESULT>(GetFocus());
    case kAgentCursor: return StockCursor();
    case kAgentHotSpot: return HotSpot();
    case kAgentGdiObjects: return GdiObjects();
    case kAgentUserObjects: return UserObjects();
    case kAgentDrop: return DropFile(reinterpret_cast<HWND>(wParam), reinterpret_cast<const wchar_t*>(lParam));
    case kAgentMark: ++marks; return 0;
    case kAgentMarks: return marks;
    case kAgentCatch: catching = wParam != 0; return 0;
    case kAgentEndTimer: return KillTimer(reinterpret_cast<HWND>(lParam), wParam);
    case kAgentCaught: return TakeCaught();
    case kAgentShow: return Show(reinterpret_cast<HWND>(lParam));
    case kAgentMouse: return SendMouseMessages(reinterpret_cast<const MouseMessage*>(lParam), wParam);
    default: return DefWindowProcW(window, message, wParam, lParam);
    }
}

void CreateAgentWindow() {
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = AgentProc;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = kAgentClass;
    RegisterClassW(&windowClass);
    wchar_t title[32];
    swprintf(title, 32, L"%u", static_cast<unsigned>(GetCurrentProcessId()));
    agentWindow = CreateWindowW(kAgentClass, title, WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, instance, nullptr);
}

}  // namespace
}  // namespace ui

// The first message that the hooked thread takes creates the window there, so its answers come from that thread.
extern "C" __declspec(dllexport) LRESULT CALLBACK AgentHook(int code, WPARAM wParam, LPARAM lParam) {
    if (!ui::agentWindow) ui::CreateAgentWindow();
    if (code == HC_ACTION && wParam == PM_REMOVE) ui::Catch(reinterpret_cast<MSG*>(lParam));
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// Pinned: the window procedure must outlive the hook, which ends with the driver.
BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void*) {
    if (reason != DLL_PROCESS_ATTACH) return TRUE;
    ui::instance = module;
    HMODULE pinned;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       reinterpret_cast<LPCWSTR>(&ui::AgentProc), &pinned);
    return TRUE;
}
