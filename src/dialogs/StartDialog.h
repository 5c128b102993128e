// StartDialog.h - "Start Location Properties".
#pragma once

#include <array>
#include <string>

#include "dialogs/Field.h"
#include "dialogs/PositionField.h"
#include "model/SceneryObject.h"

namespace dialogs {

using model::SceneryObject;

inline constexpr std::array<const char*, 2> kStartTypes = { "Runway", "Helipad" };

struct StartFields {
    CoordinateTexts position;
    std::string elevation, heading;
    int number = -1, suffix = -1;  // positions in RunwayNumberChoices() and kSuffixChoices
    int type = -1;                 // position in kStartTypes; -1 for another, for example on water
};

std::string StartName(const SceneryObject* start);  // "Rwy 16L", "Helipad 1"

StartFields LoadStartFields(const SceneryObject* start);
bool StoreStartFields(const StartFields& shown, const StartFields& entered, SceneryObject* start, BadField* bad);

// "Insert Start Location": a provisional one for the first runway end that lacks one, unplaced.
SceneryObject* InsertStart();

}  // namespace dialogs
