// FullDiskPosixTest.cpp - what the program keeps for itself, on a disk that fills up after any number of bytes: each
// file is the old one or the new one, nothing lies beside them, and the failure is told.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <csignal>
#include <functional>
#include <map>
#include <stdexcept>
#include <vector>

#include "app/AppState.h"
#include "app/AutoBackup.h"
#include "app/Notices.h"
#include "app/Settings.h"
#include "app/SettingsFile.h"
#include "bgl/AirportWriter.h"
#include "bgl/IndexCache.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeShell.h"
#include "fakes/TestLibrary.h"

namespace {

namespace fs = std::filesystem;
using Files = std::map<std::string, std::string>;  // content by name

constexpr size_t kSteps = 40;

// While it lives no file grows beyond `bytes`: the first bytes are written, the rest is not.
struct SizeLimit {
    explicit SizeLimit(size_t bytes) {
        handler = std::signal(SIGXFSZ, SIG_IGN);  // the write fails instead
        ::getrlimit(RLIMIT_FSIZE, &usual);
        const rlimit small = { bytes, usual.rlim_max };
        isSet = ::setrlimit(RLIMIT_FSIZE, &small) == 0;
    }
    ~SizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &usual);
        std::signal(SIGXFSZ, handler);
    }
    SizeLimit(const SizeLimit&) = delete;
    SizeLimit& operator=(const SizeLimit&) = delete;
    rlimit usual{};
    void (*handler)(int) = nullptr;
    bool isSet = false;
};

// From none to all but the last byte.
std::vector<size_t> LimitsBelow(size_t size) {
    std::vector<size_t> limits;
    for (size_t limit = 0; limit < size; limit += std::max<size_t>(size / kSteps, 1)) limits.push_back(limit);
    if (limits.back() != size - 1) limits.push_back(size - 1);
    return limits;
}

class FullDiskAtAnyByte : public testing::Test {
protected:
    FullDiskAtAnyByte() { ResetProgram(); }
    ~FullDiskAtAnyByte() override { ResetProgram(); }

    Files FilesNow() const {
        Files files;
        for (const fs::directory_entry& entry : fs::directory_iterator(disk.root / "program"))
            files[entry.path().filename().string()] = disk.ReadCache(entry.path().filename().string());
        return files;
    }
    void PutBack(const Files& files) const {
        for (const auto& [name, content] : files) disk.PutCache(name, content);
    }
    static bool Within(size_t limit, const std::function<bool()>& write) {
        const SizeLimit full(limit);
        return full.isSet ? write() : throw std::runtime_error("the limit cannot be set");
    }

    TestLibrary disk;
};

TEST_F(FullDiskAtAnyByte, TheSettingsStayAsTheyWereUntilAllOfThemFit) {
    const Files old = { { "Tarvo2.ini", "; mine\n[General]\nMetric=1\nOverrideFSFolder=E:\\Sim\n" } };
    const auto save = [&] { return app::SaveSettings(disk.program); };
    app::settings.mostUsedSpecs = { "Air Test" };
    PutBack(old);
    ASSERT_TRUE(save());
    const Files whole = FilesNow();
    const size_t size = whole.at("Tarvo2.ini").size();
    ASSERT_GT(size, old.at("Tarvo2.ini").size());
    PutBack(old);
    for (const size_t limit : LimitsBelow(size)) {
        EXPECT_FALSE(Within(limit, save)) << limit;
        EXPECT_EQ(FilesNow(), old) << limit;
    }
    EXPECT_TRUE(Within(size, save));
    EXPECT_EQ(FilesNow(), whole);
}

TEST_F(FullDiskAtAnyByte, EachCacheStaysAsItWasUntilItFits) {
    const bgl::CacheTexts before = { "old list\n", "old index\n" };
    const bgl::CacheTexts after = { std::string(300, 'l'), std::string(1000, 'i') };
    const auto write = [&] { return bgl::WriteCaches(disk.program, after); };
    ASSERT_TRUE(bgl::WriteCaches(disk.program, before));
    for (const size_t limit : LimitsBelow(after.airportIndex.size())) {
        EXPECT_FALSE(Within(limit, write)) << limit;
        const bgl::CacheTexts& list = limit < after.fileList.size() ? before : after;
        EXPECT_EQ(FilesNow(), (Files{ { "AirportIndex", before.airportIndex }, { "FileList", list.fileList } }))
            << limit;
        ASSERT_TRUE(bgl::WriteCaches(disk.program, before));
    }
    EXPECT_TRUE(Within(after.airportIndex.size(), write));
    EXPECT_EQ(FilesNow(), (Files{ { "AirportIndex", after.airportIndex }, { "FileList", after.fileList } }));
}

TEST_F(FullDiskAtAnyByte, TheBackupBeforeStaysUntilTheNextOneFits) {
    app::state.programFolder = disk.program;
    ASSERT_TRUE(app::ClaimAutoBackup());
    model::state.airport = build::Airport("KTST");
    model::state.loaded = model::state.modified = true;
    build::Node();
    app::WriteAutoBackup();
    const Files old = FilesNow();
    for (int i = 0; i < 100; ++i) build::Node({ double(i), 0 });
    std::vector<uint8_t> bytes;
    std::string refusal;
    ASSERT_TRUE(bgl::BuildAirportFile(platform::SystemFileTime(), &bytes, &refusal)) << refusal;
    ASSERT_GT(bytes.size(), old.at("AutoBackupTemp.bgl").size());
    const auto write = [] {
        app::WriteAutoBackup();
        return fakeShell.notice.empty();
    };
    for (const size_t limit : LimitsBelow(bytes.size())) {
        app::SetNotice(app::Notice::Backup, "");
        EXPECT_FALSE(Within(limit, write)) << limit;
        EXPECT_EQ(fakeShell.notice, "Autobackup failed: cannot write " + app::AutoBackupPath(disk.program));
        EXPECT_EQ(FilesNow(), old) << limit;
        EXPECT_TRUE(model::state.modified);
    }
    EXPECT_TRUE(Within(bytes.size(), write)) << fakeShell.notice;
    EXPECT_EQ(disk.ReadCache("AutoBackupTemp.bgl"), std::string(bytes.begin(), bytes.end()));
    EXPECT_EQ(FilesNow().size(), old.size());
    EXPECT_TRUE(fake.messages.empty());
}

}  // namespace
