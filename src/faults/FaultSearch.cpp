// FaultSearch.cpp - the table of checks and what runs them.
//
// The airport is read once for each fresh start of a check; a check that goes on uses what was read then. That
// holds because every edit changes the model's edit mark and so leads to a fresh start.
#include "faults/FaultSearch.h"

#include <algorithm>

#include "model/ObjectList.h"

namespace faults {

namespace {

struct Check {
    const char* name;
    void (*prepare)(PassData* data);  // null when there is nothing to prepare
    bool (*find)(const PassData& data, size_t from, Finding* finding);
    uint32_t mark;  // flag that the check gives to objects, cleared when it starts afresh; 0 for none
};

// In the order in which faults are told.
constexpr Check kChecks[] = {
    { "Hold Short Limits", nullptr, FindHoldShortFault, 0 },
    { "Open Links", PrepareOpenLinks, FindOpenLink, kPairMark },
    { "Isolated Segments", PrepareSegments, FindIsolation, kSegmentMark },
    { "Overlapping Nodes", PrepareOverlaps, FindOverlap, kPairMark },
    { "Default Start Locations", PrepareStartLocations, FindMissingStart, 0 },
    { "Runway Links", nullptr, FindRunwayLinkFault, 0 },
    { "Apron Polygons", nullptr, FindCrossedApron, 0 },
};
static_assert(sizeof kChecks / sizeof kChecks[0] == kCheckCount);

void ClearMark(uint32_t mark) {
    if (mark == 0) return;
    for (SceneryObject* object = model::state.head; object; object = object->next) object->flags &= ~mark;
}

void StartCheck(const Check& check, FaultSearch* search) {
    search->resumeAt = 0;
    search->data.marked.clear();
    ClearMark(check.mark);
    if (check.prepare) check.prepare(&search->data);
    for (SceneryObject* object : search->data.marked) object->flags |= check.mark;
}

bool RunCheck(const Check& check, FaultSearch* search, FaultReport* report) {
    if (!search->resumeCheck) StartCheck(check, search);
    Finding finding;
    if (!check.find(search->data, search->resumeAt, &finding)) return false;
    search->resumeAt = finding.resumeAt;
    if (finding.mark) finding.mark->flags |= check.mark;
    *report = std::move(finding.report);
    return true;
}

void NoticeEdits(FaultSearch* search) {
    if (search->lastEditMark == model::state.editMark) return;
    search->lastEditMark = model::state.editMark;
    search->anyFaultFound = false;
    search->resumeCheck = false;  // the check that was reached stays
}

}  // namespace

SearchResult FindNextFault(FaultSearch* search, FaultReport* report) {
    NoticeEdits(search);
    if (!search->resumeCheck) {
        search->data = PassData{};
        search->data.network = ReadNetwork();
    }
    while (search->checkIndex < kCheckCount) {
        const auto index = static_cast<size_t>(search->checkIndex);
        if (search->switches[index] && RunCheck(kChecks[index], search, report)) {
            search->resumeCheck = true;
            search->anyFaultFound = true;
            return SearchResult::Fault;
        }
        ++search->checkIndex;
        search->resumeCheck = false;
    }
    const bool any = search->anyFaultFound;
    StartOver(search);
    return any ? SearchResult::NoMoreFaults : SearchResult::NoFaults;
}

void StartOver(FaultSearch* search) {
    search->checkIndex = 0;
    search->resumeCheck = false;
    search->anyFaultFound = false;
    search->data = PassData{};
}

void DropLists(FaultSearch* search) {
    if (search->checkIndex == static_cast<int>(FaultCheck::IsolatedSegments)) {
        search->resumeAt -= std::min(search->resumeAt, search->data.segments.told.size());  // it counts them first
    }
    search->data.segments = {};
    search->data.missingStarts.clear();
}

const char* CheckName(FaultCheck check) { return kChecks[static_cast<size_t>(check)].name; }

}  // namespace faults
