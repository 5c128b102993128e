// IlsEnds.h - which runway end an ILS serves, and which of several ends an object stands nearest to.
//
// Places are those that the records hold: where an open dialog shows an object for the time being does not count.
#pragma once

#include <functional>

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

uint32_t IdentOfIls(const SceneryObject* ils);  // packed, as runways name it

// The packed ident of the ILS that the runway names for the end; 0 for none.
uint32_t IlsNamedBy(const SceneryObject* runway, RunwayEnd end);

// Whether the localizer's bytes for its runway end are those of a stock file, which are not to be relied on: of a
// stock ILS, and of what replaces one until the user chooses another end.
bool HasStockEnd(const SceneryObject* ils);

// The end that the ILS serves; no runway when there is none. Ends are tied to it by naming its ident or, if they name
// none, by their name in the localizer of an ILS with this airport in its region word. An end that is tied both ways
// comes first (new ILSs start with one ident), an ident counts more than the bytes of a stock file, and of several that
// are left it is the nearest.
IlsEnd ServedEnd(const SceneryObject* ils);
bool IlsServes(const SceneryObject* ils, const SceneryObject* runway, RunwayEnd end);

// The end with the highest rank above 0 and, of several, the nearest; no runway when there is none. A localizer stands
// behind the other end of the runway, anything else at the end itself.
using EndRank = std::function<int(const IlsEnd& end)>;
IlsEnd NearestEnd(const SceneryObject* object, const EndRank& rank);

// The end that the localizer stands behind, whatever the two name. No runway when the airport has none.
IlsEnd EndByPlace(const SceneryObject* ils);

}  // namespace model
