// Arguments.h - command line arguments: options anywhere, "--" ends them.
#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace cli {

struct Option {
    const char* name;   // with its dashes
    const char* value;  // what stands for the value in the help; null for an option without one
    const char* help;
};

struct Arguments {
    std::vector<std::string> operands;
    std::map<std::string, std::string, std::less<>> options;  // by name; the last one given counts
};

// False, with *error naming the argument at fault, for an option that is not in the list or lacks a value,
// and for a value given to an option that takes none. Both "--name value" and "--name=value" are read.
bool ParseArguments(std::span<const std::string> words, std::span<const Option> known, Arguments* arguments,
                    std::string* error);

bool HasOption(const Arguments& arguments, std::string_view name);
std::string OptionOr(const Arguments& arguments, std::string_view name, std::string_view otherwise);

// Whole numbers, decimal or hexadecimal with 0x; nothing else may follow.
std::optional<uint64_t> ParseWhole(std::string_view text);
std::optional<double> ParseDecimal(std::string_view text);  // a finite number

}  // namespace cli
