// Checks.h - the seven checks, each a pure walk: it changes nothing and returns what it found.
//
// A check is prepared when it starts afresh and then asked for one fault after the other, each time from where
// the last one says (Finding::resumeAt; 0 at the start). Marks are read from the objects' flags; whoever runs
// the checks sets them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "faults/FaultReport.h"
#include "faults/NearGrid.h"
#include "faults/Network.h"
#include "model/Geodesy.h"

namespace faults {

// Chosen in feet.
constexpr double kWideRunway = 450.0;  // feet: its middle is beyond the limit of hold-short nodes
constexpr double kNodeGapLimit = 70.0 / model::kFeetPerMetre;
constexpr double kLinkGapLimit = 50.0 / model::kFeetPerMetre;
constexpr double kOverlapLimit = 15.0 / model::kFeetPerMetre;
constexpr double kStartInset = 200.0 / model::kFeetPerMetre;  // of a start location from the runway's end

constexpr size_t kSegmentLimit = 16;  // groups beyond it are not told as segments

struct LinkGrid {
    NearGrid grid;
    std::vector<uint32_t> longLinks;  // too long for the grid: near everything
};

struct Segments {                             // links that hang together, in groups of link indices
    std::vector<std::vector<uint32_t>> told;  // in the order in which they are told; the main network is not there
};

struct MissingStart {
    SceneryObject* runway = nullptr;
    bool atReciprocalEnd = false;
    std::string endName;
};

// What the checks of one pass know of the airport.
struct PassData {
    Network network;
    NearGrid nodeGrid;
    LinkGrid linkGrid;
    Segments segments;
    std::vector<MissingStart> missingStarts;
    std::vector<SceneryObject*> marked;  // objects that carry the check's mark from its start on
};

void PrepareOpenLinks(PassData* data);
void PrepareSegments(PassData* data);
void PrepareOverlaps(PassData* data);
void PrepareStartLocations(PassData* data);

// False when the check runs dry.
bool FindHoldShortFault(const PassData& data, size_t from, Finding* finding);
bool FindOpenLink(const PassData& data, size_t from, Finding* finding);
bool FindIsolation(const PassData& data, size_t from, Finding* finding);
bool FindOverlap(const PassData& data, size_t from, Finding* finding);
bool FindMissingStart(const PassData& data, size_t from, Finding* finding);
bool FindRunwayLinkFault(const PassData& data, size_t from, Finding* finding);
bool FindCrossedApron(const PassData& data, size_t from, Finding* finding);

// The marks: of the second object of a pair that was told, and of what belongs to a segment or was told alone.
constexpr uint32_t kPairMark = model::kFaultMarkA;
constexpr uint32_t kSegmentMark = model::kFaultMarkB;

// Nodes within `reach` metres of each other, for the checks of pairs.
NearGrid GridOfNodes(const Network& network, double reach);

// The first crossing of the outline's edges, in metres from its first corner: of the pairs of edges that do not
// follow each other the one with the lowest first and then the lowest second edge.
bool FindCrossing(const std::vector<model::Point>& corners, model::Point* crossing);

}  // namespace faults
