// AirportWriter.h - writes the open airport as one new scenery file.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace bgl {

// Builds the file in memory. `fileTime` is the time stamp of its header, a Windows FILETIME. Updates the
// Airport record (tower position, ident, counts) and the links' indices on the way. False, with *refusal
// saying which limit is exceeded, when the airport cannot be represented; false with an empty *refusal
// when there is no Airport object.
bool BuildAirportFile(uint64_t fileTime, std::vector<uint8_t>* bytes, std::string* refusal);

// Builds the file, writes it beside the target, flushes it and renames it over the target. Returns 1 on
// success. On failure the old file is intact, the message has been shown, and 0 is returned.
int WriteAirportFile(const std::string& path);

}  // namespace bgl
