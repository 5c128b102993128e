// HelipadDialog.h - "Helipad Properties".
#pragma once

#include <array>
#include <string>

#include "dialogs/Field.h"
#include "dialogs/PositionField.h"
#include "model/SceneryObject.h"

namespace dialogs {

using model::SceneryObject;

inline constexpr std::array<const char*, 5> kHelipadTypes = { "None", "H", "Square", "Circle", "Medical" };

struct HelipadFields {
    CoordinateTexts position;
    std::string elevation, heading, length, width;
    int surface = -1;  // position in SurfaceChoices()
    int type = -1;     // position in kHelipadTypes
    bool transparent = false, closed = false;
};

HelipadFields LoadHelipadFields(const SceneryObject* helipad);
bool StoreHelipadFields(const HelipadFields& shown, const HelipadFields& entered, SceneryObject* helipad,
                        BadField* bad);

// "Insert Helipad": a provisional concrete pad with an H, 50 ft wide and long, unplaced.
SceneryObject* InsertHelipad();

}  // namespace dialogs
