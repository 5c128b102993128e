// CommandTable.cpp - the rows.
#include "app/CommandTable.h"

#include "aircraft/AircraftEditor.h"
#include "app/Airport.h"
#include "app/AppHost.h"
#include "app/AppState.h"
#include "app/AutoBackup.h"
#include "app/EditCommands.h"
#include "app/HelpPage.h"
#include "app/HelpTexts.h"
#include "app/MapPictures.h"
#include "app/Printing.h"
#include "app/RecentAirports.h"
#include "app/SaveAirport.h"
#include "app/SimLink.h"
#include "app/ToolCombos.h"
#include "app/ViewCommands.h"
#include "dialogs/Editors.h"
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

bool Always() { return true; }
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
    return map::tools.toolMode == map::Tool::Links && map::tools.linkKind == kind;
}

template <map::Tool tool>
void Use() {
    map::SetTool(tool);
}

template <map::Tool tool>
bool InUse() {
    return map::tools.toolMode == tool;
}

template <uint8_t kind>
bool NodesInUse() {
    return map::tools.toolMode == map::Tool::Nodes && map::tools.nodeKind == kind;
}

template <bool (*dialog)(), uint32_t kind>
void Insert() {
    InsertWith(dialog, kind);
}

template <dialogs::ListKind kind>
void List() {
    dialogs::ShowList(kind);
}

// Rows in the order of the menus, the toolbar and the key table.
constexpr Command kCommands[] = {
    { IDM_OPEN, OpenCommand, NothingDragged },
    { IDM_CLOSE, CloseCommand, AirportAtRest },
    { IDM_NEW, NewAirport, NothingDragged },
    { IDM_SAVE, [] { SaveAirport(); }, AirportAtRest },
    { IDM_SAVE_AS, [] { SaveAirportAs(); }, AirportAtRest },
    { IDM_AIRPORT_PROPERTIES, EditAirportProperties, AirportAtRest },
    { IDM_PAGE_SETUP, PageSetup, AirportAtRest },
    { IDM_PRINT, Print, AirportAtRest },
    { IDM_SAVE_PICTURE, [] { SaveMapPicture(); }, AirportAtRest },
    { IDM_EXIT, CloseMainWindow, Always },
    { IDM_RECENT_FIRST, OpenRecent<0>, RecentKnown<0> },
    { IDM_RECENT_FIRST + 1, OpenRecent<1>, RecentKnown<1> },
    { IDM_RECENT_FIRST + 2, OpenRecent<2>, RecentKnown<2> },
    { IDM_RECENT_FIRST + 3, OpenRecent<3>, RecentKnown<3> },
    { IDM_RECENT_FIRST + 4, OpenRecent<4>, RecentKnown<4> },
    { IDM_RECENT_FIRST + 5, OpenRecent<5>, RecentKnown<5> },
    { IDM_RECENT_FIRST + 6, OpenRecent<6>, RecentKnown<6> },
    { IDM_RECENT_FIRST + 7, OpenRecent<7>, RecentKnown<7> },
    { IDM_RECENT_FIRST + 8, OpenRecent<8>, RecentKnown<8> },
    { IDM_RECENT_FIRST + 9, OpenRecent<9>, RecentKnown<9> },
    { IDM_UNDO, UndoCommand, model::CanUndo, Never, "", { WithCtrl('Z') } },
    { IDM_REDO, RedoCommand, model::CanRedo, Never, "", { WithCtrl('Y') } },
    { IDM_SELECT_ALL, map::SelectAll, AirportAtRest, Never, "", { WithCtrl('A') } },
    { IDM_DELETE_GUIDELINES,
      [] { model::DeleteGuidelinesAndMarkers(); },
      AnyGuidelineOrMarker,
      Never,
      "",
      { WithCtrl(kDelete) } },
    { IDM_LOCK, ToggleLock, Always, LockedToSimulator },
    { IDM_LABEL_TYPES, ToggleTypeLabels, Always, TypeLabelsShown },
    { IDM_LABEL_CODES, ToggleCodeLabels, Always, CodeLabelsShown },
    { IDM_LIGHTS, ToggleLights, Always, [] { return map::layers.lights; }, "", { Any('L') } },
    { IDM_NETWORK, ToggleNetwork, Always, [] { return map::layers.network; }, "", { Any('N') } },
    { IDM_STARTS, ToggleStarts, Always, [] { return map::layers.starts; }, "", { Any('S') } },
    { IDM_NAVAIDS, ToggleNavaids, Always, [] { return map::layers.navaids; }, "", { WithoutCtrl('A') } },
    { IDM_HOLD_SHORT_LIMITS,
      ToggleHoldShortLimits,
      Always,
      [] { return map::layers.holdShortLimits; },
      "",
      { Any('H') } },
    { IDM_GRID, ToggleGrid, Always, GridShown, "", { Any('G') } },
    { IDM_INSERT_RUNWAY, Insert<dialogs::InsertRunwayDialog, model::kRunway>, AirportAtRest },
    { IDM_INSERT_HELIPAD, Insert<dialogs::InsertHelipadDialog, model::kHelipad>, AirportAtRest },
    { IDM_INSERT_TOWER, Insert<dialogs::InsertTowerDialog, model::kTowerViewpoint>, AirportAtRest },
    { IDM_INSERT_START, Insert<dialogs::InsertStartDialog, model::kStartLocation>, AirportAtRest },
    { IDM_INSERT_ILS, Insert<dialogs::InsertIlsDialog, model::kIls>, AirportAtRest },
    { IDM_INSERT_MARKER_BEACON, Insert<dialogs::InsertMarkersDialog, model::kMarkerBeacon>, AirportAtRest },
    { IDM_INSERT_NDB, Insert<dialogs::InsertNdbDialog, model::kNdb>, AirportAtRest },
    { IDM_INSERT_VOR, Insert<dialogs::InsertVorDialog, model::kVorDme>, AirportAtRest },
    { IDM_LIST_PARKING, List<dialogs::ListKind::Parking>, AirportAtRest },
    { IDM_LIST_DESIGNATORS, List<dialogs::ListKind::Designators>, AirportAtRest },
    { IDM_LIST_RUNWAYS, List<dialogs::ListKind::Runways>, AirportAtRest },
    { IDM_LIST_STARTS, List<dialogs::ListKind::Starts>, AirportAtRest },
    { IDM_LIST_COMMS, List<dialogs::ListKind::Comms>, AirportAtRest },
    { IDM_LIST_NAVAIDS, List<dialogs::ListKind::Navaids>, AirportAtRest },
    { IDM_FAULT_FINDER, faults::OpenFaultFinder, AirportAtRest },
    { IDM_AIRCRAFT_EDITOR, [] { aircraft::ShowAircraftEditor(state.simulatorFolder); }, Always },
    { IDM_OPTIONS, ShowOptionsDialog, Always },
    { IDM_HELP, [] { OpenDocument(HelpFile(state.programFolder)); }, Always, Never, "", { Any(kF1) } },
    { IDM_KEYBOARD, ShowKeyboardFunctions, Always },
    { IDM_ABOUT, ShowAbout, Always },

    { IDT_OPEN, OpenCommand, NothingDragged, Never, "Open an airport from the scenery files" },
    { IDT_SAVE, [] { SaveAirport(); }, AirportAtRest, Never, "Save an open airport back to the scenery files" },
    { IDT_PRINT, Print, AirportAtRest, Never, "Print the airport map" },
    { IDT_UNDO, UndoCommand, model::CanUndo, Never, "Undo (Ctrl+Z)" },
    { IDT_REDO, RedoCommand, model::CanRedo, Never, "Redo (Ctrl+Y)" },
    { IDT_ZOOM_IN, map::ZoomIn, Always, Never, "Zoom in (mouse wheel or + key)", { Any(kNumpadAdd), Any(kPlus) } },
    { IDT_ZOOM_OUT,
      map::ZoomOut,
      Always,
      Never,
      "Zoom out (mouse wheel or - key)",
      { Any(kNumpadSubtract), Any(kMinus) } },
    { IDT_LOCK, ToggleLock, Always, LockedToSimulator,
      "Lock the map location to the Flight Simulator aircraft location" },
    { IDT_POINTER, [] { map::SetTool(map::Tool::Pointer); }, Always,
      [] { return map::tools.toolMode == map::Tool::Pointer; }, "Pointer mode" },
    { IDT_NORMAL_NODE, UseNodes<model::kNormalNode>, AirportLoaded, NodesInUse<model::kNormalNode>,
      "Create normal nodes by clicking with the mouse" },
    { IDT_HOLD_SHORT_NODE, UseNodes<model::kHoldShortNode>, AirportLoaded, NodesInUse<model::kHoldShortNode>,
      "Create hold-short nodes by clicking with the mouse" },
    { IDT_ILS_HOLD_SHORT_NODE, UseNodes<model::kIlsHoldShortNode>, AirportLoaded, NodesInUse<model::kIlsHoldShortNode>,
      "Create ILS hold-short nodes by clicking with the mouse" },
    { IDT_NORMAL_LINK, UseLinks<model::kTaxiwayLink>, AirportLoaded, LinksInUse<model::kTaxiwayLink>,
      "Create normal taxi link by connecting nodes with the mouse" },
    { IDT_RUNWAY_LINK, UseLinks<model::kRunwayLink>, AirportLoaded, LinksInUse<model::kRunwayLink>,
      "Create runway taxi link by connecting nodes with the mouse" },
    { IDT_APRON_LINK, UseLinks<model::kApronRouteLink>, AirportLoaded, LinksInUse<model::kApronRouteLink>,
      "Create apron taxi link by connecting nodes with the mouse" },
    { IDT_CLOSED_LINK, UseLinks<model::kClosedLink>, AirportLoaded, LinksInUse<model::kClosedLink>,
      "Create closed taxi link by connecting nodes with the mouse" },
    { IDT_PARKING, Use<map::Tool::Parking>, AirportLoaded, InUse<map::Tool::Parking>,
      "Create parking spots by clicking with the mouse" },
    { IDT_APRON, Use<map::Tool::Apron>, AirportLoaded, InUse<map::Tool::Apron>,
      "Create apron polygon by clicking clicking mouse to place points" },
    { IDT_APRON_POINT, Use<map::Tool::ApronPoint>, AirportLoaded, InUse<map::Tool::ApronPoint>,
      "Insert new point in existing apron polygon by clicking with the mouse" },
    { IDT_EDGE_LIGHTS, Use<map::Tool::EdgeLights>, AirportLoaded, InUse<map::Tool::EdgeLights>,
      "Insert apron light strip by clicking and pulling with the mouse" },
    { IDT_MARKERS, Use<map::Tool::Markers>, AirportLoaded, InUse<map::Tool::Markers>,
      "Create reference markers by clicking with the mouse" },
    { IDT_GUIDELINES, Use<map::Tool::Guidelines>, AirportLoaded, InUse<map::Tool::Guidelines>,
      "Create guidelines with the mouse" },

    { IDM_JUMP_HERE, JumpToMenuPoint, MayJump },
    { IDM_PROPERTIES, EditAtMenuPoint, CanEditAtMenuPoint },
    { IDK_SLEW_STOP, StopAircraft, SimulatorConnected, Never, "", { Any(kClear), Any(kNumpad5) } },

    { IDK_CLOSE_POLYGON, map::Escape, map::CanEscape, Never, "", { Any(kEscape) } },
    { IDK_FINISH_POLYGON, map::CloseOutline, map::CanCloseOutline, Never, "", { WhileDrawing(kEnter) } },
    { IDK_TAKE_BACK_CORNER, map::TakeBackOutlinePoint, map::HasOutline, Never, "", { WhileDrawing(kBackspace) } },
    { IDK_DELETE, [] { map::EraseSelected(); }, AirportAtRest, Never, "", { WithoutCtrl(kDelete) } },
    { IDK_CYCLE_LABELS, CycleLabels, Always, Never, "", { Any('P') } },
    { IDK_CYCLE_DESIGNATOR, [] { CycleDesignator(false); }, AirportLoaded, Never, "", { Unshifted('T') } },
    { IDK_CYCLE_DESIGNATOR_BACK, [] { CycleDesignator(true); }, AirportLoaded, Never, "", { Shifted('T') } },
    { IDK_HOME, map::SlewHome, Always, Never, "", { Any(kHome) } },
    { IDK_PAN_LEFT, [] { map::PanStep(map::PanDirection::Left); }, Always, Never, "", { Any(kLeft) } },
    { IDK_PAN_UP, [] { map::PanStep(map::PanDirection::Up); }, Always, Never, "", { Any(kUp) } },
    { IDK_PAN_RIGHT, [] { map::PanStep(map::PanDirection::Right); }, Always, Never, "", { Any(kRight) } },
    { IDK_PAN_DOWN, [] { map::PanStep(map::PanDirection::Down); }, Always, Never, "", { Any(kDown) } },
    { IDK_ROTATE_DOWN,
      [] { map::Rotate(map::RotateDirection::Subtract, false); },
      Always,
      Never,
      "",
      { Unshifted(kPageDown) } },
    { IDK_ROTATE_DOWN_FINE,
      [] { map::Rotate(map::RotateDirection::Subtract, true); },
      Always,
      Never,
      "",
      { Shifted(kPageDown) } },
    { IDK_ROTATE_UP, [] { map::Rotate(map::RotateDirection::Add, false); }, Always, Never, "", { Unshifted(kEnd) } },
    { IDK_ROTATE_UP_FINE, [] { map::Rotate(map::RotateDirection::Add, true); }, Always, Never, "", { Shifted(kEnd) } },
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

}  // namespace

std::span<const Command> CommandTable() { return kCommands; }

}  // namespace app
