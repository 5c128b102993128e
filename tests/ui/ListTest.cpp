// ListTest.cpp - the six list windows: what they show, and what is done from them while they stand beside the map.
#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

#include "ListSteps.h"
#include "NavaidIds.h"
#include "OptionsIds.h"
#include "StandInBrowser.h"

namespace ui {

class ListTest : public ListFixture {};

TEST_F(ListTest, EachListHasItsTextsAndRows) {
    const struct {
        UINT command;
        const wchar_t* title;
        const char *header, *row;  // a row as it begins
        std::vector<int> buttons;
    } lists[] = {
        { IDM_LIST_NAVAIDS,
          kNavaidList,
          "Rwy\tType\tIdent\tFreq\tHdg\tName or Type",
          "16L\tLOC+GP+DME\tISNQ\t111.70\t",
          { IDC_LIST_DELETE, IDC_LIST_PROPERTIES } },
        { IDM_LIST_RUNWAYS,
          kRunwayList,
          "Designator\tLength\tWidth",
          "16L/34R\t11901 ft\t150 ft",
          { IDC_LIST_DELETE, IDC_LIST_PROPERTIES } },
        { IDM_LIST_PARKING,
          kParkingList,
          "Name\tType\tRadius\tCodes",
          "Gate D  1\tGate Medium\t",
          { IDC_LIST_DELETE, IDC_LIST_PROPERTIES, IDC_LIST_RANDOMIZE, IDC_LIST_ORIGINAL_ORDER } },
        { IDM_LIST_STARTS,
          kStartList,
          "Designator\tHeading",
          "Rwy 16C\t180.0",
          { IDC_LIST_DELETE, IDC_LIST_PROPERTIES } },
        { IDM_LIST_DESIGNATORS, kDesignatorList, "Designator\tUsage Count", "\" \" (blank)\t", { IDC_LIST_DELETE } },
        { IDM_LIST_COMMS,
          kCommList,
          "Freq\tType\tName",
          "119.900\tTower\t",
          { IDC_LIST_INSERT, IDC_LIST_DELETE, IDC_LIST_PROPERTIES } },
    };
    StartWithSample("hub");
    for (const auto& list : lists) {
        SCOPED_TRACE(Utf8(list.title));
        const HWND dialog = Open(list.command, list.title);
        ASSERT_NE(dialog, nullptr);
        EXPECT_TRUE(IsWindowEnabled(mainWindow)) << "the map stays alive";
        EXPECT_EQ(Header(dialog), list.header);
        const bool isThere =
            IsListView(dialog) ? Row(dialog, 0).starts_with(list.row) : RowThatBegins(dialog, list.row) >= 0;
        EXPECT_TRUE(isThere) << list.row;
        EXPECT_EQ(Selected(dialog), -1);
        for (const int button : list.buttons) EXPECT_NE(ChildWithId(dialog, button), nullptr);
        EXPECT_EQ(Shown(dialog, IDCANCEL), "Close");
        EXPECT_EQ(LOWORD(SendMessageW(dialog, DM_GETDEFID, 0, 0)), IDCANCEL);
        CloseDialog(dialog, IDCANCEL);
    }
}

TEST_F(ListTest, AListThatIsOpenComesToTheFrontInsteadOfASecondOne) {
    const HWND dialog = StartWithList(IDM_LIST_RUNWAYS, kRunwayList);
    ASSERT_NE(dialog, nullptr);
    const HWND other = Open(IDM_LIST_COMMS, kCommList);
    ASSERT_NE(other, nullptr);
    Command(IDM_LIST_RUNWAYS);
    EXPECT_TRUE(WaitUntil([&] { return FocusOf(agent) == Rows(dialog); }));
    const std::vector<HWND> all = TopLevelWindows(program.id);
    EXPECT_EQ(std::count_if(all.begin(), all.end(), [](HWND window) { return TextOf(window) == kRunwayList; }), 1);
}

TEST_F(ListTest, WithoutASelectedRowAMessageSaysSo) {
    StartWithSample("hub");
    for (const auto& [command, title] :
         { std::pair(IDM_LIST_STARTS, kStartList), std::pair(IDM_LIST_PARKING, kParkingList) }) {
        const HWND dialog = Open(static_cast<UINT>(command), title);
        ASSERT_NE(dialog, nullptr);
        for (const int button : { IDC_LIST_DELETE, IDC_LIST_PROPERTIES })
            ExpectMessage(dialog, button, "You must select an entry in the list first");
        CloseDialog(dialog, IDCANCEL);
    }
}

TEST_F(ListTest, DeletingGoesOnToTheNextRowAndUndoBringsTheRowBack) {
    const HWND dialog = StartWithList(IDM_LIST_STARTS, kStartList);
    ASSERT_NE(dialog, nullptr);
    const std::vector<std::string> before = AllRows(dialog);
    ASSERT_GE(before.size(), 3u);
    Select(dialog, 1);
    Press(dialog, IDC_LIST_DELETE);
    ASSERT_TRUE(WaitForCount(dialog, static_cast<int>(before.size()) - 1));
    EXPECT_EQ(Row(dialog, 1), before[2]);
    EXPECT_TRUE(WaitUntil([&] { return Selected(dialog) == 1; }));
    Command(IDM_UNDO);
    ASSERT_TRUE(WaitForCount(dialog, static_cast<int>(before.size()))) << "the open list follows";
    EXPECT_EQ(AllRows(dialog), before);
}

TEST_F(ListTest, ASelectedRowIsWhatTheMapDeletes) {
    const HWND dialog = StartWithList(IDM_LIST_STARTS, kStartList);
    ASSERT_NE(dialog, nullptr);
    const std::vector<std::string> before = AllRows(dialog);
    Select(dialog, 2);
    PostKey(mainWindow, VK_DELETE);
    ASSERT_TRUE(WaitForCount(dialog, static_cast<int>(before.size()) - 1));
    std::vector<std::string> expected = before;
    expected.erase(expected.begin() + 2);
    EXPECT_EQ(AllRows(dialog), expected);
}

TEST_F(ListTest, ARowOfAHiddenLayerShowsIt) {
    const HWND dialog = StartWithList(IDM_LIST_NAVAIDS, kNavaidList);
    ASSERT_NE(dialog, nullptr);
    ASSERT_FALSE(IsChecked(IDM_NAVAIDS));
    Select(dialog, 0);
    EXPECT_TRUE(WaitUntil([&] { return IsChecked(IDM_NAVAIDS); }));
}

TEST_F(ListTest, ADesignatorIsNothingThatTheMapDeletes) {
    const HWND dialog = StartWithList(IDM_LIST_DESIGNATORS, kDesignatorList);
    ASSERT_NE(dialog, nullptr);
    const int count = Count(dialog);
    Select(dialog, 1);
    PostKey(mainWindow, VK_DELETE);
    ASSERT_TRUE(SettlePosted(agent));
    EXPECT_EQ(Count(dialog), count);
    EXPECT_FALSE(CanUndo());
}

TEST_F(ListTest, ADesignatorInUseGoesOnlyWhenTheUserAgrees) {
    const HWND dialog = StartWithList(IDM_LIST_DESIGNATORS, kDesignatorList);
    ASSERT_NE(dialog, nullptr);
    const int count = Count(dialog);
    Select(dialog, RowThatBegins(dialog, "\" \" (blank)\t"));
    ExpectMessage(
        dialog, IDC_LIST_DELETE,
        "ERROR: You can't delete this blank designator.\nThere must always be a blank designator in the list");
    const int row = RowThatBegins(dialog, "A\t");
    ASSERT_GE(row, 0);
    const std::string links = Row(dialog, row).substr(2);
    const std::string question = links +
                                 " taxi links use the designator \"A\".\n\nIf you delete it these links will have no "
                                 "designator.\n\nDo you want to proceed?";
    Select(dialog, row);
    ExpectMessage(dialog, IDC_LIST_DELETE, question);  // Cancel
    EXPECT_EQ(Count(dialog), count);
    Press(dialog, IDC_LIST_DELETE);
    const auto isInBox = [&] {
        const HWND box = ChildWithId(mainWindow, IDC_DESIGNATOR);
        return SendMessageW(box, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(L"Taxi A")) >= 0;
    };
    EXPECT_TRUE(isInBox());
    Answer(MessageBoxUp(), IDOK);
    EXPECT_TRUE(WaitForCount(dialog, count - 1));
    EXPECT_TRUE(WaitUntil([&] { return !isInBox(); })) << "the toolbar offers it no more";
    Command(IDM_UNDO);
    ASSERT_TRUE(WaitForCount(dialog, count));
    EXPECT_EQ(Row(dialog, row), "A\t" + links) << "the links have it again";
}

TEST_F(ListTest, AStockIlsCannotBeDeleted) {
    const HWND dialog = StartWithList(IDM_LIST_NAVAIDS, kNavaidList);
    ASSERT_NE(dialog, nullptr);
    const int count = Count(dialog);
    Select(dialog, RowThatBegins(dialog, "16L\tLOC"));
    ExpectMessage(
        dialog, IDC_LIST_DELETE,
        "Flight Simulator does not allow stock ILS to be deleted,\nthey can only be moved or modified.\n\nThis "
        "operation has been cancelled.");
    EXPECT_EQ(Count(dialog), count);
    EXPECT_FALSE(CanUndo());
}

TEST_F(ListTest, APauseInTypingIsThatOfTheUserNotOfTheMachine) {
    const HWND dialog = StartWithList(IDM_LIST_COMMS, kCommList);
    ASSERT_NE(dialog, nullptr);
    const int unicom = RowWith(dialog, "\tUNICOM");
    ASSERT_GE(unicom, 0);
    Select(dialog, unicom);
    ASSERT_TRUE(BringToFront(dialog));
    ASSERT_TRUE(WaitUntil([&] { return FocusOf(agent) == Rows(dialog); }));
    TypeText(L"us", 1500);
    EXPECT_TRUE(WaitUntil([&] { return Row(dialog, Selected(dialog)).find("\tSeattle ") != std::string::npos; }))
        << "the second letter began no word: " << Row(dialog, Selected(dialog));
}

TEST_F(ListTest, TheKeyboardAloneIsEnough) {
    const HWND dialog = StartWithList(IDM_LIST_COMMS, kCommList);
    ASSERT_NE(dialog, nullptr);
    const int count = Count(dialog);
    ASSERT_TRUE(BringToFront(dialog));
    ASSERT_TRUE(WaitUntil([&] { return FocusOf(agent) == Rows(dialog); }));
    TypeText(L"gr");
    const int groundRow = RowWith(dialog, "\tGround\t");
    EXPECT_TRUE(WaitUntil([&] { return Selected(dialog) == groundRow; })) << "typing finds";
    TapKey(VK_RETURN);
    const HWND properties = Dialog(kComm);
    ASSERT_NE(properties, nullptr);
    EXPECT_EQ(Shown(properties, IDC_NAV_FREQUENCY), "121.700");
    EXPECT_FALSE(IsWindowEnabled(dialog)) << "the list waits";
    ASSERT_TRUE(BringToFront(properties));
    TapKey(VK_ESCAPE);
    ASSERT_TRUE(WaitUntilGone(properties));
    EXPECT_TRUE(WaitUntil([&] { return FocusOf(agent) == Rows(dialog); })) << "back to the list";
    EXPECT_EQ(Selected(dialog), groundRow);
    TapKey(VK_DELETE);
    EXPECT_TRUE(WaitForCount(dialog, count - 1));
    EXPECT_EQ(RowWith(dialog, "\tGround\t"), -1);
    TapKey(VK_ESCAPE);
    EXPECT_TRUE(WaitUntilGone(dialog));
}

TEST_F(ListTest, EnterClosesAListInWhichNothingIsSelected) {
    const HWND dialog = StartWithList(IDM_LIST_COMMS, kCommList);
    ASSERT_NE(dialog, nullptr);
    ASSERT_TRUE(BringToFront(dialog));
    ASSERT_TRUE(WaitUntil([&] { return FocusOf(agent) == Rows(dialog); }));
    TapKey(VK_RETURN);
    EXPECT_TRUE(WaitUntilGone(dialog));
}

TEST_F(ListTest, AFrequencyIsInsertedAndItsRowFollowsItsProperties) {
    StartWithSample("hub");
    const HWND list = Open(IDM_LIST_COMMS, kCommList);
    ASSERT_NE(list, nullptr);
    const int count = Count(list);
    Press(list, IDC_LIST_INSERT);
    HWND dialog = Dialog(kComm);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_NAV_NAME), "Insert comm name here");
    CloseDialog(dialog, IDCANCEL);
    EXPECT_EQ(Count(list), count) << "Cancel deletes the new record";
    EXPECT_FALSE(CanUndo());

    Press(list, IDC_LIST_INSERT);
    dialog = Dialog(kComm);
    ASSERT_NE(dialog, nullptr);
    ExpectRefusal(dialog, "ERROR: You must enter a frequency, for example 121.9", IDC_NAV_FREQUENCY);
    Enter(dialog, IDC_NAV_FREQUENCY, L"99.5");
    ExpectRefusal(dialog, "ERROR: The frequency must be a number from 108 to 136.995 MHz", IDC_NAV_FREQUENCY);
    Enter(dialog, IDC_NAV_FREQUENCY, L"121.9");
    Choose(dialog, IDC_NAV_TYPE, 4);
    CloseDialog(dialog, IDOK);
    ASSERT_TRUE(WaitForCount(list, count + 1));
    EXPECT_EQ(Row(list, count), "121.900\tGround\tInsert comm name here");
    EXPECT_TRUE(WaitUntil([&] { return Selected(list) == count; }));

    Press(list, IDC_LIST_PROPERTIES);
    dialog = Dialog(kComm);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Choice(dialog, IDC_NAV_TYPE), 4);
    Enter(dialog, IDC_NAV_NAME, L"Apron South");
    CloseDialog(dialog, IDOK);
    EXPECT_TRUE(WaitUntil([&] { return Row(list, count) == "121.900\tGround\tApron South"; }));
    EXPECT_EQ(Selected(list), count);
    Command(IDM_UNDO);
    EXPECT_TRUE(WaitUntil([&] { return Row(list, count) == "121.900\tGround\tInsert comm name here"; }));
    Command(IDM_UNDO);
    EXPECT_TRUE(WaitForCount(list, count));
    EXPECT_FALSE(CanUndo());
}

TEST_F(ListTest, ADoubleClickOpensTheProperties) {
    StartWithSample("hub");
    const HWND list = Open(IDM_LIST_COMMS, kCommList);
    ASSERT_NE(list, nullptr);
    ASSERT_TRUE(BringToFront(list));
    DoubleClickPointer(Rows(list), 20, 20);
    const HWND dialog = Dialog(kComm);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_NAV_FREQUENCY), Row(list, Selected(list)).substr(0, 7));
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(ListTest, ADoubleClickBelowTheRowsOpensNothing) {
    StartWithSample("hub");
    const HWND list = Open(IDM_LIST_COMMS, kCommList);
    ASSERT_NE(list, nullptr);
    ASSERT_TRUE(BringToFront(list));
    RECT area{};
    GetClientRect(Rows(list), &area);
    for (const int row : { -1, 0 }) {
        if (row >= 0) Select(list, row);
        DoubleClickPointer(Rows(list), 20, area.bottom - 5);
        ASSERT_TRUE(SettlePosted(agent));
        EXPECT_TRUE(IsWindowEnabled(list)) << "no dialog or message is up over it, row " << row;
        EXPECT_EQ(FindVisible(program.id, nullptr, kComm), nullptr);
    }
}

TEST_F(ListTest, AListThatIsOpenFollowsTheUnits) {
    StartWithSample("hub");
    const HWND runways = Open(IDM_LIST_RUNWAYS, kRunwayList), parking = Open(IDM_LIST_PARKING, kParkingList);
    ASSERT_NE(runways, nullptr);
    ASSERT_NE(parking, nullptr);
    Select(runways, 1);
    EXPECT_TRUE(Row(parking, 0).find(" ft\t") != std::string::npos) << Row(parking, 0);
    const HWND options = Open(IDM_OPTIONS, L"Options");
    ASSERT_NE(options, nullptr);
    Toggle(options, IDC_METRIC);
    Toggle(options, IDC_METRIC_RADIUS);
    CloseDialog(options, IDOK);
    EXPECT_TRUE(WaitUntil([&] { return Row(runways, 1).starts_with("16L/34R\t3627."); })) << Row(runways, 1);
    EXPECT_EQ(Selected(runways), 1);
    EXPECT_TRUE(WaitUntil([&] { return Row(parking, 0).find(" m\t") != std::string::npos; })) << Row(parking, 0);
}

TEST_F(ListTest, F1OpensTheTopicOfTheList) {
    const StandInBrowser browser;
    StartWithSample("hub");
    std::string opened;
    for (const auto& [command, title, topic] : { std::tuple(IDM_LIST_COMMS, kCommList, "CommFrequencies"),
                                                 std::tuple(IDM_LIST_PARKING, kParkingList, "ParkingList") }) {
        const HWND dialog = Open(static_cast<UINT>(command), title);
        ASSERT_NE(dialog, nullptr);
        ASSERT_TRUE(BringToFront(dialog));
        ASSERT_TRUE(WaitUntil([&] { return FocusOf(agent) == Rows(dialog); }));
        TapKey(VK_F1);
        opened += std::string("file:///C:/UiTest/Tarvo/ReadMe.htm#") + topic + "\n";
        EXPECT_TRUE(browser.WaitForOpened(opened)) << browser.Opened();
    }
}

TEST_F(ListTest, UnitsAreThoseOfTheSettings) {
    StartOnGround("hub", kMetricSettings);
    const HWND dialog = Open(IDM_LIST_RUNWAYS, kRunwayList);
    ASSERT_NE(dialog, nullptr);
    EXPECT_GE(RowThatBegins(dialog, "16L/34R\t3627."), 0) << Row(dialog, 0);
    EXPECT_GE(RowWith(dialog, " m\t45."), 0) << Row(dialog, 0);
}

TEST_F(ListTest, ClosingTheAirportClosesItsLists) {
    StartWithSample("hub");
    const HWND parking = Open(IDM_LIST_PARKING, kParkingList), comms = Open(IDM_LIST_COMMS, kCommList);
    ASSERT_NE(parking, nullptr);
    ASSERT_NE(comms, nullptr);
    Command(IDM_CLOSE);
    EXPECT_TRUE(WaitUntilGone(parking));
    EXPECT_TRUE(WaitUntilGone(comms));
    EXPECT_EQ(CloseProgram(), 0u);
}

TEST_F(ListTest, TheProgramEndsWithListsOpen) {
    StartWithSample("hub");
    ASSERT_NE(Open(IDM_LIST_PARKING, kParkingList), nullptr);
    ASSERT_NE(Open(IDM_LIST_NAVAIDS, kNavaidList), nullptr);
    EXPECT_EQ(CloseProgram(), 0u);
}

TEST_F(ListTest, HelpOpensTheTopicOfEachList) {
    const StandInBrowser browser;
    const struct {
        UINT command;
        const wchar_t* title;
        const char* topic;
    } lists[] = {
        { IDM_LIST_NAVAIDS, kNavaidList, "Navaids" },      { IDM_LIST_RUNWAYS, kRunwayList, "Runways" },
        { IDM_LIST_PARKING, kParkingList, "ParkingList" }, { IDM_LIST_STARTS, kStartList, "StartLocations" },
        { IDM_LIST_COMMS, kCommList, "CommFrequencies" },  { IDM_LIST_DESIGNATORS, kDesignatorList, "Designators" }
    };
    StartWithSample("hub");
    std::string opened;
    for (const auto& list : lists) {
        const HWND dialog = Open(list.command, list.title);
        ASSERT_NE(dialog, nullptr);
        Press(dialog, IDHELP);
        opened += std::string("file:///C:/UiTest/Tarvo/ReadMe.htm#") + list.topic + "\n";
        EXPECT_TRUE(browser.WaitForOpened(opened)) << browser.Opened();
        CloseDialog(dialog, IDCANCEL);
    }
}

}  // namespace ui
