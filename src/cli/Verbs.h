// Verbs.h - what tarvo-tool can do. Each verb gets arguments that fit its options and operand count.
#pragma once

#include <string>

#include "cli/Arguments.h"
#include "cli/Tool.h"

namespace cli {

ToolResult RunDump(const Arguments& arguments);
ToolResult RunRewrite(const Arguments& arguments);
ToolResult RunSample(const Arguments& arguments);
ToolResult RunPicture(const Arguments& arguments);
ToolResult RunFaults(const Arguments& arguments);
ToolResult RunIndex(const Arguments& arguments);
ToolResult RunFind(const Arguments& arguments);

ToolResult Failure(const std::string& message);
ToolResult WrongUsage(const std::string& message);

// Reads an airport into the model: the one that --ident names, or the file's first. False, with *error
// saying what is wrong, when there is none.
bool OpenNamedAirport(const std::string& path, const Arguments& arguments, const std::string& simulatorFolder,
                      std::string* error);

}  // namespace cli
