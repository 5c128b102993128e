// FileBuilder.cpp - see FileBuilder.h.
#include "bgl/FileBuilder.h"

#include <algorithm>

#include "bgl/Cells.h"
#include "bgl/RecordIds.h"
#include "bgl/SceneryStructure.h"

namespace bgl {

namespace {

constexpr uint32_t kFileMagic2 = 0x08051803;

#pragma pack(push, 1)
struct FileHeader {
    uint32_t magic = kFileMagic, headerSize = kFileHeaderSize;
    uint64_t fileTime = 0;
    uint32_t magic2 = kFileMagic2, sectionCount = 0;
    uint32_t cells[kHeaderCells] = {};
};
#pragma pack(pop)
static_assert(sizeof(FileHeader) == kFileHeaderSize);

FileHeader HeaderFor(std::span<const SectionContent* const> sections, uint64_t fileTime) {
    FileHeader header;
    header.fileTime = fileTime;
    header.sectionCount = static_cast<uint32_t>(sections.size());
    std::vector<uint32_t> cells;
    for (const SectionContent* section : sections) {
        if (section->sectionClass != kByCell) continue;
        for (const SubsectionContent& subsection : section->subsections) cells.push_back(subsection.id);
    }
    cells = HeaderCellIds(std::move(cells));
    for (size_t i = 0; i < cells.size(); ++i) header.cells[i] = cells[i];
    return header;
}

}  // namespace

SubsectionContent* SubsectionOf(SectionContent* section, uint32_t id) {
    auto& all = section->subsections;
    const auto place = std::lower_bound(all.begin(), all.end(), id,
                                        [](const SubsectionContent& s, uint32_t wanted) { return s.id < wanted; });
    if (place != all.end() && place->id == id) return &*place;
    return &*all.insert(place, SubsectionContent{ id, 0, {} });
}

std::vector<uint8_t> AssembleFile(std::span<const SectionContent> content, uint64_t fileTime) {
    std::vector<const SectionContent*> sections;
    size_t tableOffset = kFileHeaderSize, recordOffset = kFileHeaderSize, recordsSize = 0;
    for (const SectionContent& section : content) {
        if (section.subsections.empty()) continue;
        sections.push_back(&section);
        tableOffset += kSectionEntrySize;
        recordOffset += kSectionEntrySize + section.subsections.size() * kSubsectionEntrySize;
        for (const SubsectionContent& subsection : section.subsections) recordsSize += subsection.records.bytes.size();
    }
    ByteWriter file;
    file.bytes.reserve(recordOffset + recordsSize);
    Put(&file, HeaderFor(sections, fileTime));
    for (const SectionContent* section : sections) {
        const auto count = static_cast<uint32_t>(section->subsections.size());
        Put(&file, SectionEntry{ section->type, section->sectionClass, count, static_cast<uint32_t>(tableOffset),
                                 count * kSubsectionEntrySize });
        tableOffset += count * kSubsectionEntrySize;
    }
    for (const SectionContent* section : sections) {
        for (const SubsectionContent& subsection : section->subsections) {
            const size_t size = subsection.records.bytes.size();
            Put(&file, SubsectionEntry{ subsection.id, subsection.recordCount, static_cast<uint32_t>(recordOffset),
                                        static_cast<uint32_t>(size) });
            recordOffset += size;
        }
    }
    for (const SectionContent* section : sections) {
        for (const SubsectionContent& subsection : section->subsections)
            PutBytes(&file, subsection.records.bytes.data(), subsection.records.bytes.size());
    }
    return std::move(file.bytes);
}

}  // namespace bgl
