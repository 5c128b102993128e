// CommDialog.h - "COMM Frequency Properties".
#pragma once

#include <array>
#include <string>

#include "dialogs/Field.h"
#include "model/SceneryObject.h"

namespace dialogs {

using model::SceneryObject;

inline constexpr std::array<const char*, 13> kCommTypes = {
    "ATIS",    "Traffic",   "UNICOM", "ATF", "Ground", "Tower", "Clearance Del",
    "Arrival", "Departure", "Center", "FSS", "AWOS",   "ASOS",
};

struct CommFields {
    std::string frequency;  // megahertz
    int type = -1;          // position in kCommTypes: type code less 1
    std::string name;
};

CommFields LoadCommFields(const SceneryObject* comm);
bool StoreCommFields(const CommFields& shown, const CommFields& entered, SceneryObject* comm, BadField* bad);

// "Insert": a provisional frequency with a name that asks for one.
SceneryObject* InsertComm();

}  // namespace dialogs
