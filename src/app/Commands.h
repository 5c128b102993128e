// Commands.h - everything that a menu, the toolbar or a key can ask for.
//
// All routes come through RunCommand, so a greyed command stays dead by each of them. An id without a row in the
// command table is always greyed.
#pragma once

namespace app {

// Runs the command when it is enabled; tells whether it was.
bool RunCommand(int id);

bool IsCommandEnabled(int id);
bool IsCommandChecked(int id);

// The tooltip of the command's button; null when it has none.
const char* CommandToolTip(int id);

}  // namespace app
