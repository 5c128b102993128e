// OptionsWin.cpp - the Options dialog.
#include <windows.h>

#include "app/AppHost.h"
#include "app/HelpPage.h"
#include "app/Options.h"
#include "OptionsIds.h"
#include "platform/DialogWin.h"

namespace app {

namespace {

constexpr char kTopic[] = "#Options";

void ShowFields(HWND dialog) {
    const OptionsFields fields = LoadOptions();
    platform::CheckField(dialog, IDC_METRIC, fields.metric);
    platform::CheckField(dialog, IDC_METRIC_RADIUS, fields.metricParkingRadius);
    platform::FillChoices(dialog, IDC_LAT_LONG_FORMAT, LatLongFormatTexts());
    platform::SetChoice(dialog, IDC_LAT_LONG_FORMAT, fields.latLongFormat);
    platform::FillChoices(dialog, IDC_GRID_DIVISIONS, GridDivisionTexts());
    platform::SetChoice(dialog, IDC_GRID_DIVISIONS, fields.gridDivisions);
    CheckRadioButton(dialog, IDC_GRID_MINUTES, IDC_GRID_SECONDS,
                     fields.gridDecimal ? IDC_GRID_MINUTES : IDC_GRID_SECONDS);
}

OptionsFields ReadFields(HWND dialog) {
    OptionsFields fields;
    fields.metric = platform::IsFieldChecked(dialog, IDC_METRIC);
    fields.metricParkingRadius = platform::IsFieldChecked(dialog, IDC_METRIC_RADIUS);
    fields.latLongFormat = platform::ChoiceOf(dialog, IDC_LAT_LONG_FORMAT);
    fields.gridDivisions = platform::ChoiceOf(dialog, IDC_GRID_DIVISIONS);
    fields.gridDecimal = platform::IsFieldChecked(dialog, IDC_GRID_MINUTES);
    return fields;
}

bool OnButton(HWND dialog, int button) {
    switch (button) {
    case IDOK: StoreOptions(ReadFields(dialog)); [[fallthrough]];
    case IDCANCEL: EndDialog(dialog, button); return true;
    case IDHELP: OpenHelp(kTopic); return true;
    default: return false;
    }
}

INT_PTR CALLBACK OptionsProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG:
        platform::StartDialog(dialog, lParam);
        ShowFields(dialog);
        return TRUE;
    case WM_COMMAND: return OnButton(dialog, LOWORD(wParam));
    default: return FALSE;
    }
}

}  // namespace

void ShowOptionsDialog() { platform::RunDialog(IDD_OPTIONS, OptionsProc, nullptr); }

}  // namespace app
