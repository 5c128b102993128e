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

constexpr TextControl<IlsFields> kTexts[] = {
    { &IlsFields::heading, IDC_NAV_HEADING },
    { &IlsFields::width, IDC_ILS_WIDTH },
};
constexpr BoxControl<IlsFields> kBoxes[] = { { &IlsFields::backCourse, IDC_ILS_BACK_COURSE } };
constexpr ChoiceControl<IlsFields> kChoices[] = {
    { &IlsFields::number, IDC_NAV_RUNWAY },
    { &IlsFields::suffix, IDC_ILS_SUFFIX },
};

constexpr TextControl<IlsFields> kSlopeTexts[] = {
    { &IlsFields::slopeElevation, IDC_ILS_SLOPE_ELEVATION },
    { &IlsFields::slopeRange, IDC_ILS_SLOPE_RANGE },
    { &IlsFields::slopePitch, IDC_ILS_SLOPE_PITCH },
};
constexpr BoxControl<IlsFields> kSlopeBoxes[] = { { &IlsFields::glideSlope, IDC_ILS_SLOPE } };

constexpr TextControl<IlsFields> kDmeTexts[] = {
    { &IlsFields::dmeElevation, IDC_ILS_DME_ELEVATION },
    { &IlsFields::dmeRange, IDC_ILS_DME_RANGE },
};
constexpr BoxControl<IlsFields> kDmeBoxes[] = { { &IlsFields::dme, IDC_ILS_DME } };

struct PartControls {
    FieldTable<IlsFields> table;
    CoordinateTexts IlsFields::*position;
    int latitude, longitude;
};
constexpr PartControls kParts[] = {
    { { kTexts, kBoxes, kChoices }, &IlsFields::position, IDC_NAV_LATITUDE, IDC_NAV_LONGITUDE },
    { { kSlopeTexts, kSlopeBoxes, {} }, &IlsFields::slopePosition, IDC_ILS_SLOPE_LATITUDE, IDC_ILS_SLOPE_LONGITUDE },
    { { kDmeTexts, kDmeBoxes, {} }, &IlsFields::dmePosition, IDC_ILS_DME_LATITUDE, IDC_ILS_DME_LONGITUDE },
};  // kLocalizerFields, kGlideSlopeFields, kDmeFields

void ShowPart(HWND dialog, const PartControls& part, const IlsFields& fields) {
    ShowPosition(dialog, part.latitude, part.longitude, fields.*part.position);
    ShowFields(dialog, part.table, fields);
}

void EnablePart(HWND dialog, const PartControls& part, bool on) {
    platform::EnableField(dialog, part.latitude, on);
    platform::EnableField(dialog, part.longitude, on);
    for (const auto& row : part.table.texts) platform::EnableField(dialog, row.control, on);
}

void ShowSlope(HWND dialog, const IlsFields& fields) {
    ShowPart(dialog, kParts[kGlideSlopeFields], fields);
    EnablePart(dialog, kParts[kGlideSlopeFields], fields.glideSlope);
}

void ShowDme(HWND dialog, const IlsFields& fields) {
    ShowPart(dialog, kParts[kDmeFields], fields);
    EnablePart(dialog, kParts[kDmeFields], fields.dme);
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
    platform::FillChoices(dialog, IDC_ILS_SUFFIX, kSuffixChoices);
    ShowPart(dialog, kParts[kLocalizerFields], fields);
    ShowSlope(dialog, fields);
    ShowDme(dialog, fields);
    ShowCourse(dialog);
    ShowChannel(dialog, "");
}

IlsFields Read(HWND dialog) {
    IlsFields fields;
    ReadNavaid(dialog, &fields);
    for (const PartControls& part : kParts) {
        fields.*part.position = PositionIn(dialog, part.latitude, part.longitude);
        ReadFields(dialog, part.table, &fields);
    }
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
        ShowPosition(dialog, kParts[to].latitude, kParts[to].longitude, texts);
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
