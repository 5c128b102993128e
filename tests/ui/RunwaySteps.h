// RunwaySteps.h - the fixture of the runway editor's tests: new runways, and its pages.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include "EditorSteps.h"
#include "RunwayIds.h"

namespace ui {

constexpr wchar_t kRunwayTitle[] = L"Runway Properties";
constexpr int kData = 0, kLights = 1, kVasi = 2, kMarkings = 3;

class RunwayEditorTest : public EditorTest {
protected:
    HWND Insert() { return Open(IDM_INSERT_RUNWAY, kRunwayTitle); }
    // A new runway on free ground, with a length.
    HWND InsertPlaced() {
        const HWND dialog = Insert();
        ClickMap(ground);
        Enter(dialog, IDC_RUNWAY_LENGTH, L"5000");
        return dialog;
    }
    HWND Reopen() { return OpenByDoubleClick(ground, kRunwayTitle); }
    static void Turn(HWND dialog, int page) {
        SendMessageW(ChildWithId(dialog, IDC_RUNWAY_TABS), TCM_SETCURFOCUS, static_cast<WPARAM>(page), 0);
        Settle(dialog);
    }
    // By what can be seen of it.
    static int PageOf(HWND dialog) {
        const int controls[] = { IDC_RUNWAY_LENGTH, IDC_EDGE_LIGHTS, IDC_VASI_SYSTEM, IDC_CENTRE_LINE };
        int shown = -1, count = 0;
        for (int page = 0; page < 4; ++page) {
            if (!IsWindowVisible(ChildWithId(dialog, controls[page]))) continue;
            shown = page;
            ++count;
        }
        return count == 1 ? shown : -1;
    }
};

}  // namespace ui
