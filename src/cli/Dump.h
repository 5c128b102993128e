// Dump.h - the open airport as JSON.
#pragma once

#include <string>
#include <unordered_map>

#include "cli/Json.h"
#include "model/SceneryObject.h"

namespace cli {

// The airport in model::state: its names and every object in list order, ending in a line feed.
//
// Each object has "kind" (number), "name of the kind" as "what", "flags", "payload" in lower-case
// hexadecimal digits, and the decoded fields of its kind. Positions are degrees north and east, headings
// degrees, lengths and elevations metres, frequencies hertz. Pointers to objects are list positions.
std::string DumpModel();

// Where objects stand in the list, counted from 0.
using ListPositions = std::unordered_map<const model::SceneryObject*, int64_t>;

// The decoded fields of the object, into a JSON object that is open.
void WriteFields(JsonWriter* json, const model::SceneryObject* object, const ListPositions& positions);

}  // namespace cli
