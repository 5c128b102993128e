// HelipadDialogWin.cpp - the window "Helipad Properties".
#include "dialogs/HelipadDialog.h"

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
    { Field::Latitude, IDC_PLACE_LATITUDE },   { Field::Longitude, IDC_PLACE_LONGITUDE },
    { Field::Elevation, IDC_PLACE_ELEVATION }, { Field::Heading, IDC_PLACE_HEADING },
    { Field::Length, IDC_HELIPAD_LENGTH },     { Field::Width, IDC_HELIPAD_WIDTH },
};

constexpr TextControl<HelipadFields> kTexts[] = {
    { &HelipadFields::elevation, IDC_PLACE_ELEVATION },
    { &HelipadFields::heading, IDC_PLACE_HEADING },
    { &HelipadFields::length, IDC_HELIPAD_LENGTH },
    { &HelipadFields::width, IDC_HELIPAD_WIDTH },
};
constexpr BoxControl<HelipadFields> kBoxes[] = {
    { &HelipadFields::transparent, IDC_HELIPAD_TRANSPARENT },
    { &HelipadFields::closed, IDC_HELIPAD_CLOSED },
};
constexpr ChoiceControl<HelipadFields> kChoices[] = {
    { &HelipadFields::surface, IDC_HELIPAD_SURFACE },
    { &HelipadFields::type, IDC_HELIPAD_TYPE },
};
constexpr FieldTable<HelipadFields> kTable = { kTexts, kBoxes, kChoices };

void Load(HWND dialog, const HelipadFields& fields) {
    if (app::settings.metric) {
        platform::SetFieldText(dialog, IDC_PLACE_ELEVATION_LABEL, "&Elevation (m ASL)");
        platform::SetFieldText(dialog, IDC_HELIPAD_LENGTH_LABEL, "Length (m)");
        platform::SetFieldText(dialog, IDC_HELIPAD_WIDTH_LABEL, "Width (m)");
    }
    platform::FillChoices(dialog, IDC_HELIPAD_SURFACE, SurfaceChoices());
    platform::FillChoices(dialog, IDC_HELIPAD_TYPE, kHelipadTypes);
    ShowPosition(dialog, IDC_PLACE_LATITUDE, IDC_PLACE_LONGITUDE, fields.position);
    ShowFields(dialog, kTable, fields);
}

HelipadFields Read(HWND dialog) {
    HelipadFields fields;
    fields.position = PositionIn(dialog, IDC_PLACE_LATITUDE, IDC_PLACE_LONGITUDE);
    ReadFields(dialog, kTable, &fields);
    return fields;
}

}  // namespace

bool EditHelipad(SceneryObject* helipad) {
    SelectSubject(helipad, ExtendKeyHeld());
    const HelipadFields shown = LoadHelipadFields(helipad);
    Editor editor;
    editor.resource = IDD_HELIPAD;
    editor.topic = "#Helipads";
    editor.controls = kControls;
    editor.load = [&](HWND dialog) { Load(dialog, shown); };
    editor.store = [&](HWND dialog, BadField* bad) { return StoreHelipadFields(shown, Read(dialog), helipad, bad); };
    editor.clicked = [&](HWND dialog, model::LatLon at) {
        ShowPosition(dialog, IDC_PLACE_LATITUDE, IDC_PLACE_LONGITUDE, MoveToClick(helipad, at));
    };
    return RunEditor(editor);
}

bool InsertHelipadDialog() { return EditHelipad(InsertHelipad()); }

}  // namespace dialogs
