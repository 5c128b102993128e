// MapKeysTest.cpp - the map by keys, wheel and right button.
#include "ProgramParts.h"
#include "Resource.h"
#include "UiHarness.h"

namespace ui {

namespace {

constexpr int kArrow = 1, kMove = 15, kPlacing = 9;  // where the hot spots of the cursors are

// Of the program in front.
HCURSOR ShownCursor() {
    CURSORINFO info{};
    info.cbSize = sizeof info;
    return GetCursorInfo(&info) ? info.hCursor : nullptr;
}

}  // namespace

class MapKeysTest : public UiTest {
protected:
    bool WaitForHotSpot(int x) {
        return WaitUntil([&] { return CursorHotSpot(agent).x == x; });
    }
};

TEST_F(MapKeysTest, TheLockKeepsTheMapInPlaceButLetsItZoom) {
    StartWithSample("grass");
    const POINT middlePixel = MapMiddle(mainWindow);
    const int x = middlePixel.x, y = middlePixel.y;
    const auto at = [&](int dx) { return PositionBeside(mainWindow, dx); };
    Command(IDM_LOCK);
    EXPECT_TRUE(IsChecked(IDM_LOCK));
    EXPECT_EQ(ToolButtonState(ToolbarOf(mainWindow), IDT_LOCK), TBSTATE_ENABLED | TBSTATE_CHECKED);
    const std::wstring middle = at(0), right = at(90);
    PostKey(mainWindow, VK_LEFT);
    PostKey(mainWindow, VK_END);
    PostKey(mainWindow, VK_HOME);
    SettlePosted(agent);
    SendWheel(mainWindow, x, y, 120, MK_CONTROL);
    EXPECT_EQ(at(0), middle);
    EXPECT_EQ(at(90), right);
    SendWheel(mainWindow, x, y, 120);
    EXPECT_EQ(at(100), right) << "a locked map zooms";
    ClickToolButton(mainWindow, IDT_LOCK);
    EXPECT_FALSE(IsChecked(IDM_LOCK));
    PostKey(mainWindow, VK_LEFT);
    EXPECT_TRUE(WaitUntil([&] { return at(0) != middle; }));
}

TEST_F(MapKeysTest, TheWheelKeepsWhatIsLeftOfANotch) {
    StartWithSample("grass");
    const POINT middlePixel = MapMiddle(mainWindow);
    const int x = middlePixel.x, y = middlePixel.y;
    const auto at = [&](int dx) { return PositionBeside(mainWindow, dx); };
    const std::wstring outside = at(81);
    SendWheel(mainWindow, x, y, 200);
    EXPECT_EQ(at(90), outside) << "one step for 200";
    SendWheel(mainWindow, x, y, 39);
    EXPECT_EQ(at(90), outside);
    SendWheel(mainWindow, x, y, 1);
    EXPECT_EQ(at(100), outside) << "the 80 that were left and 40 more are a step";
}

TEST_F(MapKeysTest, PGoesFromNoLabelsToTypesToCodesToNone) {
    Start();
    const auto press = [&] {
        PostKey(mainWindow, 'P');
        SettlePosted(agent);
        return (IsChecked(IDM_LABEL_TYPES) ? 1 : 0) + (IsChecked(IDM_LABEL_CODES) ? 2 : 0);
    };
    EXPECT_EQ(press(), 1);
    EXPECT_EQ(press(), 2);
    EXPECT_EQ(press(), 0);
    EXPECT_EQ(press(), 1);
}

TEST_F(MapKeysTest, TheCursorTurnsToNightAndToAnotherToolUnderThePointerAtRest) {
    StartWithSample("grass");
    BringToFront(mainWindow);
    const POINT ground = GoToEmptyGround(mainWindow);
    MovePointer(mainWindow, ground.x, ground.y);
    ASSERT_TRUE(WaitForHotSpot(kArrow));
    const HCURSOR day = ShownCursor();
    PostKey(mainWindow, 'L');
    EXPECT_TRUE(WaitUntil([&] { return ShownCursor() != day; }));
    PostKey(mainWindow, 'L');
    EXPECT_TRUE(WaitUntil([&] { return ShownCursor() == day; }));
    Command(IDT_NORMAL_NODE);
    EXPECT_TRUE(WaitForHotSpot(kPlacing));
    Command(IDT_POINTER);
    EXPECT_TRUE(WaitForHotSpot(kArrow));
}

TEST_F(MapKeysTest, TheCursorIsThatOfThePlaceWhereThePointerIs) {
    StartWithSample("grass");
    const POINT node = CreateNode(mainWindow, IDT_NORMAL_NODE);
    Command(IDT_POINTER);
    BringToFront(mainWindow);
    MovePointer(mainWindow, node.x + 60, node.y);
    ASSERT_TRUE(WaitForHotSpot(kArrow));
    MovePointer(mainWindow, node.x, node.y);
    EXPECT_TRUE(WaitForHotSpot(kMove)) << "it is selected and can be dragged";
}

TEST_F(MapKeysTest, ARightClickOnTheMapOpensItsMenu) {
    StartWithSample("grass");
    const RECT area = MapArea(mainWindow);
    POINT at = { area.left + 100, area.top + 100 };
    ClientToScreen(mainWindow, &at);
    ASSERT_TRUE(OpenMenu([&] {
        PostMessageW(mainWindow, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(mainWindow), MAKELPARAM(at.x, at.y));
    }));
    const HWND menu = WaitForWindow(program.id, L"#32768", nullptr);
    ASSERT_NE(menu, nullptr) << "no menu";
    RECT place{};
    GetWindowRect(menu, &place);
    EXPECT_EQ(place.left, at.x);
    EXPECT_EQ(place.top, at.y);
    PostMessageW(mainWindow, WM_KEYDOWN, VK_ESCAPE, 1);
    EXPECT_TRUE(WaitUntil([&] { return !IsWindowVisible(menu); }));
    EXPECT_TRUE(SettlePosted(agent));
}

}  // namespace ui
