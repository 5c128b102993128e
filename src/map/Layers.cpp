// Layers.cpp - see Layers.h.
#include "map/Layers.h"

#include "model/SceneryObject.h"

namespace map {

bool MapLayers::*LayerOf(uint32_t kind) {
    switch (kind) {
    case model::kTaxiNode:
    case model::kTaxiLink:
    case model::kParkingSpot: return &MapLayers::network;
    case model::kApronEdgeLights: return &MapLayers::lights;
    case model::kStartLocation: return &MapLayers::starts;
    case model::kIls:
    case model::kMarkerBeacon:
    case model::kNdb:
    case model::kVorDme: return &MapLayers::navaids;
    default: return nullptr;
    }
}

}  // namespace map
