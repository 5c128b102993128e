// MapMenuWin.h - the menu that a right click on the map opens.
#pragma once

#include <windows.h>

#include "platform/Pixel.h"

namespace app {

// Runs it at that point of the screen, which is the pixel `at` of the map, and then the command that was chosen.
void ShowMapMenu(HWND window, POINT screen, platform::Pixel at);

}  // namespace app
