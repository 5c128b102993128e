// A file that was written reads back whole, and writing what was read gives the same file.
#include <gtest/gtest.h>

#include <cstdlib>

#include "bgl/AirportWriter.h"
#include "bgl/OpenAirport.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/RandomAirport.h"
#include "fakes/SceneryBytes.h"

namespace {

using namespace model;

constexpr size_t kTimeOffset = 8, kTimeSize = 8;

// 100,000 airports unless TARVO_ROUND_TRIPS says otherwise: 20 seconds with the sanitizers.
uint64_t RoundTrips() {
    const char* wanted = std::getenv("TARVO_ROUND_TRIPS");
    return wanted ? std::strtoull(wanted, nullptr, 10) : 100000;
}

class RoundTrip : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        ClearModel();
    }
    void TearDown() override { ClearModel(); }
};

// Empty when the open airport survives, else what is wrong.
std::string WhatIsLost() {
    ByteList first, second;
    std::string refusal;
    if (!bgl::BuildAirportFile(kTestTime, &first, &refusal)) return "refused: " + refusal;
    bool incomplete = false;
    if (!bgl::OpenAirportBytes(first, "", &incomplete)) return "cannot be opened";
    if (incomplete) return "is taken for damaged";
    if (!bgl::BuildAirportFile(kTestTime + 1, &second, &refusal)) return "refused again: " + refusal;
    std::copy_n(first.begin() + kTimeOffset, kTimeSize, second.begin() + kTimeOffset);
    if (first == second) return "";
    size_t at = 0;
    while (at < first.size() && at < second.size() && first[at] == second[at]) ++at;
    return "differs at " + std::to_string(at) + " of " + std::to_string(first.size());
}

TEST_F(RoundTrip, RandomAirportsWriteReadAndWriteTheSameBytes) {
    const uint64_t count = RoundTrips();
    for (uint64_t seed = 0; seed < count; ++seed) {
        Random random{ seed };
        MakeRandomAirport(seed, SmallCounts(&random));
        ASSERT_EQ(WhatIsLost(), "") << "airport " << seed;
    }
}

TEST_F(RoundTrip, AirportsAtAndJustBelowEveryLimitWriteReadAndWriteTheSameBytes) {
    const struct {
        uint32_t AirportCounts::*count;
        uint32_t most;
    } limits[] = { { &AirportCounts::runways, 255 },
                   { &AirportCounts::comms, 255 },
                   { &AirportCounts::starts, 255 },
                   { &AirportCounts::helipads, 255 },
                   { &AirportCounts::aprons, 255 },
                   { &AirportCounts::nodes, 4096 },
                   { &AirportCounts::spots, 4096 },
                   { &AirportCounts::links, 65535 },
                   { &AirportCounts::designators, 256 },
                   { &AirportCounts::strips, 32767 },
                   { &AirportCounts::exactApronVertices, 65535 } };
    for (const auto& limit : limits) {
        for (uint32_t below : { 0u, 1u }) {
            Random random{ limit.most };
            AirportCounts counts = SmallCounts(&random);
            counts.nodes = std::max(counts.nodes, 2u);
            counts.aprons = std::max(counts.aprons, 1u);
            counts.*limit.count = limit.most - below;
            MakeRandomAirport(limit.most + below, counts);
            ASSERT_EQ(WhatIsLost(), "") << limit.most << " - " << below;
        }
    }
}

TEST_F(RoundTrip, EveryObjectReadsBackAsItWas) {
    for (uint64_t seed = 0; seed < 2000; ++seed) {
        Random random{ seed };
        AirportCounts counts = SmallCounts(&random);
        counts.cells = 1;  // in several cells navaids come back cell by cell
        MakeRandomAirport(seed, counts);
        MakeReadable();
        const std::string before = DescribeModel();
        ASSERT_TRUE(bgl::OpenAirportBytes(BuildFile(), ""));
        ASSERT_EQ(DescribeModel(), before) << "airport " << seed;
    }
}

TEST_F(RoundTrip, LargeAirportReadsBackAsItWas) {
    MakeRandomAirport(1, LargeCounts());
    MakeReadable();
    const std::string before = DescribeModel();
    ASSERT_TRUE(bgl::OpenAirportBytes(BuildFile(), ""));
    EXPECT_EQ(DescribeModel() == before, true);
}

TEST_F(RoundTrip, WritingTwiceGivesTheSameBytes) {
    MakeRandomAirport(5, LargeCounts());
    const ByteList first = BuildFile();
    EXPECT_EQ(BuildFile() == first, true);
}

TEST_F(RoundTrip, OverrunsAreLostOnSaving) {
    build::Airport("KSEA");
    PayloadAs<RunwayPayload>(build::Runway(16)).primaryOverrun = { 4, 100, 45 };
    ASSERT_TRUE(bgl::OpenAirportBytes(BuildFile(), ""));
    const float length = PayloadAs<RunwayPayload>(FirstOfKind(state.head, kRunway)).primaryOverrun.length;
    EXPECT_EQ(length, 0.0f);
}

TEST_F(RoundTrip, RunwayLinkKeepsItsRunwayThoughTheDesignatorNeedsMoreBitsThanTheLinkHas) {
    build::Airport("KSEA");
    SceneryObject* runway = build::Runway(16, 0x12);
    build::Link(build::Node(), build::Node({ 10, 0 }), kRunwayLink, runway);
    ASSERT_TRUE(bgl::OpenAirportBytes(BuildFile(), ""));
    const SceneryObject* link = FirstOfKind(state.head, kTaxiLink);
    ASSERT_NE(link, nullptr);
    EXPECT_EQ(Copied(PayloadAs<TaxiLinkPayload>(link).designator), FirstOfKind(state.head, kRunway));
}

}  // namespace
