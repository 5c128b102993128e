// AppState.h - what the program knows apart from the open airport, the view and the settings.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "app/Notices.h"
#include "app/Settings.h"
#include "platform/Files.h"
#include "platform/Pixel.h"

namespace app {

// All paths are UTF-8; folders end without a separator.
struct AppState {
    std::string programFolder;
    std::string simulatorFolder;  // "" when the simulator is not found
    std::string sourceFile;       // where the open airport was read from or last saved to; "" without an airport
    std::string savePath;         // where Save writes without asking; "" until that is known
    std::string autoBackup;       // where this instance writes its automatic backup; "" when it cannot
    platform::FileHandle autoBackupLock;  // keeps other instances away from it
    bool backupIsDue = false;             // it had to wait for the airport to be at rest
    bool recovered = false;               // the open airport came from the backup and is not saved yet
    std::optional<uint64_t> agreedEnd;    // the model's revision for which the user let the system end the program
    std::string notices[kNotices];        // what the status bar tells apart from the read-outs
    std::optional<uint64_t> remarkMark;   // the model's edit mark under which the remark is true; none: under any
    Settings loadedSettings;              // as the settings file has them
    bool settingsRead = false;            // false also when that file was there and could not be read
    platform::Pixel menuPoint;            // of the map, where its own menu was opened
    std::string pictureFolder;            // where the last map picture was saved; "" before: the user's pictures
    size_t pictureKind = 0;               // of that picture: a place in PictureKinds
};

extern AppState state;

}  // namespace app
