// Text.cpp - see Text.h. The table is the published Windows-1252 mapping of bytes 0x80 to 0x9F; the
// others equal Latin-1.
#include "platform/Text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>

#include "platform/CodePoint.h"

namespace platform {

namespace {

constexpr uint16_t kUpperControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

int Windows1252Byte(uint32_t code) {
    if (code < 0x80 || (code >= 0xA0 && code < 0x100)) return static_cast<int>(code);
    const auto* found = std::find(std::begin(kUpperControls), std::end(kUpperControls), code);
    return found == std::end(kUpperControls) ? -1 : static_cast<int>(0x80 + (found - kUpperControls));
}

bool StartsCharacter(char c) { return (static_cast<uint8_t>(c) & 0xC0) != 0x80; }

char UpperCase(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

}  // namespace

std::string Utf8FromWindows1252(std::string_view text) {
    std::string utf8;
    for (char c : text) {
        const auto byte = static_cast<uint8_t>(c);
        AppendUtf8(byte >= 0x80 && byte < 0xA0 ? kUpperControls[byte - 0x80] : byte, &utf8);
    }
    return utf8;
}

std::string Windows1252FromUtf8(std::string_view text, bool* lossless) {
    std::string result;
    bool lost = false;
    while (!text.empty()) {
        const int32_t code = TakeCodePoint(&text);
        const int byte = code < 0 ? -1 : Windows1252Byte(static_cast<uint32_t>(code));
        lost |= byte < 0;
        result.push_back(byte < 0 ? '?' : static_cast<char>(byte));
    }
    if (lossless) *lossless = !lost;
    return result;
}

size_t CharacterCount(std::string_view text) {
    return static_cast<size_t>(std::count_if(text.begin(), text.end(), StartsCharacter));
}

std::string_view FirstCharacters(std::string_view text, size_t count) {
    for (size_t at = 0; at < text.size(); ++at) {
        if (StartsCharacter(text[at]) && count-- == 0) return text.substr(0, at);
    }
    return text;
}

std::string_view Trimmed(std::string_view text, std::string_view blanks) {
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

std::string UpperCased(std::string_view text) {
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), UpperCase);
    return upper;
}

bool EqualNoCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return UpperCase(x) == UpperCase(y); });
}

bool EndsWithNoCase(std::string_view text, std::string_view end) {
    return text.size() >= end.size() && EqualNoCase(text.substr(text.size() - end.size()), end);
}

}  // namespace platform
