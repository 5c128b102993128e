// RunwayPagesWin.cpp - see RunwayPagesWin.h.
#include "dialogs/RunwayPagesWin.h"

#include <string>

#include "dialogs/Choices.h"
#include "dialogs/EditorWin.h"
#include "dialogs/FieldTablesWin.h"
#include "model/Names.h"
#include "platform/DialogWin.h"
#include "RunwayIds.h"

namespace dialogs {

namespace {

using EndFields = RunwayEndFields;

constexpr TextControl<RunwayFields> kDataTexts[] = {
    { &RunwayFields::elevation, IDC_RUNWAY_ELEVATION }, { &RunwayFields::length, IDC_RUNWAY_LENGTH },
    { &RunwayFields::width, IDC_RUNWAY_WIDTH },         { &RunwayFields::patternAltitude, IDC_PATTERN_ALTITUDE },
    { &RunwayFields::heading, IDC_RUNWAY_HEADING },
};
constexpr ChoiceControl<RunwayFields> kDataChoices[] = { { &RunwayFields::surface, IDC_RUNWAY_SURFACE } };
constexpr FieldTable<RunwayFields> kDataTable = { kDataTexts, {}, kDataChoices };

constexpr TextControl<EndFields> kEndTexts[] = {
    { &EndFields::overrun, IDC_OVERRUN },
    { &EndFields::displaced, IDC_DISPLACED },
    { &EndFields::ilsIdent, IDC_ILS_IDENT },
};
constexpr BoxControl<EndFields> kEndBoxes[] = {
    { &EndFields::noTakeoff, IDC_NO_TAKEOFF },
    { &EndFields::noLanding, IDC_NO_LANDING },
    { &EndFields::rightPattern, IDC_RIGHT_PATTERN },
};
constexpr ChoiceControl<EndFields> kEndChoices[] = {
    { &EndFields::number, IDC_END_NUMBER },
    { &EndFields::suffix, IDC_END_SUFFIX },
};
constexpr FieldTable<EndFields> kEndTable = { kEndTexts, kEndBoxes, kEndChoices };

constexpr BoxControl<RunwayFields> kLightsBoxes[] = { { &RunwayFields::redEndLights, IDC_RED_END_LIGHTS } };
constexpr ChoiceControl<RunwayFields> kLightsChoices[] = {
    { &RunwayFields::centreLights, IDC_CENTRELINE_LIGHTS },
    { &RunwayFields::edgeLights, IDC_EDGE_LIGHTS },
};
constexpr FieldTable<RunwayFields> kLightsTable = { {}, kLightsBoxes, kLightsChoices };

constexpr TextControl<EndFields> kEndLightsTexts[] = { { &EndFields::strobes, IDC_STROBES } };
constexpr BoxControl<EndFields> kEndLightsBoxes[] = {
    { &EndFields::endLights, IDC_GREEN_END_ROW },
    { &EndFields::reil, IDC_REILS },
    { &EndFields::touchdownLights, IDC_TOUCHDOWN_LIGHTS },
};
constexpr ChoiceControl<EndFields> kEndLightsChoices[] = { { &EndFields::approachSystem, IDC_APPROACH_SYSTEM } };
constexpr FieldTable<EndFields> kEndLightsTable = { kEndLightsTexts, kEndLightsBoxes, kEndLightsChoices };

constexpr TextControl<VasiFields> kVasiTexts[] = {
    { &VasiFields::distance, IDC_VASI_DISTANCE },
    { &VasiFields::offset, IDC_VASI_OFFSET },
    { &VasiFields::spacing, IDC_VASI_SPACING },
    { &VasiFields::slope, IDC_VASI_SLOPE },
};
constexpr ChoiceControl<VasiFields> kVasiChoices[] = { { &VasiFields::system, IDC_VASI_SYSTEM } };
constexpr FieldTable<VasiFields> kVasiTable = { kVasiTexts, {}, kVasiChoices };

constexpr BoxControl<RunwayFields> kMarkingsBoxes[] = {
    { &RunwayFields::noMarkings, IDC_NO_MARKINGS },        { &RunwayFields::centreLine, IDC_CENTRE_LINE },
    { &RunwayFields::edgeLines, IDC_EDGE_LINES },          { &RunwayFields::edgePavement, IDC_EDGE_PAVEMENT },
    { &RunwayFields::precision, IDC_PRECISION },           { &RunwayFields::aimingPoint, IDC_AIMING_POINT },
    { &RunwayFields::touchdownZone, IDC_TOUCHDOWN_MARKS }, { &RunwayFields::numbers, IDC_NUMBERS },
    { &RunwayFields::threshold, IDC_THRESHOLD_STRIPES },
};
constexpr FieldTable<RunwayFields> kMarkingsTable = { {}, kMarkingsBoxes, {} };

constexpr BoxControl<EndFields> kEndMarksBoxes[] = {
    { &EndFields::closedMark, IDC_CLOSED_MARK },
    { &EndFields::stolMark, IDC_STOL_MARK },
};
constexpr FieldTable<EndFields> kEndMarksTable = { {}, kEndMarksBoxes, {} };

constexpr int kVasiUnits = 4;

int EndShift(int end) { return end * IDC_SECOND_END; }

const EndFields& EndOf(const RunwayFields& fields, int end) { return fields.ends[static_cast<size_t>(end)]; }

VasiFields& UnitOf(RunwayFields* fields, int unit) {
    EndFields& end = fields->ends[static_cast<size_t>(unit / 2)];
    return unit % 2 ? end.right : end.left;
}

struct LengthLabel {
    int control;
    const char* before;
    const char* after = ")";
};
constexpr LengthLabel kDataLabels[] = {
    { IDC_RUNWAY_LENGTH_LABEL, "Length (" },
    { IDC_RUNWAY_WIDTH_LABEL, "Width (" },
    { IDC_PATTERN_ALTITUDE_LABEL, "Pattern Alt (" },
    { IDC_RUNWAY_ELEVATION_LABEL, "Elevation (", " ASL)" },
};
constexpr LengthLabel kEndLabels[] = {
    { IDC_OVERRUN_LABEL, "Overrun Area (" },
    { IDC_DISPLACED_LABEL, "Displaced Thres (" },
};
constexpr LengthLabel kVasiLabels[] = {
    { IDC_VASI_DISTANCE_LABEL, "Distance (" },
    { IDC_VASI_OFFSET_LABEL, "Offset (" },
    { IDC_VASI_SPACING_LABEL, "Spacing (" },
};

void SetLabels(HWND page, std::span<const LengthLabel> labels, int shift) {
    for (const LengthLabel& label : labels)
        LabelUnit(page, label.control + shift, label.before, Unit::Length, label.after);
}

void LoadDataPage(HWND page, const RunwayFields& fields) {
    SetLabels(page, kDataLabels, 0);
    platform::FillChoices(page, IDC_RUNWAY_SURFACE, SurfaceChoices());
    ShowPosition(page, IDC_RUNWAY_LATITUDE, IDC_RUNWAY_LONGITUDE, fields.position);
    platform::SetFieldText(page, IDC_RUNWAY_VARIATION, VariationText());
    ShowFields(page, kDataTable, fields);
    for (int end = 0; end < 2; ++end) {
        SetLabels(page, kEndLabels, EndShift(end));
        platform::FillChoices(page, IDC_END_NUMBER + EndShift(end), RunwayNumberChoices());
        platform::FillChoices(page, IDC_END_SUFFIX + EndShift(end), kSuffixChoices);
        ShowFields(page, kEndTable, EndOf(fields, end), EndShift(end));
    }
}

void LoadLightsPage(HWND page, const RunwayFields& fields) {
    for (const int control : { IDC_CENTRELINE_LIGHTS, IDC_EDGE_LIGHTS }) {
        platform::FillChoices(page, control, kLightLevels);
    }
    ShowFields(page, kLightsTable, fields);
    for (int end = 0; end < 2; ++end) {
        platform::FillChoices(page, IDC_APPROACH_SYSTEM + EndShift(end), model::ApproachLightsNames());
        ShowFields(page, kEndLightsTable, EndOf(fields, end), EndShift(end));
    }
}

void LoadVasiPage(HWND page, const RunwayFields& fields) {
    RunwayFields copy = fields;
    for (int unit = 0; unit < kVasiUnits; ++unit) {
        SetLabels(page, kVasiLabels, unit * IDC_NEXT_VASI);
        platform::FillChoices(page, IDC_VASI_SYSTEM + unit * IDC_NEXT_VASI, model::SlopeLightsNames());
        ShowVasiUnit(page, unit, UnitOf(&copy, unit));
    }
}

void LoadMarkingsPage(HWND page, const RunwayFields& fields) {
    ShowFields(page, kMarkingsTable, fields);
    for (int end = 0; end < 2; ++end) ShowFields(page, kEndMarksTable, EndOf(fields, end), EndShift(end));
}

struct FieldPlace {
    Field field;
    int control;
    int step = 0;  // from one part to the next
};
constexpr FieldPlace kPlaces[] = {
    { Field::Latitude, IDC_RUNWAY_LATITUDE },
    { Field::Longitude, IDC_RUNWAY_LONGITUDE },
    { Field::Elevation, IDC_RUNWAY_ELEVATION },
    { Field::Length, IDC_RUNWAY_LENGTH },
    { Field::Width, IDC_RUNWAY_WIDTH },
    { Field::PatternAltitude, IDC_PATTERN_ALTITUDE },
    { Field::Heading, IDC_RUNWAY_HEADING },
    { Field::Designator, IDC_END_NUMBER, IDC_SECOND_END },
    { Field::Overrun, IDC_OVERRUN, IDC_SECOND_END },
    { Field::DisplacedThreshold, IDC_DISPLACED, IDC_SECOND_END },
    { Field::Strobes, IDC_STROBES, IDC_SECOND_END },
    { Field::VasiDistance, IDC_VASI_DISTANCE, IDC_NEXT_VASI },
    { Field::VasiOffset, IDC_VASI_OFFSET, IDC_NEXT_VASI },
    { Field::VasiSpacing, IDC_VASI_SPACING, IDC_NEXT_VASI },
    { Field::VasiSlope, IDC_VASI_SLOPE, IDC_NEXT_VASI },
};

}  // namespace

void LoadRunwayPages(const RunwayPages& pages, const RunwayFields& fields) {
    LoadDataPage(pages[RunwayPage::Data], fields);
    LoadLightsPage(pages[RunwayPage::Lights], fields);
    LoadVasiPage(pages[RunwayPage::Vasi], fields);
    LoadMarkingsPage(pages[RunwayPage::Markings], fields);
}

RunwayFields ReadRunwayPages(const RunwayPages& pages) {
    const HWND data = pages[RunwayPage::Data], lights = pages[RunwayPage::Lights];
    RunwayFields fields;
    fields.position = PositionIn(data, IDC_RUNWAY_LATITUDE, IDC_RUNWAY_LONGITUDE);
    ReadFields(data, kDataTable, &fields);
    ReadFields(lights, kLightsTable, &fields);
    ReadFields(pages[RunwayPage::Markings], kMarkingsTable, &fields);
    for (int end = 0; end < 2; ++end) {
        EndFields& to = fields.ends[static_cast<size_t>(end)];
        ReadFields(data, kEndTable, &to, EndShift(end));
        ReadFields(lights, kEndLightsTable, &to, EndShift(end));
        ReadFields(pages[RunwayPage::Markings], kEndMarksTable, &to, EndShift(end));
    }
    for (int unit = 0; unit < kVasiUnits; ++unit) {
        UnitOf(&fields, unit) = ReadVasiUnit(pages[RunwayPage::Vasi], unit);
    }
    return fields;
}

void ShowEndName(const RunwayPages& pages, int end, const std::string& name) {
    const std::string runway = "Runway " + name;
    const int left = IDC_VASI_GROUP + end * 2 * IDC_NEXT_VASI;
    platform::SetFieldText(pages[RunwayPage::Lights], IDC_END_LIGHTS_GROUP + EndShift(end), runway + " End Lights");
    platform::SetFieldText(pages[RunwayPage::Vasi], left, runway + " (Left)");
    platform::SetFieldText(pages[RunwayPage::Vasi], left + IDC_NEXT_VASI, runway + " (Right)");
    platform::SetFieldText(pages[RunwayPage::Markings], IDC_END_MARKS_GROUP + EndShift(end), runway + " End Only");
}

VasiFields ReadVasiUnit(HWND page, int unit) {
    VasiFields fields;
    ReadFields(page, kVasiTable, &fields, unit * IDC_NEXT_VASI);
    return fields;
}

void ShowVasiUnit(HWND page, int unit, const VasiFields& fields) {
    ShowFields(page, kVasiTable, fields, unit * IDC_NEXT_VASI);
    for (const auto& row : kVasiTexts)
        platform::EnableField(page, row.control + unit * IDC_NEXT_VASI, HasVasiUnit(fields));
}

int RunwayControl(const BadField& bad) {
    for (const FieldPlace& row : kPlaces) {
        if (row.field == bad.field) return row.control + row.step * bad.part;
    }
    return 0;
}

}  // namespace dialogs
