// IniText.cpp - see IniText.h.
#include "platform/IniText.h"

#include <algorithm>
#include <cstddef>
#include <unordered_set>

#include "platform/CodePoint.h"
#include "platform/Files.h"
#include "platform/Profile.h"
#include "platform/Text.h"

namespace platform {

namespace {

constexpr uint64_t kLargestFile = 64u << 20;  // bytes; the largest known libraries stay below one megabyte

constexpr std::string_view kBlanks = { " \t\v\f\x1A\0", 6 };

std::string_view Bare(std::string_view text) { return Trimmed(text, kBlanks); }

std::string_view TakeLine(std::string_view* text) {
    const size_t end = std::min(text->find_first_of("\r\n"), text->size());
    const std::string_view line = text->substr(0, end);
    text->remove_prefix(std::min(end + 1, text->size()));
    return line;
}

// Half of a surrogate pair stays a code point of its own: file names may hold one.
std::string FromUtf16(std::span<const uint8_t> bytes, size_t low, size_t high) {
    const auto unitAt = [&](size_t i) { return static_cast<uint32_t>(bytes[2 * i + high] << 8 | bytes[2 * i + low]); };
    const size_t count = bytes.size() / 2;
    std::string text;
    text.reserve(count);
    for (size_t i = 0; i < count; ++i) {
        uint32_t code = unitAt(i);
        if ((code & 0xFC00) == 0xD800 && i + 1 < count && (unitAt(i + 1) & 0xFC00) == 0xDC00)
            code = 0x10000 + ((code & 0x3FF) << 10) + (unitAt(++i) & 0x3FF);
        AppendUtf8(code, &text);
    }
    return text;
}

}  // namespace

std::string_view Unquoted(std::string_view text) {
    const bool quoted =
        text.size() >= 2 && text.front() == text.back() && (text.front() == '"' || text.front() == '\'');
    return quoted ? text.substr(1, text.size() - 2) : text;
}

std::vector<IniSection> ParseIni(std::string_view text) {
    std::vector<IniSection> sections;
    std::unordered_set<std::string> seen;
    bool counts = false;  // the lines belong to the last section of the list
    while (!text.empty()) {
        const std::string_view line = Bare(TakeLine(&text));
        if (line.empty() || line.front() == ';') continue;
        if (line.front() == '[') {
            const size_t end = line.rfind(']');
            if (end == std::string_view::npos) continue;
            const std::string_view name = Bare(line.substr(1, end - 1));
            counts = seen.insert(UpperCased(name)).second;
            if (counts) sections.push_back({ name, {} });
            continue;
        }
        const size_t equals = line.find('=');
        if (!counts || equals == std::string_view::npos) continue;
        sections.back().values.emplace_back(Bare(line.substr(0, equals)), Unquoted(Bare(line.substr(equals + 1))));
    }
    return sections;
}

std::string_view IniValue(const IniSection& section, std::string_view key) {
    const auto found = std::find_if(section.values.begin(), section.values.end(),
                                    [&](const auto& value) { return EqualNoCase(value.first, key); });
    return found == section.values.end() ? std::string_view() : found->second;
}

std::string DecodeIniText(std::span<const uint8_t> bytes) {
    if (bytes.size() >= 2 && bytes[0] == 0xFF && bytes[1] == 0xFE) return FromUtf16(bytes.subspan(2), 0, 1);
    if (bytes.size() >= 2 && bytes[0] == 0xFE && bytes[1] == 0xFF) return FromUtf16(bytes.subspan(2), 1, 0);
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return text.starts_with("\xEF\xBB\xBF") ? std::string(text.substr(3)) : Utf8FromSystemText(text);
}

std::string ReadIniText(const std::string& path) {
    std::vector<uint8_t> bytes;
    ReadWholeFile(path, kLargestFile, &bytes);
    return DecodeIniText(bytes);
}

}  // namespace platform
