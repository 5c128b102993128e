// Program.h - the start and the end of the program, apart from its windows.
#pragma once

#include <string>

namespace app {

// While the main window is made: parking specs, settings and the simulator's folder, and the view and the tools as
// every start finds them.
void LoadProgramFiles();

// Once the window is shown: the update reminder, what a crash has left, and the file of the command line, which may
// be empty. `ident` names its airport; "" means the first one.
void BeginSession(const std::string& file, const std::string& ident);

// A file that the user brings, from the command line or by dropping it on the window. Opens it after the save prompt;
// false when another airport stays open.
bool OpenBroughtFile(const std::string& file, const std::string& ident);

// Whether the user lets the program end, after the save prompt. Not under a dialog, which must be answered first.
bool MayEnd();

// The system asks the same before it shuts down. A backup is written first: who does not answer in time is ended.
bool AgreeToEnd();

// The system shuts down. Edits that the user has made since the answer are left to the next start, as a backup.
void EndAsAgreed();

// At the end, after the save prompt: the settings are written and the backup goes. `quietly` when nothing may be shown
// any more: the system shuts down.
void EndSession(bool quietly);

// The system ends the program without having asked: the next start finds the backup.
void EndSessionAtOnce();

}  // namespace app
