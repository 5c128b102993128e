// SceneryStructure.h - the outer structure of a scenery file: header, section table, subsections.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "bgl/AirportReader.h"
#include "bgl/ByteReader.h"
#include "platform/Files.h"

namespace bgl {

constexpr uint32_t kFileMagic = 0x19920201;
constexpr uint32_t kFileHeaderSize = 56;
constexpr uint32_t kSectionEntrySize = 20;
constexpr uint32_t kSubsectionEntrySize = 16;

// "AP9", exactly five digits and ".bgl", without regard to case, as the last component of the path.
bool IsStockFileName(std::string_view path);

// Whether the last component of the path begins with "TV2_", without regard to case.
bool IsOwnFileName(std::string_view path);

// Finds the airport with that identifier (without regard to case), or the first airport when `ident` is
// empty. Identifiers of the airport index have four characters, those of a record up to five: where none is
// the same, the first with the same four is meant. Reads only the header, the tables and the heads of airport
// records. False when the file cannot be opened, is no scenery file, or does not hold it.
bool FindAirportInFile(const std::string& path, std::string_view ident, AirportPlace* place);

// All airports, in the order of the file; none when it cannot be opened or is no scenery file.
std::vector<AirportPlace> AirportsInFile(const std::string& path);

// The bytes of a scenery file: those of an open file, or a block of memory when `file` is null.
struct ByteSource {
    platform::OpenFile* file = nullptr;
    Bytes memory;
    uint64_t size = 0;
};
ByteSource SourceOfFile(platform::OpenFile* file);
ByteSource SourceOfBytes(Bytes bytes);

size_t ReadSource(const ByteSource& source, uint64_t offset, void* buffer, size_t size);

// The stretch as far as the file holds it; empty when it is longer than any sound file needs.
std::vector<uint8_t> ReadStretch(const ByteSource& source, uint64_t offset, uint64_t size);

#pragma pack(push, 1)
struct SectionEntry {
    uint32_t type, sectionClass, subsectionCount, tableOffset, tableSize;
};
struct SubsectionEntry {
    uint32_t id, recordCount, offset, size;
};
#pragma pack(pop)
static_assert(sizeof(SectionEntry) == kSectionEntrySize && sizeof(SubsectionEntry) == kSubsectionEntrySize);

// The outer structure of one file. In a sound file no two stretches overlap; a damaged one may send a
// walk over the same bytes again and again, so a walk ends when it has covered the file once.
struct SceneryStructure {
    ByteSource source;
    std::vector<SectionEntry> sections;
    uint64_t tableBytesLeft = 0, recordBytesLeft = 0;
    bool isCut = false;  // a walk missed something: the file ends early, is damaged, or could not be read
};

// False when the source is no scenery file.
bool ReadStructure(const ByteSource& source, SceneryStructure* file);

// The section's subsections, each cut to the end of the file and to what the walk may still cover.
std::vector<SubsectionEntry> ReadSubsections(SceneryStructure* file, const SectionEntry& section);

// Takes the subsection from what the walk may still cover; false when that is too little. Ask before
// reading its records.
bool CoverRecords(SceneryStructure* file, const SubsectionEntry& subsection);

bool FindAirport(SceneryStructure* file, std::string_view ident, AirportPlace* place);
std::vector<AirportPlace> FindAllAirports(SceneryStructure* file);  // without their paths

}  // namespace bgl
