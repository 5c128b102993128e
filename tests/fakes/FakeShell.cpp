// FakeShell.cpp - see FakeShell.h.
#include "FakeShell.h"

#include "app/AppState.h"
#include "app/Settings.h"
#include "FakePlatform.h"
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
}

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

void OpenDocument(const std::string& path) { fakeShell.documents.push_back(path); }

void CloseMainWindow() { ++fakeShell.closeRequests; }

std::vector<std::string> RegisteredSimulatorFolders() { return fakeShell.registeredFolders; }

}  // namespace app
