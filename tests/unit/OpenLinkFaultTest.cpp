// OpenLinkFaultTest.cpp - check 1: open ends close to what they are not connected to.
#include "fakes/FaultAirport.h"
#include "faults/Messages.h"

namespace {

using build::Link;
using build::Node;
using faults::FaultCheck;
using model::kClosedLink;
using model::SceneryObject;
using Objects = std::vector<SceneryObject*>;

struct OpenLinkFault : FaultTest {};

std::vector<faults::FaultReport> Reports() { return AllFaults(Only(FaultCheck::OpenLinks)); }

// A node with a link to another one far off: an open end.
SceneryObject* OpenEnd(build::Place place, build::Place farEnd) {
    SceneryObject* node = Node(place);
    SceneryObject* partner = Node(farEnd);
    Link(node, partner);
    return node;
}

bool HasPairMark(const SceneryObject* object) { return (object->flags & model::kFaultMarkA) != 0; }

}  // namespace

TEST_F(OpenLinkFault, TheLimitsAre70And50Feet) {
    EXPECT_DOUBLE_EQ(faults::kNodeGapLimit, 70 / 3.280839895);
    EXPECT_DOUBLE_EQ(faults::kLinkGapLimit, 50 / 3.280839895);
}

TEST_F(OpenLinkFault, NodesUpTo70FeetApartAreReportedOnce) {
    SceneryObject* first = OpenEnd({ 0, 0 }, { -500, 0 });
    SceneryObject* second = OpenEnd({ 0, 21.25 }, { 500, 21 });
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].message, faults::kNodesUnconnectedMessage);
    EXPECT_EQ(reports[0].objects, (Objects{ first, second }));
    ExpectAt(reports[0], {});
    EXPECT_TRUE(HasPairMark(second));
    EXPECT_FALSE(HasPairMark(first));
}

TEST_F(OpenLinkFault, NodesFartherApartAreNoFault) {
    OpenEnd({ 0, 0 }, { -500, 0 });
    OpenEnd({ 0, 21.45 }, { 500, 21 });
    EXPECT_TRUE(Reports().empty());
}

TEST_F(OpenLinkFault, NodeWithTwoLinksIsNeverTheSubject) {
    SceneryObject* middle = Node({ 0, 0 });
    Link(Node({ -500, 0 }), middle);
    Link(middle, Node({ 0, -500 }));
    SceneryObject* other = Node({ 0, 10 });
    Link(Node({ 500, 10 }), other);
    Link(other, Node({ 0, 500 }));
    EXPECT_TRUE(Reports().empty());
}

TEST_F(OpenLinkFault, TheOtherNodeMayHaveManyLinks) {
    SceneryObject* crossing = Node({ 0, 10 });
    for (build::Place place : { build::Place{ 500, 10 }, { -500, 10 }, { 0, 500 } }) Link(crossing, Node(place));
    SceneryObject* open = OpenEnd({ 0, 0 }, { 0, -500 });
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].objects, (Objects{ open, crossing }));
}

TEST_F(OpenLinkFault, ANodeWithoutLinksIsAnOpenEnd) {
    SceneryObject* alone = Node({ 0, 0 });
    SceneryObject* other = Node({ 10, 0 });
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].objects, (Objects{ alone, other }));
}

TEST_F(OpenLinkFault, ThePartnerAtTheOtherEndIsNoGap) {
    Link(Node({ 0, 0 }), Node({ 10, 0 }));
    EXPECT_TRUE(Reports().empty());
}

TEST_F(OpenLinkFault, ClosedOnlyNodesAreNeitherSubjectNorPartner) {
    SceneryObject* closed = Node({ 0, 0 });
    Link(closed, Node({ -500, 0 }), kClosedLink);
    OpenEnd({ 0, 15.3 }, { 0, 500 });  // beyond 50 feet of the link
    EXPECT_TRUE(Reports().empty());
}

TEST_F(OpenLinkFault, AClosedAndAnotherLinkMakeTwo) {
    SceneryObject* node = Node({ 0, 0 });
    Link(node, Node({ -500, 0 }), kClosedLink);
    Link(node, Node({ 500, 0 }));
    SceneryObject* far = OpenEnd({ 0, 10 }, { 0, 500 });
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 1u);  // told from the other side only
    EXPECT_EQ(reports[0].objects, (Objects{ far, node }));
}

TEST_F(OpenLinkFault, TheFirstNodeInTheListCountsNotTheNearest) {
    SceneryObject* farther = Node({ 20, 0 });
    SceneryObject* subject = OpenEnd({ 0, 0 }, { 0, -500 });
    Node({ 5, 0 });
    Link(farther, Node({ 500, 0 }));
    Link(farther, Node({ 500, 100 }));
    const auto reports = Reports();
    ASSERT_FALSE(reports.empty());
    EXPECT_EQ(reports[0].objects, (Objects{ subject, farther }));
}

TEST_F(OpenLinkFault, SpotsAreNoNodes) {
    OpenEnd({ 0, 0 }, { -500, 0 });
    build::Spot({ 10, 0 });
    EXPECT_TRUE(Reports().empty());
}

TEST_F(OpenLinkFault, LinkUpTo50FeetAwayIsReported) {
    SceneryObject* node = OpenEnd({ 0, 15.2 }, { 0, 500 });
    SceneryObject* link = Link(Node({ -300, 0 }), Node({ 300, 0 }));
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].message, faults::kLinkUnconnectedMessage);
    EXPECT_TRUE(reports[0].message.ends_with("will not use this path.  "));
    EXPECT_EQ(reports[0].objects, (Objects{ node, link }));
    ExpectAt(reports[0], { 0, 15.2 });
    EXPECT_FALSE(HasPairMark(node));
}

TEST_F(OpenLinkFault, LinkFartherAwayIsNoFault) {
    OpenEnd({ 0, 15.4 }, { 0, 500 });
    Link(Node({ -300, 0 }), Node({ 300, 0 }));
    EXPECT_TRUE(Reports().empty());
}

TEST_F(OpenLinkFault, LinksOfEveryTypeCountAlsoThoseToParking) {
    SceneryObject* node = OpenEnd({ 0, 10 }, { 0, 500 });
    SceneryObject* closed = Link(Node({ -300, 0 }), Node({ 300, 0 }), kClosedLink);
    auto reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].objects, (Objects{ node, closed }));
    model::ClearModel();
    node = OpenEnd({ 0, 10 }, { 0, 500 });
    SceneryObject* parking = Link(Node({ -300, 0 }), build::Spot({ 300, 0 }), model::kParkingLink);
    reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].objects, (Objects{ node, parking }));
}

TEST_F(OpenLinkFault, LinksOfThePartnerAreNoFault) {
    SceneryObject* partner = Node({ 100, 0 });
    Link(Node({ 0, 0 }), partner);
    Link(partner, Node({ -400, 10 }));  // passes the open end at 8 m
    EXPECT_TRUE(Reports().empty());
}

TEST_F(OpenLinkFault, ANodeGoesBeforeALink) {
    Link(Node({ -300, 0 }), Node({ 300, 0 }));
    SceneryObject* node = OpenEnd({ 0, 10 }, { 0, 500 });
    SceneryObject* other = Node({ 0, 30 });
    const auto reports = Reports();
    ASSERT_FALSE(reports.empty());
    EXPECT_EQ(reports[0].objects, (Objects{ node, other }));
}

TEST_F(OpenLinkFault, TheFirstLinkInTheListCounts) {
    SceneryObject* farther = Link(Node({ -300, 0 }), Node({ 300, 0 }));
    SceneryObject* node = OpenEnd({ 0, 14 }, { 0, 500 });
    Link(Node({ -300, -288 }), Node({ 300, 312 }));  // passes at 8 m
    const auto reports = Reports();
    ASSERT_FALSE(reports.empty());
    EXPECT_EQ(reports[0].objects, (Objects{ node, farther }));
}

TEST_F(OpenLinkFault, ALinkOfManyKilometresIsFoundToo) {
    SceneryObject* node = OpenEnd({ 7000, 9 }, { 7000, 500 });
    SceneryObject* link = Link(Node({ -20000, 0 }), Node({ 20000, 0 }));
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].objects, (Objects{ node, link }));
}

TEST_F(OpenLinkFault, ANodeMarkedAsPartnerIsNotTheSubjectLater) {
    Node({ 0, 0 });
    Node({ 20, 0 });
    Node({ 40, 0 });
    const auto reports = Reports();  // 0-20; the second is marked; the third finds the second again
    ASSERT_EQ(reports.size(), 2u);
    ExpectAt(reports[0], { 0, 0 });
    ExpectAt(reports[1], { 40, 0 });
}

TEST_F(OpenLinkFault, AFreshStartForgetsTheMarksOfAnOlderPass) {
    Node({ 0, 0 });
    Node({ 10, 0 })->flags |= model::kFaultMarkA;
    SceneryObject* runway = HeadedRunway(9, 90);
    runway->flags |= model::kFaultMarkA;
    EXPECT_EQ(Reports().size(), 1u);
    EXPECT_FALSE(HasPairMark(runway));
}
