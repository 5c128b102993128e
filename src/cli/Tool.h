// Tool.h - tarvo-tool without its process: arguments in, status and texts out.
#pragma once

#include <span>
#include <string>

namespace cli {

struct ToolResult {
    int status = 0;           // 0 done, 1 failed, 2 wrong usage, 3 faults found
    std::string output;       // for standard output
    std::string errorOutput;  // for standard error
};

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

// `words` are the arguments behind the program's name.
ToolResult RunTool(std::span<const std::string> words);

}  // namespace cli
