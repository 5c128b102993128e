// AirportIndex.h - what the scenery library holds: its files, the airports in them, and the places as a tree.
//
// Names and identifiers are Windows-1252 bytes as the scenery files hold them; paths are UTF-8. There are tens of
// thousands of airports, so their names are views into a few large texts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace bgl {

// In the order of the letters "USAN" of the file cache.
enum class FileKind : uint8_t { NotExamined, Stock, AddOn, NoAirports };

// One file of the library.
struct SceneryFile {
    std::string path;
    uint32_t writeTime = 0;  // see ScanTime
    uint32_t layer = 0;      // of the area; the higher one wins
    FileKind kind = FileKind::NotExamined;
    bool present = false;  // seen on the disk in this scan, or picked by the user
};

struct AirportIndexEntry {
    std::string_view country, state, city, name;  // without "|" and line breaks
    std::string_view ident;                       // at most kIdentLength characters
    uint32_t file = 0;                            // its number: the place in AirportLibrary::files
    uint32_t nextOfPlace = UINT32_MAX;            // the entry that hangs on the same item, UINT32_MAX after the last
};

// One item of the tree. An airport hangs on the deepest level that its file names.
struct Place {
    std::string_view name;
    std::vector<uint32_t> children;  // places, sorted by name
    uint32_t firstAirport = UINT32_MAX, lastAirport = UINT32_MAX;
};

// What the last collection did; a tool and the tests tell by it.
struct CollectionReport {
    uint32_t areas = 0;
    uint32_t present = 0;  // files
    uint32_t opened = 0;
    uint32_t cannotOpen = 0, notScenery = 0, noAirports = 0, withAirports = 0;  // of those opened
    double listSeconds = 0, examineSeconds = 0, allSeconds = 0;
    bool cachesKept = true;  // false when a cache could not be written
};

struct AirportLibrary {
    std::vector<SceneryFile> files;
    std::unordered_map<std::string, uint32_t> fileOfPath;  // by PathKey
    std::vector<AirportIndexEntry> airports;
    std::vector<Place> places;      // the first is the root, which has no name
    std::deque<std::string> texts;  // what the names lie in; none of them ever grows beyond its capacity
    CollectionReport report;
    std::unordered_set<std::string> savedFiles;  // by PathKey; examined again by the next collection
};

extern AirportLibrary library;

// Releases files, airports and places. What was noted as saved stays.
void ReleaseLibrary();

// The save path of an airport: the next collection examines the file whatever its time says, for two saves
// may lie within one unit of it.
void NoteSavedFile(const std::string& path);

// The same for spellings of a path that mean one file on Windows: ASCII and Latin-1 letters without regard to case,
// either separator, once or doubled, and "." and ".." resolved. Short names and links are not seen through; a file that
// is reached by them too is listed twice.
std::string PathKey(std::string_view path);

// The file with that path; added, not examined, when it is new.
uint32_t FileNumberOf(const std::string& path);

// The last-write time as the caches keep it: 2-second units, the low 22 bits. Only equality means anything.
uint32_t ScanTime(uint64_t fileTime);

// Less than, equal to or greater than 0 as the name `a` sorts before, with or behind `b`: Windows-1252 letters
// without regard to case.
int CompareNames(std::string_view a, std::string_view b);

constexpr size_t kIdentLength = 4;  // characters of an identifier that are kept and compared

// Adds an entry with copies of the names, "|" and line breaks replaced by blanks, and of the ident's first
// kIdentLength characters.
void AddAirport(std::string_view country, std::string_view state, std::string_view city, std::string_view name,
                std::string_view ident, uint32_t file);

constexpr const char* kNoPlaceName = "(no place given)";  // holds the airports whose files name none
constexpr int kTreeSteps = 9;

// Empties the tree, then adds a ninth of the index with each step from 0 to 8.
void BuildPlacesStep(int step);

// The entries that hang on the item itself, in the order of the index.
std::vector<uint32_t> AirportsOf(const Place& place);

// The entries as a walk through the tree meets them: an item's own airports, then those below it.
std::vector<uint32_t> AirportsInTreeOrder();

}  // namespace bgl
