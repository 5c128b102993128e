// ToolHint.h - what to do next, for the status bar: how to begin, and how the tool in use works.
#pragma once

#include <string>

namespace app {

// "" while the pointer is in use in an open airport.
std::string ToolHint();

void ShowToolHint();

}  // namespace app
