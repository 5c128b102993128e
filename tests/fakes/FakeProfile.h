// FakeProfile.h - INI files in memory, keyed by path, section and key without regard to case.
#pragma once

#include <map>
#include <string>

struct FakeProfiles {
    std::map<std::string, std::string> values;  // "FILE|SECTION|KEY", upper case
    bool readOnly = false;                      // writes fail
};

extern FakeProfiles fakeProfiles;

void SetFakeProfile(const std::string& file, const std::string& section, const std::string& key,
                    const std::string& value);
