// FaultsCommand.h - what "tarvo-tool faults" prints.
#pragma once

#include <string>
#include <vector>

#include "cli/Json.h"
#include "faults/FaultReport.h"
#include "model/SceneryObject.h"

namespace cli {

constexpr int kHasFaults = 3;  // exit status

// All faults of the airport in model::state, in the order of the checks.
std::vector<faults::FaultReport> ListFaults();

// What a reader knows the object by: "hold-short node 12", "runway link 16L/34R", "Gate A 7". Nodes are counted
// from 0, as files count them.
std::string ObjectName(const model::SceneryObject* object);

// A paragraph for each fault.
std::string DescribeFaults(const std::vector<faults::FaultReport>& reports);

// "3 faults: 1 Hold Short Limits, 2 Open Links", or "no faults".
std::string SummarizeFaults(const std::vector<faults::FaultReport>& reports);

// An array of objects with "check", "message", "north", "east" and "objects", each of these with its "position"
// in the list and its "name".
void WriteFaults(JsonWriter* json, const std::vector<faults::FaultReport>& reports);

}  // namespace cli
