// FakeProfile.h - INI files as a system without our care keeps them: on the disk, changed in place key by key, in
// the encoding UTF-8.
#pragma once

#include <string>

struct FakeProfiles {
    int writesLeft = -1;  // from then on writes fail; below 0: never
};

extern FakeProfiles fakeProfiles;

// False when the disk is full: the file is then cut.
bool SetFakeProfile(const std::string& file, const std::string& section, const std::string& key,
                    const std::string& value);
