// StartDialog.cpp - see StartDialog.h.
#include "dialogs/StartDialog.h"

#include "dialogs/Choices.h"
#include "dialogs/Edits.h"
#include "dialogs/NumberField.h"
#include "dialogs/RunwayFollow.h"
#include "dialogs/RunwayParts.h"
#include "dialogs/RunwayPlaces.h"
#include "dialogs/Subject.h"
#include "model/Names.h"
#include "model/ObjectList.h"
#include "model/Records.h"

namespace dialogs {

namespace {

using model::StartLocationRecord;

constexpr model::StartType kTypes[] = { model::kRunwayStart, model::kHelipadStart };

constexpr NumberRow<StartFields> kRows[] = {
    { Field::Elevation, &StartFields::elevation, offsetof(StartLocationRecord, altitude), &kElevation },
    { Field::Heading, &StartFields::heading, offsetof(StartLocationRecord, heading), &kHeading },
};

int TypeIndex(uint32_t type) { return type == model::kRunwayStart ? 0 : type == model::kHelipadStart ? 1 : -1; }

void StoreChoices(const StartFields& shown, const StartFields& entered, StartLocationRecord* record) {
    uint32_t suffix = StartSuffix(*record), type = StartTypeOf(*record);
    if (entered.number >= 0 && entered.number != shown.number) record->number = static_cast<uint8_t>(entered.number);
    if (entered.suffix >= 0 && entered.suffix != shown.suffix) suffix = static_cast<uint32_t>(entered.suffix);
    if (entered.type >= 0 && entered.type != shown.type) type = kTypes[entered.type];
    record->designatorAndType = model::StartNibbles(type, suffix);
}

// Number, suffix and heading of the end.
void NameAfter(const RunwayEndRef& ref, StartLocationRecord* record) {
    record->number = ref.runway->payload[kEndPlaces[ref.end].number];
    record->designatorAndType =
        model::StartNibbles(model::kRunwayStart, ref.runway->payload[kEndPlaces[ref.end].designator]);
    record->heading = EndHeading(ref);
}

}  // namespace

std::string StartName(const SceneryObject* start) {
    const auto& record = model::PayloadAs<StartLocationRecord>(start);
    if (StartTypeOf(record) == model::kHelipadStart) return "Helipad " + std::to_string(record.number);
    return "Rwy " + model::RunwayEndName(record.number, StartSuffix(record));
}

StartFields LoadStartFields(const SceneryObject* start) {
    const auto& record = model::PayloadAs<StartLocationRecord>(start);
    StartFields fields;
    fields.position = ShowPoint(PointOf(start));
    LoadNumbers<StartFields>(kRows, start, &fields);
    fields.number = RunwayNumberIndex(record.number);
    fields.suffix = SuffixIndex(StartSuffix(record));
    fields.type = TypeIndex(StartTypeOf(record));
    return fields;
}

bool StoreStartFields(const StartFields& shown, const StartFields& entered, SceneryObject* start, BadField* bad) {
    Edits edits;
    SceneryObject* draft = DraftOf(&edits, start);
    if (!ReadPosition(shown.position, entered.position, draft, bad) ||
        !StoreNumbers<StartFields>(kRows, shown, entered, draft, bad) ||
        !RequirePosition(draft, "the start location", bad))
        return false;
    StoreChoices(shown, entered, &model::PayloadAs<StartLocationRecord>(draft));
    Commit(&edits);
    return true;
}

SceneryObject* InsertStart() {
    const std::vector<RunwayEndRef> ends = AllRunwayEnds();
    const RunwayEndRef* lacking = nullptr;
    for (const RunwayEndRef& ref : ends) {
        if (!lacking && BelongingsOf(ref.runway, ref.end).starts.empty()) lacking = &ref;
    }
    if (!lacking && !ends.empty()) lacking = &ends[0];
    SceneryObject* start = MakeProvisional(model::kStartLocation, sizeof(StartLocationRecord));
    auto& record = model::PayloadAs<StartLocationRecord>(start);
    record.designatorAndType = model::StartNibbles(model::kRunwayStart, 0);
    record.altitude = AirportAltitude();
    SetPoint(start, kPlaceholder);
    if (lacking) NameAfter(*lacking, &record);
    return start;
}

}  // namespace dialogs
