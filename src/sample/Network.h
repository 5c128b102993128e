// Network.h - turns the taxi lines of a plan into nodes and links.
//
// Nodes arise where lines cross or end on one another, where they bend, at the hold-short lines of runways,
// and where a parking spot's way out meets a line. Places closer together than a node is wide become one.
#pragma once

#include <vector>

#include "sample/AirportPlan.h"

namespace sample {

struct NetNode {
    Local at;
    model::NodeType type = model::kNormalNode;
};

struct NetLink {
    model::LinkType type = model::kTaxiwayLink;
    int start = 0, end = 0;          // nodes; the end of a parking link is a spot of the plan
    int runway = -1;                 // of the plan, for a runway link
    const TaxiLine* line = nullptr;  // of the plan, for a taxiway or apron route
};

struct Network {
    std::vector<NetNode> nodes;
    std::vector<NetLink> links;
};

constexpr double kNodeSpacing = 6;  // metres; nearer places become one node

// Empty for a plan without taxi lines. A runway's links run from its first to its last junction; a stretch of
// more than 60 m beyond is kept. Links point into the plan.
Network BuildNetwork(const AirportPlan& plan);

// The number of each node's connected part; *count tells how many parts there are.
std::vector<int> ConnectedParts(const Network& network, int* count);

}  // namespace sample
