// SceneryAreasTest.cpp - Scenery.cfg as it is in the wild.
#include "bgl/SceneryAreas.h"

#include <gtest/gtest.h>

#include "fakes/TestLibrary.h"
#include "platform/Text.h"

namespace {

using bgl::ParseSceneryAreas;
using bgl::SceneryArea;

constexpr const char* kSimulator = "C:\\FS9";

SceneryArea Only(const std::string& text) {
    const auto areas = ParseSceneryAreas(text, kSimulator);
    EXPECT_EQ(areas.size(), 1u) << text;
    return areas.empty() ? SceneryArea{} : areas[0];
}

TEST(SceneryAreas, AreasComeInFileOrderWithTheirLayers) {
    const auto areas = ParseSceneryAreas(
        "[General]\r\nTitle=FS9 World Scenery\r\nLocal=No Area\r\n"
        "[Area.002]\r\nLocal=Scenery\\Namw\r\nLayer=2\r\n"
        "[Area.001]\r\nLocal=Scenery\\World\r\nLayer=1\r\n",
        kSimulator);
    ASSERT_EQ(areas.size(), 2u);
    EXPECT_EQ(areas[0].folder, "C:\\FS9\\Scenery\\Namw");
    EXPECT_EQ(areas[0].layer, 2u);
    EXPECT_EQ(areas[1].folder, "C:\\FS9\\Scenery\\World");
    EXPECT_EQ(areas[1].layer, 1u);
}

TEST(SceneryAreas, FullPathsAreDrivesAndServersAndAllElseIsBelowTheSimulator) {
    EXPECT_EQ(Only("[Area.1]\nLocal=D:\\Addons\\KSEA").folder, "D:\\Addons\\KSEA");
    EXPECT_EQ(Only("[Area.1]\nLocal=\\\\server\\share\\KSEA").folder, "\\\\server\\share\\KSEA");
    EXPECT_EQ(Only("[Area.1]\nLocal=Addon Scenery").folder, "C:\\FS9\\Addon Scenery");
    EXPECT_EQ(Only("[Area.1]\nLocal=..\\Shared").folder, "C:\\FS9\\..\\Shared");
    EXPECT_EQ(Only("[Area.1]\nLocal=\\Addon").folder, "C:\\FS9\\Addon");
    EXPECT_EQ(Only("[Area.1]\nLocal=\"Addon Scenery\\\"").folder, "C:\\FS9\\Addon Scenery");
    EXPECT_EQ(ParseSceneryAreas("[Area.1]\nLocal=Addon", "C:\\FS9\\")[0].folder, "C:\\FS9\\Addon");
}

TEST(SceneryAreas, AMissingLayerIsTheLowestAndALargeOneDoesNotWrap) {
    EXPECT_EQ(Only("[Area.1]\nLocal=A").layer, 0u);
    EXPECT_EQ(Only("[Area.1]\nLocal=A\nLayer=").layer, 0u);
    EXPECT_EQ(Only("[Area.1]\nLocal=A\nLayer=top").layer, 0u);
    EXPECT_EQ(Only("[Area.1]\nLocal=A\nLayer=-3").layer, 0u);
    EXPECT_EQ(Only("[Area.1]\nLocal=A\nLayer= 17 ; mine").layer, 17u);
    EXPECT_EQ(Only("[Area.1]\nLocal=A\nLayer=1500").layer, 1500u);
    EXPECT_GT(Only("[Area.1]\nLocal=A\nLayer=99999999999999").layer, 1500u);
}

TEST(SceneryAreas, AnAreaWithoutALocalFolderIsLeftOut) {
    EXPECT_TRUE(ParseSceneryAreas("[Area.1]\nLayer=1\n", kSimulator).empty());
    EXPECT_TRUE(ParseSceneryAreas("[Area.1]\nLocal=\nRemote=D:\\A\nLayer=1\n", kSimulator).empty());
    EXPECT_TRUE(ParseSceneryAreas("[Area.1]\nLocal=\\\nLayer=1\n", kSimulator).empty());
}

TEST(SceneryAreas, ActiveRequiredAndRemoteChangeNothing) {
    const auto area =
        Only("[Area.1]\nLocal=A\nRemote=D:\\R\nActive=FALSE\nRequired=TRUE\nLayer=4\nExclude=1,2,3,4,all\n");
    EXPECT_EQ(area.folder, "C:\\FS9\\A");
    EXPECT_EQ(area.layer, 4u);
}

TEST(SceneryAreas, TheNumberOfAnAreaMayHaveAnyForm) {
    EXPECT_EQ(ParseSceneryAreas("[AREA.1]\nLocal=A\n[area.000002]\nLocal=B\n[Area.X]\nLocal=C\n[Areas]\nLocal=D\n",
                                kSimulator)
                  .size(),
              3u);
}

TEST(SceneryAreas, DuplicateLayersAreAllKept) {
    const auto areas = ParseSceneryAreas("[Area.1]\nLocal=A\nLayer=5\n[Area.2]\nLocal=B\nLayer=5\n", kSimulator);
    ASSERT_EQ(areas.size(), 2u);
    EXPECT_EQ(areas[0].layer, areas[1].layer);
}

TEST(SceneryAreas, ThousandsOfAreasAreAllRead) {
    std::string text;
    for (int i = 1; i <= 5000; ++i) {
        const std::string number = std::to_string(i);
        text += "[Area." + number + "]\r\nTitle=A long title that fills any buffer\r\nLocal=Addon\\" + number +
                "\r\nLayer=" + number + "\r\n";
    }
    const auto areas = ParseSceneryAreas(text, kSimulator);
    ASSERT_EQ(areas.size(), 5000u);
    EXPECT_EQ(areas.back().folder, "C:\\FS9\\Addon\\5000");
    EXPECT_EQ(areas.back().layer, 5000u);
}

TEST(SceneryAreas, TheFileIsReadInItsEncoding) {
    const TestLibrary library;
    library.PutConfig("[Area.1]\r\nLocal=Z\xFCrich\r\n");
    EXPECT_EQ(bgl::ReadSceneryAreas(library.simulator).at(0).folder, library.simulator + "\\Z\xC3\xBCrich");
    library.PutConfig("\xEF\xBB\xBF[Area.1]\r\nLocal=Z\xC3\xBCrich\r\n");
    EXPECT_EQ(bgl::ReadSceneryAreas(library.simulator).at(0).folder, library.simulator + "\\Z\xC3\xBCrich");
    EXPECT_EQ(bgl::ReadSceneryAreas(library.simulator + "\\").at(0).folder, library.simulator + "\\Z\xC3\xBCrich");
}

TEST(SceneryAreas, NoFileGivesNoAreas) {
    const TestLibrary library;
    EXPECT_TRUE(bgl::ReadSceneryAreas(library.simulator).empty());
    EXPECT_TRUE(bgl::ReadSceneryAreas("no such folder").empty());
}

}  // namespace
