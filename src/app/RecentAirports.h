// RecentAirports.h - the airports at the end of the File menu, newest first. They are kept in the settings.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace app {

struct RecentAirport {
    std::string ident;  // at most 4 characters
    std::string path;   // UTF-8
};

// Puts the airport on top. One with the same identifier, without regard to case, gives way; so does the oldest
// of more than kPreviousFiles.
void NoteOpenedAirport(std::string_view ident, std::string_view path);

size_t RecentAirportCount();

// The entry, counted from 0. False for one that does not exist or, written by hand, names no airport or file.
bool GetRecentAirport(size_t index, RecentAirport* airport);

// "&1  KSEA" for the entry counted from 0.
std::string RecentMenuText(size_t index);

// Opens the airport of that identifier from the file, the first one when `ident` is empty, and puts it on top of the
// list and of the menu. False, with the message shown, when it could not be opened.
bool OpenAndRemember(const std::string& path, std::string_view ident);

// The same for an entry of the list. When its file does not hold the airport any more, no airport is open afterwards;
// when the file cannot be read, the open one stays.
bool OpenRecentAirport(size_t index);

}  // namespace app
