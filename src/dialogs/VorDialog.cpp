// VorDialog.cpp - see VorDialog.h.
#include "dialogs/VorDialog.h"

#include <algorithm>
#include <iterator>

#include "dialogs/Edits.h"
#include "dialogs/NavaidFields.h"
#include "dialogs/Subject.h"
#include "dialogs/TextField.h"
#include "model/Geodesy.h"
#include "model/Records.h"

namespace dialogs {

namespace {

using model::VorDmePayload;
using model::VorRecord;

constexpr uint8_t kClassCodes[] = { 1, 2, 3, 5 };
static_assert(std::size(kClassCodes) == kVorClasses.size());
constexpr uint8_t kLowClass = 2;
constexpr uint8_t kNewFlags = model::kHasVor | model::kHasDme | model::kNavTrue;
constexpr uint32_t kVorIdentKind = 2;  // low bits of a VOR's ident word
constexpr int kVorOnly = 0, kBoth = 1, kDmeOnly = 2;
constexpr float kUsualRange = static_cast<float>(40 * model::kMetresPerNauticalMile);

constexpr NumberRow<VorFields> kRows[] = {
    { Field::Elevation, &VorFields::elevation, offsetof(VorRecord, altitude), &kElevation },
    { Field::Range, &VorFields::range, offsetof(VorRecord, range), &kNavaidRange },
    { Field::Variation, &VorFields::variation, offsetof(VorRecord, magneticVariation), &kVariation },
};
constexpr NumberRow<VorFields> kDmeRows[] = {
    { Field::DmeRange, &VorFields::dmeRange, offsetof(VorDmePayload, dme) + offsetof(model::DmePart, range),
      &kDmeRange },
};

int ClassIndex(uint8_t code) {
    const auto found = std::find(std::begin(kClassCodes), std::end(kClassCodes), code);
    return found == std::end(kClassCodes) ? -1 : static_cast<int>(found - kClassCodes);
}

// A DME that comes new stands with the VOR and reaches as far.
void StoreParts(int parts, VorDmePayload* payload) {
    uint8_t& flags = payload->body.flags;
    const bool hadDme = (flags & model::kHasDme) != 0;
    flags = static_cast<uint8_t>(parts == kDmeOnly ? flags & ~model::kHasVor : flags | model::kHasVor);
    flags = static_cast<uint8_t>(parts == kVorOnly ? flags & ~model::kHasDme : flags | model::kHasDme);
    if (hadDme || parts == kVorOnly) return;
    payload->dme.longitude = payload->body.longitude;
    payload->dme.latitude = payload->body.latitude;
    payload->dme.altitude = payload->body.altitude;
    if (payload->dme.range == 0) payload->dme.range = payload->body.range;
}

}  // namespace

int VorPartsOf(const SceneryObject* vor) {
    const uint8_t flags = model::PayloadAs<VorDmePayload>(vor).body.flags;
    if ((flags & model::kHasDme) == 0) return kVorOnly;
    return flags & model::kHasVor ? kBoth : kDmeOnly;
}

bool HasVorPart(int parts) { return parts != kDmeOnly; }

bool HasDmePart(int parts) { return parts != kVorOnly; }

VorFields LoadVorFields(const SceneryObject* vor) {
    const auto& payload = model::PayloadAs<VorDmePayload>(vor);
    VorFields fields;
    fields.ident = ShowIdentWord(vor->payload + offsetof(VorRecord, ident));
    fields.name = ShowText(payload.name, sizeof payload.name);
    fields.frequency = ShowNavFrequency(payload.body.frequency, FrequencyKind::Vor);
    fields.vorClass = ClassIndex(payload.body.type);
    fields.parts = VorPartsOf(vor);
    fields.position = ShowPoint(PointOf(vor));
    LoadNumbers<VorFields>(kRows, vor, &fields);
    LoadNumbers<VorFields>(kDmeRows, vor, &fields);
    return fields;
}

bool StoreVorFields(const VorFields& shown, const VorFields& entered, SceneryObject* vor, BadField* bad) {
    Edits edits;
    SceneryObject* draft = DraftOf(&edits, vor);
    auto& payload = model::PayloadAs<VorDmePayload>(draft);
    const bool otherParts = entered.parts >= 0 && entered.parts != shown.parts;
    const FrequencyKind kind = entered.parts == kDmeOnly ? FrequencyKind::Dme : FrequencyKind::Vor;
    uint32_t frequency = payload.body.frequency;
    if (!ReadIdentWord(shown.ident, entered.ident, 1, draft->payload + offsetof(VorRecord, ident), bad) ||
        (IsProvisional(vor) && !RequireIdent(entered.ident, bad)) ||
        !ReadName(shown.name, entered.name, payload.name, sizeof payload.name, bad) ||
        !ReadNavFrequency(kind, shown.frequency, entered.frequency, otherParts, &frequency, bad) ||
        !ReadPosition(shown.position, entered.position, draft, bad) ||
        !StoreNumbers<VorFields>(kRows, shown, entered, draft, bad))
        return false;
    payload.body.frequency = frequency;
    if (otherParts) StoreParts(entered.parts, &payload);
    // The range of a DME that is off is not read.
    const bool hasDme = HasDmePart(entered.parts >= 0 ? entered.parts : shown.parts);
    if ((hasDme && !StoreNumbers<VorFields>(kDmeRows, shown, entered, draft, bad)) ||
        !RequirePosition(draft, "the VOR", bad))
        return false;
    if (entered.vorClass >= 0 && entered.vorClass != shown.vorClass) payload.body.type = kClassCodes[entered.vorClass];
    Commit(&edits);
    return true;
}

void ChooseVorParts(int parts, VorFields* fields) {
    double range = 1;
    const bool none = ReadNumber(fields->dmeRange, &range) && range == 0;
    if (fields->parts == kVorOnly && parts != kVorOnly && none) fields->dmeRange = fields->range;
    fields->parts = parts;
}

SceneryObject* InsertVor() {
    SceneryObject* vor = MakeProvisional(model::kVorDme, sizeof(VorDmePayload));
    auto& payload = model::PayloadAs<VorDmePayload>(vor);
    payload.body.type = kLowClass;
    payload.body.flags = kNewFlags;
    payload.body.range = payload.dme.range = kUsualRange;
    payload.body.magneticVariation = AirportVariation();
    payload.body.altitude = payload.dme.altitude = AirportAltitude();
    payload.body.ident = kVorIdentKind;
    SetPoint(vor, kPlaceholder);
    return vor;
}

}  // namespace dialogs
