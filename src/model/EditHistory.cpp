// EditHistory.cpp - the two chains of history entries.
//
// An entry is a scenery object with an operation in its flags. Its next and prev are the neighbours
// that the object had in the list when the entry was made: replay happens in strict reverse order, so
// the neighbours are back in place whenever an entry is replayed, and they locate the object.
// Objects never change their address while they are in the list; pointers between them rely on it.
#include "model/EditHistory.h"

#include <cassert>
#include <utility>

#include "model/ObjectList.h"
#include "platform/Platform.h"

namespace model {

namespace {

void FreeChain(SceneryObject** head) {
    while (SceneryObject* entry = *head) {
        *head = entry->historyNext;
        state.otherTexts.erase(entry);
        FreeObject(entry);
    }
}

void Push(SceneryObject* entry, SceneryObject** head) {
    entry->historyNext = *head;
    *head = entry;
}

SceneryObject* Pop(SceneryObject** head) {
    SceneryObject* entry = *head;
    *head = entry->historyNext;
    entry->historyNext = nullptr;
    return entry;
}

HistoryOperation OperationOf(const SceneryObject* entry) {
    return static_cast<HistoryOperation>((entry->flags & kHistoryMask) >> kHistoryShift);
}

bool StartsGroup(const SceneryObject* entry) { return (entry->flags & kGroupStart) != 0; }

void MarkEntry(SceneryObject* entry, HistoryOperation operation, bool startsGroup) {
    entry->flags &= ~(kHistoryMask | kGroupStart);
    entry->flags |= static_cast<uint32_t>(operation) << kHistoryShift;
    if (startsGroup) entry->flags |= kGroupStart;
}

void MarkLive(SceneryObject* object) { object->flags &= ~(kHistoryMask | kGroupStart); }

// Frees what lies behind the start of the oldest action that is kept.
void TrimUndo() {
    int starts = 0;
    for (SceneryObject* entry = state.undoHead; entry; entry = entry->historyNext) {
        if (StartsGroup(entry) && ++starts == kUndoActions) {
            FreeChain(&entry->historyNext);
            return;
        }
    }
}

// The entries know their neighbours, and a dialog's provisional record must be none of them: it may go without a
// trace. It is out of the list while the history works, and at its end again afterwards.
struct ProvisionalAside {
    SceneryObject* const object = state.provisional;
    ProvisionalAside() {
        if (object) UnlinkObject(object);
    }
    ~ProvisionalAside() {
        if (object) AppendObject(object);
    }
    ProvisionalAside(const ProvisionalAside&) = delete;
    ProvisionalAside& operator=(const ProvisionalAside&) = delete;
};

void Record(SceneryObject* entry, HistoryOperation operation) {
    MarkEntry(entry, operation, state.groupStart);
    Push(entry, &state.undoHead);
    if (state.groupStart) TrimUndo();  // only a new start can push an old action out
    state.groupStart = false;
    FreeChain(&state.redoHead);
    state.modified = true;
    ++state.editMark;
}

// Puts an object that carries its neighbours back between them.
void Relink(SceneryObject* object) {
    ++state.revision;
    if (object->prev)
        object->prev->next = object;
    else
        state.head = object;
    if (object->next)
        object->next->prev = object;
    else
        state.tail = object;
    if (KindOf(object) == kAirport) state.airport = object;
}

SceneryObject* LiveObjectOf(const SceneryObject* entry) { return entry->prev ? entry->prev->next : state.head; }

// The whole headers change places, but each list position keeps its own neighbours.
void ExchangeHeaders(SceneryObject* entry, SceneryObject* live) {
    ++state.revision;
    SceneryObject* const prev = live->prev;
    SceneryObject* const next = live->next;
    std::swap(*entry, *live);
    entry->prev = live->prev = prev;
    entry->next = live->next = next;
    entry->historyNext = live->historyNext = nullptr;
}

// `entry` says that its object is absent: back into the list with it, and a copy onto the other chain.
void ReplayIntoList(SceneryObject* entry, SceneryObject** otherChain) {
    Push(CopyObject(entry), otherChain);
    MarkLive(entry);
    Relink(entry);
}

// `entry` is the copy of an object in the list: the object itself moves to the other chain.
void ReplayOutOfList(SceneryObject* entry, SceneryObject** otherChain) {
    SceneryObject* live = LiveObjectOf(entry);
    assert(live && KindOf(live) == KindOf(entry));
    UnlinkObject(live);
    MarkEntry(live, OperationOf(entry), StartsGroup(entry));
    Push(live, otherChain);
    FreeObject(entry);
}

// The texts that belong to the entry and those in force change places.
void ExchangeTexts(const SceneryObject* entry) {
    const auto found = state.otherTexts.find(entry);
    if (found == state.otherTexts.end()) return;
    const PlaceTexts inForce = CurrentPlaceTexts();
    SetPlaceTexts(found->second);
    found->second = inForce;
}

void ReplayModification(SceneryObject* entry, SceneryObject** otherChain) {
    const bool startsGroup = StartsGroup(entry);
    SceneryObject* live = LiveObjectOf(entry);
    assert(live && KindOf(live) == KindOf(entry));
    ExchangeHeaders(entry, live);
    ExchangeTexts(entry);
    MarkLive(live);
    MarkEntry(entry, kOpModified, startsGroup);
    Push(entry, otherChain);
}

}  // namespace

void BeginAction() { state.groupStart = true; }

void AddObject(SceneryObject* object) {
    const ProvisionalAside aside;
    MarkLive(object);
    AppendObject(object);
    Record(CopyObject(object), kOpAdded);
}

void DeleteObject(SceneryObject* object) {
    assert(object != state.provisional);
    const ProvisionalAside aside;
    UnlinkObject(object);
    Record(object, kOpDeleted);
}

void ModifyObject(SceneryObject* edited, SceneryObject* live) {
    assert(live != state.provisional);
    const ProvisionalAside aside;
    assert(KindOf(edited) == KindOf(live));
    ExchangeHeaders(edited, live);
    MarkLive(live);
    Record(edited, kOpModified);
}

void ModifyAirport(SceneryObject* edited, const PlaceTexts& texts) {
    assert(state.airport && KindOf(edited) == kAirport);
    state.otherTexts[edited] = CurrentPlaceTexts();
    SetPlaceTexts(texts);
    ModifyObject(edited, state.airport);
}

void Undo() {
    if (state.busy) return;
    const ProvisionalAside aside;
    while (state.undoHead) {
        ++state.editMark;
        SceneryObject* entry = Pop(&state.undoHead);
        const bool startsGroup = StartsGroup(entry);
        switch (OperationOf(entry)) {
        case kOpDeleted: ReplayIntoList(entry, &state.redoHead); break;
        case kOpAdded: ReplayOutOfList(entry, &state.redoHead); break;
        default: ReplayModification(entry, &state.redoHead); break;
        }
        if (startsGroup) break;
        state.modified = true;
    }
    platform::RequestRepaint();
}

void Redo() {
    if (state.busy) return;
    const ProvisionalAside aside;
    while (state.redoHead) {
        ++state.editMark;
        SceneryObject* entry = Pop(&state.redoHead);
        switch (OperationOf(entry)) {
        case kOpDeleted: ReplayOutOfList(entry, &state.undoHead); break;
        case kOpAdded: ReplayIntoList(entry, &state.undoHead); break;
        default: ReplayModification(entry, &state.undoHead); break;
        }
        if (!state.redoHead || StartsGroup(state.redoHead)) break;
        state.modified = true;
    }
    platform::RequestRepaint();
}

bool CanUndo() { return state.undoHead && !state.busy; }
bool CanRedo() { return state.redoHead && !state.busy; }

void ClearHistory() {
    FreeChain(&state.undoHead);
    FreeChain(&state.redoHead);
    state.groupStart = false;
}

}  // namespace model
