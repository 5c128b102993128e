// CommDialogWin.cpp - the window "COMM Frequency Properties".
#include "dialogs/CommDialog.h"

#include "dialogs/Editors.h"
#include "dialogs/EditorWin.h"
#include "model/Records.h"
#include "NavaidIds.h"
#include "platform/DialogWin.h"

namespace dialogs {

namespace {

constexpr FieldControl kControls[] = { { Field::Frequency, IDC_NAV_FREQUENCY }, { Field::Name, IDC_NAV_NAME } };

void Show(HWND dialog, const CommFields& fields) {
    platform::SetFieldText(dialog, IDC_NAV_FREQUENCY, fields.frequency);
    platform::FillChoices(dialog, IDC_NAV_TYPE, kCommTypes);
    platform::SetChoice(dialog, IDC_NAV_TYPE, fields.type);
    platform::LimitField(dialog, IDC_NAV_NAME, model::kCommNameSize);
    platform::SetFieldText(dialog, IDC_NAV_NAME, fields.name);
}

CommFields Read(HWND dialog) {
    CommFields fields;
    fields.frequency = platform::FieldText(dialog, IDC_NAV_FREQUENCY);
    fields.type = platform::ChoiceOf(dialog, IDC_NAV_TYPE);
    fields.name = platform::FieldText(dialog, IDC_NAV_NAME);
    return fields;
}

constexpr ObjectEditor<CommFields> kEditor = {
    IDD_COMM, "#CommFrequencies", kControls, LoadCommFields, Show, Read, StoreCommFields,
};

}  // namespace

bool EditComm(SceneryObject* comm) { return RunEditor(kEditor, comm); }

bool InsertCommDialog() { return InsertAndEdit(InsertComm, EditComm); }

}  // namespace dialogs
