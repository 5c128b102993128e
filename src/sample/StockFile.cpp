// StockFile.cpp - see StockFile.h.
#include "sample/StockFile.h"

#include <algorithm>

#include "bgl/AirportRecord.h"
#include "bgl/Cells.h"
#include "bgl/NavaidRecords.h"
#include "bgl/WriteLimits.h"
#include "model/Ident.h"
#include "model/ObjectList.h"

namespace sample {

namespace {

constexpr int kCellShift = 21;

// An editor's airport carries a record that deletes the stock one it stands for; a stock airport has none.
void AppendWithoutDelete(bgl::Bytes record, bgl::ByteWriter* out) {
    const size_t start = bgl::BeginRecord(out, bgl::kAirportRecord);
    bgl::PutBytes(out, record.data() + bgl::kRecordHeadSize, sizeof(model::AirportRecord));
    bgl::WalkRecords(record.subspan(bgl::kRecordHeadSize + sizeof(model::AirportRecord)),
                     [&](const bgl::RecordHead& head, bgl::Bytes body) {
                         if (head.id != bgl::kDeleteAirportRecord)
                             bgl::PutRecord(out, head.id, body.data(), body.size());
                     });
    bgl::EndRecord(out, start);
}

bgl::SectionContent IndexContent(uint32_t type, std::vector<IndexedNavaid> entries) {
    bgl::SectionContent section{ type, bgl::kIdentIndex, {} };
    if (entries.empty()) return section;
    std::ranges::stable_sort(entries, {}, &IndexedNavaid::ident);
    bgl::SubsectionContent* subsection = bgl::SubsectionOf(&section, bgl::kIndexSubsectionId);
    subsection->recordCount = static_cast<uint32_t>(entries.size());
    for (const IndexedNavaid& entry : entries) {
        bgl::Put(&subsection->records, entry.identWord);
        bgl::Put(&subsection->records, entry.regionWord);
        bgl::Put(&subsection->records, static_cast<uint16_t>(entry.position.longitude >> kCellShift));
        bgl::Put(&subsection->records, static_cast<uint16_t>(entry.position.latitude >> kCellShift));
    }
    return section;
}

bgl::SectionContent* SectionFor(StockFile* file, uint32_t kind) {
    if (kind == model::kMarkerBeacon) return &file->markers;
    return kind == model::kNdb ? &file->ndbs : &file->vors;
}

}  // namespace

bool AddModelAirport(StockFile* file, std::string* error) {
    *error = bgl::WhatDoesNotFit();
    if (!error->empty()) return false;
    bgl::ByteWriter record;
    bgl::WriteAirportRecord(&record);
    const auto& airport = model::PayloadAs<model::AirportRecord>(model::state.airport);
    const model::EncodedPoint position{ airport.longitude, airport.latitude };
    bgl::SubsectionContent* subsection = bgl::SubsectionOf(&file->airports, bgl::CellOf(position));
    ++subsection->recordCount;
    AppendWithoutDelete(record.bytes, &subsection->records);
    file->names.push_back(
        { model::state.country, model::state.state, model::state.city, model::AirportName(), airport.ident, position });
    model::ForEachOfKind(model::kIls, [&](model::SceneryObject* ils) { AddNavaid(file, ils); });
    return true;
}

void AddNavaid(StockFile* file, model::SceneryObject* navaid) {
    const bgl::NavaidKey key = bgl::KeyOf(navaid);
    const uint32_t kind = model::KindOf(navaid);
    bgl::SubsectionContent* subsection = bgl::SubsectionOf(SectionFor(file, kind), bgl::CellOf(key.position));
    ++subsection->recordCount;
    bgl::WriteNavaid(navaid, &subsection->records);
    if (kind == model::kMarkerBeacon) return;
    std::vector<IndexedNavaid>& index = kind == model::kNdb ? file->ndbIndex : file->vorIndex;
    index.push_back({ model::UnpackIdent(key.ident >> model::kIdentShift), key.ident, key.region, key.position });
}

bool IsEmpty(const StockFile& file) {
    return file.airports.subsections.empty() && file.vors.subsections.empty() && file.markers.subsections.empty() &&
           file.ndbs.subsections.empty();
}

bool BuildStockFile(const StockFile& file, std::vector<uint8_t>* bytes) {
    bgl::SectionContent names{ bgl::kNameListSection, bgl::kNameList, {} };
    if (!file.names.empty()) {
        bgl::SubsectionContent* subsection = bgl::SubsectionOf(&names, bgl::kIndexSubsectionId);
        subsection->recordCount = 1;
        if (!bgl::WriteNameList(file.names, &subsection->records)) return false;
    }
    const bgl::SectionContent sections[] = { file.airports,
                                             file.vors,
                                             file.markers,
                                             file.ndbs,
                                             IndexContent(bgl::kVorIndexSection, file.vorIndex),
                                             IndexContent(bgl::kNdbIndexSection, file.ndbIndex),
                                             names };
    *bytes = bgl::AssembleFile(sections, kSampleFileTime);
    return true;
}

}  // namespace sample
