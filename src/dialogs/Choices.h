// Choices.h - the choices of combo boxes that several dialogs share, and the names of runway ends.
//
// A position in a combo box is an index; -1 is "no choice", which keeps what the record holds.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "dialogs/Field.h"
#include "model/Links.h"
#include "model/SceneryObject.h"

namespace dialogs {

using model::SceneryObject;

std::vector<std::string> SurfaceChoices();
int SurfaceIndex(uint32_t code);  // -1 beyond the table

// Numbers "00" to "36", then the lettered ones: index and code are the same.
std::vector<std::string> RunwayNumberChoices();
inline constexpr std::array<const char*, 5> kSuffixChoices = { "", "L", "R", "C", "W" };
int RunwayNumberIndex(uint32_t number);
int SuffixIndex(uint32_t designator);

// An end of a runway: 0 the base (primary) end, 1 the reciprocal (secondary) end.
inline constexpr int kBaseEnd = 0, kReciprocalEnd = 1;
struct RunwayEndRef {
    SceneryObject* runway = nullptr;
    int end = kBaseEnd;
};
std::string EndName(const SceneryObject* runway, int end);  // "16L"
std::vector<RunwayEndRef> AllRunwayEnds();                  // in list order, base ends first

// The end that was chosen of those; null after the message that none was.
const RunwayEndRef* ChosenEnd(const std::vector<RunwayEndRef>& ends, int choice, BadField* bad);

// What the designators of taxi links are chosen from: the blank one first, then the named ones as
// "Taxi A", then the runways as "Rwy 16L/34R".
struct DesignatorChoice {
    std::string text;
    SceneryObject* object = nullptr;  // null in the first: the airport has no blank designator yet
};
std::vector<DesignatorChoice> DesignatorChoices();
std::string DesignatorName(const SceneryObject* designator);  // of a TaxiDesignator, UTF-8
using model::BlankDesignator;

}  // namespace dialogs
