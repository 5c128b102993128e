// ListWin.cpp - the six list windows. What they show and do: ListRows.h and ParkingOrder.h.
//
// A row knows its object by pointer. The airport may change while a list is open, so its rows are compared with the
// model's revision before one of them is used.
#include "dialogs/ListWin.h"

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <utility>

#include "app/Settings.h"
#include "dialogs/DialogHost.h"
#include "dialogs/Editors.h"
#include "dialogs/ListControlWin.h"
#include "dialogs/NewIls.h"
#include "dialogs/OverMap.h"
#include "dialogs/ParkingOrder.h"
#include "ListIds.h"
#include "model/ObjectList.h"
#include "platform/DialogWin.h"
#include "platform/PlatformWin.h"
#include "platform/WideTextWin.h"

namespace dialogs {

namespace {

// How the parking list is sorted besides by a column.
constexpr int kOriginalOrder = -1, kRandomOrder = -2;

struct Window {
    ListKind kind;
    int resource;
    const char* topic;
    HWND dialog = nullptr;
    ListControl list{};
    std::vector<ListRow> rows{};
    uint64_t revision = 0;  // of the model that the rows were read from
    bool metric = false, metricRadius = false;
    int order = kOriginalOrder;  // or a ParkingKey
    bool filling = false;        // what the control reports is our own doing
    TypedWord typed{};
    uint32_t keyTime = 0;  // of the key pressed last, by its message: however late it arrives, pauses are the user's
};

Window windows[] = {
    { ListKind::Navaids, IDD_NAVAID_LIST, "#Navaids" },
    { ListKind::Runways, IDD_RUNWAY_LIST, "#Runways" },
    { ListKind::Parking, IDD_PARKING_LIST, "#ParkingList" },
    { ListKind::Starts, IDD_START_LIST, "#StartLocations" },
    { ListKind::Designators, IDD_DESIGNATOR_LIST, "#Designators" },
    { ListKind::Comms, IDD_COMM_LIST, "#CommFrequencies" },
};

Window* WindowOf(HWND dialog) { return static_cast<Window*>(platform::DialogData(dialog)); }

bool IsOutdated(const Window& window) {
    return window.revision != model::state.revision || window.metric != app::settings.metric ||
           window.metricRadius != app::settings.metricParkingRadius;
}

void ReadRows(Window* window) {
    std::vector<ListRow> rows = ListRows(window->kind);
    if (window->order != kOriginalOrder) OrderLike(window->rows, &rows);
    if (window->order >= 0) SortParking(static_cast<ParkingKey>(window->order), &rows);
    window->rows = std::move(rows);
    window->revision = model::state.revision;
    window->metric = app::settings.metric;
    window->metricRadius = app::settings.metricParkingRadius;
}

void ShowRows(Window* window, const SceneryObject* object, int otherwise = -1) {
    const int top = TopRow(window->list);
    window->filling = true;
    FillList(&window->list, window->rows);
    ScrollToRow(window->list, top);
    const int row = RowToSelect(window->rows, object, otherwise);
    if (row >= 0) SelectRow(window->list, row);
    window->filling = false;
}

// The object of the selected row, by its pointer only: it may be gone.
SceneryObject* SelectedObject(const Window& window) {
    const int row = SelectedRow(window.list);
    return row >= 0 && static_cast<size_t>(row) < window.rows.size() ? window.rows[static_cast<size_t>(row)].object
                                                                     : nullptr;
}

void Refresh(Window* window) {
    if (!IsOutdated(*window)) return;
    const SceneryObject* selected = SelectedObject(*window);
    ReadRows(window);
    ShowRows(window, selected);
}

void OnSelected(Window* window) {
    Refresh(window);
    if (SceneryObject* object = SelectedObject(*window)) ShowEntry(object);
}

void Resume(const Window& window) {
    if (!window.dialog) return;
    SetActiveWindow(window.dialog);
    SetFocus(window.list.rows);
}

void OnProperties(Window* window) {
    SceneryObject* object = SelectedObject(*window);
    if (!IsEntrySelected(object)) return;
    EditObject(object);
    if (!window->dialog) return;  // the program is ending
    ReadRows(window);
    ShowRows(window, object);
    Resume(*window);
}

void OnDelete(Window* window) {
    const int row = SelectedRow(window->list);
    if (!DeleteEntry(SelectedObject(*window))) return Refresh(window);
    ReadRows(window);
    ShowRows(window, nullptr, row);
    OnSelected(window);
}

void OnInsert(Window* window) {
    const bool inserted = InsertCommDialog();
    if (!window->dialog) return;
    const SceneryObject* selected = SelectedObject(*window);
    ReadRows(window);
    ShowRows(window, inserted ? window->rows.back().object : selected);
    Resume(*window);
}

void SetOrder(Window* window, int order) {
    const SceneryObject* selected = SelectedObject(*window);
    window->order = order;
    if (order == kOriginalOrder) OriginalParkingOrder(&window->rows);
    if (order == kRandomOrder) RandomizeParking(SeededRandom(), &window->rows);
    if (order >= 0) SortParking(static_cast<ParkingKey>(order), &window->rows);
    MarkSortedColumn(window->list, order);
    ShowRows(window, selected);
}

// Meanwhile the airport must stay as it is.
bool IsHeld(const Window& window) {
    return window.filling || overMap.open || model::state.busy || !IsWindowEnabled(platform::MainWindow());
}

bool HasProperties(const Window& window) { return GetDlgItem(window.dialog, IDC_LIST_PROPERTIES) != nullptr; }

void OnTyped(Window* window, wchar_t character) {
    if (IsHeld(*window)) return;
    const std::string typed = platform::Utf8FromWide({ &character, 1 });
    const int selected = SelectedRow(window->list);
    const int row = RowAfterTyping(window->rows, selected, typed, window->keyTime, &window->typed);
    if (row == selected) return;
    SelectRow(window->list, row);
    OnSelected(window);
}

// Enter opens and Del deletes while the rows have the focus.
LRESULT CALLBACK RowsProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR data) {
    auto* window = reinterpret_cast<Window*>(data);
    const auto* pressed = reinterpret_cast<const MSG*>(lParam);
    const bool enterOpens = HasProperties(*window) && SelectedRow(window->list) >= 0;
    switch (message) {
    case WM_GETDLGCODE:
        if (pressed && pressed->message == WM_KEYDOWN && pressed->wParam == VK_RETURN && enterOpens)
            return DLGC_WANTMESSAGE;
        break;
    case WM_KEYDOWN:
        window->keyTime = static_cast<uint32_t>(GetMessageTime());
        if (wParam == VK_RETURN) {
            PostMessageW(window->dialog, WM_COMMAND, IDC_LIST_PROPERTIES, 0);
            return 0;
        }
        if (wParam == VK_DELETE) {
            PostMessageW(window->dialog, WM_COMMAND, IDC_LIST_DELETE, 0);
            return 0;
        }
        break;
    case WM_CHAR:
        if (wParam > L' ' || (wParam == L' ' && !window->typed.text.empty()))
            OnTyped(window, static_cast<wchar_t>(wParam));
        return 0;
    case WM_HSCROLL:
        if (window->list.header) InvalidateRect(window->list.header, nullptr, TRUE);
        break;
    case WM_NCDESTROY: RemoveWindowSubclass(control, RowsProc, 0); break;
    default: break;
    }
    return DefSubclassProc(control, message, wParam, lParam);
}

INT_PTR OnInit(HWND dialog, LPARAM data) {
    platform::StartDialog(dialog, data);
    Window* window = WindowOf(dialog);
    window->dialog = dialog;
    window->order = kOriginalOrder;
    window->typed = {};
    const HWND rows = GetDlgItem(dialog, IDC_LIST_ROWS);
    StartListControl(&window->list, rows, GetDlgItem(dialog, IDC_LIST_HEADER), ListHeader(window->kind));
    SetWindowSubclass(rows, RowsProc, 0, reinterpret_cast<DWORD_PTR>(window));
    ReadRows(window);
    ShowRows(window, nullptr);
    return TRUE;
}

void OnDestroy(Window* window) {
    window->dialog = nullptr;
    window->rows.clear();
}

void OnCommand(Window* window, int id, int code) {
    if (id == IDCANCEL) {
        DestroyWindow(window->dialog);
        return;
    }
    if (id == IDHELP) return OpenHelpTopic(window->topic);
    if (IsHeld(*window)) return;
    Refresh(window);
    switch (id) {
    case IDC_LIST_ROWS:
        if (code == LBN_SELCHANGE) OnSelected(window);
        if (code == LBN_DBLCLK && HasProperties(*window) && IsPointerOnRow(window->list)) OnProperties(window);
        break;
    case IDC_LIST_DELETE: OnDelete(window); break;
    case IDC_LIST_PROPERTIES: OnProperties(window); break;
    case IDC_LIST_INSERT: OnInsert(window); break;
    case IDC_LIST_RANDOMIZE: SetOrder(window, kRandomOrder); break;
    case IDC_LIST_ORIGINAL_ORDER: SetOrder(window, kOriginalOrder); break;
    default: break;
    }
}

void OnNotify(Window* window, NMHDR* notice) {
    if (notice->code == LVN_GETDISPINFOW)
        return AnswerCell(window->rows, &reinterpret_cast<NMLVDISPINFOW*>(notice)->item);
    if (notice->idFrom != IDC_LIST_ROWS || IsHeld(*window)) return;
    const auto* change = reinterpret_cast<const NMLISTVIEW*>(notice);
    switch (notice->code) {
    case LVN_ITEMCHANGED:
        if ((change->uNewState & LVIS_SELECTED) && !(change->uOldState & LVIS_SELECTED)) OnSelected(window);
        break;
    case LVN_COLUMNCLICK:
        Refresh(window);
        SetOrder(window, change->iSubItem);
        break;
    case static_cast<UINT>(NM_DBLCLK):
        if (reinterpret_cast<const NMITEMACTIVATE*>(notice)->iItem >= 0)
            PostMessageW(window->dialog, WM_COMMAND, IDC_LIST_PROPERTIES, 0);
        break;
    default: break;
    }
}

INT_PTR CALLBACK ListProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) return OnInit(dialog, lParam);
    Window* window = WindowOf(dialog);
    if (!window) return FALSE;
    switch (message) {
    case WM_COMMAND: OnCommand(window, LOWORD(wParam), HIWORD(wParam)); return TRUE;
    case WM_NOTIFY: OnNotify(window, reinterpret_cast<NMHDR*>(lParam)); return FALSE;
    case WM_DRAWITEM: DrawListHeader(window->list, *reinterpret_cast<DRAWITEMSTRUCT*>(lParam)); return TRUE;
    case platform::kDpiChanged:
        PostMessageW(dialog, platform::kFitColumns, 0, 0);
        return FALSE;  // the dialog gets its new size first
    case platform::kFitColumns: FitList(&window->list, window->rows); return TRUE;
    case WM_DESTROY: OnDestroy(window); return FALSE;
    default: return FALSE;
    }
}

}  // namespace

void ShowList(ListKind kind) {
    for (Window& window : windows) {
        if (window.kind != kind) continue;
        if (!window.dialog && !platform::OpenDialog(window.resource, ListProc, &window)) return;
        ShowWindow(window.dialog, SW_SHOW);
        Resume(window);
    }
}

void RefreshLists() {
    for (Window& window : windows) {
        if (!window.dialog || overMap.open) continue;
        if (!model::state.loaded)
            DestroyWindow(window.dialog);
        else
            Refresh(&window);
    }
}

}  // namespace dialogs
