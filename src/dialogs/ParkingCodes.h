// ParkingCodes.h - the airline codes of a parking spot as the text of a box: "JAL,KLM,UAL".
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "app/ParkingSpecs.h"
#include "model/SceneryObject.h"

namespace dialogs {

std::vector<std::string> CodesOf(const model::SceneryObject* spot);  // UTF-8, as stored
std::string CodesText(const model::SceneryObject* spot);

// The codes of the text in Windows-1252, upper-cased, empty ones left out. Refused with a message when one
// is too long or there are too many.
bool ReadCodes(const std::string& text, std::vector<std::string>* codes);

// Gives the spot other codes: its payload changes its size.
void SetCodes(model::SceneryObject* draft, const std::vector<std::string>& codes);

// Puts the codes of a spec that the text lacks in at the cursor, behind the code that it stands in, and
// moves the cursor behind them. `cursor` counts bytes of the UTF-8 text.
void InsertSpecCodes(const app::ParkingSpec& spec, std::string* text, size_t* cursor);

}  // namespace dialogs
