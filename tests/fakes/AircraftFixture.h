// AircraftFixture.h - a simulator's Aircraft folder on the disk, gone when the test ends.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "FakePlatform.h"
#include "TemporaryFolder.h"

class AircraftFixture : public testing::Test {
protected:
    AircraftFixture() {
        ResetFakes();
        std::filesystem::create_directories(root / "Aircraft");
    }

    // Paths are relative to the simulator's folder.
    void Put(const std::string& path, const std::string& text) const {
        std::filesystem::create_directories((root / path).parent_path());
        std::ofstream(root / path, std::ios::binary) << text;
    }
    std::string Get(const std::string& path) const {
        std::ifstream file(root / path, std::ios::binary);
        return { std::istreambuf_iterator<char>(file), {} };
    }
    bool Exists(const std::string& path) const { return std::filesystem::exists(root / path); }
    std::string Simulator() const { return root.string(); }

    // The head of a model file; all but the radius is filler.
    static std::string Model(uint32_t radius) {
        std::string bytes = "RIFF";
        for (char i = 4; i < 28; ++i) bytes.push_back(i);
        for (int shift = 0; shift < 32; shift += 8) bytes.push_back(static_cast<char>(radius >> shift & 0xFF));
        return bytes + "the rest of the model";
    }
    void PutModel(const std::string& folder, const std::string& name, uint32_t radius) const {
        Put("Aircraft/" + folder + "/Model.cfg", "[models]\r\nnormal=" + name + "\r\n");
        Put("Aircraft/" + folder + "/" + name + ".mdl", Model(radius));
    }

    const TemporaryFolder temporary;
    const std::filesystem::path& root = temporary.path;
};
