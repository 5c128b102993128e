// GroundDialogTest.cpp - the dialogs of nodes, links and parking spots, of the airport and of a new one.
#include "AirportIds.h"
#include "GroundSteps.h"

namespace ui {

class GroundDialogTest : public GroundTest {};

constexpr wchar_t kAirport[] = L"Airport Properties";

TEST_F(GroundDialogTest, EveryFieldOfANodeIsKept) {
    StartOnGround();
    Use(IDT_NORMAL_NODE, ground);
    HWND dialog = OpenByDoubleClick(ground, kNode);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Choice(dialog, IDC_NODE_TYPE), 0);
    EXPECT_FALSE(IsWindowVisible(ChildWithId(dialog, IDC_REVERSE_MARKER)));
    Choose(dialog, IDC_NODE_TYPE, 1);
    EXPECT_TRUE(IsWindowVisible(ChildWithId(dialog, IDC_REVERSE_MARKER)));
    Toggle(dialog, IDC_REVERSE_MARKER);
    ASSERT_NE(dialog = Reopen(dialog, IDOK, ground, kNode), nullptr);
    EXPECT_EQ(Choice(dialog, IDC_NODE_TYPE), 1);
    EXPECT_TRUE(IsSet(dialog, IDC_REVERSE_MARKER));
    CloseDialog(dialog, IDCANCEL);
    Command(IDM_UNDO);
    dialog = OpenByDoubleClick(ground, kNode);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Choice(dialog, IDC_NODE_TYPE), 0);
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(GroundDialogTest, ABadPositionIsRefusedAndAClickOnTheMapGivesAnother) {
    StartOnGround();
    Use(IDT_NORMAL_NODE, ground);
    const HWND dialog = OpenByDoubleClick(ground, kNode);
    ASSERT_NE(dialog, nullptr);
    Enter(dialog, IDC_LATITUDE, L"N 51");
    ExpectRefusal(dialog, "ERROR: The latitude format is bad.\nIt should look something like N51* 31.421'",
                  IDC_LATITUDE);
    const std::string before = Shown(dialog, IDC_LONGITUDE);
    ClickMap(Beside(kApart));
    EXPECT_NE(Shown(dialog, IDC_LONGITUDE), before);
    CloseDialog(dialog, IDOK);
    const HWND moved = OpenByDoubleClick(Beside(kApart), kNode);
    ASSERT_NE(moved, nullptr);
    CloseDialog(moved, IDCANCEL);
}

TEST_F(GroundDialogTest, FieldsOfALinkAreKept) {
    StartOnGround();
    const POINT middle = MakeLink();
    HWND dialog = OpenByDoubleClick(middle, kLink);
    ASSERT_NE(dialog, nullptr);
    Choose(dialog, IDC_LINK_SURFACE, 4);
    Enter(dialog, IDC_LINK_WIDTH, L"0");
    ExpectRefusal(dialog, "ERROR: The width must be a number from 1 to 3280 feet", IDC_LINK_WIDTH);
    Enter(dialog, IDC_LINK_WIDTH, L"120");
    Toggle(dialog, IDC_RIGHT_DASHED);
    Toggle(dialog, IDC_CENTRE_LIGHTS);
    const bool lights = IsSet(dialog, IDC_CENTRE_LIGHTS);
    ASSERT_NE(dialog = Reopen(dialog, IDOK, middle, kLink), nullptr);
    EXPECT_EQ(Choice(dialog, IDC_LINK_SURFACE), 4);
    EXPECT_EQ(Shown(dialog, IDC_LINK_WIDTH), "120");
    EXPECT_TRUE(IsSet(dialog, IDC_RIGHT_DASHED));
    EXPECT_FALSE(IsSet(dialog, IDC_RIGHT_NONE));
    EXPECT_EQ(IsSet(dialog, IDC_CENTRE_LIGHTS), lights);
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(GroundDialogTest, FieldsTakeNoMoreThanTheirCharacters) {
    StartOnGround();
    const auto limitOf = [](HWND edit) { return SendMessageW(edit, EM_GETLIMITTEXT, 0, 0); };
    const POINT middle = MakeLink();
    HWND dialog = OpenByDoubleClick(ground, kNode);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(limitOf(ChildWithId(dialog, IDC_LATITUDE)), 30);
    EXPECT_EQ(limitOf(ChildWithId(dialog, IDC_LONGITUDE)), 30);
    CloseDialog(dialog, IDCANCEL);
    ASSERT_NE(dialog = OpenByDoubleClick(middle, kLink), nullptr);
    EXPECT_EQ(limitOf(ChildWithId(dialog, IDC_LINK_WIDTH)), 12);
    CloseDialog(dialog, IDCANCEL);
    EXPECT_EQ(limitOf(ChildOfClass(ChildWithId(mainWindow, IDC_DESIGNATOR), L"Edit")), 19);
}

TEST_F(GroundDialogTest, CodesOfASpotAreCheckedAndKept) {
    StartOnGround();
    Use(IDT_PARKING, ground);
    HWND dialog = OpenByDoubleClick(ground, kSpot);
    ASSERT_NE(dialog, nullptr);
    Enter(dialog, IDC_SPOT_CODES, L"JAL,LONGER");
    ExpectRefusal(dialog, "ERROR: The Parking Codes box contains a code longer than the maximum four characters",
                  IDC_SPOT_CODES);
    Enter(dialog, IDC_SPOT_CODES, L"jal,klm");
    Enter(dialog, IDC_SPOT_HEADING, L"123.4");
    ASSERT_NE(dialog = Reopen(dialog, IDOK, ground, kSpot), nullptr);
    EXPECT_EQ(Shown(dialog, IDC_SPOT_CODES), "JAL,KLM");
    EXPECT_EQ(Shown(dialog, IDC_SPOT_HEADING), "123.4");
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(GroundDialogTest, NextSpotStoresAndGoesOn) {
    StartOnGround();
    Use(IDT_PARKING, ground);
    const HWND dialog = OpenByDoubleClick(ground, kSpot);
    ASSERT_NE(dialog, nullptr);
    const std::string place = Shown(dialog, IDC_LATITUDE);
    Enter(dialog, IDC_SPOT_HEADING, L"77.0");
    PressButton(dialog, IDC_NEXT_SPOT);
    EXPECT_TRUE(WaitUntil([&] { return Shown(dialog, IDC_LATITUDE) != place; }));
    CloseDialog(dialog, IDCANCEL);
    EXPECT_TRUE(CanUndo());
}

TEST_F(GroundDialogTest, AirportPropertiesAreCheckedAndShowInTheTitle) {
    StartOnGround();
    const HWND dialog = Open(IDM_AIRPORT_PROPERTIES, kAirport);
    ASSERT_NE(dialog, nullptr);
    Enter(dialog, IDC_CITY, L"");
    ExpectRefusal(dialog, "The City field is blank. You must supply a city", IDC_CITY);
    Enter(dialog, IDC_CITY, L"SeaTac");
    Enter(dialog, IDC_AIRPORT_NAME, L"Another Name");
    EXPECT_TRUE(IsGreyed(IDM_SAVE)) << "while the dialog is open only the map can be moved";
    CloseDialog(dialog, IDOK);
    EXPECT_TRUE(WaitForTitle(L"Another Name")) << Utf8(Title());
    Command(IDM_UNDO);
    EXPECT_TRUE(WaitForTitle(L"Seattle-Tacoma")) << Utf8(Title());
}

TEST_F(GroundDialogTest, ANewAirportNeedsAPositionAndIsOpenAfterwards) {
    Start();
    HWND dialog = Open(IDM_NEW, kAirport);
    ASSERT_NE(dialog, nullptr);
    Enter(dialog, IDC_AIRPORT_IDENT, L"ZZZ9");
    Enter(dialog, IDC_COUNTRY, L"Nowhere");
    Enter(dialog, IDC_CITY, L"Somewhere");
    Enter(dialog, IDC_AIRPORT_NAME, L"Test Field");
    PressButton(dialog, IDOK);
    const Box box = MessageBoxUp();
    EXPECT_EQ(Utf8(box.text), "You must enter at least an approximate\nlatitude and longitude for the airport");
    Answer(box, IDOK);
    Enter(dialog, IDC_AIRPORT_LATITUDE, L"N49* 15.0'");
    Enter(dialog, IDC_AIRPORT_LONGITUDE, L"W123* 10.0'");
    CloseDialog(dialog, IDOK);
    EXPECT_TRUE(WaitForTitle(L"ZZZ9    Test Field")) << Utf8(Title());
    EXPECT_FALSE(IsGreyed(IDM_SAVE_AS));
}

TEST_F(GroundDialogTest, CancelOfANewAirportLeavesNoneOpen) {
    StartOnGround();
    const HWND dialog = Open(IDM_NEW, kAirport);
    ASSERT_NE(dialog, nullptr);
    CloseDialog(dialog, IDCANCEL);
    EXPECT_TRUE(WaitUntil([&] { return Title().find(L"KSEA") == std::wstring::npos; }));
    EXPECT_TRUE(IsGreyed(IDM_SAVE));
}

}  // namespace ui
