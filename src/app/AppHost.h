// AppHost.h - what the portable part of the program asks of its window. HostWin.cpp serves the program,
// tests/fakes/FakeShell.cpp the tests. All texts are UTF-8.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Platform.h"

namespace app {

struct SaveQuestion {
    std::string folder;  // shown first; "" leaves that to the system
    std::string name;    // proposed
};

// The save dialog. False when the user cancelled it, else *path is the full path that was chosen; an existing file of
// that name the user has agreed to replace.
bool AskSavePath(const SaveQuestion& question, std::string* path);

void SetWindowTitle(std::string_view title);

// The menus and the toolbar show again which commands are enabled and which are checked.
void ShowCommandStates();

// A box with an OK button under a title of its own.
void ShowText(std::string_view title, std::string_view text, platform::Icon icon);

// Opens a document with the program that the system has for it. Nothing is reported when there is none.
void OpenDocument(const std::string& path);

// Opens ReadMe.htm of the program folder at a topic such as "#Options". Nothing is reported when that fails.
void OpenHelp(std::string_view topic);

// The dialogs, which run until the user has closed them.
void ShowOpenAirportDialog();
void ShowOptionsDialog();

// The File menu lists the recent airports again.
void ShowRecentAirports();

// Asks the main window to close, as its close box does.
void CloseMainWindow();

// The simulator's folder as its setup wrote it to the registry, in the order in which to believe it; may be empty.
std::vector<std::string> RegisteredSimulatorFolders();

}  // namespace app
