// OpenAirport.h - everything that opening an airport reads, in order.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "bgl/AirportReader.h"

namespace bgl {

// What the user must know before working on an airport that was opened: saving it would lose something, or fail.
struct OpenWarnings {
    size_t airportsInFile = 0;  // more than one, in a file that Save writes over; else 0
    std::string doesNotFit;     // as WhatDoesNotFit() has it
    bool otherScenery = false;  // sections in such a file that are not of an airport or its navaids
    bool incomplete = false;    // the file ends early, or could not be read to its end
};

// One message for all of it, "" when there is nothing to say.
std::string TextOf(const OpenWarnings& warnings);

// Clears the model, reads the airport, its place names from the file's name list, the navaids of its own
// file when that is no stock file, and the stock navaids around it from the simulator's folder (skipped
// when `simulatorFolder` is empty). False, with an untouched model, when the file cannot be opened or the
// stretch holds no airport record.
bool OpenAirport(const AirportPlace& place, const std::string& simulatorFolder, OpenWarnings* warnings = nullptr);

// The same for a whole file in memory that is no stock file, and its airport of that identifier (its
// first when `ident` is empty). False, with an untouched model, when it holds none. *incomplete as in the warnings.
bool OpenAirportBytes(std::span<const uint8_t> file, std::string_view ident, bool* incomplete = nullptr);

// Appends the stock navaids around the current airport, marked stock. The lists of the region folders
// are read once a session for each simulator folder.
void LoadStockNavaids(const std::string& simulatorFolder);

}  // namespace bgl
