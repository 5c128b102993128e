// ConfigText.cpp - see ConfigText.h.
#include "aircraft/ConfigText.h"

#include <algorithm>
#include <cstddef>

#include "platform/CodePoint.h"
#include "platform/Text.h"

namespace aircraft {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF", kLowFirst = "\xFF\xFE", kHighFirst = "\xFE\xFF";
constexpr std::string_view kLineEnds = "\r\n";

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

std::string_view WithoutBlanksBehind(std::string_view text) {
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    return text;
}

bool IsUtf8(std::string_view text) {
    bool beyondAscii = false;
    while (!text.empty()) {
        const int32_t code = platform::TakeCodePoint(&text);
        if (code < 0 || (code & 0x1FF800) == 0xD800) return false;
        beyondAscii |= code >= 0x80;
    }
    return beyondAscii;
}

void PutUnit(uint32_t unit, bool highFirst, std::vector<uint8_t>* bytes) {
    const auto low = static_cast<uint8_t>(unit & 0xFF), high = static_cast<uint8_t>(unit >> 8 & 0xFF);
    bytes->push_back(highFirst ? high : low);
    bytes->push_back(highFirst ? low : high);
}

void PutUtf16(std::string_view text, bool highFirst, std::vector<uint8_t>* bytes) {
    while (!text.empty()) {
        const int32_t taken = platform::TakeCodePoint(&text);
        const uint32_t code = taken < 0 ? 0xFFFD : static_cast<uint32_t>(taken);
        if (code < 0x10000) {
            PutUnit(code, highFirst, bytes);
            continue;
        }
        PutUnit(0xD800 + ((code - 0x10000) >> 10), highFirst, bytes);
        PutUnit(0xDC00 + (code & 0x3FF), highFirst, bytes);
    }
}

// `value` is a view into `text`: whether the quotes around it were taken off.
bool WasQuoted(std::string_view text, std::string_view value) {
    const auto start = static_cast<size_t>(value.data() - text.data()), end = start + value.size();
    if (start == 0 || end >= text.size()) return false;
    const char quote = text[start - 1];
    return (quote == '"' || quote == '\'') && text[end] == quote;
}

std::string_view WithoutComment(std::string_view text, std::string_view value) {
    if (WasQuoted(text, value)) return value;
    for (size_t i = 0; i < value.size(); ++i) {
        const bool begins = value[i] == ';' || value.substr(i, 2) == "//";
        if (begins && (i == 0 || IsBlank(value[i - 1])))
            return platform::Unquoted(WithoutBlanksBehind(value.substr(0, i)));
    }
    return value;
}

// The place of a key's value in the text; null data for a missing key.
std::string_view FindValue(std::string_view text, const platform::IniSection& section, std::string_view key) {
    const auto found = std::find_if(section.values.begin(), section.values.end(),
                                    [&](const auto& value) { return platform::EqualNoCase(value.first, key); });
    return found == section.values.end() ? std::string_view() : WithoutComment(text, found->second);
}

std::string_view LineEndAt(std::string_view text, size_t at) {
    if (at >= text.size()) return {};
    return text.substr(at, text.substr(at, 2) == "\r\n" ? 2 : 1);
}

// A line of its own behind the last line of the section that holds a value, else behind its head.
void AddLine(std::string* text, const platform::IniSection& section, const std::string& line) {
    const std::string_view last = section.values.empty() ? section.name : section.values.back().second;
    const auto from = static_cast<size_t>(last.data() - text->data()) + last.size();
    const size_t end = text->find_first_of(kLineEnds, from);
    if (end != std::string::npos) {
        const std::string lineEnd(LineEndAt(*text, end));
        text->insert(end + lineEnd.size(), line + lineEnd);
        return;
    }
    const size_t first = text->find_first_of(kLineEnds);
    const std::string lineEnd(first == std::string::npos ? "\r\n" : LineEndAt(*text, first));
    text->append(lineEnd + line);
}

void ReplaceValue(std::string* text, std::string_view place, std::string value) {
    const auto start = static_cast<size_t>(place.data() - text->data());
    const size_t end = start + place.size();
    const bool commentFollows = place.empty() && end < text->size() && ((*text)[end] == ';' || (*text)[end] == '/');
    if (commentFollows && !value.empty()) value += ' ';
    text->replace(start, place.size(), value);
}

}  // namespace

ConfigText DecodeConfig(std::span<const uint8_t> bytes) {
    const std::string_view raw(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (raw.starts_with(kLowFirst) || raw.starts_with(kHighFirst))
        return { platform::DecodeIniText(bytes), std::string(raw.substr(0, 2)), Encoding::Utf16 };
    if (raw.starts_with(kUtf8Mark)) return { std::string(raw.substr(3)), std::string(kUtf8Mark), Encoding::Utf8 };
    return { std::string(raw), "", IsUtf8(raw) ? Encoding::Utf8 : Encoding::Windows1252 };
}

std::vector<uint8_t> EncodeConfig(const ConfigText& config) {
    std::vector<uint8_t> bytes(config.mark.begin(), config.mark.end());
    if (config.encoding == Encoding::Utf16)
        PutUtf16(config.text, config.mark == kHighFirst, &bytes);
    else
        bytes.insert(bytes.end(), config.text.begin(), config.text.end());
    return bytes;
}

std::string ShownText(const ConfigText& config, std::string_view raw) {
    return config.encoding == Encoding::Windows1252 ? platform::Utf8FromWindows1252(raw) : std::string(raw);
}

bool RawText(const ConfigText& config, const std::string& shown, std::string* raw) {
    bool lossless = true;
    *raw = config.encoding == Encoding::Windows1252 ? platform::Windows1252FromUtf8(shown, &lossless) : shown;
    return lossless;
}

const platform::IniSection* FindSection(const std::vector<platform::IniSection>& sections, std::string_view name) {
    const auto found = std::find_if(sections.begin(), sections.end(), [&](const platform::IniSection& section) {
        return platform::EqualNoCase(section.name, name);
    });
    return found == sections.end() ? nullptr : &*found;
}

std::string ConfigValue(const ConfigText& config, const platform::IniSection& section, std::string_view key) {
    return ShownText(config, FindValue(config.text, section, key));
}

bool SetConfigValue(ConfigText* config, std::string_view section, std::string_view key, const std::string& value) {
    std::string raw;
    const std::vector<platform::IniSection> sections = platform::ParseIni(config->text);
    const platform::IniSection* found = FindSection(sections, section);
    if (!found || !RawText(*config, value, &raw)) return false;
    const std::string_view place = FindValue(config->text, *found, key);
    if (!place.data() && value.empty()) return true;

    const std::string before = config->text;
    if (place.data())
        ReplaceValue(&config->text, place, raw);
    else
        AddLine(&config->text, *found, std::string(key) + "=" + raw);
    const ConfigText after = DecodeConfig(EncodeConfig(*config));  // what the next reader makes of it
    const std::vector<platform::IniSection> read = platform::ParseIni(after.text);
    const platform::IniSection* again = FindSection(read, section);
    if (again && ConfigValue(after, *again, key) == value) return true;
    config->text = before;
    return false;
}

}  // namespace aircraft
