// Navaids.h - the navaids that scenery files hold in sections of their own.
#pragma once

#include <functional>

#include "bgl/ByteReader.h"
#include "bgl/SceneryFile.h"

namespace bgl {

struct NavaidRecord {
    RecordHead head;
    Bytes body;
    size_t subsection = 0;  // a running number over all sections of the type
};

// Calls visit with each record of the file's sections of that type; wanted(subsection id) chooses the
// subsections, and only those are read.
void WalkNavaids(SceneryFile* file, uint32_t sectionType, const std::function<bool(uint32_t)>& wanted,
                 const std::function<void(const NavaidRecord&)>& visit);

// Appends all navaids of an airport's own file, none of them stock. Those of one kind come in an order
// from which the writer makes the same sections and the same index again.
void AppendOwnNavaids(SceneryFile* file);

// Appends, marked stock, what lies near the current airport: VORs, DMEs and NDBs in the rectangle of 26
// nautical miles, markers in that of 11, ILSs in that of 3; and all ILSs of the airport itself.
void AppendStockNavaids(SceneryFile* file);

// Ties every navaid that is not stock to the nearest stock one of the same kind, identifier and region:
// it was made by editing that one, and replaces it.
void TieReplacements();

}  // namespace bgl
