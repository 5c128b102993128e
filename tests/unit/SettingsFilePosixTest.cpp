// SettingsFilePosixTest.cpp - several instances that end at the same time, as processes of their own, and a file that
// somebody else has locked.
#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "app/AppState.h"
#include "app/Program.h"
#include "app/Settings.h"
#include "app/SettingsFile.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeShell.h"
#include "fakes/TestLibrary.h"

namespace {

constexpr int kProcesses = 4, kSaves = 50;

// Saves again and again, each time with one number in every place; the exit code tells whether all of them went well.
[[noreturn]] void SaveOften(const std::string& folder, int process) {
    bool ok = true;
    for (int save = 0; save < kSaves; ++save) {
        app::settings.nextUpdateNotice = process * kSaves + save;
        app::settings.mostUsedSpecs.assign(20, "Spec " + std::to_string(app::settings.nextUpdateNotice));
        ok &= app::SaveSettings(folder);
    }
    ::_exit(ok ? 0 : 1);
}

TEST(SettingsFilePosix, InstancesThatEndTogetherLeaveTheWholeSettingsOfOne) {
    ResetProgram();
    const TestLibrary disk;
    disk.PutCache("Tarvo2.ini", "[General]\nOverrideFSFolder=E:\\Sim\nMine=7\n");
    std::vector<pid_t> children;
    for (int process = 0; process < kProcesses; ++process) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) SaveOften(disk.program, process);
        children.push_back(child);
    }
    for (const pid_t child : children) {
        int status = 0;
        ::waitpid(child, &status, 0);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "a save failed";
    }
    app::LoadSettings(disk.program);
    EXPECT_EQ(app::settings.overrideFsFolder, "E:\\Sim");
    EXPECT_NE(disk.ReadCache("Tarvo2.ini").find("Mine=7"), std::string::npos);
    const std::string spec = "Spec " + std::to_string(app::settings.nextUpdateNotice);
    EXPECT_EQ(app::settings.mostUsedSpecs, std::vector<std::string>(20, spec)) << "keys of two instances";
    size_t files = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(disk.root / "program")) ++files;
    EXPECT_EQ(files, 1u) << "a draft was left behind";
    ResetProgram();
}

// While it lives every file can be seen and none be opened.
struct NoFileOpens {
    NoFileOpens() {
        ::getrlimit(RLIMIT_NOFILE, &before);
        const rlimit none = { 0, before.rlim_max };
        ::setrlimit(RLIMIT_NOFILE, &none);
    }
    ~NoFileOpens() { ::setrlimit(RLIMIT_NOFILE, &before); }
    NoFileOpens(const NoFileOpens&) = delete;
    NoFileOpens& operator=(const NoFileOpens&) = delete;
    rlimit before{};
};

TEST(SettingsFilePosix, WhatCouldNotBeReadAtTheStartIsNotReplacedByDefaults) {
    ResetProgram();
    const TestLibrary disk;
    app::state.programFolder = disk.program;
    const std::string text = "[General]\nNextUpdateNotice=9999\nMetric=1\n";
    disk.PutCache("Tarvo2.ini", text);
    app::LoadProgramFiles();  // the sanitizer opens files itself when it meets a type for the first time
    app::settings = {};
    {
        const NoFileOpens locked;
        app::LoadProgramFiles();
    }
    ASSERT_FALSE(app::settings.metric) << "it was read after all";
    app::EndSession(false);
    EXPECT_EQ(disk.ReadCache("Tarvo2.ini"), text);
    EXPECT_TRUE(fake.messages.empty()) << "the user has changed nothing";
    app::settings.showLatLongGrid = !app::settings.showLatLongGrid;
    app::EndSession(false);
    EXPECT_EQ(disk.ReadCache("Tarvo2.ini"), text);
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text,
              "The settings and the list of recent airports could not be kept:\n"
              "Tarvo may not write Tarvo2.ini in its folder\n\n" +
                  disk.program);
    ResetProgram();
}

}  // namespace
