// Edits.h - the changes of one OK, gathered while the fields are read and recorded together at its end.
//
// A dialog changes drafts only. A refusal halfway drops them; Commit records those that differ from what
// they are drafts of, as one user action.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "model/PlaceTexts.h"
#include "model/SceneryObject.h"

namespace dialogs {

using model::SceneryObject;

struct ObjectFree {
    void operator()(SceneryObject* object) const { model::FreeObject(object); }
};
using ObjectPtr = std::unique_ptr<SceneryObject, ObjectFree>;

struct Draft {
    ObjectPtr copy;
    SceneryObject* live = nullptr;
};

struct Edits {
    std::vector<Draft> drafts;
    std::vector<ObjectPtr> added;
    std::optional<model::PlaceTexts> texts;  // those of the airport, when they change
    const SceneryObject* turned = nullptr;   // the hold-short node whose marking the user turned by hand
};

// The draft of the object: a copy, the same one for every call. Previews on the map do not show in it.
SceneryObject* DraftOf(Edits* edits, SceneryObject* live);

// An object that the OK adds to the airport; its address stays.
SceneryObject* AddDraft(Edits* edits, ObjectPtr object);

// Ends the previews and records everything that differs, as one action: first what is added, then what is
// changed. A provisional record is recorded as added, with what its draft holds, and is selected alone then if it
// was selected. A stock object gets a replacement. The markings of hold-short nodes follow what was changed around
// them. Whether anything was recorded.
bool Commit(Edits* edits);

}  // namespace dialogs
