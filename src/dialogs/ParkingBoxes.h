// ParkingBoxes.h - giving a type or codes to the selected parking spots, as the boxes of the toolbar do.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "app/ParkingSpecs.h"

namespace dialogs {

// The selected spots get the type, as one action. A radius that still is the default of a spot's old type becomes the
// new type's. Whether any spot changed.
bool GiveParkingType(uint32_t typeCode);

// The selected spots get these codes instead of theirs, as one action. The codes are Windows-1252. Whether any spot
// changed.
bool GiveParkingCodes(const std::vector<std::string>& codes);

// The codes of a spec in Windows-1252, upper-cased. Refused with a message when scenery files cannot hold them.
bool ReadSpecCodes(const app::ParkingSpec& spec, std::vector<std::string>* codes);

}  // namespace dialogs
