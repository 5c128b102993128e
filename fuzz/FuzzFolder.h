// FuzzFolder.h - a folder of this process for what only reads files.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

#include "platform/Files.h"

struct TemporaryFolder {
    const std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("tarvo-fuzz-" + std::to_string(platform::ProcessNumber()));
    TemporaryFolder() { std::filesystem::create_directories(path); }
    ~TemporaryFolder() {
        std::error_code failed;  // what is left over harms nobody
        std::filesystem::remove_all(path, failed);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
};

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
