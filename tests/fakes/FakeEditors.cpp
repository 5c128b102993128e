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

bool InsertRunwayDialog() { return Note("insert runway"); }
bool InsertHelipadDialog() { return Note("insert helipad"); }
bool InsertTowerDialog() { return Note("insert tower"); }
bool InsertStartDialog() { return Note("insert start"); }
bool InsertIlsDialog() { return Note("insert ils"); }
bool InsertMarkersDialog() { return Note("insert markers"); }
bool InsertNdbDialog() { return Note("insert ndb"); }
bool InsertVorDialog() { return Note("insert vor"); }
bool InsertCommDialog() { return Note("insert comm"); }

bool RunNewAirport() {
    Note("new airport");
    return fakeEditors.newAirportStored;
}

void ShowList(ListKind kind) { fakeEditors.lists.push_back(kind); }

}  // namespace dialogs
