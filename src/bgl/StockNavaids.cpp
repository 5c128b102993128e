// StockNavaids.cpp - the simulator's own navaids around the airport, and what stands in their place.
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
    uint32_t airportIdent = 0;  // its low five bits cleared
};

StockArea AreaAround(const SceneryObject* airport) {
    const auto rect = [&](double miles) {
        return RectAround(model::PositionOf(airport), miles * model::kMetresPerNauticalMile);
    };
    const uint32_t ident = model::PayloadAs<model::AirportRecord>(airport).ident;
    return { rect(3), rect(11), rect(26), ident & ~model::kIdentLowBits };
}

// An ILS names its airport in the upper 21 bits of its region word, as the packed identifier.
bool BelongsTo(uint32_t regionWord, uint32_t airportIdent) {
    return airportIdent != 0 && (regionWord >> 6 & 0x3FFFFE0) == airportIdent;
}

bool IsWanted(const SceneryObject* navaid, const StockArea& area) {
    const NavaidKey key = KeyOf(navaid);
    switch (KindOf(navaid)) {
    case model::kIls: return Contains(area.near, key.position) || BelongsTo(key.region, area.airportIdent);
    case model::kMarkerBeacon: return Contains(area.middle, key.position);
    default: return Contains(area.far, key.position);
    }
}

void AppendFromFile(SceneryFile* file, const StockArea& area) {
    const auto intersects = [&](uint32_t cell) { return Intersects(RectOfCell(cell), area.far); };
    for (uint32_t type : { kVorSection, kNdbSection, kMarkerSection }) {
        WalkNavaids(file, type, intersects, [&](const NavaidRecord& record) {
            SceneryObject* navaid = MakeNavaid(record.head, record.body);
            if (!navaid) return;
            if (!IsWanted(navaid, area)) return model::FreeObject(navaid);
            navaid->flags |= model::kStock;
            model::AppendObject(navaid);
        });
    }
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

bool SameNavaid(const SceneryObject* a, const SceneryObject* b) {
    if (KindOf(a) != KindOf(b)) return false;
    const NavaidKey keyA = KeyOf(a), keyB = KeyOf(b);
    return keyA.ident >> model::kIdentShift == keyB.ident >> model::kIdentShift && keyA.region == keyB.region;
}

// An end of a runway may share its ILS identifier with the other: the nearest one is meant.
SceneryObject* NearestStock(const std::vector<SceneryObject*>& stock, const SceneryObject* own) {
    SceneryObject* nearest = nullptr;
    double distance = 0;
    for (SceneryObject* candidate : stock) {
        if (candidate->related || !SameNavaid(candidate, own)) continue;
        const double d = model::DistanceBetween(model::PositionOf(own), model::PositionOf(candidate));
        if (nearest && d >= distance) continue;
        nearest = candidate;
        distance = d;
    }
    return nearest;
}

}  // namespace

void WalkNavaids(SceneryFile* file, uint32_t sectionType, const std::function<bool(uint32_t)>& wanted,
                 const std::function<void(const NavaidRecord&)>& visit) {
    NavaidRecord record;
    for (const SectionEntry& section : file->sections) {
        if (section.type != sectionType) continue;
        for (const SubsectionEntry& subsection : ReadSubsections(file, section)) {
            if (!wanted(subsection.id)) continue;
            if (!CoverRecords(file, subsection)) return;
            const std::vector<uint8_t> bytes = ReadStretch(file->source, subsection.offset, subsection.size);
            WalkRecords(bytes, [&](const RecordHead& head, Bytes body) {
                record.head = head;
                record.body = body;
                visit(record);
            });
            ++record.subsection;
        }
    }
}

void AppendStockNavaids(SceneryFile* file) {
    if (model::state.airport) AppendFromFile(file, AreaAround(model::state.airport));
}

void TieReplacements() {
    std::vector<SceneryObject*> stock, own;
    for (SceneryObject* object = model::state.head; object; object = object->next) {
        if (!IsNavaid(object) || object->related) continue;
        const bool isNameless = KeyOf(object).ident >> model::kIdentShift == 0;  // it names no other, either
        if (!isNameless) (IsStock(object) ? stock : own).push_back(object);
    }
    for (SceneryObject* replacement : own) {
        SceneryObject* replaced = NearestStock(stock, replacement);
        if (!replaced) continue;
        replaced->related = replacement;
        replacement->related = replaced;
    }
}

void LoadStockNavaids(const std::string& simulatorFolder) {
    if (!model::state.airport) return;
    const StockArea area = AreaAround(model::state.airport);
    for (const std::string& path : StockFilesAt(simulatorFolder, ProbePoints(model::state.airport, area.far))) {
        const platform::FileHandle handle = platform::OpenForReading(path);
        SceneryFile file;
        if (handle && ReadStructure(SourceOfFile(handle.get()), &file)) AppendFromFile(&file, area);
    }
    TieReplacements();
}

}  // namespace bgl
