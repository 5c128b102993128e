// Palette.cpp - see Palette.h.
//
// The three surface tables lie one behind the other, and a code of 24 reads one colour too far: an apron
// shows the first taxiway colour then, a taxiway the first runway colour. That is kept.
#include "map/Palette.h"

#include <cmath>
#include <iterator>

#include "map/MapView.h"

namespace map {

using platform::Rgb;

namespace {

struct InkPair {
    Colour day, night;
};

constexpr InkPair kInks[] = {
    { Rgb(230, 225, 204), Rgb(0, 0, 0) },        // Background
    { Rgb(255, 60, 40), Rgb(128, 30, 20) },      // CrossHair
    { Rgb(255, 200, 30), Rgb(191, 150, 23) },    // SelectedFill
    { Rgb(200, 150, 15), Rgb(150, 113, 11) },    // SelectedOutline
    { Rgb(0, 0, 0), Rgb(64, 64, 64) },           // ApronOutline
    { Rgb(110, 110, 255), Rgb(55, 55, 128) },    // Node
    { Rgb(255, 0, 0), Rgb(128, 0, 0) },          // HoldShortNode
    { Rgb(230, 230, 0), Rgb(100, 100, 0) },      // IlsHoldShortNode
    { Rgb(160, 255, 160), Rgb(80, 128, 80) },    // ParkingFill
    { Rgb(40, 170, 40), Rgb(20, 85, 20) },       // ParkingOutline
    { Rgb(100, 100, 100), Rgb(50, 50, 50) },     // SpecOutline
    { Rgb(20, 80, 20), Rgb(25, 100, 25) },       // ParkingLabel
    { Rgb(140, 140, 255), Rgb(70, 70, 128) },    // TaxiLink
    { Rgb(40, 40, 40), Rgb(0, 0, 0) },           // RunwayLink
    { Rgb(0, 190, 0), Rgb(0, 95, 0) },           // ParkingLink
    { Rgb(255, 0, 0), Rgb(128, 0, 0) },          // HighlightedLink
    { Rgb(250, 220, 0), Rgb(100, 100, 0) },      // ClosedCross
    { Rgb(212, 167, 49), Rgb(81, 63, 19) },      // TaxiwayLine
    { Rgb(206, 199, 170), Rgb(38, 38, 34) },     // GridLine
    { Rgb(112, 104, 74), Rgb(104, 100, 84) },    // GridLabel
    { Rgb(255, 255, 255), Rgb(120, 120, 120) },  // RunwayMarking
    { Rgb(40, 40, 40), Rgb(120, 120, 120) },     // RunwayBorder
    { Rgb(236, 190, 40), Rgb(92, 74, 16) },      // RunwayYellow
    { Rgb(20, 20, 20), Rgb(190, 190, 180) },     // RunwayName
    { Rgb(255, 255, 255), Rgb(120, 120, 120) },  // HelipadMarking
    { Rgb(200, 30, 30), Rgb(110, 20, 20) },      // HelipadMedical
    { Rgb(0, 70, 140), Rgb(40, 90, 140) },       // ReferencePoint
    { Rgb(150, 40, 20), Rgb(140, 60, 40) },      // Tower
    { Rgb(0, 110, 130), Rgb(0, 90, 105) },       // StartLocation
    { Rgb(140, 30, 120), Rgb(130, 50, 115) },    // Navaid
    { Rgb(226, 196, 218), Rgb(44, 18, 40) },     // NavaidFill
    { Rgb(200, 0, 160), Rgb(130, 0, 105) },      // Marker
    { Rgb(220, 80, 190), Rgb(110, 40, 95) },     // Guideline
    { Rgb(230, 0, 60), Rgb(200, 0, 50) },        // FaultMarker
    { Rgb(255, 255, 255), Rgb(255, 250, 225) },  // LightWhite
    { Rgb(200, 225, 255), Rgb(200, 225, 255) },  // LightFlash
    { Rgb(255, 200, 60), Rgb(255, 200, 60) },    // LightYellow
    { Rgb(255, 40, 30), Rgb(255, 50, 40) },      // LightRed
    { Rgb(30, 200, 70), Rgb(60, 230, 100) },     // LightGreen
    { Rgb(60, 90, 255), Rgb(80, 110, 255) },     // LightBlue
    { Rgb(0, 0, 120), Rgb(24, 32, 96) },         // EdgeLightStrip
};
static_assert(std::size(kInks) == static_cast<size_t>(Ink::kCount));

constexpr uint32_t kTableSize = 24;
constexpr Colour kSurfaces[] = {
    // Aprons
    Rgb(195, 195, 180), Rgb(103, 122, 77), Rgb(6, 51, 103), Rgb(103, 122, 77), Rgb(150, 150, 150), Rgb(103, 122, 77),
    Rgb(103, 122, 77), Rgb(103, 122, 77), Rgb(218, 233, 242), Rgb(218, 231, 242), Rgb(174, 174, 160), Rgb(103, 122, 77),
    Rgb(158, 153, 124), Rgb(222, 228, 229), Rgb(111, 122, 110), Rgb(63, 66, 59), Rgb(153, 153, 153), Rgb(153, 153, 153),
    Rgb(109, 96, 91), Rgb(153, 153, 153), Rgb(146, 135, 99), Rgb(185, 181, 156), Rgb(64, 65, 59), Rgb(55, 57, 59),
    // Taxiways
    Rgb(189, 189, 173), Rgb(98, 116, 73), Rgb(3, 48, 97), Rgb(98, 116, 73), Rgb(140, 140, 140), Rgb(98, 116, 73),
    Rgb(98, 116, 73), Rgb(98, 116, 73), Rgb(215, 230, 238), Rgb(215, 228, 238), Rgb(189, 189, 173), Rgb(98, 116, 73),
    Rgb(151, 146, 118), Rgb(214, 219, 220), Rgb(106, 116, 105), Rgb(61, 62, 56), Rgb(150, 150, 150), Rgb(150, 150, 150),
    Rgb(106, 93, 88), Rgb(150, 150, 150), Rgb(143, 132, 97), Rgb(182, 178, 153), Rgb(61, 62, 56), Rgb(52, 54, 56),
    // Runways and helipads
    Rgb(210, 210, 200), Rgb(103, 106, 66), Rgb(0, 45, 91), Rgb(103, 106, 66), Rgb(125, 125, 125), Rgb(103, 106, 66),
    Rgb(103, 106, 66), Rgb(103, 106, 66), Rgb(212, 227, 234), Rgb(212, 225, 234), Rgb(210, 210, 200),
    Rgb(210, 210, 200), Rgb(144, 139, 113), Rgb(204, 209, 210), Rgb(113, 119, 114), Rgb(78, 80, 76), Rgb(125, 125, 125),
    Rgb(125, 125, 125), Rgb(133, 121, 104), Rgb(105, 105, 105), Rgb(127, 132, 120), Rgb(186, 191, 179), Rgb(71, 75, 76),
    Rgb(123, 130, 132),
    // What lies behind the last table
    Rgb(60, 0, 0)
};
static_assert(std::size(kSurfaces) == 3 * kTableSize + 1);

constexpr double kNightShare = 0.26;

template <class Change>
Colour EachChannel(Colour colour, Change change) {
    return Rgb(change(colour & 0xFF, 0), change((colour >> 8) & 0xFF, 8), change((colour >> 16) & 0xFF, 16));
}

Colour SurfaceColour(uint32_t table, uint32_t surface) {
    const Colour day = kSurfaces[table * kTableSize + (surface > kTableSize ? 0 : surface)];
    if (!layers.lights) return day;
    return EachChannel(day,
                       [](uint32_t channel, int) { return static_cast<uint32_t>(std::lround(channel * kNightShare)); });
}

}  // namespace

Colour InkOf(Ink ink) {
    const InkPair& pair = kInks[static_cast<size_t>(ink)];
    return layers.lights ? pair.night : pair.day;
}

Colour ApronColour(uint32_t surface) { return SurfaceColour(0, surface); }
Colour TaxiwayColour(uint32_t surface) { return SurfaceColour(1, surface); }
Colour RunwayColour(uint32_t surface) { return SurfaceColour(2, surface); }

Colour Blend(Colour a, Colour b, double share) {
    return EachChannel(a, [=](uint32_t channel, int shift) {
        const double other = (b >> shift) & 0xFF;
        return static_cast<uint32_t>(std::lround(channel * (1 - share) + other * share));
    });
}

}  // namespace map
