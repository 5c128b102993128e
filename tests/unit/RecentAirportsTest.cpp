// RecentAirportsTest.cpp - the airports at the end of the File menu.
#include "app/RecentAirports.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "app/Settings.h"
#include "bgl/AirportWriter.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeShell.h"
#include "fakes/TemporaryFolder.h"
#include "model/ObjectList.h"

namespace {

namespace fs = std::filesystem;
using app::settings;
using List = std::vector<std::string>;

class RecentAirports : public testing::Test {
protected:
    RecentAirports() { settings = {}; }
    ~RecentAirports() override { settings = {}; }
};

TEST_F(RecentAirports, TheNewestComesFirst) {
    app::NoteOpenedAirport("KSEA", "C:\\a.bgl");
    app::NoteOpenedAirport("EDDF", "C:\\b, c.bgl");
    EXPECT_EQ(settings.previousFiles, (List{ "EDDF,C:\\b, c.bgl", "KSEA,C:\\a.bgl" }));
}

TEST_F(RecentAirports, AnAirportOpenedTwiceIsASingleEntryAtTheTopWithItsNewPath) {
    app::NoteOpenedAirport("KSEA", "C:\\a.bgl");
    app::NoteOpenedAirport("EDDF", "C:\\b.bgl");
    app::NoteOpenedAirport("ksea", "C:\\new.bgl");
    EXPECT_EQ(settings.previousFiles, (List{ "ksea,C:\\new.bgl", "EDDF,C:\\b.bgl" }));
}

TEST_F(RecentAirports, AnAirportWithoutIdentifierIsNotRemembered) {
    app::NoteOpenedAirport("", "C:\\a.bgl");
    EXPECT_TRUE(settings.previousFiles.empty());
}

TEST_F(RecentAirports, TheListIsCutToTen) {
    for (int i = 0; i < 12; ++i) app::NoteOpenedAirport("K0" + std::to_string(10 + i), "p");
    EXPECT_EQ(settings.previousFiles.size(), 10u);
    EXPECT_EQ(settings.previousFiles.front(), "K021,p");
    EXPECT_EQ(settings.previousFiles.back(), "K012,p");
    app::NoteOpenedAirport("K012", "q");
    EXPECT_EQ(settings.previousFiles.size(), 10u);
    EXPECT_EQ(settings.previousFiles.back(), "K013,p");
}

TEST_F(RecentAirports, AnEntryGivesIdentifierAndPath) {
    settings.previousFiles = { "EDDF,C:\\b, c.bgl", "KSEATAC,C:\\a.bgl" };
    app::RecentAirport airport;
    ASSERT_TRUE(app::GetRecentAirport(0, &airport));
    EXPECT_EQ(airport.ident, "EDDF");
    EXPECT_EQ(airport.path, "C:\\b, c.bgl");
    ASSERT_TRUE(app::GetRecentAirport(1, &airport));
    EXPECT_EQ(airport.ident, "KSEA");
    EXPECT_FALSE(app::GetRecentAirport(2, &airport));
}

TEST_F(RecentAirports, EntriesThatNameNoAirportOrFileOpenNothing) {
    settings.previousFiles = { "", ",", "KSEA", "KSEA,", ",C:\\a.bgl" };
    app::RecentAirport airport;
    for (size_t i = 0; i < 5; ++i) EXPECT_FALSE(app::GetRecentAirport(i, &airport)) << i;
}

TEST_F(RecentAirports, MenuTextsAreNumberedFromOne) {
    for (int i = 0; i < 10; ++i) app::NoteOpenedAirport("K00" + std::to_string(i), "p");
    EXPECT_EQ(app::RecentAirportCount(), 10u);
    EXPECT_EQ(app::RecentMenuText(0), "&1  K009");
    EXPECT_EQ(app::RecentMenuText(9), "&10  K000");
}

TEST_F(RecentAirports, AnEntryWrittenByHandShowsNoMoreThanAnIdentifier) {
    settings.previousFiles = { "KSEATAC,C:\\a.bgl" };
    EXPECT_EQ(app::RecentMenuText(0), "&1  KSEA");
}

class OpenRemembered : public testing::Test {
protected:
    void SetUp() override {
        ResetProgram();
        for (const char* ident : { "KAAA", "KBBB" }) {
            model::state.airport = build::Airport(ident);
            EXPECT_EQ(bgl::WriteAirportFile(PathOf(ident)), 1);
            model::ClearModel();
        }
    }
    void TearDown() override { ResetProgram(); }
    std::string PathOf(const std::string& ident) const { return (folder / (ident + ".bgl")).string(); }

    const TemporaryFolder temporary;
    const fs::path& folder = temporary.path;
};

TEST_F(OpenRemembered, AnOpenedAirportIsOnTopUnderTheIdentifierOfItsFile) {
    EXPECT_TRUE(app::OpenAndRemember(PathOf("KAAA"), "kaaa"));
    EXPECT_TRUE(app::OpenAndRemember(PathOf("KBBB"), ""));
    EXPECT_EQ(settings.previousFiles, (List{ "KBBB," + PathOf("KBBB"), "KAAA," + PathOf("KAAA") }));
    EXPECT_EQ(fakeShell.recentRefreshes, 2);
    EXPECT_EQ(model::state.icao, "KBBB");
}

TEST_F(OpenRemembered, AnAirportThatCannotBeOpenedIsNotRemembered) {
    EXPECT_FALSE(app::OpenAndRemember(PathOf("KAAA"), "KBBB"));
    EXPECT_FALSE(app::OpenAndRemember(PathOf("none"), ""));
    EXPECT_TRUE(settings.previousFiles.empty());
    EXPECT_EQ(fakeShell.recentRefreshes, 0);
}

TEST_F(OpenRemembered, AnEntryOpensItsAirportAndComesToTheTop) {
    settings.previousFiles = { "KAAA," + PathOf("KAAA"), "KBBB," + PathOf("KBBB") };
    EXPECT_TRUE(app::OpenRecentAirport(1));
    EXPECT_EQ(model::state.icao, "KBBB");
    EXPECT_EQ(settings.previousFiles, (List{ "KBBB," + PathOf("KBBB"), "KAAA," + PathOf("KAAA") }));
    EXPECT_FALSE(app::OpenRecentAirport(2));
}

TEST_F(OpenRemembered, AnEntryWhoseFileHasGoneIsNamedAndTheOpenAirportStays) {
    ASSERT_TRUE(app::OpenAndRemember(PathOf("KAAA"), ""));
    ASSERT_TRUE(app::OpenAndRemember(PathOf("KBBB"), ""));
    fs::remove(PathOf("KAAA"));
    EXPECT_FALSE(app::OpenRecentAirport(1));
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text, "Unable to open file \"" + PathOf("KAAA") + "\"");
    EXPECT_EQ(model::state.icao, "KBBB");
    EXPECT_TRUE(model::state.loaded);
    EXPECT_EQ(settings.previousFiles.size(), 2u);
}

TEST_F(OpenRemembered, AnEntryWhoseFileHoldsAnotherAirportByNowLeavesNoneOpen) {
    ASSERT_TRUE(app::OpenAndRemember(PathOf("KAAA"), ""));
    ASSERT_TRUE(app::OpenAndRemember(PathOf("KBBB"), ""));
    fs::remove(PathOf("KAAA"));
    fs::copy_file(PathOf("KBBB"), PathOf("KAAA"));
    EXPECT_FALSE(app::OpenRecentAirport(1));
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_EQ(fake.messages[0].text, "Selected file  " + PathOf("KAAA") + "  does not contain airport KAAA");
    EXPECT_FALSE(model::state.loaded);
    EXPECT_EQ(settings.previousFiles.size(), 2u);
}

TEST_F(OpenRemembered, AnEntryWhoseFileIsNoSceneryByNowLeavesNoneOpen) {
    ASSERT_TRUE(app::OpenAndRemember(PathOf("KAAA"), ""));
    ASSERT_TRUE(app::OpenAndRemember(PathOf("KBBB"), ""));
    fs::resize_file(PathOf("KAAA"), 10);
    EXPECT_FALSE(app::OpenRecentAirport(1));
    ASSERT_EQ(fake.messages.size(), 1u);
    EXPECT_FALSE(model::state.loaded);
}

}  // namespace
