// Printing.h - the command that prints what the map shows, and what the user is told when that fails.
#pragma once

namespace app {

// Asks for a printer and prints the map on one page.
void Print();

// The printer of the last dialog may be gone: says so and forgets it.
void RefusePrinter();

}  // namespace app
