// FaultsCommandTest.cpp - "tarvo-tool faults".
#include "cli/FaultsCommand.h"

#include <filesystem>

#include "bgl/AirportWriter.h"
#include "bgl/FileBuilder.h"
#include "bgl/RecordIds.h"
#include "cli/Tool.h"
#include "fakes/FaultAirport.h"
#include "fakes/SceneryBytes.h"
#include "fakes/TemporaryFolder.h"
#include "platform/Files.h"

namespace {

namespace fs = std::filesystem;
using build::Node;
using cli::ToolResult;
using model::PayloadAs;
using testing::IsSubstring;

struct FaultsCommand : FaultTest {
    // The airport in the model as a file.
    std::string Save(const std::string& name) const {
        std::vector<uint8_t> bytes;
        std::string refusal;
        EXPECT_TRUE(bgl::BuildAirportFile(1, &bytes, &refusal)) << refusal;
        const std::string path = (folder / name).string();
        EXPECT_TRUE(platform::WriteFileWhole(path, bytes));
        model::ClearModel();
        return path;
    }
    std::string CleanFile(const std::string& name) const {
        MakeCleanAirport();
        return Save(name);
    }
    std::string FaultyFile(const std::string& name) const {
        MakeCleanAirport();
        build::Spot({ 0, 2000 });
        Node({ 0, 3000 }, model::kHoldShortNode);
        return Save(name);
    }
    const TemporaryFolder temporary;
    const fs::path& folder = temporary.path;
};

ToolResult Faults(const std::vector<std::string>& words) {
    std::vector<std::string> all = { "faults" };
    all.insert(all.end(), words.begin(), words.end());
    return cli::RunTool(all);
}

}  // namespace

TEST_F(FaultsCommand, ACleanAirportIsStatusZero) {
    const ToolResult result = Faults({ CleanFile("clean.bgl") });
    EXPECT_EQ(result.status, 0) << result.errorOutput;
    EXPECT_EQ(result.output, "TEST: no faults\n");
}

TEST_F(FaultsCommand, FaultsAreStatusThreeAndToldInFull) {
    const ToolResult result = Faults({ FaultyFile("faulty.bgl") });
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.output.starts_with("TEST: 3 faults: 1 Hold Short Limits, 2 Isolated Segments\n"));
    EXPECT_PRED_FORMAT2(IsSubstring, "\n1. Hold Short Limits at 47.0269", result.output);
    EXPECT_PRED_FORMAT2(IsSubstring, "-122.000000 east\n    HOLD-SHORT NODE too far from runway.\n    If this is",
                        result.output);
    EXPECT_PRED_FORMAT2(IsSubstring, " hold-short node 8\n\n2. Isolated Segments at ", result.output);
    EXPECT_PRED_FORMAT2(IsSubstring, "    ISOLATED PARKING.\n    This parking spot is not connected", result.output);
    EXPECT_EQ(result.output.find('\r'), std::string::npos);
}

TEST_F(FaultsCommand, TheFileOfABrokenAirportHasAllItsFaultsInTheirOrder) {
    MakeBrokenAirport();
    const ToolResult result = Faults({ Save("broken.bgl") });
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(result.output.starts_with(
        "TEST: 15 faults: 1 Hold Short Limits, 2 Open Links, 6 Isolated Segments, 1 Overlapping Nodes, "
        "2 Default Start Locations, 2 Runway Links, 1 Apron Polygons\n"))
        << result.output.substr(0, 200);
    size_t at = 0;
    for (const char* line : kFaultsOfBrokenAirport) {
        const size_t found = result.output.find(std::string("\n    ") + line, at);
        ASSERT_NE(found, std::string::npos) << line;
        at = found + 1;
    }
}

TEST_F(FaultsCommand, JsonHoldsEachReport) {
    const std::string path = FaultyFile("faulty.bgl");
    const ToolResult result = Faults({ path, "--json" });
    EXPECT_EQ(result.status, 3);
    EXPECT_PRED_FORMAT2(IsSubstring, "\"airport\": \"TEST\"", result.output);
    EXPECT_PRED_FORMAT2(IsSubstring,
                        "\"check\": \"Hold Short Limits\", \"message\": \"HOLD-SHORT NODE too far from "
                        "runway.\\r\\nIf this",
                        result.output);
    EXPECT_PRED_FORMAT2(IsSubstring, "\"east\": -122.000000, \"objects\": [{\"position\": ", result.output);
    EXPECT_PRED_FORMAT2(IsSubstring, "\"name\": \"hold-short node 8\"}]}", result.output);
}

TEST_F(FaultsCommand, AFolderGetsALineAFile) {
    CleanFile("a.bgl");
    FaultyFile("B.BGL");
    const std::vector<uint8_t> noScenery = { 1, 2, 3 };
    platform::WriteFileWhole((folder / "c.bgl").string(), noScenery);
    platform::WriteFileWhole((folder / "d.txt").string(), noScenery);
    const ToolResult result = Faults({ folder.string() });
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.output,
              "a.bgl: TEST: no faults\n"
              "B.BGL: TEST: 3 faults: 1 Hold Short Limits, 2 Isolated Segments\n"
              "c.bgl: no airport\n");
}

TEST_F(FaultsCommand, AFolderWithoutFaultsIsStatusZero) {
    CleanFile("a.bgl");
    EXPECT_EQ(Faults({ folder.string() }).status, 0);
}

TEST_F(FaultsCommand, AFolderAsJsonIsAnArrayOfFiles) {
    CleanFile("a.bgl");
    FaultyFile("b.bgl");
    const ToolResult result = Faults({ folder.string(), "--json" });
    EXPECT_EQ(result.status, 3);
    EXPECT_TRUE(
        result.output.starts_with("[\n{\"file\": \"a.bgl\", \"airport\": \"TEST\", \"faults\": []},\n{\"file\": "));
    EXPECT_TRUE(result.output.ends_with("]}]\n"));
}

TEST_F(FaultsCommand, OfAFolderEveryAirportOfAFileIsExamined) {
    const ByteList airports = Join({ AirportRecordWith({}, "KSEA"), AirportRecordWith({}, "CYVR") });
    const bgl::SubsectionContent content = { 0x80001, 2, { airports } };
    const std::vector<bgl::SectionContent> sections = { { bgl::kAirportSection, bgl::kByCell, { content } } };
    const ByteList bytes = bgl::AssembleFile(sections, kTestTime);
    platform::WriteFileWhole((folder / "two.bgl").string(), bytes);
    EXPECT_EQ(Faults({ folder.string() }).output, "two.bgl: 2 airports: no faults\n");
    EXPECT_EQ(Faults({ folder.string(), "--ident", "cyvr" }).output, "two.bgl: CYVR: no faults\n");
    EXPECT_EQ(Faults({ folder.string(), "--ident", "KBFI" }).output, "two.bgl: no airport\n");
    EXPECT_EQ(Faults({ folder.string(), "--json" }).output,
              "[\n{\"file\": \"two.bgl\", \"airport\": \"KSEA\", \"faults\": []},\n"
              "{\"file\": \"two.bgl\", \"airport\": \"CYVR\", \"faults\": []}]\n");
}

TEST_F(FaultsCommand, WhatCannotBeReadIsStatusOne) {
    EXPECT_EQ(Faults({ (folder / "none.bgl").string() }).status, 1);
    EXPECT_EQ(Faults({ folder.string() }).status, 1);  // no scenery files
    EXPECT_EQ(Faults({ CleanFile("a.bgl"), "--ident", "ZZZZ" }).status, 1);
    EXPECT_EQ(Faults({ CleanFile("a.bgl"), "--ident", "test" }).status, 0);
}

TEST_F(FaultsCommand, ObjectsAreNamedAsUsersKnowThem) {
    model::SceneryObject* runway = HeadedRunway(9, 90);
    model::SceneryObject* first = Node();
    model::SceneryObject* second = Node({ 10, 0 }, model::kIlsHoldShortNode);
    model::SceneryObject* spot = build::Spot();
    EXPECT_EQ(cli::ObjectName(runway), "runway 9/27");
    EXPECT_EQ(cli::ObjectName(first), "node 0");
    EXPECT_EQ(cli::ObjectName(second), "ILS hold-short node 1");
    PayloadAs<model::ParkingSpotRecord>(spot).packed = 7u << 12 | 12;
    EXPECT_EQ(cli::ObjectName(spot), "Gate A 7");
    PayloadAs<model::ParkingSpotRecord>(spot).packed = 3u << 12;
    EXPECT_EQ(cli::ObjectName(spot), "parking spot 3");
    EXPECT_EQ(cli::ObjectName(build::Link(first, second, model::kRunwayLink, runway)), "runway link 9/27");
    EXPECT_EQ(cli::ObjectName(build::Link(first, second, 1, build::Designator("B7"))), "taxiway link B7");
    EXPECT_EQ(cli::ObjectName(build::Link(first, second, model::kClosedLink)), "closed link");
    EXPECT_EQ(cli::ObjectName(build::Apron({})), "apron");
}
