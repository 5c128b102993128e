// HelipadDialog.cpp - see HelipadDialog.h.
#include "dialogs/HelipadDialog.h"

#include "dialogs/Choices.h"
#include "dialogs/Edits.h"
#include "dialogs/NumberField.h"
#include "dialogs/Subject.h"
#include "model/Records.h"

namespace dialogs {

namespace {

using model::HelipadRecord;

constexpr Quantity kLength = { "helipad length", Unit::Length, 0.1, 1000 };
constexpr Quantity kWidth = { "helipad width", Unit::Length, 0.1, 1000 };
constexpr float kUsualSize = 15.24F;  // metres

// The type byte.
constexpr uint8_t kTypeH = 1;

constexpr NumberRow<HelipadFields> kRows[] = {
    { Field::Elevation, &HelipadFields::elevation, offsetof(HelipadRecord, altitude), &kElevation },
    { Field::Heading, &HelipadFields::heading, offsetof(HelipadRecord, heading), &kHeading },
    { Field::Length, &HelipadFields::length, offsetof(HelipadRecord, length), &kLength },
    { Field::Width, &HelipadFields::width, offsetof(HelipadRecord, width), &kWidth },
};

uint8_t WithBit(uint8_t byte, uint8_t bit, bool on) { return static_cast<uint8_t>(on ? byte | bit : byte & ~bit); }

}  // namespace

HelipadFields LoadHelipadFields(const SceneryObject* helipad) {
    const auto& record = model::PayloadAs<HelipadRecord>(helipad);
    HelipadFields fields;
    fields.position = ShowPoint(PointOf(helipad));
    LoadNumbers<HelipadFields>(kRows, helipad, &fields);
    fields.surface = SurfaceIndex(record.surface);
    const size_t type = record.type & model::kPadTypeMask;
    fields.type = type < kHelipadTypes.size() ? static_cast<int>(type) : -1;
    fields.transparent = (record.type & model::kPadTransparent) != 0;
    fields.closed = (record.type & model::kPadClosed) != 0;
    return fields;
}

bool StoreHelipadFields(const HelipadFields& shown, const HelipadFields& entered, SceneryObject* helipad,
                        BadField* bad) {
    Edits edits;
    SceneryObject* draft = DraftOf(&edits, helipad);
    if (!ReadPosition(shown.position, entered.position, draft, bad) ||
        !StoreNumbers<HelipadFields>(kRows, shown, entered, draft, bad) || !RequirePosition(draft, "the helipad", bad))
        return false;
    auto& record = model::PayloadAs<HelipadRecord>(draft);
    if (entered.surface >= 0 && entered.surface != shown.surface)
        record.surface = static_cast<uint8_t>(entered.surface);
    if (entered.type >= 0 && entered.type != shown.type)
        record.type = static_cast<uint8_t>((record.type & ~model::kPadTypeMask) | entered.type);
    if (entered.transparent != shown.transparent)
        record.type = WithBit(record.type, model::kPadTransparent, entered.transparent);
    if (entered.closed != shown.closed) record.type = WithBit(record.type, model::kPadClosed, entered.closed);
    Commit(&edits);
    return true;
}

SceneryObject* InsertHelipad() {
    SceneryObject* helipad = MakeProvisional(model::kHelipad, sizeof(HelipadRecord));
    auto& record = model::PayloadAs<HelipadRecord>(helipad);
    record.type = kTypeH;
    record.length = record.width = kUsualSize;
    record.altitude = AirportAltitude();
    SetPoint(helipad, kPlaceholder);
    return helipad;
}

}  // namespace dialogs
