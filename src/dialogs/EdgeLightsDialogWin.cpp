// EdgeLightsDialogWin.cpp - the window "Apron Edge Lights Properties".
#include <windows.h>

#include "app/Settings.h"
#include "dialogs/EdgeLightsDialog.h"
#include "dialogs/Editors.h"
#include "dialogs/EditorWin.h"
#include "platform/DialogWin.h"
#include "TaxiIds.h"

namespace dialogs {

namespace {

constexpr FieldControl kControls[] = { { Field::Spacing, IDC_SPACING },
                                       { Field::OptimumSpacing, IDC_OPTIMUM },
                                       { Field::Brightness, IDC_BRIGHTNESS } };

void Load(HWND dialog, const EdgeLightsFields& fields) {
    const bool metric = app::settings.metric;
    platform::SetFieldText(dialog, IDC_SPACING_LABEL, metric ? "&Light Spacing (m)" : "&Light Spacing (ft)");
    platform::SetFieldText(dialog, IDC_OPTIMUM_LABEL,
                           metric ? "&Optimum Light Spacing (m)" : "&Optimum Light Spacing (ft)");
    platform::SetFieldText(dialog, IDC_SPACING, fields.spacing);
    platform::SetFieldText(dialog, IDC_OPTIMUM, fields.optimum);
    platform::SetFieldText(dialog, IDC_BRIGHTNESS, fields.brightness);
    platform::CheckField(dialog, IDC_ADJUST_SPACING, fields.adjust);
}

EdgeLightsFields Read(HWND dialog) {
    EdgeLightsFields fields;
    fields.spacing = platform::FieldText(dialog, IDC_SPACING);
    fields.adjust = platform::IsFieldChecked(dialog, IDC_ADJUST_SPACING);
    fields.optimum = platform::FieldText(dialog, IDC_OPTIMUM);
    fields.brightness = platform::FieldText(dialog, IDC_BRIGHTNESS);
    return fields;
}

}  // namespace

// What is selected stays so: the strips with a selected part are those whose spacing is edited. Whoever opens the dialog
// at a strip selects that one first (map::SelectStripAt).
bool EditEdgeLights(SceneryObject* lights) {
    const EdgeLightsFields shown = LoadEdgeLightsFields(lights);
    Editor editor;
    editor.resource = IDD_EDGE_LIGHTS;
    editor.topic = "#ApronEdgeLightsProperties";
    editor.controls = kControls;
    editor.load = [&](HWND dialog) { Load(dialog, shown); };
    editor.store = [&](HWND dialog, BadField* bad) { return StoreEdgeLightsFields(shown, Read(dialog), lights, bad); };
    return RunEditor(editor);
}

}  // namespace dialogs
