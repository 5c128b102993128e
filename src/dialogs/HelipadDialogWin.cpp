// HelipadDialogWin.cpp - the window "Helipad Properties".
#include "dialogs/HelipadDialog.h"

#include "dialogs/Choices.h"
#include "dialogs/Editors.h"
#include "dialogs/PlacesWin.h"

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

void Show(HWND dialog, const HelipadFields& fields) {
    LabelUnit(dialog, IDC_HELIPAD_LENGTH_LABEL, "Length (", Unit::Length, ")");
    LabelUnit(dialog, IDC_HELIPAD_WIDTH_LABEL, "Width (", Unit::Length, ")");
    platform::FillChoices(dialog, IDC_HELIPAD_SURFACE, SurfaceChoices());
    platform::FillChoices(dialog, IDC_HELIPAD_TYPE, kHelipadTypes);
    ShowPlace(dialog, kTable, fields);
}

HelipadFields Read(HWND dialog) { return ReadPlace(dialog, kTable); }

constexpr ObjectEditor<HelipadFields> kEditor = {
    IDD_HELIPAD, "#Helipads",        kControls,          LoadHelipadFields,   Show,
    Read,        StoreHelipadFields, IDC_PLACE_LATITUDE, IDC_PLACE_LONGITUDE,
};

}  // namespace

bool EditHelipad(SceneryObject* helipad) { return EditPlace(kEditor, helipad); }

bool InsertHelipadDialog() { return InsertAndEdit(InsertHelipad, EditHelipad); }

}  // namespace dialogs
