// NdbDialogWin.cpp - the window "NDB Properties".
#include "dialogs/NdbDialog.h"

#include "dialogs/Editors.h"
#include "dialogs/NavaidWin.h"

namespace dialogs {

namespace {

constexpr FieldControl kControls[] = {
    { Field::Ident, IDC_NAV_IDENT },         { Field::Name, IDC_NAV_NAME },
    { Field::Frequency, IDC_NAV_FREQUENCY }, { Field::Latitude, IDC_NAV_LATITUDE },
    { Field::Longitude, IDC_NAV_LONGITUDE }, { Field::Elevation, IDC_NAV_ELEVATION },
    { Field::Range, IDC_NAV_RANGE },         { Field::Variation, IDC_NAV_VARIATION },
};

constexpr ChoiceControl<NdbFields> kChoices[] = { { &NdbFields::type, IDC_NAV_TYPE } };
constexpr FieldTable<NdbFields> kTable = { {}, {}, kChoices };

void Show(HWND dialog, const NdbFields& fields) {
    ShowNavaid(dialog, fields);
    platform::FillChoices(dialog, IDC_NAV_TYPE, kNdbTypes);
    ShowFields(dialog, kTable, fields);
}

NdbFields Read(HWND dialog) {
    NdbFields fields;
    ReadNavaid(dialog, &fields);
    ReadFields(dialog, kTable, &fields);
    return fields;
}

constexpr ObjectEditor<NdbFields> kEditor = {
    IDD_NDB, "#Navaids", kControls, LoadNdbFields, Show, Read, StoreNdbFields, IDC_NAV_LATITUDE, IDC_NAV_LONGITUDE,
};

}  // namespace

bool EditNdb(SceneryObject* ndb) { return RunEditor(kEditor, ndb); }

bool InsertNdbDialog() { return InsertAndEdit(InsertNdb, EditNdb); }

}  // namespace dialogs
