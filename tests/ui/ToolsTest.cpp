// ToolsTest.cpp - a small network built with the mouse on empty ground, seen on the screen, and taken back again.
#include "ProgramParts.h"
#include "Resource.h"
#include "UiHarness.h"

namespace ui {

constexpr uint32_t kNode = 0x6E6EFF, kSelected = 0xFFC81E, kTaxiLink = 0x8C8CFF, kParkingLink = 0x00BE00;
constexpr uint32_t kSpotFill = 0xA0FFA0, kApron = 0xC3C3B4, kGround = 0xE6E1CC;

namespace {

// While a button is held the map gets the mouse wherever it is.
bool HasCapture(HWND window) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info) && info.hwndCapture == window;
}

}  // namespace

class ToolsTest : public UiTest {
protected:
    void SetUp() override {
        StartWithSample("grass");
        // Two screens to the east there is nothing but ground, and the grid is off.
        for (int i = 0; i < 45; ++i) PostKey(mainWindow, VK_RIGHT);
        PostKey(mainWindow, 'G');
        SettlePosted(agent);
        middle = MapMiddle(mainWindow);
    }
    POINT At(int dx, int dy) const { return { middle.x + dx, middle.y + dy }; }
    void Click(int dx, int dy, WPARAM keys = 0) {
        SendClick(mainWindow, At(dx, dy).x, At(dx, dy).y, keys);
        Settle(mainWindow);
    }
    // With the real mouse: the pointer moves, the window captures it.
    void Pull(POINT from, POINT to) {
        BringToFront(mainWindow);
        const POINT between = { (from.x + to.x) / 2, (from.y + to.y) / 2 };
        DragPointer(mainWindow, { from, between, to });
        SettlePosted(agent);
        Settle(mainWindow);
    }
    bool Has(POINT at, uint32_t colour) { return CountColourAround(GrabMap(mainWindow), at, colour) > 0; }
    bool IsEmpty() {
        const Picture picture = GrabMap(mainWindow);
        const RECT area = MapArea(mainWindow);
        return CountColour(picture, area, kGround) == (area.right - area.left) * (area.bottom - area.top);
    }
    int UndoAll() {
        int count = 0;
        while (!IsGreyed(IDM_UNDO) && count < 30) {
            Command(IDM_UNDO);
            SettlePosted(agent);
            ++count;
        }
        return count;
    }
    void Deselect() {
        Command(IDT_POINTER);
        Click(300, 200);
    }
    void Key(WORD key) {
        PostKey(mainWindow, key);
        SettlePosted(agent);
    }
    POINT middle{};
};

TEST_F(ToolsTest, ANetworkIsBuiltWithTheMouseAndTakenBack) {
    ASSERT_TRUE(IsEmpty());
    Command(IDT_NORMAL_NODE);
    Click(-150, 0);
    Click(0, 0);
    Command(IDT_NORMAL_LINK);
    Pull(At(-150, 0), At(0, 0));
    Pull(At(0, 0), At(0, -120));  // to empty ground: a node is made there
    Command(IDT_PARKING);
    Click(150, 0);
    Command(IDT_APRON_LINK);
    Pull(At(0, 0), At(150, 0));
    Deselect();
    EXPECT_TRUE(Has(At(-150, 0), kNode));
    EXPECT_TRUE(Has(At(-75, 0), kTaxiLink));
    EXPECT_TRUE(Has(At(0, -60), kTaxiLink));
    EXPECT_TRUE(Has(At(0, -120), kNode));
    EXPECT_TRUE(Has(At(75, 0), kParkingLink));
    EXPECT_TRUE(Has(At(150, -4), kSpotFill));
    EXPECT_EQ(UndoAll(), 6);
    EXPECT_TRUE(IsEmpty());
}

TEST_F(ToolsTest, AnApronIsDrawnAndGetsACorner) {
    Command(IDT_APRON);
    Click(-100, -80);
    Click(100, -80);
    Click(100, 80);
    EXPECT_TRUE(IsGreyed(IDM_UNDO));
    Key(VK_ESCAPE);
    EXPECT_FALSE(IsGreyed(IDM_UNDO));
    Deselect();
    EXPECT_TRUE(Has(At(50, -40), kApron));
    EXPECT_FALSE(Has(At(-60, 40), kApron));
    Command(IDT_APRON_POINT);
    Click(0, 0);  // on the edge that closed it
    Command(IDT_POINTER);
    Pull(At(0, 0), At(-80, 70));
    Deselect();
    EXPECT_TRUE(Has(At(-40, 30), kApron));
    EXPECT_EQ(UndoAll(), 3);
    EXPECT_TRUE(IsEmpty());
}

TEST_F(ToolsTest, AnAbandonedOutlineLeavesNoArea) {
    Command(IDT_APRON);
    Click(-100, -80);
    Click(100, -80);
    Click(100, 80);
    EXPECT_TRUE(Has(At(50, -40), kApron)) << "the area is not shown while it is drawn";
    Command(IDT_POINTER);
    EXPECT_TRUE(IsEmpty());
    EXPECT_TRUE(IsGreyed(IDM_UNDO));
}

TEST_F(ToolsTest, BackspaceTakesACornerBackAndEnterClosesTheRest) {
    Command(IDT_APRON);
    Click(-100, -80);
    Click(100, -80);
    Click(100, 80);
    Click(300, 80);
    Key(VK_BACK);
    Key(VK_RETURN);
    Deselect();
    EXPECT_TRUE(Has(At(50, -40), kApron));
    EXPECT_FALSE(Has(At(140, 60), kApron));
}

TEST_F(ToolsTest, TheRectangleSelectsAndDelDeletes) {
    Command(IDT_NORMAL_NODE);
    Click(-100, 0);
    Click(-50, 0);
    Click(100, 0);
    Command(IDT_POINTER);
    Click(300, 200);
    Pull(At(-130, -40), At(-20, 40));
    EXPECT_TRUE(Has(At(-100, 0), kSelected));
    EXPECT_TRUE(Has(At(-50, 0), kSelected));
    EXPECT_TRUE(Has(At(100, 0), kNode));
    Key(VK_DELETE);
    EXPECT_FALSE(Has(At(-100, 0), kSelected));
    EXPECT_TRUE(Has(At(100, 0), kNode));
    EXPECT_EQ(UndoAll(), 4);
    EXPECT_TRUE(IsEmpty());
}

TEST_F(ToolsTest, ASpotIsTurnedByItsHandle) {
    Command(IDT_PARKING);
    Click(0, 0);
    Command(IDT_POINTER);
    Click(0, 0);
    constexpr double kSpan = 3704.35, kRadius = 38;  // metres: of the map's height, and of a new spot
    const double radius = kRadius * MapHeight(mainWindow) / kSpan;
    constexpr int kHandle = 12;  // pixels from the spot's edge
    Pull(At(0, -static_cast<int>(radius + 0.5) - kHandle), At(80, 0));
    EXPECT_FALSE(IsGreyed(IDM_UNDO));
    Command(IDM_UNDO);
    SettlePosted(agent);
    EXPECT_FALSE(IsGreyed(IDM_UNDO)) << "the turn was no action of its own";
}

TEST_F(ToolsTest, GuidelinesAndMarkersComeAndGoTogether) {
    Command(IDT_MARKERS);
    Click(-100, -50);
    Command(IDT_GUIDELINES);
    Pull(At(-100, -50), At(100, 50));
    Deselect();
    EXPECT_FALSE(IsEmpty());
    EXPECT_FALSE(IsGreyed(IDM_DELETE_GUIDELINES));
    Command(IDM_DELETE_GUIDELINES);
    SettlePosted(agent);
    EXPECT_TRUE(IsEmpty());
    EXPECT_EQ(UndoAll(), 3);
}

TEST_F(ToolsTest, AnEscapedPullLeavesNoDirt) {
    Command(IDT_NORMAL_LINK);
    SendMouse(mainWindow, WM_LBUTTONDOWN, At(-100, 0).x, At(-100, 0).y, MK_LBUTTON);
    SendMouse(mainWindow, WM_MOUSEMOVE, At(100, 60).x, At(100, 60).y, MK_LBUTTON);
    EXPECT_FALSE(IsEmpty()) << "no rubber band";
    Key(VK_ESCAPE);
    SendMouse(mainWindow, WM_LBUTTONUP, At(100, 60).x, At(100, 60).y);
    EXPECT_TRUE(IsEmpty());
    EXPECT_TRUE(IsGreyed(IDM_UNDO));
}

TEST_F(ToolsTest, LosingTheMouseLeavesNothingBehind) {
    Command(IDT_NORMAL_NODE);
    Click(0, 0);
    Command(IDT_POINTER);
    GrabMap(mainWindow);  // parks the pointer, which would drag the node along
    SendMouse(mainWindow, WM_LBUTTONDOWN, At(0, 0).x, At(0, 0).y, MK_LBUTTON);
    SendMouse(mainWindow, WM_MOUSEMOVE, At(100, 60).x, At(100, 60).y, MK_LBUTTON);
    const Picture during = GrabStable([&] { return GrabClient(mainWindow); });
    EXPECT_GT(CountColourAround(during, At(100, 60), kSelected), 0);
    SendMessageW(mainWindow, WM_CANCELMODE, 0, 0);
    Settle(mainWindow);
    EXPECT_TRUE(Has(At(0, 0), kSelected));
    EXPECT_EQ(UndoAll(), 1);
    EXPECT_TRUE(IsEmpty());
}

// With Alt+Tab the release of the button goes to another program.
TEST_F(ToolsTest, LeavingTheProgramEndsTheDrag) {
    Command(IDT_NORMAL_NODE);
    Click(0, 0);
    Command(IDT_POINTER);
    GrabMap(mainWindow);
    SendMouse(mainWindow, WM_LBUTTONDOWN, At(0, 0).x, At(0, 0).y, MK_LBUTTON);
    SendMouse(mainWindow, WM_MOUSEMOVE, At(100, 60).x, At(100, 60).y, MK_LBUTTON);
    SendMessageW(mainWindow, WM_ACTIVATEAPP, FALSE, 0);
    SendMouse(mainWindow, WM_MOUSEMOVE, At(200, 60).x, At(200, 60).y);
    Settle(mainWindow);
    EXPECT_TRUE(Has(At(0, 0), kSelected));
    EXPECT_EQ(UndoAll(), 1);
    EXPECT_TRUE(IsEmpty());
}

// The toolbars lie over the map, they do not push it down.
TEST_F(ToolsTest, APressLandsWhereThePointerIs) {
    const RECT area = MapArea(mainWindow);
    Command(IDT_NORMAL_NODE);
    Click(area.left + 40 - middle.x, area.top + 40 - middle.y);
    Deselect();
    EXPECT_TRUE(Has({ area.left + 40, area.top + 40 }, kNode));
}

TEST_F(ToolsTest, ADragAtTheEdgeTakesTheMapAlong) {
    Command(IDT_NORMAL_NODE);
    Click(0, 0);
    Command(IDT_POINTER);
    const RECT area = MapArea(mainWindow);
    BringToFront(mainWindow);
    MovePointer(mainWindow, At(0, 0).x, At(0, 0).y);
    MouseButton(MOUSEEVENTF_LEFTDOWN);
    MovePointer(mainWindow, area.right - 3, middle.y);
    const std::wstring there = StatusText(mainWindow, kPositionPart);
    EXPECT_TRUE(WaitUntil([&] { return StatusText(mainWindow, kPositionPart) != there; })) << "the map stands still";
    EXPECT_TRUE(HasCapture(mainWindow));
    MouseButton(MOUSEEVENTF_LEFTUP);
    EXPECT_TRUE(WaitUntil([&] { return !HasCapture(mainWindow); })) << "the drag does not end";
    EXPECT_EQ(UndoAll(), 2);
}

}  // namespace ui
