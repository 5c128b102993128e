// MenuStatesWin.h - a menu shows which of its commands are enabled and which are checked.
#pragma once

#include <windows.h>

namespace app {

// Of every entry, and of the menus in it.
void ShowMenuStates(HMENU menu);

}  // namespace app
