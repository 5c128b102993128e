// UiFiles.h - files of the tests, by paths of any characters.
#pragma once

#include <windows.h>

#include <cstdio>
#include <string>

namespace ui {

// Empty when there is no such file.
inline std::string BytesOf(const std::wstring& path) {
    std::string bytes;
    if (FILE* file = _wfopen(path.c_str(), L"rb")) {
        char buffer[65536];
        for (size_t got; (got = fread(buffer, 1, sizeof buffer, file)) > 0;) bytes.append(buffer, got);
        fclose(file);
    }
    return bytes;
}

inline bool IsThere(const std::wstring& path) { return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES; }

}  // namespace ui
