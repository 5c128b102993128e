// NameList.cpp - see NameList.h.
#include "bgl/NameList.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <unordered_map>

#include "bgl/Cells.h"
#include "bgl/RecordIds.h"
#include "model/Ident.h"

namespace bgl {

namespace {

enum StringList { kRegions, kCountries, kStates, kCities, kNames, kStringLists };

#pragma pack(push, 1)
struct NameListHead {
    uint16_t id = kNameListRecord;
    uint32_t size = 0;
    uint16_t counts[kStringLists] = {};
    uint16_t airportCount = 0;
    uint32_t offsets[kStringLists] = {};  // from the start of the record
    uint32_t airportsOffset = 0;
};
struct AirportEntry {
    uint8_t region, country;
    uint16_t state;  // in bits 4 to 15
    uint16_t city, name;
    uint32_t ident, regionIdent;
    uint16_t column, row;
};
#pragma pack(pop)
static_assert(sizeof(NameListHead) == 42 && sizeof(AirportEntry) == 20);

constexpr int kStateShift = 4;
constexpr size_t kMostStrings[kStringLists] = { 256, 256, 4096, 65536, 65536 };

struct StringTable {
    std::vector<std::string> strings;
    std::unordered_map<std::string, size_t> numbers;
};

// The number of the string, which ends at its first zero.
size_t NumberOf(StringTable* table, const std::string& text) {
    const std::string ended = text.substr(0, text.find('\0'));
    const auto [place, isNew] = table->numbers.try_emplace(ended, table->strings.size());
    if (isNew) table->strings.push_back(ended);
    return place->second;
}

// An index of offsets, counted from its own end, then the strings.
void WriteStrings(const StringTable& table, ByteWriter* out) {
    uint32_t offset = 0;
    for (const std::string& text : table.strings) {
        Put(out, offset);
        offset += static_cast<uint32_t>(text.size() + 1);
    }
    for (const std::string& text : table.strings) PutBytes(out, text.c_str(), text.size() + 1);
}

std::string StringAt(Bytes bytes, const NameListHead& head, StringList list, uint32_t number) {
    const uint64_t count = head.counts[list], index = head.offsets[list];
    if (number >= count || index + 4 * count > bytes.size()) return {};
    const uint64_t start = index + 4 * count + ValueAt<uint32_t>(bytes, static_cast<size_t>(index) + 4 * number);
    if (start >= bytes.size()) return {};
    const char* first = reinterpret_cast<const char*>(bytes.data()) + start;
    const size_t most = bytes.size() - static_cast<size_t>(start);
    const void* end = std::memchr(first, 0, most);
    return { first, end ? static_cast<size_t>(static_cast<const char*>(end) - first) : most };
}

AirportEntry EntryAt(const NameListView& list, uint32_t index) {
    const auto head = ValueAt<NameListHead>(list.bytes, 0);
    return ValueAt<AirportEntry>(list.bytes, head.airportsOffset + index * sizeof(AirportEntry));
}

}  // namespace

bool WriteNameList(const std::vector<NamedAirport>& airports, ByteWriter* out) {
    StringTable tables[kStringLists];
    NumberOf(&tables[kRegions], "");
    std::vector<AirportEntry> entries;
    for (const NamedAirport& airport : airports) {
        const size_t country = NumberOf(&tables[kCountries], airport.country);
        const size_t state = NumberOf(&tables[kStates], airport.state);
        const size_t city = NumberOf(&tables[kCities], airport.city);
        const size_t name = NumberOf(&tables[kNames], airport.name);
        entries.push_back({ 0, static_cast<uint8_t>(country), static_cast<uint16_t>(state << kStateShift),
                            static_cast<uint16_t>(city), static_cast<uint16_t>(name), airport.ident, 0,
                            static_cast<uint16_t>(CellColumn(airport.position.longitude)),
                            static_cast<uint16_t>(CellRow(airport.position.latitude)) });
    }
    if (entries.size() > UINT16_MAX) return false;
    NameListHead head;
    for (int list = 0; list < kStringLists; ++list) {
        const size_t count = tables[list].strings.size();
        if (count > kMostStrings[list] || count > UINT16_MAX) return false;
        head.counts[list] = static_cast<uint16_t>(count);
    }
    head.airportCount = static_cast<uint16_t>(entries.size());
    const size_t start = out->bytes.size();
    Put(out, head);
    for (int list = 0; list < kStringLists; ++list) {
        head.offsets[list] = static_cast<uint32_t>(out->bytes.size() - start);
        WriteStrings(tables[list], out);
    }
    head.airportsOffset = static_cast<uint32_t>(out->bytes.size() - start);
    for (const AirportEntry& entry : entries) Put(out, entry);
    head.size = static_cast<uint32_t>(out->bytes.size() - start);
    PutAt(out, start, head);
    return true;
}

bool OpenNameList(Bytes subsection, NameListView* list) {
    if (subsection.size() < sizeof(NameListHead)) return false;
    const auto head = ValueAt<NameListHead>(subsection, 0);
    if (head.id != kNameListRecord) return false;
    const size_t left = subsection.size() - std::min<size_t>(head.airportsOffset, subsection.size());
    list->bytes = subsection;
    list->airportCount = static_cast<uint32_t>(std::min<size_t>(head.airportCount, left / sizeof(AirportEntry)));
    return true;
}

NamedAirport NameListEntry(const NameListView& list, uint32_t index) {
    const auto head = ValueAt<NameListHead>(list.bytes, 0);
    const AirportEntry entry = EntryAt(list, index);
    NamedAirport airport;
    airport.country = StringAt(list.bytes, head, kCountries, entry.country);
    airport.state = StringAt(list.bytes, head, kStates, uint32_t{ entry.state } >> kStateShift);
    airport.city = StringAt(list.bytes, head, kCities, entry.city);
    airport.name = StringAt(list.bytes, head, kNames, entry.name);
    airport.ident = entry.ident;
    return airport;
}

// The low bits of an ident word tell the kind of object; some compilers leave them out of the list.
bool FindNames(SceneryStructure* file, uint32_t ident, NamedAirport* names) {
    bool found = false;
    for (const SectionEntry& section : file->sections) {
        if ((section.sectionClass & 0xFFFF) != kNameList) continue;  // whatever its type, as for the airport index
        for (const SubsectionEntry& subsection : ReadSubsections(file, section)) {
            if (!CoverRecords(file, subsection)) return found;
            const std::vector<uint8_t> bytes = ReadStretch(file->source, subsection.offset, subsection.size);
            NameListView list;
            if (!OpenNameList(bytes, &list)) continue;
            for (uint32_t i = 0; i < list.airportCount; ++i) {
                const uint32_t entry = EntryAt(list, i).ident;
                const bool isSame = entry == ident;
                if (!isSame && (found || entry >> model::kIdentShift != ident >> model::kIdentShift)) continue;
                *names = NameListEntry(list, i);
                if (isSame) return true;
                found = true;
            }
        }
    }
    return found;
}

}  // namespace bgl
