// Positions.cpp - see Positions.h.
#include "model/Positions.h"

#include <cassert>
#include <cstring>

#include "model/Records.h"

namespace model {

uint32_t PositionOffset(uint32_t kind) {
    switch (kind) {
    case kAirport: return offsetof(AirportRecord, longitude);
    case kTowerViewpoint: return offsetof(TowerViewpointRecord, longitude);
    case kRunway: return offsetof(RunwayRecord, longitude);
    case kHelipad: return offsetof(HelipadRecord, longitude);
    case kStartLocation: return offsetof(StartLocationRecord, longitude);
    case kTaxiNode: return offsetof(TaxiNodeRecord, longitude);
    case kParkingSpot: return offsetof(ParkingSpotRecord, longitude);
    case kIls:
    case kVorDme: return offsetof(VorRecord, longitude);
    case kMarkerBeacon: return offsetof(MarkerBeaconPayload, longitude);
    case kNdb: return offsetof(NdbPayload, longitude);
    default: return kNoPosition;
    }
}

bool HasPosition(const SceneryObject* object) {
    return KindOf(object) == kReferenceMarker || PositionOffset(KindOf(object)) != kNoPosition;
}

BglPoint EncodedPositionOf(const SceneryObject* object) {
    const uint32_t offset = PositionOffset(KindOf(object));
    assert(offset != kNoPosition && offset + sizeof(EncodedPoint) <= object->payloadSize);
    EncodedPoint point;
    std::memcpy(&point, object->payload + offset, sizeof point);
    return { point.latitude, point.longitude };
}

LatLon PositionOf(const SceneryObject* object) {
    if (KindOf(object) == kReferenceMarker) {
        const auto& marker = PayloadAs<ReferenceMarkerPayload>(object);
        return { marker.latitude, marker.longitude };
    }
    return BglToLatLon(EncodedPositionOf(object));
}

void SetEncodedPosition(SceneryObject* object, BglPoint code) {
    const uint32_t offset = PositionOffset(KindOf(object));
    assert(offset != kNoPosition && offset + sizeof(EncodedPoint) <= object->payloadSize);
    const EncodedPoint point = { code.lonCode, code.latCode };
    std::memcpy(object->payload + offset, &point, sizeof point);
}

void SetPosition(SceneryObject* object, LatLon position) {
    if (KindOf(object) == kReferenceMarker) {
        auto& marker = PayloadAs<ReferenceMarkerPayload>(object);
        marker.latitude = position.lat;
        marker.longitude = position.lon;
        return;
    }
    SetEncodedPosition(object, LatLonToBgl(position));
}

}  // namespace model
