// StockFilesTest.cpp - which files are the simulator's own. What they hold: StockNavaidsTest.cpp.
#include "bgl/StockFiles.h"

#include <gtest/gtest.h>

namespace {

const std::string kSimulator = "C:\\FS9";

TEST(StockFiles, EveryKindOfEveryRegionIsStockScenery) {
    for (const char* region : { "Same", "Ocen", "Namw", "Name", "Namc", "Eurw", "Eure", "Aust", "Asia", "Afri" }) {
        for (const char* kind :
             { "AP9", "UT9", "ST9", "RR9", "RD9", "PK9", "OB9", "NV9", "HP9", "HL9", "FL9", "BR9", "AT9", "AB9" }) {
            const std::string path = kSimulator + "\\Scenery\\" + region + "\\Scenery\\" + kind;
            EXPECT_TRUE(bgl::IsStockSceneryPath(path, kSimulator)) << path;
            EXPECT_TRUE(bgl::IsStockSceneryPath(path + "15150.bgl", kSimulator)) << path;
        }
    }
}

TEST(StockFiles, AnySpellingOfThePathCounts) {
    EXPECT_TRUE(bgl::IsStockSceneryPath("c:/fs9/SCENERY/namw/scenery/nv9namw0.BGL", kSimulator));
    EXPECT_TRUE(bgl::IsStockSceneryPath("C:\\FS9\\Scenery\\.\\Same\\..\\Same\\Scenery\\AB9.bgl", "C:\\FS9\\"));
}

TEST(StockFiles, OtherNamesAndOtherFoldersAreNot) {
    EXPECT_FALSE(bgl::IsStockSceneryPath("C:\\FS9\\Scenery\\Namw\\Scenery\\TV2_KSEA.bgl", kSimulator));
    EXPECT_FALSE(bgl::IsStockSceneryPath("C:\\FS9\\Scenery\\Namw\\NV9namw0.bgl", kSimulator));
    EXPECT_FALSE(bgl::IsStockSceneryPath("C:\\FS9\\Scenery\\World\\Scenery\\NV9namw0.bgl", kSimulator));
    EXPECT_FALSE(bgl::IsStockSceneryPath("C:\\FS9\\AddOn Scenery\\Scenery\\NV9namw0.bgl", kSimulator));
    EXPECT_FALSE(bgl::IsStockSceneryPath("D:\\FS9\\Scenery\\Namw\\Scenery\\NV9namw0.bgl", kSimulator));
}

TEST(StockFiles, WithoutASimulatorNothingIsStockScenery) {
    EXPECT_FALSE(bgl::IsStockSceneryPath("\\Scenery\\Namw\\Scenery\\NV9namw0.bgl", ""));
}

}  // namespace
