// NodeDialogWin.cpp - the window "Node Properties".
#include <windows.h>

#include "dialogs/Editors.h"
#include "dialogs/EditorWin.h"
#include "dialogs/FieldTablesWin.h"
#include "dialogs/NodeDialog.h"
#include "dialogs/Subject.h"
#include "platform/DialogWin.h"
#include "TaxiIds.h"

namespace dialogs {

namespace {

constexpr FieldControl kControls[] = { { Field::Latitude, IDC_LATITUDE }, { Field::Longitude, IDC_LONGITUDE } };

constexpr BoxControl<NodeFields> kBoxes[] = { { &NodeFields::reversed, IDC_REVERSE_MARKER } };
constexpr ChoiceControl<NodeFields> kChoices[] = { { &NodeFields::type, IDC_NODE_TYPE } };
constexpr FieldTable<NodeFields> kTable = { {}, kBoxes, kChoices };

// The box is there for hold-short nodes only.
void ShowMarkerBox(HWND dialog) {
    platform::ShowField(dialog, IDC_REVERSE_MARKER, platform::ChoiceOf(dialog, IDC_NODE_TYPE) == kHoldShortIndex);
}

void Show(HWND dialog, const NodeFields& fields) {
    ShowPosition(dialog, IDC_LATITUDE, IDC_LONGITUDE, fields.position);
    platform::FillChoices(dialog, IDC_NODE_TYPE, kNodeTypeNames);
    ShowFields(dialog, kTable, fields);
    ShowMarkerBox(dialog);
}

NodeFields Read(HWND dialog) {
    NodeFields fields;
    fields.position = PositionIn(dialog, IDC_LATITUDE, IDC_LONGITUDE);
    ReadFields(dialog, kTable, &fields);
    return fields;
}

}  // namespace

bool EditNode(SceneryObject* node) {
    SelectSubject(node, ExtendKeyHeld());
    const NodeFields shown = LoadNodeFields(node);
    Editor editor;
    editor.resource = IDD_NODE;
    editor.topic = "#Nodes";
    editor.controls = kControls;
    editor.load = [&](HWND dialog) { Show(dialog, shown); };
    editor.store = [&](HWND dialog, BadField* bad) { return StoreNodeFields(shown, Read(dialog), node, bad); };
    editor.command = [](HWND dialog, int id, int code) {
        if (id == IDC_NODE_TYPE && code == CBN_SELCHANGE) ShowMarkerBox(dialog);
    };
    editor.clicked = [&](HWND dialog, model::LatLon at) {
        ShowPosition(dialog, IDC_LATITUDE, IDC_LONGITUDE, MoveToClick(node, at));
    };
    return RunEditor(editor);
}

}  // namespace dialogs
