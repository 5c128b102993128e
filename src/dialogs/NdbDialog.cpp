// NdbDialog.cpp - see NdbDialog.h.
#include "dialogs/NdbDialog.h"

#include "dialogs/Edits.h"
#include "dialogs/NavaidFields.h"
#include "dialogs/Subject.h"
#include "dialogs/TextField.h"
#include "model/Geodesy.h"
#include "model/Records.h"

namespace dialogs {

namespace {

using model::NdbPayload;

constexpr uint32_t kNdbIdentKind = 3;  // low bits of an NDB's ident word
constexpr uint16_t kTypeH = 2;
constexpr float kUsualRange = static_cast<float>(50 * model::kMetresPerNauticalMile);

constexpr NumberRow<NdbFields> kRows[] = {
    { Field::Elevation, &NdbFields::elevation, offsetof(NdbPayload, altitude), &kElevation },
    { Field::Range, &NdbFields::range, offsetof(NdbPayload, range), &kNavaidRange },
    { Field::Variation, &NdbFields::variation, offsetof(NdbPayload, magneticVariation), &kVariation },
};

}  // namespace

NdbFields LoadNdbFields(const SceneryObject* ndb) {
    const auto& record = model::PayloadAs<NdbPayload>(ndb);
    NdbFields fields;
    fields.ident = ShowIdentWord(ndb->payload + offsetof(NdbPayload, ident));
    fields.name = ShowText(record.name, sizeof record.name);
    fields.frequency = ShowNavFrequency(record.frequency, FrequencyKind::Ndb);
    fields.type = record.type < kNdbTypes.size() ? record.type : -1;
    fields.position = ShowPoint(PointOf(ndb));
    LoadNumbers<NdbFields>(kRows, ndb, &fields);
    return fields;
}

bool StoreNdbFields(const NdbFields& shown, const NdbFields& entered, SceneryObject* ndb, BadField* bad) {
    Edits edits;
    SceneryObject* draft = DraftOf(&edits, ndb);
    auto& record = model::PayloadAs<NdbPayload>(draft);
    uint32_t frequency = record.frequency;
    if (!ReadIdentWord(shown.ident, entered.ident, 1, draft->payload + offsetof(NdbPayload, ident), bad) ||
        (IsProvisional(ndb) && !RequireIdent(entered.ident, bad)) ||
        !ReadName(shown.name, entered.name, record.name, sizeof record.name, bad) ||
        !ReadNavFrequency(FrequencyKind::Ndb, shown.frequency, entered.frequency, false, &frequency, bad) ||
        !ReadPosition(shown.position, entered.position, draft, bad) ||
        !StoreNumbers<NdbFields>(kRows, shown, entered, draft, bad) || !RequirePosition(draft, "the NDB", bad))
        return false;
    record.frequency = frequency;
    if (entered.type >= 0 && entered.type != shown.type) record.type = static_cast<uint16_t>(entered.type);
    Commit(&edits);
    return true;
}

SceneryObject* InsertNdb() {
    SceneryObject* ndb = MakeProvisional(model::kNdb, sizeof(NdbPayload));
    auto& record = model::PayloadAs<NdbPayload>(ndb);
    record.type = kTypeH;
    record.ident = kNdbIdentKind;
    record.range = kUsualRange;
    record.magneticVariation = AirportVariation();
    record.altitude = AirportAltitude();
    SetPoint(ndb, kPlaceholder);
    return ndb;
}

}  // namespace dialogs
