// UpdateReminder.cpp - see UpdateReminder.h.
#include "app/UpdateReminder.h"

#include <string>

#include "app/Settings.h"
#include "platform/Platform.h"

namespace app {

namespace {

constexpr uint64_t kSecond = 10000000;                 // FILETIME units
constexpr uint64_t kFirstDay = 12717388800 * kSecond;  // 2004-01-01
constexpr uint64_t kMonth = 2592000 * kSecond;
constexpr int kPause = 2;  // months

}  // namespace

int MonthsOfAge(uint64_t fileTime) {
    return fileTime < kFirstDay ? 0 : static_cast<int>((fileTime - kFirstDay) / kMonth);
}

void RemindOfUpdates() {
    const int months = MonthsOfAge(platform::SystemFileTime());
    if (months < 1 || months < settings.nextUpdateNotice) return;
    platform::ShowMessage("INFORMATION: This version of Tarvo is " + std::to_string(months) +
                              " months old.\nThere is probably an updated version available by now.\n"
                              "Updates are published where you found this version.",
                          platform::Buttons::Ok, platform::Icon::Information);
    settings.nextUpdateNotice = months + kPause;
}

}  // namespace app
