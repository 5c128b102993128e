// FuzzFolder.h - a folder of this process for what only reads files.
#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>

#include "fakes/TemporaryFolder.h"

// Made on first use and gone with the process; whatever is in it is overwritten by the next input.
inline std::string FuzzFolder() {
    static const TemporaryFolder folder;
    return folder.path.string();
}

inline std::string PutFuzzFile(const char* name, const uint8_t* data, size_t size) {
    const std::string path = FuzzFolder() + "/" + name;
    std::ofstream(path, std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    return path;
}
