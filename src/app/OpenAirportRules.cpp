// OpenAirportRules.cpp - see OpenAirportRules.h.
#include "app/OpenAirportRules.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "app/Notices.h"
#include "bgl/AirportIndex.h"
#include "bgl/LibraryScan.h"
#include "platform/Platform.h"
#include "platform/Text.h"

namespace app {

AirportSource airportSource;

namespace {

constexpr const char* kCachesNotKept = "Tarvo may not write in its folder: the list of airports is made anew each time";

struct Candidate {
    const bgl::AirportIndexEntry* entry;
    const bgl::SceneryFile* file;
    std::string ident;  // upper case
    // Of the highest airport with the identifier:
    std::string_view leadingName;
    uint32_t highestLayer = 0;
};

const char* TypeText(bgl::FileKind kind) {
    switch (kind) {
    case bgl::FileKind::Stock: return "Stock";
    case bgl::FileKind::AddOn: return "Mod";
    default: return "Unknwn";
    }
}

// By identifier: the airport in the highest layer that has it; of several there, the first by name.
using Leaders = std::unordered_map<std::string, const Candidate*>;

Leaders LeadersOf(const std::vector<Candidate>& candidates) {
    Leaders leaders;
    for (const Candidate& candidate : candidates) {
        const Candidate*& leader = leaders.try_emplace(candidate.ident, &candidate).first->second;
        const uint32_t layer = candidate.file->layer, highest = leader->file->layer;
        const bool comesFirst = bgl::CompareNames(candidate.entry->name, leader->entry->name) < 0;
        if (layer > highest || (layer == highest && comesFirst)) leader = &candidate;
    }
    return leaders;
}

// By name; airports with one identifier stay together, the highest layer first, under the name that they have
// there. Comparing just any two rows, by name or by layer, would give no order: three rows can go in a ring.
bool IsBefore(const Candidate& a, const Candidate& b) {
    if (a.ident != b.ident) {
        const int order = bgl::CompareNames(a.leadingName, b.leadingName);
        return order != 0 ? order < 0 : a.ident < b.ident;
    }
    if (a.file->layer != b.file->layer) return a.file->layer > b.file->layer;
    const int order = bgl::CompareNames(a.entry->name, b.entry->name);
    return order != 0 ? order < 0 : a.file->path < b.file->path;
}

std::vector<AirportRow> RowsOf(const std::vector<uint32_t>& airports) {
    std::vector<Candidate> candidates;
    for (const uint32_t airport : airports) {
        const bgl::AirportIndexEntry& entry = bgl::library.airports[airport];
        candidates.push_back({ &entry, &bgl::library.files[entry.file], platform::UpperCased(entry.ident), {}, 0 });
    }
    const Leaders leaders = LeadersOf(candidates);
    for (Candidate& candidate : candidates) {
        const Candidate* leader = leaders.at(candidate.ident);
        candidate.leadingName = leader->entry->name;
        candidate.highestLayer = leader->file->layer;
    }
    std::stable_sort(candidates.begin(), candidates.end(), IsBefore);
    std::vector<AirportRow> rows;
    rows.reserve(candidates.size());
    for (const Candidate& candidate : candidates) {
        rows.push_back({ platform::Utf8FromWindows1252(candidate.entry->ident), TypeText(candidate.file->kind),
                         std::to_string(candidate.file->layer), platform::Utf8FromWindows1252(candidate.entry->name),
                         candidate.file->path, candidate.file->layer < candidate.highestLayer });
    }
    return rows;
}

}  // namespace

bool CollectAirports(const std::string& simulatorFolder, const std::string& programFolder) {
    if (!airportSource.fromFile) {
        bgl::CollectAllAirports(simulatorFolder, programFolder);
        if (!bgl::library.report.cachesKept) SetNotice(Notice::Remark, kCachesNotKept);
        return true;
    }
    bgl::ReleaseLibrary();
    return !airportSource.specificFile.empty() && bgl::CollectAirportsFromFile(airportSource.specificFile);
}

std::string PlaceText(uint32_t place) { return platform::Utf8FromWindows1252(bgl::library.places[place].name); }

std::vector<AirportRow> RowsOfPlace(uint32_t place) {
    std::vector<uint32_t> airports = bgl::AirportsOf(bgl::library.places[place]);
    airports.resize(std::min(airports.size(), kMostCandidates));
    return RowsOf(airports);
}

bool ListPlace(uint32_t place, bool byUser, std::string_view identText, std::vector<AirportRow>* rows) {
    if (!byUser && !identText.empty()) return false;
    std::vector<AirportRow> own = RowsOfPlace(place);
    if (own.empty()) return false;
    *rows = std::move(own);
    return true;
}

size_t LevelsToOpen() {
    const std::vector<bgl::Place>& places = bgl::library.places;
    if (!airportSource.fromFile || places.empty()) return 0;
    size_t levels = 0;
    for (uint32_t place = 0; places[place].children.size() == 1; ++levels) place = places[place].children[0];
    return levels;
}

std::vector<AirportRow> SearchRows(std::string_view identText) {
    const std::string_view prefix = platform::Trimmed(identText).substr(0, bgl::kIdentLength);
    std::vector<uint32_t> found;
    if (prefix.empty()) return {};
    for (const uint32_t airport : bgl::AirportsInTreeOrder()) {
        const std::string_view ident = bgl::library.airports[airport].ident;
        if (platform::EqualNoCase(ident.substr(0, prefix.size()), prefix)) found.push_back(airport);
        if (found.size() == kMostCandidates) break;
    }
    return RowsOf(found);
}

const AirportRow* ChooseRow(std::vector<AirportRow>* rows, int selected, std::string_view identText) {
    if (selected >= 0 && static_cast<size_t>(selected) < rows->size()) return &(*rows)[static_cast<size_t>(selected)];
    const bool typed = !platform::Trimmed(identText).empty();
    if (typed) *rows = SearchRows(identText);
    if (typed && !rows->empty()) return &rows->front();
    platform::ShowRefusal("You must select an AIRPORT");
    return nullptr;
}

}  // namespace app
