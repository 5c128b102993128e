// StatusBarWin.cpp - see StatusBarWin.h.
#include "app/StatusBarWin.h"

#include <commctrl.h>
#include <iterator>
#include <string>

#include "app/StatusText.h"
#include "platform/PlatformWin.h"
#include "platform/WideTextWin.h"
#include "Resource.h"

namespace app {

namespace {

enum Part { kPosition, kDistance, kAngle, kRotation, kParts };
constexpr int kWidths[kParts] = { 280, 170, 110, 70 };  // at 96 dots per inch; what is left over stays empty

HWND bar;
HFONT font;
std::wstring shown[kParts];

// The system's font for status bars, which it gives for its own resolution.
HFONT MakeFont(int dpi) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    if (!SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0)) return nullptr;
    const HDC screen = GetDC(nullptr);
    metrics.lfStatusFont.lfHeight = MulDiv(metrics.lfStatusFont.lfHeight, dpi, GetDeviceCaps(screen, LOGPIXELSY));
    ReleaseDC(nullptr, screen);
    return CreateFontIndirectW(&metrics.lfStatusFont);
}

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
    bar = CreateWindowExW(0, STATUSCLASSNAMEW, nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | SBARS_SIZEGRIP, 0, 0,
                          0, 0, mainWindow, reinterpret_cast<HMENU>(INT_PTR{ IDC_STATUS_BAR }), instance, nullptr);
    if (bar) ScaleStatusBar(dpi);
    return bar;
}

void ScaleStatusBar(int dpi) {
    const HFONT before = font;
    font = MakeFont(dpi);
    SendMessageW(bar, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    if (before) DeleteObject(before);
    INT edges[kParts + 1];
    int edge = 0;
    for (int part = 0; part < kParts; ++part) edges[part] = edge += platform::ScaleToDpi(kWidths[part], dpi);
    edges[kParts] = -1;
    SendMessageW(bar, SB_SETPARTS, std::size(edges), reinterpret_cast<LPARAM>(edges));
}

void ShowStatus(platform::Pixel cursor) {
    ShowPart(kPosition, PositionText(cursor));
    ShowPart(kDistance, DistanceText(cursor));
    ShowPart(kAngle, AngleText(cursor));
    ShowPart(kRotation, RotationText());
}

}  // namespace app
