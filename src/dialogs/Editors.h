// Editors.h - the windows of the dialogs: one function each, which returns when the user has closed the window. Only
// the program has them; tests fake them.
#pragma once

#include "dialogs/ListRows.h"
#include "model/SceneryObject.h"

namespace dialogs {

using model::SceneryObject;

// The property dialog for the object's kind. False when the kind has none or the user has cancelled it.
bool EditObject(SceneryObject* object);
bool HasEditor(const SceneryObject* object);

// `object` is of the kind that the name tells. Whether it was closed by OK.
bool EditNode(SceneryObject* object);
bool EditLink(SceneryObject* object);
bool EditParking(SceneryObject* object);
bool EditApron(SceneryObject* object);
bool EditEdgeLights(SceneryObject* object);
bool EditAirport(SceneryObject* object);
bool EditRunway(SceneryObject* object);
bool EditHelipad(SceneryObject* object);
bool EditTower(SceneryObject* object);
bool EditStart(SceneryObject* object);
bool EditIls(SceneryObject* object);
bool EditMarker(SceneryObject* object);
bool EditNdb(SceneryObject* object);
bool EditVor(SceneryObject* object);
bool EditComm(SceneryObject* object);

// Whether an object was added.
bool InsertRunwayDialog();
bool InsertHelipadDialog();
bool InsertTowerDialog();
bool InsertStartDialog();
bool InsertIlsDialog();
bool InsertMarkersDialog();
bool InsertNdbDialog();
bool InsertVorDialog();
bool InsertCommDialog();

// "New Airport": the model is empty before; whether an airport is open afterwards.
bool RunNewAirport();

// The list window of that kind.
void ShowList(ListKind kind);

}  // namespace dialogs
