// HoldShortMarkings.h - the painted holding positions across taxiways.
#pragma once

#include "map/Painter.h"

namespace map {

// At hold-short nodes two solid and two dashed bars, at ILS hold-short nodes a ladder.
void PaintHoldShortMarkings(const Painter& painter);

}  // namespace map
