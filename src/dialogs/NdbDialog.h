// NdbDialog.h - "NDB Properties".
#pragma once

#include <array>
#include <string>

#include "dialogs/Field.h"
#include "dialogs/PositionField.h"
#include "model/SceneryObject.h"

namespace dialogs {

using model::SceneryObject;

inline constexpr std::array<const char*, 4> kNdbTypes = { "Compass Point", "MH", "H", "HH" };

struct NdbFields {
    std::string ident, name, frequency;  // kilohertz
    int type = -1;                       // position in kNdbTypes: the type code
    CoordinateTexts position;
    std::string elevation, range, variation;
};

NdbFields LoadNdbFields(const SceneryObject* ndb);
bool StoreNdbFields(const NdbFields& shown, const NdbFields& entered, SceneryObject* ndb, BadField* bad);

// "Insert NDB": a provisional one of the type H, unplaced, without identifier and frequency.
SceneryObject* InsertNdb();

}  // namespace dialogs
