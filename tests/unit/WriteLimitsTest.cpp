// What does not fit into a file's fields is refused by name; what just fits is written and reads back.
#include "bgl/WriteLimits.h"

#include <gtest/gtest.h>

#include "bgl/AirportWriter.h"
#include "bgl/Cells.h"
#include "bgl/OpenAirport.h"
#include "fakes/AirportFixture.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/RandomAirport.h"
#include "fakes/SceneryBytes.h"

namespace {

using namespace model;

struct LimitCase {
    const char* name;
    uint32_t AirportCounts::*count;
    uint32_t most;
    uint32_t kind;
    const char* words;
};

std::ostream& operator<<(std::ostream& out, const LimitCase& c) { return out << c.name; }

class WriteLimits : public testing::TestWithParam<LimitCase> {
protected:
    void SetUp() override { ResetFakes(); }
    void TearDown() override { ClearModel(); }

    static AirportCounts Counts(uint32_t extra) {
        AirportCounts counts;
        counts.nodes = 3;  // so that links find ends
        counts.*GetParam().count = GetParam().most + extra;
        return counts;
    }
};

TEST_P(WriteLimits, JustFittingIsWrittenAndReadsBackWhole) {
    MakeRandomAirport(GetParam().most, Counts(0));
    MakeReadable();
    const std::string before = DescribeModel();
    const ByteList file = BuildFile();
    ASSERT_TRUE(bgl::OpenAirportBytes(file, ""));
    EXPECT_EQ(CountKind(GetParam().kind), GetParam().most);
    EXPECT_EQ(DescribeModel() == before, true);  // megabytes: better not printed
    EXPECT_EQ(BuildFile() == file, true);
}

TEST_P(WriteLimits, OneMoreIsRefusedByNameAndNothingIsChanged) {
    MakeRandomAirport(GetParam().most, Counts(1));
    PayloadAs<AirportRecord>(state.airport).runwayCount = 77;
    ByteList bytes;
    std::string refusal;
    EXPECT_FALSE(bgl::BuildAirportFile(1, &bytes, &refusal));
    EXPECT_EQ(refusal, "ERROR: The airport has " + std::to_string(GetParam().most + 1) + " " + GetParam().words +
                           ".\nA scenery file can hold no more than " + std::to_string(GetParam().most) + ".");
    EXPECT_TRUE(bytes.empty());
    EXPECT_EQ(PayloadAs<AirportRecord>(state.airport).runwayCount, 77);
}

constexpr LimitCase kCases[] = {
    { "Runways", &AirportCounts::runways, 255, kRunway, "runways" },
    { "Comms", &AirportCounts::comms, 255, kCommFrequency, "comm frequencies" },
    { "Starts", &AirportCounts::starts, 255, kStartLocation, "start locations" },
    { "Helipads", &AirportCounts::helipads, 255, kHelipad, "helipads" },
    { "Aprons", &AirportCounts::aprons, 255, kApron, "aprons" },
    { "Nodes", &AirportCounts::nodes, 4096, kTaxiNode, "taxi nodes" },
    { "Spots", &AirportCounts::spots, 4096, kParkingSpot, "parking spots" },
    { "Links", &AirportCounts::links, 65535, kTaxiLink, "taxi links" },
    { "Designators", &AirportCounts::designators, 256, kTaxiDesignator, "taxiway designators" },
};
INSTANTIATE_TEST_SUITE_P(EachKind, WriteLimits, testing::ValuesIn(kCases),
                         [](const auto& limit) { return limit.param.name; });

class OtherLimits : public AirportFixture {
protected:
    static std::string Refusal() {
        ByteList bytes;
        std::string refusal;
        bgl::BuildAirportFile(1, &bytes, &refusal);
        return refusal;
    }
};

TEST_F(OtherLimits, ApronsBeingDrawnDoNotCount) {
    for (int i = 0; i < 255; ++i) build::Apron({});
    build::Apron({})->flags |= kOutlineOpen;
    EXPECT_EQ(Refusal(), "");
}

EdgeLightStrip Strip(uint32_t start, uint32_t end) { return { 60, start, 0, end, 0, 0, 0, 0 }; }

TEST_F(OtherLimits, EdgeLightsMayHave65535EdgesOnFewVertices) {
    std::vector<EdgeLightStrip> strips(65535, Strip(1, 2));
    build::EdgeLights(strips);
    EXPECT_EQ(Refusal(), "");
    BeginAgain();
    strips.push_back(Strip(1, 2));
    build::EdgeLights(strips);
    EXPECT_EQ(Refusal(),
              "ERROR: The airport has 65536 strips of apron edge lights.\nA scenery file can hold no more than 65535.");
}

TEST_F(OtherLimits, EdgeLightsMayHave65535Vertices) {
    std::vector<EdgeLightStrip> strips;
    for (uint32_t i = 0; i < 32767; ++i) strips.push_back(Strip(2 * i, 2 * i + 1));
    strips.push_back(Strip(0, 65534));
    build::EdgeLights(strips);
    EXPECT_EQ(Refusal(), "");
    BeginAgain();
    strips.push_back(Strip(0, 65535));
    build::EdgeLights(strips);
    EXPECT_EQ(Refusal(),
              "ERROR: The airport has 65536 end points of apron edge lights.\n"
              "A scenery file can hold no more than 65535.");
}

void PutIntoCell(SceneryObject* navaid, uint32_t column) {
    SetEncodedPosition(navaid, { 0x08000000, column << 21 | 5 });
}

TEST_F(OtherLimits, NavaidsOfOneSectionMayLieInEightCells) {
    for (uint32_t column = 0; column < 8; ++column) {
        PutIntoCell(column % 2 ? build::Vor() : build::Ils("IAB"), column);
        PutIntoCell(build::Ndb(), column + 20);
    }
    EXPECT_EQ(Refusal(), "");
    PutIntoCell(build::Vor(), 7);  // no new cell
    EXPECT_EQ(Refusal(), "");
    PutIntoCell(build::Vor(), 8);
    EXPECT_EQ(Refusal(),
              "ERROR: The ILS and VOR/DME navaids of the airport lie in 9 grid cells.\n"
              "A scenery file can hold no more than 8.");
}

TEST_F(OtherLimits, MarkersAndNdbsCountForThemselves) {
    for (uint32_t column = 0; column < 9; ++column) PutIntoCell(build::Ndb(), column);
    EXPECT_NE(Refusal().find("The NDBs of the airport"), std::string::npos);
    BeginAgain();
    for (uint32_t column = 0; column < 9; ++column)
        PutIntoCell(build::Append(kMarkerBeacon, sizeof(MarkerBeaconPayload)), column);
    EXPECT_NE(Refusal().find("The marker beacons of the airport"), std::string::npos);
}

TEST_F(OtherLimits, StockNavaidsDoNotCount) {
    for (uint32_t column = 0; column < 20; ++column) {
        SceneryObject* vor = build::Vor();
        PutIntoCell(vor, column);
        vor->flags |= kStock;
    }
    EXPECT_EQ(Refusal(), "");
}

TEST_F(OtherLimits, NamelessLinksNeedNoDesignatorMore) {
    for (int i = 0; i < 256; ++i) build::Designator("Q");
    build::Link(build::Node(), build::Node());
    EXPECT_EQ(Refusal(), "");
    build::Designator("Z");
    EXPECT_EQ(Refusal(), "ERROR: The airport has 257 taxiway designators.\nA scenery file can hold no more than 256.");
}

}  // namespace
