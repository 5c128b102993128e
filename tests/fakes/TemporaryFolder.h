// TemporaryFolder.h - an empty folder on the disk that goes, with all that is in it, when its structure does.
#pragma once

#include <filesystem>
#include <random>
#include <string>
#include <system_error>

struct TemporaryFolder {
    const std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("tarvo-" + std::to_string(std::random_device{}()));

    TemporaryFolder() { std::filesystem::create_directories(path); }
    ~TemporaryFolder() {
        std::error_code ignored;  // what is left over harms nobody
        std::filesystem::remove_all(path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
};

// A path as the program has it, in UTF-8.
inline std::string Utf8Path(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return { text.begin(), text.end() };
}
