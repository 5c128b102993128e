// ApronDialogWin.cpp - the window "Apron Properties".
#include <windows.h>

#include "dialogs/ApronDialog.h"
#include "dialogs/Choices.h"
#include "dialogs/Editors.h"
#include "dialogs/EditorWin.h"
#include "dialogs/FieldTablesWin.h"
#include "dialogs/Subject.h"
#include "platform/DialogWin.h"
#include "TaxiIds.h"

namespace dialogs {

namespace {

constexpr BoxControl<ApronFields> kBoxes[] = { { &ApronFields::drawSurface, IDC_DRAW_SURFACE } };
constexpr ChoiceControl<ApronFields> kChoices[] = { { &ApronFields::surface, IDC_APRON_SURFACE } };
constexpr FieldTable<ApronFields> kTable = { {}, kBoxes, kChoices };

}  // namespace

bool EditApron(SceneryObject* apron) {
    SelectSubject(apron, ExtendKeyHeld());
    const ApronFields shown = LoadApronFields(apron);
    Editor editor;
    editor.resource = IDD_APRON;
    editor.topic = "#ApronProperties";
    editor.load = [&](HWND dialog) {
        platform::FillChoices(dialog, IDC_APRON_SURFACE, SurfaceChoices());
        ShowFields(dialog, kTable, shown);
    };
    editor.store = [&](HWND dialog, BadField*) {
        ApronFields entered;
        ReadFields(dialog, kTable, &entered);
        return StoreApronFields(shown, entered, apron);
    };
    return RunEditor(editor);
}

}  // namespace dialogs
