// OpenAirportRules.cpp - see OpenAirportRules.h.
#include "app/OpenAirportRules.h"

#include <algorithm>
#include <unordered_map>

#include "bgl/AirportIndex.h"
#include "bgl/LibraryScan.h"
#include "platform/Platform.h"
#include "platform/Text.h"

namespace app {

AirportSource airportSource;

namespace {

constexpr size_t kIdentLength = 4;

struct Candidate {
    const bgl::AirportIndexEntry* entry;
    const bgl::LibraryFile* file;
    std::string ident;             // upper case
    std::string_view leadingName;  // of the highest airport with the identifier
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
        candidates.push_back({ &entry, &bgl::library.files[entry.file], platform::UpperCased(entry.ident), {} });
    }
    std::unordered_map<std::string, uint32_t> highest;  // layer by identifier
    const Leaders leaders = LeadersOf(candidates);
    for (Candidate& candidate : candidates) {
        const Candidate* leader = leaders.at(candidate.ident);
        candidate.leadingName = leader->entry->name;
        highest[candidate.ident] = leader->file->layer;
    }
    std::stable_sort(candidates.begin(), candidates.end(), IsBefore);
    std::vector<AirportRow> rows;
    rows.reserve(candidates.size());
    for (const Candidate& candidate : candidates) {
        rows.push_back({ platform::Utf8FromWindows1252(candidate.entry->ident), TypeText(candidate.file->kind),
                         std::to_string(candidate.file->layer), platform::Utf8FromWindows1252(candidate.entry->name),
                         candidate.file->path, candidate.file->layer < highest.at(candidate.ident) });
    }
    return rows;
}

std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

}  // namespace

bool CollectAirports(const std::string& simulatorFolder, const std::string& programFolder) {
    if (!airportSource.fromFile) {
        bgl::CollectAllAirports(simulatorFolder, programFolder);
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

std::vector<AirportRow> SearchRows(std::string_view identText) {
    const std::string_view prefix = Trimmed(identText).substr(0, kIdentLength);
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
    if (!Trimmed(identText).empty()) *rows = SearchRows(identText);
    if (!Trimmed(identText).empty() && !rows->empty()) return &rows->front();
    platform::ShowMessage("You must select an AIRPORT", platform::Buttons::Ok, platform::Icon::Exclamation);
    return nullptr;
}

}  // namespace app
