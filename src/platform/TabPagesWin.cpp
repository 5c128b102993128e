// TabPagesWin.cpp - see TabPagesWin.h.
#include "platform/TabPagesWin.h"

#include <commctrl.h>

#include <cstring>
#include <string>

#include "platform/WideTextWin.h"

namespace platform {

namespace {

// Where themes colour the inside of a tab control, its pages must have the same ground.
void MatchTabGround(HWND page) {
    constexpr DWORD kEnableTab = 6;  // ETDT_ENABLETAB
    using EnableTexture = HRESULT(WINAPI*)(HWND, DWORD);
    const HMODULE themes = GetModuleHandleW(L"uxtheme.dll");
    const FARPROC address = themes ? GetProcAddress(themes, "EnableThemeDialogTexture") : nullptr;
    if (!address) return;
    EnableTexture enable = nullptr;
    static_assert(sizeof enable == sizeof address);
    std::memcpy(&enable, &address, sizeof enable);
    enable(page, kEnableTab);
}

INT_PTR CALLBACK PageProc(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) MatchTabGround(page);
    if (message != WM_COMMAND) return FALSE;
    SendMessageW(GetParent(page), WM_COMMAND, wParam, lParam);
    return TRUE;
}

HWND MakePage(HWND dialog, HWND tab, int resource) {
    const HWND page = CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(resource), dialog, PageProc, 0);
    RECT area{};
    GetWindowRect(tab, &area);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&area), 2);
    SendMessageW(tab, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
    SetWindowPos(page, HWND_TOP, area.left, area.top, area.right - area.left, area.bottom - area.top, SWP_NOACTIVATE);
    return page;
}

void FocusFirst(HWND dialog, HWND page) {
    // Posted: whoever made the dialog sets the focus after WM_INITDIALOG.
    const HWND first = GetNextDlgTabItem(page, nullptr, FALSE);
    if (first) PostMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(first), TRUE);
}

int PageCount(HWND tab) { return static_cast<int>(SendMessageW(tab, TCM_GETITEMCOUNT, 0, 0)); }

// How many pages the key turns; 0 for any other message.
int StepOf(const MSG& message) {
    if (message.message != WM_KEYDOWN || GetKeyState(VK_CONTROL) >= 0) return 0;
    switch (message.wParam) {
    case VK_TAB: return GetKeyState(VK_SHIFT) < 0 ? -1 : 1;
    case VK_NEXT: return 1;
    case VK_PRIOR: return -1;
    default: return 0;
    }
}

}  // namespace

void MakePages(HWND dialog, int tab, std::span<const TabPage> pages) {
    const HWND control = GetDlgItem(dialog, tab);
    for (size_t i = 0; i < pages.size(); ++i) {
        std::wstring title = WideFromUtf8(pages[i].title);
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = title.data();
        SendMessageW(control, TCM_INSERTITEMW, i, reinterpret_cast<LPARAM>(&item));
    }
    // Only now is the inside of the control known. The last page made lies in front.
    for (size_t i = pages.size(); i-- > 0;) {
        const HWND page = MakePage(dialog, control, pages[i].resource);
        // What is on a page that is not there would be stored as empty.
        if (!page) PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        TCITEMW item{};
        item.mask = TCIF_PARAM;
        item.lParam = reinterpret_cast<LPARAM>(page);
        SendMessageW(control, TCM_SETITEMW, i, reinterpret_cast<LPARAM>(&item));
    }
    ShowChosenPage(dialog, tab);
    FocusFirst(dialog, PageWindow(dialog, tab, 0));
}

HWND PageWindow(HWND dialog, int tab, int page) {
    TCITEMW item{};
    item.mask = TCIF_PARAM;
    SendDlgItemMessageW(dialog, tab, TCM_GETITEMW, static_cast<WPARAM>(page), reinterpret_cast<LPARAM>(&item));
    return reinterpret_cast<HWND>(item.lParam);
}

int PageShown(HWND dialog, int tab) { return static_cast<int>(SendDlgItemMessageW(dialog, tab, TCM_GETCURSEL, 0, 0)); }

void TurnToPage(HWND dialog, int tab, int page) {
    const HWND control = GetDlgItem(dialog, tab);
    SendMessageW(control, TCM_SETCURSEL, static_cast<WPARAM>(page), 0);
    const NMHDR chosen = { control, static_cast<UINT_PTR>(tab), static_cast<UINT>(TCN_SELCHANGE) };
    SendMessageW(dialog, WM_NOTIFY, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&chosen));
}

void ShowChosenPage(HWND dialog, int tab) {
    const int shown = PageShown(dialog, tab), count = PageCount(GetDlgItem(dialog, tab));
    ShowWindow(PageWindow(dialog, tab, shown), SW_SHOWNA);
    for (int i = 0; i < count; ++i) {
        if (i != shown) ShowWindow(PageWindow(dialog, tab, i), SW_HIDE);
    }
}

bool TurnedPage(HWND dialog, const MSG& message) {
    if (message.hwnd != dialog && !IsChild(dialog, message.hwnd)) return false;
    const int step = StepOf(message);
    const HWND control = step == 0 ? nullptr : FindWindowExW(dialog, nullptr, WC_TABCONTROLW, nullptr);
    if (!control) return false;
    const int tab = GetDlgCtrlID(control), count = PageCount(control);
    const bool onTab = GetFocus() == control;
    const int page = (PageShown(dialog, tab) + step + count) % count;
    TurnToPage(dialog, tab, page);
    if (!onTab) FocusFirst(dialog, PageWindow(dialog, tab, page));
    return true;
}

}  // namespace platform
