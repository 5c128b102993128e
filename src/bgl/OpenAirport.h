// OpenAirport.h - everything that opening an airport reads, in order.
#pragma once

#include <string>

#include "bgl/AirportReader.h"

namespace bgl {

// Clears the model, reads the airport, its place names from the file's name list, the navaids of its own
// file when that is no stock file, and the stock navaids around it from the simulator's folder (skipped
// when `simulatorFolder` is empty). False, with an empty model, when the file cannot be opened or the
// stretch holds no airport record.
bool OpenAirport(const AirportPlace& place, const std::string& simulatorFolder);

// Appends the stock navaids around the current airport, marked stock. The lists of the region folders
// are read once a session for each simulator folder.
void LoadStockNavaids(const std::string& simulatorFolder);

}  // namespace bgl
