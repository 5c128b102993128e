// HelpWin.cpp - opens the manual at a topic.
//
// The shell opens files but loses a "#topic" behind their names, so the browser itself is told.
#include <windows.h>

#include <shlwapi.h>

#include <string>

#include "aircraft/AircraftEditor.h"
#include "app/AppHost.h"
#include "app/AppState.h"
#include "app/HelpPage.h"
#include "dialogs/DialogHost.h"
#include "platform/WideTextWin.h"

namespace app {

namespace {

// What the system would start for such an address or file; "" when nothing is registered.
std::string RegisteredCommand(const wchar_t* association) {
    DWORD length = 0;
    AssocQueryStringW(ASSOCF_NOTRUNCATE, ASSOCSTR_COMMAND, association, L"open", nullptr, &length);
    if (length == 0) return {};
    std::wstring command(length, L'\0');
    if (AssocQueryStringW(ASSOCF_NOTRUNCATE, ASSOCSTR_COMMAND, association, L"open", command.data(), &length) != S_OK)
        return {};
    return platform::Utf8FromWide(command.c_str());
}

bool StartCommand(const std::string& command) {
    if (command.empty()) return false;
    std::wstring line = platform::WideFromUtf8(command);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started{};
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &started))
        return false;
    AllowSetForegroundWindow(started.dwProcessId);
    CloseHandle(started.hThread);
    CloseHandle(started.hProcess);
    return true;
}

bool IsFile(const std::string& path) {
    const DWORD attributes = GetFileAttributesW(platform::WideFromUtf8(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

}  // namespace

void OpenHelp(std::string_view topic) {
    const std::string page = HelpFile(state.programFolder);
    if (!IsFile(page)) return;
    const std::string url = FileUrl(page, topic);
    for (const wchar_t* association : { L"http", L".htm" }) {
        if (StartCommand(BrowserCommand(RegisteredCommand(association), url))) return;
    }
    OpenDocument(page);
}

}  // namespace app

namespace dialogs {

void OpenHelpTopic(const char* topic) { app::OpenHelp(topic); }

}  // namespace dialogs

namespace aircraft {

void OpenHelpTopic(const char* topic) { app::OpenHelp(topic); }

}  // namespace aircraft
