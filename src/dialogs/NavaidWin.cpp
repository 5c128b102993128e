// NavaidWin.cpp - see NavaidWin.h.
#include "dialogs/NavaidWin.h"

#include "dialogs/NavaidFields.h"

namespace dialogs {

void ShowChannel(HWND dialog, const char* before) {
    const std::string channel = DmeChannelOf(platform::FieldText(dialog, IDC_NAV_FREQUENCY));
    platform::SetFieldText(dialog, IDC_NAV_CHANNEL, channel.empty() ? "" : before + channel);
}

}  // namespace dialogs
