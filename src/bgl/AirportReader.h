// AirportReader.h - reads one airport from a scenery file into the empty model.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace bgl {

constexpr uint64_t kLongestAirport = 16 << 20;  // bytes that are read; large real airports need a twentieth of it

// Where an airport record lies (SceneryStructure.h finds it).
struct AirportPlace {
    std::string path;     // UTF-8
    uint64_t offset = 0;  // of the airport record's head, from the start of the file
    uint32_t size = 0;    // of the record, head included
    std::string ident;    // as the record has it; "" when that spells nothing
};

// Reads the records of an airport, of bytes that start with its record's head, never past them. Resolves the
// links and sets the loaded flag. The caller has cleared the model. A short read ends the reading; what was
// read so far stays. False when it ended so, or at a record that is damaged: what lies behind is missing.
bool ReadAirport(std::span<const uint8_t> bytes);

}  // namespace bgl
