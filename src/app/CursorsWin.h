// CursorsWin.h - the mouse pointers of the map as the system wants them.
#pragma once

#include <windows.h>

#include "map/ToolCursor.h"

namespace app {

// Made at the first use and kept until FreeCursors. The arrow when one cannot be made.
HCURSOR CursorFor(map::CursorShape shape, bool night);

void FreeCursors();

}  // namespace app
