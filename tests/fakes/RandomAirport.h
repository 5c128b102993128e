// RandomAirport.h - airports of any shape from a number, the same on every system.
#pragma once

#include <cstdint>

// A small generator of our own (SplitMix64): the standard library's distributions differ between systems.
struct Random {
    uint64_t state = 0;
};
uint64_t Next(Random* random);
uint32_t Below(Random* random, uint32_t limit);  // 0 to limit - 1; limit is not 0
bool OneIn(Random* random, uint32_t limit);

struct AirportCounts {
    uint32_t runways = 0, helipads = 0, comms = 0, starts = 0, nodes = 0, spots = 0, links = 0, designators = 0;
    uint32_t aprons = 0, openAprons = 0, strips = 0, ilss = 0, vors = 0, markers = 0, ndbs = 0, stockNavaids = 0;
    uint32_t cells = 4;               // that the navaids of each section lie in, at most
    uint32_t apronVertices = 6;       // at most
    uint32_t exactApronVertices = 0;  // of one apron more, its outline and its surface; 0 for no such apron
};
AirportCounts SmallCounts(Random* random);  // a handful of everything, sometimes nothing
AirportCounts LargeCounts();                // 800 nodes, 1100 links, 400 spots

// Clears the model and fills it. Kinds come mixed, carried fields hold anything, names have every length,
// and what lives in memory only (selection, view words, guidelines) is set too.
void MakeRandomAirport(uint64_t seed, const AirportCounts& counts);

// Gives the open airport the form in which it reads back: drops what no file carries, and fills in what
// reading puts in place of what is missing.
void MakeReadable();
