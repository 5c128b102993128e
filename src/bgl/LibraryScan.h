// LibraryScan.h - collects the airports of the whole scenery library, or of one file.
//
// Only files that are new or changed since the caches were written are opened, and of those only the header, the
// section tables and the name lists are read. No file stops a collection: what cannot be read is passed over
// until it changes.
#pragma once

#include <cstdint>
#include <string>

namespace bgl {

// Fills `library` with the airports of all files that Scenery.cfg leads to, by the caches in `cacheFolder`, and
// writes those anew; "" for no caches. An empty simulator folder gives an empty library. Shows the progress box meanwhile.
void CollectAllAirports(const std::string& simulatorFolder, const std::string& cacheFolder);

// Fills `library` with the airports of one file. False, with the message already shown and the library empty,
// when it cannot be opened, is no scenery file or holds no airports.
bool CollectAirportsFromFile(const std::string& path);

enum class ScanResult { CannotOpen, NotScenery, NoAirports, AirportsFound };

// Adds the airports of the library's file with that number to the index. A file of another simulator, laid
// out alike, counts as one without airports.
ScanResult ScanBglHeader(uint32_t file);

// Why a file shows no airports, in the words for the user; for all results but AirportsFound.
std::string FailureText(ScanResult result, const std::string& path);

}  // namespace bgl
