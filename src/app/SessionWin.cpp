// SessionWin.cpp - see SessionWin.h.
#include "app/SessionWin.h"

#include <string>

#include "app/AutoBackup.h"
#include "app/Program.h"
#include "app/SimLink.h"
#include "app/SimLinkHost.h"
#include "app/Timers.h"
#include "platform/DialogWin.h"
#include "platform/PlatformWin.h"
#include "platform/WideTextWin.h"

namespace app {

namespace {

constexpr UINT kBackupPeriod = 120000;  // milliseconds

bool saysWhyItStays = false;  // the system's shutdown screen has our reason

void SayWhyItStays(HWND window) {
    saysWhyItStays = ShutdownBlockReasonCreate(window, L"An airport may have unsaved changes.");
}

void TakeReasonBack() {
    if (saysWhyItStays) ShutdownBlockReasonDestroy(platform::MainWindow());
    saysWhyItStays = false;
}

void ReleaseMouse(HWND window) {
    if (GetCapture() == window) ReleaseCapture();
}

// What the user must answer before the window closes.
void PointToDialog() {
    MessageBeep(MB_OK);
    const HWND dialog = platform::DialogOverMap();
    SetForegroundWindow(dialog ? GetLastActivePopup(dialog) : platform::OwnerOfDialogs());
}

std::wstring FirstFileOf(HDROP drop) {
    const UINT length = DragQueryFileW(drop, 0, nullptr, 0);
    std::wstring path(size_t{ length } + 1, L'\0');
    path.resize(DragQueryFileW(drop, 0, path.data(), length + 1));
    return path;
}

bool IsWithoutAsking(LPARAM reason) { return (static_cast<DWORD>(reason) & ENDSESSION_CRITICAL) != 0; }

}  // namespace

bool OpenSession(HWND window) {
    DragAcceptFiles(window, TRUE);
    return SetTimer(window, kSimLinkTimer, kSimLinkPeriod, nullptr) &&
           SetTimer(window, kBackupTimer, kBackupPeriod, nullptr);
}

void OnTimer(WPARAM timer) {
    if (timer == kSimLinkTimer) {
        PollSimulator();
        WriteDueAutoBackup();
        if (IsMapInFront()) TakeReasonBack();
    }
    if (timer == kBackupTimer) WriteAutoBackup();
}

void OnDroppedFiles(HWND window, HDROP drop) {
    const std::wstring path = FirstFileOf(drop);
    DragFinish(drop);
    if (path.empty() || !IsMapInFront()) return;
    SetForegroundWindow(window);  // what is asked now must not hide behind the window that the file comes from
    OpenBroughtFile(platform::Utf8FromWide(path), "");
}

bool OnQueryEndSession(HWND window, LPARAM reason) {
    if (IsWithoutAsking(reason)) return true;
    const bool isAsked = IsMapInFront();  // else a dialog waits, and the reason stays as long as it does
    SayWhyItStays(window);
    ReleaseMouse(window);
    const bool mayEnd = AgreeToEnd();
    if (isAsked) TakeReasonBack();
    return mayEnd;
}

void OnEndSession(bool ends, LPARAM reason) {
    TakeReasonBack();
    if (!ends) return;
    KillTimer(platform::MainWindow(), kSimLinkTimer);  // it would take the hot keys again
    if (IsWithoutAsking(reason))
        EndSessionAtOnce();
    else
        EndAsAgreed();
}

void OnClose(HWND window) {
    if (!IsMapInFront()) return PointToDialog();
    ReleaseMouse(window);
    if (!MayEnd()) return;
    EndSession(false);
    DestroyWindow(window);
}

}  // namespace app
