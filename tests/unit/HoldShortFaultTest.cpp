// HoldShortFaultTest.cpp - check 0.
#include <limits>

#include "fakes/FaultAirport.h"
#include "faults/Messages.h"

namespace {

using build::Node;
using faults::FaultCheck;
using model::kHoldShortNode;

struct HoldShortFault : FaultTest {};

size_t Faults() { return AllFaults(Only(FaultCheck::HoldShortLimits)).size(); }

model::RunwayPayload& PayloadOf(model::SceneryObject* runway) { return model::PayloadAs<model::RunwayPayload>(runway); }

}  // namespace

TEST_F(HoldShortFault, TheLimitIs225Feet) { EXPECT_DOUBLE_EQ(model::kHoldShortLimit, 225 / 3.280839895); }

TEST_F(HoldShortFault, NodeUpTo225FeetFromASideOfTheRunwayPasses) {
    HeadedRunway(9, 90);  // 1000 m to either end, 22.5 m to either side; positions step by 4 cm
    for (build::Place place : { build::Place{ 100, 91.0 }, { -900, -91.0 }, { 1068.5, 0 }, { -1068.5, 10 }, { 0, 0 } })
        Node(place, kHoldShortNode);
    EXPECT_EQ(Faults(), 0u);
}

TEST_F(HoldShortFault, NodeFartherThan225FeetFromEverySideIsAFault) {
    HeadedRunway(9, 90);
    for (build::Place place : { build::Place{ 100, 91.2 }, { -900, -91.2 }, { 1068.7, 0 }, { -1068.7, 10 } })
        Node(place, kHoldShortNode);
    EXPECT_EQ(Faults(), 4u);
}

TEST_F(HoldShortFault, BeyondACornerTheDistanceIsThatToTheCorner) {
    HeadedRunway(9, 90);
    Node({ 1048.4, 22.5 + 48.4 }, kHoldShortNode);  // 68.45 m
    EXPECT_EQ(Faults(), 0u);
    Node({ 1048.6, 22.5 + 48.6 }, kHoldShortNode);  // 68.73 m
    EXPECT_EQ(Faults(), 1u);
}

TEST_F(HoldShortFault, TheRunwayLiesAlongItsTrueHeading) {
    HeadedRunway(3, 30);
    const double sine = 0.5, cosine = 0.8660254037844386;
    const auto beside = [&](double along, double right) -> build::Place {
        return { along * sine + right * cosine, along * cosine - right * sine };
    };
    Node(beside(980, 90.8), kHoldShortNode);
    Node(beside(-980, -90.8), kHoldShortNode);
    EXPECT_EQ(Faults(), 0u);
    Node(beside(980, 91.6), kHoldShortNode);
    EXPECT_EQ(Faults(), 1u);
}

TEST_F(HoldShortFault, TheOverrunAreaOfEachEndBelongsToTheRunway) {
    model::SceneryObject* runway = HeadedRunway(9, 90);
    Node({ 1200, 0 }, kHoldShortNode);
    Node({ -1300, 0 }, kHoldShortNode);
    EXPECT_EQ(Faults(), 2u);
    PayloadOf(runway).secondaryBlastPad.length = 132;  // the reciprocal end lies along the heading
    EXPECT_EQ(Faults(), 1u);
    PayloadOf(runway).primaryBlastPad.length = 232;
    EXPECT_EQ(Faults(), 0u);
}

TEST_F(HoldShortFault, OverrunPartsReadFromAFileDoNotCount) {
    model::SceneryObject* runway = HeadedRunway(9, 90);
    Node({ 1200, 0 }, kHoldShortNode);
    PayloadOf(runway).primaryOverrun.length = PayloadOf(runway).secondaryOverrun.length = 500;
    EXPECT_EQ(Faults(), 1u);
}

TEST_F(HoldShortFault, OtherNodesAreNeverChecked) {
    Node({ 0, 500 }, model::kNormalNode);
    Node({ 0, 500 }, model::kIlsHoldShortNode);
    EXPECT_EQ(Faults(), 0u);
}

TEST_F(HoldShortFault, WithoutARunwayEveryHoldShortNodeIsAFault) {
    Node({}, kHoldShortNode);
    Node({ 10, 0 }, kHoldShortNode);
    EXPECT_EQ(Faults(), 2u);
}

TEST_F(HoldShortFault, OneRunwayNearbyIsEnough) {
    HeadedRunway(9, 90);
    HeadedRunway(9, 90, { 0, 1000 });
    Node({ 0, 920 }, kHoldShortNode);
    EXPECT_EQ(Faults(), 0u);
}

TEST_F(HoldShortFault, InsideARunwayOf450FeetEveryPlacePasses) {
    model::SceneryObject* runway = HeadedRunway(9, 90);
    PayloadOf(runway).body.width = 300;
    Node({ 0, 0 }, kHoldShortNode);     // 150 m from the sides
    Node({ 500, 60 }, kHoldShortNode);  // 90 m
    EXPECT_EQ(Faults(), 0u);
    Node({ 500, 219 }, kHoldShortNode);  // outside, 69 m from the edge
    EXPECT_EQ(Faults(), 1u);
}

TEST_F(HoldShortFault, TheInsideTestBeginsAt450FeetOfWidth) {
    model::SceneryObject* runway = HeadedRunway(9, 90);
    PayloadOf(runway).body.length = 500;
    Node({}, kHoldShortNode);
    for (float width : { 137.1f, 137.2f, 137.5f, 200.0f }) {  // 449.8, 450.1 feet: from the middle to the side 225
        PayloadOf(runway).body.width = width;
        EXPECT_EQ(Faults(), 0u) << width;
    }
    EXPECT_DOUBLE_EQ(faults::kWideRunway, 450.0);
}

TEST_F(HoldShortFault, ReportsTheNodesInListOrderWithTheirPlaces) {
    model::SceneryObject* first = Node({ 0, 500 }, kHoldShortNode);
    Node({ 0, 600 });
    model::SceneryObject* second = Node({ 0, 700 }, kHoldShortNode);
    const auto reports = AllFaults(Only(FaultCheck::HoldShortLimits));
    ASSERT_EQ(reports.size(), 2u);
    EXPECT_EQ(reports[0].objects, std::vector{ first });
    EXPECT_EQ(reports[1].objects, std::vector{ second });
    EXPECT_EQ(reports[0].check, FaultCheck::HoldShortLimits);
    EXPECT_EQ(reports[0].message, faults::kHoldShortMessage);
    ExpectAt(reports[1], { 0, 700 });
}

TEST_F(HoldShortFault, ARunwayWithoutNumbersAcceptsNothing) {
    model::SceneryObject* runway = HeadedRunway(9, 90);
    PayloadOf(runway).body.heading = std::numeric_limits<float>::quiet_NaN();
    Node({}, kHoldShortNode);
    EXPECT_EQ(Faults(), 1u);
    PayloadOf(runway).body.heading = 90;
    PayloadOf(runway).body.length = std::numeric_limits<float>::infinity();
    EXPECT_EQ(Faults(), 1u);
}
