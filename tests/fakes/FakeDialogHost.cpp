// FakeDialogHost.cpp - see FakeDialogHost.h.
#include "FakeDialogHost.h"

#include "dialogs/DialogHost.h"

FakeDialogHost fakeDialogs;

void ResetDialogFakes() { fakeDialogs = FakeDialogHost{}; }

namespace dialogs {

void OpenHelpTopic(const char* topic) { fakeDialogs.helpTopics.emplace_back(topic); }

}  // namespace dialogs
