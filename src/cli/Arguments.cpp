// Arguments.cpp - see Arguments.h.
#include "cli/Arguments.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace cli {

namespace {

const Option* FindOption(std::span<const Option> known, std::string_view name) {
    const auto found = std::find_if(known.begin(), known.end(), [&](const Option& o) { return o.name == name; });
    return found == known.end() ? nullptr : &*found;
}

// A lone "-" is an operand, and so is a negative number.
bool LooksLikeOption(std::string_view word) { return word.size() > 1 && word[0] == '-' && !ParseDecimal(word); }

}  // namespace

bool ParseArguments(std::span<const std::string> words, std::span<const Option> known, Arguments* arguments,
                    std::string* error) {
    bool optionsEnded = false;
    for (size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (optionsEnded || !LooksLikeOption(word)) {
            arguments->operands.push_back(word);
            continue;
        }
        if (word == "--") {
            optionsEnded = true;
            continue;
        }
        const size_t equals = word.find('=');
        const std::string name = word.substr(0, equals);
        const Option* option = FindOption(known, name);
        const bool hasValue = equals != std::string::npos;
        if (!option) {
            *error = "unknown option '" + name + "'";
            return false;
        }
        if (!option->value && hasValue) {
            *error = "option '" + name + "' takes no value";
            return false;
        }
        if (option->value && !hasValue && ++i == words.size()) {
            *error = "option '" + name + "' needs a value (" + option->value + ")";
            return false;
        }
        arguments->options[name] = !option->value ? std::string() : hasValue ? word.substr(equals + 1) : words[i];
    }
    return true;
}

bool HasOption(const Arguments& arguments, std::string_view name) {
    return arguments.options.find(name) != arguments.options.end();
}

std::string OptionOr(const Arguments& arguments, std::string_view name, std::string_view otherwise) {
    const auto found = arguments.options.find(name);
    return found == arguments.options.end() ? std::string(otherwise) : found->second;
}

std::optional<uint64_t> ParseWhole(std::string_view text) {
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    if (hexadecimal) text.remove_prefix(2);
    uint64_t value = 0;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), value, hexadecimal ? 16 : 10);
    if (end.ec != std::errc() || end.ptr != text.data() + text.size()) return std::nullopt;
    return value;
}

std::optional<double> ParseDecimal(std::string_view text) {
    double value = 0;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), value);
    if (end.ec != std::errc() || end.ptr != text.data() + text.size() || !std::isfinite(value)) return std::nullopt;
    return value;
}

}  // namespace cli
