// MainWin.cpp - start-up: Tarvo.exe [FILE.bgl [IDENT]]
#include <windows.h>

#include <commctrl.h>
#include <objbase.h>
#include <shellapi.h>
#include <string>
#include <vector>

#include "app/AppState.h"
#include "app/MainWindowWin.h"
#include "app/Program.h"
#include "app/Settings.h"
#include "platform/DialogWin.h"
#include "platform/WideTextWin.h"

namespace app {

namespace {

using platform::kPathLimit;

std::wstring FullPath(const std::wstring& path) {
    std::wstring full(kPathLimit, L'\0');
    full.resize(GetFullPathNameW(path.c_str(), kPathLimit, full.data(), nullptr));
    return full.empty() ? path : full;
}

// The arguments behind the program's own name, UTF-8. A file is meant relative to the folder that the user is in, so
// its path is made full before the program folder becomes the current one.
std::vector<std::string> ReadArguments() {
    std::vector<std::string> arguments;
    int count = 0;
    LPWSTR* texts = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 1; texts && i < count; ++i) {
        const std::wstring text = texts[i];
        arguments.push_back(platform::Utf8FromWide(i == 1 && !text.empty() ? FullPath(text) : text));
    }
    LocalFree(texts);
    return arguments;
}

std::wstring ProgramFolder() {
    std::wstring path(kPathLimit, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), kPathLimit));
    return path.substr(0, path.find_last_of(L'\\'));
}

int RunMessageLoop() {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (platform::DialogTookMessage(&message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}

int Run(HINSTANCE instance, int show) {
    const std::vector<std::string> arguments = ReadArguments();
    const std::wstring folder = ProgramFolder();
    SetCurrentDirectoryW((folder + L"\\").c_str());  // "D:" alone is whatever folder is current on that drive
    state.programFolder = platform::Utf8FromWide(folder);
    if (!RegisterMainWindow(instance)) return 1;
    INITCOMMONCONTROLSEX controls = { sizeof controls, 0xFF };
    InitCommonControlsEx(&controls);
    const HWND window = CreateMainWindow(instance);
    if (!window) return 1;
    ShowWindow(window, settings.windowMaximized ? SW_SHOWMAXIMIZED : show);
    UpdateWindow(window);
    BeginSession(arguments.empty() ? "" : arguments[0], arguments.size() > 1 ? arguments[1] : "");
    return RunMessageLoop();
}

}  // namespace

}  // namespace app

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR, int show) {
    // A path may lead to a drive without a disk: that is no reason for a box of the system's.
    SetErrorMode(SEM_FAILCRITICALERRORS);
    // The file dialogs and the shell want it on this thread.
    const HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
    const int result = app::Run(instance, show);
    if (SUCCEEDED(com)) CoUninitialize();
    return result;
}
