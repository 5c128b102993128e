// PaletteTest.cpp - every colour of the map that is laid down, by day and by night.
#include "map/Palette.h"

#include <gtest/gtest.h>

#include <cmath>

#include "map/MapView.h"

namespace {

using namespace map;
using platform::Rgb;

constexpr struct {
    Ink ink;
    Colour day, night;
} kInks[] = {
    { Ink::Background, Rgb(230, 225, 204), Rgb(0, 0, 0) },
    { Ink::CrossHair, Rgb(255, 60, 40), Rgb(128, 30, 20) },
    { Ink::SelectedFill, Rgb(255, 200, 30), Rgb(191, 150, 23) },
    { Ink::SelectedOutline, Rgb(200, 150, 15), Rgb(150, 113, 11) },
    { Ink::ApronOutline, Rgb(0, 0, 0), Rgb(64, 64, 64) },
    { Ink::Node, Rgb(110, 110, 255), Rgb(55, 55, 128) },
    { Ink::HoldShortNode, Rgb(255, 0, 0), Rgb(128, 0, 0) },
    { Ink::IlsHoldShortNode, Rgb(230, 230, 0), Rgb(100, 100, 0) },
    { Ink::ParkingFill, Rgb(160, 255, 160), Rgb(80, 128, 80) },
    { Ink::ParkingOutline, Rgb(40, 170, 40), Rgb(20, 85, 20) },
    { Ink::SpecOutline, Rgb(100, 100, 100), Rgb(50, 50, 50) },
    { Ink::ParkingLabel, Rgb(20, 80, 20), Rgb(25, 100, 25) },
    { Ink::TaxiLink, Rgb(140, 140, 255), Rgb(70, 70, 128) },
    { Ink::RunwayLink, Rgb(40, 40, 40), Rgb(0, 0, 0) },
    { Ink::ParkingLink, Rgb(0, 190, 0), Rgb(0, 95, 0) },
    { Ink::HighlightedLink, Rgb(255, 0, 0), Rgb(128, 0, 0) },
    { Ink::ClosedCross, Rgb(250, 220, 0), Rgb(100, 100, 0) },
    { Ink::TaxiwayLine, Rgb(212, 167, 49), Rgb(81, 63, 19) },
};

// Apron, taxiway, runway and helipad; by the code of the surface.
constexpr struct {
    Colour apron, taxiway, runway;
} kSurfaces[] = {
    { Rgb(195, 195, 180), Rgb(189, 189, 173), Rgb(210, 210, 200) },
    { Rgb(103, 122, 77), Rgb(98, 116, 73), Rgb(103, 106, 66) },
    { Rgb(6, 51, 103), Rgb(3, 48, 97), Rgb(0, 45, 91) },
    { Rgb(103, 122, 77), Rgb(98, 116, 73), Rgb(103, 106, 66) },
    { Rgb(150, 150, 150), Rgb(140, 140, 140), Rgb(125, 125, 125) },
    { Rgb(103, 122, 77), Rgb(98, 116, 73), Rgb(103, 106, 66) },
    { Rgb(103, 122, 77), Rgb(98, 116, 73), Rgb(103, 106, 66) },
    { Rgb(103, 122, 77), Rgb(98, 116, 73), Rgb(103, 106, 66) },
    { Rgb(218, 233, 242), Rgb(215, 230, 238), Rgb(212, 227, 234) },
    { Rgb(218, 231, 242), Rgb(215, 228, 238), Rgb(212, 225, 234) },
    { Rgb(174, 174, 160), Rgb(189, 189, 173), Rgb(210, 210, 200) },
    { Rgb(103, 122, 77), Rgb(98, 116, 73), Rgb(210, 210, 200) },
    { Rgb(158, 153, 124), Rgb(151, 146, 118), Rgb(144, 139, 113) },
    { Rgb(222, 228, 229), Rgb(214, 219, 220), Rgb(204, 209, 210) },
    { Rgb(111, 122, 110), Rgb(106, 116, 105), Rgb(113, 119, 114) },
    { Rgb(63, 66, 59), Rgb(61, 62, 56), Rgb(78, 80, 76) },
    { Rgb(153, 153, 153), Rgb(150, 150, 150), Rgb(125, 125, 125) },
    { Rgb(153, 153, 153), Rgb(150, 150, 150), Rgb(125, 125, 125) },
    { Rgb(109, 96, 91), Rgb(106, 93, 88), Rgb(133, 121, 104) },
    { Rgb(153, 153, 153), Rgb(150, 150, 150), Rgb(105, 105, 105) },
    { Rgb(146, 135, 99), Rgb(143, 132, 97), Rgb(127, 132, 120) },
    { Rgb(185, 181, 156), Rgb(182, 178, 153), Rgb(186, 191, 179) },
    { Rgb(64, 65, 59), Rgb(61, 62, 56), Rgb(71, 75, 76) },
    { Rgb(55, 57, 59), Rgb(52, 54, 56), Rgb(123, 130, 132) },
    { Rgb(189, 189, 173), Rgb(210, 210, 200), Rgb(60, 0, 0) },
};

class PaletteTest : public testing::Test {
protected:
    void SetUp() override { layers = {}; }
    void TearDown() override { layers = {}; }

    static Colour Dimmed(Colour day) {
        const auto dim = [&](int shift) {
            return static_cast<uint32_t>(std::floor((day >> shift & 0xFF) * 0.26 + 0.5));
        };
        return Rgb(dim(0), dim(8), dim(16));
    }
};

TEST_F(PaletteTest, EveryInkHasItsDayAndItsNightColour) {
    for (const auto& row : kInks) {
        layers.lights = false;
        EXPECT_EQ(InkOf(row.ink), row.day) << static_cast<int>(row.ink);
        layers.lights = true;
        EXPECT_EQ(InkOf(row.ink), row.night) << static_cast<int>(row.ink);
    }
}

TEST_F(PaletteTest, EverySurfaceHasItsColourForEachUse) {
    for (uint32_t code = 0; code < std::size(kSurfaces); ++code) {
        EXPECT_EQ(ApronColour(code), kSurfaces[code].apron) << code;
        EXPECT_EQ(TaxiwayColour(code), kSurfaces[code].taxiway) << code;
        EXPECT_EQ(RunwayColour(code), kSurfaces[code].runway) << code;
    }
}

TEST_F(PaletteTest, EverySurfaceIsDimmedByNight) {
    layers.lights = true;
    for (uint32_t code = 0; code < std::size(kSurfaces); ++code) {
        EXPECT_EQ(ApronColour(code), Dimmed(kSurfaces[code].apron)) << code;
        EXPECT_EQ(TaxiwayColour(code), Dimmed(kSurfaces[code].taxiway)) << code;
        EXPECT_EQ(RunwayColour(code), Dimmed(kSurfaces[code].runway)) << code;
    }
}

TEST_F(PaletteTest, UnknownSurfacesReadAsTheFirst) {
    for (const uint32_t code : { 25u, 200u, 254u, 255u }) {
        EXPECT_EQ(ApronColour(code), kSurfaces[0].apron);
        EXPECT_EQ(TaxiwayColour(code), kSurfaces[0].taxiway);
        EXPECT_EQ(RunwayColour(code), kSurfaces[0].runway);
    }
}

}  // namespace
