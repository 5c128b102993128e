// AircraftFolders.h - a handful of aircraft, as the simulator keeps them: configuration and model files.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace sample {

struct MadeFile {
    std::string path;  // below the simulator's folder, "\" between the parts
    std::vector<uint8_t> bytes;
};

std::vector<MadeFile> AircraftFiles();

}  // namespace sample
