// HelpWin.cpp - the programs that the system has for the manual, and the ways to it from the dialogs (HelpPage.h).
#include <windows.h>

#include <shlwapi.h>

#include <string>

#include "aircraft/AircraftEditor.h"
#include "app/AppHost.h"
#include "app/HelpPage.h"
#include "dialogs/DialogHost.h"
#include "platform/WideTextWin.h"

namespace app {

std::string RegisteredCommand(std::string_view association) {
    const std::wstring name = platform::WideFromUtf8(association);
    DWORD length = 0;
    AssocQueryStringW(ASSOCF_NOTRUNCATE, ASSOCSTR_COMMAND, name.c_str(), L"open", nullptr, &length);
    if (length == 0) return {};
    std::wstring command(length, L'\0');
    if (AssocQueryStringW(ASSOCF_NOTRUNCATE, ASSOCSTR_COMMAND, name.c_str(), L"open", command.data(), &length) != S_OK)
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

}  // namespace app

namespace dialogs {

void OpenHelpTopic(const char* topic) { app::OpenHelp(topic); }

}  // namespace dialogs

namespace aircraft {

void OpenHelpTopic(const char* topic) { app::OpenHelp(topic); }

}  // namespace aircraft
