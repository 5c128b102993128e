// AircraftEditor.h - the aircraft editor: a dialog that lists all aircraft variations of the simulator and changes how
// they choose their parking.
#pragma once

#include <string>

namespace aircraft {

// Runs until the user has closed it. `simulatorFolder` is empty when the simulator was not found.
void ShowAircraftEditor(const std::string& simulatorFolder);

// Opens the manual at a topic such as "#AircraftEditor". `app` does that.
void OpenHelpTopic(const char* topic);

}  // namespace aircraft
