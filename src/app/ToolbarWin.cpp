// ToolbarWin.cpp - see ToolbarWin.h.
#include "app/ToolbarWin.h"

#include <commctrl.h>

#include <algorithm>
#include <iterator>
#include <vector>

#include "app/Commands.h"
#include "app/PictureListWin.h"
#include "app/Toolbar.h"
#include "app/ToolBoxesWin.h"
#include "app/ToolCombosWin.h"
#include "platform/PlatformWin.h"
#include "Resource.h"

namespace app {

namespace {

struct Bar {
    int id = 0;
    std::span<const ToolButton> buttons;
    HWND handle = nullptr;
    std::vector<ToolItem> items;  // as they stand in one row
    int width = 0;                // of that row
    std::vector<size_t> rows;     // as it stands now
};
Bar bars[2];

HWND rebar;
PictureLists pictures;
int resolution = 96;
bool beside = false;  // both toolbars in one row

// At 96 dots per inch: what a band needs beside its toolbar, and a button around its picture.
constexpr int kBandEdge = 8, kButtonEdge = 7;

BYTE StateOf(int command) {
    const int state =
        (IsCommandEnabled(command) ? TBSTATE_ENABLED : 0) | (IsCommandChecked(command) ? TBSTATE_CHECKED : 0);
    return static_cast<BYTE>(state);
}

// Buttons that stay pressed are plain ones: which is pressed follows from the command table, not from the click. A box
// lies over a button without a face, which keeps its place.
TBBUTTON ButtonOf(const ToolButton& button) {
    TBBUTTON row{};
    row.fsStyle = button.command || button.box ? BTNS_BUTTON : BTNS_SEP;
    row.idCommand = button.box ? button.box : button.command;
    row.iBitmap = button.box ? I_IMAGENONE : button.command ? static_cast<int>(button.picture) : 0;
    row.fsState = button.command ? StateOf(button.command) : BYTE{ 0 };
    return row;
}

RECT ItemRect(const Bar& bar, size_t item) {
    RECT rect{};
    SendMessageW(bar.handle, TB_GETITEMRECT, item, reinterpret_cast<LPARAM>(&rect));
    return rect;
}

BYTE ItemState(const Bar& bar, size_t item) {
    TBBUTTON button{};
    SendMessageW(bar.handle, TB_GETBUTTON, item, reinterpret_cast<LPARAM>(&button));
    return button.fsState;
}

void ChangeItem(const Bar& bar, size_t item, TBBUTTONINFOW info) {
    info.cbSize = sizeof info;
    info.dwMask |= TBIF_BYINDEX;
    SendMessageW(bar.handle, TB_SETBUTTONINFOW, item, reinterpret_cast<LPARAM>(&info));
}

bool CreateBar(Bar* bar, HINSTANCE instance) {
    bar->handle = CreateWindowExW(0, TOOLBARCLASSNAMEW, nullptr,
                                  WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | TBSTYLE_FLAT |
                                      TBSTYLE_TOOLTIPS | CCS_NOPARENTALIGN | CCS_NORESIZE | CCS_NODIVIDER,
                                  0, 0, 0, 0, rebar, reinterpret_cast<HMENU>(INT_PTR{ bar->id }), instance, nullptr);
    if (!bar->handle) return false;
    SendMessageW(bar->handle, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    std::vector<TBBUTTON> buttons;
    for (const ToolButton& button : bar->buttons) buttons.push_back(ButtonOf(button));
    SendMessageW(bar->handle, TB_ADDBUTTONSW, buttons.size(), reinterpret_cast<LPARAM>(buttons.data()));
    return std::all_of(bar->buttons.begin(), bar->buttons.end(),
                       [&](const ToolButton& button) { return !button.box || CreateToolBox(bar->handle, button.box); });
}

void BreakRows(Bar* bar, const std::vector<size_t>& starts) {
    bar->rows = starts;
    for (size_t item = 0; item < bar->buttons.size(); ++item) {
        const ItemPlace place = PlaceInRow(bar->items, starts, item);
        const BYTE before = ItemState(*bar, item);
        TBBUTTONINFOW info{};
        info.dwMask = TBIF_STATE;
        info.fsState = static_cast<BYTE>((before & ~(TBSTATE_WRAP | TBSTATE_HIDDEN)) | (place.last ? TBSTATE_WRAP : 0) |
                                         (place.hidden ? TBSTATE_HIDDEN : 0));
        if (info.fsState != before) ChangeItem(*bar, item, info);
    }
    SendMessageW(bar->handle, TB_AUTOSIZE, 0, 0);
}

// The widths of the items, which are known while all stand in one row.
void MeasureBar(Bar* bar) {
    bar->items.clear();
    bar->width = 0;
    for (size_t item = 0; item < bar->buttons.size(); ++item) {
        const RECT rect = ItemRect(*bar, item);
        const bool separator = !bar->buttons[item].command && !bar->buttons[item].box;
        bar->items.push_back({ rect.right - rect.left, separator });
        bar->width += bar->items.back().width;
    }
}

void ScaleBar(Bar* bar) {
    SendMessageW(bar->handle, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(pictures.normal));
    SendMessageW(bar->handle, TB_SETDISABLEDIMAGELIST, 0, reinterpret_cast<LPARAM>(pictures.disabled));
    const int width = platform::ScaleToDpi(kPictureWidth + kButtonEdge, resolution);
    const int height = platform::ScaleToDpi(kPictureHeight + kButtonEdge, resolution);
    SendMessageW(bar->handle, TB_SETBUTTONSIZE, 0, MAKELPARAM(width, height));
    for (size_t item = 0; item < bar->buttons.size(); ++item) {
        if (!bar->buttons[item].box) continue;
        TBBUTTONINFOW info{};
        info.dwMask = TBIF_SIZE;
        info.cx = static_cast<WORD>(platform::ScaleToDpi(bar->buttons[item].width, resolution) +
                                    2 * platform::ScaleToDpi(kBoxGap, resolution));
        ChangeItem(*bar, item, info);
    }
    BreakRows(bar, { 0 });
    MeasureBar(bar);
}

SIZE SizeOf(const Bar& bar) {
    SIZE size{};
    for (size_t item = 0; item < bar.buttons.size(); ++item) {
        const RECT rect = ItemRect(bar, item);
        size.cx = std::max(size.cx, rect.right);
        size.cy = std::max(size.cy, rect.bottom);
    }
    return size;
}

REBARBANDINFOW BandOf(const Bar& bar) {
    const SIZE size = SizeOf(bar);
    REBARBANDINFOW band{};
    band.cbSize = REBARBANDINFOW_V6_SIZE;
    band.fMask = RBBIM_STYLE | RBBIM_CHILD | RBBIM_CHILDSIZE | RBBIM_SIZE;
    band.fStyle = RBBS_NOGRIPPER | (&bar != bars && !beside ? RBBS_BREAK : 0u);
    band.hwndChild = bar.handle;
    band.cyMinChild = static_cast<UINT>(size.cy);
    band.cx = static_cast<UINT>(size.cx + platform::ScaleToDpi(kBandEdge, resolution));
    return band;
}

void PlaceBoxes(const Bar& bar) {
    for (size_t item = 0; item < bar.buttons.size(); ++item) {
        if (bar.buttons[item].box) PlaceToolBox(bar.buttons[item].box, ItemRect(bar, item));
    }
}

void ShowBands() {
    for (UINT i = 0; i < std::size(bars); ++i) {
        REBARBANDINFOW band = BandOf(bars[i]);
        SendMessageW(rebar, RB_SETBANDINFOW, i, reinterpret_cast<LPARAM>(&band));
        PlaceBoxes(bars[i]);
    }
}

void ScaleBars(int dpi) {
    const PictureLists before = pictures;
    resolution = dpi;
    pictures = MakePictureLists(dpi);
    ScaleToolBoxes(dpi);
    for (Bar& bar : bars) ScaleBar(&bar);
    FreePictureLists(before);
}

}  // namespace

HWND CreateToolbars(HWND mainWindow, int dpi) {
    const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(mainWindow, GWLP_HINSTANCE));
    rebar = CreateWindowExW(WS_EX_TOOLWINDOW, REBARCLASSNAMEW, nullptr,
                            WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | RBS_VARHEIGHT | CCS_NODIVIDER,
                            0, 0, 0, 0, mainWindow, nullptr, instance, nullptr);
    if (!rebar) return nullptr;
    bars[0].id = IDC_FIRST_TOOLBAR, bars[0].buttons = FirstToolbar();
    bars[1].id = IDC_SECOND_TOOLBAR, bars[1].buttons = SecondToolbar();
    for (Bar& bar : bars) {
        if (!CreateBar(&bar, instance)) return nullptr;
    }
    ScaleBars(dpi);
    for (const Bar& bar : bars) {
        REBARBANDINFOW band = BandOf(bar);
        SendMessageW(rebar, RB_INSERTBANDW, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&band));
        PlaceBoxes(bar);
    }
    return rebar;
}

void ScaleToolbars(int dpi) {
    ScaleBars(dpi);
    ShowBands();
}

void FitToolbars(int width) {
    const int edge = platform::ScaleToDpi(kBandEdge, resolution);
    const bool fits = bars[0].width + bars[1].width + 2 * edge <= width;
    bool changed = fits != beside;
    beside = fits;
    for (Bar& bar : bars) {
        const std::vector<size_t> rows = RowStarts(bar.items, width - edge);
        if (rows == bar.rows) continue;
        BreakRows(&bar, rows);
        changed = true;
    }
    if (changed) ShowBands();
    SendMessageW(rebar, WM_SIZE, 0, 0);
}

void ShowToolbarStates() {
    for (const Bar& bar : bars) {
        for (const ToolButton& button : bar.buttons) {
            if (button.command == 0) continue;
            const auto id = static_cast<WPARAM>(button.command);
            const auto shown = SendMessageW(bar.handle, TB_GETSTATE, id, 0);
            constexpr int kOurs = TBSTATE_ENABLED | TBSTATE_CHECKED;
            const LRESULT wanted = (shown & ~kOurs) | StateOf(button.command);
            if (shown != wanted) SendMessageW(bar.handle, TB_SETSTATE, id, MAKELPARAM(wanted, 0));
        }
    }
    ShowToolBoxes();
}

}  // namespace app
