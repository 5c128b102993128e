// EditCommands.h - the commands that open property dialogs and lists.
#pragma once

#include "dialogs/ListRows.h"
#include "map/MapView.h"
#include "model/SceneryObject.h"

namespace app {

// "New Airport": the save prompt, then the present airport is closed and the dialog opens. Cancel leaves none open.
void NewAirport();

void EditAirportProperties();

// The properties of the object; the window's title and the boxes follow.
void EditProperties(model::SceneryObject* object);

// Of the object where the map's menu was opened.
void EditAtMenuPoint();
bool CanEditAtMenuPoint();

// An Insert command: runs the dialog that makes the object, with the layer shown on which it will lie (null: one that
// is always shown). When the dialog is cancelled a layer that was hidden is hidden again.
void InsertWith(bool (*dialog)(), bool map::MapLayers::*layer);

}  // namespace app
