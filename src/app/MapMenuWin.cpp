// MapMenuWin.cpp - see MapMenuWin.h.
#include "app/MapMenuWin.h"

#include "app/Commands.h"
#include "app/MenuStatesWin.h"
#include "app/ViewCommands.h"
#include "Resource.h"

namespace app {

void ShowMapMenu(HWND window, POINT screen, platform::Pixel at) {
    const HMENU menu = LoadMenuW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDR_MAP_MENU));
    if (!menu) return;
    NoteMenuPoint(at);
    const HMENU popup = GetSubMenu(menu, 0);
    ShowMenuStates(popup);
    const BOOL command = TrackPopupMenu(popup, TPM_RETURNCMD | TPM_RIGHTBUTTON, screen.x, screen.y, 0, window, nullptr);
    DestroyMenu(menu);
    if (command) RunCommand(command);
}

}  // namespace app
