// RecentMenuWin.cpp - the recent airports at the end of the File menu, behind its fixed entries.
#include <windows.h>

#include <string>

#include "app/AppHost.h"
#include "app/RecentAirports.h"
#include "app/Settings.h"
#include "platform/PlatformWin.h"
#include "platform/WideTextWin.h"
#include "Resource.h"

namespace app {

namespace {

static_assert(IDM_RECENT_LAST - IDM_RECENT_FIRST + 1 == kPreviousFiles);

int PositionOf(HMENU menu, UINT id) {
    const int count = GetMenuItemCount(menu);
    for (int position = 0; position < count; ++position) {
        if (GetMenuItemID(menu, position) == id) return position;
    }
    return count - 1;
}

// Exit is the last of the fixed entries.
void RemoveEntries(HMENU menu) {
    const int first = PositionOf(menu, IDM_EXIT) + 1;
    while (GetMenuItemCount(menu) > first) DeleteMenu(menu, static_cast<UINT>(first), MF_BYPOSITION);
}

}  // namespace

void ShowRecentAirports() {
    const HWND window = platform::MainWindow();
    const HMENU menu = window ? GetSubMenu(GetMenu(window), 0) : nullptr;
    if (!menu) return;
    RemoveEntries(menu);
    const size_t count = RecentAirportCount();
    if (count > 0) AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    for (size_t i = 0; i < count; ++i) {
        const std::wstring text = platform::WideFromUtf8(RecentMenuText(i));
        AppendMenuW(menu, MF_STRING, static_cast<UINT_PTR>(IDM_RECENT_FIRST) + i, text.c_str());
    }
}

}  // namespace app
