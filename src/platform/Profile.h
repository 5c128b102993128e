// Profile.h - INI files as the system's profile functions keep them: sections and keys without regard to
// case, the first of equal ones wins, quotes around a value are not part of it. Texts are UTF-8.
//
// ProfileWin.cpp calls the system; the command line tool has no settings; tests keep the files in memory
// (tests/fakes/FakeProfile.h).
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace platform {

// The value, or `fallback` when the file, the section or the key is missing. At most `limit` characters.
std::string ReadProfile(const std::string& file, const std::string& section, const std::string& key,
                        const std::string& fallback, size_t limit);

// False when the file cannot be written.
bool WriteProfile(const std::string& file, const std::string& section, const std::string& key,
                  const std::string& value);

// A text in the encoding that the profile functions take a file without a byte order mark for: the system's
// 8-bit encoding; Windows-1252 outside of Windows.
std::string Utf8FromSystemText(std::string_view text);

}  // namespace platform
