#include <gtest/gtest.h>

#include <set>

#include "bgl/SceneryStructure.h"
#include "model/Geodesy.h"
#include "model/Records.h"
#include "sample/Regions.h"

namespace {

sample::Block BlockAt(double north, double east) {
    const model::BglPoint code =
        model::LatLonToBgl({ north * model::kRadiansPerDegree, -east * model::kRadiansPerDegree });
    return sample::BlockOf({ code.lonCode, code.latCode });
}

std::string FileAt(double north, double east) { return sample::AirportFileName(BlockAt(north, east)); }

}  // namespace

TEST(SampleRegions, BlocksAreNumberedFrom180WestAndFromTheNorthPole) {
    EXPECT_EQ(FileAt(47.449, -122.309), "AP915150.bgl");
    EXPECT_EQ(FileAt(51.4775, -0.461389), "AP947130.bgl");
    EXPECT_EQ(FileAt(-33.946111, 151.177222), "AP988440.bgl");
    EXPECT_EQ(FileAt(18.041, -63.109), "AP931250.bgl");
}

TEST(SampleRegions, EdgesOfTheWorldBelongToTheLastBlocks) {
    EXPECT_EQ(sample::AirportFileName(sample::BlockOf({ 0x30000000, 0x20000000 })), "AP995630.bgl");
    EXPECT_EQ(sample::AirportFileName(sample::BlockOf({ 0, 0 })), "AP900000.bgl");
}

TEST(SampleRegions, KnownAirportsLieInTheirRegions) {
    const auto region = [](double north, double east) { return std::string(sample::RegionOf(BlockAt(north, east))); };
    EXPECT_EQ(region(47.4, -122.3), "Namw");
    EXPECT_EQ(region(40.6, -73.8), "Name");
    EXPECT_EQ(region(18.0, -63.1), "Namc");
    EXPECT_EQ(region(51.5, -0.5), "Eurw");
    EXPECT_EQ(region(55.6, 37.3), "Eure");
    EXPECT_EQ(region(35.5, 139.8), "Asia");
    EXPECT_EQ(region(-33.9, 151.2), "Aust");
    EXPECT_EQ(region(-26.1, 28.2), "Afri");
    EXPECT_EQ(region(-23.4, -46.5), "Same");
    EXPECT_EQ(region(21.3, -157.9), "Ocen");
}

TEST(SampleRegions, EveryBlockLiesInOneOfTheTenRegionsAndHasAStockName) {
    std::set<std::string> used;
    for (uint32_t column = 0; column < 96; ++column) {
        for (uint32_t row = 0; row < 64; ++row) {
            const sample::Block block{ column, row };
            EXPECT_TRUE(bgl::IsStockFileName(sample::AirportFileName(block)));
            used.insert(sample::RegionOf(block));
        }
    }
    EXPECT_EQ(used, std::set<std::string>(sample::kRegions.begin(), sample::kRegions.end()));
}

TEST(SampleRegions, NavaidFilesAreNamedAfterTheRegion) { EXPECT_EQ(sample::NavaidFileName("Namw"), "nv9Namw0.bgl"); }
