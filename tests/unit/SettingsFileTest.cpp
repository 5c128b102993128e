// SettingsFileTest.cpp - what Tarvo2.ini gives and takes.
#include "app/SettingsFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "app/Settings.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeProfile.h"
#include "fakes/TemporaryFolder.h"
#include "fakes/TestLibrary.h"
#include "platform/Files.h"
#include "platform/Profile.h"

namespace {

namespace fs = std::filesystem;

constexpr uint64_t kSecond = 10000000;  // FILETIME units

class SettingsFile : public testing::Test {
protected:
    SettingsFile() {
        ResetFakes();
        fakeProfiles = FakeProfiles{};
        app::settings = app::Settings{};
        folder = Utf8Path(root);
        file = folder + "\\Tarvo2.ini";
    }
    ~SettingsFile() override {
        fakeProfiles = FakeProfiles{};
        app::settings = app::Settings{};
    }

    void Set(const char* key, const std::string& value) const { SetFakeProfile(file, "General", key, value); }
    std::string Written(const char* key) const {
        return platform::ReadProfile(file, "General", key, "(not written)", 1000);
    }
    void Put(const std::string& text) const { std::ofstream(root / "Tarvo2.ini", std::ios::binary) << text; }
    std::string Bytes() const {
        std::ifstream stream(root / "Tarvo2.ini", std::ios::binary);
        return { std::istreambuf_iterator<char>(stream), {} };
    }
    static std::string OwnDraft() { return "Tarvo2.new" + std::to_string(platform::ProcessNumber()) + ".ini"; }
    uint64_t FileTimeOf(const std::string& name) const {
        for (const platform::FileEntry& entry : platform::ListFiles(folder, name)) return entry.writeTime;
        return 0;
    }
    size_t FileCount() const {
        return static_cast<size_t>(std::distance(fs::directory_iterator(root), fs::directory_iterator()));
    }

    const TemporaryFolder temporary;
    const fs::path& root = temporary.path;
    std::string folder, file;
};

TEST_F(SettingsFile, MissingFileGivesTheDefaults) {
    app::settings.metric = true;
    app::settings.latLongFormat = 5;
    app::LoadSettings(folder);
    EXPECT_EQ(app::settings.nodeKeyCode, 190);
    EXPECT_EQ(app::settings.parkingKeyCode, 79);
    EXPECT_EQ(app::settings.markerKeyCode, 77);
    EXPECT_EQ(app::settings.latLongFormat, 2);
    EXPECT_FALSE(app::settings.metric);
    EXPECT_FALSE(app::settings.metricParkingRadius);
    EXPECT_EQ(app::settings.showLabels, 0);
    EXPECT_TRUE(app::settings.showLatLongGrid);
    EXPECT_EQ(app::settings.latLongGridDivs, 1);
    EXPECT_TRUE(app::settings.latLongGridDecimal);
    EXPECT_EQ(app::settings.nextUpdateNotice, 3);
    EXPECT_FALSE(app::settings.windowMaximized);
    EXPECT_EQ(app::settings.lastSavedFile, "");
    EXPECT_EQ(app::settings.overrideFsFolder, "");
}

TEST_F(SettingsFile, EveryKeyIsRead) {
    Set("NodeKeyCode", "65");
    Set("ParkingKeyCode", "66");
    Set("MarkerKeyCode", "67");
    Set("LatLongFormat", "4");
    Set("Metric", "1");
    Set("MetricParkingRadius", "1");
    Set("ShowLabels", "2");
    Set("ShowLatLongGrid", "0");
    Set("LatLongGridDivs", "9");
    Set("LatLongGridDecimal", "0");
    Set("NextUpdateNotice", "250");
    Set("WindowMaximized", "1");
    Set("LastSavedFile", "C:\\a\\TV2_KSEA.bgl");
    Set("OverrideFSFolder", "D:\\FS9");
    app::LoadSettings(folder);
    EXPECT_EQ(app::settings.nodeKeyCode, 65);
    EXPECT_EQ(app::settings.parkingKeyCode, 66);
    EXPECT_EQ(app::settings.markerKeyCode, 67);
    EXPECT_EQ(app::settings.latLongFormat, 4);
    EXPECT_TRUE(app::settings.metric);
    EXPECT_TRUE(app::settings.metricParkingRadius);
    EXPECT_EQ(app::settings.showLabels, 2);
    EXPECT_FALSE(app::settings.showLatLongGrid);
    EXPECT_EQ(app::settings.latLongGridDivs, 9);
    EXPECT_FALSE(app::settings.latLongGridDecimal);
    EXPECT_EQ(app::settings.nextUpdateNotice, 250);
    EXPECT_TRUE(app::settings.windowMaximized);
    EXPECT_EQ(app::settings.lastSavedFile, "C:\\a\\TV2_KSEA.bgl");
    EXPECT_EQ(app::settings.overrideFsFolder, "D:\\FS9");
}

TEST_F(SettingsFile, ValuesOutsideTheirRangeAreAsGoodAsNone) {
    Set("LatLongGridDivs", "10");
    Set("ShowLabels", "-1");
    Set("LatLongFormat", "banana");
    Set("NodeKeyCode", "300");
    Set("NextUpdateNotice", "99999999999999999999");
    app::LoadSettings(folder);
    EXPECT_EQ(app::settings.latLongGridDivs, 1);
    EXPECT_EQ(app::settings.showLabels, 0);
    EXPECT_EQ(app::settings.latLongFormat, 2);
    EXPECT_EQ(app::settings.nodeKeyCode, 190);
    EXPECT_EQ(app::settings.nextUpdateNotice, 3);
}

TEST_F(SettingsFile, SavingWritesEveryKeyButTheOverride) {
    app::settings.metric = true;
    app::settings.lastSavedFile = "C:\\Z\xC3\xBCrich\\TV2_LSZH.bgl";
    app::settings.overrideFsFolder = "D:\\FS9";
    app::settings.windowMaximized = true;
    EXPECT_TRUE(app::SaveSettings(folder));
    EXPECT_EQ(Written("Metric"), "1");
    EXPECT_EQ(Written("MetricParkingRadius"), "0");
    EXPECT_EQ(Written("NodeKeyCode"), "190");
    EXPECT_EQ(Written("LatLongFormat"), "2");
    EXPECT_EQ(Written("NextUpdateNotice"), "3");
    EXPECT_EQ(Written("WindowMaximized"), "1");
    EXPECT_EQ(Written("LastSavedFile"), "C:\\Z\xC3\xBCrich\\TV2_LSZH.bgl");
    EXPECT_EQ(Written("OverrideFSFolder"), "(not written)");
}

TEST_F(SettingsFile, ListsSkipEmptyEntriesAndKeepTheNewestFirst) {
    SetFakeProfile(file, "Previously Opened Files", "PrevOpenedFile1", "KSEA,C:\\a.bgl");
    SetFakeProfile(file, "Previously Opened Files", "PrevOpenedFile3", "CYYJ,C:\\b.bgl");
    SetFakeProfile(file, "Previously Opened Files", "PrevOpenedFile11", "XXXX,C:\\c.bgl");
    SetFakeProfile(file, "Most Used Parking Specs", "SpecName20", "Air Test");
    app::LoadSettings(folder);
    EXPECT_EQ(app::settings.previousFiles, (std::vector<std::string>{ "KSEA,C:\\a.bgl", "CYYJ,C:\\b.bgl" }));
    EXPECT_EQ(app::settings.mostUsedSpecs, std::vector<std::string>{ "Air Test" });
}

TEST_F(SettingsFile, ShorterListsEmptyTheEntriesBehindThem) {
    SetFakeProfile(file, "Previously Opened Files", "PrevOpenedFile2", "CYYJ,C:\\b.bgl");
    app::settings.previousFiles = { "KSEA,C:\\a.bgl" };
    EXPECT_TRUE(app::SaveSettings(folder));
    app::LoadSettings(folder);
    EXPECT_EQ(app::settings.previousFiles, std::vector<std::string>{ "KSEA,C:\\a.bgl" });
}

TEST_F(SettingsFile, WhatElseTheFileHoldsStays) {
    Put("; mine\n[Other]\nMetric=maybe\n[General]\nMetric=1\nColour of the cat=black\nOverrideFSFolder=D:\\FS9\n");
    app::LoadSettings(folder);
    EXPECT_TRUE(app::SaveSettings(folder));
    EXPECT_EQ(Bytes().substr(0, 28), "; mine\n[Other]\nMetric=maybe\n");
    EXPECT_EQ(Written("Colour of the cat"), "black");
    EXPECT_EQ(Written("OverrideFSFolder"), "D:\\FS9");
}

TEST_F(SettingsFile, LoadedAndSavedAgainTheFileStaysByteForByte) {
    app::settings.previousFiles = { "KSEA,C:\\a.bgl", "CYYJ,C:\\b.bgl" };
    app::settings.mostUsedSpecs = { "Air Test" };
    app::settings.latLongFormat = 4;
    EXPECT_TRUE(app::SaveSettings(folder));
    const std::string first = Bytes();
    const app::Settings before = app::settings;
    app::settings = {};
    app::LoadSettings(folder);
    EXPECT_EQ(app::settings, before);
    EXPECT_TRUE(app::SaveSettings(folder));
    EXPECT_EQ(Bytes(), first);
}

TEST_F(SettingsFile, AWriteThatFailsAtAnyKeyLeavesTheOldFile) {
    Put("[General]\nMetric=1\n");
    int writes = 0;
    for (;; ++writes) {
        fakeProfiles.writesLeft = writes;
        if (app::SaveSettings(folder)) break;
        EXPECT_EQ(Bytes(), "[General]\nMetric=1\n") << writes;
        EXPECT_EQ(FileCount(), 1u) << "a draft was left behind";
        ASSERT_LT(writes, 1000);
    }
    EXPECT_EQ(writes, 13 + 10 + 20);
    EXPECT_EQ(FileCount(), 1u);
    EXPECT_EQ(Written("Metric"), "0");
}

TEST_F(SettingsFile, AFolderThatIsNotThereIsReported) { EXPECT_FALSE(app::SaveSettings(folder + "\\missing")); }

TEST_F(SettingsFile, SomethingElseOfThatNameIsReportedAndStays) {
    fs::create_directories(root / "Tarvo2.ini");
    EXPECT_FALSE(app::SaveSettings(folder));
    EXPECT_TRUE(fs::is_directory(root / "Tarvo2.ini"));
}

TEST_F(SettingsFile, ADraftOfAnEarlierEndIsNoHindranceAndGoes) {
    std::ofstream(root / OwnDraft()) << "[General]\nLatLongForm";
    std::ofstream(root / "Tarvo2.new77.ini") << "[General]\nLatLongForm";
    fake.fileTime = FileTimeOf("Tarvo2.new77.ini") + 61 * kSecond;
    EXPECT_TRUE(app::SaveSettings(folder));
    EXPECT_EQ(FileCount(), 1u);
    EXPECT_EQ(Written("LatLongFormat"), "2");
}

TEST_F(SettingsFile, WhatAnotherInstanceIsWritingAndWhatIsNoDraftStays) {
    for (const char* name : { "Tarvo2.new77.ini", "Tarvo2.new.ini", "Tarvo2.newer.ini", "Tarvo3.new77.ini" })
        std::ofstream(root / name) << "x";
    fake.fileTime = FileTimeOf("Tarvo2.new77.ini") + 59 * kSecond;
    EXPECT_TRUE(app::SaveSettings(folder));
    EXPECT_EQ(FileCount(), 5u);
    fake.fileTime += 10 * kSecond;
    EXPECT_TRUE(app::SaveSettings(folder));
    EXPECT_FALSE(fs::exists(root / "Tarvo2.new77.ini"));
    EXPECT_EQ(FileCount(), 4u);
}

TEST_F(SettingsFile, ADraftThatCannotBeBegunLeavesTheOldFile) {
    Put("[General]\nMetric=1\n");
    fs::create_directories(root / OwnDraft() / "in the way");
    EXPECT_FALSE(app::SaveSettings(folder));
    EXPECT_EQ(Bytes(), "[General]\nMetric=1\n");
}

TEST_F(SettingsFile, ATextThatIsTooLongIsDroppedNotCut) {
    const std::string umlauts = [] {
        std::string text;
        for (int i = 0; i < 260; ++i) text += "\xC3\xBC";
        return text;
    }();
    Set("LastSavedFile", umlauts);
    Set("OverrideFSFolder", umlauts + "x");
    SetFakeProfile(file, "Previously Opened Files", "PrevOpenedFile1", std::string(1001, 'a'));
    SetFakeProfile(file, "Previously Opened Files", "PrevOpenedFile2", std::string(1000, 'b'));
    app::LoadSettings(folder);
    EXPECT_EQ(app::settings.lastSavedFile, umlauts) << "characters are counted, not bytes";
    EXPECT_EQ(app::settings.overrideFsFolder, "");
    EXPECT_EQ(app::settings.previousFiles, std::vector<std::string>{ std::string(1000, 'b') });
}

}  // namespace
