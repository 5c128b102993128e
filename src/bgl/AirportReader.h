// AirportReader.h - reads one airport from a scenery file into the empty model.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace bgl {

// Where an airport record lies (SceneryFile.h finds it).
struct AirportPlace {
    std::string path;     // UTF-8
    uint64_t offset = 0;  // of the airport record's head, from the start of the file
    uint32_t size = 0;    // of the record, head included
};

// Reads the records of that stretch of the file, resolves the links and sets the loaded flag. The caller
// has cleared the model. False, with no message and an untouched model, when the file cannot be opened.
// A short read ends the reading; what was read so far stays.
bool ReadAirport(const AirportPlace& place);

// The same for bytes in memory that start with the airport record's head. Never reads past them.
void ReadAirportBytes(std::span<const uint8_t> bytes);

}  // namespace bgl
