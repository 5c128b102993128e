// EditTest.cpp - nodes made, taken back, repeated and deleted, as seen on the screen.
#include "ProgramParts.h"
#include "Resource.h"
#include "UiHarness.h"

namespace ui {

constexpr uint32_t kNormal = 0x6E6EFF, kHoldShort = 0xFF0000, kIlsHoldShort = 0xE6E600, kSelected = 0xFFC81E;

class EditTest : public UiTest {
protected:
    // Whether a node of that colour, and nothing else, lies at the point.
    bool NodeAt(POINT at, uint32_t colour) {
        const Picture picture = GrabMap(mainWindow);
        int others = 0;
        for (uint32_t other : { kNormal, kHoldShort, kIlsHoldShort, kSelected })
            others += other == colour ? 0 : CountColourAround(picture, at, other);
        return others == 0 && CountColourAround(picture, at, colour) > 0;
    }
    bool GroundAt(POINT at) {
        const Picture picture = GrabMap(mainWindow);
        return CountColourAround(picture, at, PixelAt(picture, at.x, at.y)) == 49;
    }
    bool CanDo(UINT id) { return !IsGreyed(id); }
};

TEST_F(EditTest, ANodeIsMadeUndoneRedoneAndDeleted) {
    StartWithSample("hub");
    const POINT at = GoToEmptyGround(mainWindow);
    ASSERT_TRUE(GroundAt(at));
    EXPECT_FALSE(CanDo(IDM_UNDO));
    ClickToolButton(mainWindow, IDT_HOLD_SHORT_NODE);
    SendClick(mainWindow, at.x, at.y);
    EXPECT_TRUE(NodeAt(at, kSelected));
    EXPECT_TRUE(CanDo(IDM_UNDO));
    EXPECT_EQ(ToolButtonState(ToolbarOf(mainWindow), IDT_UNDO), TBSTATE_ENABLED);

    ClickToolButton(mainWindow, IDT_UNDO);
    EXPECT_TRUE(GroundAt(at));
    EXPECT_FALSE(CanDo(IDM_UNDO));
    Command(IDM_REDO);
    EXPECT_FALSE(GroundAt(at));

    ClickToolButton(mainWindow, IDT_POINTER);
    SendClick(mainWindow, at.x, at.y);
    EXPECT_TRUE(NodeAt(at, kSelected));
    PostKey(mainWindow, VK_DELETE);
    SettlePosted(agent);
    EXPECT_TRUE(GroundAt(at));
    HoldKey(agent, VK_CONTROL, true);
    PostKey(mainWindow, 'Z');
    SettlePosted(agent);
    HoldKey(agent, VK_CONTROL, false);
    EXPECT_FALSE(GroundAt(at)) << "Ctrl+Z did not bring the node back";
}

TEST_F(EditTest, EveryKindOfNodeHasItsColourOnceItIsDeselected) {
    struct {
        int button;
        uint32_t colour;
    } const rows[] = { { IDT_NORMAL_NODE, kNormal },
                       { IDT_HOLD_SHORT_NODE, kHoldShort },
                       { IDT_ILS_HOLD_SHORT_NODE, kIlsHoldShort } };
    StartWithSample("hub");
    POINT at = GoToEmptyGround(mainWindow);
    for (const auto& row : rows) {
        ClickToolButton(mainWindow, row.button);
        SendClick(mainWindow, at.x, at.y);
        ClickToolButton(mainWindow, IDT_POINTER);
        SendClick(mainWindow, at.x, at.y + 60);  // empty ground: deselects
        EXPECT_TRUE(NodeAt(at, row.colour)) << row.button;
        at.x += 40;
    }
}

TEST_F(EditTest, ANodeIsNotMadeOnTheToolbarOrTheStatusBar) {
    StartWithSample("hub");
    ClickToolButton(mainWindow, IDT_NORMAL_NODE);
    const RECT area = MapArea(mainWindow);
    SendClick(mainWindow, area.left + 50, area.top - 2);
    SendClick(mainWindow, area.left + 50, area.bottom + 2);
    SettlePosted(agent);
    EXPECT_FALSE(CanDo(IDM_UNDO));
}

TEST_F(EditTest, TheMiddleOfTheMapIsTheAirportsReferencePoint) {
    StartWithSample("hub");
    const POINT centre = MapMiddle(mainWindow);
    SendMouse(mainWindow, WM_MOUSEMOVE, centre.x, centre.y);
    const std::wstring middle = StatusText(mainWindow, kPositionPart);
    PostKey(mainWindow, VK_RIGHT);
    SettlePosted(agent);
    EXPECT_TRUE(WaitUntil([&] { return StatusText(mainWindow, kPositionPart) != middle; })) << "the map stands still";
    PostKey(mainWindow, VK_HOME);
    EXPECT_TRUE(WaitUntil([&] { return StatusText(mainWindow, kPositionPart) == middle; }));
}

}  // namespace ui
