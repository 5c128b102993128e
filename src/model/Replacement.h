// Replacement.h - the navaids of the simulator's own files are never changed: who edits one makes a replacement.
#pragma once

#include "model/SceneryObject.h"

namespace model {

// Adds `edited`, a changed copy of the stock object, as its replacement and ties the two to each other: two edits of
// the running action. The replacement keeps the selection; the stock object loses it.
void ReplaceStock(SceneryObject* edited, SceneryObject* stock);

}  // namespace model
