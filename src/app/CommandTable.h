// CommandTable.h - one row a command: its id, what it runs, when it is enabled, when it is checked, the tooltip of its
// button and its keys. Menus, toolbars and keyboard ask the table through Commands.h and Keys.h.
#pragma once

#include <span>

#include "app/Keys.h"

namespace app {

inline bool Never() { return false; }

struct Command {
    int id;
    void (*run)();
    bool (*enabled)();
    bool (*checked)() = Never;
    const char* tooltip = "";
    KeyStroke keys[2] = {};
};

// In the order of the menus, the toolbars and the keys.
std::span<const Command> CommandTable();

}  // namespace app
