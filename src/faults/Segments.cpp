// Segments.cpp - check 2: groups of links, parking spots and nodes without a way to the rest of the airport.
//
// Groups are formed as if by sweeping over the links again and again, last link of the list first, each sweep
// taking what touches the group by then. Which link is taken last decides the point that is shown, so the
// sweeps are followed exactly, with two queues in place of the walks: what this sweep will still reach, and
// what it has already passed.
#include <algorithm>
#include <functional>
#include <queue>

#include "faults/Checks.h"
#include "faults/Messages.h"
#include "model/Records.h"

namespace faults {

namespace {

// A link's place in the sweeps: 0 is the last open link of the list.
using Turns = std::priority_queue<uint32_t, std::vector<uint32_t>, std::greater<>>;

struct Pool {
    const Network* network;
    std::vector<uint32_t> links;                   // by turn
    std::vector<bool> taken;                       // by turn
    std::vector<uint32_t> firstAtPlace, atPlaces;  // turns of the links at place p: atPlaces from firstAtPlace[p] on
    std::vector<bool> marked;                      // by place
};

template <class Visit>
void VisitEnds(const Network& network, uint32_t link, const Visit& visit) {
    visit(network.links[link].start);
    visit(network.links[link].end);
}

Pool MakePool(const Network& network) {
    Pool pool;
    pool.network = &network;
    for (size_t i = network.links.size(); i-- > 0;) {
        const Link& link = network.links[i];
        if (link.type != model::kClosedLink && HasBothEnds(link)) pool.links.push_back(static_cast<uint32_t>(i));
    }
    pool.taken.assign(pool.links.size(), false);
    pool.marked.assign(network.places.size(), false);
    pool.firstAtPlace.assign(network.places.size() + 1, 0);
    for (uint32_t link : pool.links) VisitEnds(network, link, [&](uint32_t end) { ++pool.firstAtPlace[end + 1]; });
    for (size_t i = 1; i < pool.firstAtPlace.size(); ++i) pool.firstAtPlace[i] += pool.firstAtPlace[i - 1];
    pool.atPlaces.resize(pool.firstAtPlace.back());
    std::vector<uint32_t> next(pool.firstAtPlace.begin(), pool.firstAtPlace.end() - 1);
    for (uint32_t turn = 0; turn < pool.links.size(); ++turn) {
        VisitEnds(network, pool.links[turn], [&](uint32_t end) { pool.atPlaces[next[end]++] = turn; });
    }
    return pool;
}

// Takes the group of the first link that is left; the link that is taken last comes first.
std::vector<uint32_t> TakeGroup(Pool* pool, uint32_t firstTurn) {
    std::vector<uint32_t> group;
    Turns thisSweep, nextSweep;
    const auto markEnds = [&](uint32_t turn, bool sweepIsThere) {
        VisitEnds(*pool->network, pool->links[turn], [&](uint32_t end) {
            if (pool->marked[end]) return;
            pool->marked[end] = true;
            for (uint32_t i = pool->firstAtPlace[end]; i < pool->firstAtPlace[end + 1]; ++i) {
                const uint32_t other = pool->atPlaces[i];
                if (!pool->taken[other]) (sweepIsThere && other < turn ? nextSweep : thisSweep).push(other);
            }
        });
    };
    markEnds(firstTurn, false);
    while (!thisSweep.empty()) {
        while (!thisSweep.empty()) {
            const uint32_t turn = thisSweep.top();
            thisSweep.pop();
            if (pool->taken[turn]) continue;
            pool->taken[turn] = true;
            group.push_back(pool->links[turn]);
            markEnds(turn, true);
        }
        std::swap(thisSweep, nextSweep);
    }
    std::reverse(group.begin(), group.end());
    return group;
}

bool IsSegmentMarked(const Place& place) { return (place.object->flags & kSegmentMark) != 0; }

void TellSegment(const Network& network, const std::vector<uint32_t>& group, FaultReport* report) {
    *report = { FaultCheck::IsolatedSegments, kIsolatedSegmentMessage, {}, {} };
    std::vector<bool> listed(network.places.size(), false);
    bool hasParking = false;
    for (uint32_t link : group) {
        report->objects.push_back(network.links[link].object);
        VisitEnds(network, link, [&](uint32_t end) {
            hasParking |= !network.places[end].isNode;
            if (!listed[end]) report->objects.push_back(network.places[end].object);
            listed[end] = true;
        });
    }
    if (hasParking) report->message += kSegmentWithParkingMessage;
    report->position = network.places[network.links[group.front()].start].position;
}

void TellAlone(const Place& place, const char* message, Finding* finding) {
    finding->report = { FaultCheck::IsolatedSegments, message, { place.object }, place.position };
    finding->mark = place.object;
}

}  // namespace

void PrepareSegments(PassData* data) {
    Pool pool = MakePool(data->network);
    std::vector<std::vector<uint32_t>> groups;
    for (uint32_t turn = 0; turn < pool.links.size() && groups.size() < kSegmentLimit; ++turn) {
        if (!pool.taken[turn]) groups.push_back(TakeGroup(&pool, turn));
    }
    const auto smaller = [](const auto& a, const auto& b) { return a.size() < b.size(); };
    const auto main = std::max_element(groups.begin(), groups.end(), smaller);  // the first of the largest
    if (main != groups.end()) groups.erase(main);
    data->segments.told = std::move(groups);
    data->marked.clear();
    for (size_t i = 0; i < pool.marked.size(); ++i) {
        if (pool.marked[i]) data->marked.push_back(data->network.places[i].object);
    }
}

// Counts the segments first, then all places for isolated parking, then all places again for isolated nodes.
bool FindIsolation(const PassData& data, size_t from, Finding* finding) {
    const std::vector<Place>& places = data.network.places;
    const size_t segmentCount = data.segments.told.size(), count = places.size();
    if (from < segmentCount) {
        TellSegment(data.network, data.segments.told[from], &finding->report);
        finding->mark = nullptr;
        finding->resumeAt = from + 1;
        return true;
    }
    for (size_t i = from - segmentCount; i < 2 * count; ++i) {
        const bool wantsNode = i >= count;
        const Place& place = places[wantsNode ? i - count : i];
        if (place.isNode != wantsNode || IsSegmentMarked(place) || (wantsNode && IsClosedOnly(place))) continue;
        TellAlone(place, wantsNode ? kIsolatedNodeMessage : kIsolatedParkingMessage, finding);
        finding->resumeAt = segmentCount + i + 1;
        return true;
    }
    return false;
}

}  // namespace faults
