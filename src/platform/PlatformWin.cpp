// PlatformWin.cpp - messages, repaints and the clock of the program.
#include "platform/PlatformWin.h"

#include <utility>

#include "platform/WideTextWin.h"

namespace platform {

namespace {

HWND mainWindow;
bool repaintRequested = true;

UINT BoxStyle(Buttons buttons, Icon icon) {
    constexpr UINT kButtons[] = { MB_OK, MB_OKCANCEL, MB_YESNO, MB_YESNOCANCEL };
    constexpr UINT kIcons[] = { 0, MB_ICONINFORMATION, MB_ICONQUESTION, MB_ICONEXCLAMATION };
    return kButtons[static_cast<int>(buttons)] | kIcons[static_cast<int>(icon)];
}

// A box that could not be shown (button 0) must not be taken for consent.
Answer AnswerFrom(int button, Buttons buttons) {
    switch (button) {
    case IDOK: return Answer::Ok;
    case IDYES: return Answer::Yes;
    case IDNO: return Answer::No;
    case IDCANCEL: return buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
    default: break;
    }
    return buttons == Buttons::Ok ? Answer::Ok : buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
}

}  // namespace

void UseMainWindow(HWND window) { mainWindow = window; }

HWND MainWindow() { return mainWindow; }

HWND OwnerOfDialogs() {
    const HWND active = mainWindow ? GetLastActivePopup(mainWindow) : nullptr;
    return active && IsWindowVisible(active) ? active : mainWindow;
}

OthersDisabled::OthersDisabled(HWND keep, HWND keepToo) {
    const auto collect = [](HWND window, LPARAM list) -> BOOL {
        const bool takesInput = IsWindowVisible(window) && IsWindowEnabled(window);
        const bool ours = window == mainWindow || GetWindow(window, GW_OWNER) == mainWindow;
        if (takesInput && ours && (GetWindowLongW(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION)
            reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
        return TRUE;
    };
    if (mainWindow) EnumThreadWindows(GetCurrentThreadId(), collect, reinterpret_cast<LPARAM>(&disabled));
    std::erase_if(disabled, [=](HWND window) { return window == keep || window == keepToo; });
    for (const HWND window : disabled) EnableWindow(window, FALSE);
}

OthersDisabled::~OthersDisabled() {
    for (const HWND window : disabled) EnableWindow(window, TRUE);
}

Answer ShowTitledMessage(std::string_view title, std::string_view text, Buttons buttons, Icon icon) {
    const HWND owner = OwnerOfDialogs();
    const OthersDisabled others(owner, nullptr);
    const int button =
        MessageBoxW(owner, WideFromUtf8(text).c_str(), WideFromUtf8(title).c_str(), BoxStyle(buttons, icon));
    return AnswerFrom(button, buttons);
}

Answer ShowMessage(std::string_view text, Buttons buttons, Icon icon) {
    return ShowTitledMessage("Tarvo", text, buttons, icon);
}

void RequestRepaint() {
    repaintRequested = true;
    if (mainWindow) InvalidateRect(mainWindow, nullptr, FALSE);
}

bool TakeRepaintRequest() { return std::exchange(repaintRequested, false); }

uint64_t SystemFileTime() {
    FILETIME time;
    GetSystemTimeAsFileTime(&time);
    return static_cast<uint64_t>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
}

HFONT MakeSystemFont(SystemFont font, int dpi) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    if (!SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0)) return nullptr;
    LOGFONTW shape = font == SystemFont::Message ? metrics.lfMessageFont : metrics.lfStatusFont;
    shape.lfHeight = MulDiv(shape.lfHeight, dpi, DpiOf(nullptr));  // given for the system's resolution
    return CreateFontIndirectW(&shape);
}

int DpiOf(HWND window) {
    using GetDpiForWindowCall = UINT(WINAPI*)(HWND);  // Windows 10; before, all monitors share one resolution
    static const auto call = reinterpret_cast<GetDpiForWindowCall>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetDpiForWindow")));
    if (call && window) {
        if (const UINT dpi = call(window)) return static_cast<int>(dpi);
    }
    const HDC dc = GetDC(nullptr);
    const int dpi = GetDeviceCaps(dc, LOGPIXELSX);
    ReleaseDC(nullptr, dc);
    return dpi > 0 ? dpi : 96;
}

int ScaleToDpi(int pixelsAt96, int dpi) { return MulDiv(pixelsAt96, dpi, 96); }

}  // namespace platform
