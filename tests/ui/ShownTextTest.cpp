// ShownTextTest.cpp - whether what the dialogs show of an airport fits their controls: values, read-outs, names made from
// the airport, entries of boxes and lists. The texts of the templates alone are measured in DialogTextTest.cpp.
#include <algorithm>
#include <string>
#include <vector>

#include "AircraftEditorIds.h"
#include "AirportIds.h"
#include "DialogTemplates.h"
#include "FaultFinderIds.h"
#include "GroundSteps.h"
#include "ListIds.h"
#include "NavaidIds.h"
#include "PlacesIds.h"
#include "TestPrinter.h"

namespace ui {

// Metres, and the longest of the formats of a position.
constexpr char kMetricSeconds[] =
    "[General]\r\nNextUpdateNotice=9999\r\nMetric=1\r\nMetricParkingRadius=1\r\nLatLongFormat=3\r\n";

constexpr wchar_t kPrintFolder[] = L"C:\\UiTest\\Print";

// A dialog over a row of a list.
struct RowDialog {
    UINT list;
    const wchar_t *listTitle, *row;  // what the row holds
    const wchar_t* title;
};

constexpr RowDialog kRowDialogs[] = {
    { IDM_LIST_NAVAIDS, L"NAVAID List", L"\tLOC", L"ILS Properties" },
    { IDM_LIST_NAVAIDS, L"NAVAID List", L"\tMKR\t", L"Marker Properties" },
    { IDM_LIST_NAVAIDS, L"NAVAID List", L"\tNDB\t", L"NDB Properties" },
    { IDM_LIST_NAVAIDS, L"NAVAID List", L"\tVOR", L"VOR/DME Properties" },
    { IDM_LIST_RUNWAYS, L"Runway List", L"16", L"Runway Properties" },
    { IDM_LIST_STARTS, L"Start Locations List", L"Rwy", L"Start Location Properties" },
    { IDM_LIST_COMMS, L"Comm Frequencies List", L"\t", L"COMM Frequency Properties" },
};

constexpr struct {
    UINT command;
    const wchar_t* title;
} kCommandDialogs[] = {
    { IDM_AIRPORT_PROPERTIES, L"Airport Properties" },
    { IDM_INSERT_RUNWAY, L"Runway Properties" },
    { IDM_INSERT_HELIPAD, L"Helipad Properties" },
    { IDM_INSERT_START, L"Start Location Properties" },
    { IDM_INSERT_ILS, L"New ILS" },
    { IDM_INSERT_MARKER_BEACON, L"New Marker Beacons" },
    { IDM_INSERT_NDB, L"NDB Properties" },
    { IDM_INSERT_VOR, L"VOR/DME Properties" },
    { IDM_LIST_PARKING, L"Parking List" },
    { IDM_LIST_DESIGNATORS, L"Taxiway Designator List" },
    { IDM_LIST_RUNWAYS, L"Runway List" },
    { IDM_LIST_STARTS, L"Start Locations List" },
    { IDM_LIST_COMMS, L"Comm Frequencies List" },
    { IDM_LIST_NAVAIDS, L"NAVAID List" },
    { IDM_FAULT_FINDER, L"Fault Finder" },
    { IDM_AIRCRAFT_EDITOR, L"Aircraft Editor" },
    { IDM_OPTIONS, L"Options" },
    { IDM_OPEN, L"Open Airport" },
    { IDM_PAGE_SETUP, L"Page Setup" },
};

class ShownTextTest : public GroundTest {
protected:
    // The dialogs' font at 96 dots per inch, as the program under test has it, and at others.
    struct Fonts {
        DialogTemplate shape;
        DialogFont at96, at144, at192;
        static DialogTemplate Shape() {
            DialogTemplate shape;
            shape.font = L"MS Shell Dlg";
            shape.points = 8;
            return shape;
        }
        Fonts() : shape(Shape()), at96(shape, 96), at144(shape, 144), at192(shape, 192) {}
    };

    static DWORD StyleOf(HWND control) { return static_cast<DWORD>(GetWindowLongW(control, GWL_STYLE)); }
    static bool Is(HWND control, const wchar_t* kind) { return lstrcmpiW(ClassOf(control).c_str(), kind) == 0; }
    static SIZE ClientSize(HWND control) {
        RECT client{};
        GetClientRect(control, &client);
        return { client.right, client.bottom };
    }
    std::string NameOf(HWND control) const {
        return Utf8(TextOf(GetAncestor(control, GA_ROOT))) + ", control " +
               std::to_string(static_cast<short>(GetDlgCtrlID(control)));
    }

    // `room` is what the control leaves for its text, in pixels at 96 dots per inch.
    void ExpectFits(HWND control, const std::wstring& text, SIZE room, bool wraps) {
        if (text.empty()) return;
        ++measured;
        for (const DialogFont* font : { &fonts.at96, &fonts.at144, &fonts.at192 }) {
            const int width = MulDiv(room.cx, font->base.cx, fonts.at96.base.cx);
            const int height = MulDiv(room.cy, font->base.cy, fonts.at96.base.cy);
            const SIZE needed = font->Room(text, wraps ? width : 10000);
            EXPECT_LE(needed.cx, width) << NameOf(control) << " \"" << Utf8(text) << "\" at " << font->dpi;
            EXPECT_LE(needed.cy, height) << NameOf(control) << " \"" << Utf8(text) << "\" at " << font->dpi;
        }
    }
    static std::wstring Doubled(std::wstring text) {  // what shows ampersands as they are
        for (size_t at = 0; (at = text.find(L'&', at)) != std::wstring::npos; at += 2) text.insert(at, 1, L'&');
        return text;
    }

    void MeasureStatic(HWND control) {
        const DWORD kind = StyleOf(control) & SS_TYPEMASK;
        if (kind > SS_RIGHT && kind != SS_LEFTNOWORDWRAP) return;  // pictures, or drawn by the program
        if (StyleOf(control) & SS_ELLIPSISMASK) return;
        ExpectFits(control, TextOf(control), ClientSize(control), kind != SS_LEFTNOWORDWRAP);
    }
    void MeasureButton(HWND control) {
        SIZE room = ClientSize(control);
        switch (StyleOf(control) & BS_TYPEMASK) {
        case BS_AUTOCHECKBOX:
        case BS_AUTORADIOBUTTON: room.cx -= 13 + 4; break;
        case BS_GROUPBOX: room.cx -= 2 * 9; break;
        default: room.cx -= 2 * 4; break;
        }
        ExpectFits(control, TextOf(control), room, false);
    }
    void MeasureEdit(HWND control) {
        if (StyleOf(control) & ES_MULTILINE) return;  // it scrolls
        RECT inner{};
        SendMessageW(control, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&inner));
        ASSERT_GT(inner.right, inner.left) << NameOf(control);
        ExpectFits(control, Doubled(TextOf(control)), { inner.right - inner.left, 1000 }, false);
    }
    void MeasureCombo(HWND control) {
        const int room = ClientSize(control).cx - GetSystemMetrics(SM_CXVSCROLL) - 2 * 4;  // its button and edges
        const auto count = static_cast<int>(SendMessageW(control, CB_GETCOUNT, 0, 0));
        for (int i = 0; i < count; ++i) ExpectFits(control, Doubled(ComboText(control, i)), { room, 1000 }, false);
    }
    void MeasureListView(HWND control) {
        constexpr int kMargins = 2 * 6;
        const auto header = reinterpret_cast<HWND>(SendMessageW(control, LVM_GETHEADER, 0, 0));
        const auto columns = static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
        ASSERT_GT(columns, 0) << NameOf(control);
        const int rows = ListRows(control), step = 1 + rows / 30;  // reading a cell of another process takes its time
        for (int column = 0; column < columns; ++column) {
            const auto width =
                static_cast<int>(SendMessageW(control, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column), 0));
            const SIZE room = { width - kMargins, 1000 };
            ExpectFits(control, Doubled(ListColumnTitle(control, column)), room, false);
            for (int row = 0; row < rows; row += step) {
                ExpectFits(control, Doubled(ListText(control, row, column)), room, false);
            }
        }
    }
    // Pages that are turned away are measured too: only controls that are hidden themselves are not.
    void Measure(HWND dialog) {
        ASSERT_NE(dialog, nullptr);
        Settle(dialog);
        const auto font = SendMessageW(dialog, WM_GETFONT, 0, 0);
        for (const HWND control : Children(dialog)) {
            if (!(StyleOf(control) & WS_VISIBLE) || Is(GetParent(control), WC_COMBOBOXW)) continue;
            const bool isText =
                Is(control, L"Static") || Is(control, L"Button") || Is(control, L"Edit") || Is(control, WC_COMBOBOXW);
            if (isText && GetParent(control) == dialog) {
                EXPECT_EQ(SendMessageW(control, WM_GETFONT, 0, 0), font) << NameOf(control) << " has another font";
            }
            if (Is(control, L"Static")) MeasureStatic(control);
            if (Is(control, L"Button")) MeasureButton(control);
            if (Is(control, L"Edit")) MeasureEdit(control);
            if (Is(control, WC_COMBOBOXW)) MeasureCombo(control);
            if (Is(control, WC_LISTVIEWW)) MeasureListView(control);
        }
        ++dialogs;
    }
    void MeasureAndCancel(HWND dialog) {
        ASSERT_NO_FATAL_FAILURE(Measure(dialog));
        CloseDialog(dialog, IDCANCEL);
    }

    void MeasureRows(const RowDialog& kind) {
        const HWND list = Open(kind.list, kind.listTitle);
        ASSERT_NE(list, nullptr);
        const HWND rows = ChildWithId(list, IDC_LIST_ROWS);
        const auto count = static_cast<int>(SendMessageW(rows, LB_GETCOUNT, 0, 0));
        int opened = 0;
        for (int row = 0; row < count; ++row) {
            if (ListBoxText(rows, row).find(kind.row) == std::wstring::npos) continue;
            PickInListBox(rows, row);
            Settle(list);
            PressButton(list, IDC_LIST_PROPERTIES);
            ASSERT_NO_FATAL_FAILURE(MeasureAndCancel(Dialog(kind.title)));
            ++opened;
        }
        EXPECT_GT(opened, 0) << Utf8(kind.title);
        CloseDialog(list, IDCANCEL);
    }
    void MeasureSpots() {
        constexpr int kSpots = 5;
        const HWND list = Open(IDM_LIST_PARKING, L"Parking List");
        ASSERT_NE(list, nullptr);
        const HWND rows = ChildWithId(list, IDC_LIST_ROWS);
        const int count = ListRows(rows);
        ASSERT_GT(count, kSpots);
        for (int i = 0; i < kSpots; ++i) {
            SelectListRow(rows, i * (count - 1) / (kSpots - 1));
            Settle(list);
            PressButton(list, IDC_LIST_PROPERTIES);
            ASSERT_NO_FATAL_FAILURE(MeasureAndCancel(Dialog(kSpot)));
        }
        CloseDialog(list, IDCANCEL);
    }
    void MeasureGround() {
        Use(IDT_HOLD_SHORT_NODE, Beside(0, 2 * kApart));
        ASSERT_NO_FATAL_FAILURE(MeasureAndCancel(OpenByDoubleClick(Beside(0, 2 * kApart), kNode)));
        ASSERT_NO_FATAL_FAILURE(MeasureAndCancel(OpenByDoubleClick(MakeLink(), kLink)));
        ASSERT_NO_FATAL_FAILURE(MeasureAndCancel(OpenByDoubleClick(MakeStrip(kApart / 2), kEdgeLights)));
        Undoes();
        ASSERT_NO_FATAL_FAILURE(MeasureAndCancel(OpenByDoubleClick(MakeApron(), kApron)));
        Undoes();
    }
    void MeasureAll(const char* settings) {
        CreateDirectoryW(kPrintFolder, nullptr);
        const TestPrinter printer(kPrintFolder);
        ASSERT_TRUE(printer.IsThere()) << "no printer can be declared";
        StartOnGround("hub", settings);
        for (const auto& row : kCommandDialogs) {
            SCOPED_TRACE(Utf8(row.title));
            ASSERT_NO_FATAL_FAILURE(MeasureAndCancel(Open(row.command, row.title)));
        }
        for (const RowDialog& row : kRowDialogs) {
            SCOPED_TRACE(Utf8(row.title));
            ASSERT_NO_FATAL_FAILURE(MeasureRows(row));
        }
        ASSERT_NO_FATAL_FAILURE(MeasureSpots());
        ASSERT_NO_FATAL_FAILURE(MeasureGround());
        EXPECT_GT(dialogs, 40);
        EXPECT_GT(measured, 3000);
    }

    Fonts fonts;
    int measured = 0, dialogs = 0;
};

// Only an airport whose tower stands nowhere has a command for its dialog.
TEST_F(ShownTextTest, WhatTheTowerOfANewAirportShowsFits) {
    Start(L"", kMetricSeconds);
    const HWND dialog = Open(IDM_NEW, L"Airport Properties");
    ASSERT_NE(dialog, nullptr);
    Enter(dialog, IDC_AIRPORT_LATITUDE, L"N47 30");
    Enter(dialog, IDC_AIRPORT_LONGITUDE, L"W122 30");
    Enter(dialog, IDC_AIRPORT_IDENT, L"XTST");
    for (const int id : { IDC_COUNTRY, IDC_CITY, IDC_AIRPORT_NAME }) Enter(dialog, id, L"Nowhere");
    ASSERT_NO_FATAL_FAILURE(Measure(dialog));
    CloseDialog(dialog, IDOK);
    ASSERT_NO_FATAL_FAILURE(MeasureAndCancel(Open(IDM_INSERT_TOWER, L"Tower Viewpoint Properties")));
}

TEST_F(ShownTextTest, WhatTheHubShowsInFeetFits) { MeasureAll(kQuietSettings); }

TEST_F(ShownTextTest, WhatTheHubShowsInMetresFits) { MeasureAll(kMetricSeconds); }

}  // namespace ui
