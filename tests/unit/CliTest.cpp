// CliTest.cpp - tarvo-tool as its user meets it: arguments, verbs, statuses, messages.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "app/Settings.h"
#include "bgl/AirportWriter.h"
#include "cli/Arguments.h"
#include "cli/Tool.h"
#include "fakes/BuildObjects.h"
#include "fakes/FakePlatform.h"
#include "fakes/TemporaryFolder.h"
#include "map/MapView.h"
#include "platform/Files.h"

namespace {

using namespace cli;
namespace fs = std::filesystem;
using Bytes = std::vector<uint8_t>;
using Words = std::vector<std::string>;
using testing::IsSubstring;

ToolResult Tool(const Words& words) { return RunTool(words); }

void ExpectUsageError(const Words& words, const std::string& part) {
    const ToolResult result = Tool(words);
    EXPECT_EQ(result.status, 2) << part;
    EXPECT_EQ(result.output, "");
    EXPECT_PRED_FORMAT2(IsSubstring, part, result.errorOutput);
}
void ExpectFailure(const Words& words, const std::string& part) {
    const ToolResult result = Tool(words);
    EXPECT_EQ(result.status, 1) << part;
    EXPECT_EQ(result.output, "");
    EXPECT_PRED_FORMAT2(IsSubstring, part, result.errorOutput);
}

class Cli : public testing::Test {
protected:
    void SetUp() override {
        ResetFakes();
        model::ClearModel();
    }
    void TearDown() override { model::ClearModel(); }
    std::string In(const std::string& name) const { return (folder / name).string(); }

    // A file with one small airport.
    std::string AirportFile(const std::string& name, const std::string& ident) const {
        model::ClearModel();
        build::Airport(ident);
        model::SetAirportName("Field of " + ident);
        build::Link(build::Node({ 0, 0 }), build::Node({ 100, 0 }));
        build::Runway(16);
        Bytes bytes;
        std::string refusal;
        EXPECT_TRUE(bgl::BuildAirportFile(1, &bytes, &refusal)) << refusal;
        EXPECT_TRUE(platform::WriteFileWhole(In(name), bytes));
        model::ClearModel();
        return In(name);
    }
    static Bytes Read(const std::string& path) {
        Bytes bytes;
        EXPECT_TRUE(platform::ReadWholeFile(path, 1 << 24, &bytes)) << path;
        return bytes;
    }
    static uint64_t TimeStampOf(const std::string& path) {
        uint64_t time = 0;
        std::memcpy(&time, Read(path).data() + 8, sizeof time);
        return time;
    }
    const TemporaryFolder temporary;
    const fs::path& folder = temporary.path;
};

TEST(Arguments, OptionsMayStandAnywhere) {
    constexpr Option kKnown[] = { { "--ident", "ID", "" }, { "--night", nullptr, "" } };
    for (const Words& words :
         { Words{ "--ident", "KSEA", "--night", "in", "out" }, Words{ "in", "--night", "out", "--ident=KSEA" },
           Words{ "in", "--ident", "KSEA", "out", "--night" } }) {
        Arguments arguments;
        std::string error;
        ASSERT_TRUE(ParseArguments(words, kKnown, &arguments, &error)) << error;
        EXPECT_EQ(arguments.operands, (Words{ "in", "out" }));
        EXPECT_EQ(OptionOr(arguments, "--ident", ""), "KSEA");
        EXPECT_TRUE(HasOption(arguments, "--night"));
    }
}

TEST(Arguments, TwoDashesEndTheOptions) {
    constexpr Option kKnown[] = { { "--night", nullptr, "" } };
    Arguments arguments;
    std::string error;
    ASSERT_TRUE(ParseArguments(Words{ "--night", "--", "--night", "-x", "--" }, kKnown, &arguments, &error));
    EXPECT_EQ(arguments.operands, (Words{ "--night", "-x", "--" }));
}

TEST(Arguments, AValueMayLookLikeAnOptionOrBeEmpty) {
    constexpr Option kKnown[] = { { "--rotation", "DEG", "" } };
    Arguments arguments;
    std::string error;
    ASSERT_TRUE(ParseArguments(Words{ "--rotation", "-30" }, kKnown, &arguments, &error));
    EXPECT_EQ(OptionOr(arguments, "--rotation", ""), "-30");
    ASSERT_TRUE(ParseArguments(Words{ "--rotation=" }, kKnown, &arguments, &error));
    EXPECT_EQ(OptionOr(arguments, "--rotation", "x"), "");
}

TEST(Arguments, ALoneDashIsAnOperandAndTheLastOptionCounts) {
    constexpr Option kKnown[] = { { "--ident", "ID", "" } };
    Arguments arguments;
    std::string error;
    ASSERT_TRUE(ParseArguments(Words{ "-", "--ident", "A", "--ident", "B" }, kKnown, &arguments, &error));
    EXPECT_EQ(arguments.operands, (Words{ "-" }));
    EXPECT_EQ(OptionOr(arguments, "--ident", ""), "B");
    EXPECT_EQ(OptionOr(arguments, "--none", "otherwise"), "otherwise");
}

TEST(Arguments, FaultsAreNamed) {
    constexpr Option kKnown[] = { { "--ident", "ID", "" }, { "--night", nullptr, "" } };
    const std::pair<Words, const char*> kFaults[] = {
        { { "--foo" }, "unknown option '--foo'" },
        { { "--foo=1" }, "unknown option '--foo'" },
        { { "-n" }, "unknown option '-n'" },
        { { "--ident" }, "option '--ident' needs a value (ID)" },
        { { "--night=1" }, "option '--night' takes no value" },
    };
    for (const auto& [words, expected] : kFaults) {
        Arguments arguments;
        std::string error;
        EXPECT_FALSE(ParseArguments(words, kKnown, &arguments, &error));
        EXPECT_EQ(error, expected);
    }
}

TEST(Arguments, AWholeNumberIsDecimalOrHexadecimalAndNothingElse) {
    EXPECT_EQ(ParseWhole("0"), 0u);
    EXPECT_EQ(ParseWhole("127765632000000000"), 127765632000000000u);
    EXPECT_EQ(ParseWhole("0x1C5E6b3"), 0x1C5E6B3u);
    EXPECT_EQ(ParseWhole("18446744073709551615"), UINT64_MAX);
    for (const char* text : { "", "0x", "-1", "+1", "1 ", " 1", "1.5", "18446744073709551616", "abc", "0xG" })
        EXPECT_EQ(ParseWhole(text), std::nullopt) << text;
}

TEST(Arguments, ADecimalNumberIsFiniteAndNothingElse) {
    EXPECT_EQ(ParseDecimal("2.5"), 2.5);
    EXPECT_EQ(ParseDecimal("-30"), -30);
    for (const char* text : { "", "x", "1x", "inf", "nan", "1e999", "1,5" })
        EXPECT_EQ(ParseDecimal(text), std::nullopt) << text;
}

TEST_F(Cli, HelpListsTheVerbs) {
    for (const Words& words : { Words{ "--help" }, Words{ "help" } }) {
        const ToolResult result = Tool(words);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.errorOutput, "");
        for (const char* verb : { "dump FILE", "rewrite IN OUT", "sample DIR", "picture FILE OUT.svg", "help VERB" })
            EXPECT_PRED_FORMAT2(IsSubstring, verb, result.output);
    }
}

TEST_F(Cli, EveryVerbExplainsItselfInLinesThatFitATerminal) {
    for (const std::string verb : { "dump", "rewrite", "sample", "picture", "faults", "index", "find" }) {
        const ToolResult result = Tool({ "help", verb });
        EXPECT_EQ(result.status, 0);
        EXPECT_PRED_FORMAT2(IsSubstring, "NAME\n    tarvo-tool " + verb + " - ", result.output);
        for (const char* part : { "\nSYNOPSIS\n", "\nDESCRIPTION\n", "\nOPTIONS\n", "\nEXIT STATUS\n" })
            EXPECT_PRED_FORMAT2(IsSubstring, part, result.output);
        EXPECT_EQ(Tool({ verb, "--help" }).output, result.output);
        EXPECT_EQ(Tool({ "--help", verb, "and", "more" }).output, result.output);
        std::istringstream lines(result.output);
        for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), 78u) << line;
    }
}

TEST_F(Cli, TheManualPageNamesEveryVerbAndOption) {
    const Bytes bytes = Read((fs::path(TARVO_TEST_DATA) / "../../docs/tarvo-tool.1").lexically_normal().string());
    std::string page(bytes.begin(), bytes.end());
    std::erase(page, '\\');  // the page writes "\-" for "-"
    for (const std::string verb : { "dump", "rewrite", "sample", "picture", "faults", "index", "find" }) {
        EXPECT_PRED_FORMAT2(IsSubstring, "tarvo-tool " + verb, page);
        std::istringstream words(Tool({ "help", verb }).output);
        for (std::string word; words >> word;) {
            EXPECT_TRUE(!word.starts_with("--") || page.find(word) != std::string::npos) << word;
        }
    }
}

TEST_F(Cli, WrongUsageIsStatusTwo) {
    ExpectUsageError({}, "a verb is missing");
    ExpectUsageError({ "frobnicate", "x" }, "there is no verb 'frobnicate'");
    ExpectUsageError({ "frobnicate", "dump" }, "there is no verb 'frobnicate'");
    ExpectUsageError({ "help", "frobnicate" }, "there is no verb 'frobnicate'");
    ExpectUsageError({ "help", "dump", "sample" }, "help takes one verb");
    ExpectUsageError({ "dump" }, "dump takes FILE\nTry 'tarvo-tool help dump'.");
    ExpectUsageError({ "dump", "a", "b" }, "dump takes FILE");
    ExpectUsageError({ "rewrite", "a" }, "rewrite takes IN OUT");
    ExpectUsageError({ "--frob", "dump", "a" }, "unknown option '--frob'");
    ExpectUsageError({ "dump", "a", "--night" }, "unknown option '--night'");  // another verb's option
    ExpectUsageError({ "dump", "a", "--ident" }, "option '--ident' needs a value (ID)");
    ExpectUsageError({ "rewrite", "a", "b", "--filetime", "soon" }, "'soon' is no time stamp");
    ExpectUsageError({ "picture", "a", "b", "--size", "12" }, "'12' does not fit --size");
}

TEST_F(Cli, MessagesNameTheProgram) {
    EXPECT_EQ(Tool({}).errorOutput, "tarvo-tool: a verb is missing\nTry 'tarvo-tool help'.\n");
}

TEST_F(Cli, TheVerbMayStandBehindOptions) {
    const std::string file = AirportFile("a.bgl", "KSEA");
    const ToolResult result = Tool({ "--ident", "ksea", "dump", file });
    EXPECT_EQ(result.status, 0) << result.errorOutput;
}

TEST_F(Cli, AnOptionsValueMayBeAVerbsName) {
    const std::string file = AirportFile("a.bgl", "DUMP");
    EXPECT_EQ(Tool({ "--ident", "dump", "rewrite", file, In("b.bgl") }).status, 0);
}

TEST_F(Cli, DumpPrintsTheAirport) {
    const std::string file = AirportFile("a.bgl", "KSEA");
    const ToolResult result = Tool({ "dump", file });
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errorOutput, "");
    EXPECT_TRUE(result.output.starts_with("{\"airport\": \"KSEA\", \"name\": \"Field of KSEA\", \"country\": "));
    EXPECT_PRED_FORMAT2(IsSubstring, "\"kind\": 9, \"what\": \"TaxiLink\"", result.output);
    EXPECT_EQ(Tool({ "dump", file, "--ident", "ksea" }).output, result.output);
}

TEST_F(Cli, FilesThatCannotBeReadAreFailures) {
    ExpectFailure({ "dump", In("missing.bgl") }, "cannot open '" + In("missing.bgl") + "'");
    ExpectFailure({ "dump", folder.string() }, "cannot open");
    std::ofstream(In("junk.bgl")) << "no scenery at all";
    ExpectFailure({ "dump", In("junk.bgl") }, "'" + In("junk.bgl") + "' holds no airport\n");
    const std::string file = AirportFile("a.bgl", "KSEA");
    ExpectFailure({ "dump", file, "--ident", "EDDF" }, "holds no airport 'EDDF'");
    ExpectFailure({ "dump", file, "--simulator", In("nowhere") }, "no folder '" + In("nowhere") + "'");
    ExpectFailure({ "rewrite", In("missing.bgl"), In("out.bgl") }, "cannot open");
    ExpectFailure({ "picture", In("missing.bgl"), In("out.svg") }, "cannot open");
    EXPECT_FALSE(platform::FileExists(In("out.bgl")));
    EXPECT_FALSE(platform::FileExists(In("out.svg")));
}

TEST_F(Cli, RewriteGivesTheSameBytesApartFromTheTimeStamp) {
    const std::string in = AirportFile("a.bgl", "KSEA"), out = In("b.bgl");
    EXPECT_EQ(Tool({ "rewrite", in, out, "--filetime", "1" }).status, 0);
    EXPECT_EQ(Read(out), Read(in));
    EXPECT_EQ(Tool({ "rewrite", in, out, "--filetime=0x01C5000000000000" }).status, 0);
    EXPECT_EQ(TimeStampOf(out), 0x01C5000000000000u);
    EXPECT_EQ(Tool({ "rewrite", in, out }).status, 0);
    EXPECT_EQ(TimeStampOf(out), fake.fileTime);
}

TEST_F(Cli, RewriteMayReplaceItsOwnInput) {
    const std::string file = AirportFile("a.bgl", "KSEA");
    EXPECT_EQ(Tool({ "rewrite", file, file, "--filetime", "7" }).status, 0);
    EXPECT_EQ(TimeStampOf(file), 7u);
    EXPECT_EQ(Tool({ "dump", file }).status, 0);
}

TEST_F(Cli, RewriteThatCannotWriteIsAFailure) {
    const std::string file = AirportFile("a.bgl", "KSEA");
    ExpectFailure({ "rewrite", file, In("no/such/folder.bgl") }, "cannot write '" + In("no/such/folder.bgl") + "'");
    ExpectFailure({ "picture", file, In("no/such/folder.svg") }, "cannot write");
}

TEST_F(Cli, PictureDrawsTheAirport) {
    const std::string file = AirportFile("a.bgl", "KSEA"), out = In("a.svg");
    ASSERT_EQ(Tool({ "picture", file, out, "--size", "640x480" }).status, 0);
    const Bytes bytes = Read(out);
    const std::string svg(bytes.begin(), bytes.end());
    EXPECT_PRED_FORMAT2(IsSubstring, "<svg", svg);
    EXPECT_PRED_FORMAT2(IsSubstring, "640", svg);
    EXPECT_PRED_FORMAT2(IsSubstring, "</svg>", svg);
}

TEST_F(Cli, PictureOptionsSetTheView) {
    const std::string file = AirportFile("a.bgl", "KSEA"), out = In("a.svg");
    ASSERT_EQ(Tool({ "picture", file, out, "--size=800x600", "--span", "1200", "--rotate", "-90" }).status, 0);
    EXPECT_EQ(map::view.clientWidth, 800);
    EXPECT_EQ(map::view.clientHeight, 600);
    EXPECT_NEAR(map::view.pixelsPerMetre, 0.5, 1e-12);
    EXPECT_NEAR(map::view.rotation, 1.5 * model::kPi, 1e-12);
    EXPECT_FALSE(map::layers.lights);
    const Bytes day = Read(out);
    ASSERT_EQ(Tool({ "picture", file, out, "--size=800x600", "--span", "1200", "--rotate", "-90", "--night" }).status,
              0);
    EXPECT_TRUE(map::layers.lights);
    EXPECT_NE(Read(out), day);
    ASSERT_EQ(Tool({ "picture", file, out, "--size=800x600", "--span", "1200", "--rotate", "270" }).status, 0);
    EXPECT_EQ(Read(out), day);  // nothing is left of the options before
}

TEST_F(Cli, PictureShowsExactlyTheLayersOfTheList) {
    const std::string file = AirportFile("a.bgl", "KSEA"), out = In("a.svg");
    ASSERT_EQ(Tool({ "picture", file, out }).status, 0);
    EXPECT_TRUE(map::layers.network && app::settings.showLatLongGrid);
    EXPECT_FALSE(map::layers.starts || map::layers.navaids || map::layers.holdShortLimits);
    ASSERT_EQ(Tool({ "picture", file, out, "--layers=starts,navaids,holdshort" }).status, 0);
    EXPECT_TRUE(map::layers.starts && map::layers.navaids && map::layers.holdShortLimits);
    EXPECT_FALSE(map::layers.network || app::settings.showLatLongGrid);
    ASSERT_EQ(Tool({ "picture", file, out, "--layers", "network,grid" }).status, 0);
    EXPECT_TRUE(map::layers.network && app::settings.showLatLongGrid);
    ASSERT_EQ(Tool({ "picture", file, out, "--layers=" }).status, 0);
    EXPECT_FALSE(map::layers.network || app::settings.showLatLongGrid);
}

TEST_F(Cli, PictureOptionsThatMakeNoSenseAreRefused) {
    for (const char* layers : { "roads", "network,", "network;grid", ",grid", "Network" })
        ExpectUsageError({ "picture", "a", "b", "--layers", layers }, "does not fit --layers");
    for (const char* size : { "0x10", "10x0", "10", "x", "10x", "10x10x10", "-5x5", "99999x10" })
        ExpectUsageError({ "picture", "a", "b", "--size", size }, "does not fit --size");
    for (const char* span : { "0", "-5", "x", "", "1e99" })
        ExpectUsageError({ "picture", "a", "b", "--span", span }, "does not fit --span");
    ExpectUsageError({ "picture", "a", "b", "--rotate", "north" }, "does not fit --rotate");
    for (const char* labels : { "", "none", "Types" })
        ExpectUsageError({ "picture", "a", "b", "--labels", labels }, "does not fit --labels");
}

TEST_F(Cli, SampleWithoutDataIsAFailure) {
    ExpectFailure({ "sample", In("sim"), "--world", In("nowhere") }, "no folder '" + In("nowhere") + "'");
    fs::create_directories(In("empty"));
    const ToolResult result = Tool({ "sample", In("sim"), "--world", In("empty") });
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.errorOutput.starts_with("tarvo-tool: "));
}

}  // namespace
