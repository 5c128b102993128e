// SampleFolder.cpp - see SampleFolder.h.
//
// Airports are made one at a time and packed block by block, so that a whole world needs little memory.
#include "sample/SampleFolder.h"

#include <map>
#include <vector>

#include "model/ObjectList.h"
#include "platform/Files.h"
#include "sample/AircraftFolders.h"
#include "sample/AirportModel.h"
#include "sample/Layouts.h"
#include "sample/NavaidModel.h"
#include "sample/Regions.h"
#include "sample/RunwayPlans.h"
#include "sample/SceneryConfig.h"
#include "sample/StockFile.h"
#include "sample/World.h"

namespace sample {

namespace {

constexpr const char* kPlaceholder =
    "This file stands for the simulator, so that programs which look for it find its folder.\r\n";

struct Maker {
    std::string target;
    std::string* error;
    World world;
    VariationMap variations;
    std::map<Block, std::vector<const AirportRow*>> blocks;
    std::map<std::string, StockFile> navaids;   // by region
    std::map<std::string, std::string> places;  // relative path of the file that holds an airport, by ident
};

bool WriteOne(Maker* maker, const std::string& relative, const std::vector<uint8_t>& bytes) {
    const std::string path = maker->target + "\\" + relative;
    if (platform::MakeFolders(path.substr(0, path.rfind('\\'))) && platform::WriteFileWhole(path, bytes)) return true;
    *maker->error = "cannot write " + path;
    return false;
}

bool WriteText(Maker* maker, const std::string& relative, const std::string& text) {
    return WriteOne(maker, relative, { text.begin(), text.end() });
}

void CollectMarkers(const AirportPlan& plan, StockFile* file) {
    for (const RunwayPlan& runway : plan.runways) {
        for (int end = 0; end < 2; ++end) {
            if (runway.ends[end].ils.ident.empty()) continue;
            for (model::SceneryObject* marker : MakeMarkers(plan, runway, end)) {
                AddNavaid(file, marker);
                model::FreeObject(marker);
            }
        }
    }
}

bool AddAirport(Maker* maker, const AirportRow& row, const std::string& region, StockFile* file) {
    AirportPlan plan = PlanAirport(maker->world, row, VariationAt(maker->variations, row.position));
    LayOut(&plan);
    MakeAirportModel(plan);
    std::string refusal;
    if (!AddModelAirport(file, &refusal)) {
        *maker->error = row.ident + ": " + refusal;
        return false;
    }
    CollectMarkers(plan, &maker->navaids[region]);
    return true;
}

bool WriteAirportFiles(Maker* maker) {
    for (const AirportRow& row : maker->world.airports) {
        const model::BglPoint code = model::LatLonToBgl(row.position);
        maker->blocks[BlockOf({ code.lonCode, code.latCode })].push_back(&row);
    }
    for (const auto& [block, rows] : maker->blocks) {
        const std::string region = RegionOf(block);
        const std::string path = RegionFolder(region) + "\\" + AirportFileName(block);
        StockFile file;
        for (const AirportRow* row : rows) {
            if (!AddAirport(maker, *row, region, &file)) return false;
            maker->places[row->ident] = path;
        }
        std::vector<uint8_t> bytes;
        if (!BuildStockFile(file, &bytes)) {
            *maker->error = path + " holds too many names";
            return false;
        }
        if (!WriteOne(maker, path, bytes)) return false;
    }
    return true;
}

bool WriteNavaidFiles(Maker* maker) {
    for (const NavaidRow& row : maker->world.navaids) {
        const model::BglPoint code = model::LatLonToBgl(row.position);
        const char* region = RegionOf(BlockOf({ code.lonCode, code.latCode }));
        for (model::SceneryObject* navaid : MakeNavaids(row)) {
            AddNavaid(&maker->navaids[region], navaid);
            model::FreeObject(navaid);
        }
    }
    for (const auto& [region, file] : maker->navaids) {
        std::vector<uint8_t> bytes;
        if (IsEmpty(file) || !BuildStockFile(file, &bytes)) continue;
        if (!WriteOne(maker, RegionFolder(region) + "\\" + NavaidFileName(region), bytes)) return false;
    }
    return true;
}

bool MakeAreaFolders(Maker* maker) {
    for (const SceneryArea& area : SceneryAreas()) {
        const std::string path = maker->target + "\\" + area.local + "\\Scenery";
        if (platform::MakeFolders(path)) continue;
        *maker->error = "cannot make " + path;
        return false;
    }
    return true;
}

// Where the airports of the pictures lie, for scripts: one line each, name=path|identifier.
std::string IndexText(const Maker& maker) {
    constexpr std::pair<const char*, const char*> kNamed[] = { { "hub", kHubIdent },
                                                               { "regional", kRegionalIdent },
                                                               { "grass", kGrassIdent } };
    std::string text;
    for (const auto& [name, ident] : kNamed) {
        const auto place = maker.places.find(ident);
        if (place != maker.places.end()) text += std::string(name) + "=" + place->second + "|" + ident + "\n";
    }
    return text;
}

bool WriteAll(Maker* maker) {
    if (!MakeAreaFolders(maker) || !WriteText(maker, "FS9.exe", kPlaceholder)) return false;
    if (!WriteText(maker, "Scenery.cfg", SceneryConfigText())) return false;
    if (!WriteAirportFiles(maker) || !WriteNavaidFiles(maker)) return false;
    for (const MadeFile& file : AircraftFiles()) {
        if (!WriteOne(maker, file.path, file.bytes)) return false;
    }
    return WriteText(maker, "sample.txt", IndexText(*maker));  // last: its presence says that all is there
}

}  // namespace

bool MakeSampleFolder(const SampleOptions& options, std::string* error) {
    error->clear();
    Maker maker{ options.target, error, {}, {}, {}, {}, {} };
    if (!LoadWorld(options.data, &maker.world, error)) return false;
    maker.variations = MapVariations(maker.world);
    const bool made = WriteAll(&maker);
    model::ClearModel();
    return made;
}

}  // namespace sample
