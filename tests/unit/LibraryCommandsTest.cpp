// LibraryCommandsTest.cpp - tarvo-tool index and find.
#include <gtest/gtest.h>

#include "bgl/AirportIndex.h"
#include "cli/Tool.h"
#include "fakes/FakePlatform.h"
#include "fakes/TestLibrary.h"

namespace {

using Words = std::vector<std::string>;

class LibraryCommands : public testing::Test {
protected:
    LibraryCommands() {
        ResetFakes();
        bgl::library = {};
        disk.Put("Low", "AP915150.bgl",
                 MakeSceneryFile({ { "KSEA", "Seattle", "United States", "Washington", "Seattle" },
                                   { "KBFI", "Boeing", "United States", "Washington", "Seattle" } }));
        disk.Put("High", "z.bgl", MakeSceneryFile({ { "KSEA", "Z\xFCrich", "", "", "" } }));
        disk.Put("High", "text.bgl", { 't' });
        disk.PutAreas({ "Low", "High" });
    }
    ~LibraryCommands() override { bgl::library = {}; }

    // The output with "SIM" in place of the simulator's folder.
    std::string OutputOf(const Words& words) {
        const cli::ToolResult result = cli::RunTool(words);
        EXPECT_EQ(result.status, 0) << result.errorOutput;
        std::string text = result.output, folder = disk.simulator;
        for (char& c : folder) c = c == '\\' ? '/' : c;
        for (size_t at = text.find(folder); at != std::string::npos; at = text.find(folder)) {
            text.replace(at, folder.size(), "SIM");
        }
        return text;
    }
    static void ExpectFailure(const Words& words, const std::string& message) {
        const cli::ToolResult result = cli::RunTool(words);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.errorOutput, "tarvo-tool: " + message + "\n");
    }

    TestLibrary disk;
};

TEST_F(LibraryCommands, IndexPrintsALineForEachAirport) {
    EXPECT_EQ(OutputOf({ "index", disk.simulator }),
              "KBFI\tStock\t1\t-\tBoeing\tSeattle\tWashington\tUnited States\tSIM/Low/scenery/AP915150.bgl\n"
              "KSEA\tMod\t2\t-\tZ\xC3\xBCrich\t\t\t\tSIM/High/scenery/z.bgl\n"
              "KSEA\tStock\t1\tsuperseded\tSeattle\tSeattle\tWashington\tUnited States\t"
              "SIM/Low/scenery/AP915150.bgl\n");
}

TEST_F(LibraryCommands, IndexPrintsJson) {
    const std::string text = OutputOf({ "index", "--json", disk.simulator });
    EXPECT_NE(text.find("\"airports\""), std::string::npos);
    EXPECT_NE(text.find("Z\xC3\xBCrich"), std::string::npos);
    EXPECT_EQ(text.find("\"stats\""), std::string::npos);
    EXPECT_NE(OutputOf({ "index", "--json", "--stats", disk.simulator }).find("\"stats\""), std::string::npos);
}

TEST_F(LibraryCommands, StatisticsTellWhatWasOpened) {
    const Words words = { "index", disk.simulator, "--stats", "--cache", disk.program };
    const std::string cold = OutputOf(words), warm = OutputOf(words);
    for (const char* line : { "# areas: 2\n", "# files: 3\n", "# opened: 3\n", "# with airports: 2\n",
                              "# no scenery files: 1\n", "# cannot be opened: 0\n" }) {
        EXPECT_NE(cold.find(line), std::string::npos) << line;
    }
    EXPECT_NE(warm.find("# opened: 0\n"), std::string::npos);
    for (const char* line : { "# kind stock: 1\n", "# kind add-on: 1\n", "# kind none: 1\n" }) {
        EXPECT_NE(cold.find(line), std::string::npos) << line;
        EXPECT_NE(warm.find(line), std::string::npos) << line;
    }
    EXPECT_EQ(cold.substr(0, cold.find('#')), warm.substr(0, warm.find('#')));
    EXPECT_FALSE(disk.ReadCache("FileList").empty());
}

TEST_F(LibraryCommands, WithoutACacheFolderNothingIsKept) {
    OutputOf({ "index", disk.simulator });
    EXPECT_NE(OutputOf({ "index", disk.simulator, "--stats" }).find("# opened: 3\n"), std::string::npos);
}

TEST_F(LibraryCommands, FindTellsWhichFileWins) {
    EXPECT_EQ(OutputOf({ "find", disk.simulator, "ksea" }),
              "wins\t2\tMod\tZ\xC3\xBCrich\tSIM/High/scenery/z.bgl\n"
              "superseded\t1\tStock\tSeattle\tSIM/Low/scenery/AP915150.bgl\n");
    ExpectFailure({ "find", disk.simulator, "KSE" }, "no airport 'KSE' in the library");
}

TEST_F(LibraryCommands, FindTellsFilesOfTheSameLayerFromOneThatWins) {
    disk.Put("High", "y.bgl", MakeSceneryFile({ { "KSEA", "Second", "", "", "" } }));
    EXPECT_EQ(OutputOf({ "find", disk.simulator, "KSEA" }),
              "same layer\t2\tMod\tSecond\tSIM/High/scenery/y.bgl\n"
              "same layer\t2\tMod\tZ\xC3\xBCrich\tSIM/High/scenery/z.bgl\n"
              "superseded\t1\tStock\tSeattle\tSIM/Low/scenery/AP915150.bgl\n");
    disk.Put("Low", "x.bgl", MakeSceneryFile({ { "KSEA", "Third", "", "", "" } }));
    const std::string text = OutputOf({ "find", disk.simulator, "KSEA" });
    EXPECT_NE(text.find("superseded\t1\tMod\tThird"), std::string::npos) << text;
}

TEST_F(LibraryCommands, ATabInANameDoesNotMakeAField) {
    disk.Put("High", "z.bgl", MakeSceneryFile({ { "TABS", "One\tTwo", "A\tB", "", "" } }));
    EXPECT_EQ(OutputOf({ "find", disk.simulator, "TABS" }), "wins\t2\tMod\tOne Two\tSIM/High/scenery/z.bgl\n");
    EXPECT_NE(OutputOf({ "index", disk.simulator }).find("TABS\tMod\t2\t-\tOne Two\t\t\tA B\tSIM"), std::string::npos);
}

TEST_F(LibraryCommands, FoldersThatAreNoneAreFailures) {
    const std::string none = disk.simulator + "/none";
    ExpectFailure({ "index", none }, "no folder '" + none + "'");
    ExpectFailure({ "index", disk.simulator, "--cache", none }, "no folder '" + none + "'");
    ExpectFailure({ "find", disk.program, "KSEA" }, "'" + disk.program + "' has no Scenery.cfg that lists an area");
}

TEST_F(LibraryCommands, CachesThatCannotBeWrittenAreAFailure) {
    std::filesystem::create_directories(disk.root / "program" / "FileList");
    ExpectFailure({ "index", disk.simulator, "--cache", disk.program },
                  "cannot write the caches in '" + disk.program + "'");
}

}  // namespace
