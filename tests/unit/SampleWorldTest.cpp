#include "sample/World.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "app/ParkingSpecs.h"
#include "fakes/FakePlatform.h"
#include "fakes/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;

struct SampleWorld : testing::Test {
    void SetUp() override {
        ResetFakes();
        Put("airports.csv", "ident,name,city,state,country,elevation_ft,lat,lon\n");
        Put("runways.csv", "airport_ident,length_ft,le_ident,he_ident\n");
        Put("navaids.csv", "ident,name,type,frequency_khz,latitude_deg,longitude_deg\n");
        Put("frequencies.csv", "airport_ident,type,description,frequency_mhz\n");
    }
    void Put(const char* name, const std::string& text) const {
        std::ofstream(folder / name, std::ios::binary) << text;
    }
    bool Load() { return sample::LoadWorld(Utf8Path(folder), &world, &error); }

    const TemporaryFolder temporary;
    const fs::path& folder = temporary.path;
    sample::World world;
    std::string error;
};

}  // namespace

TEST_F(SampleWorld, TablesWithoutRowsAreAWorldWithoutAirports) {
    ASSERT_TRUE(Load()) << error;
    EXPECT_TRUE(world.airports.empty());
}

TEST_F(SampleWorld, LongitudeIsWestPositiveInsideAndFeetBecomeMetres) {
    Put("airports.csv",
        "ident,name,city,state,country,elevation_ft,lat,lon\nKSEA,\"Seattle, Tacoma\",,,,1000,47.5,-122\n");
    ASSERT_TRUE(Load()) << error;
    ASSERT_EQ(world.airports.size(), 1u);
    EXPECT_EQ(world.airports[0].name, "Seattle, Tacoma");
    EXPECT_NEAR(world.airports[0].position.lon, 122 * model::kRadiansPerDegree, 1e-12);
    EXPECT_NEAR(world.airports[0].elevation, 304.8, 1e-9);
}

TEST_F(SampleWorld, RowsWithoutIdentOrUsablePositionAreLeftOut) {
    Put("airports.csv",
        "ident,name,lat,lon\n,No ident,1,1\nA,No "
        "position,,\nB,Far,91,0\nC,Text,x,0\nD,Short\nPOLE,Pole,-90,0\nE,Good,1,2\n");
    ASSERT_TRUE(Load()) << error;
    ASSERT_EQ(world.airports.size(), 1u);
    EXPECT_EQ(world.airports[0].ident, "E");
}

TEST_F(SampleWorld, RowsAreFoundByAirportInTheOrderOfTheTable) {
    Put("runways.csv",
        "airport_ident,length_ft,le_ident,he_ident,lighted\nB,1000,02,20,1\nA,900,01,19,0\nB,2000,03,21,0\nB,-5,x,y,"
        "z\n");
    ASSERT_TRUE(Load()) << error;
    const auto rows = sample::RunwaysOf(world, "B");
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_EQ(rows[0].low.ident, "02");
    EXPECT_TRUE(rows[0].lighted);
    EXPECT_EQ(rows[1].low.ident, "03");
    EXPECT_EQ(rows[2].length, 0);
    EXPECT_TRUE(sample::RunwaysOf(world, "C").empty());
}

TEST_F(SampleWorld, RepeatedAirportCountsOnce) {
    Put("airports.csv", "ident,name,lat,lon\nA,First,1,2\nA,Second,1,2\n");
    ASSERT_TRUE(Load()) << error;
    ASSERT_EQ(world.airports.size(), 1u);
    EXPECT_EQ(world.airports[0].name, "First");
    EXPECT_NE(sample::FindAirport(world, "A"), nullptr);
    EXPECT_EQ(sample::FindAirport(world, "B"), nullptr);
}

TEST_F(SampleWorld, MissingTableOrColumnIsNamed) {
    fs::remove(folder / "navaids.csv");
    EXPECT_FALSE(Load());
    EXPECT_NE(error.find("navaids.csv"), std::string::npos);
    Put("navaids.csv", "ident,type\n");
    EXPECT_FALSE(Load());
    EXPECT_NE(error.find("frequency_khz"), std::string::npos) << error;
}

TEST_F(SampleWorld, ShippedParkingSpecsReadWithoutAComplaint) {
    ASSERT_TRUE(app::LoadParkingSpecs(std::string(TARVO_SAMPLE_DATA) + "/.."));
    EXPECT_GE(app::parkingSpecs.size(), 75u);
    EXPECT_TRUE(fake.messages.empty()) << fake.messages[0].text;
    size_t coloured = 0, coded = 0;
    for (const app::ParkingSpec& spec : app::parkingSpecs) {
        coloured += spec.hasColour;
        coded += !spec.codes.empty();
    }
    EXPECT_GE(coloured, 75u);
    EXPECT_GE(coded, 75u);
    app::parkingSpecs.clear();
}
