// FakeProfile.cpp - see FakeProfile.h.
#include "FakeProfile.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <vector>

#include "platform/IniText.h"
#include "platform/Profile.h"
#include "platform/Text.h"

FakeProfiles fakeProfiles;

namespace {

std::filesystem::path PathOf(std::string file) {
    std::replace(file.begin(), file.end(), '\\', '/');
    return std::filesystem::path(reinterpret_cast<const char8_t*>(file.c_str()));
}

std::vector<std::string> LinesOf(const std::string& file) {
    std::vector<std::string> lines;
    std::ifstream stream(PathOf(file));
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

bool IsHead(const std::string& line) { return !line.empty() && line[0] == '['; }

bool HasKey(const std::string& line, const std::string& key) {
    return line.size() > key.size() && line[key.size()] == '=' &&
           platform::EqualNoCase(std::string_view(line).substr(0, key.size()), key);
}

void Change(std::vector<std::string>* lines, const std::string& section, const std::string& key,
            const std::string& value) {
    const auto head = std::find_if(lines->begin(), lines->end(), [&](const std::string& line) {
        return platform::EqualNoCase(line, "[" + section + "]");
    });
    if (head == lines->end()) {
        lines->insert(lines->end(), { "[" + section + "]", key + "=" + value });
        return;
    }
    const auto end = std::find_if(head + 1, lines->end(), IsHead);
    const auto found = std::find_if(head + 1, end, [&](const std::string& line) { return HasKey(line, key); });
    if (found != end)
        *found = found->substr(0, key.size() + 1) + value;
    else
        lines->insert(end, key + "=" + value);
}

}  // namespace

bool SetFakeProfile(const std::string& file, const std::string& section, const std::string& key,
                    const std::string& value) {
    std::vector<std::string> lines = LinesOf(file);
    Change(&lines, section, key, value);
    std::ofstream stream(PathOf(file), std::ios::binary | std::ios::trunc);
    for (const std::string& line : lines) stream << line << "\n";
    return static_cast<bool>(stream.flush());
}

namespace platform {

std::string ReadProfile(const std::string& file, const std::string& section, const std::string& key,
                        const std::string& fallback, size_t limit) {
    std::string text;
    for (const std::string& line : LinesOf(file)) text += line + "\n";
    for (const IniSection& found : ParseIni(text)) {
        if (!EqualNoCase(found.name, section)) continue;
        for (const auto& [name, value] : found.values) {
            if (EqualNoCase(name, key)) return std::string(value.substr(0, limit));
        }
    }
    return fallback.substr(0, limit);
}

bool WriteProfile(const std::string& file, const std::string& section, const std::string& key,
                  const std::string& value) {
    if (fakeProfiles.writesLeft == 0) return false;
    if (fakeProfiles.writesLeft > 0) --fakeProfiles.writesLeft;
    return SetFakeProfile(file, section, key, value);
}

std::string Utf8FromSystemText(std::string_view text) { return Utf8FromWindows1252(text); }

}  // namespace platform
