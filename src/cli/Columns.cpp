// Columns.cpp - text as it is printed in a terminal's columns.
#include "cli/Columns.h"

#include <algorithm>

namespace cli {

std::string Wrapped(std::string_view text, size_t indent) {
    std::string result, line;
    while (!text.empty()) {
        const size_t end = std::min(text.find(' '), text.size());
        const std::string_view word = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (word.empty()) continue;
        if (!line.empty() && indent + line.size() + 1 + word.size() > kColumns) {
            result += std::string(indent, ' ') + line + '\n';
            line.clear();
        }
        line += line.empty() ? "" : " ";
        line += word;
    }
    return result + std::string(indent, ' ') + line + '\n';
}

}  // namespace cli
