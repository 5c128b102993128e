// AutoBackup.h - the automatic backup that a crash leaves in the program folder.
#pragma once

#include <cstdint>
#include <string>

#include "bgl/AirportReader.h"

namespace app {

std::string AutoBackupPath(const std::string& programFolder);

// The airport in the backup and when it was written, a FILETIME. False when there is no backup, or one that
// cannot be read: it is ignored.
bool FindAutoBackup(const std::string& programFolder, bgl::AirportPlace* place, uint64_t* writeTime);

}  // namespace app
