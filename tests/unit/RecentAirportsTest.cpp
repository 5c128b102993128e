// RecentAirportsTest.cpp - the airports at the end of the File menu.
#include "app/RecentAirports.h"

#include <gtest/gtest.h>

#include "app/Settings.h"

namespace {

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

}  // namespace
