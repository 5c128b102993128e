// OpenAirportWin.cpp - the window of the Open Airport dialog. What it lists and opens: OpenAirportRules.h.
//
// The tree is filled level by level, as the user opens it: the library has tens of thousands of places.
#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include "app/AirportFileWin.h"
#include "app/AppHost.h"
#include "app/AppState.h"
#include "app/HelpPage.h"
#include "app/OpenAirportRules.h"
#include "app/RecentAirports.h"
#include "bgl/AirportIndex.h"
#include "OpenAirportIds.h"
#include "platform/DialogWin.h"
#include "platform/ListViewWin.h"
#include "platform/WideTextWin.h"

namespace app {

namespace {

constexpr UINT_PTR kCollectTimer = 1;
constexpr UINT kCollectDelay = 60;  // milliseconds; the dialog is seen before the work begins
constexpr platform::Column kColumns[] = { { "ID", 14 }, { "Type", 15 }, { "Layer", 16 }, { "Name", 55 } };

struct OpenDialog {
    HWND handle = nullptr, places = nullptr, airports = nullptr;
    std::vector<AirportRow> rows;  // as the list shows them
    bool busy = false;             // what the controls report is our own doing
};

OpenDialog& DialogOf(HWND handle) { return *static_cast<OpenDialog*>(platform::DialogData(handle)); }

// The dialog itself may leave the former default button the frame of one.
void SetDefaultButton(const OpenDialog& dialog, int button) {
    const int former = LOWORD(SendMessageW(dialog.handle, DM_GETDEFID, 0, 0));
    SendMessageW(dialog.handle, DM_SETDEFID, static_cast<WPARAM>(button), 0);
    SendDlgItemMessageW(dialog.handle, former, BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
    SendDlgItemMessageW(dialog.handle, button, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
}

void SetListText(HWND list, int row, int column, const std::string& text) {
    std::wstring wide = platform::WideFromUtf8(text);
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = row;
    item.iSubItem = column;
    item.pszText = wide.data();
    SendMessageW(list, column == 0 ? LVM_INSERTITEMW : LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
}

void ShowRows(OpenDialog* dialog) {
    const HWND list = dialog->airports;
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list, LVM_DELETEALLITEMS, 0, 0);
    int row = 0;
    for (const AirportRow& airport : dialog->rows) {
        int column = 0;
        for (const std::string* text : { &airport.ident, &airport.type, &airport.layer, &airport.name }) {
            SetListText(list, row, column++, *text);
        }
        ++row;
    }
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list, nullptr, TRUE);
}

void AddTreeItem(HWND tree, HTREEITEM parent, uint32_t place) {
    std::wstring text = platform::WideFromUtf8(PlaceText(place));
    TVINSERTSTRUCTW insert{};
    insert.hParent = parent;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_CHILDREN;
    insert.item.pszText = text.data();
    insert.item.lParam = place;
    insert.item.cChildren = !bgl::library.places[place].children.empty();
    SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert));
}

void AddTreeLevel(HWND tree, HTREEITEM parent, uint32_t place) {
    SendMessageW(tree, WM_SETREDRAW, FALSE, 0);
    for (const uint32_t child : bgl::library.places[place].children) AddTreeItem(tree, parent, child);
    SendMessageW(tree, WM_SETREDRAW, TRUE, 0);
}

HTREEITEM ChildItem(HWND tree, HTREEITEM parent) {
    const WPARAM relation = parent == TVI_ROOT ? TVGN_ROOT : TVGN_CHILD;
    return reinterpret_cast<HTREEITEM>(SendMessageW(tree, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(parent)));
}

void EmptyTree(const OpenDialog& dialog) {
    SendMessageW(dialog.places, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
}

void FillTree(HWND tree) {
    if (!bgl::library.places.empty()) AddTreeLevel(tree, TVI_ROOT, 0);
    HTREEITEM item = ChildItem(tree, TVI_ROOT);
    for (size_t levels = LevelsToOpen(); levels > 0 && item; --levels) {
        SendMessageW(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(item));
        item = ChildItem(tree, item);
    }
}

void ClearIdent(OpenDialog* dialog) {
    const bool before = dialog->busy;
    dialog->busy = true;
    platform::SetFieldText(dialog->handle, IDC_AIRPORT_ID, "");
    dialog->busy = before;
}

// Tree and list are empty then; a collection that the opening has put off is off.
void Release(OpenDialog* dialog) {
    KillTimer(dialog->handle, kCollectTimer);
    const bool before = dialog->busy;
    dialog->busy = true;
    dialog->rows.clear();
    ShowRows(dialog);
    EmptyTree(*dialog);
    dialog->busy = before;
    bgl::ReleaseLibrary();
}

void Collect(OpenDialog* dialog) {
    dialog->busy = true;  // the windows live on meanwhile, and a second collection must not begin in the first
    Release(dialog);
    UpdateWindow(dialog->handle);
    CollectAirports(state.simulatorFolder, state.programFolder);
    dialog->busy = false;
    FillTree(dialog->places);
}

void ShowSource(const OpenDialog& dialog) {
    CheckRadioButton(dialog.handle, IDC_SPECIFIC_FILE, IDC_ALL_SCENERY,
                     airportSource.fromFile ? IDC_SPECIFIC_FILE : IDC_ALL_SCENERY);
    platform::EnableField(dialog.handle, IDC_OPEN_FILE, airportSource.fromFile);
    platform::EnableField(dialog.handle, IDC_FILE_NAME, airportSource.fromFile);
    platform::SetFieldText(dialog.handle, IDC_FILE_NAME, airportSource.specificFile);
}

void SwitchSource(OpenDialog* dialog, bool fromFile) {
    if (airportSource.fromFile == fromFile) return;
    airportSource.fromFile = fromFile;
    ShowSource(*dialog);
    if (fromFile)
        Release(dialog);
    else
        Collect(dialog);
}

void OnOpenFile(OpenDialog* dialog) {
    if (!AskAirportFile(dialog->handle, &airportSource.specificFile)) return;
    ShowSource(*dialog);
    Collect(dialog);
}

// From the button the user goes on to what was found; whoever types stays in the field.
void OnSearch(OpenDialog* dialog) {
    dialog->rows = SearchRows(platform::FieldText(dialog->handle, IDC_AIRPORT_ID));
    ShowRows(dialog);
    SetDefaultButton(*dialog, IDOK);
    const bool fromButton = GetFocus() == GetDlgItem(dialog->handle, IDC_SEARCH);
    if (fromButton && !dialog->rows.empty())
        SendMessageW(dialog->handle, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(dialog->airports), TRUE);
}

void OnOk(OpenDialog* dialog) {
    const int selected = platform::SelectedListRow(dialog->airports);
    const AirportRow* row = ChooseRow(&dialog->rows, selected, platform::FieldText(dialog->handle, IDC_AIRPORT_ID));
    if (selected < 0) ShowRows(dialog);
    if (!row) return platform::FocusField(dialog->handle, IDC_AIRPORT_ID);
    if (OpenAndRemember(row->path, row->ident)) EndDialog(dialog->handle, IDOK);
}

void OnPlaceSelected(OpenDialog* dialog, const TVITEMW& item, bool byUser) {
    const std::string ident = platform::FieldText(dialog->handle, IDC_AIRPORT_ID);
    if (!ListPlace(static_cast<uint32_t>(item.lParam), byUser, ident, &dialog->rows)) return;
    ShowRows(dialog);
    ClearIdent(dialog);
    SetDefaultButton(*dialog, IDOK);
}

LRESULT OnDrawList(const OpenDialog& dialog, NMLVCUSTOMDRAW* draw) {
    if (draw->nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
    const size_t row = draw->nmcd.dwItemSpec;
    if (draw->nmcd.dwDrawStage == CDDS_ITEMPREPAINT && row < dialog.rows.size() && dialog.rows[row].superseded)
        draw->clrText = RGB(kSupersededGrey, kSupersededGrey, kSupersededGrey);
    return CDRF_DODEFAULT;
}

// A click on the item that is selected already changes nothing, and so is not told as a selection.
void OnTreeClick(OpenDialog* dialog) {
    const DWORD place = GetMessagePos();
    TVHITTESTINFO hit{};
    hit.pt = { static_cast<short>(LOWORD(place)), static_cast<short>(HIWORD(place)) };
    ScreenToClient(dialog->places, &hit.pt);
    SendMessageW(dialog->places, TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    if (!hit.hItem || !(hit.flags & TVHT_ONITEM)) return;
    TVITEMW item{};
    item.mask = TVIF_PARAM | TVIF_STATE;
    item.stateMask = TVIS_SELECTED;
    item.hItem = hit.hItem;
    SendMessageW(dialog->places, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    if (item.state & TVIS_SELECTED) OnPlaceSelected(dialog, item, true);
}

void OnTreeNotice(OpenDialog* dialog, const NMTREEVIEWW& notice) {
    const TVITEMW& item = notice.itemNew;
    if (notice.hdr.code == TVN_SELCHANGEDW && item.hItem)
        OnPlaceSelected(dialog, item, notice.action == TVC_BYMOUSE || notice.action == TVC_BYKEYBOARD);
    if (notice.hdr.code == TVN_ITEMEXPANDINGW && !ChildItem(dialog->places, item.hItem))
        AddTreeLevel(dialog->places, item.hItem, static_cast<uint32_t>(item.lParam));
}

void OnListNotice(OpenDialog* dialog, NMHDR* notice) {
    if (notice->code == static_cast<UINT>(NM_DBLCLK) && reinterpret_cast<NMITEMACTIVATE*>(notice)->iItem >= 0)
        return OnOk(dialog);
    const auto* change = reinterpret_cast<NMLISTVIEW*>(notice);
    if (notice->code == LVN_ITEMCHANGED && (change->uNewState & LVIS_SELECTED)) SetDefaultButton(*dialog, IDOK);
}

INT_PTR OnNotify(OpenDialog* dialog, NMHDR* notice) {
    if (notice->idFrom == IDC_AIRPORTS && notice->code == static_cast<UINT>(NM_CUSTOMDRAW)) {
        SetWindowLongPtrW(dialog->handle, DWLP_MSGRESULT,
                          OnDrawList(*dialog, reinterpret_cast<NMLVCUSTOMDRAW*>(notice)));
        return TRUE;
    }
    if (dialog->busy) return FALSE;
    if (notice->idFrom == IDC_PLACES && notice->code == static_cast<UINT>(NM_CLICK)) OnTreeClick(dialog);
    if (notice->idFrom == IDC_PLACES) OnTreeNotice(dialog, *reinterpret_cast<NMTREEVIEWW*>(notice));
    if (notice->idFrom == IDC_AIRPORTS) OnListNotice(dialog, notice);
    return FALSE;
}

void OnCommand(OpenDialog* dialog, int id, int code) {
    if (dialog->busy) return;
    switch (id) {
    case IDOK: OnOk(dialog); break;
    case IDCANCEL: EndDialog(dialog->handle, IDCANCEL); break;
    case IDC_SEARCH: OnSearch(dialog); break;
    case IDC_OPEN_FILE: OnOpenFile(dialog); break;
    case IDC_OPEN_HELP: OpenHelp("#StartingTarvo"); break;
    case IDC_ALL_SCENERY: SwitchSource(dialog, false); break;
    case IDC_SPECIFIC_FILE: SwitchSource(dialog, true); break;
    case IDC_AIRPORT_ID:
        if (code == EN_CHANGE) SetDefaultButton(*dialog, IDC_SEARCH);
        break;
    default: break;
    }
}

INT_PTR OnInit(HWND handle, LPARAM data) {
    platform::StartDialog(handle, data);
    OpenDialog& dialog = DialogOf(handle);
    dialog.handle = handle;
    dialog.places = GetDlgItem(handle, IDC_PLACES);
    dialog.airports = GetDlgItem(handle, IDC_AIRPORTS);
    SendMessageW(dialog.airports, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    platform::SetColumns(dialog.airports, kColumns);
    platform::LimitField(handle, IDC_AIRPORT_ID, kIdentFieldLimit);
    ClearIdent(&dialog);
    ShowSource(dialog);
    SetTimer(handle, kCollectTimer, kCollectDelay, nullptr);
    SetFocus(GetDlgItem(handle, IDC_AIRPORT_ID));
    return FALSE;  // the focus is where it belongs
}

INT_PTR OnTimer(OpenDialog* dialog) {
    if (!IsWindowVisible(dialog->handle)) return TRUE;
    Collect(dialog);
    return TRUE;
}

INT_PTR CALLBACK DialogProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) return OnInit(handle, lParam);
    if (!platform::DialogData(handle)) return FALSE;
    OpenDialog& dialog = DialogOf(handle);
    switch (message) {
    case WM_TIMER: return wParam == kCollectTimer && OnTimer(&dialog);
    case WM_NOTIFY: return OnNotify(&dialog, reinterpret_cast<NMHDR*>(lParam));
    case WM_COMMAND: OnCommand(&dialog, LOWORD(wParam), HIWORD(wParam)); return TRUE;
    case platform::kDpiChanged: PostMessageW(handle, platform::kFitColumns, 0, 0); return FALSE;
    case platform::kFitColumns: platform::FitColumns(dialog.airports, kColumns); return TRUE;
    default: return FALSE;
    }
}

}  // namespace

void ShowOpenAirportDialog() {
    OpenDialog dialog;
    platform::RunDialog(IDD_OPEN_AIRPORT, DialogProc, &dialog);
    bgl::ReleaseLibrary();
}

}  // namespace app
