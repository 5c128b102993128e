// DumpNavaids.h - the decoded fields of navaids, for DumpFields.cpp.
#pragma once

#include "cli/Json.h"
#include "model/Records.h"

namespace cli {

void IlsFields(JsonWriter* json, const model::IlsPayload& ils);
void MarkerFields(JsonWriter* json, const model::MarkerBeaconPayload& marker);
void NdbFields(JsonWriter* json, const model::NdbPayload& ndb);
void VorDmeFields(JsonWriter* json, const model::VorDmePayload& vor);

}  // namespace cli
