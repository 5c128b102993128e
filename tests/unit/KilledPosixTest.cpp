// KilledPosixTest.cpp - a process that dies while it saves leaves the old file or the new one, never a part.
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <functional>
#include <random>
#include <regex>
#include <thread>

#include "aircraft/FilePair.h"
#include "app/AppState.h"
#include "app/AutoBackup.h"
#include "app/Settings.h"
#include "app/SettingsFile.h"
#include "bgl/AirportIndex.h"
#include "bgl/AirportWriter.h"
#include "bgl/IndexCache.h"
#include "bgl/OpenAirport.h"
#include "bgl/SceneryStructure.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakeProfile.h"
#include "fakes/FakeShell.h"
#include "fakes/Rounds.h"
#include "fakes/TestLibrary.h"
#include "map/MapView.h"
#include "model/ObjectList.h"
#include "platform/Files.h"

namespace {

const int kKills = Rounds(200, 1000);

class Killed : public testing::Test {
protected:
    void SetUp() override {
        ResetProgram();
        bgl::library = {};
    }
    void TearDown() override {
        ResetProgram();
        bgl::library = {};
    }

    // Lets a child write version after version, kills it at a random moment and looks at what it left; kKills
    // times. The parent knows that writing has begun, so that no kill comes too early. The unfinished siblings that killed
    // writers leave stay until the folder of the test goes: here nothing removes them, Windows builds do.
    void KillDuring(const std::function<void(int version)>& write, const std::function<void()>& look) {
        for (int kill = 0; kill < kKills; ++kill) {
            int ends[2];
            ASSERT_EQ(::pipe(ends), 0);
            const pid_t child = ::fork();
            ASSERT_GE(child, 0);
            if (child == 0) {
                ::close(ends[0]);
                for (int version = kill;; ++version) {
                    write(version);
                    [[maybe_unused]] const ssize_t told = ::write(ends[1], "x", 1);
                }
            }
            ::close(ends[1]);  // a child that dies early ends the reading
            char begun;
            ASSERT_EQ(::read(ends[0], &begun, 1), 1);
            std::this_thread::sleep_for(std::chrono::microseconds(delay(random)));  // the random moment itself
            ::kill(child, SIGKILL);
            int status = 0;
            ::waitpid(child, &status, 0);
            ::close(ends[0]);
            ASSERT_TRUE(WIFSIGNALED(status)) << "the child ended by itself";
            look();
            if (HasFailure()) return;
        }
    }

    TestLibrary disk;
    std::mt19937 random{ 20040101 };
    std::uniform_int_distribution<int> delay{ 0, 4000 };
};

void MakeAirportOfVersion(int version) {
    model::ClearModel();
    model::state.airport = build::Airport("KTST");
    model::state.loaded = model::state.modified = true;
    for (int i = 0; i < 50 + version; ++i) build::Node({ double(i), double(version) });
}

// The open airport is all that the file holds.
void ExpectWholeFileOfAirport(const std::string& path) {
    EXPECT_GE(model::CountKind(model::kTaxiNode), 50u);
    std::vector<uint8_t> left, again;
    std::string refusal;
    ASSERT_TRUE(platform::ReadWholeFile(path, 1 << 24, &left));
    ASSERT_TRUE(bgl::BuildAirportFile(0, &again, &refusal)) << refusal;
    EXPECT_EQ(left.size(), again.size()) << "the file is cut";
}

TEST_F(Killed, WhileSavingAnAirport) {
    const std::string path = disk.program + "/TV2_KTST.bgl";
    const auto write = [&](int version) {
        MakeAirportOfVersion(version);
        bgl::WriteAirportFile(path);
    };
    const auto look = [&] {
        bgl::AirportPlace place;
        ASSERT_TRUE(bgl::FindAirportInFile(path, "KTST", &place));
        ASSERT_TRUE(bgl::OpenAirport(place, ""));
        ExpectWholeFileOfAirport(path);
        model::ClearModel();
    };
    KillDuring(write, look);
}

// The next start takes the killed one's place and has the airport back.
TEST_F(Killed, WhileWritingTheAutobackup) {
    const auto start = [&] {
        ResetProgram();
        map::ResizeView(800, 600);
        app::state.programFolder = disk.program;
    };
    const auto write = [&](int version) {
        if (app::state.autoBackup.empty() && !app::ClaimAutoBackup()) return;
        MakeAirportOfVersion(version);
        app::WriteAutoBackup();
    };
    const auto look = [&] {
        ASSERT_TRUE(app::ClaimAutoBackup() && app::RecoverAirport());
        EXPECT_EQ(app::state.autoBackup, app::AutoBackupPath(disk.program)) << "the killed one's lock is still held";
        EXPECT_EQ(model::state.icao, "KTST");
        ExpectWholeFileOfAirport(app::state.autoBackup);
        start();
    };
    start();
    KillDuring(write, look);
}

std::vector<uint8_t> LinesOfVersion(int version) {
    std::string text;
    for (int line = 0; line < 4000; ++line) text += std::to_string(version) + "\n";
    return { text.begin(), text.end() };
}

TEST_F(Killed, WhileSavingAnAircraft) {
    const std::string files[] = { disk.program + "/Aircraft.cfg", disk.program + "/plain.mdl" };
    const std::vector<uint8_t> original = LinesOfVersion(-1);
    for (const std::string& path : files) ASSERT_TRUE(platform::WriteFileWhole(path, original));
    const auto write = [&](int version) {
        std::vector<aircraft::FileChange> changes;
        for (const std::string& path : files) changes.push_back({ path, original, LinesOfVersion(version), true });
        std::string failed;
        aircraft::WriteChanges(changes, &failed);
    };
    const auto look = [&] {
        for (const std::string& path : files) {
            std::vector<uint8_t> left, backup;
            ASSERT_TRUE(platform::ReadWholeFile(path, 1 << 24, &left));
            const int version = std::stoi(std::string(left.begin(), std::find(left.begin(), left.end(), '\n')));
            EXPECT_EQ(left, LinesOfVersion(version));
            ASSERT_TRUE(platform::ReadWholeFile(path + "_BACKUP", 1 << 24, &backup));
            EXPECT_EQ(backup, original);
        }
    };
    KillDuring(write, look);
}

// Through the tests' own keeper of settings files: how the system's writes its sections is not seen here.
TEST_F(Killed, WhileSavingTheSettings) {
    app::settings.previousFiles = { "KSEA,C:\\a.bgl" };
    app::settings.lastSavedFile = "the last key of a group";
    const auto write = [&](int version) {
        app::settings.nextUpdateNotice = version;
        app::settings.mostUsedSpecs.assign(20, "Spec " + std::to_string(version));
        app::SaveSettings(disk.program);
    };
    const auto look = [&] {
        app::settings = {};
        app::LoadSettings(disk.program);
        EXPECT_EQ(app::settings.previousFiles, std::vector<std::string>{ "KSEA,C:\\a.bgl" });
        const std::string spec = "Spec " + std::to_string(app::settings.nextUpdateNotice);
        EXPECT_EQ(app::settings.mostUsedSpecs, std::vector<std::string>(20, spec)) << "keys of two saves";
    };
    KillDuring(write, look);
}

bgl::CacheTexts CachesOfVersion(int version) {
    constexpr int kAirports = 300;
    const std::string number = std::to_string(version);
    bgl::library = {};
    const uint32_t file = bgl::FileNumberOf("C:\\FS9\\v" + number + ".bgl");
    bgl::library.files[file].kind = bgl::FileKind::AddOn;
    bgl::library.files[file].present = true;
    for (int i = 0; i < kAirports; ++i)
        bgl::AddAirport("Country", "State", "City", "v" + number + ".Field " + std::to_string(i), "KTST", file);
    for (int step = 0; step < bgl::kTreeSteps; ++step) bgl::BuildPlacesStep(step);
    return bgl::ComposeCaches();
}

// The version whose mark "vNUMBER." stands in the text; -1 when there is none.
int VersionIn(const std::string& text) {
    std::smatch mark;
    return std::regex_search(text, mark, std::regex("v([0-9]+)\\.")) ? std::stoi(mark[1]) : -1;
}

TEST_F(Killed, WhileWritingTheCaches) {
    const auto write = [&](int version) { bgl::WriteCaches(disk.program, CachesOfVersion(version)); };
    int together = 0;
    const auto look = [&] {
        // Each file is whole by itself; a kill between the two leaves them of two versions.
        const bgl::CacheTexts left = bgl::ReadCaches(disk.program);
        const int list = VersionIn(left.fileList), index = VersionIn(left.airportIndex);
        EXPECT_EQ(left.fileList, CachesOfVersion(list).fileList);
        EXPECT_EQ(left.airportIndex, CachesOfVersion(index).airportIndex);
        bgl::library = {};
        const bool belongTogether = bgl::ParseFileList(left, "C:\\FS9") == bgl::CacheState::Checked;
        EXPECT_EQ(belongTogether, list == index);
        together += list == index;
    };
    KillDuring(write, look);
    EXPECT_GT(together, kKills / 4);
}

}  // namespace
