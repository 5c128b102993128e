// AirportWriter.cpp - see AirportWriter.h.
#include "bgl/AirportWriter.h"

#include <algorithm>

#include "bgl/AirportRecord.h"
#include "bgl/Cells.h"
#include "bgl/FileBuilder.h"
#include "bgl/NameList.h"
#include "bgl/NavaidRecords.h"
#include "bgl/RecordIds.h"
#include "bgl/WriteLimits.h"
#include "model/Ident.h"
#include "model/ObjectList.h"
#include "platform/Files.h"
#include "platform/Platform.h"

namespace bgl {

namespace {

using model::SceneryObject;

SectionContent AirportContent() {
    SectionContent section{ kAirportSection, kByCell, {} };
    const auto& airport = model::PayloadAs<model::AirportRecord>(model::state.airport);
    SubsectionContent* subsection = SubsectionOf(&section, CellOf({ airport.longitude, airport.latitude }));
    subsection->recordCount = 1;
    WriteAirportRecord(&subsection->records);
    return section;
}

// The model's own navaids by section, in list order.
struct OwnNavaids {
    std::vector<SceneryObject*> vors, markers, ndbs;
};

OwnNavaids NavaidsToWrite() {
    OwnNavaids own;
    for (SceneryObject* object = model::state.head; object; object = object->next) {
        if (IsStock(object)) continue;
        switch (KindOf(object)) {
        case model::kIls:
        case model::kVorDme: own.vors.push_back(object); break;
        case model::kMarkerBeacon: own.markers.push_back(object); break;
        case model::kNdb: own.ndbs.push_back(object); break;
        default: break;
        }
    }
    return own;
}

SectionContent NavaidContent(uint32_t sectionType, const std::vector<SceneryObject*>& navaids) {
    SectionContent section{ sectionType, kByCell, {} };
    for (SceneryObject* navaid : navaids) {
        SubsectionContent* subsection = SubsectionOf(&section, CellOf(KeyOf(navaid).position));
        ++subsection->recordCount;
        WriteNavaid(navaid, &subsection->records);
    }
    return section;
}

// Sorted by identifier; navaids of one identifier stay in list order.
SectionContent IndexContent(uint32_t sectionType, const std::vector<SceneryObject*>& navaids) {
    SectionContent section{ sectionType, kIdentIndex, {} };
    if (navaids.empty()) return section;
    struct Entry {
        std::string text;
        NavaidKey key;
    };
    std::vector<Entry> entries;
    for (const SceneryObject* navaid : navaids) {
        const NavaidKey key = KeyOf(navaid);
        entries.push_back({ model::UnpackIdent(key.ident >> model::kIdentShift), key });
    }
    const auto before = [](const Entry& a, const Entry& b) { return a.text < b.text; };  // decoded in upper case
    std::stable_sort(entries.begin(), entries.end(), before);
    SubsectionContent* subsection = SubsectionOf(&section, kIndexSubsectionId);
    subsection->recordCount = static_cast<uint32_t>(entries.size());
    for (const Entry& entry : entries) {
        Put(&subsection->records, entry.key.ident);
        Put(&subsection->records, entry.key.region);
        Put(&subsection->records, static_cast<uint16_t>(entry.key.position.longitude >> 21));
        Put(&subsection->records, static_cast<uint16_t>(entry.key.position.latitude >> 21));
    }
    return section;
}

// After AirportContent, which packs the ident that both records must share.
SectionContent NameListContent() {
    SectionContent section{ kNameListSection, kNameList, {} };
    const auto& airport = model::PayloadAs<model::AirportRecord>(model::state.airport);
    const NamedAirport names = { model::state.country, model::state.state, model::state.city,
                                 model::AirportName(), airport.ident,      { airport.longitude, airport.latitude } };
    SubsectionContent* subsection = SubsectionOf(&section, kIndexSubsectionId);
    subsection->recordCount = 1;
    WriteNameList({ names }, &subsection->records);
    return section;
}

}  // namespace

bool BuildAirportFile(uint64_t fileTime, std::vector<uint8_t>* bytes, std::string* refusal) {
    bytes->clear();
    refusal->clear();
    if (!model::state.airport) return false;
    *refusal = WhatDoesNotFit();
    if (!refusal->empty()) return false;
    const OwnNavaids own = NavaidsToWrite();
    const SectionContent sections[] = {
        AirportContent(),
        NavaidContent(kVorSection, own.vors),
        NavaidContent(kMarkerSection, own.markers),
        NavaidContent(kNdbSection, own.ndbs),
        IndexContent(kVorIndexSection, own.vors),
        IndexContent(kNdbIndexSection, own.ndbs),
        NameListContent(),
    };
    *bytes = AssembleFile(sections, fileTime);
    return true;
}

int WriteAirportFile(const std::string& path) {
    std::vector<uint8_t> bytes;
    std::string message;
    if (!BuildAirportFile(platform::SystemFileTime(), &bytes, &message)) {
        if (!message.empty()) platform::ShowRefusal(message);
        return 0;
    }
    if (platform::WriteFileWhole(path, bytes)) return 1;
    platform::ShowError("Unable to create .bgl file");
    return 0;
}

}  // namespace bgl
