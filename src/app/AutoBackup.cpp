// AutoBackup.cpp - see AutoBackup.h.
#include "app/AutoBackup.h"

#include <vector>

#include "bgl/SceneryFile.h"
#include "platform/Files.h"
#include "platform/Text.h"

namespace app {

namespace {

constexpr const char* kName = "AutoBackupTemp.bgl";

}  // namespace

std::string AutoBackupPath(const std::string& programFolder) { return programFolder + "\\" + kName; }

bool FindAutoBackup(const std::string& programFolder, bgl::AirportPlace* place, uint64_t* writeTime) {
    if (!bgl::FindAirportInFile(AutoBackupPath(programFolder), "", place)) return false;
    *writeTime = 0;
    for (const platform::FileEntry& file : platform::ListFiles(programFolder, kName)) {
        if (platform::EqualNoCase(file.name, kName)) *writeTime = file.writeTime;
    }
    return true;
}

}  // namespace app
