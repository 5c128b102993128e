// ViewCommands.cpp - see ViewCommands.h.
#include "app/ViewCommands.h"

#include "app/AppState.h"
#include "app/Settings.h"
#include "dialogs/OverMap.h"
#include "map/Aircraft.h"
#include "map/MapView.h"
#include "model/ObjectList.h"
#include "platform/Platform.h"

namespace app {

namespace {

enum LabelMode { kNoLabels = 0, kTypeLabels = 1, kCodeLabels = 2 };

void Flip(bool* shown) {
    *shown = !*shown;
    platform::RequestRepaint();
}

void ShowLabels(int mode) {
    settings.showLabels = mode;
    platform::RequestRepaint();
}

}  // namespace

void ToggleTypeLabels() { ShowLabels(TypeLabelsShown() ? kNoLabels : kTypeLabels); }
void ToggleCodeLabels() { ShowLabels(CodeLabelsShown() ? kNoLabels : kCodeLabels); }
void CycleLabels() { ShowLabels(settings.showLabels >= kCodeLabels ? kNoLabels : settings.showLabels + 1); }
bool TypeLabelsShown() { return settings.showLabels == kTypeLabels; }
bool CodeLabelsShown() { return settings.showLabels == kCodeLabels; }

void ToggleLights() { Flip(&map::layers.lights); }
void ToggleNetwork() { Flip(&map::layers.network); }
void ToggleStarts() { Flip(&map::layers.starts); }
void ToggleNavaids() { Flip(&map::layers.navaids); }
void ToggleHoldShortLimits() { Flip(&map::layers.holdShortLimits); }
void ToggleGrid() { Flip(&settings.showLatLongGrid); }
bool GridShown() { return settings.showLatLongGrid; }

void ToggleLock() { map::ToggleLock(); }
bool LockedToSimulator() { return map::view.lockedToSim; }

bool MayOpenMapMenu() { return !model::state.busy && !dialogs::overMap.open; }
void NoteMenuPoint(platform::Pixel at) { state.menuPoint = at; }
void JumpToMenuPoint() { map::JumpHere(state.menuPoint); }

}  // namespace app
