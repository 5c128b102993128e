// LinkDialogWin.cpp - the window "Link Properties".
#include <windows.h>

#include <string>
#include <vector>

#include "dialogs/Choices.h"
#include "dialogs/Editors.h"
#include "dialogs/EditorWin.h"
#include "dialogs/FieldTablesWin.h"
#include "dialogs/LinkDialog.h"
#include "dialogs/Subject.h"
#include "platform/DialogWin.h"
#include "TaxiIds.h"

namespace dialogs {

namespace {

constexpr FieldControl kControls[] = { { Field::Designator, IDC_LINK_DESIGNATOR }, { Field::Width, IDC_LINK_WIDTH } };
constexpr TextControl<LinkFields> kTexts[] = { { &LinkFields::width, IDC_LINK_WIDTH } };
constexpr BoxControl<LinkFields> kBoxes[] = {
    { &LinkFields::leftLights, IDC_LEFT_LIGHTS },
    { &LinkFields::rightLights, IDC_RIGHT_LIGHTS },
    { &LinkFields::centreLights, IDC_CENTRE_LIGHTS },
};
constexpr ChoiceControl<LinkFields> kChoices[] = {
    { &LinkFields::designator, IDC_LINK_DESIGNATOR },
    { &LinkFields::type, IDC_LINK_TYPE },
    { &LinkFields::surface, IDC_LINK_SURFACE },
};
constexpr FieldTable<LinkFields> kTable = { kTexts, kBoxes, kChoices };
constexpr size_t kWidthTextLimit = 12;  // characters

// Radio buttons whose ids follow each other; -1 presses none.
void PressRadio(HWND dialog, int first, int count, int choice) {
    for (int i = 0; i < count; ++i) platform::CheckField(dialog, first + i, i == choice);
}

int PressedRadio(HWND dialog, int first, int count) {
    for (int i = 0; i < count; ++i) {
        if (platform::IsFieldChecked(dialog, first + i)) return i;
    }
    return -1;
}

constexpr int kEdgeStyles = static_cast<int>(kEdgeLineNames.size()), kCentreStyles = 2;

void Show(HWND dialog, const SceneryObject* link, const LinkFields& fields) {
    std::vector<std::string> designators, types;
    for (const DesignatorChoice& choice : DesignatorChoices()) designators.push_back(choice.text);
    for (const uint32_t type : LinkTypeChoices(link)) types.push_back(LinkTypeName(type));
    platform::FillChoices(dialog, IDC_LINK_DESIGNATOR, designators);
    platform::FillChoices(dialog, IDC_LINK_TYPE, types);
    platform::FillChoices(dialog, IDC_LINK_SURFACE, SurfaceChoices());
    LabelUnit(dialog, IDC_LINK_WIDTH_LABEL, "&Width (", Unit::Length, ")");
    platform::LimitField(dialog, IDC_LINK_WIDTH, kWidthTextLimit);
    ShowFields(dialog, kTable, fields);
    PressRadio(dialog, IDC_LEFT_NONE, kEdgeStyles, fields.leftEdge);
    PressRadio(dialog, IDC_RIGHT_NONE, kEdgeStyles, fields.rightEdge);
    PressRadio(dialog, IDC_CENTRE_NONE, kCentreStyles, fields.centreLine ? 1 : 0);
}

LinkFields Read(HWND dialog) {
    LinkFields fields;
    ReadFields(dialog, kTable, &fields);
    fields.leftEdge = PressedRadio(dialog, IDC_LEFT_NONE, kEdgeStyles);
    fields.rightEdge = PressedRadio(dialog, IDC_RIGHT_NONE, kEdgeStyles);
    fields.centreLine = platform::IsFieldChecked(dialog, IDC_CENTRE_SOLID);
    return fields;
}

}  // namespace

bool EditLink(SceneryObject* link) {
    SelectSubject(link, ExtendKeyHeld());
    const LinkFields shown = LoadLinkFields(link);
    Editor editor;
    editor.resource = IDD_LINK;
    editor.topic = "#LinkProperties";
    editor.controls = kControls;
    editor.load = [&](HWND dialog) { Show(dialog, link, shown); };
    editor.store = [&](HWND dialog, BadField* bad) { return StoreLinkFields(shown, Read(dialog), link, bad); };
    return RunEditor(editor);
}

}  // namespace dialogs
