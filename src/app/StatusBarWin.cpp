// StatusBarWin.cpp - see StatusBarWin.h.
#include "app/StatusBarWin.h"

#include <commctrl.h>
#include <iterator>
#include <string>

#include "app/AppHost.h"
#include "app/SimLink.h"
#include "app/StatusText.h"
#include "platform/PlatformWin.h"
#include "platform/WideTextWin.h"
#include "Resource.h"

namespace app {

namespace {

enum Part { kPosition, kDistance, kAngle, kSimulator, kReadOuts, kNotice = kReadOuts, kParts };
constexpr int kWidths[kReadOuts] = { 225, 130, 90, 150 };  // at 96 dots per inch; the notice has the rest

HWND bar;
HFONT font;
std::wstring shown[kParts];

// Texts are set only when they differ: a status bar flickers otherwise.
void ShowPart(Part part, const std::string& text) {
    const std::wstring wide = platform::WideFromUtf8(text);
    if (wide == shown[part]) return;
    shown[part] = wide;
    SendMessageW(bar, SB_SETTEXTW, part, reinterpret_cast<LPARAM>(wide.c_str()));
}

}  // namespace

HWND CreateStatusBar(HWND mainWindow, int dpi) {
    const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(mainWindow, GWLP_HINSTANCE));
    bar = CreateWindowExW(0, STATUSCLASSNAMEW, nullptr,
                          WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | SBARS_SIZEGRIP | SBARS_TOOLTIPS, 0, 0, 0, 0,
                          mainWindow, reinterpret_cast<HMENU>(INT_PTR{ IDC_STATUS_BAR }), instance, nullptr);
    if (bar) ScaleStatusBar(dpi);
    return bar;
}

void ScaleStatusBar(int dpi) {
    const HFONT before = font;
    font = platform::MakeSystemFont(platform::SystemFont::StatusBar, dpi);
    SendMessageW(bar, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    if (before) DeleteObject(before);
    INT edges[kParts];
    int edge = 0;
    for (int part = 0; part < kReadOuts; ++part) edges[part] = edge += platform::ScaleToDpi(kWidths[part], dpi);
    edges[kNotice] = -1;
    SendMessageW(bar, SB_SETPARTS, std::size(edges), reinterpret_cast<LPARAM>(edges));
}

void ShowStatus(platform::Pixel cursor) {
    ShowPart(kPosition, PositionText(cursor));
    ShowPart(kDistance, DistanceText(cursor));
    ShowPart(kAngle, AngleText(cursor));
    ShowPart(kSimulator, SimulatorText());
}

// The tip has the whole text when the part is too narrow for it.
void ShowNoticeText(std::string_view text) {
    ShowPart(kNotice, std::string(text));
    SendMessageW(bar, SB_SETTIPTEXTW, kNotice, reinterpret_cast<LPARAM>(shown[kNotice].c_str()));
}

}  // namespace app
