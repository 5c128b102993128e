// Timers.h - the timers of the main window. The ids count up by themselves: no two are the same.
#pragma once

#include <cstdint>

namespace app {

enum Timer : uintptr_t {
    kSimLinkTimer = 1,
    kDragTimer,
    kBackupTimer,
    kComboTimer,  // of an opened list of parking specs
};

}  // namespace app
