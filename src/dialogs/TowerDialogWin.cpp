// TowerDialogWin.cpp - the window "Tower Viewpoint Properties".
#include "dialogs/TowerDialog.h"

#include <windows.h>

#include "app/Settings.h"
#include "dialogs/Editors.h"
#include "dialogs/EditorWin.h"
#include "dialogs/Subject.h"
#include "PlacesIds.h"
#include "platform/DialogWin.h"

namespace dialogs {

namespace {

constexpr FieldControl kControls[] = {
    { Field::Latitude, IDC_PLACE_LATITUDE },
    { Field::Longitude, IDC_PLACE_LONGITUDE },
    { Field::Elevation, IDC_PLACE_ELEVATION },
};

void Load(HWND dialog, const TowerFields& fields) {
    if (app::settings.metric) platform::SetFieldText(dialog, IDC_PLACE_ELEVATION_LABEL, "&Elevation (m ASL)");
    ShowPosition(dialog, IDC_PLACE_LATITUDE, IDC_PLACE_LONGITUDE, fields.position);
    platform::SetFieldText(dialog, IDC_PLACE_ELEVATION, fields.elevation);
}

TowerFields Read(HWND dialog) {
    return { PositionIn(dialog, IDC_PLACE_LATITUDE, IDC_PLACE_LONGITUDE),
             platform::FieldText(dialog, IDC_PLACE_ELEVATION) };
}

}  // namespace

bool EditTower(SceneryObject* tower) {
    SelectSubject(tower, ExtendKeyHeld());
    const TowerFields shown = LoadTowerFields(tower);
    Editor editor;
    editor.resource = IDD_TOWER;
    editor.topic = "#TowerViewpoint";
    editor.controls = kControls;
    editor.load = [&](HWND dialog) { Load(dialog, shown); };
    editor.store = [&](HWND dialog, BadField* bad) { return StoreTowerFields(shown, Read(dialog), tower, bad); };
    editor.clicked = [&](HWND dialog, model::LatLon at) {
        ShowPosition(dialog, IDC_PLACE_LATITUDE, IDC_PLACE_LONGITUDE, MoveToClick(tower, at));
    };
    return RunEditor(editor);
}

bool InsertTowerDialog() {
    SceneryObject* tower = InsertTower();
    return tower && EditTower(tower);
}

}  // namespace dialogs
