// Links.h - taxi links between indices, as files hold them, and pointers, as the model holds them.
#pragma once

namespace model {

// After reading: turns every link's indices into pointers (an index that finds nothing leaves null), then
// takes out and frees the links left without a start or an end. Not recorded in the history.
void ResolveLinks();

// Before writing: computes every link's indices afresh from its pointers. A pointer that is not in the
// list leaves 0. The counts fit the fields (4096 nodes or spots, 256 designators): the writer checks.
void UpdateLinkIndices();

}  // namespace model
