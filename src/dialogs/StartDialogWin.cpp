// StartDialogWin.cpp - the window "Start Location Properties".
#include "dialogs/StartDialog.h"

#include <windows.h>

#include "app/Settings.h"
#include "dialogs/Choices.h"
#include "dialogs/Editors.h"
#include "dialogs/EditorWin.h"
#include "dialogs/FieldTablesWin.h"
#include "dialogs/Subject.h"
#include "PlacesIds.h"
#include "platform/DialogWin.h"

namespace dialogs {

namespace {

constexpr FieldControl kControls[] = {
    { Field::Latitude, IDC_PLACE_LATITUDE },
    { Field::Longitude, IDC_PLACE_LONGITUDE },
    { Field::Elevation, IDC_PLACE_ELEVATION },
    { Field::Heading, IDC_PLACE_HEADING },
};

constexpr TextControl<StartFields> kTexts[] = {
    { &StartFields::elevation, IDC_PLACE_ELEVATION },
    { &StartFields::heading, IDC_PLACE_HEADING },
};
constexpr ChoiceControl<StartFields> kChoices[] = {
    { &StartFields::number, IDC_START_NUMBER },
    { &StartFields::suffix, IDC_START_SUFFIX },
    { &StartFields::type, IDC_START_TYPE },
};
constexpr FieldTable<StartFields> kTable = { kTexts, {}, kChoices };

void Load(HWND dialog, const StartFields& fields) {
    if (app::settings.metric) platform::SetFieldText(dialog, IDC_PLACE_ELEVATION_LABEL, "&Elevation (m ASL)");
    platform::FillChoices(dialog, IDC_START_NUMBER, RunwayNumberChoices());
    platform::FillChoices(dialog, IDC_START_SUFFIX, kSuffixChoices);
    platform::FillChoices(dialog, IDC_START_TYPE, kStartTypes);
    ShowPosition(dialog, IDC_PLACE_LATITUDE, IDC_PLACE_LONGITUDE, fields.position);
    ShowFields(dialog, kTable, fields);
}

StartFields Read(HWND dialog) {
    StartFields fields;
    fields.position = PositionIn(dialog, IDC_PLACE_LATITUDE, IDC_PLACE_LONGITUDE);
    ReadFields(dialog, kTable, &fields);
    return fields;
}

}  // namespace

bool EditStart(SceneryObject* start) {
    SelectSubject(start, ExtendKeyHeld());
    const StartFields shown = LoadStartFields(start);
    Editor editor;
    editor.resource = IDD_START;
    editor.topic = "#StartLocations";
    editor.controls = kControls;
    editor.load = [&](HWND dialog) { Load(dialog, shown); };
    editor.store = [&](HWND dialog, BadField* bad) { return StoreStartFields(shown, Read(dialog), start, bad); };
    editor.clicked = [&](HWND dialog, model::LatLon at) {
        ShowPosition(dialog, IDC_PLACE_LATITUDE, IDC_PLACE_LONGITUDE, MoveToClick(start, at));
    };
    return RunEditor(editor);
}

bool InsertStartDialog() { return EditStart(InsertStart()); }

}  // namespace dialogs
