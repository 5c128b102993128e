#include "model/Names.h"

#include <gtest/gtest.h>

namespace {

using namespace model;

TEST(Names, SurfacesInCodeOrder) {
    const char* const names[] = { "Concrete", "Grass",   "Water",  "Unknown",     "Asphalt",  "Grass2",
                                  "Grass3",   "Turf",    "Snow",   "Ice",         "Unknown2", "Unknown3",
                                  "Dirt",     "Coral",   "Gravel", "Oil Treated", "Steel",    "Bitumus",
                                  "Brick",    "Macadam", "Planks", "Sand",        "Shale",    "Tarmac" };
    ASSERT_EQ(std::size(names), kSurfaceCount);
    for (uint32_t code = 0; code < kSurfaceCount; ++code) EXPECT_STREQ(SurfaceName(code), names[code]);
}

TEST(Names, ParkingTypesInCodeOrderAndUnknownFromTwelve) {
    const char* const names[] = { "",           "Unknown",        "Ramp GA Small",   "Ramp GA Medium", "Ramp GA Large",
                                  "Ramp Cargo", "Ramp Mil Cargo", "Ramp Mil Combat", "Gate Small",     "Gate Medium",
                                  "Gate Heavy", "Dock GA" };
    for (uint32_t code = 0; code < 12; ++code) EXPECT_STREQ(ParkingTypeName(code), names[code]);
    for (const uint32_t code : { 12u, 13u, 14u, 15u, 255u }) EXPECT_STREQ(ParkingTypeName(code), "Unknown");
}

TEST(Names, ParkingNamesInCodeOrderAndBlankFrom38) {
    EXPECT_STREQ(ParkingNameText(0), "");
    const char* const first[] = { "Parking",    "N Parking", "NE Parking", "E Parking", "SE Parking", "S Parking",
                                  "SW Parking", "W Parking", "NW Parking", "Gate",      "Dock" };
    for (uint32_t code = 1; code <= 11; ++code) EXPECT_STREQ(ParkingNameText(code), first[code - 1]);
    for (uint32_t code = 12; code <= 37; ++code)
        EXPECT_EQ(ParkingNameText(code), std::string("Gate ") + static_cast<char>('A' + code - 12));
    for (const uint32_t code : { 38u, 63u, 1000u }) EXPECT_STREQ(ParkingNameText(code), "");
}

TEST(Names, CodesAreThoseOfTheirNames) {
    EXPECT_STREQ(SurfaceName(kAsphalt), "Asphalt");
    EXPECT_STREQ(SurfaceName(kOilTreated), "Oil Treated");
    EXPECT_STREQ(SurfaceName(kTarmac), "Tarmac");
    EXPECT_STREQ(ParkingTypeName(kRampGaSmall), "Ramp GA Small");
    EXPECT_STREQ(ParkingTypeName(kGateMedium), "Gate Medium");
    EXPECT_STREQ(ParkingTypeName(kDockGa), "Dock GA");
    EXPECT_STREQ(ParkingNameText(kNorthwestParking), "NW Parking");
    EXPECT_STREQ(ParkingNameText(kGateName), "Gate");
    EXPECT_STREQ(ParkingNameText(kGateZ), "Gate Z");
    EXPECT_STREQ(ApproachLightsNames()[kAlsf2], "ALSF-2");
    EXPECT_STREQ(ApproachLightsNames()[kMals], "MALS");
    EXPECT_STREQ(SlopeLightsNames()[kVasi16], "VASI 16");
    EXPECT_STREQ(SlopeLightsNames()[kPapi4], "PAPI 4");
    EXPECT_STREQ(SlopeLightsNames()[kTVasi], "T-VASI");
}

TEST(Names, RunwayEndsAreNumberAndSuffix) {
    EXPECT_EQ(RunwayEndName(4, 0), "4");
    EXPECT_EQ(RunwayEndName(16, 1), "16L");
    EXPECT_EQ(RunwayEndName(34, 2), "34R");
    EXPECT_EQ(RunwayEndName(27, 3), "27C");
    EXPECT_EQ(RunwayEndName(9, 4), "9W");
    EXPECT_EQ(RunwayEndName(9, 5), "9");
}

TEST(Names, NumbersFrom37To44AreTheLetteredOnes) {
    const char* const names[] = { "N", "E", "NW", "SW", "S", "W", "SE", "NE" };
    for (uint32_t number = 37; number <= 44; ++number) EXPECT_EQ(RunwayEndName(number, 0), names[number - 37]);
    EXPECT_EQ(RunwayEndName(36, 0), "36");
    EXPECT_EQ(RunwayEndName(45, 0), "45");
}

}  // namespace
