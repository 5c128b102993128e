// DialogWin.cpp - see DialogWin.h.
#include "platform/DialogWin.h"

#include <commctrl.h>

#include <algorithm>
#include <iterator>

#include "platform/PlatformWin.h"
#include "platform/TabPagesWin.h"
#include "platform/WideTextWin.h"

namespace platform {

namespace {

std::vector<HWND> modeless;  // some may be destroyed by now

struct DialogKeys {
    HWND dialog;
    HACCEL keys;
};
std::vector<DialogKeys> dialogKeys;  // of modeless dialogs

struct OverMap {
    HWND dialog = nullptr;
    INT_PTR result = 0;
};
OverMap overMap;

HINSTANCE Program() { return GetModuleHandleW(nullptr); }

void ForgetClosed() {
    std::erase_if(modeless, [](HWND dialog) { return !IsWindow(dialog); });
    std::erase_if(dialogKeys, [](const DialogKeys& row) { return !IsWindow(row.dialog); });
}

bool TookKey(const DialogKeys& row, MSG* message) {
    if (!IsWindow(row.dialog)) return false;
    const HWND at = message->hwnd;
    if (at != row.dialog && !IsChild(row.dialog, at) && at != MainWindow()) return false;
    return TranslateAcceleratorW(row.dialog, row.keys, message) != 0;
}

void AddChoice(HWND dialog, int control, UINT add, std::string_view text) {
    SendDlgItemMessageW(dialog, control, add, 0, reinterpret_cast<LPARAM>(WideFromUtf8(text).c_str()));
}

bool IsListBox(HWND dialog, int control) {
    wchar_t name[16] = {};
    GetClassNameW(GetDlgItem(dialog, control), name, static_cast<int>(std::size(name)));
    return lstrcmpiW(name, L"ListBox") == 0;
}

template <typename Texts>
void Fill(HWND dialog, int control, const Texts& texts) {
    const bool listBox = IsListBox(dialog, control);
    SendDlgItemMessageW(dialog, control, listBox ? LB_RESETCONTENT : CB_RESETCONTENT, 0, 0);
    for (const auto& text : texts) AddChoice(dialog, control, listBox ? LB_ADDSTRING : CB_ADDSTRING, text);
}

// F1 presses the Help button, wherever in the dialog the focus is.
LRESULT CALLBACK HelpKeyProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
    if (message == WM_NCDESTROY) RemoveWindowSubclass(dialog, HelpKeyProc, 0);
    const HWND button = message == WM_HELP ? GetDlgItem(dialog, IDHELP) : nullptr;
    if (!button) return DefSubclassProc(dialog, message, wParam, lParam);
    SendMessageW(dialog, WM_COMMAND, IDHELP, reinterpret_cast<LPARAM>(button));
    return TRUE;
}

}  // namespace

INT_PTR RunDialog(int resource, DLGPROC procedure, void* data) {
    const HWND owner = OwnerOfDialogs();
    const OthersDisabled others(owner, nullptr);
    return DialogBoxParamW(Program(), MAKEINTRESOURCEW(resource), owner, procedure, reinterpret_cast<LPARAM>(data));
}

HWND OpenDialog(int resource, DLGPROC procedure, void* data) {
    const HWND dialog = CreateDialogParamW(Program(), MAKEINTRESOURCEW(resource), MainWindow(), procedure,
                                           reinterpret_cast<LPARAM>(data));
    ForgetClosed();
    if (dialog) modeless.push_back(dialog);
    return dialog;
}

INT_PTR RunDialogOverMap(int resource, DLGPROC procedure, void* data) {
    if (overMap.dialog) return -1;
    const HWND dialog = OpenDialog(resource, procedure, data);
    if (!dialog) return -1;
    overMap = { dialog, 0 };
    ShowWindow(dialog, SW_SHOW);
    const OthersDisabled others(dialog, MainWindow());
    MSG message;
    while (IsWindow(dialog)) {
        if (GetMessageW(&message, nullptr, 0, 0) <= 0) {  // the program is to end: so do the loops around this one
            DestroyWindow(dialog);
            PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        if (DialogTookMessage(&message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    const INT_PTR result = overMap.result;
    overMap = {};
    return result;
}

void EndDialogOverMap(HWND dialog, INT_PTR result) {
    overMap.result = result;
    if (MainWindow()) SetActiveWindow(MainWindow());
    DestroyWindow(dialog);
}

HWND DialogOverMap() { return overMap.dialog; }

void UseKeys(HWND dialog, HACCEL keys) { dialogKeys.push_back({ dialog, keys }); }

bool DialogTookMessage(MSG* message) {
    for (size_t i = dialogKeys.size(); i-- > 0;) {
        if (TookKey(dialogKeys[i], message)) return true;
    }
    for (size_t i = 0; i < modeless.size(); ++i) {
        if (!IsWindow(modeless[i])) continue;
        if (TurnedPage(modeless[i], *message) || IsDialogMessageW(modeless[i], message)) return true;
    }
    return false;
}

void StartDialog(HWND dialog, LPARAM data) {
    SetWindowLongPtrW(dialog, DWLP_USER, data);
    SetWindowSubclass(dialog, HelpKeyProc, 0, 0);
    HWND owner = GetWindow(dialog, GW_OWNER);
    if (!owner || IsIconic(owner)) owner = GetDesktopWindow();
    RECT over{}, own{};
    GetWindowRect(owner, &over);
    GetWindowRect(dialog, &own);
    PlaceDialog(dialog, { (over.left + over.right - own.right + own.left) / 2,
                          (over.top + over.bottom - own.bottom + own.top) / 2 });
}

void PlaceDialog(HWND dialog, POINT corner) {
    RECT own{};
    GetWindowRect(dialog, &own);
    const LONG width = own.right - own.left, height = own.bottom - own.top;
    const RECT there = { corner.x, corner.y, corner.x + width, corner.y + height };
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    GetMonitorInfoW(MonitorFromRect(&there, MONITOR_DEFAULTTONEAREST), &screen);
    const LONG x = std::max(screen.rcWork.left, std::min(corner.x, screen.rcWork.right - width));
    const LONG y = std::max(screen.rcWork.top, std::min(corner.y, screen.rcWork.bottom - height));
    SetWindowPos(dialog, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void* DialogData(HWND dialog) { return reinterpret_cast<void*>(GetWindowLongPtrW(dialog, DWLP_USER)); }

std::string FieldText(HWND dialog, int control) {
    const HWND field = GetDlgItem(dialog, control);
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(field)) + 1, L'\0');
    text.resize(static_cast<size_t>(GetWindowTextW(field, text.data(), static_cast<int>(text.size()))));
    return Utf8FromWide(text);
}

void SetFieldText(HWND dialog, int control, std::string_view text) {
    SetDlgItemTextW(dialog, control, WideFromUtf8(text).c_str());
}

void LimitField(HWND dialog, int control, size_t characters) {
    SendDlgItemMessageW(dialog, control, EM_SETLIMITTEXT, characters, 0);
}

void FocusField(HWND dialog, int control) {
    const HWND field = GetDlgItem(dialog, control);
    SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(field), TRUE);
    SendMessageW(field, EM_SETSEL, 0, -1);
}

bool IsFieldChecked(HWND dialog, int control) { return IsDlgButtonChecked(dialog, control) == BST_CHECKED; }

void CheckField(HWND dialog, int control, bool checked) {
    CheckDlgButton(dialog, control, checked ? BST_CHECKED : BST_UNCHECKED);
}

void EnableField(HWND dialog, int control, bool enabled) { EnableWindow(GetDlgItem(dialog, control), enabled); }

void ShowField(HWND dialog, int control, bool shown) {
    ShowWindow(GetDlgItem(dialog, control), shown ? SW_SHOWNA : SW_HIDE);
}

void FillChoices(HWND dialog, int control, const std::vector<std::string>& texts) { Fill(dialog, control, texts); }

void FillChoices(HWND dialog, int control, std::span<const char* const> texts) { Fill(dialog, control, texts); }

int ChoiceOf(HWND dialog, int control) {
    const UINT ask = IsListBox(dialog, control) ? LB_GETCURSEL : CB_GETCURSEL;
    return static_cast<int>(SendDlgItemMessageW(dialog, control, ask, 0, 0));
}

void SetChoice(HWND dialog, int control, int choice) {
    const UINT set = IsListBox(dialog, control) ? LB_SETCURSEL : CB_SETCURSEL;
    SendDlgItemMessageW(dialog, control, set, static_cast<WPARAM>(choice), 0);
}

void SetColumns(HWND list, std::span<const Column> columns) {
    for (size_t i = 0; i < columns.size(); ++i) {
        std::wstring title = WideFromUtf8(columns[i].title);
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_SUBITEM;
        column.pszText = title.data();
        column.iSubItem = static_cast<int>(i);
        SendMessageW(list, LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
    }
    FitColumns(list, columns);
}

void FitColumns(HWND list, std::span<const Column> columns) {
    RECT area{};
    GetClientRect(list, &area);
    const bool scrolls = GetWindowLongW(list, GWL_STYLE) & WS_VSCROLL;  // then its bar is not in the area
    const int bar = MulDiv(GetSystemMetrics(SM_CXVSCROLL), DpiOf(list), DpiOf(nullptr));
    const int whole = scrolls ? area.right : area.right - bar;
    int left = whole;
    for (size_t i = 0; i < columns.size(); ++i) {
        const int width = i + 1 == columns.size() ? left : whole * columns[i].share / 100;
        left -= width;
        SendMessageW(list, LVM_SETCOLUMNWIDTH, i, width);
    }
}

}  // namespace platform
