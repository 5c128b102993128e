// ToolbarWin.cpp - see ToolbarWin.h.
#include "app/ToolbarWin.h"

#include <commctrl.h>
#include <vector>

#include "app/Commands.h"
#include "app/PictureListWin.h"
#include "app/Toolbar.h"
#include "Resource.h"

namespace app {

namespace {

HWND rebar, toolbar;
PictureLists pictures;

BYTE StateOf(int command) {
    const int state =
        (IsCommandEnabled(command) ? TBSTATE_ENABLED : 0) | (IsCommandChecked(command) ? TBSTATE_CHECKED : 0);
    return static_cast<BYTE>(state);
}

// Buttons that stay pressed are plain ones: which is pressed follows from the command table, not from the click.
void AddButtons() {
    std::vector<TBBUTTON> buttons;
    for (const ToolButton& button : FirstToolbar()) {
        TBBUTTON row{};
        row.fsStyle = button.command ? BTNS_BUTTON : BTNS_SEP;
        row.idCommand = button.command;
        row.iBitmap = button.command ? static_cast<int>(button.picture) : 0;
        row.fsState = button.command ? StateOf(button.command) : BYTE{ 0 };
        buttons.push_back(row);
    }
    SendMessageW(toolbar, TB_ADDBUTTONSW, buttons.size(), reinterpret_cast<LPARAM>(buttons.data()));
}

void UsePictures(int dpi) {
    const PictureLists before = pictures;
    pictures = MakePictureLists(dpi);
    SendMessageW(toolbar, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(pictures.normal));
    SendMessageW(toolbar, TB_SETDISABLEDIMAGELIST, 0, reinterpret_cast<LPARAM>(pictures.disabled));
    FreePictureLists(before);
    SendMessageW(toolbar, TB_AUTOSIZE, 0, 0);
}

REBARBANDINFOW BandOfToolbar() {
    SIZE size{};
    SendMessageW(toolbar, TB_GETMAXSIZE, 0, reinterpret_cast<LPARAM>(&size));
    const LRESULT button = SendMessageW(toolbar, TB_GETBUTTONSIZE, 0, 0);
    REBARBANDINFOW band{};
    band.cbSize = REBARBANDINFOW_V6_SIZE;
    band.fMask = RBBIM_STYLE | RBBIM_CHILD | RBBIM_CHILDSIZE | RBBIM_SIZE;
    band.fStyle = RBBS_NOGRIPPER;
    band.hwndChild = toolbar;
    band.cyMinChild = HIWORD(button);
    band.cx = static_cast<UINT>(size.cx);
    return band;
}

}  // namespace

HWND CreateToolbars(HWND mainWindow, int dpi) {
    const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(mainWindow, GWLP_HINSTANCE));
    rebar = CreateWindowExW(WS_EX_TOOLWINDOW, REBARCLASSNAMEW, nullptr,
                            WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | RBS_VARHEIGHT | CCS_NODIVIDER,
                            0, 0, 0, 0, mainWindow, nullptr, instance, nullptr);
    if (!rebar) return nullptr;
    toolbar =
        CreateWindowExW(0, TOOLBARCLASSNAMEW, nullptr,
                        WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | CCS_NOPARENTALIGN |
                            CCS_NORESIZE | CCS_NODIVIDER,
                        0, 0, 0, 0, rebar, reinterpret_cast<HMENU>(INT_PTR{ IDC_FIRST_TOOLBAR }), instance, nullptr);
    if (!toolbar) return nullptr;
    SendMessageW(toolbar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    UsePictures(dpi);
    AddButtons();
    SendMessageW(toolbar, TB_AUTOSIZE, 0, 0);
    REBARBANDINFOW band = BandOfToolbar();
    SendMessageW(rebar, RB_INSERTBANDW, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&band));
    return rebar;
}

void ScaleToolbars(int dpi) {
    UsePictures(dpi);
    REBARBANDINFOW band = BandOfToolbar();
    SendMessageW(rebar, RB_SETBANDINFOW, 0, reinterpret_cast<LPARAM>(&band));
}

void ShowToolbarStates() {
    for (const ToolButton& button : FirstToolbar()) {
        if (button.command == 0) continue;
        const auto id = static_cast<WPARAM>(button.command);
        const auto shown = SendMessageW(toolbar, TB_GETSTATE, id, 0);
        constexpr int kOurs = TBSTATE_ENABLED | TBSTATE_CHECKED;
        const LRESULT wanted = (shown & ~kOurs) | StateOf(button.command);
        if (shown != wanted) SendMessageW(toolbar, TB_SETSTATE, id, MAKELPARAM(wanted, 0));
    }
}

}  // namespace app
