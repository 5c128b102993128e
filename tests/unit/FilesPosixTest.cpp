// Files on a disk that is full, for which a limit on their size stands: the first bytes are written, the rest is not.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "bgl/AirportWriter.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/TemporaryFolder.h"
#include "platform/Files.h"

namespace {

namespace fs = std::filesystem;
using Bytes = std::vector<uint8_t>;

class FullDisk : public testing::Test {
protected:
    static constexpr rlim_t kLimit = 5000;

    void SetUp() override {
        ResetFakes();
        model::ClearModel();
        std::ofstream(folder / "a.bgl") << "old";
        ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &usual), 0);
        handler = std::signal(SIGXFSZ, SIG_IGN);  // the write fails instead
        const rlimit small = { kLimit, usual.rlim_max };
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    }
    void TearDown() override {
        Free();
        std::signal(SIGXFSZ, handler);
        model::ClearModel();
    }
    void Free() const { setrlimit(RLIMIT_FSIZE, &usual); }
    std::string Target() const { return (folder / "a.bgl").string(); }
    // The old file is whole, and nothing lies beside it.
    void ExpectUntouched() const {
        std::ifstream file(folder / "a.bgl");
        EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "old");
        EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 1);
    }

    const TemporaryFolder temporary;
    const fs::path& folder = temporary.path;
    rlimit usual = {};
    void (*handler)(int) = nullptr;
};

TEST_F(FullDisk, AWriteThatFailsHalfwayLeavesTheOldFileAndNoSibling) {
    const bool written = platform::WriteFileWhole(Target(), Bytes(kLimit + 1, 1));
    Free();
    EXPECT_FALSE(written);
    ExpectUntouched();
}

TEST_F(FullDisk, WhatJustFitsIsWritten) {
    const bool written = platform::WriteFileWhole(Target(), Bytes(kLimit, 1));
    Free();
    EXPECT_TRUE(written);
    EXPECT_EQ(fs::file_size(folder / "a.bgl"), kLimit);
}

TEST_F(FullDisk, SavingAnAirportSaysThatItFailed) {
    build::Airport("KSEA");
    for (int i = 0; i < 1000; ++i) build::Node();
    const int saved = bgl::WriteAirportFile(Target());
    Free();
    EXPECT_EQ(saved, 0);
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text, "ERROR: Unable to create .bgl file");
    ExpectUntouched();
}

}  // namespace
