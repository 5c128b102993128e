// Edits.cpp - see Edits.h.
#include "dialogs/Edits.h"

#include <cassert>
#include <cstring>

#include "dialogs/Subject.h"
#include "model/EditHistory.h"
#include "model/ObjectList.h"
#include "platform/Platform.h"

namespace dialogs {

namespace {

bool SameContent(const SceneryObject* a, const SceneryObject* b) {
    return a->payloadSize == b->payloadSize && a->related == b->related &&
           std::memcmp(a->payload, b->payload, a->payloadSize) == 0;
}

// The provisional record leaves the list, takes over the draft's payload and comes back recorded.
void RecordProvisional(SceneryObject* draft) {
    SceneryObject* object = state.provisional;
    state.provisional = nullptr;
    model::UnlinkObject(object);
    std::swap(object->payload, draft->payload);
    std::swap(object->payloadSize, draft->payloadSize);
    model::AddObject(object);
}

// The draft becomes the replacement; the stock object stays and points to it.
void RecordReplacement(ObjectPtr draft, SceneryObject* stock) {
    SceneryObject* replacement = draft.release();
    replacement->flags &= ~model::kStock;
    replacement->related = stock;
    SceneryObject* edited = model::CopyObject(stock);
    edited->flags &= ~(model::kSelected | model::kWholeSelected);
    edited->related = replacement;
    model::AddObject(replacement);
    model::ModifyObject(edited, stock);
}

void RecordChange(Edits* edits, Draft* draft) {
    if (KindOf(draft->live) == model::kAirport && edits->texts) {
        model::ModifyAirport(draft->copy.release(), *edits->texts);
    } else if (IsStock(draft->live)) {
        assert(!draft->live->related);  // a replaced stock object is not shown, so nobody edits it
        RecordReplacement(std::move(draft->copy), draft->live);
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
    model::BeginAction();
    for (ObjectPtr& object : edits->added) model::AddObject(object.release());
    for (Draft& draft : edits->drafts) {
        if (IsProvisional(draft.live))
            RecordProvisional(draft.copy.get());
        else
            RecordChange(edits, &draft);
    }
    *edits = {};
    platform::RequestRepaint();
    return true;
}

}  // namespace dialogs
