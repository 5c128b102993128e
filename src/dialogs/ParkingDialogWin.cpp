// ParkingDialogWin.cpp - the window "Parking Properties".
#include <windows.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/ParkingSpecs.h"
#include "dialogs/Editors.h"
#include "dialogs/EditorWin.h"
#include "dialogs/FieldTablesWin.h"
#include "dialogs/ParkingCodes.h"
#include "dialogs/ParkingDialog.h"
#include "dialogs/Subject.h"
#include "platform/DialogWin.h"
#include "platform/WideTextWin.h"
#include "TaxiIds.h"

namespace dialogs {

namespace {

constexpr FieldControl kControls[] = {
    { Field::Latitude, IDC_LATITUDE },  { Field::Longitude, IDC_LONGITUDE }, { Field::Heading, IDC_SPOT_HEADING },
    { Field::Number, IDC_SPOT_NUMBER }, { Field::Radius, IDC_SPOT_RADIUS },  { Field::Codes, IDC_SPOT_CODES },
};

constexpr TextControl<ParkingFields> kTexts[] = {
    { &ParkingFields::heading, IDC_SPOT_HEADING },
    { &ParkingFields::number, IDC_SPOT_NUMBER },
    { &ParkingFields::radius, IDC_SPOT_RADIUS },
    { &ParkingFields::codes, IDC_SPOT_CODES },
};
constexpr ChoiceControl<ParkingFields> kChoices[] = {
    { &ParkingFields::area, IDC_SPOT_AREA },
    { &ParkingFields::type, IDC_SPOT_TYPE },
};
constexpr FieldTable<ParkingFields> kTable = { kTexts, {}, kChoices };

struct Subject {
    SceneryObject* spot = nullptr;
    ParkingFields shown;
};

void Show(HWND dialog, const ParkingFields& fields) {
    ShowPosition(dialog, IDC_LATITUDE, IDC_LONGITUDE, fields.position);
    platform::EnableField(dialog, IDC_LATITUDE, !fields.several);
    platform::EnableField(dialog, IDC_LONGITUDE, !fields.several);
    ShowFields(dialog, kTable, fields);
}

void Load(HWND dialog, const ParkingFields& fields) {
    std::vector<std::string> specs;
    for (const app::ParkingSpec& spec : app::parkingSpecs) specs.push_back(spec.name);
    platform::FillChoices(dialog, IDC_SPOT_AREA, ParkingAreaChoices());
    platform::FillChoices(dialog, IDC_SPOT_TYPE, ParkingTypeChoices());
    platform::FillChoices(dialog, IDC_SPOT_SPECS, specs);
    SendDlgItemMessageW(dialog, IDC_SPOT_SPECS, CB_SETEXTENDEDUI, TRUE, 0);
    LabelUnit(dialog, IDC_SPOT_RADIUS_LABEL, "&Radius (", Unit::ParkingLength, ")");
    Show(dialog, fields);
}

ParkingFields Read(HWND dialog, bool several) {
    ParkingFields fields;
    fields.several = several;
    if (!several) fields.position = PositionIn(dialog, IDC_LATITUDE, IDC_LONGITUDE);
    ReadFields(dialog, kTable, &fields);
    return fields;
}

// ChooseParkingType needs the type before: that is kept from one choice to the next.
void OnType(HWND dialog, const Subject& subject, int* typeBefore) {
    ParkingFields fields = Read(dialog, subject.shown.several);
    const int type = fields.type;
    fields.type = *typeBefore;
    ChooseParkingType(&fields, type);
    *typeBefore = type;
    platform::SetFieldText(dialog, IDC_SPOT_RADIUS, fields.radius);
}

// The cursor of the field counts UTF-16 units, that of the rules UTF-8 bytes.
void InsertChosenSpec(HWND dialog) {
    const int choice = platform::ChoiceOf(dialog, IDC_SPOT_SPECS);
    if (choice < 0) return;
    DWORD from = 0;
    SendDlgItemMessageW(dialog, IDC_SPOT_CODES, EM_GETSEL, reinterpret_cast<WPARAM>(&from), 0);
    std::string text = platform::FieldText(dialog, IDC_SPOT_CODES);
    const std::wstring wide = platform::WideFromUtf8(text);
    size_t cursor = platform::Utf8FromWide(std::wstring_view(wide).substr(0, from)).size();
    InsertSpecCodes(app::parkingSpecs[static_cast<size_t>(choice)], &text, &cursor);
    platform::SetFieldText(dialog, IDC_SPOT_CODES, text);
    const size_t behind = platform::WideFromUtf8(std::string_view(text).substr(0, cursor)).size();
    SendDlgItemMessageW(dialog, IDC_SPOT_CODES, EM_SETSEL, behind, static_cast<LPARAM>(behind));
}

// Going through the list is no choice yet: only what is accepted in the open list is. An arrow key opens it.
void OnSpecList(HWND dialog, int code, bool* accepted) {
    if (code == CBN_DROPDOWN || code == CBN_SELENDCANCEL) *accepted = false;
    if (code == CBN_SELENDOK) *accepted = true;
    if (code == CBN_CLOSEUP && std::exchange(*accepted, false)) InsertChosenSpec(dialog);
}

}  // namespace

bool EditParking(SceneryObject* object) {
    SelectSubject(object, ExtendKeyHeld());
    Subject subject = { object, LoadParkingFields(object) };
    int typeBefore = subject.shown.type;
    bool specAccepted = false;
    Editor editor;
    editor.resource = IDD_PARKING;
    editor.topic = "#ParkingProperties";
    editor.controls = kControls;
    editor.load = [&](HWND dialog) { Load(dialog, subject.shown); };
    editor.store = [&](HWND dialog, BadField* bad) {
        return StoreParkingFields(subject.shown, Read(dialog, subject.shown.several), subject.spot, bad);
    };
    editor.command = [&](HWND dialog, int id, int code) {
        if (id == IDC_SPOT_TYPE && code == CBN_SELCHANGE) OnType(dialog, subject, &typeBefore);
        if (id == IDC_SPOT_SPECS) OnSpecList(dialog, code, &specAccepted);
        if (id != IDC_NEXT_SPOT || !StoreOrRefuse(dialog)) return;
        subject.spot = NextSpot(subject.spot);
        GoToSpot(subject.spot);
        subject.shown = LoadParkingFields(subject.spot);
        typeBefore = subject.shown.type;
        Show(dialog, subject.shown);
    };
    editor.clicked = [&](HWND dialog, model::LatLon at) {
        if (!subject.shown.several) ShowPosition(dialog, IDC_LATITUDE, IDC_LONGITUDE, MoveToClick(subject.spot, at));
    };
    return RunEditor(editor);
}

}  // namespace dialogs
