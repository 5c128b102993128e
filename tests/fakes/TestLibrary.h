// TestLibrary.h - a scenery library on the disk, in a folder of its own that goes when it does.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "TemporaryFolder.h"

struct TestAirport {
    std::string ident, name, country, state, city;  // Windows-1252
};

// A scenery file with the airports' names and, for each airport, a record without parts.
std::vector<uint8_t> MakeSceneryFile(const std::vector<TestAirport>& airports);

struct TestLibrary {
    TestLibrary();

    const TemporaryFolder temporary;
    const std::filesystem::path& root = temporary.path;
    std::string simulator, program;  // UTF-8 paths of the two folders

    // The file of an area of the simulator's folder. `seconds` tells its time from that of others.
    std::filesystem::path FileOf(const std::string& area, const std::string& name) const;
    void Put(const std::string& area, const std::string& name, const std::vector<uint8_t>& bytes,
             int seconds = 0) const;
    void Remove(const std::string& area, const std::string& name) const;
    void Touch(const std::string& area, const std::string& name, int seconds) const;

    void PutConfig(std::string_view text) const;  // Scenery.cfg
    // An area for each folder, the first with layer 1.
    void PutAreas(const std::vector<std::string>& areas) const;

    std::string ReadCache(const std::string& name) const;
    void PutCache(const std::string& name, std::string_view text) const;
};
