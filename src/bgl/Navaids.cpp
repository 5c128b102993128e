// Navaids.cpp - the walk that an airport's own file and the simulator's files share.
#include "bgl/Navaids.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "bgl/SceneryStructure.h"

namespace bgl {

void WalkNavaids(SceneryStructure* file, std::initializer_list<uint32_t> sectionTypes,
                 const std::function<bool(uint32_t)>& wanted, const std::function<void(const NavaidRecord&)>& visit) {
    NavaidRecord record;
    for (const SectionEntry& section : file->sections) {
        if (std::find(sectionTypes.begin(), sectionTypes.end(), section.type) == sectionTypes.end()) continue;
        for (const SubsectionEntry& subsection : ReadSubsections(file, section)) {
            if (!wanted(subsection.id)) continue;
            if (!CoverRecords(file, subsection)) return;
            const std::vector<uint8_t> bytes = ReadStretch(file->source, subsection.offset, subsection.size);
            const bool isWhole = WalkRecords(bytes, [&](const RecordHead& head, Bytes body) {
                record.head = head;
                record.body = body;
                visit(record);
            });
            if (!isWhole || bytes.size() < subsection.size) file->isCut = true;
            ++record.subsection;
        }
    }
}

}  // namespace bgl
