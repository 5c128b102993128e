// SampleLayoutsTest.cpp - the airports that are laid out by hand, and every generated one of the sample data.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "fakes/FakePlatform.h"
#include "faults/FaultSearch.h"
#include "model/ObjectList.h"
#include "model/Triangulate.h"
#include "sample/AirportModel.h"
#include "sample/Layouts.h"
#include "sample/NavaidModel.h"
#include "sample/Network.h"
#include "sample/PlanGeometry.h"
#include "sample/RunwayPlans.h"

namespace {

using sample::AirportPlan;
using sample::Local;
using sample::Network;

struct SampleLayouts : testing::Test {
    static void SetUpTestSuite() {
        std::string error;
        ASSERT_TRUE(sample::LoadWorld(TARVO_SAMPLE_DATA, &world, &error)) << error;
    }
    static void TearDownTestSuite() { world = {}; }
    void SetUp() override {
        ResetFakes();
        model::ClearModel();
    }
    void TearDown() override { model::ClearModel(); }

    static AirportPlan PlanOf(const sample::AirportRow& row) {
        AirportPlan plan =
            sample::PlanAirport(world, row, sample::VariationAt(sample::MapVariations(world), row.position));
        sample::LayOut(&plan);
        return plan;
    }
    static AirportPlan PlanOf(const char* ident) {
        const sample::AirportRow* row = sample::FindAirport(world, ident);
        EXPECT_NE(row, nullptr) << ident;
        return row ? PlanOf(*row) : AirportPlan{};
    }

    inline static sample::World world;
};

Local EndOf(const AirportPlan& plan, const Network& network, const sample::NetLink& link) {
    const auto end = static_cast<size_t>(link.end);
    return link.type == model::kParkingLink ? plan.spots[end].at : network.nodes[end].at;
}

void ExpectSound(const AirportPlan& plan) {
    const Network network = sample::BuildNetwork(plan);
    int parts = 0;
    sample::ConnectedParts(network, &parts);
    EXPECT_EQ(parts, network.nodes.empty() ? 0 : 1) << plan.ident;
    std::vector<int> linksOfSpot(plan.spots.size());
    std::set<std::pair<int, int>> pairs;
    for (const sample::NetLink& link : network.links) {
        const double length =
            sample::Distance(network.nodes[static_cast<size_t>(link.start)].at, EndOf(plan, network, link));
        EXPECT_GE(length, sample::kNodeSpacing - 0.01) << plan.ident;
        if (link.type == model::kParkingLink)
            ++linksOfSpot[static_cast<size_t>(link.end)];
        else
            EXPECT_TRUE(pairs.insert(std::minmax(link.start, link.end)).second) << plan.ident << ": a link twice";
    }
    for (const int count : linksOfSpot) EXPECT_EQ(count, 1) << plan.ident;
}

void ExpectNoOverlaps(const AirportPlan& plan) {
    for (size_t i = 0; i < plan.spots.size(); ++i) {
        const sample::SpotPlan& spot = plan.spots[i];
        for (size_t k = 0; k < i; ++k) {
            const sample::SpotPlan& other = plan.spots[k];
            EXPECT_GE(sample::Distance(spot.at, other.at), spot.radius + other.radius - 1e-6)
                << plan.ident << ": spots at " << spot.at.east << ", " << spot.at.north;
        }
        for (const sample::RunwayPlan& runway : plan.runways)
            EXPECT_GE(sample::DistanceToRunway(runway, spot.at), spot.radius + 20) << plan.ident;
    }
}

std::string FirstFault(const AirportPlan& plan) {
    sample::MakeAirportModel(plan);
    faults::FaultSearch search;
    faults::FaultReport report;
    return faults::FindNextFault(&search, &report) == faults::SearchResult::Fault ? report.message : "";
}

// Twice the signed area of the outline.
double AreaOf(const std::vector<Local>& outline) {
    double area = 0;
    for (size_t i = 0; i < outline.size(); ++i) area += sample::Cross(outline[i], outline[(i + 1) % outline.size()]);
    return area;
}

}  // namespace

TEST_F(SampleLayouts, HubIsAsLargeAsAHub) {
    const AirportPlan plan = PlanOf(sample::kHubIdent);
    const Network network = sample::BuildNetwork(plan);
    EXPECT_EQ(plan.runways.size(), 3u);
    EXPECT_GE(plan.spots.size(), 300u);
    EXPECT_GE(network.nodes.size(), 600u);
    EXPECT_GE(network.links.size(), 800u);
    EXPECT_GE(plan.aprons.size(), 5u);
    EXPECT_GE(plan.lights.size(), 30u);
    int ilss = 0;
    for (const sample::RunwayPlan& runway : plan.runways) {
        for (const auto& end : runway.ends) ilss += !end.ils.ident.empty();
    }
    EXPECT_EQ(ilss, 4);
    for (const model::NodeType type : { model::kHoldShortNode, model::kIlsHoldShortNode })
        EXPECT_GE(std::ranges::count(network.nodes, type, &sample::NetNode::type), 8);
}

TEST_F(SampleLayouts, HubNamesItsTaxiwaysAndItsGates) {
    const AirportPlan plan = PlanOf(sample::kHubIdent);
    std::set<std::string> names;
    for (const sample::TaxiLine& line : plan.lines) names.insert(line.name);
    for (const char* name : { "", "A", "B", "C", "T" }) EXPECT_TRUE(names.contains(name)) << name;
    EXPECT_GE(names.size(), 20u);
    const auto hasCodes = [](const sample::SpotPlan& spot) { return spot.codes[0] != '\0'; };
    EXPECT_GE(std::ranges::count_if(plan.spots, hasCodes), 100);
}

TEST_F(SampleLayouts, SpotsOfOneNameHaveDifferentNumbers) {
    for (const char* ident : { sample::kHubIdent, sample::kRegionalIdent, sample::kGrassIdent }) {
        std::set<std::pair<int, int>> numbers;
        for (const sample::SpotPlan& spot : PlanOf(ident).spots)
            EXPECT_TRUE(numbers.insert({ spot.name, spot.number }).second)
                << ident << " " << int{ spot.name } << " " << spot.number;
    }
}

TEST_F(SampleLayouts, HandMadeAirportsAreSound) {
    for (const char* ident : { sample::kHubIdent, sample::kRegionalIdent, sample::kGrassIdent }) {
        const AirportPlan plan = PlanOf(ident);
        EXPECT_FALSE(plan.spots.empty()) << ident;
        EXPECT_FALSE(plan.lines.empty()) << ident;
        ExpectSound(plan);
        ExpectNoOverlaps(plan);
    }
}

TEST_F(SampleLayouts, FaultFinderFindsNothingInTheHandMadeAirports) {
    for (const char* ident : { sample::kHubIdent, sample::kRegionalIdent, sample::kGrassIdent })
        EXPECT_EQ(FirstFault(PlanOf(ident)), "") << ident;
}

TEST_F(SampleLayouts, ApronsOfTheHandMadeAirportsAreTriangulatedExactly) {
    for (const char* ident : { sample::kHubIdent, sample::kRegionalIdent, sample::kGrassIdent }) {
        for (const sample::ApronPlan& apron : PlanOf(ident).aprons) {
            std::vector<model::EncodedPoint> outline;  // millimetres serve as well as encoded units
            constexpr double kOffset = 1e7, kScale = 1000;
            for (const Local corner : apron.outline) {
                outline.push_back({ static_cast<uint32_t>(kOffset + corner.east * kScale),
                                    static_cast<uint32_t>(kOffset - corner.north * kScale) });
            }
            double covered = 0;
            for (const model::ApronTriangle& triangle : model::Triangulate(outline)) {
                covered += std::fabs(AreaOf({ apron.outline[triangle.vertex[0]], apron.outline[triangle.vertex[1]],
                                              apron.outline[triangle.vertex[2]] }));
            }
            const double area = std::fabs(AreaOf(apron.outline));
            EXPECT_NEAR(covered, area, area * 1e-6) << ident;
        }
    }
}

TEST_F(SampleLayouts, RegionalAirportHasRunwaysThatCross) {
    const AirportPlan plan = PlanOf(sample::kRegionalIdent);
    int crossings = 0;
    for (size_t i = 0; i < plan.runways.size(); ++i) {
        for (size_t k = 0; k < i; ++k) {
            const sample::RunwayPlan &a = plan.runways[i], &b = plan.runways[k];
            crossings +=
                sample::SegmentCrossing(PrimaryEnd(a), SecondaryEnd(a), PrimaryEnd(b), SecondaryEnd(b)).has_value();
        }
    }
    EXPECT_EQ(crossings, 3);
}

TEST_F(SampleLayouts, GrassFieldIsOfGrass) {
    const AirportPlan plan = PlanOf(sample::kGrassIdent);
    ASSERT_EQ(plan.runways.size(), 1u);
    EXPECT_EQ(plan.runways[0].surface, sample::kGrass);
    EXPECT_GE(plan.spots.size(), 20u);
}

TEST_F(SampleLayouts, EveryAirportOfTheDataIsSound) {
    int generated = 0;
    for (const sample::AirportRow& row : world.airports) {
        const AirportPlan plan = PlanOf(row);
        if (plan.lines.empty()) continue;
        ++generated;
        ExpectSound(plan);
        ExpectNoOverlaps(plan);
    }
    EXPECT_GE(generated, 150);
}

TEST_F(SampleLayouts, AirportWithTwoLongPavedRunwaysHasTaxiwaysToBoth) {
    const AirportPlan plan = PlanOf("KBFI");
    const Network network = sample::BuildNetwork(plan);
    std::set<int> reached;
    for (const sample::NetLink& link : network.links) {
        if (link.type == model::kRunwayLink) reached.insert(link.runway);
    }
    EXPECT_EQ(reached, (std::set<int>{ 0, 1 }));
    EXPECT_FALSE(plan.spots.empty());
}
