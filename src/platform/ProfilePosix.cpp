// ProfilePosix.cpp - the command line tool reads Windows' INI files but has no settings of its own.
#include "platform/Profile.h"
#include "platform/Text.h"

namespace platform {

std::string Utf8FromSystemText(std::string_view text) { return Utf8FromWindows1252(text); }

}  // namespace platform
