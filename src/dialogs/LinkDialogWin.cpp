// LinkDialogWin.cpp - the window "Link Properties".
#include <windows.h>

#include <string>
#include <vector>

#include "dialogs/Choices.h"
#include "dialogs/Editors.h"
#include "dialogs/EditorWin.h"
#include "dialogs/LinkDialog.h"
#include "dialogs/Subject.h"
#include "platform/DialogWin.h"
#include "TaxiIds.h"

namespace dialogs {

namespace {

constexpr FieldControl kControls[] = { { Field::Designator, IDC_LINK_DESIGNATOR }, { Field::Width, IDC_LINK_WIDTH } };
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

void Load(HWND dialog, const SceneryObject* link, const LinkFields& fields) {
    std::vector<std::string> designators, types;
    for (const DesignatorChoice& choice : DesignatorChoices()) designators.push_back(choice.text);
    for (const uint32_t type : LinkTypeChoices(link)) types.push_back(LinkTypeName(type));
    platform::FillChoices(dialog, IDC_LINK_DESIGNATOR, designators);
    platform::SetChoice(dialog, IDC_LINK_DESIGNATOR, fields.designator);
    platform::FillChoices(dialog, IDC_LINK_TYPE, types);
    platform::SetChoice(dialog, IDC_LINK_TYPE, fields.type);
    platform::FillChoices(dialog, IDC_LINK_SURFACE, SurfaceChoices());
    platform::SetChoice(dialog, IDC_LINK_SURFACE, fields.surface);
    LabelUnit(dialog, IDC_LINK_WIDTH_LABEL, "&Width (", Unit::Length, ")");
    platform::LimitField(dialog, IDC_LINK_WIDTH, kWidthTextLimit);
    platform::SetFieldText(dialog, IDC_LINK_WIDTH, fields.width);
    PressRadio(dialog, IDC_LEFT_NONE, kEdgeStyles, fields.leftEdge);
    PressRadio(dialog, IDC_RIGHT_NONE, kEdgeStyles, fields.rightEdge);
    PressRadio(dialog, IDC_CENTRE_NONE, kCentreStyles, fields.centreLine ? 1 : 0);
    platform::CheckField(dialog, IDC_LEFT_LIGHTS, fields.leftLights);
    platform::CheckField(dialog, IDC_RIGHT_LIGHTS, fields.rightLights);
    platform::CheckField(dialog, IDC_CENTRE_LIGHTS, fields.centreLights);
}

LinkFields Read(HWND dialog) {
    LinkFields fields;
    fields.designator = platform::ChoiceOf(dialog, IDC_LINK_DESIGNATOR);
    fields.type = platform::ChoiceOf(dialog, IDC_LINK_TYPE);
    fields.surface = platform::ChoiceOf(dialog, IDC_LINK_SURFACE);
    fields.width = platform::FieldText(dialog, IDC_LINK_WIDTH);
    fields.leftEdge = PressedRadio(dialog, IDC_LEFT_NONE, kEdgeStyles);
    fields.rightEdge = PressedRadio(dialog, IDC_RIGHT_NONE, kEdgeStyles);
    fields.centreLine = platform::IsFieldChecked(dialog, IDC_CENTRE_SOLID);
    fields.leftLights = platform::IsFieldChecked(dialog, IDC_LEFT_LIGHTS);
    fields.rightLights = platform::IsFieldChecked(dialog, IDC_RIGHT_LIGHTS);
    fields.centreLights = platform::IsFieldChecked(dialog, IDC_CENTRE_LIGHTS);
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
    editor.load = [&](HWND dialog) { Load(dialog, link, shown); };
    editor.store = [&](HWND dialog, BadField* bad) { return StoreLinkFields(shown, Read(dialog), link, bad); };
    return RunEditor(editor);
}

}  // namespace dialogs
