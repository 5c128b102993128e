// EdgeLightsTool.h - strips of apron edge lights, pulled from their first point to their last.
#pragma once

#include "model/Geodesy.h"
#include "model/Geometry.h"

namespace map {

// A strip under construction. Its ends keep exactly to the ends of existing strips that they are put on.
struct StripDrag {
    bool active = false;
    model::LatLon from, to;
    bool hasTo = false;  // far enough for a strip
    double spacing = 0;  // metres between its lamps
};
const StripDrag& CurrentStripDrag();

bool BeginStrip(model::Pixel at);  // false where there is no place on earth
void FollowStrip(model::Pixel pointer);
// Adds the strip to the airport's edge lights, which are made when it has none.
void FinishStrip(model::Pixel pointer);
void CancelStrip();
void ForgetStrip();

}  // namespace map
