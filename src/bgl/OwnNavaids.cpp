// OwnNavaids.cpp - reads the navaids of an airport's own file back into the order in which they were written.
//
// A section lists its navaids cell by cell, its index lists them by identifier, and those of one identifier
// in the order of the object list. Both are parts of one order, which is put together here: a navaid may
// follow when it is next in its cell and next among those of its identifier.
#include <algorithm>
#include <map>
#include <string>
#include <vector>

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

// What is taken from its front, one after the other.
template <class T>
struct Queue {
    std::vector<T> items;
    size_t taken = 0;
};
template <class T>
bool IsEmpty(const Queue<T>& queue) {
    return queue.taken == queue.items.size();
}
template <class T>
const T& Front(const Queue<T>& queue) {
    return queue.items[queue.taken];
}

using Cells = std::vector<Queue<SceneryObject*>>;        // those that hold something
using Index = std::map<std::string, Queue<IndexEntry>>;  // by identifier

constexpr size_t kMostCells = 64;  // our own files have eight; with more the file's order has to do

std::string TextOf(uint32_t ident) { return model::UnpackIdent(ident >> model::kIdentShift); }

Cells ReadCells(SceneryStructure* file, uint32_t sectionType) {
    Cells cells;
    size_t subsection = 0;  // that of the last cell
    const auto all = [](uint32_t) { return true; };
    WalkNavaids(file, { sectionType }, all, [&](const NavaidRecord& record) {
        SceneryObject* navaid = MakeNavaid(record.head, record.body);
        if (!navaid) return;
        if (cells.empty() || record.subsection != subsection) cells.emplace_back();
        subsection = record.subsection;
        cells.back().items.push_back(navaid);
    });
    return cells;
}

Index ReadIndex(SceneryStructure* file, uint32_t sectionType) {
    Index index;
    for (const SectionEntry& section : file->sections) {
        if (section.type != sectionType) continue;
        for (const SubsectionEntry& subsection : ReadSubsections(file, section)) {
            if (!CoverRecords(file, subsection)) return index;
            const std::vector<uint8_t> bytes = ReadStretch(file->source, subsection.offset, subsection.size);
            ByteReader reader{ bytes };
            IndexEntry entry;
            while (Take(&reader, &entry)) index[TextOf(entry.ident)].items.push_back(entry);
        }
    }
    return index;
}

IndexEntry EntryOf(const SceneryObject* navaid) {
    const NavaidKey key = KeyOf(navaid);
    return { key.ident, key.region, static_cast<uint16_t>(key.position.longitude >> 21),
             static_cast<uint16_t>(key.position.latitude >> 21) };
}

// The entries of the navaid's identifier that are left; null when there are none.
Queue<IndexEntry>* EntriesFor(const SceneryObject* navaid, Index* index) {
    const auto found = index->find(TextOf(EntryOf(navaid).ident));
    return found == index->end() || IsEmpty(found->second) ? nullptr : &found->second;
}

bool IsNext(const SceneryObject* navaid, Index* index) {
    const Queue<IndexEntry>* entries = EntriesFor(navaid, index);
    return !entries || Front(*entries) == EntryOf(navaid);
}

void Append(Queue<SceneryObject*>* cell, Index* index) {
    SceneryObject* navaid = cell->items[cell->taken++];
    model::AppendObject(navaid);
    Queue<IndexEntry>* entries = EntriesFor(navaid, index);
    if (entries && Front(*entries) == EntryOf(navaid)) ++entries->taken;
}

void AppendInOrder(Cells* cells, Index* index) {
    auto first = cells->begin();
    for (;;) {
        while (first != cells->end() && IsEmpty(*first)) ++first;
        if (first == cells->end()) return;
        const auto next = std::find_if(first, cells->end(),
                                       [&](const auto& cell) { return !IsEmpty(cell) && IsNext(Front(cell), index); });
        Append(next == cells->end() ? &*first : &*next, index);  // a damaged index stops nothing
    }
}

void AppendSection(SceneryStructure* file, uint32_t sectionType, uint32_t indexType) {
    Cells cells = ReadCells(file, sectionType);
    Index index;
    if (cells.size() <= kMostCells && indexType != 0) index = ReadIndex(file, indexType);
    AppendInOrder(&cells, &index);
}

}  // namespace

void AppendOwnNavaids(SceneryStructure* file) {
    AppendSection(file, kVorSection, kVorIndexSection);
    AppendSection(file, kMarkerSection, 0);
    AppendSection(file, kNdbSection, kNdbIndexSection);
}

}  // namespace bgl
