// DialogHost.h - what the dialogs ask of the program around them. The program defines these, tests fake
// them.
#pragma once

#include <string>

namespace dialogs {

// Where the open airport was read from or last saved to, UTF-8; "" for one that is in no file yet.
std::string AirportFile();

// A dialog over the map opens or closes (OverMap.h), or a list has changed the airport or the view: the commands show
// again which of them can be given.
void ShowDialogState();

// Opens the manual at a topic such as "#Nodes".
void OpenHelpTopic(const char* topic);

}  // namespace dialogs
