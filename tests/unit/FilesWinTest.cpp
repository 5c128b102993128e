// FilesWinTest.cpp - what only the files of Windows do.
#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "fakes/TemporaryFolder.h"
#include "fakes/TestLibrary.h"
#include "platform/Files.h"

namespace {

namespace fs = std::filesystem;

class FilesWin : public testing::Test {
protected:
    // A file that was written that many seconds ago.
    void Put(const char* name, int seconds) const {
        std::ofstream(folder / name) << "part of";
        fs::last_write_time(folder / name, fs::file_time_type::clock::now() - std::chrono::seconds(seconds));
    }
    void Write() const {
        const uint8_t bytes[] = { 1, 2, 3 };
        EXPECT_TRUE(platform::WriteFileWhole(Utf8Path(folder / "file"), bytes));
    }
    bool Exists(const char* name) const { return fs::exists(folder / name); }

    const TemporaryFolder temporary;
    const fs::path& folder = temporary.path;
};

TEST_F(FilesWin, AWriteRemovesWhatAKilledOneLeft) {
    Put("~tv0012ABCD.tmp", 3600);
    Write();
    EXPECT_FALSE(Exists("~tv0012ABCD.tmp"));
    EXPECT_TRUE(Exists("file"));
}

TEST_F(FilesWin, WhatSomebodyMayBeWritingStays) {
    Put("~tv0012ABCD.tmp", 5);
    Put("~tv00000001.tmp", 3600);
    const HANDLE held =
        CreateFileW((folder / "~tv00000001.tmp").c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    Put("~tv1.tmp", 3600);
    const char* const kOthers[] = { "~tv0012ABCD.tmpx", "~tv0012ABCG.tmp", "~tvreport99.tmp", "~tv0012ABC.tmp" };
    for (const char* name : kOthers) Put(name, 3600);
    Write();
    CloseHandle(held);
    for (const char* name : { "~tv0012ABCD.tmp", "~tv00000001.tmp", "~tv1.tmp" }) EXPECT_TRUE(Exists(name)) << name;
    for (const char* name : kOthers) EXPECT_TRUE(Exists(name)) << name;
}

// Whether the system made the link: not every account may, and some systems only say that they did.
bool MakeLink(const fs::path& link, const fs::path& target) {
    constexpr DWORD kUnprivileged = 2;
    if (!CreateSymbolicLinkW(link.c_str(), target.c_str(), kUnprivileged)) return false;
    const DWORD attributes = GetFileAttributesW(link.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT);
}

bool IsLink(const fs::path& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT);
}

TEST_F(FilesWin, ALinkStaysAndTheFileBehindItIsWritten) {
    fs::create_directories(folder / "elsewhere");
    Put("elsewhere/target", 60);
    if (!MakeLink(folder / "file", folder / "elsewhere" / "target")) GTEST_SKIP() << "this system makes no links";
    Write();
    EXPECT_TRUE(IsLink(folder / "file"));
    EXPECT_EQ(fs::file_size(folder / "elsewhere" / "target"), 3u);
}

TEST_F(FilesWin, ALinkThatLeadsNowhereIsNotReplaced) {
    if (!MakeLink(folder / "file", folder / "missing")) GTEST_SKIP() << "this system makes no links";
    const uint8_t bytes[] = { 1, 2, 3 };
    EXPECT_FALSE(platform::WriteFileWhole(Utf8Path(folder / "file"), bytes));
    EXPECT_TRUE(IsLink(folder / "file"));
    EXPECT_FALSE(Exists("missing"));
}

TEST_F(FilesWin, AHeldFileGoesWithItsHandle) {
    platform::FileHandle held = platform::HoldFile(Utf8Path(folder / "lock"));
    ASSERT_TRUE(held);
    EXPECT_TRUE(Exists("lock"));
    held.reset();
    EXPECT_FALSE(Exists("lock"));
}

}  // namespace
