// Network.cpp - see Network.h.
#include "faults/Network.h"

#include <unordered_map>

#include "model/ObjectList.h"
#include "model/Positions.h"
#include "model/Records.h"

namespace faults {

namespace {

using PlaceIndices = std::unordered_map<const SceneryObject*, uint32_t>;

// A pointer to what is not in the list counts as no end.
uint32_t IndexOf(const PlaceIndices& indices, const SceneryObject* object) {
    const auto found = indices.find(object);
    return found == indices.end() ? kNone : found->second;
}

void CountEnd(Network* network, uint32_t place, uint32_t otherEnd, bool closed) {
    if (place == kNone) return;
    Place& at = network->places[place];
    ++at.linkCount;
    at.closedCount += closed;
    at.neighbour = otherEnd;
}

void ConnectLinks(Network* network) {
    PlaceIndices indices;
    indices.reserve(network->places.size());
    for (uint32_t i = 0; i < network->places.size(); ++i) indices.emplace(network->places[i].object, i);
    for (Link& link : network->links) {
        const auto& payload = model::PayloadAs<model::TaxiLinkPayload>(link.object);
        link.type = model::LinkTypeOf(payload);
        link.start = IndexOf(indices, payload.start);
        link.end = IndexOf(indices, payload.end);
        const bool closed = link.type == model::kClosedLink;
        CountEnd(network, link.start, link.end, closed);
        if (link.end != link.start) CountEnd(network, link.end, link.start, closed);
    }
}

}  // namespace

Network ReadNetwork() {
    Network network;
    for (SceneryObject* object = model::state.head; object; object = object->next) {
        switch (model::KindOf(object)) {
        case model::kTaxiNode:
        case model::kParkingSpot: {
            Place place;
            place.object = object;
            place.position = model::PositionOf(object);
            place.isNode = model::KindOf(object) == model::kTaxiNode;
            network.places.push_back(place);
            break;
        }
        case model::kTaxiLink: network.links.push_back({ .object = object }); break;
        case model::kRunway: network.runways.push_back(model::AreaOf(object)); break;
        case model::kStartLocation: network.startLocations.push_back(object); break;
        case model::kApron: network.aprons.push_back(object); break;
        default: break;
        }
    }
    ConnectLinks(&network);
    return network;
}

}  // namespace faults
