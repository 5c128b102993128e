// RecentAirports.cpp - see RecentAirports.h. An entry is the text "IDENT,path".
#include "app/RecentAirports.h"

#include <algorithm>
#include <vector>

#include "app/Settings.h"
#include "platform/Text.h"

namespace app {

namespace {

constexpr size_t kIdentLength = 4;

std::string_view IdentOf(std::string_view entry) { return entry.substr(0, entry.find(',')); }

}  // namespace

void NoteOpenedAirport(std::string_view ident, std::string_view path) {
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
    return '&' + std::to_string(index + 1) + "  " + std::string(IdentOf(settings.previousFiles[index]));
}

}  // namespace app
