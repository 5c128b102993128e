// FuzzFolder.h - a folder of this process for what only reads files.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/Files.h"

// Made on first use; whatever is in it is overwritten by the next input.
inline std::string FuzzFolder() {
    static const std::filesystem::path folder = [] {
        const auto path =
            std::filesystem::temp_directory_path() / ("tarvo-fuzz-" + std::to_string(platform::ProcessNumber()));
        std::filesystem::create_directories(path);
        return path;
    }();
    return folder.string();
}

inline std::string PutFuzzFile(const char* name, const uint8_t* data, size_t size) {
    const std::string path = FuzzFolder() + "/" + name;
    std::ofstream(path, std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    return path;
}
