// CommDialogWin.cpp - the window "COMM Frequency Properties".
#include "dialogs/CommDialog.h"

#include "dialogs/Editors.h"
#include "dialogs/EditorWin.h"
#include "NavaidIds.h"
#include "platform/DialogWin.h"

namespace dialogs {

namespace {

constexpr FieldControl kControls[] = { { Field::Frequency, IDC_NAV_FREQUENCY }, { Field::Name, IDC_NAV_NAME } };

void Load(HWND dialog, const CommFields& fields) {
    platform::SetFieldText(dialog, IDC_NAV_FREQUENCY, fields.frequency);
    platform::FillChoices(dialog, IDC_NAV_TYPE, kCommTypes);
    platform::SetChoice(dialog, IDC_NAV_TYPE, fields.type);
    platform::SetFieldText(dialog, IDC_NAV_NAME, fields.name);
}

CommFields Read(HWND dialog) {
    CommFields fields;
    fields.frequency = platform::FieldText(dialog, IDC_NAV_FREQUENCY);
    fields.type = platform::ChoiceOf(dialog, IDC_NAV_TYPE);
    fields.name = platform::FieldText(dialog, IDC_NAV_NAME);
    return fields;
}

}  // namespace

bool EditComm(SceneryObject* comm) {
    const CommFields shown = LoadCommFields(comm);
    Editor editor;
    editor.resource = IDD_COMM;
    editor.topic = "#CommFrequencies";
    editor.controls = kControls;
    editor.load = [&](HWND dialog) { Load(dialog, shown); };
    editor.store = [&](HWND dialog, BadField* bad) { return StoreCommFields(shown, Read(dialog), comm, bad); };
    return RunEditor(editor);
}

bool InsertCommDialog() { return EditComm(InsertComm()); }

}  // namespace dialogs
