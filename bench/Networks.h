// Networks.h - airports of a given size for whatever must not depend on it.
#pragma once

#include <cstdint>

#include "fakes/RandomAirport.h"

// A quarter more links than nodes, a quarter as many spots.
inline void MakeNetworkOfNodes(uint32_t nodes) {
    AirportCounts counts;
    counts.nodes = nodes;
    counts.links = nodes + nodes / 4;
    counts.spots = nodes / 4;
    MakeRandomAirport(nodes, counts);
}
