// RecentAirports.cpp - see RecentAirports.h. An entry is the text "IDENT,path".
#include "app/RecentAirports.h"

#include <algorithm>
#include <vector>

#include "app/Airport.h"
#include "app/AppHost.h"
#include "app/Settings.h"
#include "bgl/AirportIndex.h"
#include "bgl/SceneryStructure.h"
#include "model/ObjectList.h"
#include "platform/Files.h"
#include "platform/Text.h"

namespace app {

namespace {

using bgl::kIdentLength;

std::string_view IdentOf(std::string_view entry) { return entry.substr(0, entry.find(',')); }

// Not so for a file that has gone or is locked: nobody knows what it holds.
bool HasLostAirport(const RecentAirport& airport) {
    bgl::AirportPlace place;
    return platform::OpenForReading(airport.path) && !bgl::FindAirportInFile(airport.path, airport.ident, &place);
}

}  // namespace

void NoteOpenedAirport(std::string_view ident, std::string_view path) {
    if (ident.empty()) return;  // the entry would open nothing
    ident = ident.substr(0, kIdentLength);
    std::vector<std::string>& entries = settings.previousFiles;
    std::erase_if(entries, [&](const std::string& entry) { return platform::EqualNoCase(IdentOf(entry), ident); });
    entries.insert(entries.begin(), std::string(ident) + ',' + std::string(path));
    entries.resize(std::min(entries.size(), kPreviousFiles));
}

size_t RecentAirportCount() { return std::min(settings.previousFiles.size(), kPreviousFiles); }

bool GetRecentAirport(size_t index, RecentAirport* airport) {
    if (index >= RecentAirportCount()) return false;
    const std::string& entry = settings.previousFiles[index];
    const size_t comma = entry.find(',');
    if (comma == 0 || comma == std::string::npos || comma + 1 == entry.size()) return false;
    *airport = { entry.substr(0, std::min(comma, kIdentLength)), entry.substr(comma + 1) };
    return true;
}

std::string RecentMenuText(size_t index) {
    const std::string_view ident = IdentOf(settings.previousFiles[index]).substr(0, kIdentLength);
    return '&' + std::to_string(index + 1) + "  " + std::string(ident);
}

bool OpenAndRemember(const std::string& path, std::string_view ident) {
    if (!OpenAirportFile(path, ident)) return false;
    NoteOpenedAirport(model::state.icao, path);
    ShowRecentAirports();
    return true;
}

bool OpenRecentAirport(size_t index) {
    RecentAirport airport;
    if (!GetRecentAirport(index, &airport)) return false;
    if (HasLostAirport(airport)) CloseAirport();
    return OpenAndRemember(airport.path, airport.ident);
}

}  // namespace app
