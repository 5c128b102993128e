// HoldShortUpdate.h - which way round the marking of a hold-short node lies.
//
// Aircraft leaving the runway must see the dashed bars first: the solid ones belong on the taxiway's side. The marking
// is drawn with its dashed bars toward the nearest runway, as the crow flies; where the taxiway takes another way, the
// node's flag turns it round.
#pragma once

#include <unordered_map>

#include "model/SceneryObject.h"

namespace map {

// Sets the flag of a hold-short node by the links that meet there and the nearest runway, as an edit of the running
// action. Nothing for other nodes, without links, without a runway, or when the flag is right already.
void UpdateHoldShort(model::SceneryObject* node);

// What the flags of the hold-short nodes would have to be. The objects are compared only, never followed.
using HoldShortSides = std::unordered_map<const model::SceneryObject*, bool>;
HoldShortSides NoteHoldShorts();

// After an edit that moved, deleted or changed something, in the same action: sets the flags that have to be others
// than before it. What the user turned round by hand stays so while its surroundings do.
void FollowHoldShorts(const HoldShortSides& before);

// Deletes what is selected (model/DeleteRules.h), and the flags follow. The number of recorded deletions and changes.
int EraseSelected();

}  // namespace map
