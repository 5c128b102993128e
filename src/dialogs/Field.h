// Field.h - the controls that a dialog can be sent back to after a refusal.
#pragma once

namespace dialogs {

enum class Field {
    None,
    Latitude,
    Longitude,
    Elevation,
    Heading,
    Length,
    Width,
    Radius,
    Number,
    Codes,
    Spacing,
    OptimumSpacing,
    Brightness,
    Variation,
    Ident,
    Country,
    State,
    City,
    Name,
    Frequency,
    Range,
    Pitch,
    BeamWidth,
    DmeRange,
    PatternAltitude,
    Overrun,
    DisplacedThreshold,
    Designator,
    Strobes,
    VasiDistance,
    VasiOffset,
    VasiSpacing,
    VasiSlope,
    MarkerKind,
    Distance,
    Runway,
};

// `part` tells controls of one name apart: the end of a runway, the VASI unit, the part of an ILS, the
// kind of a new marker.
struct BadField {
    Field field = Field::None;
    int part = 0;
};

}  // namespace dialogs
