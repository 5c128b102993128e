// PlacesDialogTest.cpp - the dialogs of helipads, the tower viewpoint and start locations.
#include "AirportIds.h"
#include "EditorSteps.h"
#include "PlacesIds.h"
#include "StandInBrowser.h"

namespace ui {

class PlacesDialogTest : public EditorTest {
protected:
    void ExpectUnplaced(HWND dialog, const std::string& what) {
        EXPECT_EQ(Shown(dialog, IDC_PLACE_LATITUDE), "");
        ExpectRefusal(dialog,
                      "ERROR: You must enter a latitude and longitude for " + what +
                          ".\nYou may click on the main window to set the latitude and longitude",
                      IDC_PLACE_LATITUDE);
    }
    // Its tower stands nowhere yet.
    void StartOnNewAirport() {
        Start();
        const HWND dialog = Open(IDM_NEW, L"Airport Properties");
        ASSERT_NE(dialog, nullptr);
        Enter(dialog, IDC_AIRPORT_LATITUDE, L"N47 30");
        Enter(dialog, IDC_AIRPORT_LONGITUDE, L"W122 30");
        Enter(dialog, IDC_AIRPORT_ELEVATION, L"400");
        Enter(dialog, IDC_AIRPORT_IDENT, L"XTST");
        for (const int id : { IDC_COUNTRY, IDC_CITY, IDC_AIRPORT_NAME }) Enter(dialog, id, L"Nowhere");
        CloseDialog(dialog, IDOK);
        const RECT area = MapArea(mainWindow);
        ground = { area.left + 100, area.top + 100 };
    }
};

constexpr wchar_t kHelipad[] = L"Helipad Properties", kStart[] = L"Start Location Properties",
                  kTower[] = L"Tower Viewpoint Properties";

TEST_F(PlacesDialogTest, EveryFieldOfAHelipadIsKept) {
    StartOnGround();
    HWND dialog = Open(IDM_INSERT_HELIPAD, kHelipad);
    ASSERT_NE(dialog, nullptr);
    ExpectUnplaced(dialog, "the helipad");
    ClickMap(ground);
    EXPECT_EQ(Shown(dialog, IDC_HELIPAD_LENGTH_LABEL), "Length (ft)");
    EXPECT_EQ(Shown(dialog, IDC_HELIPAD_LENGTH), "50");
    Enter(dialog, IDC_HELIPAD_LENGTH, L"none");
    PressButton(dialog, IDOK);
    Box box = MessageBoxUp();
    EXPECT_EQ(Utf8(box.text).substr(0, 26), "ERROR: The helipad length ");
    Answer(box, IDOK);
    Enter(dialog, IDC_HELIPAD_LENGTH, L"300");
    Enter(dialog, IDC_HELIPAD_WIDTH, L"280");
    Enter(dialog, IDC_PLACE_ELEVATION, L"77");
    Enter(dialog, IDC_PLACE_HEADING, L"45.0");
    Choose(dialog, IDC_HELIPAD_SURFACE, 4);
    Choose(dialog, IDC_HELIPAD_TYPE, 3);
    Toggle(dialog, IDC_HELIPAD_TRANSPARENT);
    Toggle(dialog, IDC_HELIPAD_CLOSED);
    const std::string longitude = Shown(dialog, IDC_PLACE_LONGITUDE);
    CloseDialog(dialog, IDOK);
    dialog = OpenByDoubleClick(ground, kHelipad);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_HELIPAD_LENGTH), "300");
    EXPECT_EQ(Shown(dialog, IDC_HELIPAD_WIDTH), "280");
    EXPECT_EQ(Shown(dialog, IDC_PLACE_ELEVATION), "77");
    EXPECT_EQ(Shown(dialog, IDC_PLACE_HEADING), "45.0");
    EXPECT_EQ(Shown(dialog, IDC_PLACE_LONGITUDE), longitude);
    EXPECT_EQ(Choice(dialog, IDC_HELIPAD_SURFACE), 4);
    EXPECT_EQ(Choice(dialog, IDC_HELIPAD_TYPE), 3);
    EXPECT_TRUE(IsSet(dialog, IDC_HELIPAD_TRANSPARENT));
    EXPECT_TRUE(IsSet(dialog, IDC_HELIPAD_CLOSED));
    CloseDialog(dialog, IDOK);
    Command(IDM_UNDO);
    EXPECT_FALSE(CanUndo());
}

TEST_F(PlacesDialogTest, CancelTakesANewHelipadAway) {
    StartOnGround();
    const Picture before = GrabMap(mainWindow);
    const HWND dialog = Open(IDM_INSERT_HELIPAD, kHelipad);
    ASSERT_NE(dialog, nullptr);
    ClickMap(ground);
    CloseDialog(dialog, IDCANCEL);
    EXPECT_FALSE(CanUndo());
    EXPECT_EQ(MapPixelsOtherThan(before), 0);
}

TEST_F(PlacesDialogTest, EveryFieldOfAStartLocationIsKept) {
    StartOnGround();
    if (!IsChecked(IDM_STARTS)) Command(IDM_STARTS);
    HWND dialog = Open(IDM_INSERT_START, kStart);
    ASSERT_NE(dialog, nullptr);
    ExpectUnplaced(dialog, "the start location");
    ClickMap(ground);
    EXPECT_EQ(Choice(dialog, IDC_START_TYPE), 0);
    Enter(dialog, IDC_PLACE_HEADING, L"361");
    ExpectRefusal(dialog, "ERROR: The heading must be a number from 0 to 360 degrees", IDC_PLACE_HEADING);
    Enter(dialog, IDC_PLACE_HEADING, L"12.5");
    Enter(dialog, IDC_PLACE_ELEVATION, L"99");
    Choose(dialog, IDC_START_NUMBER, 38);
    Choose(dialog, IDC_START_SUFFIX, 3);
    Choose(dialog, IDC_START_TYPE, 1);
    CloseDialog(dialog, IDOK);
    dialog = OpenByDoubleClick(ground, kStart);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_PLACE_HEADING), "12.5");
    EXPECT_EQ(Shown(dialog, IDC_PLACE_ELEVATION), "99");
    EXPECT_EQ(Choice(dialog, IDC_START_NUMBER), 38);
    EXPECT_EQ(Choice(dialog, IDC_START_SUFFIX), 3);
    EXPECT_EQ(Choice(dialog, IDC_START_TYPE), 1);
    CloseDialog(dialog, IDCANCEL);
    Command(IDM_UNDO);
    EXPECT_FALSE(CanUndo());
}

TEST_F(PlacesDialogTest, AnAirportHasOneTowerViewpoint) {
    StartOnGround();
    PostCommand(mainWindow, IDM_INSERT_TOWER);
    const Box box = MessageBoxUp();
    EXPECT_EQ(Utf8(box.text), "This airport already has a control tower viewpoint,\nyou can't add another.");
    Answer(box, IDOK);
    EXPECT_FALSE(CanUndo());
}

TEST_F(PlacesDialogTest, TheTowerViewpointOfANewAirportIsPlacedOnce) {
    StartOnNewAirport();
    HWND dialog = Open(IDM_INSERT_TOWER, kTower);
    ASSERT_NE(dialog, nullptr);
    ExpectUnplaced(dialog, "the control tower viewpoint");
    EXPECT_EQ(Shown(dialog, IDC_PLACE_ELEVATION), "400") << "that of the airport is offered";
    ClickMap(ground);
    Enter(dialog, IDC_PLACE_ELEVATION, L"140");
    CloseDialog(dialog, IDOK);
    PostCommand(mainWindow, IDM_INSERT_TOWER);
    Box box = MessageBoxUp();
    EXPECT_EQ(Utf8(box.text).substr(0, 24), "This airport already has");
    Answer(box, IDOK);

    dialog = OpenByDoubleClick(ground, kTower);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_PLACE_ELEVATION), "140");
    Enter(dialog, IDC_PLACE_LATITUDE, L"middle");
    PressButton(dialog, IDOK);
    box = MessageBoxUp();
    EXPECT_EQ(Utf8(box.text), "ERROR: The latitude format is bad.\nIt should look something like N51* 31.421'");
    Answer(box, IDOK);
    CloseDialog(dialog, IDCANCEL);
    Command(IDM_UNDO);
    dialog = Open(IDM_INSERT_TOWER, kTower);
    ASSERT_NE(dialog, nullptr) << "after the undo the tower stands nowhere again";
    EXPECT_EQ(Shown(dialog, IDC_PLACE_LATITUDE), "");
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(PlacesDialogTest, TheMapMenuOpensHelipadAndStartLocation) {
    StartOnGround();
    const std::pair<int, const wchar_t*> kinds[] = { { IDM_INSERT_HELIPAD, kHelipad }, { IDM_INSERT_START, kStart } };
    for (const auto& [command, title] : kinds) {
        HWND dialog = Open(command, title);
        ASSERT_NE(dialog, nullptr);
        ClickMap(ground);
        if (command == IDM_INSERT_HELIPAD) Enter(dialog, IDC_HELIPAD_LENGTH, L"900");  // a small one is hard to hit
        CloseDialog(dialog, IDOK);
        dialog = OpenByRightClick(ground, title);
        ASSERT_NE(dialog, nullptr);
        CloseDialog(dialog, IDCANCEL);
        Command(IDM_UNDO);
        EXPECT_FALSE(CanUndo());
    }
}

TEST_F(PlacesDialogTest, TheMapMenuOpensTheTowerViewpoint) {
    StartOnNewAirport();
    HWND dialog = Open(IDM_INSERT_TOWER, kTower);
    ASSERT_NE(dialog, nullptr);
    ClickMap(ground);
    CloseDialog(dialog, IDOK);
    dialog = OpenByRightClick(ground, kTower);
    ASSERT_NE(dialog, nullptr);
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(PlacesDialogTest, InMetresTheLabelsAreMetric) {
    StartOnGround("hub", kMetricSettings);
    HWND dialog = Open(IDM_INSERT_HELIPAD, kHelipad);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_HELIPAD_WIDTH_LABEL), "Width (m)");
    EXPECT_EQ(Shown(dialog, IDC_PLACE_ELEVATION_LABEL), "&Elevation (m ASL)");
    EXPECT_EQ(Shown(dialog, IDC_HELIPAD_WIDTH), "15.2");
    CloseDialog(dialog, IDCANCEL);
    dialog = Open(IDM_INSERT_START, kStart);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_PLACE_ELEVATION_LABEL), "&Elevation (m ASL)");
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(PlacesDialogTest, HelpOpensTheTopicOfEachDialog) {
    const StandInBrowser browser;
    StartOnNewAirport();
    const struct {
        UINT command;
        const wchar_t* title;
        const char* topic;
    } dialogs[] = { { IDM_INSERT_HELIPAD, kHelipad, "Helipads" },
                    { IDM_INSERT_TOWER, kTower, "TowerViewpoint" },
                    { IDM_INSERT_START, kStart, "StartLocations" },
                    { IDM_AIRPORT_PROPERTIES, L"Airport Properties", "AirportProperties" } };
    std::string opened;
    for (const auto& row : dialogs) {
        const HWND dialog = Open(row.command, row.title);
        ASSERT_NE(dialog, nullptr);
        PressButton(dialog, IDHELP);
        opened += std::string("file:///C:/UiTest/Tarvo/ReadMe.htm#") + row.topic + "\n";
        EXPECT_TRUE(browser.WaitForOpened(opened)) << browser.Opened();
        CloseDialog(dialog, IDCANCEL);
    }
}

}  // namespace ui
