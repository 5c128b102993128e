// CommDialogWin.cpp - the window "COMM Frequency Properties".
#include "dialogs/CommDialog.h"

#include "dialogs/Editors.h"
#include "dialogs/EditorWin.h"
#include "dialogs/FieldTablesWin.h"
#include "model/Records.h"
#include "NavaidIds.h"
#include "platform/DialogWin.h"

namespace dialogs {

namespace {

constexpr FieldControl kControls[] = { { Field::Frequency, IDC_NAV_FREQUENCY }, { Field::Name, IDC_NAV_NAME } };

constexpr TextControl<CommFields> kTexts[] = {
    { &CommFields::frequency, IDC_NAV_FREQUENCY },
    { &CommFields::name, IDC_NAV_NAME },
};
constexpr ChoiceControl<CommFields> kChoices[] = { { &CommFields::type, IDC_NAV_TYPE } };
constexpr FieldTable<CommFields> kTable = { kTexts, {}, kChoices };

void Show(HWND dialog, const CommFields& fields) {
    platform::FillChoices(dialog, IDC_NAV_TYPE, kCommTypes);
    platform::LimitField(dialog, IDC_NAV_NAME, model::kCommNameSize);
    ShowFields(dialog, kTable, fields);
}

CommFields Read(HWND dialog) {
    CommFields fields;
    ReadFields(dialog, kTable, &fields);
    return fields;
}

constexpr ObjectEditor<CommFields> kEditor = {
    IDD_COMM, "#CommFrequencies", kControls, LoadCommFields, Show, Read, StoreCommFields,
};

}  // namespace

bool EditComm(SceneryObject* comm) { return RunEditor(kEditor, comm); }

bool InsertCommDialog() { return InsertAndEdit(InsertComm, EditComm); }

}  // namespace dialogs
