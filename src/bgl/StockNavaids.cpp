// StockNavaids.cpp - the simulator's own navaids around the airport, and what stands in their place.
#include <algorithm>
#include <string>
#include <vector>

#include "bgl/Cells.h"
#include "bgl/NavaidRecords.h"
#include "bgl/Navaids.h"
#include "bgl/OpenAirport.h"
#include "bgl/RecordIds.h"
#include "bgl/StockFiles.h"
#include "model/Geodesy.h"
#include "model/Ident.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "platform/Files.h"

namespace bgl {

namespace {

using model::SceneryObject;

struct StockArea {
    CodeRect near, middle, far;
    uint32_t airportIdent = 0;  // the word of the Airport record
};

StockArea AreaAround(const SceneryObject* airport) {
    const auto rect = [&](double miles) {
        return RectAround(model::PositionOf(airport), miles * model::kMetresPerNauticalMile);
    };
    const uint32_t ident = model::PayloadAs<model::AirportRecord>(airport).ident;
    return { rect(3), rect(11), rect(26), ident };
}

bool BelongsTo(uint32_t regionWord, uint32_t airportIdent) {
    return model::RegionWordWithAirport(0, airportIdent) != 0 &&
           model::RegionWordNamesAirport(regionWord, airportIdent);
}

bool IsWanted(const SceneryObject* navaid, const StockArea& area) {
    const NavaidKey key = KeyOf(navaid);
    switch (KindOf(navaid)) {
    case model::kIls: return Contains(area.near, key.position) || BelongsTo(key.region, area.airportIdent);
    case model::kMarkerBeacon: return Contains(area.middle, key.position);
    default: return Contains(area.far, key.position);
    }
}

void AppendFromFile(SceneryStructure* file, const StockArea& area) {
    const auto intersects = [&](uint32_t cell) { return Intersects(RectOfCell(cell), area.far); };
    WalkNavaids(file, { kVorSection, kNdbSection, kMarkerSection }, intersects, [&](const NavaidRecord& record) {
        SceneryObject* navaid = MakeNavaid(record.head, record.body);
        if (!navaid) return;
        if (!IsWanted(navaid, area)) return model::FreeObject(navaid);
        navaid->flags |= model::kStock;
        model::AppendObject(navaid);
    });
}

// The airport itself and the corners of the largest rectangle.
std::vector<model::EncodedPoint> ProbePoints(const SceneryObject* airport, const CodeRect& area) {
    const model::BglPoint place = model::EncodedPositionOf(airport);
    std::vector<model::EncodedPoint> points = { { place.lonCode, place.latCode } };
    for (int64_t latitude : { area.north, area.south }) {
        for (int64_t longitude : { area.west, area.west + area.width })
            points.push_back({ static_cast<uint32_t>(longitude), static_cast<uint32_t>(latitude) });
    }
    return points;
}

bool IsNameless(const SceneryObject* navaid) { return KeyOf(navaid).ident >> model::kIdentShift == 0; }

double DistanceApart(const SceneryObject* a, const SceneryObject* b) {
    return model::DistanceBetween(model::PositionOf(a), model::PositionOf(b));
}

bool MayReplace(const SceneryObject* own, const SceneryObject* stock) {
    if (KindOf(own) != KindOf(stock)) return false;
    const NavaidKey a = KeyOf(own), b = KeyOf(stock);
    const bool nameless = IsNameless(own);
    if (a.ident >> model::kIdentShift != b.ident >> model::kIdentShift || a.region != b.region) return false;
    const bool needsPlace = nameless || KindOf(own) == model::kMarkerBeacon;
    return !needsPlace || DistanceApart(own, stock) <= kSamePlace;
}

struct Pair {
    double distance = 0;
    SceneryObject* own = nullptr;
    SceneryObject* stock = nullptr;
};

// Both ends of a runway may share an ILS identifier, so an object may occur in several pairs.
std::vector<Pair> PossiblePairs(const std::vector<SceneryObject*>& own, const std::vector<SceneryObject*>& stock) {
    std::vector<Pair> pairs;
    for (SceneryObject* replacement : own) {
        for (SceneryObject* replaced : stock) {
            if (MayReplace(replacement, replaced))
                pairs.push_back({ DistanceApart(replacement, replaced), replacement, replaced });
        }
    }
    const auto nearer = [](const Pair& a, const Pair& b) { return a.distance < b.distance; };
    std::stable_sort(pairs.begin(), pairs.end(), nearer);
    return pairs;
}

}  // namespace

void AppendStockNavaids(SceneryStructure* file) {
    if (model::state.airport) AppendFromFile(file, AreaAround(model::state.airport));
}

void TieReplacements() {
    std::vector<SceneryObject*> stock, own;
    for (SceneryObject* object = model::state.head; object; object = object->next) {
        if (IsNavaid(object) && !object->related) (IsStock(object) ? stock : own).push_back(object);
    }
    for (const Pair& pair : PossiblePairs(own, stock)) {
        if (pair.own->related || pair.stock->related) continue;
        pair.own->related = pair.stock;
        pair.stock->related = pair.own;
    }
}

void LoadStockNavaids(const std::string& simulatorFolder) {
    if (!model::state.airport) return;
    const StockArea area = AreaAround(model::state.airport);
    for (const std::string& path : StockFilesAt(simulatorFolder, ProbePoints(model::state.airport, area.far))) {
        const platform::FileHandle handle = platform::OpenForReading(path);
        SceneryStructure file;
        if (handle && ReadStructure(SourceOfFile(handle.get()), &file)) AppendFromFile(&file, area);
    }
    TieReplacements();
}

}  // namespace bgl
