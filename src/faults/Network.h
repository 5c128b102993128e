// Network.h - the ground network as the checks need it: positions and degrees, computed once a pass.
//
// Everything stands in list order, so that the lowest index is what a walk over the object list meets first.
#pragma once

#include <cstdint>
#include <vector>

#include "model/Geodesy.h"
#include "model/RunwayArea.h"
#include "model/SceneryObject.h"

namespace faults {

using model::LatLon;
using model::SceneryObject;

constexpr uint32_t kNone = UINT32_MAX;

struct Place {  // a taxi node or a parking spot
    SceneryObject* object = nullptr;
    LatLon position;
    bool isNode = false;
    uint32_t linkCount = 0, closedCount = 0;  // links that end here; those of type Closed
    uint32_t neighbour = kNone;               // place at the other end of the last link in the list that ends here
};

struct Link {
    SceneryObject* object = nullptr;
    uint32_t type = 0;                    // model::LinkType
    uint32_t start = kNone, end = kNone;  // places
};

struct Network {
    std::vector<Place> places;
    std::vector<Link> links;
    std::vector<model::RunwayArea> runways;
    std::vector<SceneryObject*> startLocations, aprons;
};

Network ReadNetwork();  // from model::state

// Links end here and all of them are closed.
inline bool IsClosedOnly(const Place& place) { return place.linkCount > 0 && place.linkCount == place.closedCount; }

inline bool HasBothEnds(const Link& link) { return link.start != kNone && link.end != kNone; }

}  // namespace faults
