// ConfigText.h - aircraft.cfg as it lies on the disk: one value is read or replaced, all other bytes stay.
//
// Sections and keys are found by the rules of platform/IniText.h. In addition a comment at the end of a line, "//" or
// ";" after a blank, is not part of a value.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/IniText.h"

namespace aircraft {

enum class Encoding { Windows1252, Utf8, Utf16 };

struct ConfigText {
    std::string text;  // as the file has it, in its own encoding; that of a UTF-16 file as UTF-8
    std::string mark;  // the byte order mark that it began with
    Encoding encoding = Encoding::Windows1252;
};

// UTF-16 is told by its mark, UTF-8 by its mark or by being valid UTF-8 beyond ASCII; anything else is Windows-1252.
ConfigText DecodeConfig(std::span<const uint8_t> bytes);
std::vector<uint8_t> EncodeConfig(const ConfigText& config);

// A stretch of ConfigText::text, or what is to stand there, as UTF-8 and back. Back is false for a text that the file's
// encoding cannot hold.
std::string ShownText(const ConfigText& config, std::string_view raw);
bool RawText(const ConfigText& config, const std::string& shown, std::string* raw);

// Sections of the text; they point into it. Null when there is no such section.
const platform::IniSection* FindSection(const std::vector<platform::IniSection>& sections, std::string_view name);

// The value as UTF-8, without a comment behind it; "" for a missing key.
std::string ConfigValue(const ConfigText& config, const platform::IniSection& section, std::string_view key);

// Puts the value in the place of the one that the key has in the section. A missing key gets a line of its own, behind
// the section's last one. False, with nothing changed, when the section is missing or the value would not read back.
bool SetConfigValue(ConfigText* config, std::string_view section, std::string_view key, const std::string& value);

}  // namespace aircraft
