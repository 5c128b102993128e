// ApproachLights.h - the lamps of an approach light system, to scale.
#pragma once

#include <cstdint>
#include <span>

#include "map/Lamps.h"
#include "map/RunwayShape.h"

namespace map {

// One kind of bar that is repeated along the approach. Stations are metres out from the landing threshold.
struct ApproachRow {
    double first, last, step;  // stations, both ends included
    double inner;              // from the centre line to the first lamp of either side; 0: one bar centred on the line
    double gap;                // metres between the lamps
    int lamps;                 // of the bar; with `inner`, of either side
    Ink ink;
};

struct ApproachSystem {
    std::span<const ApproachRow> rows;
    int flashes = 0;                      // flashing lamps on the centre line that belong to the system
    double flashFrom = 0, flashStep = 0;  // the outermost one's station, and the step inward
    bool flashesBeside = false;           // two more beside the threshold
    bool thresholdBar = false;            // green, from 45 feet beside the runway to 45 feet beside it
};

const ApproachSystem& ApproachSystemOf(uint32_t code);  // one of model::ApproachLights; others: none

// The record's own number of flashing lamps goes before the system's.
void PaintApproachLights(Canvas* canvas, const RunwayShape& runway, const RunwayEnd& end);

}  // namespace map
