// EditHistory.h - the recorded edits, undo and redo.
//
// Every tool, dialog and command calls BeginAction once and then changes the model only through
// AddObject, DeleteObject and ModifyObject; one Undo takes all of it back.
#pragma once

#include "model/PlaceTexts.h"
#include "model/SceneryObject.h"

namespace model {

constexpr int kUndoActions = 21;  // user actions that stay undoable

// The next recorded edit starts a new user action.
void BeginAction();

// Appends the object to the list, which then owns it.
void AddObject(SceneryObject* object);

// Takes the object out of the list; the history owns it from then on.
void DeleteObject(SceneryObject* object);

// `edited` is a copy of `live` (CopyObject) with changes. The two exchange their headers: `live` stays
// where it is in the list and carries the new content, `edited` becomes the history's.
void ModifyObject(SceneryObject* edited, SceneryObject* live);

// As ModifyObject for the open Airport, together with the texts that name it. One entry of the history
// carries both, so undo and redo bring back the texts with the record.
void ModifyAirport(SceneryObject* edited, const PlaceTexts& texts);

// Take back or repeat one user action; nothing while a mouse drag is in progress. Undoing or redoing an
// action of a single entry leaves the modified flag as it was. That is meant.
void Undo();
void Redo();
bool CanUndo();
bool CanRedo();

void ClearHistory();  // frees both chains; the object list stays

}  // namespace model
