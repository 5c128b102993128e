// HostWin.cpp - what the portable part asks of the window and of the system (AppHost.h).
#include <windows.h>

#include <commdlg.h>
#include <cstdio>
#include <shellapi.h>

#include "app/AppHost.h"
#include "app/MenuStatesWin.h"
#include "app/ToolbarWin.h"
#include "platform/PlatformWin.h"
#include "platform/WideTextWin.h"

namespace app {

namespace {

using platform::kPathLimit;

}  // namespace

bool AskSavePath(const SaveQuestion& question, std::string* path) {
    std::wstring file = platform::WideFromUtf8(question.name);
    file.resize(kPathLimit);
    const std::wstring folder = platform::WideFromUtf8(question.folder);
    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = platform::MainWindow();
    dialog.lpstrFilter = L"Bgl files\0*.bgl\0";
    dialog.lpstrFile = file.data();
    dialog.nMaxFile = kPathLimit;
    dialog.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
    dialog.lpstrTitle = L"Save Airport File";
    dialog.lpstrDefExt = L"bgl";
    // OFN_FILEMUSTEXIST speaks to open dialogs; a save dialog takes new names all the same.
    dialog.Flags = OFN_EXPLORER | OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST |
                   OFN_FILEMUSTEXIST | OFN_LONGNAMES;
    if (!GetSaveFileNameW(&dialog)) return false;
    *path = platform::Utf8FromWide(file.c_str());
    return true;
}

void SetWindowTitle(std::string_view title) {
    if (platform::MainWindow()) SetWindowTextW(platform::MainWindow(), platform::WideFromUtf8(title).c_str());
}

void ShowCommandStates() {
    if (!platform::MainWindow()) return;  // the command was Exit
    ShowMenuStates(GetMenu(platform::MainWindow()));
    ShowToolbarStates();
}

void ShowText(std::string_view title, std::string_view text, platform::Icon icon) {
    platform::ShowTitledMessage(title, text, platform::Buttons::Ok, icon);
}

void OpenDocument(const std::string& path) {
    ShellExecuteW(platform::MainWindow(), L"open", platform::WideFromUtf8(path).c_str(), nullptr, nullptr,
                  SW_SHOWNORMAL);
}

void CloseMainWindow() { SendMessageW(platform::MainWindow(), WM_CLOSE, 0, 0); }

std::optional<bool> IsMainWindowMaximized() {
    WINDOWPLACEMENT place{};
    place.length = sizeof place;
    const HWND window = platform::MainWindow();
    if (!IsWindowVisible(window) || !GetWindowPlacement(window, &place)) return std::nullopt;
    return place.showCmd == SW_SHOWMAXIMIZED ||
           (place.showCmd == SW_SHOWMINIMIZED && (place.flags & WPF_RESTORETOMAXIMIZED));
}

void ShowWaitCursor(bool shown) {
    static HCURSOR before;
    if (shown)
        before = SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    else
        SetCursor(before);
}

std::string LocalTimeText(uint64_t fileTime) {
    const FILETIME time = { static_cast<DWORD>(fileTime), static_cast<DWORD>(fileTime >> 32) };
    SYSTEMTIME utc{}, local{};
    if (!FileTimeToSystemTime(&time, &utc) || !SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local)) return "?";
    char text[64];
    snprintf(text, sizeof text, "%04u-%02u-%02u %02u:%02u", unsigned{ local.wYear }, unsigned{ local.wMonth },
             unsigned{ local.wDay }, unsigned{ local.wHour }, unsigned{ local.wMinute });
    return text;
}

}  // namespace app
