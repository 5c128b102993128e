// SimulatorFolder.h - where the simulator is installed.
#pragma once

namespace app {

// Finds the folder (state.simulatorFolder): the one that the settings name, unseen; else the first registered one
// that holds the simulator's program; else the one that the user points out, which is written to the registry if the
// user wants that. 0, with no folder, when the user cancels: single files can be opened all the same.
int FindSimulatorFolder();

}  // namespace app
