// Edits.cpp - see Edits.h.
#include "dialogs/Edits.h"

#include <cstring>

#include "dialogs/Subject.h"
#include "map/HoldShortUpdate.h"
#include "model/EditHistory.h"
#include "model/ObjectList.h"
#include "model/Replacement.h"
#include "platform/Platform.h"

namespace dialogs {

namespace {

bool SameContent(const SceneryObject* a, const SceneryObject* b) {
    return a->payloadSize == b->payloadSize && a->related == b->related &&
           std::memcmp(a->payload, b->payload, a->payloadSize) == 0;
}

// The provisional record leaves the list, takes over the draft's payload and comes back recorded.
void RecordProvisional(SceneryObject* draft) {
    SceneryObject* object = model::state.provisional;
    model::state.provisional = nullptr;
    model::UnlinkObject(object);
    std::swap(object->payload, draft->payload);
    std::swap(object->payloadSize, draft->payloadSize);
    model::AddObject(object);
}

void RecordChange(Edits* edits, Draft* draft) {
    if (KindOf(draft->live) == model::kAirport && edits->texts) {
        model::ModifyAirport(draft->copy.release(), *edits->texts);
    } else if (IsStock(draft->live)) {
        model::ReplaceStock(draft->copy.release(), draft->live);
    } else {
        model::ModifyObject(draft->copy.release(), draft->live);
    }
}

bool IsChange(const Edits& edits, const Draft& draft) {
    if (IsProvisional(draft.live) || !SameContent(draft.copy.get(), draft.live)) return true;
    return KindOf(draft.live) == model::kAirport && edits.texts && *edits.texts != model::CurrentPlaceTexts();
}

}  // namespace

SceneryObject* DraftOf(Edits* edits, SceneryObject* live) {
    for (const Draft& draft : edits->drafts) {
        if (draft.live == live) return draft.copy.get();
    }
    edits->drafts.push_back({ ObjectPtr(model::CopyObject(live)), live });
    SceneryObject* copy = edits->drafts.back().copy.get();
    UndoPreviewIn(copy, live);
    return copy;
}

SceneryObject* AddDraft(Edits* edits, ObjectPtr object) {
    edits->added.push_back(std::move(object));
    return edits->added.back().get();
}

bool Commit(Edits* edits) {
    EndPreview();
    std::erase_if(edits->drafts, [&](const Draft& draft) { return !IsChange(*edits, draft); });
    if (edits->added.empty() && edits->drafts.empty()) return false;
    map::HoldShortSides sides = map::NoteHoldShorts();
    sides.erase(edits->turned);
    SceneryObject* provisional = model::state.provisional;
    model::BeginAction();
    for (ObjectPtr& object : edits->added) model::AddObject(object.release());
    for (Draft& draft : edits->drafts) {
        if (IsProvisional(draft.live))
            RecordProvisional(draft.copy.get());
        else
            RecordChange(edits, &draft);
    }
    map::FollowHoldShorts(sides);
    if (provisional && !IsProvisional(provisional) && model::IsSelected(provisional)) SelectOnly(provisional);
    *edits = {};
    platform::RequestRepaint();
    return true;
}

}  // namespace dialogs
