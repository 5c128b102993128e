// NavaidWin.h - the controls that the dialogs of navaids share: NavaidIds.h gives them the same ids.
#pragma once

#include <windows.h>

#include "dialogs/EditorWin.h"
#include "dialogs/NumberField.h"
#include "dialogs/TextField.h"
#include "model/Records.h"
#include "NavaidIds.h"
#include "platform/DialogWin.h"

namespace dialogs {

// What an NDB, a VOR and an ILS have in common.
template <class Fields>
void ShowNavaid(HWND dialog, const Fields& fields) {
    LabelUnit(dialog, IDC_NAV_ELEVATION_LABEL, "&Elevation (", Unit::Elevation, " ASL)");
    LabelUnit(dialog, IDC_NAV_RANGE_LABEL, "Range (", Unit::Range, ")");
    platform::LimitField(dialog, IDC_NAV_IDENT, kIdentLimit);
    platform::SetFieldText(dialog, IDC_NAV_IDENT, fields.ident);
    platform::LimitField(dialog, IDC_NAV_NAME, model::kNavaidNameSize);
    platform::SetFieldText(dialog, IDC_NAV_NAME, fields.name);
    platform::SetFieldText(dialog, IDC_NAV_FREQUENCY, fields.frequency);
    ShowPosition(dialog, IDC_NAV_LATITUDE, IDC_NAV_LONGITUDE, fields.position);
    platform::SetFieldText(dialog, IDC_NAV_ELEVATION, fields.elevation);
    platform::SetFieldText(dialog, IDC_NAV_RANGE, fields.range);
    platform::SetFieldText(dialog, IDC_NAV_VARIATION, fields.variation);
}

template <class Fields>
void ReadNavaid(HWND dialog, Fields* fields) {
    fields->ident = platform::FieldText(dialog, IDC_NAV_IDENT);
    fields->name = platform::FieldText(dialog, IDC_NAV_NAME);
    fields->frequency = platform::FieldText(dialog, IDC_NAV_FREQUENCY);
    fields->position = PositionIn(dialog, IDC_NAV_LATITUDE, IDC_NAV_LONGITUDE);
    fields->elevation = platform::FieldText(dialog, IDC_NAV_ELEVATION);
    fields->range = platform::FieldText(dialog, IDC_NAV_RANGE);
    fields->variation = platform::FieldText(dialog, IDC_NAV_VARIATION);
}

// The DME channel beside the frequency.
void ShowChannel(HWND dialog, const char* before);

}  // namespace dialogs
