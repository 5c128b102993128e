// TableWords.h - what the words of the tables mean: surfaces, runway ends, kinds of frequencies.
#pragma once

#include <cstdint>
#include <string_view>

#include "sample/AirportPlan.h"

namespace sample {

// "ASPH-G", "Turf/Grvl", "CON" and their many relatives; the first material named counts. What is not known
// is asphalt for a runway of 1200 m or more and dirt for a shorter one.
Surface SurfaceFromWord(std::string_view word, double runwayLength);
bool IsPaved(Surface surface);

// Com types of a scenery file: 1 ATIS, 2 MULTICOM, 3 UNICOM, 4 CTAF, 5 ground, 6 tower, 7 clearance, 8 approach,
// 9 departure, 10 center, 11 FSS, 12 AWOS, 13 ASOS; 0 for one that a simulator has no use for.
uint16_t CommTypeFromWord(std::string_view word);

// An end of a runway as a number and a suffix: 1 to 36, or 37 to 44 for the lettered ones (N, E, NW, SW, S, W,
// SE, NE). number is 0 when the text names no runway end.
struct EndNumber {
    uint8_t number = 0, designator = 0;
};
EndNumber EndFromWord(std::string_view word);
bool IsHelipadWord(std::string_view word);  // "H1", "H"

// The magnetic heading that a number stands for, degrees.
double HeadingOfNumber(uint8_t number);
EndNumber OppositeEnd(EndNumber end);

}  // namespace sample
