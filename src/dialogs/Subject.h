// Subject.h - the object that a dialog is open on: its selection, its preview on the map, and the record
// that an Insert command makes only for its dialog.
#pragma once

#include <cstddef>
#include <cstdint>

#include "model/CoordinateText.h"
#include "model/Geodesy.h"
#include "model/Records.h"
#include "model/SceneryObject.h"

namespace dialogs {

using model::SceneryObject;

// A new record for a dialog: at the end of the list, so that the map shows it, but unrecorded. OK records
// it (Edits.h), Cancel drops it. Only one at a time.
SceneryObject* MakeProvisional(uint32_t kind, size_t payloadSize);
bool IsProvisional(const SceneryObject* object);

// An Insert command: what `make` makes is opened in its dialog, unless `make` refuses (null) or another dialog is open.
// Whether it was closed by OK.
bool InsertAndEdit(SceneryObject* (*make)(), bool (*edit)(SceneryObject* object));

// The elevation of the airport, which new records start with; millimetres.
int32_t AirportAltitude();

// Cancel: the previews end, and the provisional record goes without a trace.
void CancelDialog();

// A click on the map while the dialog is open: shows the object there and returns the texts for the
// position fields. `offset` is that of the position in the payload.
model::CoordinateTexts MoveToClick(SceneryObject* object, size_t offset, model::LatLon at);
model::CoordinateTexts MoveToClick(SceneryObject* object, model::LatLon at);  // its own position

void EndPreview();                                                   // every moved point goes back
void UndoPreviewIn(SceneryObject* copy, const SceneryObject* live);  // the same in a copy of `live`

// Before a dialog opens: unless the object is selected already or `extend` (Shift or Ctrl is held), all
// else is deselected first; then the object is selected with all its parts. Beside a provisional record all stays
// selected until it is recorded (Commit): Cancel leaves the selection as it was.
void SelectSubject(SceneryObject* object, bool extend);

// Selects the object with all its parts, and nothing else.
void SelectOnly(SceneryObject* object);

// Centres the map there; with `onlyWhenOutside` only if the place cannot be seen. A map that is locked to
// the simulator stays.
void ShowPlace(model::LatLon place, bool onlyWhenOutside);

}  // namespace dialogs
