// FaultFinder.h - the fault finder's window without its controls.
//
// The window has a box for each check, a button that calls FindFaults, and a field for the text that it
// returns. The state lives as long as the program; only the pass begins again with each window.
#pragma once

#include <string>

#include "faults/FaultSearch.h"

namespace faults {

struct FinderState {
    FaultSearch search;
};

extern FinderState state;

// Opens the window beside the map, a new one each time.
void OpenFaultFinder();

// When the window opens: the next press begins a new pass. The boxes show state.search.switches.
void OpenFinder();

// When the window closes: takes the fault marker off the map.
void CloseFinder();

// One press of "Find Faults" with the boxes as given. Selects the objects of the next fault, shows it on the map
// and returns its message, or the text that there is none. The window has written kCheckingMessage before.
std::string FindFaults(const Switches& switches);

// Another airport is open, or none: forgets the last one. Call it whenever the open airport changes.
void ForgetAirport();

}  // namespace faults
