// Columns.h - text as it is printed in a terminal's columns.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace cli {

inline constexpr size_t kColumns = 78;

// The words of the text in lines that start with `indent` blanks, as many a line as fit; a word that is wider than
// the line stands alone. Ends with a line feed.
std::string Wrapped(std::string_view text, size_t indent);

}  // namespace cli
