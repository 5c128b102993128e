// VorDialog.h - "VOR/DME Properties": a VOR, a VOR with a DME, or a DME alone.
//
// The DME stands where the VOR stands: writing the file puts it there.
#pragma once

#include <array>
#include <string>

#include "dialogs/Field.h"
#include "dialogs/PositionField.h"
#include "model/SceneryObject.h"

namespace dialogs {

using model::SceneryObject;

inline constexpr std::array<const char*, 4> kVorClasses = { "Terminal", "Low", "High", "VOT" };
inline constexpr std::array<const char*, 3> kVorParts = { "VOR", "VOR+DME", "DME" };

struct VorFields {
    std::string ident, name, frequency;  // megahertz
    int vorClass = -1;                   // position in kVorClasses
    int parts = 0;                       // position in kVorParts
    CoordinateTexts position;
    std::string elevation, range, variation;
    std::string dmeRange;
};

int VorPartsOf(const SceneryObject* vor);  // position in kVorParts
bool HasVorPart(int parts);
bool HasDmePart(int parts);

VorFields LoadVorFields(const SceneryObject* vor);
bool StoreVorFields(const VorFields& shown, const VorFields& entered, SceneryObject* vor, BadField* bad);

// The user chooses other parts: a DME that comes new reaches as far as the VOR.
void ChooseVorParts(int parts, VorFields* fields);

// "Insert VOR/DME": a provisional low-altitude VOR with a DME, unplaced, without identifier and frequency.
SceneryObject* InsertVor();

}  // namespace dialogs
