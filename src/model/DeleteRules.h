// DeleteRules.h - what Delete removes, what goes with it, and what it refuses.
#pragma once

#include "model/SceneryObject.h"

namespace model {

// Deletes what is selected as one user action. Asks and refuses by message boxes. Returns the number of
// recorded edits; 0 when nothing changed. Does nothing during a drag, which may hold what is selected.
int DeleteSelected();

// Deletes every guideline and reference marker, selected or not, as one user action, and returns how many
// there were.
int DeleteGuidelinesAndMarkers();

}  // namespace model
