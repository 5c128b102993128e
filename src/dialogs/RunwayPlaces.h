// RunwayPlaces.h - places given by a runway end: metres from its landing threshold.
#pragma once

#include "dialogs/Choices.h"
#include "model/Geodesy.h"
#include "model/Geometry.h"
#include "model/Records.h"

namespace dialogs {

// A runway's own plane: x metres to the right of its heading, y metres along it, from its centre.
struct RunwayPlane {
    model::LatLon centre;
    double heading = 0, halfLength = 0;  // radians, metres
};
RunwayPlane PlaneOf(const SceneryObject* runway);

// Each undoes the other: both go along the parallel of the position, while model::PlaceOnRunway, which decides what
// lies on a runway, takes that of the centre.
model::Point PlaceIn(const RunwayPlane& plane, model::LatLon position);
model::LatLon PositionIn(const RunwayPlane& plane, model::Point place);

float EndHeading(const RunwayEndRef& ref);       // degrees true in which one lands there, [0, 360)
double BlastPadLength(const RunwayEndRef& ref);  // metres

// The point `inward` metres past the landing threshold (the runway end, or the displaced threshold) and
// `right` metres to the right of the approach.
model::EncodedPoint PlaceFromThreshold(const RunwayEndRef& ref, double inward, double right);

}  // namespace dialogs
