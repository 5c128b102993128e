// FakeProfile.cpp - see FakeProfile.h.
#include "FakeProfile.h"

#include "platform/Profile.h"
#include "platform/Text.h"

FakeProfiles fakeProfiles;

namespace {

std::string KeyOf(const std::string& file, const std::string& section, const std::string& key) {
    return platform::UpperCased(file + "|" + section + "|" + key);
}

}  // namespace

void SetFakeProfile(const std::string& file, const std::string& section, const std::string& key,
                    const std::string& value) {
    fakeProfiles.values[KeyOf(file, section, key)] = value;
}

namespace platform {

std::string ReadProfile(const std::string& file, const std::string& section, const std::string& key,
                        const std::string& fallback, size_t limit) {
    const auto found = fakeProfiles.values.find(KeyOf(file, section, key));
    return (found == fakeProfiles.values.end() ? fallback : found->second).substr(0, limit);
}

bool WriteProfile(const std::string& file, const std::string& section, const std::string& key,
                  const std::string& value) {
    if (fakeProfiles.readOnly) return false;
    SetFakeProfile(file, section, key, value);
    return true;
}

std::string Utf8FromSystemText(std::string_view text) { return Utf8FromWindows1252(text); }

}  // namespace platform
