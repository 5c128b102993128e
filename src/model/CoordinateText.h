// CoordinateText.h - positions as the user reads and types them. "*" stands for the degree sign.
#pragma once

#include <string>

#include "model/Geodesy.h"

namespace model {

struct CoordinateTexts {
    std::string latitude, longitude;
};

// In the form of the setting latLongFormat: 1 N49.262533, 2 N49* 15.7521', 3 N49* 15' 45.12",
// 4 N49:15.7521, any other N49:15:45.12. A longitude beyond half a turn is shown where it lies.
CoordinateTexts FormatLatLon(LatLon position);

enum class ParseResult { Unchanged = 0, Changed = 1, Error = 2 };
enum class CoordinateField { None, Latitude, Longitude };

constexpr size_t kCoordinateTextLimit = 30;  // characters read of a field

// Reads what the user entered. Unchanged when both texts are byte for byte those shown: the caller then
// keeps the stored position, so that no rounding creeps in. When only one is, its coordinate of *position is
// neither judged nor changed, unless the text is empty. Behind the last number only blanks and the marks of
// the forms may stand. After Error the message has been shown and *badField names the field to select and
// focus; only the first error is reported.
ParseResult ParseLatLon(const CoordinateTexts& entered, const CoordinateTexts& shown, LatLon* position,
                        CoordinateField* badField);

}  // namespace model
