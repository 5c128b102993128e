// AircraftEditorWin.cpp - the window of the aircraft editor. What it lists and writes: Variations.h, AircraftEdits.h.
//
// The list holds no texts of its own but asks for those it shows: there may be thousands of rows.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <string>
#include <vector>

#include "aircraft/AircraftEditor.h"
#include "aircraft/AircraftEdits.h"
#include "aircraft/Variations.h"
#include "AircraftEditorIds.h"
#include "platform/DialogWin.h"
#include "platform/ListViewWin.h"
#include "platform/WideTextWin.h"

namespace aircraft {

namespace {

constexpr char kTopic[] = "#AircraftEditor";
constexpr platform::Column kColumnTitles[kColumns] = {
    { "Manufacturer", 20 }, { "Type", 14 },          { "Variation (paint scheme)", 22 },
    { "Airline", 17 },      { "Parking types", 13 }, { "Code", 7 },
    { "Radius", 7 },
};
constexpr int kFields[] = { IDC_AIRCRAFT_TITLE, IDC_AIRCRAFT_AIRLINE, IDC_AIRCRAFT_TYPES, IDC_AIRCRAFT_CODE_SELECTOR,
                            IDC_AIRCRAFT_CODE };

struct EditorWindow {
    std::string simulatorFolder;
    HWND handle = nullptr, list = nullptr;
    std::vector<Variation> rows;  // as the list shows them
    std::vector<CodeChoice> choices;
    Aircraft aircraft;  // of the selected row
    SortOrder order;
    bool busy = false;  // what the controls report is our own doing
};

EditorWindow& EditorOf(HWND handle) { return *static_cast<EditorWindow*>(platform::DialogData(handle)); }

int SelectedRow(const EditorWindow& editor) { return platform::SelectedListRow(editor.list); }

void ShowCode(EditorWindow* editor) {
    const std::string code = platform::FieldText(editor->handle, IDC_AIRCRAFT_CODE);
    platform::SetChoice(editor->handle, IDC_AIRCRAFT_CODE_SELECTOR, CodeChoiceOf(editor->choices, code));
}

void ShowFields(EditorWindow* editor) {
    const HWND handle = editor->handle;
    const Aircraft& aircraft = editor->aircraft;
    editor->busy = true;
    platform::SetFieldText(handle, IDC_AIRCRAFT_TITLE, aircraft.title);
    platform::SetFieldText(handle, IDC_AIRCRAFT_AIRLINE, aircraft.shown.airline);
    platform::SetFieldText(handle, IDC_AIRCRAFT_TYPES, aircraft.shown.types);
    platform::SetFieldText(handle, IDC_AIRCRAFT_CODE, aircraft.shown.code);
    platform::SetFieldText(handle, IDC_AIRCRAFT_RADIUS, aircraft.shown.radius);
    ShowCode(editor);
    for (const int field : kFields) platform::EnableField(handle, field, !aircraft.configPath.empty());
    platform::EnableField(handle, IDC_AIRCRAFT_RADIUS, aircraft.radius != 0);
    platform::EnableField(handle, IDC_AIRCRAFT_RESTORE, aircraft.hasBackup);
    editor->busy = false;
}

AircraftFields EnteredFields(const EditorWindow& editor) {
    const auto text = [&](int field) { return platform::FieldText(editor.handle, field); };
    return { text(IDC_AIRCRAFT_AIRLINE), text(IDC_AIRCRAFT_TYPES), text(IDC_AIRCRAFT_CODE), text(IDC_AIRCRAFT_RADIUS) };
}

void ShowSelected(EditorWindow* editor) {
    const int row = SelectedRow(*editor);
    const bool known = row >= 0 && static_cast<size_t>(row) < editor->rows.size();
    editor->aircraft = known ? LoadAircraft(editor->rows[static_cast<size_t>(row)]) : Aircraft{};
    ShowFields(editor);
    editor->aircraft.shown = EnteredFields(*editor);  // as the fields took it: one of them makes capitals
}

void ShowSortArrow(const EditorWindow& editor) {
    const platform::Sorted sorted = editor.order.descending ? platform::Sorted::Down : platform::Sorted::Up;
    for (int column = 0; column < kColumns; ++column) {
        platform::MarkListColumn(editor.list, column, column == editor.order.column ? sorted : platform::Sorted::Not);
    }
}

int RowOf(const std::vector<Variation>& rows, const Variation& wanted) {
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const Variation& row) {
        return row.folder == wanted.folder && row.number == wanted.number;
    });
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

// What is being edited stays, the selected row goes along to its new place.
void Sort(EditorWindow* editor) {
    const int selected = SelectedRow(*editor);
    const Variation before = selected < 0 ? Variation{} : editor->rows[static_cast<size_t>(selected)];
    SortVariations(&editor->rows, editor->order);
    ShowSortArrow(*editor);
    editor->busy = true;
    if (selected >= 0) platform::SelectListRow(editor->list, RowOf(editor->rows, before));
    editor->busy = false;
    InvalidateRect(editor->list, nullptr, TRUE);
}

void OnColumnClicked(EditorWindow* editor, int column) {
    editor->order = OrderAfterClick(editor->order, column);
    Sort(editor);
}

void OnOk(EditorWindow* editor) {
    constexpr int kControls[] = { 0, IDC_AIRCRAFT_AIRLINE, IDC_AIRCRAFT_TYPES, IDC_AIRCRAFT_CODE, IDC_AIRCRAFT_RADIUS };
    AircraftField bad = AircraftField::None;
    if (ApplyFields(editor->aircraft, EnteredFields(*editor), &bad)) {
        EndDialog(editor->handle, IDOK);
    } else if (bad != AircraftField::None) {
        platform::FocusField(editor->handle, kControls[static_cast<int>(bad)]);
    }
}

void OnRestore(EditorWindow* editor) {
    const int row = SelectedRow(*editor);
    if (row < 0 || !RestoreAircraft(editor->aircraft)) return;
    RefreshVariations(editor->rows[static_cast<size_t>(row)].folder, &editor->rows);
    ShowSelected(editor);
    InvalidateRect(editor->list, nullptr, TRUE);
}

void OnCodeChosen(EditorWindow* editor) {
    const int choice = platform::ChoiceOf(editor->handle, IDC_AIRCRAFT_CODE_SELECTOR);
    if (choice < 0) return;
    editor->busy = true;
    platform::SetFieldText(editor->handle, IDC_AIRCRAFT_CODE, editor->choices[static_cast<size_t>(choice)].code);
    editor->busy = false;
}

void OnCommand(EditorWindow* editor, int id, int code) {
    if (editor->busy) return;
    switch (id) {
    case IDOK: OnOk(editor); break;
    case IDCANCEL: EndDialog(editor->handle, IDCANCEL); break;
    case IDHELP: OpenHelpTopic(kTopic); break;
    case IDC_AIRCRAFT_RESTORE: OnRestore(editor); break;
    case IDC_AIRCRAFT_CODE:
        if (code == EN_CHANGE) ShowCode(editor);
        break;
    case IDC_AIRCRAFT_CODE_SELECTOR:
        if (code == CBN_SELCHANGE) OnCodeChosen(editor);
        break;
    default: break;
    }
}

void OnTextAsked(const EditorWindow& editor, LVITEMW* item) {
    const auto row = static_cast<size_t>(item->iItem);
    if (!(item->mask & LVIF_TEXT) || item->iItem < 0 || row >= editor.rows.size() || item->cchTextMax <= 0) return;
    const std::wstring text = platform::WideFromUtf8(CellText(editor.rows[row], item->iSubItem));
    lstrcpynW(item->pszText, text.c_str(), item->cchTextMax);
}

// Typing finds in the column by which the list is sorted.
int OnFindAsked(const EditorWindow& editor, const NMLVFINDITEMW& find) {
    if (!(find.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) || !find.lvfi.psz) return -1;
    return FindVariation(editor.rows, editor.order.column, platform::Utf8FromWide(find.lvfi.psz), find.iStart);
}

INT_PTR OnNotify(EditorWindow* editor, NMHDR* notice) {
    if (notice->idFrom != IDC_AIRCRAFT_LIST) return FALSE;
    switch (notice->code) {
    case LVN_GETDISPINFOW: OnTextAsked(*editor, &reinterpret_cast<NMLVDISPINFOW*>(notice)->item); return TRUE;
    case LVN_ODFINDITEMW:
        SetWindowLongPtrW(editor->handle, DWLP_MSGRESULT,
                          OnFindAsked(*editor, *reinterpret_cast<NMLVFINDITEMW*>(notice)));
        return TRUE;
    case LVN_COLUMNCLICK: OnColumnClicked(editor, reinterpret_cast<NMLISTVIEW*>(notice)->iSubItem); return TRUE;
    case LVN_ITEMCHANGED: {
        const auto& change = *reinterpret_cast<NMLISTVIEW*>(notice);
        if (!editor->busy && ((change.uNewState ^ change.uOldState) & LVIS_SELECTED)) ShowSelected(editor);
        return TRUE;
    }
    default: return FALSE;
    }
}

void FillSelector(EditorWindow* editor) {
    std::vector<std::string> texts;
    for (const CodeChoice& choice : editor->choices) texts.push_back(choice.text);
    platform::FillChoices(editor->handle, IDC_AIRCRAFT_CODE_SELECTOR, texts);
}

void FillList(EditorWindow* editor) {
    SendMessageW(editor->list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    SendMessageW(editor->list, LVM_SETITEMCOUNT, editor->rows.size(), 0);
    platform::SetColumns(editor->list, kColumnTitles);
    ShowSortArrow(*editor);
    if (!editor->rows.empty()) platform::SelectListRow(editor->list, 0);
    ShowSelected(editor);
}

INT_PTR OnInit(HWND handle, LPARAM data) {
    platform::StartDialog(handle, data);
    EditorWindow& editor = EditorOf(handle);
    editor.handle = handle;
    editor.list = GetDlgItem(handle, IDC_AIRCRAFT_LIST);
    platform::LimitField(handle, IDC_AIRCRAFT_AIRLINE, kAirlineLimit);
    platform::LimitField(handle, IDC_AIRCRAFT_TYPES, kTypesLimit);
    platform::LimitField(handle, IDC_AIRCRAFT_CODE, kCodeLimit);
    FillSelector(&editor);
    FillList(&editor);
    SetFocus(editor.list);
    return FALSE;  // the focus is where it belongs
}

INT_PTR CALLBACK EditorProc(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) return OnInit(handle, lParam);
    if (!platform::DialogData(handle)) return FALSE;
    EditorWindow& editor = EditorOf(handle);
    switch (message) {
    case WM_COMMAND: OnCommand(&editor, LOWORD(wParam), HIWORD(wParam)); return TRUE;
    case WM_NOTIFY: return OnNotify(&editor, reinterpret_cast<NMHDR*>(lParam));
    case platform::kDpiChanged: PostMessageW(handle, platform::kFitColumns, 0, 0); return FALSE;
    case platform::kFitColumns: platform::FitColumns(editor.list, kColumnTitles); return TRUE;
    default: return FALSE;
    }
}

}  // namespace

void ShowAircraftEditor(const std::string& simulatorFolder) {
    EditorWindow editor;
    const HCURSOR before = SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    editor.rows = ListVariations(simulatorFolder);
    SortVariations(&editor.rows, editor.order);
    editor.choices = CodeChoices();
    SetCursor(before);
    platform::RunDialog(IDD_AIRCRAFT_EDITOR, EditorProc, &editor);
}

}  // namespace aircraft
