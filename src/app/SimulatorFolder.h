// SimulatorFolder.h - where the simulator is installed.
#pragma once

#include <string>

namespace app {

// The folder that the settings name wins unseen; else the first registered one that holds the simulator's program.
// Empty when there is none: single files can be opened all the same.
std::string FindSimulatorFolder();

}  // namespace app
