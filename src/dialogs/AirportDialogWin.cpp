// AirportDialogWin.cpp - the window "Airport Properties", for the open airport and for a new one.
#include <windows.h>

#include <string>

#include "AirportIds.h"
#include "dialogs/AirportDialog.h"
#include "dialogs/DialogHost.h"
#include "dialogs/Editors.h"
#include "dialogs/EditorWin.h"
#include "dialogs/FieldTablesWin.h"
#include "dialogs/OverMap.h"
#include "model/Records.h"
#include "platform/DialogWin.h"

namespace dialogs {

namespace {

constexpr FieldControl kControls[] = {
    { Field::Latitude, IDC_AIRPORT_LATITUDE },
    { Field::Longitude, IDC_AIRPORT_LONGITUDE },
    { Field::Elevation, IDC_AIRPORT_ELEVATION },
    { Field::Variation, IDC_AIRPORT_VARIATION },
    { Field::Ident, IDC_AIRPORT_IDENT },
    { Field::Country, IDC_COUNTRY },
    { Field::State, IDC_STATE },
    { Field::City, IDC_CITY },
    { Field::Name, IDC_AIRPORT_NAME },
};

constexpr TextControl<AirportFields> kTexts[] = {
    { &AirportFields::elevation, IDC_AIRPORT_ELEVATION },
    { &AirportFields::variation, IDC_AIRPORT_VARIATION },
    { &AirportFields::id, IDC_AIRPORT_IDENT },
    { &AirportFields::country, IDC_COUNTRY },
    { &AirportFields::state, IDC_STATE },
    { &AirportFields::city, IDC_CITY },
    { &AirportFields::name, IDC_AIRPORT_NAME },
};
constexpr BoxControl<AirportFields> kBoxes[] = {
    { &AirportFields::avgas, IDC_AVGAS },
    { &AirportFields::jetFuel, IDC_JET_FUEL },
};
constexpr FieldTable<AirportFields> kTable = { kTexts, kBoxes, {} };

void Show(HWND dialog, const AirportFields& fields) {
    ShowPosition(dialog, IDC_AIRPORT_LATITUDE, IDC_AIRPORT_LONGITUDE, fields.position);
    LabelUnit(dialog, IDC_AIRPORT_ELEVATION_LABEL, "&Elevation (", Unit::Elevation, " ASL)");
    platform::LimitField(dialog, IDC_AIRPORT_IDENT, kAirportIdLimit);
    for (const int control : { IDC_COUNTRY, IDC_STATE, IDC_CITY, IDC_AIRPORT_NAME }) {
        platform::LimitField(dialog, control, model::kAirportNameSize);
    }
    ShowFields(dialog, kTable, fields);
    platform::SetFieldText(dialog, IDC_FROM_FILE, AirportFile());
}

AirportFields Read(HWND dialog) {
    AirportFields fields;
    fields.position = PositionIn(dialog, IDC_AIRPORT_LATITUDE, IDC_AIRPORT_LONGITUDE);
    ReadFields(dialog, kTable, &fields);
    return fields;
}

constexpr ObjectEditor<AirportFields> kEditor = {
    IDD_AIRPORT,          "#AirportProperties",  kControls, LoadAirportFields, Show, Read, StoreAirportFields,
    IDC_AIRPORT_LATITUDE, IDC_AIRPORT_LONGITUDE,
};

}  // namespace

bool EditAirport(SceneryObject* airport) { return RunEditor(kEditor, airport); }

// The map has no place to click on yet.
bool RunNewAirport() {
    if (overMap.open) return false;
    SceneryObject* airport = MakeNewAirport();
    const AirportFields shown = LoadAirportFields(airport);
    Editor editor = EditorFor(kEditor, shown, airport);
    editor.clicked = nullptr;
    editor.store = [&](HWND dialog, BadField* bad) { return StoreNewAirport(shown, Read(dialog), bad); };
    const bool stored = RunEditor(editor);
    if (!stored) CancelNewAirport();
    return stored;
}

}  // namespace dialogs
