// RunwayDialogTest.cpp - the runway editor: its refusals, what OK and Cancel leave.
#include <string>
#include <utility>
#include <vector>

#include "PlacesIds.h"
#include "RunwaySteps.h"

namespace ui {

class RunwayDialogTest : public RunwayEditorTest {};

TEST_F(RunwayDialogTest, ANewRunwayIsPlacedByAClickAndMustBeMeasured) {
    StartOnGround();
    const HWND dialog = Insert();
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(IsWindowEnabled(mainWindow)) << "the map can be clicked meanwhile";
    EXPECT_TRUE(WaitUntil([&] { return FocusOf(agent) == ChildWithId(dialog, IDC_END_NUMBER + IDC_SECOND_END); }));
    ExpectRefusal(dialog,
                  "ERROR: You must enter a latitude and longitude for the center of the runway.\n"
                  "You may click on the main window to set the latitude and longitude",
                  IDC_RUNWAY_LATITUDE);
    ClickMap(ground);
    EXPECT_EQ(Shown(dialog, IDC_RUNWAY_LATITUDE)[0], 'N');
    ExpectRefusal(dialog, "ERROR: You must enter the runway length (e.g. 10000 feet)\n", IDC_RUNWAY_LENGTH);
    Enter(dialog, IDC_RUNWAY_LENGTH, L"5000");
    Enter(dialog, IDC_RUNWAY_WIDTH, L"0");
    ExpectRefusal(dialog, "ERROR: You must enter the runway width (e.g. 200 feet)\n", IDC_RUNWAY_WIDTH);
    Enter(dialog, IDC_RUNWAY_WIDTH, L"150");
    Choose(dialog, IDC_END_NUMBER, 41);
    ExpectRefusal(dialog, "ERROR: The Base runway designator can't be S,W,SE or NE,\nit must be N,E,NW,SW or 0 to 36",
                  IDC_END_NUMBER);
    Choose(dialog, IDC_END_NUMBER, 37);
    EXPECT_FALSE(CanUndo()) << "what was refused must leave no trace";
    CloseDialog(dialog, IDOK);
    EXPECT_TRUE(CanUndo());
    const HWND again = Reopen();
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(Shown(again, IDC_RUNWAY_LENGTH), "5000");
    EXPECT_EQ(Shown(again, IDC_RUNWAY_WIDTH), "150");
    EXPECT_EQ(Choice(again, IDC_END_NUMBER), 37);
    CloseDialog(again, IDOK);
    const HWND byMenu = OpenByRightClick(ground, kRunwayTitle);
    ASSERT_NE(byMenu, nullptr);
    CloseDialog(byMenu, IDCANCEL);
    Command(IDM_UNDO);
    EXPECT_FALSE(CanUndo()) << "OK without a change is no action";
}

TEST_F(RunwayDialogTest, CancelLeavesNoNewRunway) {
    StartOnGround();
    const std::wstring title = Title();
    const Picture before = GrabMap(mainWindow);
    const HWND dialog = InsertPlaced();
    ASSERT_NE(dialog, nullptr);
    EXPECT_GT(MapPixelsOtherThan(before), 0) << "the map shows where the runway would lie";
    PostKey(dialog, VK_ESCAPE);
    ASSERT_TRUE(WaitUntilGone(dialog));
    EXPECT_FALSE(CanUndo());
    EXPECT_EQ(Title(), title);
    EXPECT_EQ(MapPixelsOtherThan(before), 0);
}

TEST_F(RunwayDialogTest, EveryFieldOfTheDataPageIsKept) {
    const std::pair<int, const wchar_t*> texts[] = {
        { IDC_RUNWAY_ELEVATION, L"1234" },
        { IDC_RUNWAY_LENGTH, L"6543" },
        { IDC_RUNWAY_WIDTH, L"111" },
        { IDC_PATTERN_ALTITUDE, L"1500" },
        { IDC_RUNWAY_HEADING, L"123.4" },
        { IDC_OVERRUN, L"210" },
        { IDC_OVERRUN + IDC_SECOND_END, L"220" },
        { IDC_DISPLACED, L"310" },
        { IDC_DISPLACED + IDC_SECOND_END, L"320" },
    };
    const std::pair<int, int> choices[] = {
        { IDC_RUNWAY_SURFACE, 18 },
        { IDC_END_NUMBER, 12 },
        { IDC_END_SUFFIX, 1 },
        { IDC_END_NUMBER + IDC_SECOND_END, 30 },
        { IDC_END_SUFFIX + IDC_SECOND_END, 2 },
    };
    const int boxes[] = { IDC_NO_TAKEOFF, IDC_RIGHT_PATTERN, IDC_NO_LANDING + IDC_SECOND_END };
    StartOnGround();
    HWND dialog = InsertPlaced();
    ASSERT_NE(dialog, nullptr);
    CloseDialog(dialog, IDOK);
    dialog = Reopen();
    const std::string latitude = Shown(dialog, IDC_RUNWAY_LATITUDE);
    for (const auto& [id, text] : texts) Enter(dialog, id, text);
    for (const auto& [id, choice] : choices) Choose(dialog, id, choice);
    for (const int id : boxes) Toggle(dialog, id);
    CloseDialog(dialog, IDOK);
    dialog = Reopen();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Shown(dialog, IDC_RUNWAY_LATITUDE), latitude);
    for (const auto& [id, text] : texts) EXPECT_EQ(Shown(dialog, id), Utf8(text)) << id;
    for (const auto& [id, choice] : choices) EXPECT_EQ(Choice(dialog, id), choice) << id;
    for (const int id : { IDC_NO_TAKEOFF, IDC_NO_LANDING, IDC_RIGHT_PATTERN }) {
        EXPECT_EQ(IsSet(dialog, id), id != IDC_NO_LANDING) << id;
        EXPECT_EQ(IsSet(dialog, id + IDC_SECOND_END), id == IDC_NO_LANDING) << id;
    }
    CloseDialog(dialog, IDCANCEL);
    Command(IDM_UNDO);
    dialog = Reopen();
    EXPECT_EQ(Shown(dialog, IDC_RUNWAY_LENGTH), "5000") << "one undo takes all of it back";
    EXPECT_EQ(Shown(dialog, IDC_OVERRUN), "0");
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(RunwayDialogTest, EveryControlOfTheOtherPagesIsKept) {
    const int boxes[] = {
        IDC_GREEN_END_ROW,     IDC_REILS + IDC_SECOND_END,
        IDC_TOUCHDOWN_LIGHTS,  IDC_RED_END_LIGHTS,
        IDC_NO_MARKINGS,       IDC_CLOSED_MARK + IDC_SECOND_END,
        IDC_STOL_MARK,         IDC_EDGE_LINES,
        IDC_EDGE_PAVEMENT,     IDC_PRECISION,
        IDC_AIMING_POINT,      IDC_TOUCHDOWN_MARKS,
        IDC_THRESHOLD_STRIPES, IDC_CENTRE_LINE,
        IDC_NUMBERS,
    };
    const std::pair<int, int> choices[] = {
        { IDC_APPROACH_SYSTEM, 15 },
        { IDC_APPROACH_SYSTEM + IDC_SECOND_END, 1 },
        { IDC_CENTRELINE_LIGHTS, 1 },
        { IDC_EDGE_LIGHTS, 3 },
    };
    StartOnGround();
    HWND dialog = InsertPlaced();
    ASSERT_NE(dialog, nullptr);
    std::vector<bool> before;
    for (const int id : boxes) before.push_back(IsSet(dialog, id));
    EXPECT_TRUE(before.back()) << "a new runway has its numbers";
    for (const int id : boxes) Toggle(dialog, id);
    for (const auto& [id, choice] : choices) Choose(dialog, id, choice);
    Enter(dialog, IDC_STROBES, L"0x11");
    Enter(dialog, IDC_STROBES + IDC_SECOND_END, L"5");
    for (int unit = 0; unit < 4; ++unit) {
        const int shift = unit * IDC_NEXT_VASI;
        Choose(dialog, IDC_VASI_SYSTEM + shift, unit + 5);
        Enter(dialog, IDC_VASI_DISTANCE + shift, std::to_wstring(800 + unit).c_str());
        Enter(dialog, IDC_VASI_OFFSET + shift, std::to_wstring(100 + unit).c_str());
        Enter(dialog, IDC_VASI_SPACING + shift, std::to_wstring(20 + unit).c_str());
        Enter(dialog, IDC_VASI_SLOPE + shift, (L"3.1" + std::to_wstring(unit)).c_str());
    }
    CloseDialog(dialog, IDOK);
    dialog = Reopen();
    ASSERT_NE(dialog, nullptr);
    for (size_t i = 0; i < std::size(boxes); ++i) EXPECT_EQ(IsSet(dialog, boxes[i]), !before[i]) << boxes[i];
    EXPECT_FALSE(IsSet(dialog, IDC_REILS));
    EXPECT_FALSE(IsSet(dialog, IDC_CLOSED_MARK));
    for (const auto& [id, choice] : choices) EXPECT_EQ(Choice(dialog, id), choice) << id;
    EXPECT_EQ(Shown(dialog, IDC_STROBES), "17");
    EXPECT_EQ(Shown(dialog, IDC_STROBES + IDC_SECOND_END), "5");
    for (int unit = 0; unit < 4; ++unit) {
        const int shift = unit * IDC_NEXT_VASI;
        EXPECT_EQ(Choice(dialog, IDC_VASI_SYSTEM + shift), unit + 5);
        EXPECT_EQ(Shown(dialog, IDC_VASI_DISTANCE + shift), std::to_string(800 + unit));
        EXPECT_EQ(Shown(dialog, IDC_VASI_OFFSET + shift), std::to_string(100 + unit));
        EXPECT_EQ(Shown(dialog, IDC_VASI_SPACING + shift), std::to_string(20 + unit));
        EXPECT_EQ(Shown(dialog, IDC_VASI_SLOPE + shift), "3.1" + std::to_string(unit));
    }
    CloseDialog(dialog, IDOK);
}

TEST_F(RunwayDialogTest, ARunwayIsMadeWithTheKeyboardAlone) {
    StartOnGround();
    const HWND dialog = Insert();
    ASSERT_NE(dialog, nullptr);
    ASSERT_TRUE(BringToFront(dialog));
    // Tab to the latitude; more than the controls before it would be an endless circle.
    const HWND latitude = ChildWithId(dialog, IDC_RUNWAY_LATITUDE), length = ChildWithId(dialog, IDC_RUNWAY_LENGTH);
    const auto tabTo = [&](HWND field) {
        for (int i = 0; i < 40 && FocusOf(agent) != field; ++i) {
            const HWND before = FocusOf(agent);
            TapKey(VK_TAB);
            if (!WaitUntil([&] { return FocusOf(agent) != before; })) return false;
        }
        return FocusOf(agent) == field;
    };
    ASSERT_TRUE(tabTo(length));
    TypeText(L"4000");
    ASSERT_TRUE(tabTo(latitude));
    TypeText(L"N47 30");
    ASSERT_TRUE(tabTo(ChildWithId(dialog, IDC_RUNWAY_LONGITUDE)));
    TypeText(L"W122 30");
    EXPECT_TRUE(tabTo(ChildWithId(dialog, IDHELP))) << "the buttons come after the page";
    EXPECT_TRUE(tabTo(ChildWithId(dialog, IDC_RUNWAY_TABS)));
    ASSERT_TRUE(tabTo(length));
    TapKey(VK_RETURN);
    ASSERT_TRUE(WaitUntilGone(dialog));
    EXPECT_TRUE(CanUndo());
}

TEST_F(RunwayDialogTest, WhatBelongsToARunwayMovesWithItOnlyWithConsent) {
    StartOnGround();
    ground.x += 80;
    if (!IsChecked(IDM_STARTS)) Command(IDM_STARTS);
    CloseDialog(InsertPlaced(), IDOK);
    HWND dialog = Open(IDM_INSERT_START, L"Start Location Properties");
    ASSERT_NE(dialog, nullptr);
    ClickMap({ ground.x, ground.y + 60 });
    Choose(dialog, IDC_START_NUMBER, 36);
    Choose(dialog, IDC_START_SUFFIX, 0);
    CloseDialog(dialog, IDOK);

    dialog = Reopen();
    ASSERT_NE(dialog, nullptr);
    Enter(dialog, IDC_RUNWAY_HEADING, L"90");
    PressButton(dialog, IDOK);
    Box question = MessageBoxUp();
    EXPECT_EQ(Utf8(question.text),
              "You have changed the position, length or heading of the runway.\n\n"
              "Do you want to move its start locations with it?");
    Answer(question, IDCANCEL);
    ASSERT_TRUE(IsWindow(dialog));
    EXPECT_EQ(Shown(dialog, IDC_RUNWAY_HEADING), "90") << "the text stays";
    PressButton(dialog, IDOK);
    question = MessageBoxUp();
    Answer(question, IDYES);
    ASSERT_TRUE(WaitUntilGone(dialog));
    // South of the centre became west of it.
    dialog = OpenByDoubleClick({ ground.x - 60, ground.y }, L"Start Location Properties");
    ASSERT_NE(dialog, nullptr);
    CloseDialog(dialog, IDCANCEL);
}

}  // namespace ui
