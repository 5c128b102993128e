// ParkingDialog.cpp - see ParkingDialog.h.
//
// The pushback directions are carried, no field of the dialog.
#include "dialogs/ParkingDialog.h"

#include <cmath>

#include "dialogs/Edits.h"
#include "dialogs/NumberField.h"
#include "dialogs/ParkingCodes.h"
#include "dialogs/Subject.h"
#include "map/NewObjects.h"
#include "map/Tools.h"
#include "model/Names.h"
#include "model/ObjectList.h"
#include "model/Positions.h"
#include "model/Records.h"
#include "model/SpotBits.h"

namespace dialogs {

namespace {

using model::ParkingSpotRecord;

constexpr uint32_t kAreaCount = 37, kTypeCount = 11;  // the codes from 1 on

constexpr double kSameRadius = 0.005;  // metres: a default that was typed in feet is this close

constexpr Quantity kRadius = { "radius", Unit::ParkingLength, 0.1, 1000, 2, 2 };
constexpr Quantity kNumber = { "number", Unit::Plain, 0, 4095, 0, 0, true };

int AreaIndex(const ParkingSpotRecord& record) {
    const uint32_t code = model::ParkingNameCode(record);
    return code >= 1 && code <= kAreaCount ? static_cast<int>(code) - 1 : -1;
}

// Codes beyond the table show as code 1, "Unknown"; code 0 has an empty name, which is no choice.
int TypeIndex(const ParkingSpotRecord& record) {
    const uint32_t code = model::ParkingTypeCode(record);
    return code > kTypeCount ? 0 : static_cast<int>(code) - 1;
}

uint32_t TypeCode(int index) { return static_cast<uint32_t>(index + 1); }

std::string DefaultRadiusText(int index) { return ShowNumber(kRadius, map::DefaultSpotRadius(TypeCode(index))); }

bool HasDefaultRadius(const ParkingSpotRecord& record) {
    return std::fabs(double{ record.radius } - map::DefaultSpotRadius(model::ParkingTypeCode(record))) < kSameRadius;
}

void SetTypeBits(ParkingSpotRecord* record, uint32_t typeCode) {
    record->packed =
        (record->packed & ~model::kParkingTypeMask) | (typeCode << model::kParkingTypeShift & model::kParkingTypeMask);
}

ParkingFields LoadOne(const SceneryObject* spot) {
    const auto& record = model::PayloadAs<ParkingSpotRecord>(spot);
    ParkingFields fields;
    fields.position = ShowPoint(PointOf(spot));
    fields.heading = ShowNumber(kHeading, record.heading);
    fields.number = ShowNumber(kNumber, model::ParkingNumber(record));
    fields.radius = ShowNumber(kRadius, record.radius);
    fields.codes = CodesText(spot);
    fields.area = AreaIndex(record);
    fields.type = TypeIndex(record);
    return fields;
}

void KeepEqual(std::string* text, const std::string& other) {
    if (*text != other) text->clear();
}

void KeepEqual(int* choice, int other) {
    if (*choice != other) *choice = -1;
}

// What OK changes, read once for all spots.
struct ParkingChange {
    double heading = 0, radius = 0, number = 0;
    std::vector<std::string> codes;
};

bool ReadChange(const ParkingFields& shown, const ParkingFields& entered, ParkingChange* change, BadField* bad) {
    if (!ReadField(kHeading, shown.heading, entered.heading, Field::Heading, &change->heading, bad)) return false;
    if (!ReadField(kNumber, shown.number, entered.number, Field::Number, &change->number, bad)) return false;
    if (!ReadField(kRadius, shown.radius, entered.radius, Field::Radius, &change->radius, bad)) return false;
    // The two decimals that the type brought stand for the exact default.
    if (entered.radius == DefaultRadiusText(entered.type))
        change->radius = map::DefaultSpotRadius(TypeCode(entered.type));
    if (entered.codes != shown.codes && !ReadCodes(entered.codes, &change->codes)) {
        *bad = { Field::Codes };
        return false;
    }
    return true;
}

// The radius is a field of its own, unless the radii of the spots differ: then each goes by its own type.
void ChangeType(const ParkingFields& shown, const ParkingFields& entered, ParkingSpotRecord* record) {
    const bool mixed = shown.radius.empty() && entered.radius.empty();
    if (mixed)
        GiveSpotType(record, TypeCode(entered.type));
    else
        SetTypeBits(record, TypeCode(entered.type));
}

void Apply(const ParkingChange& change, const ParkingFields& shown, const ParkingFields& entered,
           SceneryObject* draft) {
    auto& record = model::PayloadAs<ParkingSpotRecord>(draft);
    if (entered.heading != shown.heading) record.heading = static_cast<float>(change.heading);
    if (entered.number != shown.number)
        record.packed = (record.packed & ~model::kParkingNumberMask) | static_cast<uint32_t>(change.number)
                                                                           << model::kParkingNumberShift;
    if (entered.area >= 0 && entered.area != shown.area)
        record.packed = (record.packed & ~model::kParkingNameMask) | (static_cast<uint32_t>(entered.area) + 1);
    if (entered.type >= 0 && entered.type != shown.type) ChangeType(shown, entered, &record);
    if (entered.radius != shown.radius) record.radius = static_cast<float>(change.radius);
    if (entered.codes != shown.codes) SetCodes(draft, change.codes);
}

}  // namespace

std::vector<std::string> ParkingAreaChoices() {
    std::vector<std::string> names;
    for (uint32_t code = 1; code <= kAreaCount; ++code) names.emplace_back(model::ParkingNameText(code));
    return names;
}

std::vector<std::string> ParkingTypeChoices() {
    std::vector<std::string> names;
    for (uint32_t code = 1; code <= kTypeCount; ++code) names.emplace_back(model::ParkingTypeName(code));
    return names;
}

void GiveSpotType(ParkingSpotRecord* record, uint32_t typeCode) {
    if (model::ParkingTypeCode(*record) == typeCode) return;
    if (HasDefaultRadius(*record)) record->radius = static_cast<float>(map::DefaultSpotRadius(typeCode));
    SetTypeBits(record, typeCode);
}

std::vector<SceneryObject*> EditedSpots(SceneryObject* spot) {
    if (!model::IsSelected(spot)) return { spot };
    std::vector<SceneryObject*> spots;
    model::ForEachOfKind(model::kParkingSpot, [&](SceneryObject* other) {
        if (model::IsSelected(other)) spots.push_back(other);
    });
    return spots;
}

ParkingFields LoadParkingFields(SceneryObject* spot) {
    const std::vector<SceneryObject*> spots = EditedSpots(spot);
    ParkingFields fields = LoadOne(spots[0]);
    if (spots.size() == 1) return fields;
    fields.several = true;
    fields.position = {};
    for (const SceneryObject* other : spots) {
        const ParkingFields more = LoadOne(other);
        KeepEqual(&fields.heading, more.heading);
        KeepEqual(&fields.number, more.number);
        KeepEqual(&fields.radius, more.radius);
        KeepEqual(&fields.codes, more.codes);
        KeepEqual(&fields.area, more.area);
        KeepEqual(&fields.type, more.type);
    }
    return fields;
}

void ChooseParkingType(ParkingFields* fields, int type) {
    const bool hasOldType = !fields->several || fields->type >= 0;
    if (type >= 0 && hasOldType && fields->radius == DefaultRadiusText(fields->type))
        fields->radius = DefaultRadiusText(type);
    fields->type = type;
}

bool StoreParkingFields(const ParkingFields& shown, const ParkingFields& entered, SceneryObject* spot, BadField* bad) {
    Edits edits;
    if (!shown.several && !ReadPosition(shown.position, entered.position, DraftOf(&edits, spot), bad)) return false;
    ParkingChange change;
    if (!ReadChange(shown, entered, &change, bad)) return false;
    for (SceneryObject* each : EditedSpots(spot)) Apply(change, shown, entered, DraftOf(&edits, each));
    Commit(&edits);
    if (entered.type >= 0 && entered.type != shown.type)
        map::tools.lastParkingType = static_cast<int>(TypeCode(entered.type));
    return true;
}

SceneryObject* NextSpot(SceneryObject* spot) {
    SceneryObject* next = model::NextOfKind(spot, model::kParkingSpot);
    return next ? next : model::FirstOfKind(model::state.head, model::kParkingSpot);
}

void GoToSpot(SceneryObject* spot) {
    SelectOnly(spot);
    ShowPlace(model::PositionOf(spot), false);
}

}  // namespace dialogs
