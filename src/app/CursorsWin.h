// CursorsWin.h - the mouse pointers of the map as the system wants them.
#pragma once

#include <windows.h>

#include "map/ToolCursor.h"

namespace app {

// Made at the first use and kept until FreeCursors or the next use at another size. The system's arrow when one cannot
// be made.
HCURSOR CursorFor(map::CursorShape shape, bool night, int dpi);

void FreeCursors();

}  // namespace app
