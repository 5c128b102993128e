// FakeEditors.cpp - see FakeEditors.h.
#include "fakes/FakeEditors.h"

#include "dialogs/Editors.h"

FakeEditors fakeEditors;

namespace {

bool Note(const char* name, model::SceneryObject* subject = nullptr) {
    fakeEditors.opened.emplace_back(name);
    fakeEditors.subjects.push_back(subject);
    return false;
}

bool NoteInsert(const char* name) {
    Note(name);
    return fakeEditors.insertStored;
}

}  // namespace

namespace dialogs {

bool EditNode(SceneryObject* object) { return Note("node", object); }
bool EditLink(SceneryObject* object) { return Note("link", object); }
bool EditParking(SceneryObject* object) { return Note("parking", object); }
bool EditApron(SceneryObject* object) { return Note("apron", object); }
bool EditEdgeLights(SceneryObject* object) { return Note("edge lights", object); }
bool EditAirport(SceneryObject* object) { return Note("airport", object); }
bool EditRunway(SceneryObject* object) { return Note("runway", object); }
bool EditHelipad(SceneryObject* object) { return Note("helipad", object); }
bool EditTower(SceneryObject* object) { return Note("tower", object); }
bool EditStart(SceneryObject* object) { return Note("start", object); }
bool EditIls(SceneryObject* object) { return Note("ils", object); }
bool EditMarker(SceneryObject* object) { return Note("marker", object); }
bool EditNdb(SceneryObject* object) { return Note("ndb", object); }
bool EditVor(SceneryObject* object) { return Note("vor", object); }
bool EditComm(SceneryObject* object) { return Note("comm", object); }

bool InsertRunwayDialog() { return NoteInsert("insert runway"); }
bool InsertHelipadDialog() { return NoteInsert("insert helipad"); }
bool InsertTowerDialog() { return NoteInsert("insert tower"); }
bool InsertStartDialog() { return NoteInsert("insert start"); }
bool InsertIlsDialog() { return NoteInsert("insert ils"); }
bool InsertMarkersDialog() { return NoteInsert("insert markers"); }
bool InsertNdbDialog() { return NoteInsert("insert ndb"); }
bool InsertVorDialog() { return NoteInsert("insert vor"); }
bool InsertCommDialog() { return NoteInsert("insert comm"); }

bool RunNewAirport() {
    Note("new airport");
    return fakeEditors.newAirportStored;
}

void ShowList(ListKind kind) { fakeEditors.lists.push_back(kind); }

}  // namespace dialogs
