// Commands.cpp - the command table.
#include "app/Commands.h"

#include <algorithm>
#include <iterator>

#include "aircraft/AircraftEditor.h"
#include "app/Airport.h"
#include "app/AppHost.h"
#include "app/AppState.h"
#include "app/AutoBackup.h"
#include "app/EditCommands.h"
#include "app/HelpPage.h"
#include "app/HelpTexts.h"
#include "app/RecentAirports.h"
#include "app/SaveAirport.h"
#include "app/SimLink.h"
#include "app/ToolCombos.h"
#include "app/ViewCommands.h"
#include "dialogs/Editors.h"
#include "dialogs/OverMap.h"
#include "faults/FaultFinder.h"
#include "map/ApronTool.h"
#include "map/HoldShortUpdate.h"
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
bool AirportAtRest() { return model::state.loaded && IsAirportAtRest(); }

bool SimulatorConnected() { return map::simAircraft.active; }
bool MayJump() { return AirportLoaded() && SimulatorConnected(); }

bool AnyGuidelineOrMarker() {
    if (!AirportAtRest()) return false;
    return model::FirstOfKind(model::state.head, model::kGuideline) ||
           model::FirstOfKind(model::state.head, model::kReferenceMarker);
}

bool NothingDragged() { return !model::state.busy; }

void OpenCommand() {
    if (SavePrompt()) ShowOpenAirportDialog();
}

template <size_t index>
void OpenRecent() {
    if (SavePrompt()) OpenRecentAirport(index);
}

template <size_t index>
bool RecentKnown() {
    RecentAirport airport;
    return NothingDragged() && GetRecentAirport(index, &airport);
}

void CloseCommand() {
    if (SavePrompt()) CloseAirport();
}

// An edit of the airport's identifier or name may come or go, and both stand in the title.
void UndoCommand() {
    model::Undo();
    SetWindowTitle(TitleText());
}

void RedoCommand() {
    model::Redo();
    SetWindowTitle(TitleText());
}

template <uint8_t kind>
void UseNodes() {
    map::tools.nodeKind = kind;
    map::SetTool(map::Tool::Nodes);
}

template <uint32_t kind>
void UseLinks() {
    map::tools.linkKind = kind;
    map::SetTool(map::Tool::Links);
}

template <uint32_t kind>
bool LinksInUse() {
    return map::tools.tool == map::Tool::Links && map::tools.linkKind == kind;
}

template <map::Tool tool>
void Use() {
    map::SetTool(tool);
}

template <map::Tool tool>
bool InUse() {
    return map::tools.tool == tool;
}

template <uint8_t kind>
bool NodesInUse() {
    return map::tools.tool == map::Tool::Nodes && map::tools.nodeKind == kind;
}

template <bool (*dialog)()>
void Insert() {
    InsertWith(dialog);
}

template <dialogs::ListKind kind>
void List() {
    dialogs::ShowList(kind);
}

// Rows in the order of the menus, the toolbar and the key table.
constexpr Command kCommands[] = {
    { IDM_OPEN, OpenCommand, NothingDragged, Never },
    { IDM_CLOSE, CloseCommand, AirportAtRest, Never },
    { IDM_NEW, NewAirport, NothingDragged, Never },
    { IDM_SAVE, [] { SaveAirport(); }, AirportAtRest, Never },
    { IDM_SAVE_AS, [] { SaveAirportAs(); }, AirportAtRest, Never },
    { IDM_AIRPORT_PROPERTIES, EditAirportProperties, AirportAtRest, Never },
    { IDM_PAGE_SETUP, ShowPageSetup, AirportAtRest, Never },
    { IDM_PRINT, PrintAirportMap, AirportAtRest, Never },
    { IDM_EXIT, CloseMainWindow, Always, Never },
    { IDM_RECENT_FIRST, OpenRecent<0>, RecentKnown<0>, Never },
    { IDM_RECENT_FIRST + 1, OpenRecent<1>, RecentKnown<1>, Never },
    { IDM_RECENT_FIRST + 2, OpenRecent<2>, RecentKnown<2>, Never },
    { IDM_RECENT_FIRST + 3, OpenRecent<3>, RecentKnown<3>, Never },
    { IDM_RECENT_FIRST + 4, OpenRecent<4>, RecentKnown<4>, Never },
    { IDM_RECENT_FIRST + 5, OpenRecent<5>, RecentKnown<5>, Never },
    { IDM_RECENT_FIRST + 6, OpenRecent<6>, RecentKnown<6>, Never },
    { IDM_RECENT_FIRST + 7, OpenRecent<7>, RecentKnown<7>, Never },
    { IDM_RECENT_FIRST + 8, OpenRecent<8>, RecentKnown<8>, Never },
    { IDM_RECENT_FIRST + 9, OpenRecent<9>, RecentKnown<9>, Never },
    { IDM_UNDO, UndoCommand, model::CanUndo, Never },
    { IDM_REDO, RedoCommand, model::CanRedo, Never },
    { IDM_SELECT_ALL, map::SelectAll, AirportAtRest, Never },
    { IDM_DELETE_GUIDELINES, [] { model::DeleteGuidelinesAndMarkers(); }, AnyGuidelineOrMarker, Never },
    { IDM_LOCK, ToggleLock, Always, LockedToSimulator },
    { IDM_LABEL_TYPES, ToggleTypeLabels, Always, TypeLabelsShown },
    { IDM_LABEL_CODES, ToggleCodeLabels, Always, CodeLabelsShown },
    { IDM_LIGHTS, ToggleLights, Always, [] { return map::layers.lights; } },
    { IDM_NETWORK, ToggleNetwork, Always, [] { return map::layers.network; } },
    { IDM_STARTS, ToggleStarts, Always, [] { return map::layers.starts; } },
    { IDM_NAVAIDS, ToggleNavaids, Always, [] { return map::layers.navaids; } },
    { IDM_HOLD_SHORT_LIMITS, ToggleHoldShortLimits, Always, [] { return map::layers.holdShortLimits; } },
    { IDM_GRID, ToggleGrid, Always, GridShown },
    { IDM_INSERT_RUNWAY, Insert<dialogs::InsertRunwayDialog>, AirportAtRest, Never },
    { IDM_INSERT_HELIPAD, Insert<dialogs::InsertHelipadDialog>, AirportAtRest, Never },
    { IDM_INSERT_TOWER, Insert<dialogs::InsertTowerDialog>, AirportAtRest, Never },
    { IDM_INSERT_START, Insert<dialogs::InsertStartDialog>, AirportAtRest, Never },
    { IDM_INSERT_ILS, Insert<dialogs::InsertIlsDialog>, AirportAtRest, Never },
    { IDM_INSERT_MARKER_BEACON, Insert<dialogs::InsertMarkersDialog>, AirportAtRest, Never },
    { IDM_INSERT_NDB, Insert<dialogs::InsertNdbDialog>, AirportAtRest, Never },
    { IDM_INSERT_VOR, Insert<dialogs::InsertVorDialog>, AirportAtRest, Never },
    { IDM_LIST_PARKING, List<dialogs::ListKind::Parking>, AirportAtRest, Never },
    { IDM_LIST_DESIGNATORS, List<dialogs::ListKind::Designators>, AirportAtRest, Never },
    { IDM_LIST_RUNWAYS, List<dialogs::ListKind::Runways>, AirportAtRest, Never },
    { IDM_LIST_STARTS, List<dialogs::ListKind::Starts>, AirportAtRest, Never },
    { IDM_LIST_COMMS, List<dialogs::ListKind::Comms>, AirportAtRest, Never },
    { IDM_LIST_NAVAIDS, List<dialogs::ListKind::Navaids>, AirportAtRest, Never },
    { IDM_FAULT_FINDER, faults::OpenFaultFinder, AirportAtRest, Never },
    { IDM_AIRCRAFT_EDITOR, [] { aircraft::ShowAircraftEditor(state.simulatorFolder); }, Always, Never },
    { IDM_OPTIONS, ShowOptionsDialog, Always, Never },
    { IDM_HELP, [] { OpenDocument(HelpFile(state.programFolder)); }, Always, Never },
    { IDM_KEYBOARD, ShowKeyboardFunctions, Always, Never },
    { IDM_ABOUT, ShowAbout, Always, Never },

    { IDT_OPEN, OpenCommand, NothingDragged, Never },
    { IDT_SAVE, [] { SaveAirport(); }, AirportAtRest, Never },
    { IDT_PRINT, PrintAirportMap, AirportAtRest, Never },
    { IDT_UNDO, UndoCommand, model::CanUndo, Never },
    { IDT_REDO, RedoCommand, model::CanRedo, Never },
    { IDT_ZOOM_IN, map::ZoomIn, Always, Never },
    { IDT_ZOOM_OUT, map::ZoomOut, Always, Never },
    { IDT_LOCK, ToggleLock, Always, LockedToSimulator },
    { IDT_POINTER, [] { map::SetTool(map::Tool::Pointer); }, Always,
      [] { return map::tools.tool == map::Tool::Pointer; } },
    { IDT_NORMAL_NODE, UseNodes<1>, AirportLoaded, NodesInUse<1> },
    { IDT_HOLD_SHORT_NODE, UseNodes<2>, AirportLoaded, NodesInUse<2> },
    { IDT_ILS_HOLD_SHORT_NODE, UseNodes<4>, AirportLoaded, NodesInUse<4> },
    { IDT_NORMAL_LINK, UseLinks<1>, AirportLoaded, LinksInUse<1> },
    { IDT_RUNWAY_LINK, UseLinks<2>, AirportLoaded, LinksInUse<2> },
    { IDT_APRON_LINK, UseLinks<4>, AirportLoaded, LinksInUse<4> },
    { IDT_CLOSED_LINK, UseLinks<5>, AirportLoaded, LinksInUse<5> },
    { IDT_PARKING, Use<map::Tool::Parking>, AirportLoaded, InUse<map::Tool::Parking> },
    { IDT_APRON, Use<map::Tool::Apron>, AirportLoaded, InUse<map::Tool::Apron> },
    { IDT_APRON_POINT, Use<map::Tool::ApronPoint>, AirportLoaded, InUse<map::Tool::ApronPoint> },
    { IDT_EDGE_LIGHTS, Use<map::Tool::EdgeLights>, AirportLoaded, InUse<map::Tool::EdgeLights> },
    { IDT_MARKERS, Use<map::Tool::Markers>, AirportLoaded, InUse<map::Tool::Markers> },
    { IDT_GUIDELINES, Use<map::Tool::Guidelines>, AirportLoaded, InUse<map::Tool::Guidelines> },

    { IDM_JUMP_HERE, JumpToMenuPoint, MayJump, Never },
    { IDM_PROPERTIES, EditAtMenuPoint, CanEditAtMenuPoint, Never },
    { IDK_SLEW_STOP, StopAircraft, SimulatorConnected, Never },

    { IDK_CLOSE_POLYGON, map::Escape, map::CanEscape, Never },
    { IDK_FINISH_POLYGON, map::CloseOutline, map::CanCloseOutline, Never },
    { IDK_TAKE_BACK_CORNER, map::TakeBackOutlinePoint, map::HasOutline, Never },
    { IDK_DELETE, [] { map::EraseSelected(); }, AirportAtRest, Never },
    { IDK_CYCLE_LABELS, CycleLabels, Always, Never },
    { IDK_CYCLE_DESIGNATOR, [] { CycleDesignator(false); }, AirportLoaded, Never },
    { IDK_CYCLE_DESIGNATOR_BACK, [] { CycleDesignator(true); }, AirportLoaded, Never },
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
    const Command* found =
        std::find_if(std::begin(kCommands), std::end(kCommands), [id](const Command& row) { return row.id == id; });
    return found == std::end(kCommands) ? nullptr : found;
}

}  // namespace

bool RunCommand(int id) {
    const Command* command = FindCommand(id);
    if (!command || !MayRun(*command)) return false;
    command->run();
    ShowCommandStates();
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

std::vector<int> CommandIds() {
    std::vector<int> ids;
    for (const Command& command : kCommands) ids.push_back(command.id);
    return ids;
}

}  // namespace app
