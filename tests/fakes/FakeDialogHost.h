// FakeDialogHost.h - the program around the dialogs as tests see it.
#pragma once

#include <string>
#include <vector>

struct FakeDialogHost {
    std::vector<std::string> helpTopics;
};

extern FakeDialogHost fakeDialogs;

// Also forgets what a dialog left open. Call from every fixture that opens dialogs, while the model is clear.
void ResetDialogFakes();
