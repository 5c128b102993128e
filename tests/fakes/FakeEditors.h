// FakeEditors.h - the windows of the dialogs as tests see them: they open and close at once.
#pragma once

#include <string>
#include <vector>

#include "dialogs/ListRows.h"
#include "model/SceneryObject.h"

struct FakeEditors {
    std::vector<std::string> opened;  // "node", "insert runway", "new airport"...
    std::vector<model::SceneryObject*> subjects;
    std::vector<dialogs::ListKind> lists;
    bool insertStored = false;      // the Insert dialogs are answered with OK, not Cancel
    bool newAirportStored = false;  // "New Airport" is answered with OK, not Cancel
};

extern FakeEditors fakeEditors;
