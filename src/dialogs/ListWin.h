// ListWin.h - the list windows, as the main window sees them. They stand beside the map, one of each kind.
#pragma once

namespace dialogs {

// After every paint of the map, which follows every change: open lists show what the airport now holds, and close when
// no airport is open.
void RefreshLists();

}  // namespace dialogs
