// Airport.h - opening and closing an airport, and how the window's title names it.
#pragma once

#include <string>
#include <string_view>

#include "bgl/AirportReader.h"

namespace app {

// Opens the airport with that identifier from the file, or the file's first one when `ident` is empty. False, with the
// message shown, when there is none; an airport that was open before then stays open.
bool OpenAirportFile(const std::string& path, std::string_view ident);

// The same for an airport that was found in a file. Nothing is said when it cannot be opened.
bool OpenAirportAt(const bgl::AirportPlace& place);

void CloseAirport();  // without asking

// The program's name, the airport's identifier and name, and where the airport comes from.
std::string TitleText();

// The last component of a path.
std::string_view FileNameOf(std::string_view path);

// The path without its last component and the separator before it; "" when it has only one.
std::string_view FolderOf(std::string_view path);

}  // namespace app
