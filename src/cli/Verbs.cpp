// Verbs.cpp - dump, rewrite and sample; picture has a file of its own.
#include "cli/Verbs.h"

#include <cstdint>
#include <vector>

#include "bgl/AirportReader.h"
#include "bgl/AirportWriter.h"
#include "bgl/OpenAirport.h"
#include "bgl/SceneryStructure.h"
#include "cli/Dump.h"
#include "platform/Files.h"
#include "platform/Platform.h"
#include "sample/SampleFolder.h"

namespace cli {

ToolResult Failure(const std::string& message) { return { kFailed, "", "tarvo-tool: " + message + "\n" }; }

ToolResult WrongUsage(const std::string& message) { return { kWrongUsage, "", "tarvo-tool: " + message + "\n" }; }

bool OpenNamedAirport(const std::string& path, const Arguments& arguments, const std::string& simulatorFolder,
                      std::string* error) {
    const std::string ident = OptionOr(arguments, "--ident", "");
    if (!platform::OpenForReading(path)) {
        *error = "cannot open '" + path + "'";
        return false;
    }
    bgl::AirportPlace place;
    if (!bgl::FindAirportInFile(path, ident, &place) || !bgl::OpenAirport(place, simulatorFolder)) {
        *error = "'" + path + "' holds no airport" + (ident.empty() ? "" : " '" + ident + "'");
        return false;
    }
    return true;
}

ToolResult RunDump(const Arguments& arguments) {
    const std::string simulator = OptionOr(arguments, "--simulator", "");
    if (!simulator.empty() && !platform::FolderExists(simulator)) return Failure("no folder '" + simulator + "'");
    std::string error;
    if (!OpenNamedAirport(arguments.operands[0], arguments, simulator, &error)) return Failure(error);
    return { 0, DumpModel(), "" };
}

ToolResult RunRewrite(const Arguments& arguments) {
    uint64_t fileTime = platform::SystemFileTime();
    if (HasOption(arguments, "--filetime")) {
        const std::string text = OptionOr(arguments, "--filetime", "");
        const std::optional<uint64_t> number = ParseWhole(text);
        if (!number) return WrongUsage("'" + text + "' is no time stamp");
        fileTime = *number;
    }
    std::string error;
    if (!OpenNamedAirport(arguments.operands[0], arguments, "", &error)) return Failure(error);
    std::vector<uint8_t> bytes;
    std::string refusal;
    if (!bgl::BuildAirportFile(fileTime, &bytes, &refusal)) return Failure(refusal);
    const std::string& target = arguments.operands[1];
    if (bgl::IsStockFileName(target) && platform::FileExists(target))
        return Failure("'" + target + "' is a stock scenery file with more than this airport; it is not replaced");
    if (!platform::WriteFileWhole(target, bytes)) return Failure("cannot write '" + target + "'");
    return {};
}

ToolResult RunSample(const Arguments& arguments) {
    sample::SampleOptions options;
    options.target = arguments.operands[0];
    options.data = OptionOr(arguments, "--world", TARVO_SAMPLE_DATA);
    if (!platform::FolderExists(options.data))
        return Failure("no folder '" + options.data + "' with airport data; --world names another");
    std::string error;
    if (!sample::MakeSampleFolder(options, &error)) return Failure(error);
    return {};
}

}  // namespace cli
