// IlsRunway.h - the runway end that an ILS serves, as "ILS Properties" shows and stores it.
#pragma once

#include "dialogs/Choices.h"
#include "dialogs/Edits.h"
#include "dialogs/IlsDialog.h"

namespace dialogs {

RunwayEndRef EndServedBy(const SceneryObject* ils);  // no runway when there is none

void LoadIlsEnd(const SceneryObject* ils, IlsFields* fields);

// Once the draft of the ILS holds all else: ends that name the ILS follow its identifier, and another end that the user
// chose gets its name. False after the refusal of an end that has an ILS.
bool StoreIlsEnd(const IlsFields& shown, const IlsFields& entered, SceneryObject* ils, Edits* edits, BadField* bad);

}  // namespace dialogs
