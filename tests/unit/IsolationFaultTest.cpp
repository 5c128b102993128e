// IsolationFaultTest.cpp - check 2: segments, parking spots and nodes without a way to the rest.
#include <algorithm>

#include "fakes/FaultAirport.h"
#include "faults/Messages.h"

namespace {

using build::Link;
using build::Node;
using build::Spot;
using faults::FaultCheck;
using model::SceneryObject;
using Lines = std::vector<std::string>;

struct IsolationFault : FaultTest {};

std::vector<faults::FaultReport> Reports() { return AllFaults(Only(FaultCheck::IsolatedSegments)); }

// A chain of links; the nodes first, then the links.
std::vector<SceneryObject*> Chain(int links, double north, double east = 0) {
    std::vector<SceneryObject*> objects;
    for (int i = 0; i <= links; ++i) objects.push_back(Node({ east + 100.0 * i, north }));
    for (int i = 0; i < links; ++i) objects.push_back(Link(objects[size_t(i)], objects[size_t(i) + 1]));
    return objects;
}

std::vector<SceneryObject*> Sorted(std::vector<SceneryObject*> objects) {
    std::sort(objects.begin(), objects.end());
    return objects;
}

bool HasSegmentMark(const SceneryObject* object) { return (object->flags & model::kFaultMarkB) != 0; }

}  // namespace

TEST_F(IsolationFault, OneConnectedNetworkIsNoFault) {
    Chain(5, 0);
    EXPECT_TRUE(Reports().empty());
}

TEST_F(IsolationFault, TheSmallerGroupIsReportedWithItsLinksAndEnds) {
    Chain(3, 0);
    const auto small = Chain(2, 1000);
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].message, faults::kIsolatedSegmentMessage);
    EXPECT_TRUE(reports[0].message.ends_with("leave this segment.  "));
    EXPECT_EQ(Sorted(reports[0].objects), Sorted(small));
}

TEST_F(IsolationFault, OnEqualSizesTheGroupOfTheLastLinkInTheListIsTheMainNetwork) {
    const auto first = Chain(2, 0);
    Chain(2, 1000);
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(Sorted(reports[0].objects), Sorted(first));
}

TEST_F(IsolationFault, GroupsAreReportedLastLinkOfTheListFirst) {
    Chain(1, 1000);
    Chain(4, 0);
    Chain(1, 2000);
    Chain(2, 3000);
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 3u);
    ExpectAt(reports[0], { 0, 3000 }, 250);
    ExpectAt(reports[1], { 0, 2000 }, 150);
    ExpectAt(reports[2], { 0, 1000 }, 150);
}

TEST_F(IsolationFault, ThePointIsTheStartOfTheLinkThatTheSweepsTakeLast) {
    Chain(9, 0);
    // The sweep starts at the last link and meets the others in the list's reverse order.
    Chain(3, 1000);  // taken 3, 2, 1: the first link starts at east 0
    auto reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    ExpectAt(reports[0], { 0, 1000 });
    model::ClearModel();
    Chain(9, 0);
    std::vector<SceneryObject*> n;
    for (int i = 0; i < 5; ++i) n.push_back(Node({ 100.0 * i, 1000 }));
    Link(n[0], n[4]);  // fourth in the sweep
    Link(n[1], n[2]);  // third
    Link(n[2], n[3]);  // second: untouched in the first sweep, so taken in the second one, last of all
    Link(n[0], n[1]);  // first
    reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    ExpectAt(reports[0], { 200, 1000 });
}

TEST_F(IsolationFault, ASegmentWithParkingSaysWhatThatMeans) {
    Chain(3, 0);
    SceneryObject* node = Node({ 0, 1000 });
    SceneryObject* spot = Spot({ 50, 1000 });
    SceneryObject* link = Link(node, spot, model::kParkingLink);
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].message, std::string(faults::kIsolatedSegmentMessage) + faults::kSegmentWithParkingMessage);
    EXPECT_LT(reports[0].message.size(), 1000u);
    EXPECT_EQ(Sorted(reports[0].objects), Sorted({ node, spot, link }));
}

TEST_F(IsolationFault, ClosedLinksConnectNothing) {
    const auto left = Chain(3, 0);
    const auto right = Chain(2, 0, 500);
    Link(left[3], right[0], model::kClosedLink);
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(Sorted(reports[0].objects), Sorted(right));
}

TEST_F(IsolationFault, GroupsMeetAtSpotsToo) {
    SceneryObject* spot = Spot({ 50, 0 });
    Link(Node({ 0, 0 }), spot, model::kParkingLink);
    Link(Node({ 100, 0 }), spot, model::kParkingLink);
    EXPECT_TRUE(Reports().empty());
}

TEST_F(IsolationFault, SpotsComeAfterTheSegmentsAndNodesAfterTheSpots) {
    SceneryObject* node = Node({ 0, 5000 });
    SceneryObject* spot = Spot({ 0, 6000 });
    SceneryObject* secondSpot = Spot({ 0, 7000 });
    Chain(3, 0);
    Chain(1, 1000);
    const auto reports = Reports();
    EXPECT_EQ(FirstLines(reports),
              (Lines{ "ISOLATED SEGMENT.", "ISOLATED PARKING.", "ISOLATED PARKING.", "ISOLATED NODE." }));
    EXPECT_EQ(reports[1].objects, std::vector{ spot });
    EXPECT_EQ(reports[2].objects, std::vector{ secondSpot });
    EXPECT_EQ(reports[3].objects, std::vector{ node });
    EXPECT_EQ(reports[1].message, faults::kIsolatedParkingMessage);
    EXPECT_EQ(reports[3].message, faults::kIsolatedNodeMessage);
    ExpectAt(reports[2], { 0, 7000 });
    for (SceneryObject* object : { node, spot, secondSpot }) EXPECT_TRUE(HasSegmentMark(object));
}

TEST_F(IsolationFault, WithoutAnyLinkSpotsAndNodesAreStillReported) {
    Spot();
    Node({ 100, 0 });
    EXPECT_EQ(FirstLines(Reports()), (Lines{ "ISOLATED PARKING.", "ISOLATED NODE." }));
}

TEST_F(IsolationFault, ANodeWithClosedLinksOnlyIsNotIsolatedButASpotIs) {
    Chain(2, 0);
    Link(Node({ 0, 500 }), Node({ 0, 600 }), model::kClosedLink);
    Link(Node({ 0, 700 }), Spot({ 0, 800 }), model::kClosedLink);
    EXPECT_EQ(FirstLines(Reports()), Lines{ "ISOLATED PARKING." });
}

TEST_F(IsolationFault, SixteenGroupsAreSegmentsTheSeventeenthIsToldObjectByObject) {
    SceneryObject* node = Node({ 0, 50000 });  // its link is the first of the list, so the last of the pool
    SceneryObject* spot = Spot({ 50, 50000 });
    Link(node, spot, model::kParkingLink);
    for (int i = 0; i < 16; ++i) Chain(i == 15 ? 2 : 1, 1000.0 * i);
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 17u);  // fifteen segments beside the main network
    EXPECT_EQ(FirstLine(reports[14].message), "ISOLATED SEGMENT.");
    EXPECT_EQ(FirstLine(reports[15].message), "ISOLATED PARKING.");
    EXPECT_EQ(FirstLine(reports[16].message), "ISOLATED NODE.");
    EXPECT_EQ(reports[15].objects, std::vector{ spot });
    EXPECT_EQ(reports[16].objects, std::vector{ node });
}

TEST_F(IsolationFault, SixteenGroupsInAllAreAllSegments) {
    for (int i = 0; i < 16; ++i) Chain(1, 1000.0 * i);
    EXPECT_EQ(Reports().size(), 15u);
}

TEST_F(IsolationFault, AFreshStartForgetsTheMarksOfAnOlderPass) {
    Spot()->flags |= model::kFaultMarkB;
    EXPECT_EQ(Reports().size(), 1u);
}
