// WideTextWin.h - UTF-8, as the program uses it, and UTF-16, as Windows does.
//
// A file name may hold half of a surrogate pair. Such a half travels as a three-byte sequence of its own, which the
// system's own conversion would replace, and the file could not be found again.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/CodePoint.h"

namespace platform {

constexpr DWORD kPathLimit = 32768;  // characters: the longest path that Windows knows

inline std::wstring WideFromUtf8(std::string_view text) {
    std::wstring wide;
    wide.reserve(text.size());
    while (!text.empty()) {
        const int32_t taken = TakeCodePoint(&text);
        const uint32_t code = taken < 0 ? 0xFFFD : static_cast<uint32_t>(taken);
        if (code < 0x10000) {
            wide.push_back(static_cast<wchar_t>(code));
        } else {
            wide.push_back(static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10)));
            wide.push_back(static_cast<wchar_t>(0xDC00 + (code & 0x3FF)));
        }
    }
    return wide;
}

inline std::string Utf8FromWide(std::wstring_view wide) {
    const auto isHigh = [](uint32_t unit) { return unit >= 0xD800 && unit < 0xDC00; };
    const auto isLow = [](uint32_t unit) { return unit >= 0xDC00 && unit < 0xE000; };
    std::string text;
    text.reserve(wide.size());
    for (size_t i = 0; i < wide.size(); ++i) {
        uint32_t code = wide[i];
        if (isHigh(code) && i + 1 < wide.size() && isLow(wide[i + 1]))
            code = 0x10000 + ((code - 0xD800) << 10) + (wide[++i] - 0xDC00u);
        AppendUtf8(code, &text);
    }
    return text;
}

}  // namespace platform
