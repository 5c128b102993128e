// Settings.h - the user's settings. Includes no other folder, so that every folder may read them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace app {

constexpr size_t kPreviousFiles = 10, kMostUsedSpecs = 20;

// Defaults are those of a first start.
struct Settings {
    uint8_t nodeKeyCode = 190;  // virtual-key codes pressed in the simulator
    uint8_t parkingKeyCode = 79;
    uint8_t markerKeyCode = 77;
    int latLongFormat = 2;  // 1 to 5, see model/CoordinateText.h
    bool metric = false;    // show distances in metres
    bool metricParkingRadius = false;
    int showLabels = 0;  // parking labels: 0 none, 1 types, 2 codes
    bool showLatLongGrid = true;
    int latLongGridDivs = 1;  // index into the grid spacings 60, 30, 20, 15, 12, 10, 6, 5, 4, 3 seconds
    bool latLongGridDecimal = true;
    int nextUpdateNotice = 3;  // months
    bool windowMaximized = false;
    std::string lastSavedFile;               // UTF-8 path
    std::string overrideFsFolder;            // UTF-8 path; read only, set by hand
    std::vector<std::string> previousFiles;  // "IDENT,path", newest first, at most kPreviousFiles
    std::vector<std::string> mostUsedSpecs;  // names, the most used first, at most kMostUsedSpecs

    bool operator==(const Settings&) const = default;
};

extern Settings settings;

}  // namespace app
