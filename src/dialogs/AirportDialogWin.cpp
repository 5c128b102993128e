// AirportDialogWin.cpp - the window "Airport Properties", for the open airport and for a new one.
#include <windows.h>

#include <string>

#include "AirportIds.h"
#include "dialogs/AirportDialog.h"
#include "dialogs/DialogHost.h"
#include "dialogs/Editors.h"
#include "dialogs/EditorWin.h"
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

void Show(HWND dialog, const AirportFields& fields) {
    ShowPosition(dialog, IDC_AIRPORT_LATITUDE, IDC_AIRPORT_LONGITUDE, fields.position);
    LabelUnit(dialog, IDC_AIRPORT_ELEVATION_LABEL, "&Elevation (", Unit::Elevation, " ASL)");
    platform::SetFieldText(dialog, IDC_AIRPORT_ELEVATION, fields.elevation);
    platform::SetFieldText(dialog, IDC_AIRPORT_VARIATION, fields.variation);
    platform::CheckField(dialog, IDC_AVGAS, fields.avgas);
    platform::CheckField(dialog, IDC_JET_FUEL, fields.jetFuel);
    platform::LimitField(dialog, IDC_AIRPORT_IDENT, kAirportIdLimit);
    platform::SetFieldText(dialog, IDC_AIRPORT_IDENT, fields.id);
    for (const int control : { IDC_COUNTRY, IDC_STATE, IDC_CITY, IDC_AIRPORT_NAME }) {
        platform::LimitField(dialog, control, model::kAirportNameSize);
    }
    platform::SetFieldText(dialog, IDC_COUNTRY, fields.country);
    platform::SetFieldText(dialog, IDC_STATE, fields.state);
    platform::SetFieldText(dialog, IDC_CITY, fields.city);
    platform::SetFieldText(dialog, IDC_AIRPORT_NAME, fields.name);
    platform::SetFieldText(dialog, IDC_FROM_FILE, AirportFile());
}

AirportFields Read(HWND dialog) {
    AirportFields fields;
    fields.position = PositionIn(dialog, IDC_AIRPORT_LATITUDE, IDC_AIRPORT_LONGITUDE);
    fields.elevation = platform::FieldText(dialog, IDC_AIRPORT_ELEVATION);
    fields.variation = platform::FieldText(dialog, IDC_AIRPORT_VARIATION);
    fields.avgas = platform::IsFieldChecked(dialog, IDC_AVGAS);
    fields.jetFuel = platform::IsFieldChecked(dialog, IDC_JET_FUEL);
    fields.id = platform::FieldText(dialog, IDC_AIRPORT_IDENT);
    fields.country = platform::FieldText(dialog, IDC_COUNTRY);
    fields.state = platform::FieldText(dialog, IDC_STATE);
    fields.city = platform::FieldText(dialog, IDC_CITY);
    fields.name = platform::FieldText(dialog, IDC_AIRPORT_NAME);
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
