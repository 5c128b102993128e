// ViewCommands.h - what the map shows: layers, parking labels, grid.
#pragma once

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

}  // namespace app
