// OverlapFaultTest.cpp - check 3: nodes on top of each other.
#include <algorithm>

#include "fakes/FaultAirport.h"
#include "faults/Messages.h"

namespace {

using build::Node;
using faults::FaultCheck;
using model::SceneryObject;
using Objects = std::vector<SceneryObject*>;

struct OverlapFault : FaultTest {};

std::vector<faults::FaultReport> Reports() { return AllFaults(Only(FaultCheck::OverlappingNodes)); }

}  // namespace

TEST_F(OverlapFault, TheLimitIs15Feet) { EXPECT_DOUBLE_EQ(faults::kOverlapLimit, 15 / 3.280839895); }

TEST_F(OverlapFault, NodesUpTo15FeetApartAreReportedOnce) {
    SceneryObject* first = Node({ 0, 0 });
    SceneryObject* second = Node({ 0, 4.5 });
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].message, faults::kOverlapMessage);
    EXPECT_EQ(reports[0].objects, (Objects{ first, second }));
    ExpectAt(reports[0], {});
    EXPECT_EQ(first->flags & model::kFaultMarkA, 0u);
    EXPECT_NE(second->flags & model::kFaultMarkA, 0u);
}

TEST_F(OverlapFault, NodesFartherApartAreNoFault) {
    Node({ 0, 0 });
    Node({ 0, 4.65 });
    EXPECT_TRUE(Reports().empty());
}

TEST_F(OverlapFault, ConnectedNodesCountAsWell) {
    build::Link(Node({ 0, 0 }), Node({ 3, 0 }));
    EXPECT_EQ(Reports().size(), 1u);
}

TEST_F(OverlapFault, ClosedOnlyNodesDoNotCount) {
    build::Link(Node({ 0, 0 }), Node({ 500, 0 }), model::kClosedLink);
    Node({ 3, 0 });
    EXPECT_TRUE(Reports().empty());
}

TEST_F(OverlapFault, SpotsDoNotCount) {
    Node({ 0, 0 });
    build::Spot({ 0, 0 });
    EXPECT_TRUE(Reports().empty());
}

TEST_F(OverlapFault, TheMarkOfTheOtherNodeIsNotAsked) {
    SceneryObject* first = Node({ 0, 0 });
    SceneryObject* second = Node({ 4, 0 });
    SceneryObject* third = Node({ 8, 0 });
    const auto reports = Reports();  // the second is marked, and yet the third's partner
    ASSERT_EQ(reports.size(), 2u);
    EXPECT_EQ(reports[0].objects, (Objects{ first, second }));
    EXPECT_EQ(reports[1].objects, (Objects{ third, second }));
}

TEST_F(OverlapFault, ThreeNodesOnOnePlaceGiveTwoReports) {
    SceneryObject* first = Node();
    SceneryObject* second = Node();
    SceneryObject* third = Node();
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 2u);
    EXPECT_EQ(reports[0].objects, (Objects{ first, second }));
    EXPECT_EQ(reports[1].objects, (Objects{ third, first }));
}

TEST_F(OverlapFault, FreshStartClearsTheMarksOfTheCheckOfOpenLinks) {
    Node({ 0, 0 });
    Node({ 3, 0 });
    const auto reports = AllFaults();
    const auto overlaps = std::count_if(reports.begin(), reports.end(), [](const faults::FaultReport& report) {
        return report.check == FaultCheck::OverlappingNodes;
    });
    EXPECT_EQ(overlaps, 1);
}
