// MovedPoints.cpp - see MovedPoints.h.
#include "map/MovedPoints.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstddef>
#include <cstring>

#include "map/ApronShape.h"
#include "map/LightStrips.h"
#include "map/Placing.h"
#include "map/Selection.h"
#include "model/Positions.h"
#include "model/Records.h"

namespace map {

using model::EncodedPoint;
using model::PayloadAs;
using model::SceneryObject;

namespace {

using Points = std::vector<uint32_t>;

constexpr uint32_t Offset(size_t offset) { return static_cast<uint32_t>(offset); }

EncodedPoint PointAt(const SceneryObject* object, uint32_t offset) {
    assert(offset + sizeof(EncodedPoint) <= object->payloadSize);
    EncodedPoint point;
    std::memcpy(&point, object->payload + offset, sizeof point);
    return point;
}

// The outline; of a whole apron also the corners of its painted triangles, which may be others.
Points ApronPoints(const SceneryObject* apron, bool whole) {
    const auto& head = PayloadAs<model::ApronHead>(apron);
    const size_t room = (apron->payloadSize - sizeof head) / sizeof(EncodedPoint);
    const size_t corners = std::min<size_t>(head.outlineCount, room);
    const size_t all = std::min<size_t>(corners + head.vertexCount, room);
    Points points;
    for (size_t i = 0; i < (whole ? all : corners); ++i) {
        if (whole || IsVertexSelected(apron, static_cast<uint32_t>(i)))
            points.push_back(Offset(sizeof head + i * sizeof(EncodedPoint)));
    }
    return points;
}

constexpr uint32_t StripEnd(uint32_t strip, bool end) {
    const size_t place =
        end ? offsetof(model::EdgeLightStrip, endLongitude) : offsetof(model::EdgeLightStrip, startLongitude);
    return Offset(sizeof(model::EdgeLightsHead) + strip * sizeof(model::EdgeLightStrip) + place);
}

bool SamePlace(EncodedPoint a, EncodedPoint b) { return a.longitude == b.longitude && a.latitude == b.latitude; }

// The selected ends, those of selected segments, and every end that lies exactly on one of them: strips that were
// joined stay joined.
Points StripPoints(const SceneryObject* lights, bool whole) {
    Points all, selected;
    for (uint32_t i = 0; i < StripCount(lights); ++i) {
        const LightStrip strip = StripAt(lights, i);
        all.push_back(StripEnd(i, false));
        all.push_back(StripEnd(i, true));
        if (strip.segmentSelected || strip.startSelected) selected.push_back(StripEnd(i, false));
        if (strip.segmentSelected || strip.endSelected) selected.push_back(StripEnd(i, true));
    }
    if (whole) return all;
    std::erase_if(all, [&](uint32_t point) {
        return std::none_of(selected.begin(), selected.end(),
                            [&](uint32_t other) { return SamePlace(PointAt(lights, point), PointAt(lights, other)); });
    });
    return all;
}

Points IlsPoints(const SceneryObject* ils, bool whole) {
    const auto& payload = PayloadAs<model::IlsPayload>(ils);
    const int parts = whole ? model::kAllIlsParts : payload.selectedParts;
    Points points;
    if (parts & model::kLocalizerPart) points.push_back(offsetof(model::VorRecord, longitude));
    if ((parts & model::kGlideSlopePart) && (payload.body.flags & model::kHasGlideSlope))
        points.push_back(offsetof(model::IlsPayload, glideSlope) + offsetof(model::GlideSlopePart, longitude));
    if ((parts & model::kDmePart) && (payload.body.flags & model::kHasDme))
        points.push_back(offsetof(model::IlsPayload, dme) + offsetof(model::DmePart, longitude));
    return points;
}

Points VorPoints(const SceneryObject* vor) {
    Points points = { offsetof(model::VorRecord, longitude) };
    if (PayloadAs<model::VorDmePayload>(vor).body.flags & model::kHasDme)
        points.push_back(offsetof(model::VorDmePayload, dme) + offsetof(model::DmePart, longitude));
    return points;
}

// A tower that stands nowhere yet cannot be moved.
Points TowerPoints(const SceneryObject* tower) {
    return StandsNowhere(tower) ? Points{} : Points{ offsetof(model::TowerViewpointRecord, longitude) };
}

bool ShiftMarker(SceneryObject* marker, model::Local offset) {
    model::LatLon place = model::LocalToLatLon(model::PositionOf(marker), offset);
    if (!IsPlaceable(&place)) return false;
    model::SetPosition(marker, place);
    return true;
}

}  // namespace

Points MovingPoints(const SceneryObject* object, bool whole) {
    switch (model::KindOf(object)) {
    case model::kTowerViewpoint: return TowerPoints(object);
    case model::kApron: return ApronPoints(object, whole);
    case model::kApronEdgeLights: return StripPoints(object, whole);
    case model::kIls: return IlsPoints(object, whole);
    case model::kVorDme: return VorPoints(object);
    default: break;
    }
    const uint32_t offset = model::PositionOffset(model::KindOf(object));
    return offset == model::kNoPosition ? Points{} : Points{ offset };
}

bool ShiftPoints(SceneryObject* object, const Points& points, model::Local offset) {
    if (model::KindOf(object) == model::kReferenceMarker) return ShiftMarker(object, offset);
    std::vector<EncodedPoint> shifted;
    for (const uint32_t at : points) {
        const EncodedPoint point = PointAt(object, at);
        const model::LatLon place =
            model::LocalToLatLon(model::BglToLatLon({ point.latitude, point.longitude }), offset);
        if (!(std::fabs(place.lat) < model::kPi / 2)) return false;
        const model::BglPoint code = model::LatLonToBgl(place);
        shifted.push_back({ code.lonCode, code.latCode });
    }
    for (size_t i = 0; i < points.size(); ++i) std::memcpy(object->payload + points[i], &shifted[i], sizeof shifted[i]);
    return true;
}

}  // namespace map
