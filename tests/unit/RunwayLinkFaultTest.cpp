// RunwayLinkFaultTest.cpp - check 5: runway links beside runways or named after another one.
#include "fakes/FaultAirport.h"
#include "faults/Messages.h"

namespace {

using build::Link;
using build::Node;
using faults::FaultCheck;
using model::kRunwayLink;
using model::SceneryObject;

struct RunwayLinkFault : FaultTest {};

std::vector<faults::FaultReport> Reports() { return AllFaults(Only(FaultCheck::RunwayLinks)); }

bool IsMisplaced(const std::vector<faults::FaultReport>& reports) {
    return reports.size() == 1 && reports[0].message == faults::kMisplacedLinkMessage;
}

std::string NameMessage(const std::string& link, const std::string& runway) {
    return "LINK DESIGNATOR DOESN'T MATCH THE RUNWAY.\r\nThis runway taxi link is designated as " + link +
           ", but the runway itself is designated as " + runway +
           ".  ATC uses taxiway link designators to give verbal taxiing instructions, so having the wrong designator "
           "can result in incorrect or confusing ATC directions. You can change the designator by selecting one from "
           "the drop-down designator list on the Tool Bar.";
}

}  // namespace

TEST_F(RunwayLinkFault, ALinkOnItsRunwayIsNoFault) {
    SceneryObject* runway = HeadedRunway(9, 90);
    Link(Node({ -500, 0 }), Node({ 500, 0 }), kRunwayLink, runway);
    EXPECT_TRUE(Reports().empty());
}

TEST_F(RunwayLinkFault, ALinkOnNoRunwayIsMisplaced) {
    SceneryObject* runway = HeadedRunway(9, 90);
    SceneryObject* link = Link(Node({ -500, 30 }), Node({ 300, 30 }), kRunwayLink, runway);
    const auto reports = Reports();
    ASSERT_TRUE(IsMisplaced(reports));
    EXPECT_EQ(reports[0].objects, std::vector{ link });
    ExpectAt(reports[0], { -100, 30 }, 0.2);
}

TEST_F(RunwayLinkFault, OtherLinksAreNeverChecked) {
    for (uint32_t type : { model::kTaxiwayLink, model::kApronRouteLink, model::kClosedLink })
        Link(Node({ -500, 300 }), Node({ 500, 300 }), type);
    Link(Node({ -500, 300 }), build::Spot({ 500, 300 }), model::kParkingLink);
    EXPECT_TRUE(Reports().empty());
}

TEST_F(RunwayLinkFault, StartEndOrMidpointOnTheRunwayIsEnough) {
    SceneryObject* runway = HeadedRunway(9, 90);
    SceneryObject* link = Link(Node({ 0, 0 }), Node({ 0, 500 }), kRunwayLink, runway);
    EXPECT_TRUE(Reports().empty());
    model::DeleteObject(link);
    link = Link(Node({ 0, 500 }), Node({ 0, 20 }), kRunwayLink, runway);
    EXPECT_TRUE(Reports().empty());
    model::DeleteObject(link);
    link = Link(Node({ 0, 500 }), Node({ 0, -500 }), kRunwayLink, runway);
    EXPECT_TRUE(Reports().empty());
    model::DeleteObject(link);
    Link(Node({ 0, 500 }), Node({ 0, -300 }), kRunwayLink, runway);  // crosses it elsewhere
    EXPECT_TRUE(IsMisplaced(Reports()));
}

TEST_F(RunwayLinkFault, TheOverrunAreasBelongToTheRunway) {
    SceneryObject* runway = HeadedRunway(9, 90);
    Link(Node({ 1050, 0 }), Node({ 1100, 0 }), kRunwayLink, runway);
    EXPECT_TRUE(IsMisplaced(Reports()));
    model::PayloadAs<model::RunwayPayload>(runway).primaryBlastPad.length = 150;  // the other end
    EXPECT_TRUE(IsMisplaced(Reports()));
    model::PayloadAs<model::RunwayPayload>(runway).secondaryBlastPad.length = 60;
    EXPECT_TRUE(Reports().empty());
}

TEST_F(RunwayLinkFault, TheWrongRunwayIsNamed) {
    HeadedRunway(9, 90);
    SceneryObject* other = HeadedRunway(1, 10, { 5000, 0 });
    model::PayloadAs<model::RunwayPayload>(other).body.primaryDesignator = 1;
    model::PayloadAs<model::RunwayPayload>(other).body.secondaryDesignator = 2;
    SceneryObject* link = Link(Node({ -500, 0 }), Node({ 500, 0 }), kRunwayLink, other);
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].message, NameMessage("1L/19R", "9/27"));
    EXPECT_EQ(reports[0].objects, std::vector{ link });
    ExpectAt(reports[0], { 0, 0 }, 0.2);
}

TEST_F(RunwayLinkFault, ALinkWithoutRunwayIsBlank) {
    HeadedRunway(9, 90);
    Link(Node({ -500, 0 }), Node({ 500, 0 }), kRunwayLink);
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].message, NameMessage("(blank)", "9/27"));
}

TEST_F(RunwayLinkFault, ATaxiwayNameIsNoRunway) {
    HeadedRunway(9, 90);
    Link(Node({ -500, 0 }), Node({ 500, 0 }), kRunwayLink, build::Designator("A"));
    ASSERT_EQ(Reports().size(), 1u);
    EXPECT_EQ(Reports()[0].message, NameMessage("(blank)", "9/27"));
}

TEST_F(RunwayLinkFault, ALinkWhoseRunwayWasDeletedIsBlank) {
    HeadedRunway(9, 90);
    SceneryObject* deleted = HeadedRunway(1, 10, { 5000, 0 });
    Link(Node({ -500, 0 }), Node({ 500, 0 }), kRunwayLink, deleted);
    model::BeginAction();
    model::DeleteObject(deleted);
    ASSERT_EQ(Reports().size(), 1u);
    EXPECT_EQ(Reports()[0].message, NameMessage("(blank)", "9/27"));
}

TEST_F(RunwayLinkFault, WhereRunwaysCrossTheOneAlongTheLinkCounts) {
    HeadedRunway(36, 0);
    SceneryObject* along = HeadedRunway(9, 90);
    Link(Node({ 10, 0 }), Node({ -10, 0 }), kRunwayLink, along);  // against the heading
    EXPECT_TRUE(Reports().empty());
}

TEST_F(RunwayLinkFault, OnEqualAnglesTheEarlierRunwayCounts) {
    SceneryObject* first = HeadedRunway(9, 90);
    SceneryObject* second = HeadedRunway(27, 270);
    SceneryObject* link = Link(Node({ -500, 0 }), Node({ 500, 0 }), kRunwayLink, first);
    EXPECT_TRUE(Reports().empty());
    model::PayloadAs<model::TaxiLinkPayload>(link).designator = second;
    ASSERT_EQ(Reports().size(), 1u);
    EXPECT_EQ(Reports()[0].message, NameMessage("27/9", "9/27"));
}

TEST_F(RunwayLinkFault, OfTwoRunwaysOfOneNameALinkMeansEither) {
    SceneryObject* parallel = HeadedRunway(9, 90, { 0, 1000 });
    HeadedRunway(9, 90);
    Link(Node({ -500, 0 }), Node({ 500, 0 }), kRunwayLink, parallel);
    EXPECT_TRUE(Reports().empty());
}

TEST_F(RunwayLinkFault, LinksAreReportedInListOrder) {
    SceneryObject* first = Link(Node({ 0, 0 }), Node({ 100, 0 }), kRunwayLink);
    SceneryObject* second = Link(Node({ 0, 50 }), Node({ 100, 50 }), kRunwayLink);
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 2u);
    EXPECT_EQ(reports[0].objects, std::vector{ first });
    EXPECT_EQ(reports[1].objects, std::vector{ second });
}
