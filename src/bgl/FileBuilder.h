// FileBuilder.h - puts a scenery file together from the records of its sections.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "bgl/ByteWriter.h"

namespace bgl {

struct SubsectionContent {
    uint32_t id = 0;  // a cell id, or kIndexSubsectionId
    uint32_t recordCount = 0;
    ByteWriter records;
};

struct SectionContent {
    uint32_t type = 0, sectionClass = 0;
    std::vector<SubsectionContent> subsections;  // ascending by id
};

// The subsection of that id, made in its place when the section has none yet.
SubsectionContent* SubsectionOf(SectionContent* section, uint32_t id);

// The whole file: header, section table, subsection tables, records. A section without subsections is
// left out. `fileTime` is a Windows FILETIME.
std::vector<uint8_t> AssembleFile(std::span<const SectionContent> sections, uint64_t fileTime);

}  // namespace bgl
