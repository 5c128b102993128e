// EdgeLightsDialogWin.cpp - the window "Apron Edge Lights Properties".
#include <windows.h>

#include "dialogs/EdgeLightsDialog.h"
#include "dialogs/Editors.h"
#include "dialogs/EditorWin.h"
#include "dialogs/FieldTablesWin.h"
#include "platform/DialogWin.h"
#include "TaxiIds.h"

namespace dialogs {

namespace {

constexpr FieldControl kControls[] = { { Field::Spacing, IDC_SPACING },
                                       { Field::OptimumSpacing, IDC_OPTIMUM },
                                       { Field::Brightness, IDC_BRIGHTNESS } };

constexpr TextControl<EdgeLightsFields> kTexts[] = {
    { &EdgeLightsFields::spacing, IDC_SPACING },
    { &EdgeLightsFields::optimum, IDC_OPTIMUM },
    { &EdgeLightsFields::brightness, IDC_BRIGHTNESS },
};
constexpr BoxControl<EdgeLightsFields> kBoxes[] = { { &EdgeLightsFields::adjust, IDC_ADJUST_SPACING } };
constexpr FieldTable<EdgeLightsFields> kTable = { kTexts, kBoxes, {} };

void Show(HWND dialog, const EdgeLightsFields& fields) {
    LabelUnit(dialog, IDC_SPACING_LABEL, "&Light Spacing (", Unit::TaxiLength, ")");
    LabelUnit(dialog, IDC_OPTIMUM_LABEL, "&Optimum Light Spacing (", Unit::TaxiLength, ")");
    ShowFields(dialog, kTable, fields);
}

EdgeLightsFields Read(HWND dialog) {
    EdgeLightsFields fields;
    ReadFields(dialog, kTable, &fields);
    return fields;
}

constexpr ObjectEditor<EdgeLightsFields> kEditor = {
    IDD_EDGE_LIGHTS, "#ApronEdgeLightsProperties", kControls, LoadEdgeLightsFields, Show, Read, StoreEdgeLightsFields,
};

}  // namespace

// What is selected stays so: the strips with a selected part are those whose spacing is edited. Whoever opens the dialog
// at a strip selects that one first (map::SelectStripAt).
bool EditEdgeLights(SceneryObject* lights) { return RunEditor(kEditor, lights); }

}  // namespace dialogs
