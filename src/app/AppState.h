// AppState.h - what the program knows apart from the open airport, the view and the settings.
#pragma once

#include <string>

namespace app {

// All paths are UTF-8; folders end without a separator.
struct AppState {
    std::string programFolder;
    std::string simulatorFolder;  // "" when the simulator is not found
    std::string sourceFile;       // where the open airport was read from or last saved to; "" without an airport
    std::string savePath;         // where Save writes without asking; "" until that is known
};

extern AppState state;

}  // namespace app
