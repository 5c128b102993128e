// IlsDialogWin.cpp - the windows "ILS Properties" and "New ILS".
#include "dialogs/IlsDialog.h"

#include <vector>

#include "dialogs/Choices.h"
#include "dialogs/Editors.h"
#include "dialogs/NavaidWin.h"
#include "dialogs/NewIls.h"
#include "dialogs/Subject.h"
#include "model/Positions.h"

namespace dialogs {

namespace {

constexpr FieldControl kControls[] = {
    { Field::Ident, IDC_NAV_IDENT },
    { Field::Name, IDC_NAV_NAME },
    { Field::Frequency, IDC_NAV_FREQUENCY },
    { Field::Latitude, IDC_NAV_LATITUDE },
    { Field::Longitude, IDC_NAV_LONGITUDE },
    { Field::Elevation, IDC_NAV_ELEVATION },
    { Field::Range, IDC_NAV_RANGE },
    { Field::Variation, IDC_NAV_VARIATION },
    { Field::Heading, IDC_NAV_HEADING },
    { Field::Runway, IDC_NAV_RUNWAY },
    { Field::BeamWidth, IDC_ILS_WIDTH },
    { Field::Latitude, IDC_ILS_SLOPE_LATITUDE, kGlideSlopeFields },
    { Field::Longitude, IDC_ILS_SLOPE_LONGITUDE, kGlideSlopeFields },
    { Field::Elevation, IDC_ILS_SLOPE_ELEVATION, kGlideSlopeFields },
    { Field::Range, IDC_ILS_SLOPE_RANGE, kGlideSlopeFields },
    { Field::Pitch, IDC_ILS_SLOPE_PITCH, kGlideSlopeFields },
    { Field::Latitude, IDC_ILS_DME_LATITUDE, kDmeFields },
    { Field::Longitude, IDC_ILS_DME_LONGITUDE, kDmeFields },
    { Field::Elevation, IDC_ILS_DME_ELEVATION, kDmeFields },
    { Field::Range, IDC_ILS_DME_RANGE, kDmeFields },
};

constexpr FieldControl kNewControls[] = { { Field::Runway, IDC_NAV_RUNWAY } };

constexpr int kSlopeControls[] = { IDC_ILS_SLOPE_LATITUDE, IDC_ILS_SLOPE_LONGITUDE, IDC_ILS_SLOPE_ELEVATION,
                                   IDC_ILS_SLOPE_RANGE, IDC_ILS_SLOPE_PITCH };
constexpr int kDmeControls[] = { IDC_ILS_DME_LATITUDE, IDC_ILS_DME_LONGITUDE, IDC_ILS_DME_ELEVATION,
                                 IDC_ILS_DME_RANGE };

struct PositionPair {
    int latitude, longitude;
};
constexpr PositionPair kPositions[] = { { IDC_NAV_LATITUDE, IDC_NAV_LONGITUDE },
                                        { IDC_ILS_SLOPE_LATITUDE, IDC_ILS_SLOPE_LONGITUDE },
                                        { IDC_ILS_DME_LATITUDE, IDC_ILS_DME_LONGITUDE } };  // by part

void ShowSlope(HWND dialog, const IlsFields& fields) {
    platform::CheckField(dialog, IDC_ILS_SLOPE, fields.glideSlope);
    ShowPosition(dialog, IDC_ILS_SLOPE_LATITUDE, IDC_ILS_SLOPE_LONGITUDE, fields.slopePosition);
    platform::SetFieldText(dialog, IDC_ILS_SLOPE_ELEVATION, fields.slopeElevation);
    platform::SetFieldText(dialog, IDC_ILS_SLOPE_RANGE, fields.slopeRange);
    platform::SetFieldText(dialog, IDC_ILS_SLOPE_PITCH, fields.slopePitch);
    for (const int control : kSlopeControls) platform::EnableField(dialog, control, fields.glideSlope);
}

void ShowDme(HWND dialog, const IlsFields& fields) {
    platform::CheckField(dialog, IDC_ILS_DME, fields.dme);
    ShowPosition(dialog, IDC_ILS_DME_LATITUDE, IDC_ILS_DME_LONGITUDE, fields.dmePosition);
    platform::SetFieldText(dialog, IDC_ILS_DME_ELEVATION, fields.dmeElevation);
    platform::SetFieldText(dialog, IDC_ILS_DME_RANGE, fields.dmeRange);
    for (const int control : kDmeControls) platform::EnableField(dialog, control, fields.dme);
    platform::ShowField(dialog, IDC_NAV_CHANNEL, fields.dme);
}

void ShowCourse(HWND dialog) {
    const std::string heading = platform::FieldText(dialog, IDC_NAV_HEADING);
    const std::string variation = platform::FieldText(dialog, IDC_NAV_VARIATION);
    platform::SetFieldText(dialog, IDC_ILS_COURSE, MagneticCourseText(heading, variation));
}

void Show(HWND dialog, const IlsFields& fields) {
    LabelUnit(dialog, IDC_ILS_SLOPE_ELEVATION_LABEL, "Ele&vation (", Unit::Elevation, " ASL)");
    LabelUnit(dialog, IDC_ILS_DME_ELEVATION_LABEL, "Elevat&ion (", Unit::Elevation, " ASL)");
    for (const int label : { IDC_ILS_SLOPE_RANGE_LABEL, IDC_ILS_DME_RANGE_LABEL }) {
        LabelUnit(dialog, label, "Range (", Unit::Range, ")");
    }
    ShowNavaid(dialog, fields);
    platform::FillChoices(dialog, IDC_NAV_RUNWAY, RunwayNumberChoices());
    platform::SetChoice(dialog, IDC_NAV_RUNWAY, fields.number);
    platform::FillChoices(dialog, IDC_ILS_SUFFIX, kSuffixChoices);
    platform::SetChoice(dialog, IDC_ILS_SUFFIX, fields.suffix);
    platform::CheckField(dialog, IDC_ILS_BACK_COURSE, fields.backCourse);
    platform::SetFieldText(dialog, IDC_NAV_HEADING, fields.heading);
    platform::SetFieldText(dialog, IDC_ILS_WIDTH, fields.width);
    ShowSlope(dialog, fields);
    ShowDme(dialog, fields);
    ShowCourse(dialog);
    ShowChannel(dialog, "");
}

IlsFields Read(HWND dialog) {
    IlsFields fields;
    ReadNavaid(dialog, &fields);
    fields.number = platform::ChoiceOf(dialog, IDC_NAV_RUNWAY);
    fields.suffix = platform::ChoiceOf(dialog, IDC_ILS_SUFFIX);
    fields.backCourse = platform::IsFieldChecked(dialog, IDC_ILS_BACK_COURSE);
    fields.heading = platform::FieldText(dialog, IDC_NAV_HEADING);
    fields.width = platform::FieldText(dialog, IDC_ILS_WIDTH);
    fields.glideSlope = platform::IsFieldChecked(dialog, IDC_ILS_SLOPE);
    fields.slopePosition = PositionIn(dialog, IDC_ILS_SLOPE_LATITUDE, IDC_ILS_SLOPE_LONGITUDE);
    fields.slopeElevation = platform::FieldText(dialog, IDC_ILS_SLOPE_ELEVATION);
    fields.slopeRange = platform::FieldText(dialog, IDC_ILS_SLOPE_RANGE);
    fields.slopePitch = platform::FieldText(dialog, IDC_ILS_SLOPE_PITCH);
    fields.dme = platform::IsFieldChecked(dialog, IDC_ILS_DME);
    fields.dmePosition = PositionIn(dialog, IDC_ILS_DME_LATITUDE, IDC_ILS_DME_LONGITUDE);
    fields.dmeElevation = platform::FieldText(dialog, IDC_ILS_DME_ELEVATION);
    fields.dmeRange = platform::FieldText(dialog, IDC_ILS_DME_RANGE);
    return fields;
}

void OnSlopeBox(HWND dialog, const SceneryObject* ils) {
    IlsFields fields = Read(dialog);
    SwitchGlideSlope(ils, fields.glideSlope, &fields);
    ShowSlope(dialog, fields);
}

void OnDmeBox(HWND dialog, const SceneryObject* ils) {
    IlsFields fields = Read(dialog);
    SwitchDme(ils, fields.dme, &fields);
    ShowDme(dialog, fields);
}

// The part of the ILS that the control belongs to.
int PartOf(int control) {
    if (control >= IDC_ILS_SLOPE && control <= IDC_ILS_SLOPE_PITCH) return kGlideSlopeFields;
    return control >= IDC_ILS_DME && control <= IDC_ILS_DME_RANGE ? kDmeFields : kLocalizerFields;
}

// `part` becomes the one whose fields the user was in last.
void OnCommand(HWND dialog, int id, int code, const SceneryObject* ils, int* part) {
    if (code == EN_SETFOCUS || code == BN_CLICKED) *part = PartOf(id);
    if (code == BN_CLICKED && id == IDC_ILS_SLOPE) OnSlopeBox(dialog, ils);
    if (code == BN_CLICKED && id == IDC_ILS_DME) OnDmeBox(dialog, ils);
    if (code != EN_CHANGE) return;
    if (id == IDC_NAV_HEADING || id == IDC_NAV_VARIATION) ShowCourse(dialog);
    if (id == IDC_NAV_FREQUENCY) ShowChannel(dialog, "");
}

constexpr ObjectEditor<IlsFields> kEditor = {
    IDD_ILS, "#Navaids", kControls, LoadIlsFields, Show, Read, StoreIlsFields,
};

}  // namespace

bool EditIls(SceneryObject* ils) {
    const IlsFields shown = LoadIlsFields(ils);
    int part = kLocalizerFields;
    Editor editor = EditorFor(kEditor, shown, ils);
    editor.command = [&](HWND dialog, int id, int code) { OnCommand(dialog, id, code, ils, &part); };
    editor.clicked = [&](HWND dialog, model::LatLon at) {
        const int to = PartForClick(part, Read(dialog));
        const model::CoordinateTexts texts = MoveToClick(ils, IlsPositionOffset(to), at);
        ShowPosition(dialog, kPositions[to].latitude, kPositions[to].longitude, texts);
    };
    return RunEditor(editor);
}

bool InsertIlsDialog() {
    const std::vector<RunwayEndRef> ends = EndsForNewIls();
    if (ends.empty()) return false;
    std::vector<std::string> names;
    for (const RunwayEndRef& ref : ends) names.push_back(EndName(ref.runway, ref.end));
    SceneryObject* made = nullptr;
    Editor editor;
    editor.resource = IDD_NEW_ILS;
    editor.topic = "#Navaids";
    editor.controls = kNewControls;
    editor.load = [&](HWND dialog) {
        platform::FillChoices(dialog, IDC_NAV_RUNWAY, names);
        platform::SetChoice(dialog, IDC_NAV_RUNWAY, 0);
    };
    editor.store = [&](HWND dialog, BadField* bad) {
        const RunwayEndRef* end = ChosenEnd(ends, platform::ChoiceOf(dialog, IDC_NAV_RUNWAY), bad);
        if (end) made = CreateIls(*end, SeededRandom());
        return end != nullptr;
    };
    if (!RunEditor(editor)) return false;
    SelectOnly(made);
    ShowPlace(model::PositionOf(made), true);
    return true;
}

}  // namespace dialogs
