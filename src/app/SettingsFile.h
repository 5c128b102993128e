// SettingsFile.h - Tarvo2.ini in the program folder.
#pragma once

#include <string>

namespace app {

// Reads every setting; what is missing or makes no sense has its default. A missing file is no error. False when there
// is a file that cannot be read just now: the defaults that were taken instead must not replace what it holds.
bool LoadSettings(const std::string& programFolder);

// Writes every setting back but the simulator folder override, which only the user sets; what else the file holds
// stays. False, with the old file untouched, when it cannot be written.
bool SaveSettings(const std::string& programFolder);

}  // namespace app
