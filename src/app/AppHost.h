// AppHost.h - what the portable part of the program asks of its window. HostWin.cpp serves the program, and the Win file
// of a dialog or bar what that one does; tests/fakes/FakeShell.cpp serves the tests. All texts are UTF-8.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/MapPictures.h"
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

// The command line that opens what is registered so, "http" or ".htm" for example; "" when nothing is.
std::string RegisteredCommand(std::string_view association);

// Starts the program of the command line. False when that fails, and for "".
bool StartCommand(const std::string& command);

// The dialogs, which run until the user has closed them.
void ShowOpenAirportDialog();
void ShowOptionsDialog();
void PageSetup();

// The save dialog for a picture of the map. False when the user cancelled it.
bool AskPicturePath(const PictureQuestion& question, PictureAnswer* answer);

// The picture as the bytes of a file. False when the system has no memory for it.
bool DrawMapPicture(PictureFormat format, const map::PictureSize& size, std::vector<uint8_t>* bytes);

// The File menu lists the recent airports again.
void ShowRecentAirports();

// The last part of the status bar shows the text.
void ShowNoticeText(std::string_view text);

// The hourglass, until it is called again with false.
void ShowWaitCursor(bool shown);

std::optional<bool> IsMainWindowMaximized();  // or minimised from that; none as long as it was not shown

// A FILETIME as the user's clock showed it, "2004-10-31 23:59".
std::string LocalTimeText(uint64_t fileTime);

// Asks the main window to close, as its close box does.
void CloseMainWindow();

// The simulator's folder as its setup wrote it to the registry, in the order in which to believe it; may be empty.
std::vector<std::string> RegisteredSimulatorFolders();

// Writes the folder there, in the view of the registry that the simulator itself reads. False when that is refused.
bool WriteRegisteredSimulatorFolder(const std::string& folder);

// The folder browser. False when the user cancelled it.
bool AskSimulatorFolder(std::string* folder);

}  // namespace app
