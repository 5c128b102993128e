// CommDialog.cpp - see CommDialog.h.
//
// Voice lies from 118 to 137 MHz in steps of 25 or 8.33 kHz. Recorded information is also broadcast by
// navaids, so from 108 MHz on.
#include "dialogs/CommDialog.h"

#include <cstring>

#include "dialogs/Edits.h"
#include "dialogs/NumberField.h"
#include "dialogs/Subject.h"
#include "dialogs/TextField.h"
#include "model/Records.h"
#include "platform/Platform.h"

namespace dialogs {

namespace {

using model::CommFrequencyRecord;

constexpr double kBandEnd = 136.995e6;
constexpr Quantity kVoice = { "frequency", Unit::Megahertz, 118e6, kBandEnd, 3, 0, false, false, 7 };
constexpr Quantity kBroadcast = { "frequency", Unit::Megahertz, 108e6, kBandEnd, 3, 0, false, false, 7 };
constexpr uint16_t kAtis = 1, kAwos = 12, kAsos = 13;
constexpr const char* kNewName = "Insert comm name here";

bool IsBroadcast(uint16_t type) { return type == kAtis || type == kAwos || type == kAsos; }

bool RefuseNone(BadField* bad) {
    platform::ShowError("You must enter a frequency, for example 121.9");
    *bad = { Field::Frequency };
    return false;
}

bool ReadFrequency(const std::string& shown, const std::string& entered, bool otherType, CommFrequencyRecord* record,
                   BadField* bad) {
    double hertz = record->frequency;
    if (entered == shown ? hertz == 0 : ReadsAsZero(kVoice, entered)) return RefuseNone(bad);
    // The band is that of the type: another type judges an old frequency too.
    const Quantity& band = IsBroadcast(record->type) ? kBroadcast : kVoice;
    double judged = 0;
    if (!ReadQuantity(band, shown, entered, &hertz) || (otherType && !ReadQuantity(band, "", entered, &judged))) {
        *bad = { Field::Frequency };
        return false;
    }
    record->frequency = static_cast<uint32_t>(hertz);
    return true;
}

}  // namespace

CommFields LoadCommFields(const SceneryObject* comm) {
    const auto& record = model::PayloadAs<CommFrequencyRecord>(comm);
    CommFields fields;
    fields.frequency = ShowNumber(kVoice, record.frequency);
    fields.type = record.type >= 1 && record.type <= kCommTypes.size() ? record.type - 1 : -1;
    fields.name = ShowText(record.name, sizeof record.name);
    return fields;
}

bool StoreCommFields(const CommFields& shown, const CommFields& entered, SceneryObject* comm, BadField* bad) {
    Edits edits;
    SceneryObject* draft = DraftOf(&edits, comm);
    auto& record = model::PayloadAs<CommFrequencyRecord>(draft);
    const bool otherType = entered.type >= 0 && entered.type != shown.type;
    if (otherType) record.type = static_cast<uint16_t>(entered.type + 1);
    if (!ReadFrequency(shown.frequency, entered.frequency, otherType, &record, bad) ||
        !ReadName(shown.name, entered.name, record.name, sizeof record.name, bad))
        return false;
    Commit(&edits);
    return true;
}

SceneryObject* InsertComm() {
    SceneryObject* comm = MakeProvisional(model::kCommFrequency, sizeof(CommFrequencyRecord));
    auto& record = model::PayloadAs<CommFrequencyRecord>(comm);
    record.type = kAtis;
    std::memcpy(record.name, kNewName, std::strlen(kNewName));
    return comm;
}

}  // namespace dialogs
