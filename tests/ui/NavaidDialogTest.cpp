// NavaidDialogTest.cpp - the dialogs of ILSs, marker beacons, NDBs and VORs.
#include <string>
#include <vector>

#include "NavaidSteps.h"
#include "StandInBrowser.h"

namespace ui {

class NavaidDialogTest : public NavaidTest {};

TEST_F(NavaidDialogTest, AnNdbIsInsertedWithAllItsFields) {
    StartOnGround();
    HWND dialog = Open(IDM_INSERT_NDB, kNdb);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_NAV_ELEVATION_LABEL), "&Elevation (ft ASL)");
    EXPECT_EQ(Shown(dialog, IDC_NAV_RANGE_LABEL), "Range (nm)");
    PressButton(dialog, IDOK);
    const Box box = MessageBoxUp();
    EXPECT_EQ(Utf8(box.text).substr(0, 7), "ERROR: ");
    Answer(box, IDOK);
    EXPECT_TRUE(WaitUntil([&] { return FocusOf(agent) == ChildWithId(dialog, IDC_NAV_IDENT); }));
    Enter(dialog, IDC_NAV_IDENT, L"zq");
    ExpectRefusal(dialog, "ERROR: You must enter a frequency, for example 350.0", IDC_NAV_FREQUENCY);
    Enter(dialog, IDC_NAV_FREQUENCY, L"2000");
    ExpectRefusal(dialog, "ERROR: The frequency must be a number from 190 to 1750 kHz", IDC_NAV_FREQUENCY);
    Enter(dialog, IDC_NAV_FREQUENCY, L"362.5");
    ExpectUnplaced(dialog, "the NDB");
    ClickMap(ground);
    const std::string latitude = Shown(dialog, IDC_NAV_LATITUDE);
    EXPECT_EQ(latitude.substr(0, 1), "N");
    Enter(dialog, IDC_NAV_NAME, L"Testfield");
    Enter(dialog, IDC_NAV_ELEVATION, L"321");
    Enter(dialog, IDC_NAV_RANGE, L"15");
    Enter(dialog, IDC_NAV_VARIATION, L"-3.5");
    Choose(dialog, IDC_NAV_TYPE, 1);
    CloseDialog(dialog, IDOK);
    EXPECT_TRUE(CanUndo());
    EXPECT_EQ(RowText(List(), "\tZQ\t"), "\tNDB\tZQ\t362.5\t\tTestfield");

    dialog = Properties("\tZQ\t", kNdb);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_NAV_LATITUDE), latitude);
    EXPECT_EQ(Shown(dialog, IDC_NAV_ELEVATION), "321");
    EXPECT_EQ(Shown(dialog, IDC_NAV_RANGE), "15.0");
    EXPECT_EQ(Shown(dialog, IDC_NAV_VARIATION), "-3.5");
    EXPECT_EQ(Choice(dialog, IDC_NAV_TYPE), 1);
    CloseDialog(dialog, IDOK);
    Command(IDM_UNDO);
    EXPECT_TRUE(WaitUntil([&] { return RowWith(List(), "\tZQ\t") < 0; }));
    EXPECT_FALSE(CanUndo()) << "OK without a change is no action";
}

TEST_F(NavaidDialogTest, CancelTakesANewNavaidAway) {
    StartOnGround();
    ClickMap(ground);  // the status bar tells the pointer's place
    const Picture before = GrabMap(mainWindow);
    for (const auto& [command, title] : { std::pair(IDM_INSERT_NDB, kNdb), std::pair(IDM_INSERT_VOR, kVor) }) {
        const HWND dialog = Open(static_cast<UINT>(command), title);
        ASSERT_NE(dialog, nullptr);
        Enter(dialog, IDC_NAV_IDENT, L"ZQ");
        ClickMap(ground);
        CloseDialog(dialog, IDCANCEL);
        EXPECT_FALSE(CanUndo());
        EXPECT_EQ(GrabMap(mainWindow).pixels, before.pixels);
    }
}

TEST_F(NavaidDialogTest, TheControlsOfAVorFollowItsParts) {
    StartOnGround();
    HWND dialog = Open(IDM_INSERT_VOR, kVor);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Choice(dialog, IDC_VOR_PARTS), 1);
    EXPECT_TRUE(IsOn(dialog, IDC_VOR_DME_RANGE));
    EXPECT_TRUE(IsOn(dialog, IDC_NAV_TYPE));
    Choose(dialog, IDC_VOR_PARTS, 0);
    EXPECT_FALSE(IsOn(dialog, IDC_VOR_DME_RANGE));
    Choose(dialog, IDC_VOR_PARTS, 2);
    EXPECT_TRUE(IsOn(dialog, IDC_VOR_DME_RANGE));
    EXPECT_FALSE(IsOn(dialog, IDC_NAV_TYPE)) << "a lone DME has no class";
    Enter(dialog, IDC_NAV_FREQUENCY, L"113.5");
    EXPECT_EQ(Shown(dialog, IDC_NAV_CHANNEL), "DME channel 82X");
    Enter(dialog, IDC_NAV_FREQUENCY, L"abc");
    EXPECT_EQ(Shown(dialog, IDC_NAV_CHANNEL), "");

    Choose(dialog, IDC_VOR_PARTS, 1);
    Enter(dialog, IDC_NAV_IDENT, L"ZQV");
    Enter(dialog, IDC_NAV_NAME, L"Test VOR");
    Enter(dialog, IDC_NAV_FREQUENCY, L"110.3");
    ExpectRefusal(dialog, "ERROR: The tenth of a VOR frequency below 112 MHz must be even, for example 110.2",
                  IDC_NAV_FREQUENCY);
    Enter(dialog, IDC_NAV_FREQUENCY, L"113.55");
    ExpectUnplaced(dialog, "the VOR");
    ClickMap(ground);
    Choose(dialog, IDC_NAV_TYPE, 2);
    Enter(dialog, IDC_NAV_RANGE, L"130");
    Enter(dialog, IDC_VOR_DME_RANGE, L"60");
    CloseDialog(dialog, IDOK);
    EXPECT_EQ(RowText(List(), "\tZQV\t"), "\tVOR+DME\tZQV\t113.55\t\tTest VOR");
    dialog = Properties("\tZQV\t", kVor);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_NAV_RANGE), "130.0");
    EXPECT_EQ(Shown(dialog, IDC_VOR_DME_RANGE), "60.0");
    EXPECT_EQ(Choice(dialog, IDC_NAV_TYPE), 2);
    Choose(dialog, IDC_VOR_PARTS, 2);
    CloseDialog(dialog, IDOK);
    EXPECT_TRUE(WaitUntil([&] { return RowText(List(), "\tZQV\t") == "\tDME\tZQV\t113.55\t\tTest VOR"; }));
}

TEST_F(NavaidDialogTest, AnIlsIsMadeForEachRunwayEndThatHasNone) {
    StartWithSample("hub");
    HWND dialog = Open(IDM_INSERT_ILS, kNewIls);
    ASSERT_NE(dialog, nullptr);
    const HWND combo = ChildWithId(dialog, IDC_NAV_RUNWAY);
    const auto offered = static_cast<int>(SendMessageW(combo, CB_GETCOUNT, 0, 0));
    ASSERT_EQ(offered, 2) << "16R and 34L";
    EXPECT_EQ(Utf8(ComboText(combo, 0)), "16R");
    EXPECT_EQ(Utf8(ComboText(combo, 1)), "34L");
    CloseDialog(dialog, IDCANCEL);
    EXPECT_FALSE(CanUndo());
    const HWND list = List();
    const int before = Count(list);

    for (const char* end : { "34L", "16R" }) {
        dialog = Open(IDM_INSERT_ILS, kNewIls);
        ASSERT_NE(dialog, nullptr);
        Choose(dialog, IDC_NAV_RUNWAY,
               static_cast<int>(SendMessageW(ChildWithId(dialog, IDC_NAV_RUNWAY), CB_GETCOUNT, 0, 0)) - 1);
        CloseDialog(dialog, IDOK);
        EXPECT_TRUE(WaitUntil([&] { return RowWith(list, std::string("\tILS/DME ") + end) >= 0; })) << end;
        EXPECT_EQ(RowText(list, std::string("\tILS/DME ") + end).substr(0, 20),
                  std::string(end) + "\tLOC+GP+DME\tIABC\t");
    }
    PostCommand(mainWindow, IDM_INSERT_ILS);
    const Box box = MessageBoxUp();
    EXPECT_EQ(Utf8(box.text), "Every runway already has an ILS, you cannot create any more");
    Answer(box, IDOK);
    Command(IDM_UNDO);
    Command(IDM_UNDO);
    EXPECT_TRUE(WaitUntil([&] { return Count(list) == before; }));
    EXPECT_FALSE(CanUndo());
}

TEST_F(NavaidDialogTest, EveryPartOfAnIlsCanBeChanged) {
    StartOnGround();
    HWND dialog = Properties("\tISNQ\t", kIls);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_NAV_HEADING), "180.0");
    Enter(dialog, IDC_NAV_VARIATION, L"17");
    EXPECT_EQ(Shown(dialog, IDC_ILS_COURSE), "163.0");
    Enter(dialog, IDC_NAV_HEADING, L"400");
    ExpectRefusal(dialog, "ERROR: The heading must be a number from 0 to 360 degrees", IDC_NAV_HEADING);
    Enter(dialog, IDC_NAV_HEADING, L"179.5");
    Enter(dialog, IDC_NAV_FREQUENCY, L"110.35");
    EXPECT_EQ(Shown(dialog, IDC_NAV_CHANNEL), "40Y");
    Enter(dialog, IDC_NAV_NAME, L"Changed");
    Enter(dialog, IDC_ILS_SLOPE_PITCH, L"25");
    PressButton(dialog, IDOK);
    const Box box = MessageBoxUp();
    EXPECT_EQ(Utf8(box.text), "ERROR: The glide slope angle must be a number from 0.1 to 20 degrees");
    Answer(box, IDOK);
    EXPECT_TRUE(WaitUntil([&] { return FocusOf(agent) == ChildWithId(dialog, IDC_ILS_SLOPE_PITCH); }));
    Enter(dialog, IDC_ILS_SLOPE_PITCH, L"3.25");
    Toggle(dialog, IDC_ILS_DME);
    EXPECT_FALSE(IsOn(dialog, IDC_ILS_DME_LATITUDE));
    EXPECT_FALSE(IsWindowVisible(ChildWithId(dialog, IDC_NAV_CHANNEL)));
    Choose(dialog, IDC_ILS_SUFFIX, 3);
    ExpectRefusal(dialog, "ERROR: Runway 16C already has an ILS", IDC_NAV_RUNWAY);
    Choose(dialog, IDC_ILS_SUFFIX, 1);
    CloseDialog(dialog, IDOK);
    EXPECT_TRUE(WaitUntil([&] { return !RowText(List(), "\tISNQ\t").empty(); }));
    EXPECT_EQ(RowText(List(), "\tISNQ\t"), "16L\tLOC+GP\tISNQ\t110.35\t179.5\tChanged");
    dialog = Properties("\tISNQ\t", kIls);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_NAV_VARIATION), "17.0");
    EXPECT_EQ(Shown(dialog, IDC_ILS_SLOPE_PITCH), "3.25");
    CloseDialog(dialog, IDOK);
    PressButton(List(), IDC_LIST_DELETE);  // the replacement goes, the stock ILS is back
    EXPECT_TRUE(
        WaitUntil([&] { return RowText(List(), "\tISNQ\t").starts_with("16L\tLOC+GP+DME\tISNQ\t111.70\t180.0\t"); }));
}

TEST_F(NavaidDialogTest, AClickPlacesThePartOfTheIlsWhoseFieldsTheUserWasIn) {
    StartOnGround();
    const HWND dialog = Properties("\tISNQ\t", kIls);
    ASSERT_NE(dialog, nullptr);
    const std::string localizer = Shown(dialog, IDC_NAV_LATITUDE), dme = Shown(dialog, IDC_ILS_DME_LATITUDE);
    SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(ChildWithId(dialog, IDC_ILS_SLOPE_RANGE)), TRUE);
    ClickMap(ground);
    const std::string slope = Shown(dialog, IDC_ILS_SLOPE_LATITUDE);
    EXPECT_EQ(Shown(dialog, IDC_NAV_LATITUDE), localizer);
    EXPECT_EQ(Shown(dialog, IDC_ILS_DME_LATITUDE), dme);
    EXPECT_NE(slope, dme) << "they stood together";
    SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(ChildWithId(dialog, IDC_NAV_RANGE)), TRUE);
    ClickMap(ground);
    EXPECT_EQ(Shown(dialog, IDC_NAV_LATITUDE), slope) << "the same place";
    CloseDialog(dialog, IDCANCEL);
    EXPECT_FALSE(CanUndo());
    const HWND again = Properties("\tISNQ\t", kIls);
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(Shown(again, IDC_NAV_LATITUDE), localizer);
    EXPECT_EQ(Shown(again, IDC_ILS_SLOPE_LATITUDE), dme);
    CloseDialog(again, IDCANCEL);
}

TEST_F(NavaidDialogTest, MarkersAreMadeTogetherAndUndoneTogether) {
    StartOnGround();
    const HWND list = List();
    const int before = Count(list);
    HWND dialog = Open(IDM_INSERT_MARKER_BEACON, kNewMarkers);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Utf8(ComboText(ChildWithId(dialog, IDC_NAV_RUNWAY), 0)), "Rwy 16C");
    EXPECT_EQ(Shown(dialog, IDC_MARKERS_OUTER_DISTANCE), "23622");
    for (const int box : { IDC_MARKERS_INNER, IDC_MARKERS_MIDDLE, IDC_MARKERS_OUTER }) Toggle(dialog, box);
    EXPECT_FALSE(IsOn(dialog, IDC_MARKERS_INNER_DISTANCE));
    ExpectRefusal(dialog, "You must select at least one of the marker types\n", IDC_MARKERS_OUTER);
    Toggle(dialog, IDC_MARKERS_INNER);
    Toggle(dialog, IDC_MARKERS_MIDDLE);
    Enter(dialog, IDC_MARKERS_MIDDLE_DISTANCE, L"far");
    PressButton(dialog, IDOK);
    const Box box = MessageBoxUp();
    EXPECT_EQ(Utf8(box.text).substr(0, 20), "ERROR: The distance ");
    Answer(box, IDOK);
    EXPECT_TRUE(WaitUntil([&] { return FocusOf(agent) == ChildWithId(dialog, IDC_MARKERS_MIDDLE_DISTANCE); }));
    Enter(dialog, IDC_MARKERS_MIDDLE_DISTANCE, L"3600");
    CloseDialog(dialog, IDOK);
    EXPECT_TRUE(WaitUntil([&] { return Count(list) == before + 2; }));
    Command(IDM_UNDO);
    EXPECT_TRUE(WaitUntil([&] { return Count(list) == before; }));
    EXPECT_FALSE(CanUndo());
}

TEST_F(NavaidDialogTest, EveryFieldOfAMarkerIsKept) {
    StartOnGround();
    HWND dialog = Open(IDM_INSERT_MARKER_BEACON, kNewMarkers);
    ASSERT_NE(dialog, nullptr);
    Toggle(dialog, IDC_MARKERS_INNER);
    Toggle(dialog, IDC_MARKERS_MIDDLE);
    CloseDialog(dialog, IDOK);
    const HWND list = List();
    const int last = Count(list) - 1;
    PickInListBox(Rows(list), last);
    Settle(list);
    PressButton(list, IDC_LIST_PROPERTIES);
    dialog = Dialog(kMarker);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_NAV_IDENT), "OM");
    EXPECT_EQ(Choice(dialog, IDC_NAV_TYPE), 2);
    Enter(dialog, IDC_NAV_HEADING, L"400");
    ExpectRefusal(dialog, "ERROR: The heading must be a number from 0 to 360 degrees", IDC_NAV_HEADING);
    Enter(dialog, IDC_NAV_IDENT, L"zqm");
    Choose(dialog, IDC_NAV_TYPE, 3);
    Enter(dialog, IDC_NAV_ELEVATION, L"250");
    Enter(dialog, IDC_NAV_HEADING, L"90");
    ClickMap(ground);
    const std::string longitude = Shown(dialog, IDC_NAV_LONGITUDE);
    CloseDialog(dialog, IDOK);
    EXPECT_TRUE(WaitUntil([&] { return RowText(list, "\tZQM\t") == "\tMKR\tZQM\t75.0\t090.0\tBack Course"; }));
    dialog = Properties("\tZQM\t", kMarker);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_NAV_LONGITUDE), longitude);
    EXPECT_EQ(Shown(dialog, IDC_NAV_ELEVATION), "250");
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(NavaidDialogTest, MetricUnitsAreShownAndRead) {
    StartOnGround("hub", kMetricSettings);
    const HWND dialog = Properties("\tISNQ\t", kIls);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_NAV_ELEVATION_LABEL), "&Elevation (m ASL)");
    EXPECT_EQ(Shown(dialog, IDC_NAV_RANGE_LABEL), "Range (km)");
    EXPECT_EQ(Shown(dialog, IDC_ILS_SLOPE_RANGE_LABEL), "Range (km)");
    EXPECT_EQ(Shown(dialog, IDC_ILS_DME_ELEVATION_LABEL), "Elevat&ion (m ASL)");
    EXPECT_EQ(Shown(dialog, IDC_NAV_RANGE), "50.0");
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(NavaidDialogTest, HelpOpensTheNavaidsTopic) {
    const StandInBrowser browser;
    StartWithSample("hub");
    std::string opened;
    for (const auto& [command, title] :
         { std::pair(IDM_INSERT_NDB, kNdb), std::pair(IDM_INSERT_VOR, kVor), std::pair(IDM_INSERT_ILS, kNewIls),
           std::pair(IDM_INSERT_MARKER_BEACON, kNewMarkers) }) {
        const HWND dialog = Open(static_cast<UINT>(command), title);
        ASSERT_NE(dialog, nullptr);
        PressButton(dialog, IDHELP);
        opened += "file:///C:/UiTest/Tarvo/ReadMe.htm#Navaids\n";
        EXPECT_TRUE(browser.WaitForOpened(opened)) << browser.Opened();
        CloseDialog(dialog, IDCANCEL);
    }
}

TEST_F(NavaidDialogTest, HelpOpensTheTopicOfEachPropertiesDialog) {
    const StandInBrowser browser;
    StartWithSample("hub");
    HWND dialog = Open(IDM_INSERT_MARKER_BEACON, kNewMarkers);
    ASSERT_NE(dialog, nullptr);
    CloseDialog(dialog, IDOK);
    std::string opened;
    const auto expectTopic = [&](const char* topic) {
        ASSERT_NE(dialog, nullptr);
        PressButton(dialog, IDHELP);
        opened += std::string("file:///C:/UiTest/Tarvo/ReadMe.htm#") + topic + "\n";
        EXPECT_TRUE(browser.WaitForOpened(opened)) << browser.Opened();
        CloseDialog(dialog, IDCANCEL);
    };
    dialog = Properties("\tISNQ\t", kIls);
    expectTopic("Navaids");
    dialog = Properties("\tMKR\t", kMarker);
    expectTopic("Navaids");
    PressButton(Open(IDM_LIST_COMMS, L"Comm Frequencies List"), IDC_LIST_INSERT);
    dialog = Dialog(L"COMM Frequency Properties");
    expectTopic("CommFrequencies");
}

}  // namespace ui
