// SaveAirport.h - Save, Save As and the question before an airport is dropped.
#pragma once

namespace app {

// All three do nothing when no airport is open, and tell whether the airport is now safe in a file.

// Writes to the known save path, else asks for one. An airport that came from a file of our own ("TV2_...") goes back
// into that file.
bool SaveAirport();

// Asks where to, proposing TV2_IDENT.bgl in the simulator's add-on scenery folder.
bool SaveAirportAs();

// Run before anything that drops the open airport. False when the user wants to keep it: by Cancel, or because what
// was to be saved could not be.
bool SavePrompt();

}  // namespace app
