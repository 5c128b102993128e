// FakeShell.h - the program's window as tests see it: what it was told is recorded, what it answers prepared.
#pragma once

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
    int closeRequests = 0;
    std::vector<std::string> registeredFolders;
};

extern FakeShell fakeShell;

// A fresh start for a test of the program: model, view, tools, settings and all fakes.
void ResetProgram();
