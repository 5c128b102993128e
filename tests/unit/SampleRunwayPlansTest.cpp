#include <gtest/gtest.h>

#include <cmath>

#include "sample/PlanGeometry.h"
#include "sample/RunwayPlans.h"

namespace {

using sample::RunwayPlan;
using sample::RunwayRow;

constexpr model::LatLon kReference = { 0.83, 2.13 };

RunwayRow Row(const char* low, const char* high) {
    RunwayRow row;
    row.airport = "TEST";
    row.surface = "ASP";
    row.length = 1500;
    row.width = 30;
    row.low.ident = low;
    row.high.ident = high;
    return row;
}

model::LatLon At(double east, double north) { return model::LocalToLatLon(kReference, { east, north }); }

RunwayPlan Plan(const RunwayRow& row, double variation = 0) {
    RunwayPlan plan;
    bool placed = false;
    EXPECT_TRUE(sample::PlanRunway(row, kReference, variation, &plan, &placed));
    return plan;
}

bool Refused(const RunwayRow& row) {
    RunwayPlan plan;
    bool placed = false;
    return !sample::PlanRunway(row, kReference, 0, &plan, &placed);
}

}  // namespace

TEST(SampleRunwayPlans, BothPositionsGiveCentreAndHeading) {
    RunwayRow row = Row("09", "27");
    row.low.position = At(-700, 100);
    row.high.position = At(800, 100);
    row.low.heading = 12;  // a mistyped one; the positions are surer
    const RunwayPlan plan = Plan(row);
    EXPECT_NEAR(plan.centre.east, 50, 0.1);
    EXPECT_NEAR(plan.centre.north, 100, 0.1);
    EXPECT_NEAR(plan.heading, 90, 0.05);
    EXPECT_EQ(plan.length, 1500);
}

TEST(SampleRunwayPlans, OnePositionIsThatEndOfTheRunway) {
    RunwayRow row = Row("18", "36");
    row.high.position = At(10, -900);
    const RunwayPlan plan = Plan(row);
    EXPECT_NEAR(plan.heading, 180, 1e-9);
    EXPECT_NEAR(plan.centre.east, 10, 0.1);
    EXPECT_NEAR(plan.centre.north, -900 + 750, 0.1);
}

TEST(SampleRunwayPlans, WithoutPositionsTheNumberIsTheMagneticHeading) {
    const RunwayPlan plan = Plan(Row("10", "28"), 15.5);
    EXPECT_NEAR(plan.heading, 115.5, 1e-9);
    EXPECT_EQ(plan.centre.east, 0);
    EXPECT_EQ(plan.centre.north, 0);
}

TEST(SampleRunwayPlans, PositionFarFromTheAirportIsNotBelieved) {
    RunwayRow row = Row("10", "28");
    row.low.position = At(-50000, 0);
    EXPECT_EQ(Plan(row).centre.east, 0);
}

TEST(SampleRunwayPlans, LetteredRunwaysAreTurnedSoThatTheirPrimaryEndIsANorthernOne) {
    const RunwayPlan plan = Plan(Row("S", "N"), 20);
    EXPECT_EQ(plan.ends[0].number, 37);
    EXPECT_EQ(plan.ends[1].number, 41);
    EXPECT_NEAR(plan.heading, 0, 1e-9) << "letters name true directions";
    EXPECT_EQ(Plan(Row("NE", "SW")).ends[0].number, 40);
}

TEST(SampleRunwayPlans, UnreadableEndIsTheOppositeOfTheOther) {
    const RunwayPlan plan = Plan(Row("XX", "26R"));
    EXPECT_EQ(plan.ends[0].number, 8);
    EXPECT_EQ(plan.ends[0].designator, 1);
}

TEST(SampleRunwayPlans, ClosedRunwaysHelipadsAndUnreadableOnesAreNone) {
    RunwayRow closed = Row("10", "28");
    closed.closed = true;
    EXPECT_TRUE(Refused(closed));
    EXPECT_TRUE(Refused(Row("H1", "")));
    EXPECT_TRUE(Refused(Row("lower", "high")));
    EXPECT_TRUE(Refused(Row("", "")));
}

TEST(SampleRunwayPlans, MissingSizesGetUsualOnes) {
    RunwayRow row = Row("10", "28");
    row.length = row.width = 0;
    const RunwayPlan plan = Plan(row);
    EXPECT_GE(plan.length, 300);
    EXPECT_GE(plan.width, 10);
}

TEST(SampleRunwayPlans, DisplacedThresholdNeverTakesMoreThanAThird) {
    RunwayRow row = Row("10", "28");
    row.low.displaced = 4000;
    EXPECT_EQ(Plan(row).ends[0].displaced, 500);
}

TEST(SampleRunwayPlans, ParallelRunwaysWithoutPositionsLieBesideEachOther) {
    sample::World world;
    world.airports.push_back({ "TEST", "Test", "", "", "", 0, kReference });
    world.runways = { Row("10L", "28R"), Row("10R", "28L"), Row("18", "36") };
    const sample::AirportPlan plan = sample::PlanAirport(world, world.airports[0], 0);
    ASSERT_EQ(plan.runways.size(), 3u);
    EXPECT_GE(sample::Distance(plan.runways[0].centre, plan.runways[1].centre), 150);
    EXPECT_EQ(plan.runways[2].centre.east, 0);
}

TEST(SampleRunwayPlans, FrequenciesOutsideTheAeronauticalBandAreLeftOut) {
    sample::World world;
    world.airports.push_back({ "TEST", "Test", "", "", "", 0, kReference });
    world.frequencies = { { "TEST", "TWR", "", 23.66 },
                          { "TEST", "TWR", "Tower", 118.7 },
                          { "TEST", "TWR", "Far", 349.3 },
                          { "TEST", "MISC", "", 122.8 } };
    const sample::AirportPlan plan = sample::PlanAirport(world, world.airports[0], 0);
    ASSERT_EQ(plan.comms.size(), 1u);
    EXPECT_EQ(plan.comms[0].frequency, 118700000u);
    EXPECT_EQ(plan.comms[0].type, 6);
    EXPECT_TRUE(plan.hasTower);
}

TEST(SampleRunwayPlans, LongLightedRunwaysOfTowersGetIlssOnChannelsOfTheirOwn) {
    sample::World world;
    world.airports.push_back({ "KSEA", "Test", "", "", "", 0, kReference });
    for (const char* low : { "16L", "16R", "07" }) {
        RunwayRow row = Row(low, "");
        row.airport = "KSEA";
        row.length = 3000;
        row.lighted = true;
        world.runways.push_back(row);
    }
    world.frequencies = { { "KSEA", "TWR", "Tower", 118.7 } };
    const sample::AirportPlan plan = sample::PlanAirport(world, world.airports[0], 0);
    std::vector<sample::IlsPlan> all;
    for (const RunwayPlan& runway : plan.runways) {
        for (const auto& end : runway.ends) {
            if (!end.ils.ident.empty()) all.push_back(end.ils);
        }
    }
    ASSERT_EQ(all.size(), 4u);
    EXPECT_EQ(all[0].ident, "ISEA");
    for (size_t i = 0; i < all.size(); ++i) {
        EXPECT_GE(all[i].frequency, 108100000u);
        EXPECT_LE(all[i].frequency, 111900000u);
        EXPECT_EQ((all[i].frequency - 108100000u) % 200000u, 0u);
        for (size_t k = 0; k < i; ++k) {
            EXPECT_NE(all[i].ident, all[k].ident);
            EXPECT_NE(all[i].frequency, all[k].frequency);
        }
    }
}
