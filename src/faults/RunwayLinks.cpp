// RunwayLinks.cpp - check 5: runway links beside runways or named after another one.
#include <algorithm>
#include <cstdio>

#include "faults/Checks.h"
#include "faults/Messages.h"
#include "model/Names.h"
#include "model/Records.h"

namespace faults {

namespace {

// The runway that the link is named after; null when it is named after none that still exists.
const SceneryObject* DesignatedRunway(const Network& network, const Link& link) {
    const SceneryObject* named = model::PayloadAs<model::TaxiLinkPayload>(link.object).designator;
    const auto isNamed = [&](const model::RunwayArea& area) { return area.runway == named; };
    return std::any_of(network.runways.begin(), network.runways.end(), isNamed) ? named : nullptr;
}

// False when the link's name fits.
bool JudgeLink(const Network& network, const Link& link, LatLon start, LatLon end, std::string* message) {
    const model::RunwayArea* under = model::RunwayUnder(network.runways, start, end);
    if (!under) {
        *message = kMisplacedLinkMessage;
        return true;
    }
    const SceneryObject* named = DesignatedRunway(network, link);
    const std::string linkName = named ? model::RunwayName(named) : "(blank)",
                      runwayName = model::RunwayName(under->runway);
    // By name: a file knows the designator by it, so that of two runways of one name a link means either.
    if (linkName == runwayName) return false;
    char text[1000];
    std::snprintf(text, sizeof text, kLinkDesignatorMessage, linkName.c_str(), runwayName.c_str());
    *message = text;
    return true;
}

}  // namespace

bool FindRunwayLinkFault(const PassData& data, size_t from, Finding* finding) {
    const Network& network = data.network;
    for (size_t i = from; i < network.links.size(); ++i) {
        const Link& link = network.links[i];
        if (link.type != model::kRunwayLink || !HasBothEnds(link)) continue;
        const LatLon start = network.places[link.start].position, end = network.places[link.end].position;
        std::string message;
        if (!JudgeLink(network, link, start, end, &message)) continue;
        finding->report = { FaultCheck::RunwayLinks, message, { link.object }, model::MidpointOf(start, end) };
        finding->mark = nullptr;
        finding->resumeAt = i + 1;
        return true;
    }
    return false;
}

}  // namespace faults
