// NavaidWin.h - the controls that the dialogs of navaids share: NavaidIds.h gives them the same ids.
#pragma once

#include <windows.h>

#include "dialogs/EditorWin.h"
#include "dialogs/FieldTablesWin.h"
#include "dialogs/NumberField.h"
#include "dialogs/TextField.h"
#include "model/Records.h"
#include "NavaidIds.h"
#include "platform/DialogWin.h"

namespace dialogs {

// What an NDB, a VOR and an ILS have in common, beside the position.
template <class Fields>
inline constexpr TextControl<Fields> kNavaidTexts[] = {
    { &Fields::ident, IDC_NAV_IDENT },         { &Fields::name, IDC_NAV_NAME },
    { &Fields::frequency, IDC_NAV_FREQUENCY }, { &Fields::elevation, IDC_NAV_ELEVATION },
    { &Fields::range, IDC_NAV_RANGE },         { &Fields::variation, IDC_NAV_VARIATION },
};
template <class Fields>
inline constexpr FieldTable<Fields> kNavaidTable = { kNavaidTexts<Fields>, {}, {} };

template <class Fields>
void ShowNavaid(HWND dialog, const Fields& fields) {
    LabelUnit(dialog, IDC_NAV_ELEVATION_LABEL, "&Elevation (", Unit::Elevation, " ASL)");
    LabelUnit(dialog, IDC_NAV_RANGE_LABEL, "Range (", Unit::Range, ")");
    platform::LimitField(dialog, IDC_NAV_IDENT, kIdentLimit);
    platform::LimitField(dialog, IDC_NAV_NAME, model::kNavaidNameSize);
    ShowPosition(dialog, IDC_NAV_LATITUDE, IDC_NAV_LONGITUDE, fields.position);
    ShowFields(dialog, kNavaidTable<Fields>, fields);
}

template <class Fields>
void ReadNavaid(HWND dialog, Fields* fields) {
    fields->position = PositionIn(dialog, IDC_NAV_LATITUDE, IDC_NAV_LONGITUDE);
    ReadFields(dialog, kNavaidTable<Fields>, fields);
}

// The DME channel beside the frequency.
void ShowChannel(HWND dialog, const char* before);

}  // namespace dialogs
