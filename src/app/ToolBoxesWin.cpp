// ToolBoxesWin.cpp - see ToolBoxesWin.h.
#include "app/ToolBoxesWin.h"

#include <commctrl.h>
#include <string>

#include "app/Toolbar.h"
#include "platform/PlatformWin.h"
#include "platform/WideTextWin.h"
#include "Resource.h"

namespace app {

ToolBoxes toolBoxes;

namespace {

constexpr int kListHeight = 400;  // of an open list with its box, at 96 dots per inch

HFONT font;
int resolution = 96;

// Behind the read-out the toolbar, or what the toolbar lets show through, paints its ground.
LRESULT CALLBACK ToolbarProc(HWND toolbar, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
    const bool readOut = message == WM_CTLCOLORSTATIC && reinterpret_cast<HWND>(lParam) == toolBoxes.rotation;
    if (!readOut) return DefSubclassProc(toolbar, message, wParam, lParam);
    const auto dc = reinterpret_cast<HDC>(wParam);
    POINT offset{}, before{};
    MapWindowPoints(toolBoxes.rotation, toolbar, &offset, 1);
    OffsetWindowOrgEx(dc, offset.x, offset.y, &before);
    SendMessageW(toolbar, WM_ERASEBKGND, wParam, 0);
    SetWindowOrgEx(dc, before.x, before.y, nullptr);
    SetBkMode(dc, TRANSPARENT);
    return reinterpret_cast<LRESULT>(GetStockObject(NULL_BRUSH));
}

// The tip over the box and, where it has one, over its edit control, which covers it.
void AddToolTip(HWND toolbar, HWND box, int id) {
    const char* tooltip = ToolTipFor(id);
    const auto tips = reinterpret_cast<HWND>(SendMessageW(toolbar, TB_GETTOOLTIPS, 0, 0));
    if (!tooltip || !tips) return;
    std::wstring text = platform::WideFromUtf8(tooltip);
    for (const HWND part : { box, EditOf(box) }) {
        if (!part) continue;
        TOOLINFOW tool{};
        tool.cbSize = sizeof tool;
        tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
        tool.hwnd = toolbar;
        tool.uId = reinterpret_cast<UINT_PTR>(part);
        tool.lpszText = text.data();
        SendMessageW(tips, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    }
}

HWND MakeChild(HWND toolbar, const wchar_t* className, DWORD style, int id) {
    const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(toolbar, GWLP_HINSTANCE));
    return CreateWindowExW(0, className, nullptr, WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, toolbar,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance, nullptr);
}

HWND MakeBox(HWND toolbar, int id) {
    constexpr DWORD kCombo = WS_VSCROLL | WS_TABSTOP | CBS_AUTOHSCROLL;
    switch (id) {
    case IDC_DESIGNATOR: return toolBoxes.designator = MakeChild(toolbar, WC_COMBOBOXW, kCombo | CBS_DROPDOWN, id);
    case IDC_PARKING_TYPE: return toolBoxes.type = MakeChild(toolbar, WC_COMBOBOXW, kCombo | CBS_DROPDOWNLIST, id);
    case IDC_PARKING_SPEC: return toolBoxes.spec = MakeChild(toolbar, WC_COMBOBOXW, kCombo | CBS_DROPDOWNLIST, id);
    case IDC_ROTATION: return toolBoxes.rotation = MakeChild(toolbar, WC_STATICW, SS_RIGHT | SS_CENTERIMAGE, id);
    default: return nullptr;
    }
}

}  // namespace

HWND BoxOf(int id) {
    switch (id) {
    case IDC_DESIGNATOR: return toolBoxes.designator;
    case IDC_PARKING_TYPE: return toolBoxes.type;
    case IDC_PARKING_SPEC: return toolBoxes.spec;
    case IDC_ROTATION: return toolBoxes.rotation;
    default: return nullptr;
    }
}

COMBOBOXINFO PartsOf(HWND combo) {
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof parts;
    GetComboBoxInfo(combo, &parts);
    return parts;
}

HWND EditOf(HWND combo) { return PartsOf(combo).hwndItem; }

HWND MakeToolBox(HWND toolbar, int id) {
    const HWND box = MakeBox(toolbar, id);
    if (!box) return nullptr;
    if (id == IDC_ROTATION) SetWindowSubclass(toolbar, ToolbarProc, 0, 0);
    AddToolTip(toolbar, box, id);
    return box;
}

void ScaleToolBoxes(int dpi) {
    const HFONT before = font;
    resolution = dpi;
    font = platform::MakeSystemFont(platform::SystemFont::Message, dpi);
    for (const HWND box : { toolBoxes.designator, toolBoxes.type, toolBoxes.spec, toolBoxes.rotation })
        SendMessageW(box, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    if (before) DeleteObject(before);
}

void PlaceToolBox(int id, const RECT& place) {
    const HWND box = BoxOf(id);
    const int gap = platform::ScaleToDpi(kBoxGap, resolution), width = place.right - place.left - 2 * gap;
    if (id == IDC_ROTATION) {
        MoveWindow(box, place.left + gap, place.top, width, place.bottom - place.top, TRUE);
        return;
    }
    // The height that is asked of a combo box is that of its open list; it has its own while closed.
    const int listHeight = platform::ScaleToDpi(kListHeight, resolution);
    MoveWindow(box, place.left + gap, place.top, width, listHeight, TRUE);
    RECT closed{};
    GetWindowRect(box, &closed);
    const int top = (place.top + place.bottom - (closed.bottom - closed.top)) / 2;
    MoveWindow(box, place.left + gap, top, width, listHeight, TRUE);
}

}  // namespace app
