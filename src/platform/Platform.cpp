// Platform.cpp - the boxes that every system shows alike. See Platform.h.
#include "platform/Platform.h"

#include <string>

namespace platform {

bool ShowRefusal(std::string_view text) {
    ShowMessage(text, Buttons::Ok, Icon::Exclamation);
    return false;
}

bool ShowError(std::string_view text) { return ShowRefusal("ERROR: " + std::string(text)); }

}  // namespace platform
