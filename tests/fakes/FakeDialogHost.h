// FakeDialogHost.h - the program around the dialogs as tests see it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/Records.h"

struct FakeDialogHost {
    std::vector<model::TaxiLinkPayload> linkTemplates;
    std::vector<uint32_t> parkingTypes;
    std::vector<std::string> helpTopics;
};

extern FakeDialogHost fakeDialogs;

// Also forgets what a dialog left open. Call from every fixture that opens dialogs, while the model is clear.
void ResetDialogFakes();
