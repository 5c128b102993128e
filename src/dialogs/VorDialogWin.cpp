// VorDialogWin.cpp - the window "VOR/DME Properties".
#include "dialogs/VorDialog.h"

#include "dialogs/Editors.h"
#include "dialogs/NavaidWin.h"

namespace dialogs {

namespace {

constexpr FieldControl kControls[] = {
    { Field::Ident, IDC_NAV_IDENT },         { Field::Name, IDC_NAV_NAME },
    { Field::Frequency, IDC_NAV_FREQUENCY }, { Field::Latitude, IDC_NAV_LATITUDE },
    { Field::Longitude, IDC_NAV_LONGITUDE }, { Field::Elevation, IDC_NAV_ELEVATION },
    { Field::Range, IDC_NAV_RANGE },         { Field::Variation, IDC_NAV_VARIATION },
    { Field::DmeRange, IDC_VOR_DME_RANGE },
};

constexpr TextControl<VorFields> kTexts[] = { { &VorFields::dmeRange, IDC_VOR_DME_RANGE } };
constexpr ChoiceControl<VorFields> kChoices[] = {
    { &VorFields::parts, IDC_VOR_PARTS },
    { &VorFields::vorClass, IDC_NAV_TYPE },
};
constexpr FieldTable<VorFields> kTable = { kTexts, {}, kChoices };

// Without a VOR there is no class, without a DME neither range nor channel.
void EnableParts(HWND dialog) {
    const int parts = platform::ChoiceOf(dialog, IDC_VOR_PARTS);
    platform::EnableField(dialog, IDC_NAV_TYPE, HasVorPart(parts));
    platform::EnableField(dialog, IDC_VOR_DME_RANGE, HasDmePart(parts));
    platform::ShowField(dialog, IDC_NAV_CHANNEL, HasDmePart(parts));
}

void Show(HWND dialog, const VorFields& fields) {
    LabelUnit(dialog, IDC_VOR_DME_RANGE_LABEL, "&DME Range (", Unit::Range, ")");
    ShowNavaid(dialog, fields);
    platform::FillChoices(dialog, IDC_VOR_PARTS, kVorParts);
    platform::FillChoices(dialog, IDC_NAV_TYPE, kVorClasses);
    ShowFields(dialog, kTable, fields);
    ShowChannel(dialog, "DME channel ");
    EnableParts(dialog);
}

VorFields Read(HWND dialog) {
    VorFields fields;
    ReadNavaid(dialog, &fields);
    ReadFields(dialog, kTable, &fields);
    return fields;
}

// ChooseVorParts needs the parts before: those are kept from one choice to the next.
void OnParts(HWND dialog, int* before) {
    VorFields fields = Read(dialog);
    const int parts = fields.parts;
    fields.parts = *before;
    ChooseVorParts(parts, &fields);
    *before = parts;
    platform::SetFieldText(dialog, IDC_VOR_DME_RANGE, fields.dmeRange);
    EnableParts(dialog);
}

constexpr ObjectEditor<VorFields> kEditor = {
    IDD_VOR, "#Navaids", kControls, LoadVorFields, Show, Read, StoreVorFields, IDC_NAV_LATITUDE, IDC_NAV_LONGITUDE,
};

}  // namespace

bool EditVor(SceneryObject* vor) {
    const VorFields shown = LoadVorFields(vor);
    int parts = shown.parts;
    Editor editor = EditorFor(kEditor, shown, vor);
    editor.command = [&](HWND dialog, int id, int code) {
        if (id == IDC_VOR_PARTS && code == CBN_SELCHANGE) OnParts(dialog, &parts);
        if (id == IDC_NAV_FREQUENCY && code == EN_CHANGE) ShowChannel(dialog, "DME channel ");
    };
    return RunEditor(editor);
}

bool InsertVorDialog() { return InsertAndEdit(InsertVor, EditVor); }

}  // namespace dialogs
