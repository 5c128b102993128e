#include <gtest/gtest.h>

#include <algorithm>

#include "sample/Network.h"
#include "sample/PlanGeometry.h"

namespace {

using sample::AirportPlan;
using sample::BuildNetwork;
using sample::Local;
using sample::Network;

void AddLine(AirportPlan* plan, std::vector<Local> points) {
    sample::TaxiLine line;
    line.points = std::move(points);
    plan->lines.push_back(line);
}

void AddRunway(AirportPlan* plan, Local centre, double heading) {
    sample::RunwayPlan runway;
    runway.centre = centre;
    runway.heading = heading;
    runway.length = 2000;
    runway.width = 45;
    runway.holdDistance = 75;
    plan->runways.push_back(runway);
}

size_t NodesOfType(const Network& network, model::NodeType type) {
    return static_cast<size_t>(std::ranges::count(network.nodes, type, &sample::NetNode::type));
}
size_t LinksOfType(const Network& network, model::LinkType type) {
    return static_cast<size_t>(std::ranges::count(network.links, type, &sample::NetLink::type));
}

}  // namespace

TEST(SampleNetwork, PlanWithoutLinesHasNoNetwork) {
    AirportPlan plan;
    AddRunway(&plan, {}, 0);
    EXPECT_TRUE(BuildNetwork(plan).nodes.empty());
}

TEST(SampleNetwork, CrossingLinesShareANode) {
    AirportPlan plan;
    AddLine(&plan, { { -100, 0 }, { 100, 0 } });
    AddLine(&plan, { { 0, -100 }, { 0, 100 } });
    const Network network = BuildNetwork(plan);
    EXPECT_EQ(network.nodes.size(), 5u);
    EXPECT_EQ(network.links.size(), 4u);
}

TEST(SampleNetwork, LineThatEndsOnAnotherIsJoinedToIt) {
    AirportPlan plan;
    AddLine(&plan, { { -100, 0 }, { 100, 0 } });
    AddLine(&plan, { { 20, 1 }, { 20, 100 } });
    const Network network = BuildNetwork(plan);
    int parts = 0;
    sample::ConnectedParts(network, &parts);
    EXPECT_EQ(parts, 1);
    EXPECT_EQ(network.links.size(), 3u);
}

TEST(SampleNetwork, LinesApartStayApart) {
    AirportPlan plan;
    AddLine(&plan, { { -100, 0 }, { 100, 0 } });
    AddLine(&plan, { { -100, 50 }, { 100, 50 } });
    int parts = 0;
    const std::vector<int> part = sample::ConnectedParts(BuildNetwork(plan), &parts);
    EXPECT_EQ(parts, 2);
    EXPECT_EQ(part, (std::vector<int>{ 0, 0, 1, 1 }));
}

TEST(SampleNetwork, RepeatedLinesGiveOneLink) {
    AirportPlan plan;
    AddLine(&plan, { { -100, 0 }, { 100, 0 } });
    AddLine(&plan, { { 100, 0 }, { -100, 0 } });
    EXPECT_EQ(BuildNetwork(plan).links.size(), 1u);
}

TEST(SampleNetwork, TaxiwayOntoARunwayHoldsShortOfIt) {
    AirportPlan plan;
    AddRunway(&plan, {}, 0);
    AddLine(&plan, { { 0, 500 }, { 200, 500 }, { 200, -500 }, { 0, -500 } });
    const Network network = BuildNetwork(plan);
    EXPECT_EQ(NodesOfType(network, model::kHoldShortNode), 2u);
    EXPECT_EQ(LinksOfType(network, model::kRunwayLink), 3u) << "to both ends, which lie far off";
    for (const sample::NetNode& node : network.nodes) {
        if (node.type != model::kHoldShortNode) continue;
        EXPECT_NEAR(node.at.east, 75, 1e-6);
    }
}

TEST(SampleNetwork, IlsHoldShortNodesStandNearTheThresholdThatTheIlsServes) {
    AirportPlan plan;
    AddRunway(&plan, {}, 0);
    plan.runways[0].ilsHoldDistance = 100;
    plan.runways[0].ends[0].ils.ident = "ITST";  // heading north: the southern threshold
    AddLine(&plan, { { 0, 985 }, { 200, 985 }, { 200, -985 }, { 0, -985 } });
    const Network network = BuildNetwork(plan);
    ASSERT_EQ(NodesOfType(network, model::kIlsHoldShortNode), 1u);
    const auto node = std::ranges::find(network.nodes, model::kIlsHoldShortNode, &sample::NetNode::type);
    EXPECT_NEAR(node->at.north, -985, 1e-6);
    EXPECT_NEAR(node->at.east, 100, 1e-6);
}

TEST(SampleNetwork, ShortTailOfARunwayGetsNoLink) {
    AirportPlan plan;
    AddRunway(&plan, {}, 0);
    AddLine(&plan, { { 0, 985 }, { 200, 985 }, { 200, -985 }, { 0, -985 } });
    EXPECT_EQ(LinksOfType(BuildNetwork(plan), model::kRunwayLink), 1u);
}

TEST(SampleNetwork, HoldShortLineThatLiesOnAnotherRunwayIsLeftOut) {
    AirportPlan plan;
    AddRunway(&plan, {}, 0);
    AddRunway(&plan, { 100, 0 }, 0);
    AddLine(&plan, { { 0, 0 }, { 300, 0 } });
    const Network network = BuildNetwork(plan);
    ASSERT_EQ(NodesOfType(network, model::kHoldShortNode), 1u);
    const auto node = std::ranges::find(network.nodes, model::kHoldShortNode, &sample::NetNode::type);
    EXPECT_NEAR(node->at.east, 175, 1e-6);
}

TEST(SampleNetwork, SpotIsLinkedToTheLineBehindIt) {
    AirportPlan plan;
    AddLine(&plan, { { -100, 0 }, { 100, 0 } });
    AddLine(&plan, { { -100, 90 }, { 100, 90 } });
    sample::SpotPlan spot;
    spot.at = { 30, 40 };
    spot.heading = 0;  // nose north: its way out leads south
    plan.spots.push_back(spot);
    const Network network = BuildNetwork(plan);
    ASSERT_EQ(LinksOfType(network, model::kParkingLink), 1u);
    const auto link = std::ranges::find(network.links, model::kParkingLink, &sample::NetLink::type);
    EXPECT_EQ(link->end, 0);
    const Local node = network.nodes[static_cast<size_t>(link->start)].at;
    EXPECT_NEAR(node.east, 30, 1e-6);
    EXPECT_NEAR(node.north, 0, 1e-6);
}

TEST(SampleNetwork, SpotsFaceToFaceShareANode) {
    AirportPlan plan;
    AddLine(&plan, { { -100, 0 }, { 100, 0 } });
    for (const double side : { 1.0, -1.0 }) {
        sample::SpotPlan spot;
        spot.at = { 30 + side, side * 40 };
        spot.heading = side > 0 ? 0 : 180;
        plan.spots.push_back(spot);
    }
    const Network network = BuildNetwork(plan);
    EXPECT_EQ(network.nodes.size(), 3u);
    EXPECT_EQ(LinksOfType(network, model::kParkingLink), 2u);
}

TEST(SampleNetwork, NoTwoNodesLieWithinTheNodeSpacing) {
    AirportPlan plan;
    AddLine(&plan, { { -100, 0 }, { 100, 0 } });
    AddLine(&plan, { { 0, -100 }, { 0, 100 } });
    AddLine(&plan, { { -100, -97 }, { 100, 103 } });
    const Network network = BuildNetwork(plan);
    for (size_t i = 0; i < network.nodes.size(); ++i) {
        for (size_t k = 0; k < i; ++k) {
            EXPECT_GE(sample::Distance(network.nodes[i].at, network.nodes[k].at), sample::kNodeSpacing);
        }
    }
}
