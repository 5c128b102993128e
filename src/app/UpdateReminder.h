// UpdateReminder.h - the box that says how old this version is.
#pragma once

#include <cstdint>

namespace app {

// Whole periods of 30 days between the first day of 2004 and that FILETIME; 0 before.
int MonthsOfAge(uint64_t fileTime);

// Shows the box when it is due, and then not again for two months.
void RemindOfUpdates();

}  // namespace app
