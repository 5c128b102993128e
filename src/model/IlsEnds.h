// IlsEnds.h - which runway end an ILS serves.
#pragma once

#include "model/SceneryObject.h"

namespace model {

// The two ends of a runway.
enum class RunwayEnd { Primary, Secondary };

struct IlsEnd {
    SceneryObject* runway = nullptr;
    RunwayEnd end = RunwayEnd::Primary;
    bool operator==(const IlsEnd&) const = default;
};

// Whether the localizer's bytes for its runway end are the number and the designator of that end.
bool LocalizerNames(const SceneryObject* ils, const SceneryObject* runway, RunwayEnd end);

// The packed ident of the ILS that the runway names for the end; 0 for none.
uint32_t IlsNamedBy(const SceneryObject* runway, RunwayEnd end);

// Whether the localizer's bytes for its runway end are those of a stock file, which are not to be relied on: of a
// stock ILS, and of what replaces one until the user chooses another end.
bool HasStockEnd(const SceneryObject* ils);

// Whether the ILS serves that end: the runway names its ident or, when the runway names none there, its localizer names
// the end and its region word this airport. Where several ends name the ident, the localizer tells which one it is (new
// ILSs start with one ident); where several have the name, it is the one that names the ident. An ILS with the bytes of
// a stock file serves no unnamed end once any end names its ident.
bool IlsServes(const SceneryObject* ils, const SceneryObject* runway, RunwayEnd end);

// Whether the ILS is deleted with the runway: a stock one does not belong to an end that does not name it.
bool IlsBelongsTo(const SceneryObject* ils, const SceneryObject* runway, RunwayEnd end);

// The end that the localizer stands behind: seen from there the nearest far end of a runway. No runway when the
// airport has none.
IlsEnd EndByPlace(const SceneryObject* ils);

}  // namespace model
