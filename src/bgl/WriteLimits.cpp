// WriteLimits.cpp - see WriteLimits.h. An index or a count that wrapped would tie links to the wrong nodes.
#include "bgl/WriteLimits.h"

#include <cstdio>
#include <set>

#include "bgl/AirportRecord.h"
#include "bgl/Cells.h"
#include "bgl/NavaidRecords.h"
#include "model/Limits.h"
#include "model/ObjectList.h"

namespace bgl {

namespace {

using model::kMostCounted;
using model::kMostEdgeLights;
using model::SceneryObject;

constexpr size_t kMostCells = 8;  // of one section

std::string TooMany(const char* what, size_t count, size_t most) {
    char text[200];
    std::snprintf(text, sizeof text, "ERROR: The airport has %zu %s.\nA scenery file can hold no more than %zu.", count,
                  what, most);
    return text;
}

struct KindLimit {
    uint32_t kind;
    size_t most;
    const char* name;
};
constexpr KindLimit kKindLimits[] = {
    { model::kRunway, kMostCounted, "runways" },
    { model::kCommFrequency, kMostCounted, "comm frequencies" },
    { model::kStartLocation, kMostCounted, "start locations" },
    { model::kHelipad, kMostCounted, "helipads" },
    { model::kApron, kMostCounted, "aprons" },
    { model::kTaxiNode, model::kMostNodes, "taxi nodes" },
    { model::kParkingSpot, model::kMostSpots, "parking spots" },
    { model::kTaxiLink, model::kMostLinks, "taxi links" },
    { model::kTaxiDesignator, model::kMostDesignators, "taxiway designators" },
};

// Navaids by the section that holds them.
enum NavaidGroup { kVors, kMarkers, kNdbs, kNavaidGroups };
constexpr const char* kGroupNames[kNavaidGroups] = { "ILS and VOR/DME navaids", "marker beacons", "NDBs" };

NavaidGroup GroupOf(const SceneryObject* navaid) {
    const uint32_t kind = KindOf(navaid);
    return kind == model::kMarkerBeacon ? kMarkers : kind == model::kNdb ? kNdbs : kVors;
}

struct Survey {
    size_t counts[model::kKindMask + 1] = {};  // without aprons that are being drawn
    std::set<uint32_t> cells[kNavaidGroups];
    const SceneryObject* edgeLights = nullptr;
};

Survey SurveyObjects() {
    Survey survey;
    for (const SceneryObject* object = model::state.head; object; object = object->next) {
        const uint32_t kind = KindOf(object);
        const bool isDrawn = kind == model::kApron && (object->flags & model::kOutlineOpen) != 0;
        if (!isDrawn) ++survey.counts[kind];
        if (IsNavaid(object) && !IsStock(object)) survey.cells[GroupOf(object)].insert(CellOf(KeyOf(object).position));
        if (kind == model::kApronEdgeLights && !survey.edgeLights) survey.edgeLights = object;
    }
    return survey;
}

std::string TooManyCells(const char* what, size_t cells) {
    char text[200];
    std::snprintf(text, sizeof text,
                  "ERROR: The %s of the airport lie in %zu grid cells.\nA scenery file can hold no more than %zu.",
                  what, cells, kMostCells);
    return text;
}

std::string EdgeLightsThatDoNotFit(const SceneryObject* edgeLights) {
    const EdgeTables tables = MakeEdgeTables(edgeLights);
    if (tables.edgeCount > kMostEdgeLights)
        return TooMany("strips of apron edge lights", tables.edgeCount, kMostEdgeLights);
    if (tables.vertexCount > kMostEdgeLights)
        return TooMany("end points of apron edge lights", tables.vertexCount, kMostEdgeLights);
    return {};
}

}  // namespace

std::string WhatDoesNotFit() {
    const Survey survey = SurveyObjects();
    for (const KindLimit& limit : kKindLimits) {
        const size_t count = survey.counts[limit.kind];
        if (count > limit.most) return TooMany(limit.name, count, limit.most);
    }
    for (int group = 0; group < kNavaidGroups; ++group) {
        const size_t cells = survey.cells[group].size();
        if (cells > kMostCells) return TooManyCells(kGroupNames[group], cells);
    }
    return survey.edgeLights ? EdgeLightsThatDoNotFit(survey.edgeLights) : std::string();
}

}  // namespace bgl
