// FaultReport.h - what a check found.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/Geodesy.h"
#include "model/SceneryObject.h"

namespace faults {

// In the order in which they run.
enum class FaultCheck : int {
    HoldShortLimits = 0,
    OpenLinks = 1,
    IsolatedSegments = 2,
    OverlappingNodes = 3,
    StartLocations = 4,
    RunwayLinks = 5,
    ApronPolygons = 6,
};
constexpr int kCheckCount = 7;

struct FaultReport {
    FaultCheck check = FaultCheck::HoldShortLimits;
    std::string message;                         // UTF-8, lines parted by \r\n
    std::vector<model::SceneryObject*> objects;  // to be selected, without repetitions
    model::LatLon position;                      // to be shown
};

// What a check hands to the search that runs it.
struct Finding {
    FaultReport report;
    model::SceneryObject* mark = nullptr;  // gets the check's mark; null for none
    size_t resumeAt = 0;                   // where the check goes on; what the number counts is the check's own affair
};

}  // namespace faults
