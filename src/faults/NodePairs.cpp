// NodePairs.cpp - checks 1 and 3: open ends beside nodes or links, and nodes on top of each other.
#include <algorithm>
#include <cmath>

#include "faults/Checks.h"
#include "faults/Messages.h"
#include "faults/Plane.h"

namespace faults {

namespace {

// Links are known to the grid by points along them.
constexpr double kSampleStep = 40;      // metres
constexpr double kLongLink = 2000;      // metres: not cut into points
constexpr double kBendAllowance = 1;    // metres that a straight link may bend away from its points; see IsBent
constexpr double kSteepLatitude = 0.1;  // cosine: nearer to a pole no link is cut

bool IsPairMarked(const Place& place) { return (place.object->flags & kPairMark) != 0; }

// The first node in list order that satisfies the rule, of those near the position.
template <class Rule>
uint32_t FirstNear(const NearGrid& grid, LatLon position, const Rule& rule) {
    std::vector<uint32_t> near;
    CollectNear(grid, position, &near);
    uint32_t first = kNone;
    for (uint32_t item : near) {
        if (item < first && rule(item)) first = item;
    }
    return first;
}

bool IsWithin(LatLon from, LatLon to, double limit) {
    if (std::fabs((to.lat - from.lat) * model::kNorthSouthRadius) > limit) return false;  // without its sines
    return model::DistanceBetween(from, to) <= limit;
}

// Partner and self apart, the first node that leaves a gap to this open end.
uint32_t NodeBeside(const PassData& data, uint32_t node, uint32_t partner) {
    const std::vector<Place>& places = data.network.places;
    return FirstNear(data.nodeGrid, places[node].position, [&](uint32_t other) {
        return other != node && other != partner && !IsClosedOnly(places[other]) &&
               IsWithin(places[node].position, places[other].position, kNodeGapLimit);
    });
}

bool IsLinkWithin(const Network& network, const Link& link, LatLon node) {
    const LatLon start = network.places[link.start].position, end = network.places[link.end].position;
    const double north = (start.lat - node.lat) * model::kNorthSouthRadius;
    const double endNorth = (end.lat - node.lat) * model::kNorthSouthRadius;
    if (std::min(north, endNorth) > kLinkGapLimit || std::max(north, endNorth) < -kLinkGapLimit) return false;
    const model::Local from = model::LatLonToLocal(node, start), to = model::LatLonToLocal(node, end);
    return DistanceToSegment({}, { from.east, from.north }, { to.east, to.north }) <= kLinkGapLimit;
}

uint32_t LinkBeside(const PassData& data, uint32_t node, uint32_t partner) {
    const Network& network = data.network;
    const auto rule = [&](uint32_t index) {
        const Link& link = network.links[index];
        if (link.start == node || link.end == node || link.start == partner || link.end == partner) return false;
        return IsLinkWithin(network, link, network.places[node].position);
    };
    const uint32_t first = FirstNear(data.linkGrid.grid, network.places[node].position, rule);
    for (uint32_t index : data.linkGrid.longLinks) {
        if (index >= first) break;
        if (rule(index)) return index;
    }
    return first;
}

bool FindGap(const PassData& data, uint32_t node, Finding* finding) {
    const Place& place = data.network.places[node];
    const uint32_t partner = place.linkCount == 1 ? place.neighbour : kNone;
    const uint32_t other = NodeBeside(data, node, partner);
    if (other != kNone) {
        SceneryObject* const second = data.network.places[other].object;
        finding->report = { FaultCheck::OpenLinks, kNodesUnconnectedMessage, { place.object, second }, place.position };
        finding->mark = second;
        return true;
    }
    const uint32_t link = LinkBeside(data, node, partner);
    if (link == kNone) return false;
    SceneryObject* const second = data.network.links[link].object;
    finding->report = { FaultCheck::OpenLinks, kLinkUnconnectedMessage, { place.object, second }, place.position };
    finding->mark = nullptr;
    return true;
}

// East distances shrink towards the poles, so that a link which is straight in the plane is none between its
// ends' latitudes and longitudes; it bends by at most tan(latitude) length^2 / (8 radii).
bool IsBent(LatLon start, LatLon end, double length) {
    const double cosine = std::min(std::fabs(std::cos(start.lat)), std::fabs(std::cos(end.lat)));
    return cosine < kSteepLatitude || length * length / cosine / 8 / model::kNorthSouthRadius > kBendAllowance;
}

bool IsShort(const Network& network, const Link& link, double* length) {
    const LatLon start = network.places[link.start].position, end = network.places[link.end].position;
    *length = model::DistanceBetween(start, end);
    return *length <= kLongLink && !IsBent(start, end, *length);
}

void InsertAlong(NearGrid* grid, LatLon start, LatLon end, double length, uint32_t item) {
    const int steps = std::max(1, static_cast<int>(std::ceil(length / kSampleStep)));
    const double dLat = end.lat - start.lat, dLon = std::remainder(end.lon - start.lon, model::kTwoPi);
    for (int i = 0; i <= steps; ++i) {
        const double share = static_cast<double>(i) / steps;
        Insert(grid, { start.lat + share * dLat, start.lon + share * dLon }, item);
    }
}

// A file can hold longitudes of more than one turn. Offsets between such places may point the wrong way, so
// that points along a link tell nothing about it.
bool IsBeyondOneTurn(const Place& place) { return std::fabs(place.position.lon) > model::kPi; }

LinkGrid GridOfLinks(const Network& network) {
    LinkGrid result;
    const bool turnsOver = std::any_of(network.places.begin(), network.places.end(), IsBeyondOneTurn);
    std::vector<double> lengths(network.links.size());
    double smallestCosine = 1;
    for (uint32_t i = 0; i < network.links.size(); ++i) {
        const Link& link = network.links[i];
        if (!HasBothEnds(link)) continue;
        if (!turnsOver && IsShort(network, link, &lengths[i])) {
            for (uint32_t end : { link.start, link.end })
                smallestCosine = std::min(smallestCosine, std::fabs(std::cos(network.places[end].position.lat)));
        } else {
            result.longLinks.push_back(i);
            lengths[i] = -1;
        }
    }
    result.grid = MakeGrid(kLinkGapLimit + kSampleStep / 2 + 2 * kBendAllowance, smallestCosine);
    for (uint32_t i = 0; i < network.links.size(); ++i) {
        const Link& link = network.links[i];
        if (!HasBothEnds(link) || lengths[i] < 0) continue;
        InsertAlong(&result.grid, network.places[link.start].position, network.places[link.end].position, lengths[i],
                    i);
    }
    Finish(&result.grid);
    return result;
}

}  // namespace

NearGrid GridOfNodes(const Network& network, double reach) {
    double smallestCosine = 1;
    for (const Place& place : network.places) {
        if (place.isNode) smallestCosine = std::min(smallestCosine, std::fabs(std::cos(place.position.lat)));
    }
    NearGrid grid = MakeGrid(reach, smallestCosine);
    for (uint32_t i = 0; i < network.places.size(); ++i) {
        if (network.places[i].isNode) Insert(&grid, network.places[i].position, i);
    }
    Finish(&grid);
    return grid;
}

void PrepareOpenLinks(PassData* data) {
    data->nodeGrid = GridOfNodes(data->network, kNodeGapLimit);
    data->linkGrid = GridOfLinks(data->network);
}

void PrepareOverlaps(PassData* data) { data->nodeGrid = GridOfNodes(data->network, kOverlapLimit); }

bool FindOpenLink(const PassData& data, size_t from, Finding* finding) {
    for (size_t i = from; i < data.network.places.size(); ++i) {
        const Place& place = data.network.places[i];
        if (!place.isNode || IsPairMarked(place) || place.linkCount > 1 || IsClosedOnly(place)) continue;
        if (!FindGap(data, static_cast<uint32_t>(i), finding)) continue;
        finding->resumeAt = i + 1;
        return true;
    }
    return false;
}

bool FindOverlap(const PassData& data, size_t from, Finding* finding) {
    const std::vector<Place>& places = data.network.places;
    for (size_t i = from; i < places.size(); ++i) {
        const Place& place = places[i];
        if (!place.isNode || IsPairMarked(place) || IsClosedOnly(place)) continue;
        const uint32_t other = FirstNear(data.nodeGrid, place.position, [&](uint32_t index) {
            return index != i && !IsClosedOnly(places[index]) &&
                   IsWithin(place.position, places[index].position, kOverlapLimit);
        });
        if (other == kNone) continue;
        SceneryObject* const second = places[other].object;
        finding->report = { FaultCheck::OverlappingNodes, kOverlapMessage, { place.object, second }, place.position };
        finding->mark = second;
        finding->resumeAt = i + 1;
        return true;
    }
    return false;
}

}  // namespace faults
