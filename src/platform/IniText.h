// IniText.h - INI files read in one go, by the rules of the system's profile functions.
//
// A scenery library has thousands of sections. The profile functions read the file anew for every value, which
// takes seconds there; one pass takes milliseconds. Settings go through Profile.h.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace platform {

// Views into the text that was parsed.
struct IniSection {
    std::string_view name;
    std::vector<std::pair<std::string_view, std::string_view>> values;  // key and value, in file order
};

// The sections in file order, equal ones only once: the first is the one that counts. A line that begins with
// ";" is a comment, one without "=" is skipped; blanks around names and values and one pair of quotes around a
// value are not part of them.
std::vector<IniSection> ParseIni(std::string_view text);

std::string_view Unquoted(std::string_view value);  // without such a pair

// The value of the first such key, without regard to case; empty when there is none.
std::string_view IniValue(const IniSection& section, std::string_view key);

// The text as UTF-8: UTF-16 in either byte order and UTF-8 are told by their byte order marks, everything else
// is in the system's own 8-bit encoding.
std::string DecodeIniText(std::span<const uint8_t> bytes);

// The decoded text of the file; empty when it cannot be read.
std::string ReadIniText(const std::string& path);

}  // namespace platform
