// FaultHost.h - what the fault finder's window asks of the program around it. The program defines these.
#pragma once

namespace faults {

// False while an edit of the map is under way: the finder would change the selection that it works on.
bool MayFindFaults();

// Menus and toolbar show again which layers are on and whether the map is locked.
void ShowMapState();

// Opens the manual at a topic such as "#FaultFinder".
void OpenHelpTopic(const char* topic);

}  // namespace faults
