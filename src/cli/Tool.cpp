// Tool.cpp - the table of verbs, and help made from it.
#include "cli/Tool.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <vector>

#include "cli/Arguments.h"
#include "cli/Columns.h"
#include "cli/Verbs.h"

namespace cli {

namespace {

constexpr Option kIdentOption = { "--ident", "ID",
                                  "The airport to take, by its ICAO identifier, without regard to case. Without "
                                  "this option it is the first airport in the file." };
constexpr Option kHelpOption = { "--help", nullptr, "Print this text." };

constexpr Option kDumpOptions[] = {
    kIdentOption,
    { "--simulator", "DIR",
      "The simulator's folder. The stock navaids around the airport are read from its scenery files and listed "
      "as well; without this option there are none." },
    kHelpOption,
};
constexpr Option kRewriteOptions[] = {
    kIdentOption,
    { "--filetime", "N",
      "The time stamp for the file's header: 100 ns units since 1601-01-01 UTC, decimal or hexadecimal with 0x. "
      "Without this option it is the present time." },
    kHelpOption,
};
constexpr Option kSampleOptions[] = {
    { "--world", "DIR",
      "The folder with airports.csv, runways.csv, navaids.csv and frequencies.csv. Without this option it is "
      "samples/world of the source tree that the tool was built from." },
    kHelpOption,
};
constexpr Option kPictureOptions[] = {
    kIdentOption,
    { "--size", "WxH", "Width and height of the picture in pixels. Without this option 1280x960." },
    { "--span", "METRES", "Ground shown across the picture's height. Without this option 3704.4, two nautical miles." },
    { "--rotate", "DEG", "Turn of the map in degrees; 0 is north up." },
    { "--night", nullptr, "Night colours, with the lights on." },
    { "--labels", "KIND", "Parking labels: types or codes. Without this option there are none." },
    { "--layers", "LIST",
      "What is drawn over the ground, separated by commas: network (nodes, links, parking), starts, "
      "navaids (those that the file holds), holdshort (the limits of hold-short nodes), grid. Without this option "
      "network,grid." },
    kHelpOption,
};

constexpr Option kFaultsOptions[] = {
    kIdentOption,
    { "--json", nullptr, "Print JSON; of a folder an array of all airports with their reports." },
    kHelpOption,
};

constexpr Option kCacheOption = { "--cache", "DIR",
                                  "The folder of the two cache files, which are written anew. Without this option "
                                  "every scenery file is opened." };
constexpr Option kIndexOptions[] = {
    kCacheOption,
    { "--json", nullptr, "Print JSON instead of lines." },
    { "--stats", nullptr, "Also print how many files were seen, opened and passed over, and the times taken." },
    kHelpOption,
};
constexpr Option kFindOptions[] = { kCacheOption, kHelpOption };

struct Verb {
    const char* name;
    const char* operands;
    size_t operandCount;
    const char* summary;
    const char* description;
    std::span<const Option> options;
    ToolResult (*run)(const Arguments& arguments);
};

constexpr Verb kVerbs[] = {
    { "dump", "FILE", 1, "print an airport as JSON",
      "Reads one airport of a scenery file and prints it as JSON: its identifier and names, and every object in "
      "list order. Each object has its kind, flags and payload (hexadecimal, as in the file) and the decoded fields "
      "of its kind. Positions are degrees north and east, lengths and elevations metres, headings degrees, "
      "frequencies hertz; \"start\", \"end\", \"designator\" and \"related\" are places in the list, counted from 0. "
      "Numbers that are not finite are null.",
      kDumpOptions, RunDump },
    { "rewrite", "IN OUT", 2, "read an airport and write it to a new file",
      "Reads one airport of the file IN and writes it as the scenery file OUT, as saving it in Tarvo would. OUT is "
      "replaced only when the new file is complete; the two may be the same.",
      kRewriteOptions, RunRewrite },
    { "sample", "DIR", 1, "make a folder that looks like an installed simulator",
      "Fills the folder DIR, which is made when missing, with scenery files of real airports, their navaids, a "
      "scenery library and aircraft, laid out as the simulator does. DIR/sample.txt names the three airports that "
      "were laid out by hand.",
      kSampleOptions, RunSample },
    { "picture", "FILE OUT.svg", 2, "draw the map of an airport",
      "Draws the map of one airport of a scenery file, centred on its reference point, as Tarvo shows it, and "
      "writes it as a Scalable Vector Graphics file.",
      kPictureOptions, RunPicture },
    { "faults", "FILE|DIR", 1, "find faults in the ground network of airports",
      "Runs all checks of Tarvo's fault finder on one airport of a scenery file and prints each report with its "
      "message, the position in degrees and the objects by their place in the list, counted from 0, and their name. "
      "Of a folder every scenery file in it gets one line about all of its airports, or about the one named. The exit "
      "status is 3 when there are faults.",
      kFaultsOptions, RunFaults },
    { "index", "SIMFOLDER", 1, "list the airports of a scenery library",
      "Collects the airports of all scenery files that Scenery.cfg of the simulator's folder leads to and prints a "
      "line for each, with tabs between: identifier, type (Stock or Mod), layer, \"superseded\" when a higher layer "
      "has the same airport or \"-\", name, city, state, country and file. Lines are sorted by identifier; of one "
      "airport the highest layer comes first.",
      kIndexOptions, RunIndex },
    { "find", "SIMFOLDER ID", 2, "tell which scenery files hold an airport",
      "Collects the airports of the library and prints a line for each file that holds the airport ID, the highest "
      "layer first, with tabs between: \"wins\", \"same layer\" or \"superseded\", layer, type, name and file. The "
      "simulator shows the airport as the file that wins has it; of several in the same layer none can be told to win.",
      kFindOptions, RunFind },
};

std::string UsageLine(const Verb& verb) {
    std::string usage = std::string("tarvo-tool ") + verb.name + ' ' + verb.operands;
    for (const Option& option : verb.options) {
        usage += std::string(" [") + option.name + (option.value ? std::string(" ") + option.value : "") + ']';
    }
    return usage;
}

std::string OverallHelp() {
    std::string text =
        "tarvo-tool - airport files of the simulator from the command line\n\n"
        "Usage: tarvo-tool VERB ARGUMENTS\n\nVerbs:\n";
    for (const Verb& verb : kVerbs) {
        std::string left = std::string("    ") + verb.name + ' ' + verb.operands;
        left.resize(std::max<size_t>(left.size() + 2, 28), ' ');
        text += left + verb.summary + '\n';
    }
    return text +
           "    help VERB               what a verb does and takes\n\n"
           "Options may stand anywhere; -- ends them. Errors are told on standard error.\n"
           "Exit status: 0 done, 1 failed, 2 wrong usage, 3 faults found (verb faults).\n";
}

std::string VerbHelp(const Verb& verb) {
    std::string text = std::string("NAME\n    tarvo-tool ") + verb.name + " - " + verb.summary + "\n\nSYNOPSIS\n";
    text += Wrapped(UsageLine(verb), 4) + "\nDESCRIPTION\n" + Wrapped(verb.description, 4) + "\nOPTIONS\n";
    for (const Option& option : verb.options) {
        text += std::string("    ") + option.name + (option.value ? std::string(" ") + option.value : "") + '\n';
        text += Wrapped(option.help, 8);
    }
    return text +
           "\nEXIT STATUS\n    0 when all was done, 1 when something failed (standard error tells what),\n"
           "    2 when the arguments are wrong.\n";
}

const Verb* FindVerb(std::string_view name) {
    const auto* found =
        std::find_if(std::begin(kVerbs), std::end(kVerbs), [&](const Verb& v) { return v.name == name; });
    return found == std::end(kVerbs) ? nullptr : found;
}

ToolResult UsageError(std::string message, const Verb* verb) {
    message += "\nTry 'tarvo-tool help";
    if (verb) message += std::string(" ") + verb->name;
    return WrongUsage(message + "'.");
}

ToolResult RunHelp(std::span<const std::string> names) {
    if (names.empty()) return { 0, OverallHelp(), "" };
    if (names.size() > 1) return UsageError("help takes one verb", nullptr);
    const Verb* verb = FindVerb(names[0]);
    if (!verb) return UsageError("there is no verb '" + names[0] + "'", nullptr);
    return { 0, VerbHelp(*verb), "" };
}

ToolResult RunVerb(const Verb& verb, std::span<const std::string> words) {
    Arguments arguments;
    std::string error;
    if (!ParseArguments(words, verb.options, &arguments, &error)) return UsageError(error, &verb);
    if (HasOption(arguments, "--help")) return { 0, VerbHelp(verb), "" };
    arguments.operands.erase(arguments.operands.begin());  // the verb itself
    if (arguments.operands.size() != verb.operandCount)
        return UsageError(std::string(verb.name) + " takes " + verb.operands, &verb);
    return verb.run(arguments);
}

// Options may stand before the verb: to find it, those of all verbs are known. An option of the same name
// takes a value with every verb or with none.
std::vector<Option> AllOptions() {
    std::vector<Option> all;
    for (const Verb& verb : kVerbs) all.insert(all.end(), verb.options.begin(), verb.options.end());
    return all;
}

}  // namespace

ToolResult RunTool(std::span<const std::string> words) {
    Arguments arguments;
    std::string error;
    if (!ParseArguments(words, AllOptions(), &arguments, &error)) return UsageError(error, nullptr);
    const std::vector<std::string>& operands = arguments.operands;
    if (operands.empty())
        return HasOption(arguments, "--help") ? RunHelp({}) : UsageError("a verb is missing", nullptr);
    if (operands[0] == "help") return RunHelp(std::span(operands).subspan(1));
    const Verb* verb = FindVerb(operands[0]);
    if (!verb) return UsageError("there is no verb '" + operands[0] + "'", nullptr);
    return RunVerb(*verb, words);
}

}  // namespace cli
