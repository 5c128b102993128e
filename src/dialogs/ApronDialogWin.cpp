// ApronDialogWin.cpp - the window "Apron Properties".
#include <windows.h>

#include "dialogs/ApronDialog.h"
#include "dialogs/Choices.h"
#include "dialogs/Editors.h"
#include "dialogs/EditorWin.h"
#include "dialogs/Subject.h"
#include "platform/DialogWin.h"
#include "TaxiIds.h"

namespace dialogs {

bool EditApron(SceneryObject* apron) {
    SelectSubject(apron, ExtendKeyHeld());
    const ApronFields shown = LoadApronFields(apron);
    Editor editor;
    editor.resource = IDD_APRON;
    editor.topic = "#ApronProperties";
    editor.load = [&](HWND dialog) {
        platform::FillChoices(dialog, IDC_APRON_SURFACE, SurfaceChoices());
        platform::SetChoice(dialog, IDC_APRON_SURFACE, shown.surface);
        platform::CheckField(dialog, IDC_DRAW_SURFACE, shown.drawSurface);
    };
    editor.store = [&](HWND dialog, BadField*) {
        const ApronFields entered = { platform::ChoiceOf(dialog, IDC_APRON_SURFACE),
                                      platform::IsFieldChecked(dialog, IDC_DRAW_SURFACE) };
        return StoreApronFields(shown, entered, apron);
    };
    return RunEditor(editor);
}

}  // namespace dialogs
