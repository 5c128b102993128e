// Navaids.h - the navaids that scenery files hold in sections of their own.
#pragma once

#include <functional>
#include <initializer_list>

#include "bgl/ByteReader.h"
#include "bgl/SceneryStructure.h"

namespace bgl {

struct NavaidRecord {
    RecordHead head;
    Bytes body;
    size_t subsection = 0;  // a running number of those that were wanted, over all sections of the walk
};

// Calls visit with each record of the file's sections of those types, in the order of the section table;
// wanted(subsection id) chooses the subsections, and only those are read.
void WalkNavaids(SceneryStructure* file, std::initializer_list<uint32_t> sectionTypes,
                 const std::function<bool(uint32_t)>& wanted, const std::function<void(const NavaidRecord&)>& visit);

// Appends all navaids of an airport's own file, none of them stock. Those of one kind come in an order
// from which the writer makes the same sections and the same index again.
void AppendOwnNavaids(SceneryStructure* file);

// Appends, marked stock, what lies near the current airport: VORs, DMEs and NDBs in the rectangle of 26
// nautical miles, markers in that of 11, ILSs in that of 3, and ILSs of the airport itself outside it; of cells that
// the largest rectangle meets.
void AppendStockNavaids(SceneryStructure* file);

// Ties navaids that are not stock to stock ones: each was made by editing that one, and replaces it. The two are of
// one kind, identifier and region, and of all such pairs the nearest come first. Identifiers of marker beacons
// ("OM") repeat from approach to approach, and a blank identifier names nothing: such pairs also stand within
// kSamePlace of each other.
void TieReplacements();
constexpr double kSamePlace = 1852;  // metres: farther than a marker is ever corrected, nearer than the next approach's

}  // namespace bgl
