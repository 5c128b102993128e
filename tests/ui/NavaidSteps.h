// NavaidSteps.h - the fixture for navaids: their dialogs, opened from the list of navaids.
#pragma once

#include <string>

#include "EditorSteps.h"
#include "ListIds.h"
#include "NavaidIds.h"

namespace ui {

constexpr wchar_t kNdb[] = L"NDB Properties", kVor[] = L"VOR/DME Properties", kIls[] = L"ILS Properties",
                  kNewIls[] = L"New ILS", kMarker[] = L"Marker Properties", kNewMarkers[] = L"New Marker Beacons";

class NavaidTest : public EditorTest {
protected:
    static HWND Rows(HWND list) { return ChildWithId(list, IDC_LIST_ROWS); }
    static int Count(HWND list) { return static_cast<int>(SendMessageW(Rows(list), LB_GETCOUNT, 0, 0)); }
    static int RowWith(HWND list, const std::string& text) {
        for (int row = 0; row < Count(list); ++row) {
            if (Utf8(ListBoxText(Rows(list), row)).find(text) != std::string::npos) return row;
        }
        return -1;
    }
    static std::string RowText(HWND list, const std::string& text) {
        const int row = RowWith(list, text);
        return row < 0 ? "" : Utf8(ListBoxText(Rows(list), row));
    }
    HWND List() {
        if (const HWND open = FindVisible(program.id, nullptr, L"NAVAID List")) return open;
        return Open(IDM_LIST_NAVAIDS, L"NAVAID List");
    }
    HWND Properties(const std::string& row, const wchar_t* title) {
        const HWND list = List();
        PickInListBox(Rows(list), RowWith(list, row));
        Settle(list);
        PressButton(list, IDC_LIST_PROPERTIES);
        return Dialog(title);
    }
    static bool IsOn(HWND dialog, int id) { return IsWindowEnabled(ChildWithId(dialog, id)) != FALSE; }
    void ExpectUnplaced(HWND dialog, const std::string& what) {
        ExpectRefusal(dialog,
                      "ERROR: You must enter a latitude and longitude for " + what +
                          ".\nYou may click on the main window to set the latitude and longitude",
                      IDC_NAV_LATITUDE);
    }
};

}  // namespace ui
