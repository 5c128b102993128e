// SettingsFileTest.cpp - what Tarvo2.ini gives and takes.
#include "app/SettingsFile.h"

#include <gtest/gtest.h>

#include "app/Settings.h"
#include "fakes/FakeProfile.h"
#include "platform/Profile.h"

namespace {

const std::string kFolder = "C:\\Tarvo";
const std::string kFile = "C:\\Tarvo\\Tarvo2.ini";

class SettingsFile : public testing::Test {
protected:
    SettingsFile() {
        fakeProfiles = FakeProfiles{};
        app::settings = app::Settings{};
    }
    ~SettingsFile() override { app::settings = app::Settings{}; }

    static void Set(const char* key, const std::string& value) { SetFakeProfile(kFile, "General", key, value); }
    static std::string Written(const char* key) {
        return platform::ReadProfile(kFile, "General", key, "(not written)", 1000);
    }
};

TEST_F(SettingsFile, MissingFileGivesTheDefaults) {
    app::settings.metric = true;
    app::settings.latLongFormat = 5;
    app::LoadSettings(kFolder);
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
    app::LoadSettings(kFolder);
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
    app::LoadSettings(kFolder);
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
    EXPECT_TRUE(app::SaveSettings(kFolder));
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
    SetFakeProfile(kFile, "Previously Opened Files", "PrevOpenedFile1", "KSEA,C:\\a.bgl");
    SetFakeProfile(kFile, "Previously Opened Files", "PrevOpenedFile3", "CYYJ,C:\\b.bgl");
    SetFakeProfile(kFile, "Previously Opened Files", "PrevOpenedFile11", "XXXX,C:\\c.bgl");
    SetFakeProfile(kFile, "Most Used Parking Specs", "SpecName20", "Air Test");
    app::LoadSettings(kFolder);
    EXPECT_EQ(app::settings.previousFiles, (std::vector<std::string>{ "KSEA,C:\\a.bgl", "CYYJ,C:\\b.bgl" }));
    EXPECT_EQ(app::settings.mostUsedSpecs, std::vector<std::string>{ "Air Test" });
}

TEST_F(SettingsFile, ShorterListsEmptyTheEntriesBehindThem) {
    SetFakeProfile(kFile, "Previously Opened Files", "PrevOpenedFile2", "CYYJ,C:\\b.bgl");
    app::settings.previousFiles = { "KSEA,C:\\a.bgl" };
    EXPECT_TRUE(app::SaveSettings(kFolder));
    app::LoadSettings(kFolder);
    EXPECT_EQ(app::settings.previousFiles, std::vector<std::string>{ "KSEA,C:\\a.bgl" });
}

TEST_F(SettingsFile, FileThatCannotBeWrittenIsReported) {
    fakeProfiles.readOnly = true;
    EXPECT_FALSE(app::SaveSettings(kFolder));
}

}  // namespace
