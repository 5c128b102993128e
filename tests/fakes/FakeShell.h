// FakeShell.h - the program's window as tests see it: what it was told is recorded, what it answers prepared.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "app/AppHost.h"

struct FakeShell {
    std::vector<app::SaveQuestion> saveQuestions;
    std::optional<std::string> savePath;  // the answer of the save dialog; none: the user cancels
    std::string title;
    int stateRefreshes = 0;
    std::vector<std::string> textTitles, texts;
    std::vector<std::string> documents;
    std::map<std::string, std::string> registeredCommands;  // by association
    std::vector<std::string> startedCommands;               // or tried
    bool commandsStart = true;
    int openDialogs = 0, recentRefreshes = 0;
    int optionsDialogs = 0;
    std::vector<std::string> aircraftEditors;  // the simulator folder of each
    int pageSetups = 0, faultFinders = 0;
    std::vector<app::PictureQuestion> pictureQuestions;
    std::optional<app::PictureAnswer> pictureAnswer;  // none: the user cancels
    std::vector<map::PictureSize> metafiles, pngs;    // that were drawn
    bool pictureFails = false;
    int closeRequests = 0;
    std::vector<std::string> registeredFolders;
    std::optional<std::string> browsedFolder;  // the answer of the folder browser; none: the user cancels
    int folderQuestions = 0;
    bool registryRefuses = false;
    std::string notice;
    int waitCursors = 0;                    // shown and taken away again
    bool waiting = false;                   // one is shown now
    std::optional<bool> maximized = false;  // none: the window was not shown yet
};

extern FakeShell fakeShell;

// A fresh start for a test of the program: model, view, tools, settings and all fakes.
void ResetProgram();
