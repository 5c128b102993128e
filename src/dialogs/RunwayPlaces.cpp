// RunwayPlaces.cpp - see RunwayPlaces.h.
#include "dialogs/RunwayPlaces.h"

#include <cmath>
#include <cstring>

#include "dialogs/RunwayParts.h"
#include "model/Geometry.h"
#include "model/Positions.h"

namespace dialogs {

namespace {

constexpr double kLongest = 1e6;  // metres: more is no length, whatever a file says

double Sane(double value) { return std::isfinite(value) && std::fabs(value) <= kLongest ? value : 0; }

}  // namespace

RunwayPlane PlaneOf(const SceneryObject* runway) {
    const auto& body = model::PayloadAs<model::RunwayPayload>(runway).body;
    return { model::PositionOf(runway), Sane(body.heading) * model::kRadiansPerDegree,
             std::fabs(Sane(body.length) / 2) };
}

model::Point PlaceIn(const RunwayPlane& plane, model::LatLon position) {
    const model::Local local = model::LatLonToLocal(plane.centre, position);
    const double s = std::sin(plane.heading), c = std::cos(plane.heading);
    return { local.east * c - local.north * s, local.east * s + local.north * c };
}

model::LatLon PositionIn(const RunwayPlane& plane, model::Point place) {
    const double s = std::sin(plane.heading), c = std::cos(plane.heading);
    return model::LocalToLatLon(plane.centre, { place.y * s + place.x * c, place.y * c - place.x * s });
}

float EndHeading(const RunwayEndRef& ref) {
    const double heading = Sane(model::PayloadAs<model::RunwayPayload>(ref.runway).body.heading);
    return model::WrappedHeading(heading + (ref.end == kReciprocalEnd ? 180 : 0));
}

double BlastPadLength(const RunwayEndRef& ref) {
    model::RunwayAreaPart pad;
    std::memcpy(&pad, ref.runway->payload + kEndPlaces[ref.end].blastPad, sizeof pad);
    return Sane(pad.length);
}

model::EncodedPoint PlaceFromThreshold(const RunwayEndRef& ref, double inward, double right) {
    const RunwayPlane plane = PlaneOf(ref.runway);
    model::RunwayAreaPart displaced;
    std::memcpy(&displaced, ref.runway->payload + kEndPlaces[ref.end].displaced, sizeof displaced);
    const double along = -(plane.halfLength - Sane(displaced.length)) + inward;
    const double sign = ref.end == kBaseEnd ? 1 : -1;  // one lands against the heading at the reciprocal end
    const model::BglPoint code = model::LatLonToBgl(PositionIn(plane, { sign * right, sign * along }));
    return { code.lonCode, code.latCode };
}

}  // namespace dialogs
