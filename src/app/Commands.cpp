// Commands.cpp - the command table.
#include "app/Commands.h"

#include <algorithm>
#include <iterator>

#include "app/Airport.h"
#include "app/AppHost.h"
#include "app/AppState.h"
#include "app/HelpTexts.h"
#include "app/SaveAirport.h"
#include "app/ViewCommands.h"
#include "map/MapView.h"
#include "map/Selection.h"
#include "map/Tools.h"
#include "model/DeleteRules.h"
#include "model/EditHistory.h"
#include "model/ObjectList.h"
#include "Resource.h"

namespace app {

namespace {

struct Command {
    int id;
    void (*run)();
    bool (*enabled)();
    bool (*checked)();
};

bool Always() { return true; }
bool Never() { return false; }
bool AirportLoaded() { return model::state.loaded; }

// Not while a drag holds objects away from where the model has them.
bool AirportAtRest() { return model::state.loaded && !model::state.busy; }

bool AnyGuidelineOrMarker() {
    if (!AirportAtRest()) return false;
    return model::FirstOfKind(model::state.head, model::kGuideline) ||
           model::FirstOfKind(model::state.head, model::kReferenceMarker);
}

void CloseCommand() {
    if (SavePrompt()) CloseAirport();
}

template <uint8_t kind>
void UseNodes() {
    map::tools.nodeKind = kind;
    map::SetTool(map::Tool::Nodes);
}

template <uint8_t kind>
bool NodesInUse() {
    return map::tools.tool == map::Tool::Nodes && map::tools.nodeKind == kind;
}

// Rows in the order of the menus, the toolbar and the key table.
constexpr Command kCommands[] = {
    { IDM_CLOSE, CloseCommand, AirportAtRest, Never },
    { IDM_SAVE, [] { SaveAirport(); }, AirportAtRest, Never },
    { IDM_SAVE_AS, [] { SaveAirportAs(); }, AirportAtRest, Never },
    { IDM_EXIT, CloseMainWindow, Always, Never },
    { IDM_UNDO, model::Undo, model::CanUndo, Never },
    { IDM_REDO, model::Redo, model::CanRedo, Never },
    { IDM_SELECT_ALL, map::SelectAll, AirportAtRest, Never },
    { IDM_DELETE_GUIDELINES, [] { model::DeleteGuidelinesAndMarkers(); }, AnyGuidelineOrMarker, Never },
    { IDM_LABEL_TYPES, ToggleTypeLabels, Always, TypeLabelsShown },
    { IDM_LABEL_CODES, ToggleCodeLabels, Always, CodeLabelsShown },
    { IDM_LIGHTS, ToggleLights, Always, [] { return map::layers.lights; } },
    { IDM_NETWORK, ToggleNetwork, Always, [] { return map::layers.network; } },
    { IDM_STARTS, ToggleStarts, Always, [] { return map::layers.starts; } },
    { IDM_NAVAIDS, ToggleNavaids, Always, [] { return map::layers.navaids; } },
    { IDM_HOLD_SHORT_LIMITS, ToggleHoldShortLimits, Always, [] { return map::layers.holdShortLimits; } },
    { IDM_GRID, ToggleGrid, Always, GridShown },
    { IDM_HELP, [] { OpenDocument(state.programFolder + "\\ReadMe.htm"); }, Always, Never },
    { IDM_KEYBOARD, ShowKeyboardFunctions, Always, Never },
    { IDM_ABOUT, ShowAbout, Always, Never },

    { IDT_SAVE, [] { SaveAirport(); }, AirportAtRest, Never },
    { IDT_UNDO, model::Undo, model::CanUndo, Never },
    { IDT_REDO, model::Redo, model::CanRedo, Never },
    { IDT_ZOOM_IN, map::ZoomIn, Always, Never },
    { IDT_ZOOM_OUT, map::ZoomOut, Always, Never },
    { IDT_POINTER, [] { map::SetTool(map::Tool::Pointer); }, Always,
      [] { return map::tools.tool == map::Tool::Pointer; } },
    { IDT_NORMAL_NODE, UseNodes<1>, AirportLoaded, NodesInUse<1> },
    { IDT_HOLD_SHORT_NODE, UseNodes<2>, AirportLoaded, NodesInUse<2> },
    { IDT_ILS_HOLD_SHORT_NODE, UseNodes<4>, AirportLoaded, NodesInUse<4> },

    { IDK_DELETE, [] { model::DeleteSelected(nullptr); }, AirportAtRest, Never },
    { IDK_CYCLE_LABELS, CycleLabels, Always, Never },
    { IDK_HOME, map::SlewHome, Always, Never },
    { IDK_PAN_LEFT, [] { map::PanStep(map::PanDirection::Left); }, Always, Never },
    { IDK_PAN_UP, [] { map::PanStep(map::PanDirection::Up); }, Always, Never },
    { IDK_PAN_RIGHT, [] { map::PanStep(map::PanDirection::Right); }, Always, Never },
    { IDK_PAN_DOWN, [] { map::PanStep(map::PanDirection::Down); }, Always, Never },
    { IDK_ROTATE_DOWN, [] { map::Rotate(map::RotateDirection::Subtract, false); }, Always, Never },
    { IDK_ROTATE_DOWN_FINE, [] { map::Rotate(map::RotateDirection::Subtract, true); }, Always, Never },
    { IDK_ROTATE_UP, [] { map::Rotate(map::RotateDirection::Add, false); }, Always, Never },
    { IDK_ROTATE_UP_FINE, [] { map::Rotate(map::RotateDirection::Add, true); }, Always, Never },
};

constexpr bool DistinctIds() {
    for (const Command& a : kCommands) {
        for (const Command& b : kCommands) {
            if (&a != &b && a.id == b.id) return false;
        }
    }
    return true;
}
static_assert(DistinctIds(), "two commands share an id");

const Command* FindCommand(int id) {
    const Command* found =
        std::find_if(std::begin(kCommands), std::end(kCommands), [id](const Command& row) { return row.id == id; });
    return found == std::end(kCommands) ? nullptr : found;
}

}  // namespace

bool RunCommand(int id) {
    const Command* command = FindCommand(id);
    if (!command || !command->enabled()) return false;
    command->run();
    ShowCommandStates();
    return true;
}

bool IsCommandEnabled(int id) {
    const Command* command = FindCommand(id);
    return command && command->enabled();
}

bool IsCommandChecked(int id) {
    const Command* command = FindCommand(id);
    return command && command->checked();
}

}  // namespace app
