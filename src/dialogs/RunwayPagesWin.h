// RunwayPagesWin.h - the controls of the four pages of the runway editor.
#pragma once

#include <windows.h>

#include "dialogs/Field.h"
#include "dialogs/RunwayDialog.h"

namespace dialogs {

// The windows of the pages, by RunwayPage.
struct RunwayPages {
    HWND window[4] = {};
    HWND operator[](RunwayPage page) const { return window[static_cast<int>(page)]; }
};

// Fills the lists of the combo boxes, sets the labels to the unit and shows the fields.
void LoadRunwayPages(const RunwayPages& pages, const RunwayFields& fields);
RunwayFields ReadRunwayPages(const RunwayPages& pages);

// The name of an end has changed: in the titles of what belongs to it.
void ShowEndName(const RunwayPages& pages, int end, const std::string& name);

VasiFields ReadVasiUnit(HWND page, int unit);                      // `unit` as in BadField::part
void ShowVasiUnit(HWND page, int unit, const VasiFields& fields);  // greyed where there is none

// The control of a field that was refused, on the page that PageOf tells.
int RunwayControl(const BadField& bad);

}  // namespace dialogs
