// EditCommands.h - the commands that open property dialogs and lists.
#pragma once

#include <cstdint>

#include "dialogs/ListRows.h"
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

// An Insert command: runs the dialog that makes the object of that kind, with the layer shown on which it will lie.
// When the dialog is cancelled a layer that was hidden is hidden again.
void InsertWith(bool (*dialog)(), uint32_t kind);

}  // namespace app
