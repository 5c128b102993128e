// MarkerDialogWin.cpp - the windows "Marker Properties" and "New Marker Beacons".
#include "dialogs/MarkerDialog.h"

#include "dialogs/Editors.h"
#include "dialogs/NavaidWin.h"

namespace dialogs {

namespace {

constexpr FieldControl kControls[] = {
    { Field::Ident, IDC_NAV_IDENT },         { Field::Latitude, IDC_NAV_LATITUDE },
    { Field::Longitude, IDC_NAV_LONGITUDE }, { Field::Elevation, IDC_NAV_ELEVATION },
    { Field::Heading, IDC_NAV_HEADING },
};

constexpr TextControl<MarkerFields> kTexts[] = {
    { &MarkerFields::ident, IDC_NAV_IDENT },
    { &MarkerFields::elevation, IDC_NAV_ELEVATION },
    { &MarkerFields::heading, IDC_NAV_HEADING },
};
constexpr ChoiceControl<MarkerFields> kChoices[] = { { &MarkerFields::type, IDC_NAV_TYPE } };
constexpr FieldTable<MarkerFields> kTable = { kTexts, {}, kChoices };

void Show(HWND dialog, const MarkerFields& fields) {
    LabelUnit(dialog, IDC_NAV_ELEVATION_LABEL, "Elevation (", Unit::Elevation, " ASL)");
    platform::LimitField(dialog, IDC_NAV_IDENT, kIdentLimit);
    platform::FillChoices(dialog, IDC_NAV_TYPE, kMarkerTypes);
    ShowPosition(dialog, IDC_NAV_LATITUDE, IDC_NAV_LONGITUDE, fields.position);
    ShowFields(dialog, kTable, fields);
}

MarkerFields Read(HWND dialog) {
    MarkerFields fields;
    fields.position = PositionIn(dialog, IDC_NAV_LATITUDE, IDC_NAV_LONGITUDE);
    ReadFields(dialog, kTable, &fields);
    return fields;
}

// Of new ones, by type code.
constexpr int kBoxes[] = { IDC_MARKERS_INNER, IDC_MARKERS_MIDDLE, IDC_MARKERS_OUTER };
constexpr int kDistances[] = { IDC_MARKERS_INNER_DISTANCE, IDC_MARKERS_MIDDLE_DISTANCE, IDC_MARKERS_OUTER_DISTANCE };
constexpr FieldControl kNewControls[] = {
    { Field::Runway, IDC_NAV_RUNWAY },     { Field::MarkerKind, kBoxes[2], 2 },   { Field::Distance, kDistances[0], 0 },
    { Field::Distance, kDistances[1], 1 }, { Field::Distance, kDistances[2], 2 },
};

void ShowNew(HWND dialog, const NewMarkerFields& fields) {
    LabelUnit(dialog, IDC_MARKERS_DISTANCE_LABEL, "Distance from Threshold (", Unit::Length, ")");
    platform::FillChoices(dialog, IDC_NAV_RUNWAY, MarkerRunwayChoices());
    platform::SetChoice(dialog, IDC_NAV_RUNWAY, fields.runwayEnd);
    for (size_t type = 0; type < fields.wanted.size(); ++type) {
        platform::CheckField(dialog, kBoxes[type], fields.wanted[type]);
        platform::SetFieldText(dialog, kDistances[type], fields.distance[type]);
    }
}

NewMarkerFields ReadNew(HWND dialog) {
    NewMarkerFields fields;
    fields.runwayEnd = platform::ChoiceOf(dialog, IDC_NAV_RUNWAY);
    for (size_t type = 0; type < fields.wanted.size(); ++type) {
        fields.wanted[type] = platform::IsFieldChecked(dialog, kBoxes[type]);
        fields.distance[type] = platform::FieldText(dialog, kDistances[type]);
    }
    return fields;
}

void EnableDistances(HWND dialog) {
    for (size_t type = 0; type < std::size(kBoxes); ++type) {
        platform::EnableField(dialog, kDistances[type], platform::IsFieldChecked(dialog, kBoxes[type]));
    }
}

constexpr ObjectEditor<MarkerFields> kEditor = {
    IDD_MARKER, "#Navaids",        kControls,        LoadMarkerFields,  Show,
    Read,       StoreMarkerFields, IDC_NAV_LATITUDE, IDC_NAV_LONGITUDE,
};

}  // namespace

bool EditMarker(SceneryObject* marker) { return RunEditor(kEditor, marker); }

bool InsertMarkersDialog() {
    NewMarkerFields shown;
    if (!LoadNewMarkerFields(&shown)) return false;
    Editor editor;
    editor.resource = IDD_NEW_MARKERS;
    editor.topic = "#Navaids";
    editor.controls = kNewControls;
    editor.load = [&](HWND dialog) { ShowNew(dialog, shown); };
    editor.store = [&](HWND dialog, BadField* bad) { return CreateMarkers(shown, ReadNew(dialog), bad); };
    editor.command = [](HWND dialog, int, int code) {
        if (code == BN_CLICKED) EnableDistances(dialog);
    };
    return RunEditor(editor);
}

}  // namespace dialogs
