// Text.h - text encodings: UTF-8 inside the program, Windows-1252 in scenery files.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace platform {

// The five bytes that Windows-1252 leaves open map to the C1 control of the same value, as Windows does.
std::string Utf8FromWindows1252(std::string_view text);

// Characters that Windows-1252 lacks, and broken UTF-8, become "?". *lossless tells whether none did.
std::string Windows1252FromUtf8(std::string_view text, bool* lossless = nullptr);

// Of UTF-8: how many characters it has, and its first ones.
size_t CharacterCount(std::string_view text);
std::string_view FirstCharacters(std::string_view text, size_t count);

// Without the blanks at both ends.
std::string_view Trimmed(std::string_view text, std::string_view blanks = " \t");

// ASCII letters only; all other bytes stay.
std::string UpperCased(std::string_view text);
bool EqualNoCase(std::string_view a, std::string_view b);  // ASCII case folding
bool EndsWithNoCase(std::string_view text, std::string_view end);

}  // namespace platform
