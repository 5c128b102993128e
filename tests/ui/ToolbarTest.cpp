// ToolbarTest.cpp - the boxes in the toolbars: what they list, choosing, typing, and how the toolbars fit the window.
#include <algorithm>
#include <string>
#include <vector>

#include "ProgramParts.h"
#include "Resource.h"
#include "UiHarness.h"

namespace ui {

constexpr uint32_t kHighlightedLink = 0xFF0000;

class ToolbarTest : public UiTest {
protected:
    HWND Designator() { return ChildWithId(mainWindow, IDC_DESIGNATOR); }
    HWND Type() { return ChildWithId(mainWindow, IDC_PARKING_TYPE); }
    HWND Spec() { return ChildWithId(mainWindow, IDC_PARKING_SPEC); }
    HWND EditOf(HWND combo) { return ChildOfClass(combo, L"Edit"); }

    static int Rows(HWND combo) { return static_cast<int>(SendMessageW(combo, CB_GETCOUNT, 0, 0)); }
    static int Row(HWND combo) { return static_cast<int>(SendMessageW(combo, CB_GETCURSEL, 0, 0)); }
    static bool IsOpen(HWND combo) { return SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0) != 0; }

    // Two clicks at one place may count as a double click, so each has a place of its own.
    int NextPlace() { return place = place % 60 + 10; }

    void ClickOpen(HWND combo) {
        ASSERT_TRUE(BringToFront(mainWindow));
        ClickPointer(combo, NextPlace(), 10);
        ASSERT_TRUE(WaitUntil([&] { return IsOpen(combo); }));
    }

    void CloseWith(HWND combo, WORD key) {
        TapKey(key);
        ASSERT_TRUE(WaitUntil([&] { return !IsOpen(combo); }));
        EXPECT_TRUE(FocusIsOnTheMap());
    }
    static int Find(HWND combo, const wchar_t* text) {
        return static_cast<int>(
            SendMessageW(combo, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text)));
    }

    bool FocusIsOnTheMap() {
        return WaitUntil([&] { return FocusOf(agent) == mainWindow; });
    }

    // Types into the designator box in place of what stands there.
    void TypeDesignator(const std::wstring& text) {
        ASSERT_TRUE(BringToFront(mainWindow));
        const HWND edit = EditOf(Designator());
        ClickPointer(edit, NextPlace(), 5);
        ASSERT_TRUE(WaitUntil([&] { return FocusOf(agent) == edit; })) << "the box does not take the focus";
        SendMessageW(edit, EM_SETSEL, 0, -1);
        TypeText(text);
        ASSERT_TRUE(WaitUntil([&] { return TextOf(Designator()) == text; })) << Utf8(TextOf(Designator()));
    }

    bool DesignatorShows(const std::wstring& text) {
        return WaitUntil([&] { return TextOf(Designator()) == text; });
    }

    int place = 0;

    // The guard against repeated choices lets the next one through.
    static void OutlastTheGuard() {
        const ULONGLONG start = GetTickCount64();
        WaitUntil([&] { return GetTickCount64() - start > 250; });
    }
};

TEST_F(ToolbarTest, TheBoxesListWhatTheAirportAndTheFilesHold) {
    StartWithSample("hub");
    ASSERT_GT(Rows(Designator()), 3);
    EXPECT_EQ(ComboText(Designator(), 0), L"");
    EXPECT_EQ(ComboText(Designator(), 1).substr(0, 5), L"Taxi ");
    EXPECT_EQ(ComboText(Designator(), Rows(Designator()) - 1).substr(0, 4), L"Rwy ");
    EXPECT_EQ(TextOf(Designator()), L"");
    ASSERT_EQ(Rows(Type()), 11);
    EXPECT_EQ(ComboText(Type(), 1), L"Ramp GA Small");
    EXPECT_EQ(ComboText(Type(), 10), L"Dock GA");
    EXPECT_GE(Row(Type()), 0) << "new spots have a type";
    ASSERT_GT(Rows(Spec()), 20);
    EXPECT_EQ(ComboText(Spec(), 0), L"");
    EXPECT_EQ(ComboText(Spec(), 1), L"Air Canada") << "the first of the file";
    EXPECT_EQ(Row(Spec()), 0);
}

TEST_F(ToolbarTest, WithoutAnAirportTheDesignatorBoxIsGreyed) {
    Start();
    EXPECT_FALSE(IsWindowEnabled(Designator()));
    EXPECT_EQ(Rows(Designator()), 1);
    EXPECT_TRUE(IsWindowEnabled(Type()));
}

TEST_F(ToolbarTest, ChoosingADesignatorHighlightsItsPath) {
    StartWithSample("hub");
    const RECT area = MapArea(mainWindow);
    const int before = CountColour(GrabMap(mainWindow), area, kHighlightedLink);
    PickInCombo(Designator(), 1);
    EXPECT_GT(CountColour(GrabMap(mainWindow), area, kHighlightedLink), before);
    PickInCombo(Designator(), 0);
    EXPECT_EQ(CountColour(GrabMap(mainWindow), area, kHighlightedLink), before);
    EXPECT_TRUE(IsGreyed(IDM_UNDO));
}

TEST_F(ToolbarTest, AListThatClosesGivesTheFocusToTheMap) {
    StartWithSample("hub");
    ClickOpen(Type());
    const int before = Row(Type());
    TapKey(before == 0 ? VK_DOWN : VK_UP);
    ASSERT_TRUE(WaitUntil([&] { return Row(Type()) != before; }));
    const int chosen = Row(Type());
    CloseWith(Type(), VK_RETURN);
    EXPECT_EQ(Row(Type()), chosen);

    OutlastTheGuard();
    ClickOpen(Type());
    TapKey(VK_DOWN);
    ASSERT_TRUE(WaitUntil([&] { return Row(Type()) != chosen; }));
    CloseWith(Type(), VK_ESCAPE);
    EXPECT_TRUE(WaitUntil([&] { return Row(Type()) == chosen; })) << "Esc did not bring the current type back";
}

TEST_F(ToolbarTest, ASpecGoesToTheSelectedSpotsAndOneUndoTakesItBack) {
    StartWithSample("hub");
    Command(IDM_SELECT_ALL);
    EXPECT_FALSE(IsChecked(IDM_LABEL_CODES));
    PickInCombo(Spec(), 1);
    Settle(mainWindow);
    EXPECT_FALSE(IsGreyed(IDM_UNDO)) << "no spot was changed";
    EXPECT_TRUE(IsChecked(IDM_LABEL_CODES));
    EXPECT_EQ(Row(Spec()), 1);
    Command(IDM_UNDO);
    EXPECT_TRUE(IsGreyed(IDM_UNDO)) << "it was more than one action";
    EXPECT_FALSE(IsGreyed(IDM_REDO));
}

TEST_F(ToolbarTest, ATypeGoesToTheSelectedSpots) {
    StartWithSample("hub");
    Command(IDM_SELECT_ALL);
    PickInCombo(Type(), 5);
    Settle(mainWindow);
    EXPECT_FALSE(IsGreyed(IDM_UNDO));
    Command(IDM_UNDO);
    EXPECT_TRUE(IsGreyed(IDM_UNDO));
}

// The clock of the test and that of the program are one. A busy machine may need several tries to be quick enough.
TEST_F(ToolbarTest, OfTwoChoicesWithin200MillisecondsTheFirstCounts) {
    Start();
    bool wasQuick = false;
    for (int attempt = 0; attempt < 50 && !wasQuick; ++attempt) {
        OutlastTheGuard();
        const ULONGLONG start = GetTickCount64();
        PickInCombo(Spec(), 1);
        PickInCombo(Spec(), 2);
        wasQuick = GetTickCount64() - start < 150;
        EXPECT_EQ(Row(Spec()), wasQuick ? 1 : Row(Spec()));
    }
    EXPECT_TRUE(wasQuick);
    OutlastTheGuard();
    PickInCombo(Spec(), 2);
    EXPECT_EQ(Row(Spec()), 2);
}

TEST_F(ToolbarTest, AnOpenedSpecListShowsTheMostUsedSpecsAtItsTop) {
    Start();
    const int last = Rows(Spec()) - 1;
    const std::wstring name = ComboText(Spec(), last);
    PickInCombo(Spec(), last);
    ClickOpen(Spec());
    EXPECT_EQ(Rows(Spec()), last + 4);
    EXPECT_EQ(ComboText(Spec(), 1), std::wstring(87, L'-'));
    EXPECT_EQ(ComboText(Spec(), 2), name);
    EXPECT_EQ(ComboText(Spec(), 3), std::wstring(87, L'-'));
    EXPECT_EQ(Row(Spec()), last + 3) << "the current spec stays selected";
    EXPECT_TRUE(WaitUntil([&] { return SendMessageW(Spec(), CB_GETTOPINDEX, 0, 0) == 0; })) << IsOpen(Spec());
    CloseWith(Spec(), VK_ESCAPE);
    OutlastTheGuard();
    ClickOpen(Spec());
    SendMessageW(Spec(), CB_SETCURSEL, 1, 0);
    CloseWith(Spec(), VK_RETURN);
    EXPECT_TRUE(WaitUntil([&] { return Row(Spec()) == last + 3; })) << "a line was chosen";
}

TEST_F(ToolbarTest, TCyclesTheDesignatorBox) {
    StartWithSample("hub");
    for (int row = 1; row <= 3; ++row) {
        PostKey(mainWindow, 'T');
        EXPECT_TRUE(WaitUntil([&] { return Row(Designator()) == row; })) << row;
    }
    HoldKey(agent, VK_SHIFT, true);
    PostKey(mainWindow, 'T');
    EXPECT_TRUE(WaitUntil([&] { return Row(Designator()) == 2; }));
    HoldKey(agent, VK_SHIFT, false);
    EXPECT_EQ(TextOf(Designator()), ComboText(Designator(), 2));
}

TEST_F(ToolbarTest, AnUnknownDesignatorIsAskedAboutAndMadeOnYes) {
    StartWithSample("hub");
    const int rows = Rows(Designator());
    TypeDesignator(L"zz9");
    TapKey(VK_RETURN);
    Box box = MessageBoxUp();
    EXPECT_EQ(box.text,
              L"The taxiway designator \"ZZ9\" does not exist.\nDo you want to enter it as a new designator?");
    EXPECT_EQ(box.buttons, (std::vector<int>{ IDYES, IDNO, IDCANCEL }));
    Answer(box, IDNO);
    EXPECT_TRUE(DesignatorShows(L""));
    EXPECT_EQ(Rows(Designator()), rows);
    EXPECT_TRUE(FocusIsOnTheMap());
    TypeDesignator(L"taxi zz9");
    TapKey(VK_RETURN);
    Answer(MessageBoxUp(), IDYES);
    EXPECT_TRUE(DesignatorShows(L"Taxi ZZ9"));
    EXPECT_EQ(Rows(Designator()), rows + 1);
    EXPECT_TRUE(FocusIsOnTheMap());
    EXPECT_FALSE(IsGreyed(IDM_UNDO));
    Command(IDM_UNDO);
    EXPECT_TRUE(DesignatorShows(L""));
    EXPECT_EQ(Rows(Designator()), rows);
}

TEST_F(ToolbarTest, AKnownDesignatorIsTakenWithoutAQuestion) {
    StartWithSample("hub");
    const std::wstring known = ComboText(Designator(), 1);
    std::wstring typed = known.substr(5);
    std::transform(typed.begin(), typed.end(), typed.begin(), towlower);
    TypeDesignator(typed);
    TapKey(VK_RETURN);
    EXPECT_TRUE(DesignatorShows(known));
    EXPECT_EQ(Row(Designator()), 1);
    EXPECT_TRUE(FocusIsOnTheMap());
}

TEST_F(ToolbarTest, EscPutsTheOldDesignatorBack) {
    StartWithSample("hub");
    PickInCombo(Designator(), 2);
    const std::wstring before = ComboText(Designator(), 2);
    TypeDesignator(L"nonsense");
    TapKey(VK_ESCAPE);
    EXPECT_TRUE(DesignatorShows(before));
    EXPECT_TRUE(FocusIsOnTheMap());
}

TEST_F(ToolbarTest, AClickOnTheMapFinishesTheTyping) {
    StartWithSample("hub");
    TypeDesignator(L"zz9");
    const RECT area = MapArea(mainWindow);
    ClickPointer(mainWindow, area.left + 30, area.bottom - 30);
    Answer(MessageBoxUp(), IDYES);
    EXPECT_TRUE(DesignatorShows(L"Taxi ZZ9"));
    EXPECT_TRUE(FocusIsOnTheMap());
}

TEST_F(ToolbarTest, WhatIsBeingTypedSurvivesAnotherList) {
    StartWithSample("hub");
    TypeDesignator(L"zz9");
    TapKey(VK_RETURN);
    Answer(MessageBoxUp(), IDYES);
    ASSERT_TRUE(DesignatorShows(L"Taxi ZZ9"));
    TypeDesignator(L"q");
    const int rows = Rows(Designator());
    Command(IDM_UNDO);  // takes ZZ9 out of the list
    EXPECT_EQ(Rows(Designator()), rows - 1);
    EXPECT_EQ(TextOf(Designator()), L"q");
    TapKey(VK_ESCAPE);
    EXPECT_TRUE(DesignatorShows(L""));
}

TEST_F(ToolbarTest, EveryButtonOfATableRowShowsItsState) {
    StartWithSample("hub");
    EXPECT_EQ(ToolButtonState(ToolbarOf(mainWindow), IDT_POINTER), TBSTATE_ENABLED | TBSTATE_CHECKED);
    for (int id : { IDT_PARKING, IDT_APRON, IDT_APRON_POINT, IDT_EDGE_LIGHTS, IDT_MARKERS, IDT_GUIDELINES }) {
        EXPECT_EQ(ToolButtonState(SecondToolbarOf(mainWindow), id), TBSTATE_ENABLED) << id;
        ClickToolButton(mainWindow, id);
        EXPECT_EQ(ToolButtonState(SecondToolbarOf(mainWindow), id), TBSTATE_ENABLED | TBSTATE_CHECKED) << id;
        EXPECT_EQ(ToolButtonState(ToolbarOf(mainWindow), IDT_POINTER), TBSTATE_ENABLED) << id;
    }
}

// However narrow the window, no button and no box lies beyond its edge.
TEST_F(ToolbarTest, TheToolbarsFitANarrowWindow) {
    StartWithSample("hub");
    for (int width : { 900, 620, 460, 380 }) {
        SetWindowPos(mainWindow, nullptr, 0, 0, width, 700, SWP_NOZORDER);
        Settle(mainWindow);
        RECT client{};
        GetClientRect(mainWindow, &client);
        MapWindowPoints(mainWindow, nullptr, reinterpret_cast<POINT*>(&client), 2);
        RECT rebar{};
        GetWindowRect(ChildOfClass(mainWindow, REBARCLASSNAMEW), &rebar);
        for (int id : { IDC_DESIGNATOR, IDC_PARKING_TYPE, IDC_PARKING_SPEC, IDC_ROTATION }) {
            RECT box{};
            GetWindowRect(ChildWithId(mainWindow, id), &box);
            EXPECT_LE(box.right, client.right) << id << " at " << width;
            EXPECT_GE(box.top, rebar.top) << id << " at " << width;
            EXPECT_LE(box.bottom, rebar.bottom) << id << " at " << width;
        }
        for (int id : { IDT_OPEN, IDT_CLOSED_LINK, IDT_PARKING, IDT_GUIDELINES }) {
            const HWND toolbar = ToolbarWith(mainWindow, id);
            RECT button = ToolButtonRect(toolbar, id);
            MapWindowPoints(toolbar, nullptr, reinterpret_cast<POINT*>(&button), 2);
            EXPECT_LE(button.right, client.right) << id << " at " << width;
            EXPECT_LE(button.bottom, rebar.bottom) << id << " at " << width;
        }
    }
}

TEST_F(ToolbarTest, TheRotationStandsOnTheToolbar) {
    StartWithSample("hub");
    EXPECT_TRUE(WaitUntil([&] { return RotationText(mainWindow) == L"  0.0*"; }));
    PostKey(mainWindow, VK_NEXT);
    EXPECT_TRUE(WaitUntil([&] { return RotationText(mainWindow) == L"355.0*"; })) << Utf8(RotationText(mainWindow));
}

// As Windows says it when the window comes to a monitor of that resolution, with the place that it proposes.
void MoveToResolution(HWND mainWindow, int dpi, const RECT& place) {
    constexpr UINT kDpiChanged = 0x02E0;  // WM_DPICHANGED of Windows 8.1
    RemoteMemory memory(mainWindow, sizeof place);
    memory.Put(&place, sizeof place);
    SendMessageW(mainWindow, kDpiChanged, static_cast<WPARAM>(MAKELONG(dpi, dpi)),
                 reinterpret_cast<LPARAM>(memory.address));
}

TEST_F(ToolbarTest, AMonitorOfAnotherResolutionScalesToolbarsAndStatusBarAndTheWindowGoesWhereItIsProposed) {
    StartWithSample("regional");
    const auto buttonWidth = [&] { return LOWORD(SendMessageW(ToolbarOf(mainWindow), TB_GETBUTTONSIZE, 0, 0)); };
    const auto barHeight = [&] {
        RECT bar{};
        GetWindowRect(StatusBarOf(mainWindow), &bar);
        return bar.bottom - bar.top;
    };
    const int width = buttonWidth();
    const LONG height = barHeight();
    const RECT proposed = { 20, 30, 1220, 930 }, old = { 10, 10, 1010, 760 };
    MoveToResolution(mainWindow, 192, proposed);
    EXPECT_TRUE(WaitUntil([&] { return buttonWidth() >= 2 * width - 4; })) << buttonWidth() << " after " << width;
    EXPECT_GT(barHeight(), height * 3 / 2);
    RECT now{};
    GetWindowRect(mainWindow, &now);
    EXPECT_TRUE(EqualRect(&now, &proposed));
    MoveToResolution(mainWindow, 96, old);
    EXPECT_TRUE(WaitUntil([&] { return buttonWidth() == width && barHeight() == height; })) << buttonWidth();
    EXPECT_TRUE(IsWindowEnabled(mainWindow));
    EXPECT_EQ(CloseProgram(), 0u);
}

}  // namespace ui
