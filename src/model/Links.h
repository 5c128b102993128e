// Links.h - taxi links between indices, as files hold them, and pointers, as the model holds them.
#pragma once

#include "model/SceneryObject.h"

namespace model {

bool IsBlankDesignator(const SceneryObject* designator);  // a TaxiDesignator without a name

// The first TaxiDesignator without a name: that of all links that have none. Null when the airport has no such.
SceneryObject* BlankDesignator();

// The same; when there is none it is added to the airport as an edit of the running action.
SceneryObject* BlankDesignatorForEdit();

// After reading: turns every link's indices into pointers (an index that finds nothing leaves null), then
// takes out and frees the links left without a start or an end. Not recorded in the history.
void ResolveLinks();

// Before writing: computes every link's indices afresh from its pointers. A pointer that is not in the list, and
// a missing designator, leave 0. The counts fit the fields (4096 nodes or spots, 256 designators): the writer
// checks.
void UpdateLinkIndices();

}  // namespace model
