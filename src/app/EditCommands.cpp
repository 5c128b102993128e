// EditCommands.cpp - see EditCommands.h.
#include "app/EditCommands.h"

#include "app/Airport.h"
#include "app/AppHost.h"
#include "app/AppState.h"
#include "app/SaveAirport.h"
#include "dialogs/DialogHost.h"
#include "dialogs/Editors.h"
#include "map/Layers.h"
#include "map/MapView.h"
#include "map/Selection.h"
#include "map/Tools.h"
#include "model/ObjectList.h"
#include "platform/Platform.h"

namespace app {

namespace {

// The airport's identifier and name stand in the title.
void ShowEdited() {
    SetWindowTitle(TitleText());
    ShowCommandStates();
    platform::RequestRepaint();
}

model::SceneryObject* ObjectAtMenuPoint() { return map::PickObject(state.menuPoint).object; }

}  // namespace

void NewAirport() {
    if (!SavePrompt()) return;
    CloseAirport();
    if (dialogs::RunNewAirport()) map::layers.navaids = false;  // as for every other airport that opens
    ShowEdited();
}

void EditAirportProperties() { EditProperties(model::state.airport); }

void EditProperties(model::SceneryObject* object) {
    dialogs::EditObject(object);
    ShowEdited();
}

void EditAtMenuPoint() {
    model::SceneryObject* object = ObjectAtMenuPoint();
    if (!object) return;
    map::SelectStripAt(state.menuPoint, false);
    EditProperties(object);
}

bool CanEditAtMenuPoint() {
    if (!model::state.loaded || model::state.busy) return false;
    const model::SceneryObject* object = ObjectAtMenuPoint();
    return object && dialogs::HasEditor(object);
}

void InsertWith(bool (*dialog)(), uint32_t kind) {
    bool map::MapLayers::*layer = map::LayerOf(kind);
    const bool wasHidden = layer && !(map::layers.*layer);
    if (wasHidden) {
        map::layers.*layer = true;  // nothing is placed unseen
        platform::RequestRepaint();
    }
    if (!dialog() && wasHidden) map::layers.*layer = false;
    ShowEdited();
}

}  // namespace app

namespace dialogs {

std::string AirportFile() { return app::state.sourceFile; }

void ShowDialogState() { app::ShowCommandStates(); }

}  // namespace dialogs
