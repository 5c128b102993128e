// WriteLimits.cpp - see WriteLimits.h. An index or a count that wrapped would tie links to the wrong nodes.
#include "bgl/WriteLimits.h"

#include <cstdio>
#include <set>

#include "bgl/AirportRecord.h"
#include "bgl/Cells.h"
#include "bgl/NavaidRecords.h"
#include "model/ObjectList.h"

namespace bgl {

namespace {

using model::SceneryObject;

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
    { model::kTaxiNode, kMostNodes, "taxi nodes" },
    { model::kParkingSpot, kMostSpots, "parking spots" },
    { model::kTaxiLink, kMostLinks, "taxi links" },
    { model::kTaxiDesignator, kMostDesignators, "taxiway designators" },
};

struct CellLimit {
    uint32_t kinds[2];
    const char* name;
};
constexpr CellLimit kCellLimits[] = {
    { { model::kIls, model::kVorDme }, "ILS and VOR/DME navaids" },
    { { model::kMarkerBeacon, 0 }, "marker beacons" },
    { { model::kNdb, 0 }, "NDBs" },
};

std::string CellsThatDoNotFit(const CellLimit& limit) {
    std::set<uint32_t> cells;
    for (const SceneryObject* object = model::state.head; object; object = object->next) {
        const uint32_t kind = KindOf(object);
        if ((kind != limit.kinds[0] && kind != limit.kinds[1]) || IsStock(object)) continue;
        cells.insert(CellOf(KeyOf(object).position));
    }
    if (cells.size() <= kMostCells) return {};
    char text[200];
    std::snprintf(text, sizeof text,
                  "ERROR: The %s of the airport lie in %zu grid cells.\nA scenery file can hold no more than %zu.",
                  limit.name, cells.size(), kMostCells);
    return text;
}

std::string EdgeLightsThatDoNotFit() {
    const SceneryObject* edgeLights = model::FirstOfKind(model::state.head, model::kApronEdgeLights);
    if (!edgeLights) return {};
    const EdgeTables tables = MakeEdgeTables(edgeLights);
    if (tables.edgeCount > kMostEdgeLights)
        return TooMany("strips of apron edge lights", tables.edgeCount, kMostEdgeLights);
    if (tables.vertexCount > kMostEdgeLights)
        return TooMany("end points of apron edge lights", tables.vertexCount, kMostEdgeLights);
    return {};
}

}  // namespace

std::string WhatDoesNotFit() {
    size_t counts[model::kKindMask + 1] = {};
    for (const SceneryObject* object = model::state.head; object; object = object->next) {
        const bool isDrawn = KindOf(object) == model::kApron && (object->flags & model::kOutlineOpen) != 0;
        if (!isDrawn) ++counts[KindOf(object)];
    }
    for (const KindLimit& limit : kKindLimits) {
        if (counts[limit.kind] > limit.most) return TooMany(limit.name, counts[limit.kind], limit.most);
    }
    for (const CellLimit& limit : kCellLimits) {
        const std::string refusal = CellsThatDoNotFit(limit);
        if (!refusal.empty()) return refusal;
    }
    return EdgeLightsThatDoNotFit();
}

}  // namespace bgl
