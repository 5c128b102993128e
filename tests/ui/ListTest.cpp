// ListTest.cpp - the six list windows: what they show, and what is done from them while they stand beside the map.
#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

#include "EditorSteps.h"
#include "ListIds.h"
#include "NavaidIds.h"
#include "OptionsIds.h"
#include "StandInBrowser.h"

namespace ui {

constexpr wchar_t kNavaidList[] = L"NAVAID List", kRunwayList[] = L"Runway List", kParkingList[] = L"Parking List",
                  kStartList[] = L"Start Locations List", kDesignatorList[] = L"Taxiway Designator List",
                  kCommList[] = L"Comm Frequencies List", kComm[] = L"COMM Frequency Properties",
                  kParkingProperties[] = L"Parking Properties";
constexpr int kParkingColumns = 4;

class ListTest : public EditorTest {
protected:
    static HWND Rows(HWND dialog) { return ChildWithId(dialog, IDC_LIST_ROWS); }
    static bool IsListView(HWND dialog) { return ClassOf(Rows(dialog)) == WC_LISTVIEWW; }
    static int Count(HWND dialog) {
        const UINT ask = IsListView(dialog) ? LVM_GETITEMCOUNT : LB_GETCOUNT;
        return static_cast<int>(SendMessageW(Rows(dialog), ask, 0, 0));
    }
    static std::string Row(HWND dialog, int row) {
        if (!IsListView(dialog)) return Utf8(ListBoxText(Rows(dialog), row));
        std::string text;
        for (int column = 0; column < kParkingColumns; ++column) {
            text += (column ? "\t" : "") + Utf8(ListText(Rows(dialog), row, column));
        }
        return text;
    }
    static std::vector<std::string> AllRows(HWND dialog) {
        std::vector<std::string> rows;
        for (int row = 0; row < Count(dialog); ++row) rows.push_back(Row(dialog, row));
        return rows;
    }
    static int Selected(HWND dialog) {
        if (IsListView(dialog))
            return static_cast<int>(
                SendMessageW(Rows(dialog), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
        return static_cast<int>(SendMessageW(Rows(dialog), LB_GETCURSEL, 0, 0));
    }
    static void Select(HWND dialog, int row) {
        if (IsListView(dialog))
            SelectListRow(Rows(dialog), row);
        else
            PickInListBox(Rows(dialog), row);
        Settle(dialog);
    }
    static int RowThatBegins(HWND dialog, const std::string& text) {
        const std::vector<std::string> rows = AllRows(dialog);
        const auto found =
            std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return row.starts_with(text); });
        return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
    }
    static int RowWith(HWND dialog, const std::string& text) {
        const std::vector<std::string> rows = AllRows(dialog);
        const auto found = std::find_if(rows.begin(), rows.end(),
                                        [&](const auto& row) { return row.find(text) != std::string::npos; });
        return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
    }
    bool WaitForCount(HWND dialog, int count) const {
        return WaitUntil([&] { return Count(dialog) == count; });
    }
    void ExpectMessage(HWND dialog, int button, const std::string& text) {
        PressButton(dialog, button);
        const Box box = MessageBoxUp();
        EXPECT_EQ(Utf8(box.text), text);
        EXPECT_FALSE(IsWindowEnabled(dialog)) << "the box is modal";
        EXPECT_FALSE(IsWindowEnabled(mainWindow)) << "the box is modal for the map too";
        Answer(box, box.buttons.back());
        EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(dialog) && IsWindowEnabled(mainWindow); }));
    }
};

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
        EXPECT_EQ(Shown(dialog, IDC_LIST_HEADER), list.header);
        EXPECT_GE(RowThatBegins(dialog, list.row), 0);
        EXPECT_EQ(Selected(dialog), -1);
        for (const int button : list.buttons) EXPECT_NE(ChildWithId(dialog, button), nullptr);
        EXPECT_EQ(Shown(dialog, IDCANCEL), "Close");
        EXPECT_EQ(LOWORD(SendMessageW(dialog, DM_GETDEFID, 0, 0)), IDCANCEL);
        CloseDialog(dialog, IDCANCEL);
    }
}

TEST_F(ListTest, AListThatIsOpenComesToTheFrontInsteadOfASecondOne) {
    StartWithSample("hub");
    const HWND dialog = Open(IDM_LIST_RUNWAYS, kRunwayList);
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
    StartWithSample("hub");
    const HWND dialog = Open(IDM_LIST_STARTS, kStartList);
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
    StartWithSample("hub");
    const HWND dialog = Open(IDM_LIST_STARTS, kStartList);
    ASSERT_NE(dialog, nullptr);
    const std::vector<std::string> before = AllRows(dialog);
    Select(dialog, 2);
    PostKey(mainWindow, VK_DELETE);
    ASSERT_TRUE(WaitForCount(dialog, static_cast<int>(before.size()) - 1));
    std::vector<std::string> expected = before;
    expected.erase(expected.begin() + 2);
    EXPECT_EQ(AllRows(dialog), expected);
}

TEST_F(ListTest, ADesignatorIsNothingThatTheMapDeletes) {
    StartWithSample("hub");
    const HWND dialog = Open(IDM_LIST_DESIGNATORS, kDesignatorList);
    ASSERT_NE(dialog, nullptr);
    const int count = Count(dialog);
    Select(dialog, 1);
    PostKey(mainWindow, VK_DELETE);
    ASSERT_TRUE(SettlePosted(agent));
    EXPECT_EQ(Count(dialog), count);
    EXPECT_FALSE(CanUndo());
}

TEST_F(ListTest, ADesignatorInUseGoesOnlyWhenTheUserAgrees) {
    StartWithSample("hub");
    const HWND dialog = Open(IDM_LIST_DESIGNATORS, kDesignatorList);
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
    Answer(MessageBoxUp(), IDOK);
    EXPECT_TRUE(WaitForCount(dialog, count - 1));
    Command(IDM_UNDO);
    ASSERT_TRUE(WaitForCount(dialog, count));
    EXPECT_EQ(Row(dialog, row), "A\t" + links) << "the links have it again";
}

TEST_F(ListTest, AStockIlsCannotBeDeleted) {
    StartWithSample("hub");
    const HWND dialog = Open(IDM_LIST_NAVAIDS, kNavaidList);
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

TEST_F(ListTest, TheKeyboardAloneIsEnough) {
    StartWithSample("hub");
    const HWND dialog = Open(IDM_LIST_COMMS, kCommList);
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
    StartWithSample("hub");
    const HWND dialog = Open(IDM_LIST_COMMS, kCommList);
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
    ClickPointer(Rows(list), 20, 20);
    ClickPointer(Rows(list), 20, 20);
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
        ClickPointer(Rows(list), 20, area.bottom - 5);
        ClickPointer(Rows(list), 20, area.bottom - 5);
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

class ParkingListTest : public ListTest {
protected:
    void ClickHeader(HWND dialog, int column) {
        const HWND rows = Rows(dialog);
        const HWND header = reinterpret_cast<HWND>(SendMessageW(rows, LVM_GETHEADER, 0, 0));
        int x = 10;
        for (int i = 0; i < column; ++i)
            x += static_cast<int>(SendMessageW(rows, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(i), 0));
        SendClick(header, x, 5);
        Settle(dialog);
    }
    // Cells of a column, from twenty rows all over the list: each costs a visit to the program.
    static std::vector<std::string> SomeOf(HWND dialog, int column) {
        constexpr int kLooks = 20;
        std::vector<std::string> texts;
        for (int i = 0; i < kLooks; ++i) {
            texts.push_back(Utf8(ListText(Rows(dialog), (Count(dialog) - 1) * i / (kLooks - 1), column)));
        }
        return texts;
    }
    static std::vector<std::string> Names(HWND dialog) { return SomeOf(dialog, 0); }
};

TEST_F(ParkingListTest, EachHeaderSortsByItsColumnAndOriginalOrderIsThatOfTheFile) {
    StartWithSample("hub");
    const HWND dialog = Open(IDM_LIST_PARKING, kParkingList);
    ASSERT_NE(dialog, nullptr);
    const std::vector<std::string> original = Names(dialog);
    ASSERT_GT(Count(dialog), 20);
    EXPECT_EQ(Row(dialog, 0), "Gate D  1\tGate Medium\t68.9 ft\tASA,QXE");

    ClickHeader(dialog, 0);
    EXPECT_EQ(Names(dialog).front(), "Gate A  1");
    ClickHeader(dialog, 2);
    std::vector<double> radii;
    for (const std::string& text : SomeOf(dialog, 2)) radii.push_back(std::stod(text));
    EXPECT_TRUE(std::is_sorted(radii.begin(), radii.end()));
    EXPECT_LT(radii.front(), radii.back());
    ClickHeader(dialog, 3);
    const std::vector<std::string> codes = SomeOf(dialog, 3);
    EXPECT_FALSE(codes.front().empty()) << "spots with codes come first";
    EXPECT_TRUE(codes.back().empty());
    ClickHeader(dialog, 1);
    EXPECT_TRUE(SomeOf(dialog, 1).front().starts_with("Gate"));

    Press(dialog, IDC_LIST_ORIGINAL_ORDER);
    EXPECT_TRUE(WaitUntil([&] { return Names(dialog) == original; }));
    EXPECT_FALSE(CanUndo()) << "only the rows change their order";
}

TEST_F(ParkingListTest, RandomizeMixesTheGatesAndKeepsThemFirst) {
    StartWithSample("hub");
    const HWND dialog = Open(IDM_LIST_PARKING, kParkingList);
    ASSERT_NE(dialog, nullptr);
    const int count = Count(dialog);
    const std::vector<std::string> original = Names(dialog);
    Press(dialog, IDC_LIST_RANDOMIZE);
    EXPECT_TRUE(WaitUntil([&] { return Names(dialog) != original; }));
    EXPECT_EQ(Count(dialog), count);
    bool past = false;
    for (const std::string& type : SomeOf(dialog, 1)) {
        const bool gate = type.starts_with("Gate");
        EXPECT_FALSE(gate && past) << "a gate behind other spots";
        past |= !gate;
    }
    EXPECT_FALSE(CanUndo());
}

TEST_F(ParkingListTest, AChangedSpotStaysSelectedAndInItsPlaceOfTheOrder) {
    StartWithSample("hub");
    const HWND dialog = Open(IDM_LIST_PARKING, kParkingList);
    ASSERT_NE(dialog, nullptr);
    const int count = Count(dialog);
    ClickHeader(dialog, 0);
    const std::string first = Row(dialog, 0), second = Row(dialog, 1);
    Select(dialog, 0);
    Press(dialog, IDC_LIST_DELETE);
    ASSERT_TRUE(WaitForCount(dialog, count - 1));
    EXPECT_EQ(Row(dialog, 0), second);
    EXPECT_TRUE(WaitUntil([&] { return Selected(dialog) == 0; }));
    Command(IDM_UNDO);
    ASSERT_TRUE(WaitForCount(dialog, count));
    EXPECT_EQ(Row(dialog, 0), first) << "the list is still sorted by name";
    EXPECT_EQ(Row(dialog, 1), second);
    EXPECT_EQ(Selected(dialog), 1) << "the row that was selected still is";
}

TEST_F(ParkingListTest, TheKeyboardAloneIsEnough) {
    StartWithSample("hub");
    const HWND dialog = Open(IDM_LIST_PARKING, kParkingList);
    ASSERT_NE(dialog, nullptr);
    const int count = Count(dialog);
    ASSERT_TRUE(BringToFront(dialog));
    ASSERT_TRUE(WaitUntil([&] { return FocusOf(agent) == Rows(dialog); }));
    TypeText(L"gate c 2");
    ASSERT_TRUE(
        WaitUntil([&] { return Selected(dialog) >= 0 && Row(dialog, Selected(dialog)).starts_with("Gate C  2"); }));
    const int row = Selected(dialog);
    const std::string found = Row(dialog, row);
    TapKey(VK_RETURN);
    const HWND properties = Dialog(kParkingProperties);
    ASSERT_NE(properties, nullptr);
    EXPECT_FALSE(IsWindowEnabled(dialog)) << "the list waits";
    ASSERT_TRUE(BringToFront(properties));
    TapKey(VK_ESCAPE);
    ASSERT_TRUE(WaitUntilGone(properties));
    EXPECT_TRUE(WaitUntil([&] { return FocusOf(agent) == Rows(dialog); })) << "back to the list";
    EXPECT_EQ(Row(dialog, row), found);
    EXPECT_EQ(Selected(dialog), row);
    TapKey(VK_DELETE);
    EXPECT_TRUE(WaitForCount(dialog, count - 1));
    EXPECT_NE(Row(dialog, row), found);
    TapKey(VK_ESCAPE);
    EXPECT_TRUE(WaitUntilGone(dialog));
}

TEST_F(ParkingListTest, TheColumnsFitAgainOnAMonitorOfAnotherResolution) {
    constexpr UINT kDpiChanged = 0x02E0;  // WM_DPICHANGED of Windows 8.1
    StartWithSample("hub");
    const HWND dialog = Open(IDM_LIST_PARKING, kParkingList);
    ASSERT_NE(dialog, nullptr);
    const auto width = [&] { return SendMessageW(Rows(dialog), LVM_GETCOLUMNWIDTH, 0, 0); };
    const LRESULT before = width();
    ASSERT_GT(before, 40);
    SendMessageW(Rows(dialog), LVM_SETCOLUMNWIDTH, 0, 40);
    ASSERT_EQ(width(), 40);
    SendMessageW(dialog, kDpiChanged, MAKEWPARAM(96, 96), 0);
    EXPECT_TRUE(WaitUntil([&] { return width() == before; })) << width();
}

TEST_F(ParkingListTest, ADoubleClickOnARowOpensTheProperties) {
    StartWithSample("hub");
    const HWND dialog = Open(IDM_LIST_PARKING, kParkingList);
    ASSERT_NE(dialog, nullptr);
    ASSERT_TRUE(BringToFront(dialog));
    ClickPointer(Rows(dialog), 40, 60);
    ClickPointer(Rows(dialog), 40, 60);
    const HWND properties = Dialog(kParkingProperties);
    ASSERT_NE(properties, nullptr);
    CloseDialog(properties, IDCANCEL);
    EXPECT_GE(Selected(dialog), 0);
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
