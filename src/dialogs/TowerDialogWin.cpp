// TowerDialogWin.cpp - the window "Tower Viewpoint Properties".
#include "dialogs/TowerDialog.h"

#include "dialogs/Editors.h"
#include "dialogs/PlacesWin.h"

namespace dialogs {

namespace {

constexpr FieldControl kControls[] = {
    { Field::Latitude, IDC_PLACE_LATITUDE },
    { Field::Longitude, IDC_PLACE_LONGITUDE },
    { Field::Elevation, IDC_PLACE_ELEVATION },
};

constexpr TextControl<TowerFields> kTexts[] = { { &TowerFields::elevation, IDC_PLACE_ELEVATION } };
constexpr FieldTable<TowerFields> kTable = { kTexts, {}, {} };

void Show(HWND dialog, const TowerFields& fields) { ShowPlace(dialog, kTable, fields); }

TowerFields Read(HWND dialog) { return ReadPlace(dialog, kTable); }

constexpr ObjectEditor<TowerFields> kEditor = {
    IDD_TOWER, "#TowerViewpoint", kControls,          LoadTowerFields,     Show,
    Read,      StoreTowerFields,  IDC_PLACE_LATITUDE, IDC_PLACE_LONGITUDE,
};

}  // namespace

bool EditTower(SceneryObject* tower) { return EditPlace(kEditor, tower); }

bool InsertTowerDialog() { return InsertAndEdit(InsertTower, EditTower); }

}  // namespace dialogs
