// FaultFinder.cpp - see FaultFinder.h.
#include "faults/FaultFinder.h"

#include "faults/Messages.h"
#include "map/FaultMarker.h"
#include "map/MapView.h"
#include "map/Selection.h"
#include "platform/Platform.h"

namespace faults {

FinderState state;

namespace {

void HideMarker() {
    if (!map::faultMarker.shown) return;
    map::faultMarker.shown = false;
    platform::RequestRepaint();
}

// What the message speaks of is switched on.
void ShowLayer(FaultCheck check) {
    if (check == FaultCheck::HoldShortLimits) map::layers.holdShortLimits = true;
    if (check == FaultCheck::StartLocations) map::layers.starts = true;
}

void ShowFault(const FaultReport& report) {
    for (SceneryObject* object : report.objects) object->flags |= model::kSelected;
    ShowLayer(report.check);
    map::view.centre = report.position;
    map::faultMarker = { true, report.position };
    map::view.lockedToSim = false;  // the next poll would move the view away
    platform::RequestRepaint();
}

}  // namespace

void OpenFinder() { StartOver(&state.search); }

void CloseFinder() {
    HideMarker();
    DropLists(&state.search);
}

std::string FindFaults(const Switches& switches) {
    state.search.switches = switches;
    if (map::DeselectAll()) platform::RequestRepaint();
    HideMarker();
    FaultReport report;
    switch (FindNextFault(&state.search, &report)) {
    case SearchResult::Fault: ShowFault(report); return report.message;
    case SearchResult::NoFaults: return kNoFaultsMessage;
    default: return kNoMoreFaultsMessage;
    }
}

void ForgetAirport() {
    HideMarker();
    StartOver(&state.search);
}

}  // namespace faults
