// SceneryStructure.cpp - see SceneryStructure.h.
#include "bgl/SceneryStructure.h"

#include <algorithm>
#include <cstring>

#include "bgl/RecordIds.h"
#include "model/Ident.h"
#include "model/Records.h"
#include "platform/Text.h"

namespace bgl {

namespace {

constexpr uint64_t kLongestStretch = 64 << 20;  // the largest stock file is a tenth of that
constexpr uint64_t kSectionCountOffset = 20;
constexpr size_t kIndexedCharacters = 4;  // of an identifier; the records have room for five

std::string_view LastComponent(std::string_view path) {
    const size_t separator = path.find_last_of("\\/");
    return separator == std::string_view::npos ? path : path.substr(separator + 1);
}

constexpr uint64_t kMostEntries = 1 << 20;  // of one table; the largest files have some thousands

// As many whole entries as were asked for and lie in the file.
template <class Entry>
std::vector<Entry> ReadTable(const ByteSource& source, uint64_t offset, uint64_t count) {
    if (offset >= source.size) return {};
    count = std::min(count, kMostEntries);
    std::vector<Entry> entries(static_cast<size_t>(std::min(count, (source.size - offset) / sizeof(Entry))));
    const size_t got = ReadSource(source, offset, entries.data(), entries.size() * sizeof(Entry));
    entries.resize(got / sizeof(Entry));
    return entries;
}

#pragma pack(push, 1)
struct RecordStart {
    uint16_t id;
    uint32_t size;
    model::AirportRecord airport;
};
#pragma pack(pop)

// Bytes that were read ahead. Records may be tiny, and then thousands of heads come with one reading; mostly they
// are large, and reading more ahead would be in vain.
constexpr size_t kAhead = 4096;
struct Window {
    uint64_t offset = 0;
    size_t size = 0;
    uint8_t bytes[kAhead];
};

// Up to `size` bytes at the offset, fewer at the end of the source.
Bytes ReadAhead(const ByteSource& source, uint64_t offset, size_t size, Window* window) {
    const bool held = offset >= window->offset && offset + size <= window->offset + window->size;
    if (!held) {
        window->offset = offset;
        window->size = ReadSource(source, offset, window->bytes, sizeof window->bytes);
    }
    const size_t at = static_cast<size_t>(offset - window->offset);
    return { window->bytes + at, std::min(size, window->size - at) };
}

// A search for an identifier, or for any airport when it is empty.
struct Search {
    std::string_view ident;
    bool hasSimilar = false;
    AirportPlace similar;  // the first that shares the characters of an index entry, in case none has them all
    Window window;
};

bool IsSimilar(std::string_view found, std::string_view wanted) {
    return platform::EqualNoCase(found.substr(0, kIndexedCharacters), wanted.substr(0, kIndexedCharacters));
}

// Walks the heads of the records between `offset` and `end` for the wanted airport.
bool FindInRecords(const ByteSource& source, uint64_t offset, uint64_t end, Search* search, AirportPlace* place) {
    while (offset + kRecordHeadSize <= end) {
        const size_t wanted = static_cast<size_t>(std::min<uint64_t>(sizeof(RecordStart), end - offset));
        const Bytes bytes = ReadAhead(source, offset, wanted, &search->window);
        RecordStart start = {};
        std::copy(bytes.begin(), bytes.end(), reinterpret_cast<uint8_t*>(&start));
        if (bytes.size() < kRecordHeadSize || start.size < kRecordHeadSize) return false;
        if (start.id == kAirportRecord) {
            if (bytes.size() < sizeof start || start.size < sizeof start) return false;
            const std::string found = model::UnpackIdent(start.airport.ident >> model::kIdentShift);
            const AirportPlace here = { place->path, offset, start.size, found };
            if (search->ident.empty() || platform::EqualNoCase(found, search->ident)) {
                *place = here;
                return true;
            }
            if (!search->hasSimilar && IsSimilar(found, search->ident)) {
                search->similar = here;
                search->hasSimilar = true;
            }
        }
        offset += start.size;
    }
    return false;
}

bool FindWhole(SceneryStructure* file, Search* search, AirportPlace* place) {
    for (const SectionEntry& section : file->sections) {
        if (section.type != kAirportSection || section.sectionClass != kByCell) continue;
        for (const SubsectionEntry& subsection : ReadSubsections(file, section)) {
            if (!CoverRecords(file, subsection)) return false;
            const uint64_t end = uint64_t{ subsection.offset } + subsection.size;
            if (FindInRecords(file->source, subsection.offset, end, search, place)) return true;
        }
    }
    return false;
}

}  // namespace

bool IsStockFileName(std::string_view path) {
    constexpr size_t kPrefix = 3, kDigits = 5;
    const std::string_view name = LastComponent(path);
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    return name.size() == kPrefix + kDigits + 4 && platform::EqualNoCase(name.substr(0, kPrefix), "AP9") &&
           std::all_of(name.begin() + kPrefix, name.begin() + kPrefix + kDigits, isDigit) &&
           platform::EqualNoCase(name.substr(kPrefix + kDigits), ".bgl");
}

bool IsOwnFileName(std::string_view path) { return platform::EqualNoCase(LastComponent(path).substr(0, 4), "TV2_"); }

ByteSource SourceOfFile(platform::OpenFile* file) { return { file, {}, platform::FileSize(file) }; }

ByteSource SourceOfBytes(Bytes bytes) { return { nullptr, bytes, bytes.size() }; }

size_t ReadSource(const ByteSource& source, uint64_t offset, void* buffer, size_t size) {
    if (source.file) return platform::ReadAt(source.file, offset, buffer, size);
    if (offset >= source.size) return 0;
    const size_t held = std::min(size, source.memory.size() - static_cast<size_t>(offset));
    if (held > 0) std::memcpy(buffer, source.memory.data() + offset, held);
    return held;
}

std::vector<uint8_t> ReadStretch(const ByteSource& source, uint64_t offset, uint64_t size) {
    if (offset >= source.size) return {};
    const uint64_t held = std::min(size, source.size - offset);
    if (held > kLongestStretch) return {};
    std::vector<uint8_t> bytes(static_cast<size_t>(held));
    bytes.resize(ReadSource(source, offset, bytes.data(), bytes.size()));
    return bytes;
}

bool ReadStructure(const ByteSource& source, SceneryStructure* file) {
    uint8_t header[kFileHeaderSize];
    if (ReadSource(source, 0, header, sizeof header) < sizeof header) return false;
    if (ValueAt<uint32_t>(header, 0) != kFileMagic) return false;
    file->source = source;
    file->sections = ReadTable<SectionEntry>(source, kFileHeaderSize, ValueAt<uint32_t>(header, kSectionCountOffset));
    file->tableBytesLeft = file->recordBytesLeft = source.size;
    return true;
}

std::vector<SubsectionEntry> ReadSubsections(SceneryStructure* file, const SectionEntry& section) {
    const uint64_t most = file->tableBytesLeft / kSubsectionEntrySize;
    const uint64_t count = std::min<uint64_t>(section.subsectionCount, most);
    std::vector<SubsectionEntry> entries = ReadTable<SubsectionEntry>(file->source, section.tableOffset, count);
    file->tableBytesLeft -= entries.size() * kSubsectionEntrySize;
    if (entries.size() < section.subsectionCount) file->isCut = true;
    for (SubsectionEntry& entry : entries) {
        const uint64_t held = entry.offset < file->source.size ? file->source.size - entry.offset : 0;
        if (entry.size > held) file->isCut = true;
        entry.size = static_cast<uint32_t>(std::min<uint64_t>(entry.size, held));
    }
    return entries;
}

bool CoverRecords(SceneryStructure* file, const SubsectionEntry& subsection) {
    if (subsection.size > file->recordBytesLeft) {
        file->isCut = true;
        return false;
    }
    file->recordBytesLeft -= subsection.size;
    return true;
}

bool FindAirport(SceneryStructure* file, std::string_view ident, AirportPlace* place) {
    Search search;
    search.ident = ident;
    if (FindWhole(file, &search, place)) return true;
    if (search.hasSimilar) *place = search.similar;
    return search.hasSimilar;
}

std::vector<AirportPlace> FindAllAirports(SceneryStructure* file) {
    std::vector<AirportPlace> places;
    Search search;
    for (const SectionEntry& section : file->sections) {
        if (section.type != kAirportSection || section.sectionClass != kByCell) continue;
        for (const SubsectionEntry& subsection : ReadSubsections(file, section)) {
            if (!CoverRecords(file, subsection)) return places;
            uint64_t offset = subsection.offset;
            const uint64_t end = offset + subsection.size;
            for (AirportPlace place; FindInRecords(file->source, offset, end, &search, &place);) {
                places.push_back(place);
                offset = place.offset + place.size;
            }
        }
    }
    return places;
}

bool FindAirportInFile(const std::string& path, std::string_view ident, AirportPlace* place) {
    const platform::FileHandle handle = platform::OpenForReading(path);
    SceneryStructure file;
    if (!handle || !ReadStructure(SourceOfFile(handle.get()), &file)) return false;
    if (!FindAirport(&file, ident, place)) return false;
    place->path = path;
    return true;
}

std::vector<AirportPlace> AirportsInFile(const std::string& path) {
    const platform::FileHandle handle = platform::OpenForReading(path);
    SceneryStructure file;
    if (!handle || !ReadStructure(SourceOfFile(handle.get()), &file)) return {};
    std::vector<AirportPlace> places = FindAllAirports(&file);
    for (AirportPlace& place : places) place.path = path;
    return places;
}

}  // namespace bgl
