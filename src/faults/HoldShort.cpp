// HoldShort.cpp - check 0: hold-short nodes too far from every runway.
#include <algorithm>

#include "faults/Checks.h"
#include "faults/Messages.h"
#include "faults/Plane.h"
#include "model/Records.h"

namespace faults {

namespace {

double DistanceToSides(const model::RunwayArea& area, Point place) {
    const double left = -area.halfWidth, right = area.halfWidth;
    const Point corners[] = { { left, area.low }, { right, area.low }, { right, area.high }, { left, area.high } };
    double least = DistanceToSegment(place, corners[3], corners[0]);
    for (int i = 0; i < 3; ++i) least = std::min(least, DistanceToSegment(place, corners[i], corners[i + 1]));
    return least;
}

bool IsAcceptable(const model::RunwayArea& area, LatLon node) {
    if (DistanceToSides(area, model::PlaceOnRunway(area, node)) <= model::kHoldShortLimit) return true;
    // Inside a narrower runway an edge is always near.
    return area.width * model::kFeetPerMetre >= kWideRunway && model::Contains(area, node);
}

bool IsHoldShort(const Place& place) {
    return place.isNode && model::PayloadAs<model::TaxiNodeRecord>(place.object).type == model::kHoldShortNode;
}

}  // namespace

bool FindHoldShortFault(const PassData& data, size_t from, Finding* finding) {
    for (size_t i = from; i < data.network.places.size(); ++i) {
        const Place& place = data.network.places[i];
        if (!IsHoldShort(place)) continue;
        const auto accepts = [&](const model::RunwayArea& area) { return IsAcceptable(area, place.position); };
        if (std::any_of(data.network.runways.begin(), data.network.runways.end(), accepts)) continue;
        finding->report = { FaultCheck::HoldShortLimits, kHoldShortMessage, { place.object }, place.position };
        finding->resumeAt = i + 1;
        return true;
    }
    return false;
}

}  // namespace faults
