// FaultFinderWin.cpp - the Fault Finder, a window that stays open beside the map.
#include <windows.h>

#include "FaultFinderIds.h"
#include "faults/FaultFinder.h"
#include "faults/FaultHost.h"
#include "faults/Messages.h"
#include "platform/DialogWin.h"
#include "platform/PlatformWin.h"

namespace faults {

namespace {

constexpr char kTopic[] = "#FaultFinder";
constexpr int kAtRightEdge = 24, kBelowCaption = 110;  // pixels at 96 dpi: clear of the map's middle, where faults show

void ShowSwitches(HWND dialog) {
    for (int i = 0; i < kCheckCount; ++i)
        platform::CheckField(dialog, IDC_FIRST_CHECK + i, state.search.switches[static_cast<size_t>(i)]);
}

Switches ReadSwitches(HWND dialog) {
    Switches switches{};
    for (int i = 0; i < kCheckCount; ++i)
        switches[static_cast<size_t>(i)] = platform::IsFieldChecked(dialog, IDC_FIRST_CHECK + i);
    return switches;
}

void ShowMessageText(HWND dialog, std::string_view text) {
    platform::SetFieldText(dialog, IDC_FAULT_MESSAGE, text);
    UpdateWindow(GetDlgItem(dialog, IDC_FAULT_MESSAGE));
}

// Every fault is shown in the middle of the map, so the window keeps away from there.
void PlaceAside(HWND dialog) {
    const HWND owner = GetWindow(dialog, GW_OWNER);
    if (!owner || IsIconic(owner)) return;
    RECT over{}, own{};
    GetWindowRect(owner, &over);
    GetWindowRect(dialog, &own);
    const int dpi = platform::DpiOf(owner);
    const LONG right = over.right - platform::ScaleToDpi(kAtRightEdge, dpi);
    platform::PlaceDialog(dialog,
                          { right - (own.right - own.left), over.top + platform::ScaleToDpi(kBelowCaption, dpi) });
}

void OnInit(HWND dialog, LPARAM data) {
    platform::StartDialog(dialog, data);
    PlaceAside(dialog);
    platform::UseKeys(dialog, LoadAcceleratorsW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDR_FAULT_KEYS)));
    OpenFinder();
    ShowSwitches(dialog);
    SetFocus(GetDlgItem(dialog, IDC_FIND_FAULTS));
}

void OnFind(HWND dialog) {
    if (!MayFindFaults()) return ShowMessageText(dialog, kEditUnderWayMessage);
    ShowMessageText(dialog, kCheckingMessage);
    ShowMessageText(dialog, FindFaults(ReadSwitches(dialog)));
    ShowMapState();
}

bool OnCommand(HWND dialog, int control) {
    switch (control) {
    case IDC_FIND_FAULTS: OnFind(dialog); return true;
    case IDCANCEL: DestroyWindow(dialog); return true;
    case IDHELP: OpenHelpTopic(kTopic); return true;
    default: return false;
    }
}

INT_PTR CALLBACK FaultFinderProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG: OnInit(dialog, lParam); return FALSE;  // the focus is set
    case WM_COMMAND: return OnCommand(dialog, LOWORD(wParam));
    case WM_DESTROY: CloseFinder(); return TRUE;
    default: return FALSE;
    }
}

}  // namespace

void OpenFaultFinder() {
    if (const HWND dialog = platform::OpenDialog(IDD_FAULT_FINDER, FaultFinderProc, nullptr))
        ShowWindow(dialog, SW_SHOW);
}

}  // namespace faults
