// ViewCommands.h - what the map shows: layers, parking labels, grid.
#pragma once

#include "platform/Pixel.h"

namespace app {

// Choosing the labels that are shown switches them off.
void ToggleTypeLabels();
void ToggleCodeLabels();
void CycleLabels();  // none, types, codes, none
bool TypeLabelsShown();
bool CodeLabelsShown();

void ToggleLights();
void ToggleNetwork();
void ToggleStarts();
void ToggleNavaids();
void ToggleHoldShortLimits();
void ToggleGrid();
bool GridShown();

// Locked, the map follows the aircraft in the simulator and refuses to be moved or turned by hand.
void ToggleLock();
bool LockedToSimulator();

// Not under a drag or a dialog, which have the objects that the menu is about.
bool MayOpenMapMenu();

// The map's own menu was opened there, a pixel of the map; its entries mean that place.
void NoteMenuPoint(platform::Pixel at);
void JumpToMenuPoint();  // places the aircraft in the simulator there

}  // namespace app
