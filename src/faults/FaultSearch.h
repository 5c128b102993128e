// FaultSearch.h - runs the checks in their order, one fault a call, and goes on where it stopped.
//
// It sets the marks of objects (model::kFaultMarkA and B) and changes nothing else of the airport.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "faults/Checks.h"
#include "faults/FaultReport.h"

namespace faults {

using Switches = std::array<bool, kCheckCount>;  // by FaultCheck

constexpr Switches AllSwitches() {
    Switches switches{};
    for (bool& on : switches) on = true;
    return switches;
}

struct FaultSearch {
    Switches switches = AllSwitches();
    int checkIndex = 0;          // the check that runs now; kCheckCount when all are done
    bool resumeCheck = false;    // it stopped at a fault and goes on there
    bool anyFaultFound = false;  // since the pass began
    uint64_t lastEditMark = 0;   // model::state.editMark at the last call
    size_t resumeAt = 0;         // where the check goes on
    PassData data;
};

enum class SearchResult { Fault, NoFaults, NoMoreFaults };

// Looks for the next fault. After an edit of the airport the check that was reached starts again from its
// beginning, and faults found before are forgotten. After NoFaults or NoMoreFaults the next call begins a new
// pass with the first check.
SearchResult FindNextFault(FaultSearch* search, FaultReport* report);

// The next call begins a new pass; the switches stay. For another airport, and for a window that opens.
void StartOver(FaultSearch* search);

// Frees what a check has listed to be told: segments and missing starts. The check goes on behind them.
void DropLists(FaultSearch* search);

// "Hold Short Limits" and so on.
const char* CheckName(FaultCheck check);

}  // namespace faults
