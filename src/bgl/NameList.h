// NameList.h - the names under which the simulator files an airport: country, state, city and its own.
//
// One record holds a list of strings for each level and, for each airport, the numbers of its strings.
// All texts here are Windows-1252.
#pragma once

#include <string>
#include <vector>

#include "bgl/ByteReader.h"
#include "bgl/ByteWriter.h"
#include "bgl/SceneryStructure.h"
#include "model/Records.h"

namespace bgl {

struct NamedAirport {
    std::string country, state, city, name;
    uint32_t ident = 0;  // as the airport record holds it, low bits included
    model::EncodedPoint position;
};

// Appends the record, with every string once. False, with nothing appended, when the airports need more
// different strings than the index fields can number.
bool WriteNameList(const std::vector<NamedAirport>& airports, ByteWriter* out);

// A name list record of any size, damaged or not; the record may say 0 as its own size.
struct NameListView {
    Bytes bytes;
    uint32_t airportCount = 0;
};
bool OpenNameList(Bytes subsection, NameListView* list);

// The airport's place in the file is not filled in. Strings that cannot be found are empty.
NamedAirport NameListEntry(const NameListView& list, uint32_t index);

// The entry of the airport with that ident word, from the first name list that has one.
bool FindNames(SceneryStructure* file, uint32_t ident, NamedAirport* names);

}  // namespace bgl
