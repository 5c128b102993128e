// FakeShell.cpp - see FakeShell.h.
#include "FakeShell.h"

#include "aircraft/AircraftEditor.h"
#include "app/AppState.h"
#include "app/Settings.h"
#include "FakePlatform.h"
#include "FakePrinter.h"
#include "faults/FaultFinder.h"
#include "map/MapView.h"
#include "map/Tools.h"
#include "model/ObjectList.h"

FakeShell fakeShell;

void ResetProgram() {
    ResetFakes();
    model::ClearModel();
    app::state = {};
    app::settings = {};
    map::view = {};
    map::layers = {};
    map::tools = {};
    fakeShell = {};
    fakePrinter = {};
}

namespace faults {

void OpenFaultFinder() { ++fakeShell.faultFinders; }

}  // namespace faults

namespace app {

bool AskSavePath(const SaveQuestion& question, std::string* path) {
    fakeShell.saveQuestions.push_back(question);
    if (!fakeShell.savePath) return false;
    *path = *fakeShell.savePath;
    return true;
}

void SetWindowTitle(std::string_view title) { fakeShell.title = title; }

void ShowCommandStates() { ++fakeShell.stateRefreshes; }

void ShowText(std::string_view title, std::string_view text, platform::Icon) {
    fakeShell.textTitles.emplace_back(title);
    fakeShell.texts.emplace_back(text);
}

void ShowOpenAirportDialog() { ++fakeShell.openDialogs; }

void ShowRecentAirports() { ++fakeShell.recentRefreshes; }

void OpenDocument(const std::string& path) { fakeShell.documents.push_back(path); }

void ShowOptionsDialog() { ++fakeShell.optionsDialogs; }

std::string RegisteredCommand(std::string_view association) {
    const auto found = fakeShell.registeredCommands.find(std::string(association));
    return found == fakeShell.registeredCommands.end() ? "" : found->second;
}

bool StartCommand(const std::string& command) {
    if (command.empty()) return false;
    fakeShell.startedCommands.push_back(command);
    return fakeShell.commandsStart;
}

void PageSetup() { ++fakeShell.pageSetups; }

bool AskPicturePath(const PictureQuestion& question, PictureAnswer* answer) {
    fakeShell.pictureQuestions.push_back(question);
    if (fakeShell.pictureAnswer) *answer = *fakeShell.pictureAnswer;
    return fakeShell.pictureAnswer.has_value();
}

bool DrawMapPicture(PictureFormat format, const map::PictureSize& size, std::vector<uint8_t>* bytes) {
    if (fakeShell.pictureFails) return false;
    (format == PictureFormat::Png ? fakeShell.pngs : fakeShell.metafiles).push_back(size);
    *bytes = { 'p', 'i', 'c' };
    return true;
}

void CloseMainWindow() { ++fakeShell.closeRequests; }

std::vector<std::string> RegisteredSimulatorFolders() { return fakeShell.registeredFolders; }

bool WriteRegisteredSimulatorFolder(const std::string& folder) {
    if (fakeShell.registryRefuses) return false;
    fakeShell.registeredFolders = { folder };
    return true;
}

bool AskSimulatorFolder(std::string* folder) {
    ++fakeShell.folderQuestions;
    if (fakeShell.browsedFolder) *folder = *fakeShell.browsedFolder;
    return fakeShell.browsedFolder.has_value();
}

void ShowNoticeText(std::string_view text) { fakeShell.notice = text; }

void ShowWaitCursor(bool shown) {
    fakeShell.waitCursors += !shown && fakeShell.waiting;
    fakeShell.waiting = shown;
}

std::optional<bool> IsMainWindowMaximized() { return fakeShell.maximized; }

std::string LocalTimeText(uint64_t fileTime) { return fileTime ? "(time)" : "(no time)"; }

}  // namespace app

namespace aircraft {

void ShowAircraftEditor(const std::string& simulatorFolder) { fakeShell.aircraftEditors.push_back(simulatorFolder); }

}  // namespace aircraft
