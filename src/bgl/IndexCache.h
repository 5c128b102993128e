// IndexCache.h - the two cache files, FileList and AirportIndex, as texts.
//
// A line of the first tells one file, "KIND|LAYER|TIME|PATH"; a line of the second one airport,
// "COUNTRY|STATE|CITY|NAME|IDENT|FILE NUMBER", where files count from 0 in the order of the first.
// The first line of FileList, whose kind "*" is none, holds check sums of both files: a cut, a changed byte or
// two files that were not written together make both as good as missing. A list that begins with a file's line has no
// check sums and is read for what it says.
#pragma once

#include <cstddef>
#include <string>

namespace bgl {

struct CacheTexts {
    std::string fileList, airportIndex;
};

// Longer lines, their line feed included, are not read. So they are not written either: the file is examined
// again by each collection.
constexpr size_t kLongestFileLine = 262, kLongestAirportLine = 249;

// The texts for the present files of the library and their airports, these in the order of the tree, which must be
// built: so it is built fastest when they are read.
CacheTexts ComposeCaches();

// Missing: nothing is there, or the check sums show damage. Unchecked: there are none.
enum class CacheState { Missing, Unchecked, Checked };

// Fills the empty library's list of files, not present yet. Nothing is read when the caches are as good as missing.
CacheState ParseFileList(const CacheTexts& texts, const std::string& simulatorFolder);

// Adds the airports whose files are present and examined. Call it after ParseFileList and the scan. The library keeps
// the text.
void ParseAirportIndex(std::string airportIndex);

// After reading an unchecked index: files that are said to hold airports, but of which it has none, count as not
// examined.
void DoubtFilesWithoutAirports();

// Read and written in `folder`. A missing or unreadable file gives an empty text.
CacheTexts ReadCaches(const std::string& folder);
bool WriteCaches(const std::string& folder, const CacheTexts& texts);

}  // namespace bgl
