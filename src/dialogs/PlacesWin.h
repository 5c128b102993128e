// PlacesWin.h - the controls that the dialogs of helipads, the tower viewpoint and start locations share: PlacesIds.h
// gives them the same ids.
#pragma once

#include <windows.h>

#include "dialogs/EditorWin.h"
#include "dialogs/FieldTablesWin.h"
#include "PlacesIds.h"

namespace dialogs {

template <class Fields>
void ShowPlace(HWND dialog, const FieldTable<Fields>& table, const Fields& fields) {
    LabelUnit(dialog, IDC_PLACE_ELEVATION_LABEL, "&Elevation (", Unit::Elevation, " ASL)");
    ShowPosition(dialog, IDC_PLACE_LATITUDE, IDC_PLACE_LONGITUDE, fields.position);
    ShowFields(dialog, table, fields);
}

template <class Fields>
Fields ReadPlace(HWND dialog, const FieldTable<Fields>& table) {
    Fields fields;
    fields.position = PositionIn(dialog, IDC_PLACE_LATITUDE, IDC_PLACE_LONGITUDE);
    ReadFields(dialog, table, &fields);
    return fields;
}

// Their subject is selected on the map.
template <class Fields>
bool EditPlace(const ObjectEditor<Fields>& of, SceneryObject* place) {
    SelectSubject(place, ExtendKeyHeld());
    return RunEditor(of, place);
}

}  // namespace dialogs
