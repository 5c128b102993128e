// Palette.h - every colour of the map: one for the day, one for the night (lights shown).
#pragma once

#include <cstdint>

#include "platform/Canvas.h"

namespace map {

using platform::Colour;

enum class Ink {
    Background,
    CrossHair,
    SelectedFill,  // also selected lines
    SelectedOutline,
    ApronOutline,
    Node,
    HoldShortNode,
    IlsHoldShortNode,
    ParkingFill,
    ParkingOutline,
    SpecOutline,  // of a spot filled with the colour of its parking spec
    ParkingLabel,
    TaxiLink,     // normal and closed links
    RunwayLink,   // links along a runway
    ParkingLink,  // links to parking spots and across aprons
    HighlightedLink,
    ClosedCross,
    TaxiwayLine,
    GridLine,
    GridLabel,
    RunwayMarking,
    RunwayBorder,
    RunwayYellow,  // chevrons and closed marks
    RunwayName,    // before the ends of a runway whose painted name is too small to read
    HelipadMarking,
    HelipadMedical,
    ReferencePoint,
    Tower,
    StartLocation,
    Navaid,
    NavaidFill,
    Marker,  // reference markers
    Guideline,
    FaultMarker,
    LightWhite,
    LightFlash,  // flashing lamps
    LightYellow,
    LightRed,
    LightGreen,
    LightBlue,
    EdgeLightStrip,  // the line between the lamps of a strip
    kCount,
};

Colour InkOf(Ink ink);  // by the lights of map/MapView.h

// Paved and unpaved ground by surface code. Code 24 runs into the next table; 25 and more read as 0.
Colour ApronColour(uint32_t surface);
Colour TaxiwayColour(uint32_t surface);
Colour RunwayColour(uint32_t surface);

Colour Blend(Colour a, Colour b, double share);  // share of b, 0 to 1

}  // namespace map
