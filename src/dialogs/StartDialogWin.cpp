// StartDialogWin.cpp - the window "Start Location Properties".
#include "dialogs/StartDialog.h"

#include "dialogs/Choices.h"
#include "dialogs/Editors.h"
#include "dialogs/PlacesWin.h"

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

void Show(HWND dialog, const StartFields& fields) {
    platform::FillChoices(dialog, IDC_START_NUMBER, RunwayNumberChoices());
    platform::FillChoices(dialog, IDC_START_SUFFIX, kSuffixChoices);
    platform::FillChoices(dialog, IDC_START_TYPE, kStartTypes);
    ShowPlace(dialog, kTable, fields);
}

StartFields Read(HWND dialog) { return ReadPlace(dialog, kTable); }

constexpr ObjectEditor<StartFields> kEditor = {
    IDD_START, "#StartLocations", kControls,          LoadStartFields,     Show,
    Read,      StoreStartFields,  IDC_PLACE_LATITUDE, IDC_PLACE_LONGITUDE,
};

}  // namespace

bool EditStart(SceneryObject* start) { return EditPlace(kEditor, start); }

bool InsertStartDialog() { return InsertAndEdit(InsertStart, EditStart); }

}  // namespace dialogs
