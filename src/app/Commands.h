// Commands.h - everything that a menu, the toolbar or a key can ask for.
//
// One row a command: what it runs, when it is enabled, when it is checked. All routes come through RunCommand, so a
// greyed command stays dead by each of them. An id without a row has nothing behind it yet and is always greyed.
#pragma once

#include <vector>

namespace app {

// Runs the command when it is enabled; tells whether it was.
bool RunCommand(int id);

bool IsCommandEnabled(int id);
bool IsCommandChecked(int id);

std::vector<int> CommandIds();  // of all rows

}  // namespace app
