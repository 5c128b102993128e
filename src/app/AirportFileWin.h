// AirportFileWin.h - the file dialog for a scenery file to open an airport from.
#pragma once

#include <windows.h>

#include <string>

namespace app {

// *path is the UTF-8 path of the file chosen before, whose folder is shown first, and of the one chosen now. False, with
// *path as it was, when the user cancelled.
bool AskAirportFile(HWND owner, std::string* path);

}  // namespace app
