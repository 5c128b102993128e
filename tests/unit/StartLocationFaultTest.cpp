// StartLocationFaultTest.cpp - check 4: runway ends without their start location.
#include <limits>

#include "fakes/FaultAirport.h"

namespace {

using faults::FaultCheck;
using model::SceneryObject;

struct StartLocationFault : FaultTest {};

std::vector<faults::FaultReport> Reports() { return AllFaults(Only(FaultCheck::StartLocations)); }

model::RunwayRecord& BodyOf(SceneryObject* runway) { return model::PayloadAs<model::RunwayPayload>(runway).body; }

std::string NeededName(const faults::FaultReport& report) {
    const size_t quote = report.message.find('"');
    return report.message.substr(quote + 1, report.message.size() - quote - 3);
}

}  // namespace

TEST_F(StartLocationFault, EveryOpenEndNeedsAStart) {
    HeadedRunway(9, 90);
    EXPECT_EQ(Reports().size(), 2u);
    Start(9);
    EXPECT_EQ(Reports().size(), 1u);
    Start(27);
    EXPECT_TRUE(Reports().empty());
}

TEST_F(StartLocationFault, TheMessageNamesTheEnd) {
    SceneryObject* runway = HeadedRunway(9, 90);
    Start(27);
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].message,
              "BAD START LOCATION.\r\nAny runway that can be used as the active runway must have a Start Location.  "
              "This runway end is either missing a Start Location, or the Start Location has the wrong name.  The "
              "Start Location for this runway end must be named \"Rwy 9\".");
    EXPECT_EQ(reports[0].objects, std::vector{ runway });
}

TEST_F(StartLocationFault, EndsAreReportedInReverseOrder) {
    HeadedRunway(9, 90);
    HeadedRunway(1, 10);
    std::vector<std::string> names;
    for (const faults::FaultReport& report : Reports()) names.push_back(NeededName(report));
    EXPECT_EQ(names, (std::vector<std::string>{ "Rwy 19", "Rwy 1", "Rwy 27", "Rwy 9" }));
}

TEST_F(StartLocationFault, AnEndClosedForTakeoffNeedsNone) {
    SceneryObject* runway = HeadedRunway(9, 90);
    BodyOf(runway).pattern = 0x01;
    auto reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(NeededName(reports[0]), "Rwy 27");
    BodyOf(runway).pattern = 0x08;
    reports = Reports();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(NeededName(reports[0]), "Rwy 9");
    BodyOf(runway).pattern = 0x36;  // landing and pattern direction do not matter
    EXPECT_EQ(Reports().size(), 2u);
}

TEST_F(StartLocationFault, AHelipadStartServesNoRunway) {
    SceneryObject* runway = HeadedRunway(9, 90);
    BodyOf(runway).pattern = 0x08;
    Start(9, 0x30);
    EXPECT_EQ(Reports().size(), 1u);
}

TEST_F(StartLocationFault, AWaterStartServesARunway) {
    SceneryObject* runway = HeadedRunway(9, 90);
    BodyOf(runway).pattern = 0x08;
    Start(9, 0x20);
    EXPECT_TRUE(Reports().empty());
}

TEST_F(StartLocationFault, TheSuffixMustFit) {
    SceneryObject* runway = HeadedRunway(9, 90);
    BodyOf(runway).primaryDesignator = 1;
    BodyOf(runway).secondaryDesignator = 2;
    Start(9);
    Start(27, 0x11);
    EXPECT_EQ(Reports().size(), 2u);
    Start(9, 0x11);
    Start(27, 0x12);
    EXPECT_TRUE(Reports().empty());
}

TEST_F(StartLocationFault, LetteredEndsAreNamedByTheirDirection) {
    SceneryObject* runway = HeadedRunway(9, 0);
    BodyOf(runway).primaryNumber = 37;
    BodyOf(runway).secondaryNumber = 41;
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 2u);
    EXPECT_EQ(NeededName(reports[0]), "Rwy S");
    EXPECT_EQ(NeededName(reports[1]), "Rwy N");
    Start(37);
    Start(41);
    EXPECT_TRUE(Reports().empty());
}

TEST_F(StartLocationFault, ThePointLies200FeetInsideTheEnd) {
    HeadedRunway(9, 90);  // 2000 m
    const auto reports = Reports();
    ASSERT_EQ(reports.size(), 2u);
    ExpectAt(reports[0], { 1000 - 60.96, 0 }, 0.3);  // the reciprocal end lies along the heading
    ExpectAt(reports[1], { -1000 + 60.96, 0 }, 0.3);
}

TEST_F(StartLocationFault, TheBlastPadsDoNotMoveThePoint) {
    SceneryObject* runway = HeadedRunway(36, 0);
    model::PayloadAs<model::RunwayPayload>(runway).secondaryBlastPad.length = 300;
    ExpectAt(Reports()[0], { 0, 1000 - 60.96 });
}

TEST_F(StartLocationFault, ADamagedRunwayIsShownAtItsCentre) {
    using Limits = std::numeric_limits<float>;
    SceneryObject* runway = HeadedRunway(36, 30, { 300, 400 });
    const auto expectCentre = [] {
        const auto reports = Reports();
        ASSERT_EQ(reports.size(), 2u);
        for (const faults::FaultReport& report : reports) ExpectAt(report, { 300, 400 });
    };
    for (const float length : { Limits::infinity(), Limits::quiet_NaN(), 1e30f, -1e30f, Limits::max() }) {
        SCOPED_TRACE(length);
        BodyOf(runway).length = length;
        expectCentre();
    }
    BodyOf(runway).length = 2000;
    for (const float heading : { Limits::infinity(), Limits::quiet_NaN() }) {
        SCOPED_TRACE(heading);
        BodyOf(runway).heading = heading;
        expectCentre();
    }
}
