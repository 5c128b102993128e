// DesignatorBox.h - typing into the toolbar's designator box, and giving a designator to the selection.
#pragma once

#include <string>

#include "model/SceneryObject.h"

namespace dialogs {

using model::SceneryObject;

constexpr size_t kTypedLimit = 19;      // characters read of the box
constexpr size_t kDesignatorLimit = 7;  // characters of a name

// Whether the text names a designator that the airport lacks.
bool NamesNewDesignator(const std::string& typed);

// The user has finished typing. Returns the designator that is current from now on, null for none: an
// existing one of that name, or a new one that the user agreed to. When it is another than `current` the
// selected links get it, in the action that made it.
SceneryObject* TypeDesignator(const std::string& typed, SceneryObject* current);

}  // namespace dialogs
