// RunwayFollow.h - what belongs to a runway and follows its changes: its ILSs and its start locations.
#pragma once

#include <vector>

#include "dialogs/Choices.h"
#include "dialogs/Edits.h"

namespace dialogs {

// What serves or stands at an end of a runway of the list. What several ends may claim counts with one of them
// (model/IlsEnds.h), a start location with the nearest that has its name; a preview on the map changes nothing.
struct EndBelongings {
    std::vector<SceneryObject*> ils, starts;
};
EndBelongings BelongingsOf(const SceneryObject* runway, int end);

// Where the designators of the draft differ from the runway's: start locations and ILSs get the new ones,
// and the end's name at the end of an ILS's name changes. Links name their runway by pointer.
void RenameWithRunway(const SceneryObject* runway, const SceneryObject* draft, Edits* edits);

// The name with the old end name, as its last word, made the new one; "04" counts as "4".
std::string RenamedIls(const std::string& name, const std::string& oldEnd, const std::string& newEnd);

// Where centre, heading or length differ: asks whether what belongs to the runway moves with it, and moves
// it: it keeps its distances from the nearer runway end and from the centre line, and its angle to the
// runway. False when the user cancels.
bool MoveWithRunway(const SceneryObject* runway, const SceneryObject* draft, Edits* edits);

}  // namespace dialogs
