// OpenAirport.h - everything that opening an airport reads, in order.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "bgl/AirportReader.h"

namespace bgl {

// Clears the model, reads the airport, its place names from the file's name list, the navaids of its own
// file when that is no stock file, and the stock navaids around it from the simulator's folder (skipped
// when `simulatorFolder` is empty). False, with an empty model, when the file cannot be opened or the
// stretch holds no airport record.
bool OpenAirport(const AirportPlace& place, const std::string& simulatorFolder);

// The same for a whole file in memory that is no stock file, and its airport of that identifier (its
// first when `ident` is empty). False, with an empty model, when it holds none.
bool OpenAirportBytes(std::span<const uint8_t> file, std::string_view ident);

// Appends the stock navaids around the current airport, marked stock. The lists of the region folders
// are read once a session for each simulator folder.
void LoadStockNavaids(const std::string& simulatorFolder);

}  // namespace bgl
