// OpenAirport.cpp - see OpenAirport.h.
#include "bgl/OpenAirport.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "bgl/NameList.h"
#include "bgl/Navaids.h"
#include "bgl/RecordIds.h"
#include "bgl/SceneryStructure.h"
#include "bgl/WriteLimits.h"
#include "model/ObjectList.h"
#include "platform/Files.h"

namespace bgl {

namespace {

// Then its airport is read whatever follows.
bool StartsWithAirport(Bytes records) {
    ByteReader reader;
    reader.bytes = records;
    RecordHead head;
    return TakeRecordHead(&reader, &head) && head.id == kAirportRecord &&
           BytesLeft(reader) >= sizeof(model::AirportRecord);
}

void ReadPlaceNames(SceneryStructure* file) {
    NamedAirport names;
    if (!FindNames(file, model::PayloadAs<model::AirportRecord>(model::state.airport).ident, &names)) return;
    model::state.country = names.country;
    model::state.state = names.state;
    model::state.city = names.city;
}

// What Save writes; sections of all other types would be lost.
constexpr uint32_t kWrittenSections[] = { kAirportSection,  kVorSection,      kMarkerSection,  kNdbSection,
                                          kVorIndexSection, kNdbIndexSection, kNameListSection };

bool IsOfOtherKind(const SectionEntry& section) {
    const bool isWritten =
        std::find(std::begin(kWrittenSections), std::end(kWrittenSections), section.type) != std::end(kWrittenSections);
    return !isWritten && section.subsectionCount > 0;
}

// Our own files hold one airport and nothing else, but nobody keeps any other file from bearing such a name.
OpenWarnings WarningsFor(const std::string& path, const ByteSource& source) {
    OpenWarnings warnings;
    warnings.doesNotFit = WhatDoesNotFit();
    SceneryStructure file;
    if (!IsOwnFileName(path) || !ReadStructure(source, &file)) return warnings;
    const size_t count = FindAllAirports(&file).size();
    warnings.airportsInFile = count > 1 ? count : 0;
    warnings.otherScenery = std::any_of(file.sections.begin(), file.sections.end(), IsOfOtherKind);
    return warnings;
}

// What the file holds that Save would lose, "" when there is nothing.
std::string TextOfLoss(const OpenWarnings& warnings) {
    const bool several = warnings.airportsInFile > 1;
    if (!several && !warnings.otherScenery) return {};
    std::string held = "an airport", lost = "that scenery";
    if (several) held = std::to_string(warnings.airportsInFile) + " airports";
    if (several) lost = "the others";
    if (warnings.otherScenery) held += " and scenery of other kinds";
    if (several && warnings.otherScenery) lost = "all the rest";
    return "This file holds " + held + ". \"Save\" would replace it by a file\nwith the open airport alone, and " +
           lost + " would be lost.\n\nUse \"Save As\" to write this airport to a file of its own.";
}

// Clears the model and reads the airport and what goes with it, apart from stock navaids.
bool ReadFrom(const ByteSource& source, const AirportPlace& place, bool* incomplete) {
    const std::vector<uint8_t> records =
        ReadStretch(source, place.offset, std::min<uint64_t>(place.size, kLongestAirport));
    if (!StartsWithAirport(records)) return false;
    model::ClearModel();
    const bool isWhole = ReadAirport(records);
    *incomplete = !isWhole || records.size() < place.size;
    SceneryStructure file;
    if (!ReadStructure(source, &file)) return true;
    ReadPlaceNames(&file);
    if (!IsStockFileName(place.path)) AppendOwnNavaids(&file);
    *incomplete = *incomplete || file.isCut;
    return true;
}

}  // namespace

std::string TextOf(const OpenWarnings& warnings) {
    std::string text = TextOfLoss(warnings);
    if (warnings.incomplete) {
        if (!text.empty()) text += "\n\n";
        text +=
            "Not all of this airport could be read: its file ends too early or is damaged.\n"
            "What is missing here will be missing in the file that you save.";
    }
    if (warnings.doesNotFit.empty()) return text;
    constexpr std::string_view kError = "ERROR: ";
    std::string_view limit = warnings.doesNotFit;
    if (limit.starts_with(kError)) limit.remove_prefix(kError.size());
    if (!text.empty()) text += "\n\n";
    return text + "This airport cannot be saved as it is.\n" + std::string(limit);
}

bool OpenAirport(const AirportPlace& place, const std::string& simulatorFolder, OpenWarnings* warnings) {
    const platform::FileHandle handle = platform::OpenForReading(place.path);
    if (!handle) return false;
    const ByteSource source = SourceOfFile(handle.get());
    bool incomplete = false;
    if (!ReadFrom(source, place, &incomplete)) return false;
    if (!simulatorFolder.empty()) LoadStockNavaids(simulatorFolder);
    if (warnings) *warnings = WarningsFor(place.path, source);
    if (warnings) warnings->incomplete = incomplete;
    return true;
}

bool OpenAirportBytes(std::span<const uint8_t> bytes, std::string_view ident, bool* incomplete) {
    const ByteSource source = SourceOfBytes(bytes);
    SceneryStructure file;
    AirportPlace place;
    bool missesSomething = false;
    if (!ReadStructure(source, &file) || !FindAirport(&file, ident, &place)) return false;
    if (!ReadFrom(source, place, &missesSomething)) return false;
    if (incomplete) *incomplete = missesSomething;
    return true;
}

}  // namespace bgl
