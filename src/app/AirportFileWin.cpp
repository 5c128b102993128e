// AirportFileWin.cpp - see AirportFileWin.h.
#include "app/AirportFileWin.h"

#include <commdlg.h>

#include "app/Airport.h"
#include "platform/WideTextWin.h"

namespace app {

using platform::kPathLimit;

bool AskAirportFile(HWND owner, std::string* path) {
    std::wstring file(kPathLimit, L'\0');
    std::wstring folder = platform::WideFromUtf8(FolderOf(*path));
    if (!folder.empty()) folder += L'\\';  // "D:" alone is whatever folder is current on that drive
    OPENFILENAMEW question{};
    question.lStructSize = sizeof question;
    question.hwndOwner = owner;
    question.lpstrFilter = L"Airport Files\0*.bgl\0";
    question.lpstrFile = file.data();
    question.nMaxFile = kPathLimit;
    question.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
    question.lpstrTitle = L"Select an airport file";
    question.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST |
                     OFN_SHAREAWARE;  // a file in use gets our own message
    if (!GetOpenFileNameW(&question)) return false;
    *path = platform::Utf8FromWide(file.c_str());
    return true;
}

}  // namespace app
