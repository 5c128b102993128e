// OneDialogTest.cpp - while a property dialog is open over the map, nothing else opens and nothing else is edited.
#include <string>

#include "GroundSteps.h"

namespace ui {

class OneDialogTest : public GroundTest {
protected:
    HWND Designator() const { return ChildWithId(mainWindow, IDC_DESIGNATOR); }
    static int Rows(HWND combo) { return static_cast<int>(SendMessageW(combo, CB_GETCOUNT, 0, 0)); }
    static int Row(HWND combo) { return static_cast<int>(SendMessageW(combo, CB_GETCURSEL, 0, 0)); }

    // All that was posted is done, and no other dialog or box has come of it.
    void ExpectAlone(HWND dialog) {
        ASSERT_TRUE(SettlePosted(agent));
        int dialogs = 0;
        for (const HWND window : TopLevelWindows(program.id)) dialogs += ClassOf(window) == L"#32770";
        ASSERT_EQ(dialogs, 1);
        ASSERT_TRUE(IsWindow(dialog));
    }
    // Posted to the box itself: it is greyed, so that no click and no key leads there.
    void TypeMeanwhile(const std::wstring& text) {
        const HWND edit = ChildOfClass(Designator(), L"Edit");
        for (const wchar_t letter : text) PostMessageW(edit, WM_CHAR, letter, 1);
        ASSERT_TRUE(WaitUntil([&] { return TextOf(Designator()) == text; })) << Utf8(TextOf(Designator()));
        PostMessageW(edit, WM_KEYDOWN, VK_RETURN, 1);
        EXPECT_TRUE(WaitUntil([&] { return TextOf(Designator()).empty(); })) << Utf8(TextOf(Designator()));
    }
};

TEST_F(OneDialogTest, NoOtherOpensByMouseMenuOrKey) {
    StartOnGround();
    const POINT spot = Beside(kApart);
    Use(IDT_NORMAL_NODE, ground);
    Use(IDT_PARKING, spot);
    HWND dialog = OpenByDoubleClick(ground, kNode);
    ASSERT_NE(dialog, nullptr);
    PostDoubleClick(spot);  // it gives the node that place
    ASSERT_NO_FATAL_FAILURE(ExpectAlone(dialog)) << "a double click";
    for (const UINT command : { IDM_NEW, IDM_OPEN, IDM_CLOSE, IDM_SAVE_AS, IDM_AIRPORT_PROPERTIES, IDM_INSERT_RUNWAY,
                                IDM_INSERT_TOWER, IDM_LIST_NAVAIDS, IDM_FAULT_FINDER, IDM_OPTIONS }) {
        EXPECT_TRUE(IsGreyed(command)) << command;
        PostCommand(mainWindow, command);
        ASSERT_NO_FATAL_FAILURE(ExpectAlone(dialog)) << command;
    }
    PostKey(mainWindow, VK_DELETE);
    PostMessageW(mainWindow, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(mainWindow), -1);
    ASSERT_NO_FATAL_FAILURE(ExpectAlone(dialog)) << "a key";
    EXPECT_FALSE(InMenu(mainWindow));
    CloseDialog(dialog, IDCANCEL);
    for (const auto& [at, title] : { std::pair(ground, kNode), std::pair(spot, kSpot) }) {
        ASSERT_NE(dialog = OpenByDoubleClick(at, title), nullptr) << "not where it was";
        CloseDialog(dialog, IDCANCEL);
    }
    EXPECT_EQ(Undoes(), 2) << "the node and the spot";
}

// A name would be given to the selected link, an unknown one asked about.
TEST_F(OneDialogTest, WhatIsTypedInTheDesignatorBoxMeanwhileChangesNothing) {
    StartOnGround();
    const POINT link = MakeLink();
    const int rows = Rows(Designator());
    const std::wstring known = ComboText(Designator(), 1);
    const HWND dialog = OpenByDoubleClick(link, kLink);
    ASSERT_NE(dialog, nullptr);
    EXPECT_FALSE(IsWindowEnabled(Designator()));
    for (const std::wstring& text : { known, std::wstring(L"ZZ9") }) {
        ASSERT_NO_FATAL_FAILURE(TypeMeanwhile(text));
        ASSERT_NO_FATAL_FAILURE(ExpectAlone(dialog));
        EXPECT_EQ(Row(Designator()), 0);
    }
    EXPECT_EQ(Rows(Designator()), rows);
    CloseDialog(dialog, IDCANCEL);
    EXPECT_TRUE(IsWindowEnabled(Designator()));
    EXPECT_EQ(Undoes(), 1) << "the link";
}

TEST_F(OneDialogTest, WhatWasBeingTypedBeforeIsTakenBackWithoutAQuestion) {
    StartOnGround();
    const int rows = Rows(Designator());
    const HWND edit = ChildOfClass(Designator(), L"Edit");
    ASSERT_TRUE(BringToFront(mainWindow));
    ClickPointer(edit, 10, 5);
    ASSERT_TRUE(WaitUntil([&] { return FocusOf(agent) == edit; }));
    TypeText(L"zz9");
    ASSERT_TRUE(WaitUntil([&] { return TextOf(Designator()) == L"zz9"; })) << Utf8(TextOf(Designator()));
    const HWND dialog = Open(IDM_AIRPORT_PROPERTIES, L"Airport Properties");
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(WaitUntil([&] { return TextOf(Designator()).empty(); })) << Utf8(TextOf(Designator()));
    ASSERT_NO_FATAL_FAILURE(ExpectAlone(dialog));
    CloseDialog(dialog, IDCANCEL);
    EXPECT_EQ(Rows(Designator()), rows);
    EXPECT_FALSE(CanUndo());
}

TEST_F(OneDialogTest, AParkingTypeChosenOnTheToolbarMeanwhileChangesNothing) {
    StartOnGround();
    Use(IDT_PARKING, ground);
    HWND dialog = OpenByDoubleClick(ground, kSpot);
    ASSERT_NE(dialog, nullptr);
    const HWND types = ChildWithId(mainWindow, IDC_PARKING_TYPE);
    const int before = Row(types), shown = Choice(dialog, IDC_SPOT_TYPE);
    PickInCombo(types, (before + 3) % Rows(types));
    EXPECT_EQ(Row(types), before);
    ASSERT_NO_FATAL_FAILURE(ExpectAlone(dialog));
    ASSERT_NE(dialog = Reopen(dialog, IDCANCEL, ground, kSpot), nullptr);
    EXPECT_EQ(Choice(dialog, IDC_SPOT_TYPE), shown);
    CloseDialog(dialog, IDCANCEL);
    EXPECT_EQ(Undoes(), 1) << "the spot";
}

}  // namespace ui
