// StockFiles.cpp - see StockFiles.h.
//
// An airport file is named after its block: AP9, two digits of its column, two of its row, and 0. A
// navaid file serves a whole region; its cells tell the blocks.
#include "bgl/StockFiles.h"

#include <algorithm>
#include <map>
#include <set>

#include "bgl/AirportIndex.h"
#include "bgl/Cells.h"
#include "bgl/RecordIds.h"
#include "bgl/SceneryStructure.h"
#include "model/Geodesy.h"
#include "platform/Files.h"
#include "platform/Text.h"

namespace bgl {

namespace {

constexpr const char* kRegions[] = { "Afri", "Asia", "Aust", "Eure", "Eurw", "Namc", "Name", "Namw", "Ocen", "Same" };
constexpr const char* kFileKinds[] = { "AP9", "UT9", "ST9", "RR9", "RD9", "PK9", "OB9",
                                       "NV9", "HP9", "HL9", "FL9", "BR9", "AT9", "AB9" };
constexpr size_t kAllBlocks = 96 * 64;
constexpr uint32_t kColumnWeight = 100;

// With a separator at its end.
std::string FolderOfRegion(const std::string& simulatorFolder, const char* region) {
    return simulatorFolder + "\\Scenery\\" + region + "\\Scenery\\";
}

using FilesOfBlock = std::map<uint32_t, std::vector<std::string>>;

struct StockTables {
    FilesOfBlock airports, navaids;
};
std::map<std::string, StockTables> tablesOf;  // by simulator folder

uint32_t BlockNumber(int64_t column, int64_t row) { return static_cast<uint32_t>(row + column * kColumnWeight); }

uint32_t BlockOf(model::EncodedPoint point) {
    // A corner west of 180 degrees has a negative code. Longitudes go round, latitudes stop at the poles.
    const int64_t longitude = (static_cast<int32_t>(point.longitude) + 4 * model::kEncodedTurn) % model::kEncodedTurn;
    const int64_t latitude = std::clamp<int64_t>(static_cast<int32_t>(point.latitude), 0, kPoleToPole - 1);
    return BlockNumber(longitude >> kBlockShift, latitude >> kBlockShift);
}

void AddAirportFile(const std::string& folder, const std::string& name, FilesOfBlock* files) {
    if (!IsStockFileName(name) || name[7] != '0') return;
    const uint32_t number = static_cast<uint32_t>(name[3] - '0') * 1000 + static_cast<uint32_t>(name[4] - '0') * 100 +
                            static_cast<uint32_t>(name[5] - '0') * 10 + static_cast<uint32_t>(name[6] - '0');
    (*files)[number].push_back(folder + name);
}

void AddNavaidFile(const std::string& path, FilesOfBlock* files) {
    const platform::FileHandle handle = platform::OpenForReading(path);
    SceneryStructure file;
    if (!handle || !ReadStructure(SourceOfFile(handle.get()), &file)) return;
    std::vector<uint32_t> cells;
    std::set<uint32_t> blocks;
    for (const SectionEntry& section : file.sections) {
        if (section.type != kVorSection && section.type != kNdbSection && section.type != kMarkerSection) continue;
        for (const SubsectionEntry& subsection : ReadSubsections(&file, section)) cells.push_back(subsection.id);
    }
    std::sort(cells.begin(), cells.end());
    cells.erase(std::unique(cells.begin(), cells.end()), cells.end());
    for (uint32_t cell : cells) {
        if (blocks.size() == kAllBlocks) break;  // a damaged table names the whole world, and may do so often
        const CodeRect rect = RectOfCell(cell);
        const int64_t lastColumn = (std::min(rect.west + rect.width, model::kEncodedTurn - 1)) >> kBlockShift;
        const int64_t lastRow = (std::min(rect.south, kPoleToPole - 1)) >> kBlockShift;
        for (int64_t column = rect.west >> kBlockShift; column <= lastColumn; ++column) {
            for (int64_t row = rect.north >> kBlockShift; row <= lastRow; ++row)
                blocks.insert(BlockNumber(column, row));
        }
    }
    for (uint32_t block : blocks) (*files)[block].push_back(path);
}

const StockTables& TablesFor(const std::string& simulatorFolder) {
    StockTables& tables = tablesOf[simulatorFolder];
    if (!tables.airports.empty() && !tables.navaids.empty()) return tables;
    tables = {};
    for (const char* region : kRegions) {
        const std::string folder = FolderOfRegion(simulatorFolder, region);
        for (const platform::FileEntry& entry : platform::ListFiles(folder, ".bgl")) {
            AddAirportFile(folder, entry.name, &tables.airports);
            if (platform::EqualNoCase(entry.name, std::string("nv9") + region + "0.bgl"))
                AddNavaidFile(folder + entry.name, &tables.navaids);
        }
    }
    return tables;
}

void AddFilesAt(const FilesOfBlock& files, std::span<const model::EncodedPoint> points,
                std::vector<std::string>* paths) {
    for (const model::EncodedPoint point : points) {
        const auto found = files.find(BlockOf(point));
        if (found == files.end()) continue;
        for (const std::string& path : found->second) {
            if (std::find(paths->begin(), paths->end(), path) == paths->end()) paths->push_back(path);
        }
    }
}

}  // namespace

std::vector<std::string> StockFilesAt(const std::string& simulatorFolder, std::span<const model::EncodedPoint> points) {
    const StockTables& tables = TablesFor(simulatorFolder);
    std::vector<std::string> paths;
    AddFilesAt(tables.airports, points, &paths);
    AddFilesAt(tables.navaids, points, &paths);
    return paths;
}

bool IsStockSceneryPath(std::string_view path, const std::string& simulatorFolder) {
    if (simulatorFolder.empty()) return false;
    const std::string key = PathKey(path);
    for (const char* region : kRegions) {
        for (const char* kind : kFileKinds) {
            if (key.starts_with(PathKey(FolderOfRegion(simulatorFolder, region) + kind))) return true;
        }
    }
    return false;
}

void ForgetStockFiles() { tablesOf.clear(); }

}  // namespace bgl
