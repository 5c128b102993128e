// SimulatorFolderWin.cpp - the registry entry of the simulator, and the folder browser (AppHost.h).
#include <windows.h>

#include <shlobj.h>
#include <string>

#include "app/AppHost.h"
#include "platform/PlatformWin.h"
#include "platform/WideTextWin.h"

namespace app {

namespace {

constexpr wchar_t kKey[] = L"SOFTWARE\\Microsoft\\Microsoft Games\\Flight Simulator\\9.0";
constexpr wchar_t kValue[] = L"EXE Path";
constexpr wchar_t kBrowserTitle[] = L"Tarvo -- Please locate the Flight Simulator 2004 folder";
using platform::kPathLimit;

// The title as the caption too: the text above the tree is easily overlooked.
int CALLBACK OnBrowser(HWND browser, UINT message, LPARAM, LPARAM) {
    if (message == BFFM_INITIALIZED) SetWindowTextW(browser, kBrowserTitle);
    return 0;
}

}  // namespace

// The simulator is a 32-bit program, so what its setup wrote lies in that view of the registry.
std::vector<std::string> RegisteredSimulatorFolders() {
    std::vector<std::string> folders;
    for (const REGSAM view : { REGSAM{ KEY_WOW64_32KEY }, REGSAM{ KEY_WOW64_64KEY } }) {
        HKEY key;
        if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, kKey, 0, KEY_READ | view, &key) != ERROR_SUCCESS) continue;
        std::wstring value(kPathLimit, L'\0');
        auto bytes = static_cast<DWORD>(value.size() * sizeof(wchar_t));
        if (RegGetValueW(key, nullptr, kValue, RRF_RT_REG_SZ, nullptr, value.data(), &bytes) == ERROR_SUCCESS)
            folders.push_back(platform::Utf8FromWide(value.c_str()));
        RegCloseKey(key);
    }
    return folders;
}

bool WriteRegisteredSimulatorFolder(const std::string& folder) {
    HKEY key;
    if (RegCreateKeyExW(HKEY_LOCAL_MACHINE, kKey, 0, nullptr, 0, KEY_WRITE | KEY_WOW64_32KEY, nullptr, &key, nullptr) !=
        ERROR_SUCCESS)
        return false;
    const std::wstring value = platform::WideFromUtf8(folder);
    const auto bytes = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    const LSTATUS status = RegSetValueExW(key, kValue, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()), bytes);
    RegCloseKey(key);
    return status == ERROR_SUCCESS;
}

bool AskSimulatorFolder(std::string* folder) {
    BROWSEINFOW browser{};
    browser.hwndOwner = platform::MainWindow();
    browser.lpszTitle = kBrowserTitle;
    browser.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE | BIF_NONEWFOLDERBUTTON;
    browser.lpfn = OnBrowser;
    const LPITEMIDLIST item = SHBrowseForFolderW(&browser);
    if (!item) return false;
    PWSTR path = nullptr;
    const bool isFolder = SUCCEEDED(SHGetNameFromIDList(item, SIGDN_FILESYSPATH, &path)) && path && *path;
    if (isFolder) *folder = platform::Utf8FromWide(path);
    CoTaskMemFree(path);
    CoTaskMemFree(item);
    return isFolder;
}

}  // namespace app
