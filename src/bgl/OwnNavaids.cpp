// OwnNavaids.cpp - reads the navaids of an airport's own file back into the order in which they were written.
//
// A section lists its navaids cell by cell, its index lists them by identifier, and those of one identifier
// in the order of the object list. Both are parts of one order, which is put together here: a navaid may
// follow when it is next in its cell and next among those of its identifier.
#include <algorithm>
#include <deque>
#include <map>
#include <string>

#include "bgl/NavaidRecords.h"
#include "bgl/Navaids.h"
#include "bgl/RecordIds.h"
#include "model/Ident.h"
#include "model/ObjectList.h"

namespace bgl {

namespace {

using model::SceneryObject;

#pragma pack(push, 1)
struct IndexEntry {
    uint32_t ident, region;
    uint16_t column, row;
    bool operator==(const IndexEntry&) const = default;
};
#pragma pack(pop)
static_assert(sizeof(IndexEntry) == 12);

using Cells = std::vector<std::deque<SceneryObject*>>;
using Index = std::map<std::string, std::deque<IndexEntry>>;  // by identifier

constexpr size_t kMostCells = 64;  // our own files have eight; with more the file's order has to do

std::string TextOf(uint32_t ident) { return model::UnpackIdent(ident >> model::kIdentShift); }

Cells ReadCells(SceneryFile* file, uint32_t sectionType) {
    Cells cells;
    WalkNavaids(
        file, sectionType, [](uint32_t) { return true; },
        [&](const NavaidRecord& record) {
            SceneryObject* navaid = MakeNavaid(record.head, record.body);
            if (!navaid) return;
            if (cells.size() <= record.subsection) cells.resize(record.subsection + 1);
            cells[record.subsection].push_back(navaid);
        });
    return cells;
}

Index ReadIndex(SceneryFile* file, uint32_t sectionType) {
    Index index;
    for (const SectionEntry& section : file->sections) {
        if (section.type != sectionType) continue;
        for (const SubsectionEntry& subsection : ReadSubsections(file, section)) {
            if (!CoverRecords(file, subsection)) return index;
            const std::vector<uint8_t> bytes = ReadStretch(file->source, subsection.offset, subsection.size);
            ByteReader reader{ bytes };
            IndexEntry entry;
            while (Take(&reader, &entry)) index[TextOf(entry.ident)].push_back(entry);
        }
    }
    return index;
}

IndexEntry EntryOf(const SceneryObject* navaid) {
    const NavaidKey key = KeyOf(navaid);
    return { key.ident, key.region, static_cast<uint16_t>(key.position.longitude >> 21),
             static_cast<uint16_t>(key.position.latitude >> 21) };
}

bool IsNext(const SceneryObject* navaid, const Index& index) {
    const IndexEntry entry = EntryOf(navaid);
    const auto found = index.find(TextOf(entry.ident));
    return found == index.end() || found->second.empty() || found->second.front() == entry;
}

void Append(std::deque<SceneryObject*>* cell, Index* index) {
    SceneryObject* navaid = cell->front();
    cell->pop_front();
    model::AppendObject(navaid);
    const IndexEntry entry = EntryOf(navaid);
    const auto found = index->find(TextOf(entry.ident));
    if (found != index->end() && !found->second.empty() && found->second.front() == entry) found->second.pop_front();
}

void AppendInOrder(Cells* cells, Index* index) {
    auto first = cells->begin();
    for (;;) {
        while (first != cells->end() && first->empty()) ++first;
        if (first == cells->end()) return;
        const auto next = std::find_if(first, cells->end(),
                                       [&](const auto& cell) { return !cell.empty() && IsNext(cell.front(), *index); });
        Append(next == cells->end() ? &*first : &*next, index);  // a damaged index stops nothing
    }
}

void AppendSection(SceneryFile* file, uint32_t sectionType, uint32_t indexType) {
    Cells cells = ReadCells(file, sectionType);
    Index index;
    if (cells.size() <= kMostCells && indexType != 0) index = ReadIndex(file, indexType);
    AppendInOrder(&cells, &index);
}

}  // namespace

void AppendOwnNavaids(SceneryFile* file) {
    AppendSection(file, kVorSection, kVorIndexSection);
    AppendSection(file, kMarkerSection, 0);
    AppendSection(file, kNdbSection, kNdbIndexSection);
}

}  // namespace bgl
