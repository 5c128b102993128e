// Commands.cpp - running commands, and asking about them.
#include "app/Commands.h"

#include <algorithm>
#include <iterator>

#include "app/AppHost.h"
#include "app/CommandTable.h"
#include "app/ToolHint.h"
#include "dialogs/OverMap.h"
#include "Resource.h"

namespace app {

namespace {

// What goes on while a property dialog is open over the map: moving the map and choosing what it shows.
constexpr int kMapCommands[] = {
    IDT_ZOOM_IN,     IDT_ZOOM_OUT,         IDM_LOCK,      IDT_LOCK,           IDM_LABEL_TYPES,       IDM_LABEL_CODES,
    IDM_LIGHTS,      IDM_NETWORK,          IDM_STARTS,    IDM_NAVAIDS,        IDM_HOLD_SHORT_LIMITS, IDM_GRID,
    IDK_PAN_LEFT,    IDK_PAN_UP,           IDK_PAN_RIGHT, IDK_PAN_DOWN,       IDK_CYCLE_LABELS,      IDK_HOME,
    IDK_ROTATE_DOWN, IDK_ROTATE_DOWN_FINE, IDK_ROTATE_UP, IDK_ROTATE_UP_FINE,
};

bool MayRun(const Command& command) {
    const bool mapOnly = dialogs::overMap.open;
    if (mapOnly && std::find(std::begin(kMapCommands), std::end(kMapCommands), command.id) == std::end(kMapCommands))
        return false;
    return command.enabled();
}

const Command* FindCommand(int id) {
    for (const Command& row : CommandTable()) {
        if (row.id == id) return &row;
    }
    return nullptr;
}

}  // namespace

bool RunCommand(int id) {
    const Command* command = FindCommand(id);
    if (!command || !MayRun(*command)) return false;
    command->run();
    ShowCommandStates();
    ShowToolHint();
    return true;
}

bool IsCommandEnabled(int id) {
    const Command* command = FindCommand(id);
    return command && MayRun(*command);
}

bool IsCommandChecked(int id) {
    const Command* command = FindCommand(id);
    return command && command->checked();
}

const char* CommandToolTip(int id) {
    const Command* command = FindCommand(id);
    return command && *command->tooltip ? command->tooltip : nullptr;
}

}  // namespace app
