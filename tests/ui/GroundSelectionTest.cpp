// GroundSelectionTest.cpp - the dialogs of the ground network on several objects at once, how their fields depend on
// each other, and where the dialogs stand.
#include "GroundSteps.h"
#include "StandInBrowser.h"

namespace ui {

class GroundSelectionTest : public GroundTest {
protected:
    static std::string ChosenText(HWND dialog, int id) {
        return Utf8(ComboText(ChildWithId(dialog, id), Choice(dialog, id)));
    }
    static void ChooseLast(HWND dialog, int id) {
        Choose(dialog, id, static_cast<int>(SendMessageW(ChildWithId(dialog, id), CB_GETCOUNT, 0, 0)) - 1);
    }
    static POINT PlaceOf(HWND dialog) {
        RECT place{};
        GetWindowRect(dialog, &place);
        return { place.left, place.top };
    }
    // Pixels from the right edge of the dialog to that of the main window.
    LONG FromRightEdge(HWND dialog) const {
        RECT main{}, own{};
        GetWindowRect(mainWindow, &main);
        GetWindowRect(dialog, &own);
        return main.right - own.right;
    }
};

TEST_F(GroundSelectionTest, ATypeGoesToEverySelectedNodeAsOneAction) {
    StartOnGround();
    Use(IDT_NORMAL_NODE, Beside(0));
    Use(IDT_NORMAL_NODE, Beside(kApart));
    ClickMap(Beside(0));
    AddToSelection(Beside(kApart));
    HWND dialog = OpenWithShift(Beside(0), kNode);
    ASSERT_NE(dialog, nullptr);
    Choose(dialog, IDC_NODE_TYPE, 2);
    ASSERT_NE(dialog = Reopen(dialog, IDOK, Beside(kApart), kNode), nullptr);
    EXPECT_EQ(ChosenText(dialog, IDC_NODE_TYPE), "ILS hold-short");
    CloseDialog(dialog, IDCANCEL);
    EXPECT_EQ(Undoes(), 3) << "two nodes and one edit";
}

TEST_F(GroundSelectionTest, ALinkThatIsOpenedWithShiftJoinsTheSelection) {
    StartOnGround();
    const POINT first = MakeLink(), second = MakeLink(kApart);
    ClickMap(first);
    HWND dialog = OpenWithShift(second, kLink);
    ASSERT_NE(dialog, nullptr);
    Choose(dialog, IDC_LINK_SURFACE, 8);
    Toggle(dialog, IDC_LEFT_SOLID);
    ASSERT_NE(dialog = Reopen(dialog, IDOK, first, kLink), nullptr);
    EXPECT_EQ(Choice(dialog, IDC_LINK_SURFACE), 8);
    EXPECT_TRUE(IsSet(dialog, IDC_LEFT_SOLID));
    Choose(dialog, IDC_LINK_SURFACE, 4);
    ASSERT_NE(dialog = Reopen(dialog, IDOK, second, kLink), nullptr);
    EXPECT_EQ(Choice(dialog, IDC_LINK_SURFACE), 8) << "without Shift the other link was deselected";
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(GroundSelectionTest, ARunwaysNameMakesARunwayLinkAndATaxiwaysATaxiway) {
    StartOnGround();
    const POINT middle = MakeLink();
    HWND dialog = OpenByDoubleClick(middle, kLink);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(ChosenText(dialog, IDC_LINK_TYPE), "Taxiway");
    const std::string width = Shown(dialog, IDC_LINK_WIDTH);
    ChooseLast(dialog, IDC_LINK_DESIGNATOR);
    ASSERT_NE(dialog = Reopen(dialog, IDOK, middle, kLink), nullptr);
    EXPECT_EQ(ChosenText(dialog, IDC_LINK_TYPE), "Runway");
    EXPECT_EQ(ChosenText(dialog, IDC_LINK_DESIGNATOR).substr(0, 4), "Rwy ");
    EXPECT_NE(Shown(dialog, IDC_LINK_WIDTH), width);
    Choose(dialog, IDC_LINK_DESIGNATOR, 0);
    ASSERT_NE(dialog = Reopen(dialog, IDOK, middle, kLink), nullptr);
    EXPECT_EQ(ChosenText(dialog, IDC_LINK_TYPE), "Taxiway");
    EXPECT_EQ(Choice(dialog, IDC_LINK_DESIGNATOR), 0);
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(GroundSelectionTest, ALinkToASpotIsAParkingConnectorOnly) {
    StartOnGround();
    Use(IDT_NORMAL_NODE, Beside(0));
    Use(IDT_PARKING, Beside(kApart));
    Drag(IDT_NORMAL_LINK, Beside(0), Beside(kApart));
    const HWND dialog = OpenByDoubleClick(Beside(kApart / 2), kLink);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(SendMessageW(ChildWithId(dialog, IDC_LINK_TYPE), CB_GETCOUNT, 0, 0), 1);
    EXPECT_EQ(ChosenText(dialog, IDC_LINK_TYPE), "Parking connector");
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(GroundSelectionTest, SeveralSpotsAreEditedTogetherAndKeepWhatDiffers) {
    StartOnGround();
    Use(IDT_PARKING, Beside(0));
    Use(IDT_PARKING, Beside(kApart));
    ClickMap(Beside(0));
    HWND dialog = OpenWithShift(Beside(kApart), kSpot);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_SPOT_NUMBER), "");
    EXPECT_FALSE(IsWindowEnabled(ChildWithId(dialog, IDC_LATITUDE)));
    Choose(dialog, IDC_SPOT_TYPE, 9);
    EXPECT_EQ(Shown(dialog, IDC_SPOT_RADIUS), "177.17");
    Enter(dialog, IDC_SPOT_CODES, L"klm");
    CloseDialog(dialog, IDOK);
    std::string numbers[2];
    for (int i = 0; i < 2; ++i) {
        dialog = OpenByDoubleClick(Beside(i * kApart), kSpot);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(ChosenText(dialog, IDC_SPOT_TYPE), "Gate Heavy");
        EXPECT_EQ(Shown(dialog, IDC_SPOT_CODES), "KLM");
        numbers[i] = Shown(dialog, IDC_SPOT_NUMBER);
        CloseDialog(dialog, IDCANCEL);
    }
    EXPECT_NE(numbers[0], numbers[1]);
    EXPECT_EQ(Undoes(), 3) << "two spots and one edit";
}

// The list of specs is opened by an arrow key, gone through and accepted: only the airline chosen at last counts.
TEST_F(GroundSelectionTest, TheKeyboardChoosesOneAirlineOfTheSelectionList) {
    StartOnGround();
    Use(IDT_PARKING, ground);
    const HWND dialog = OpenByDoubleClick(ground, kSpot);
    ASSERT_NE(dialog, nullptr);
    const HWND specs = ChildWithId(dialog, IDC_SPOT_SPECS);
    Enter(dialog, IDC_SPOT_CODES, L"");
    ASSERT_TRUE(BringToFront(dialog));
    TapKey('S', { VK_MENU });
    ASSERT_TRUE(WaitUntil([&] { return FocusOf(agent) == specs; }));
    TapKey(VK_DOWN);
    ASSERT_TRUE(WaitUntil([&] { return SendMessageW(specs, CB_GETDROPPEDSTATE, 0, 0) != 0; }));
    for (int i = 0; i < 3; ++i) TapKey(VK_DOWN);
    ASSERT_TRUE(WaitUntil([&] { return Choice(dialog, IDC_SPOT_SPECS) == 2; }));
    EXPECT_EQ(Shown(dialog, IDC_SPOT_CODES), "");
    TapKey(VK_RETURN);
    EXPECT_TRUE(WaitUntil([&] { return Shown(dialog, IDC_SPOT_CODES) == "TRS"; })) << Shown(dialog, IDC_SPOT_CODES);
    ASSERT_TRUE(IsWindow(dialog)) << "Enter was for the list";
    TapKey(VK_UP, { VK_MENU });
    ASSERT_TRUE(WaitUntil([&] { return SendMessageW(specs, CB_GETDROPPEDSTATE, 0, 0) != 0; }));
    TapKey(VK_UP);
    TapKey(VK_ESCAPE);
    EXPECT_TRUE(WaitUntil([&] { return SendMessageW(specs, CB_GETDROPPEDSTATE, 0, 0) == 0; }));
    EXPECT_EQ(Shown(dialog, IDC_SPOT_CODES), "TRS");
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(GroundSelectionTest, TheRadiusHasASettingOfItsOwn) {
    StartOnGround("hub", "[General]\r\nNextUpdateNotice=9999\r\nMetricParkingRadius=1\r\n");
    Use(IDT_PARKING, ground);
    const HWND dialog = OpenByDoubleClick(ground, kSpot);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_SPOT_RADIUS_LABEL), "&Radius (m)");
    Choose(dialog, IDC_SPOT_TYPE, 9);
    EXPECT_EQ(Shown(dialog, IDC_SPOT_RADIUS), "54.00");
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(GroundSelectionTest, HelpOpensTheTopicOfEachDialog) {
    const StandInBrowser browser;
    StartOnGround();
    const POINT apron = MakeApron(), link = MakeLink(2 * kApart), lamps = MakeStrip(3 * kApart);
    Use(IDT_PARKING, Beside(3 * kApart));
    const struct {
        POINT at;
        const wchar_t* title;
        const char* topic;
    } dialogs[] = { { Beside(0, 2 * kApart), kNode, "Nodes" },
                    { link, kLink, "LinkProperties" },
                    { Beside(3 * kApart), kSpot, "ParkingProperties" },
                    { apron, kApron, "ApronProperties" },
                    { lamps, kEdgeLights, "ApronEdgeLightsProperties" } };
    std::string opened;
    for (const auto& row : dialogs) {
        const HWND dialog = OpenByDoubleClick(row.at, row.title);
        ASSERT_NE(dialog, nullptr);
        Press(dialog, IDHELP);
        opened += std::string("file:///C:/UiTest/Tarvo/ReadMe.htm#") + row.topic + "\n";
        EXPECT_TRUE(browser.WaitForOpened(opened)) << browser.Opened();
        CloseDialog(dialog, IDCANCEL);
    }
}

// In the middle it would cover what is to be clicked at.
TEST_F(GroundSelectionTest, ADialogThatTakesClicksOnTheMapOpensAtTheRightEdge) {
    constexpr LONG kFromEdge = 24;
    StartOnGround();
    const POINT link = MakeLink(), spot = Beside(2 * kApart);
    Use(IDT_PARKING, spot);
    for (const auto& [at, title] : { std::pair(ground, kNode), std::pair(spot, kSpot) }) {
        const HWND dialog = OpenByDoubleClick(at, title);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(FromRightEdge(dialog), kFromEdge) << Utf8(title);
        CloseDialog(dialog, IDCANCEL);
    }
    const std::pair<UINT, const wchar_t*> commands[] = {
        { IDM_INSERT_RUNWAY, L"Runway Properties" },        { IDM_INSERT_HELIPAD, L"Helipad Properties" },
        { IDM_INSERT_START, L"Start Location Properties" }, { IDM_INSERT_NDB, L"NDB Properties" },
        { IDM_INSERT_VOR, L"VOR/DME Properties" },          { IDM_AIRPORT_PROPERTIES, L"Airport Properties" }
    };
    for (const auto& [command, title] : commands) {
        const HWND dialog = Open(command, title);
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(FromRightEdge(dialog), kFromEdge) << Utf8(title);
        CloseDialog(dialog, IDCANCEL);
    }
    const HWND dialog = OpenByDoubleClick(link, kLink);
    ASSERT_NE(dialog, nullptr);
    EXPECT_GT(FromRightEdge(dialog), kFromEdge) << "a link has no position: its dialog opens over the middle";
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(GroundSelectionTest, ADialogOpensWhereItWasLeft) {
    StartOnGround();
    Use(IDT_NORMAL_NODE, ground);
    HWND dialog = OpenByDoubleClick(ground, kNode);
    ASSERT_NE(dialog, nullptr);
    const POINT first = PlaceOf(dialog), moved = { first.x + 60, first.y + 40 };
    ASSERT_NE(dialog = Reopen(dialog, IDCANCEL, ground, kNode), nullptr);
    EXPECT_EQ(PlaceOf(dialog).x, first.x);
    SetWindowPos(dialog, nullptr, moved.x, moved.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ASSERT_NE(dialog = Reopen(dialog, IDCANCEL, ground, kNode), nullptr);
    EXPECT_EQ(PlaceOf(dialog).x, moved.x);
    EXPECT_EQ(PlaceOf(dialog).y, moved.y);
    SetWindowPos(dialog, nullptr, -5000, -5000, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    ASSERT_NE(dialog = Reopen(dialog, IDCANCEL, ground, kNode), nullptr);
    EXPECT_GE(PlaceOf(dialog).x, 0) << "beside the screen";
    CloseDialog(dialog, IDCANCEL);
}

}  // namespace ui
