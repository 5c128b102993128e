// DeleteRules.h - what Delete removes, what goes with it, and what it refuses.
#pragma once

#include "model/SceneryObject.h"

namespace model {

// Deletes what is selected as one user action. Asks and refuses by message boxes. Returns the number of
// recorded edits; 0 when nothing changed. Does nothing during a drag: all that is selected is in the mouse then.
int DeleteSelected();

// Deletes every guideline and reference marker, selected or not, as one user action, and returns how many
// there were. The caller forgets the marker that it measures distances from.
int DeleteGuidelinesAndMarkers();

// The two ends of a runway.
enum class RunwayEnd { Primary, Secondary };

// Whether the ILS serves that end: the runway names its ident or, when the runway names none there and the
// ILS is no stock object, its localizer names the end and its region word this airport. Where several ends
// name the ident, the localizer tells which one it is.
bool IlsBelongsTo(const SceneryObject* ils, const SceneryObject* runway, RunwayEnd end);

}  // namespace model
