// ToolTableTest.cpp - every tool of the map with the real pointer on free ground: what it makes is moved, selected,
// deleted and taken back, in the plain view and in a turned and enlarged one.
#include <initializer_list>
#include <string>
#include <vector>

#include "ProgramParts.h"
#include "Resource.h"
#include "UiHarness.h"

namespace ui {

namespace {

// Places are pixels right of and below the middle of the map. A gesture that ends where it begins is a click.
struct Gesture {
    POINT from, to;
};

// One action of the user: the tool's gestures, and Esc where an outline is to be closed.
struct Making {
    UINT tool;
    std::vector<Gesture> gestures;
    bool closes = false;
};

struct ToolRow {
    const char* name;
    std::vector<Making> makings;
    POINT grip;                // where the object is taken hold of
    POINT shift = { 90, 60 };  // how far it is dragged then
    bool leavesGround = true;  // nothing remains where it was
    bool clearsAll = false;    // by Ctrl+Del instead of Del
};

Gesture Press(LONG x, LONG y) { return { { x, y }, { x, y } }; }

Making Triangle() { return { IDT_APRON, { Press(-40, -40), Press(40, -40), Press(40, 40) }, true }; }

std::vector<ToolRow> ToolTable() {
    const Gesture across = { { -40, 0 }, { 40, 0 } }, sloping = { { -40, -20 }, { 40, 20 } };
    return {
        { "normal node", { { IDT_NORMAL_NODE, { Press(0, 0) } } }, { 0, 0 } },
        { "hold-short node", { { IDT_HOLD_SHORT_NODE, { Press(0, 0) } } }, { 0, 0 } },
        { "ILS hold-short node", { { IDT_ILS_HOLD_SHORT_NODE, { Press(0, 0) } } }, { 0, 0 } },
        { "normal link", { { IDT_NORMAL_LINK, { across } } }, { 0, 0 } },
        { "runway link", { { IDT_RUNWAY_LINK, { across } } }, { 0, 0 } },
        { "apron link", { { IDT_APRON_LINK, { sloping } } }, { 0, 0 } },
        { "closed link", { { IDT_CLOSED_LINK, { across } } }, { 0, 0 } },
        { "parking spot", { { IDT_PARKING, { Press(0, 0) } } }, { 0, 0 } },
        { "apron", { Triangle() }, { 13, -13 } },
        { "apron point", { Triangle(), { IDT_APRON_POINT, { Press(0, -40) } } }, { 0, -40 }, { 0, -70 }, false },
        { "marker", { { IDT_MARKERS, { Press(0, 0) } } }, { 0, 0 } },
        { "all markers", { { IDT_MARKERS, { Press(0, 0) } } }, { 0, 0 }, { -80, 50 }, true, true },
        { "guideline", { { IDT_GUIDELINES, { sloping } } }, { 0, 0 } },
        { "all guidelines", { { IDT_GUIDELINES, { across } } }, { 0, 0 }, { -80, 50 }, true, true },
        { "edge lights", { { IDT_EDGE_LIGHTS, { across } } }, { 0, 0 } },
    };
}

INPUT KeyInput(WORD key, DWORD flags) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    return input;
}

INPUT ButtonInput(DWORD flags) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    return input;
}

bool SameMap(const Picture& a, const Picture& b, const RECT& area) {
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            if (PixelAt(a, x, y) != PixelAt(b, x, y)) return false;
        }
    }
    return true;
}

// Positions are kept in steps: what is placed lies up to a pixel beside the pointer.
bool SameAround(const Picture& a, const Picture& b, POINT at) {
    return SameMap(a, b, { at.x - 3, at.y - 3, at.x + 4, at.y + 4 });
}

}  // namespace

class ToolTableTest : public UiTest {
protected:
    void StartOnFreeGround() {
        ASSERT_NO_FATAL_FAILURE(StartWithSample("grass"));
        // Two screens to the east there is nothing but ground, and the grid is off.
        for (int i = 0; i < 45; ++i) PostKey(mainWindow, VK_RIGHT);
        PostKey(mainWindow, 'G');
        ASSERT_TRUE(SettlePosted(agent));
        ASSERT_TRUE(BringToFront(mainWindow));
        middle = MapMiddle(mainWindow);
    }
    void TurnAndEnlarge() {
        for (int i = 0; i < 3; ++i) {
            const std::wstring before = RotationText(mainWindow);
            TapKey(VK_END);
            ASSERT_TRUE(WaitUntil([&] { return RotationText(mainWindow) != before; })) << "End does not turn the map";
        }
        ASSERT_NO_FATAL_FAILURE(FindRest());
        const std::wstring before = restText;
        SendWheel(mainWindow, middle.x, middle.y, 2 * WHEEL_DELTA);
        ASSERT_TRUE(Settle(mainWindow));
        ASSERT_NO_FATAL_FAILURE(FindRest());
        ASSERT_NE(restText, before) << "the wheel does not enlarge the map";
    }
    // The position read-out at the pointer's place of rest. Only for as long as the view stays.
    void FindRest() {
        for (const POINT at : { POINT{ 0, 0 }, kNearRest, kRest }) {
            const std::wstring before = Position();
            MovePointer(mainWindow, At(at).x, At(at).y);
            ASSERT_TRUE(WaitUntil([&] { return Position() != before; })) << "the read-out does not follow";
        }
        restText = Position();
    }
    // Input stands in one queue: when the read-out follows the pointer to its rest, all before has been obeyed.
    // What is posted overtakes it and shows nothing.
    void Rest() {
        MovePointer(mainWindow, At(kNearRest).x, At(kNearRest).y);
        ASSERT_TRUE(WaitUntil([&] { return Position() != restText; })) << "the read-out does not follow";
        MovePointer(mainWindow, At(kRest).x, At(kRest).y);
        ASSERT_TRUE(WaitUntil([&] { return Position() == restText; })) << Utf8(Position());
    }
    std::wstring Position() const { return StatusText(mainWindow, kPositionPart); }
    POINT At(POINT offset) const { return { middle.x + offset.x, middle.y + offset.y }; }

    void Click(POINT offset) {
        ClickPointer(mainWindow, At(offset).x, At(offset).y);
        Rest();
    }
    // All at once: the echo of a pointer's move would lift the key again, which the X server knows nothing of.
    void ClickHolding(WORD key, POINT offset) {
        MovePointer(mainWindow, At(offset).x, At(offset).y);
        INPUT inputs[] = { KeyInput(key, 0), ButtonInput(MOUSEEVENTF_LEFTDOWN), ButtonInput(MOUSEEVENTF_LEFTUP),
                           KeyInput(key, KEYEVENTF_KEYUP) };
        SendInput(4, inputs, sizeof inputs[0]);
        Rest();
    }
    void Pull(POINT from, POINT to) {
        DragPointer(mainWindow, { At(from), At({ (from.x + to.x) / 2, (from.y + to.y) / 2 }), At(to) });
        Rest();
    }
    void Do(const Gesture& gesture) {
        if (gesture.from.x == gesture.to.x && gesture.from.y == gesture.to.y) return Click(gesture.from);
        Pull(gesture.from, gesture.to);
    }
    void Key(WORD key, std::initializer_list<WORD> modifiers = {}) {
        TapKey(key, modifiers);
        Rest();
    }
    void Make(const Making& making) {
        Command(making.tool);
        ASSERT_TRUE(ToolIsDown(making.tool)) << "the tool was not chosen";
        for (const Gesture& gesture : making.gestures) Do(gesture);
        if (making.closes) Key(VK_ESCAPE);
        Command(IDT_POINTER);
    }
    bool ToolIsDown(UINT tool) {
        const int id = static_cast<int>(tool);
        return (ToolButtonState(ToolbarWith(mainWindow, id), id) & TBSTATE_CHECKED) != 0;
    }
    void Deselect() { Click(kAside); }

    // With the pointer at rest: it need not be parked.
    Picture Shown() {
        return GrabStable([&] { return GrabClient(mainWindow); });
    }
    bool Same(const Picture& a, const Picture& b) { return SameMap(a, b, MapArea(mainWindow)); }
    bool IsPlain(const Picture& picture) {
        const RECT area = MapArea(mainWindow);
        return CountColour(picture, area, PixelAt(picture, area.left, area.top)) ==
               (area.right - area.left) * (area.bottom - area.top);
    }
    int UndoAll() {
        int count = 0;
        for (; !IsGreyed(IDM_UNDO) && count < 30; ++count) Command(IDM_UNDO);
        return count;
    }

    void MakeMoveSelectDelete(const ToolRow& row, const Picture& free) {
        for (const Making& making : row.makings) ASSERT_NO_FATAL_FAILURE(Make(making));
        ASSERT_NO_FATAL_FAILURE(Deselect());
        const Picture made = Shown();
        EXPECT_FALSE(SameAround(made, free, At(row.grip))) << "nothing was made";

        const POINT there = { row.grip.x + row.shift.x, row.grip.y + row.shift.y };
        EXPECT_TRUE(SameAround(made, free, At(there)));
        Pull(row.grip, there);
        Deselect();
        const Picture moved = Shown();
        EXPECT_FALSE(SameAround(moved, free, At(there))) << "the drag did not move it";
        if (row.leavesGround) {
            EXPECT_TRUE(SameAround(moved, free, At(row.grip))) << "something remains";
        }

        Click(there);
        EXPECT_FALSE(Same(Shown(), moved)) << "the click did not select it";
        if (row.clearsAll)
            Key(VK_DELETE, { VK_CONTROL });
        else
            Key(VK_DELETE);
        EXPECT_TRUE(SameAround(Shown(), free, At(there))) << "it was not deleted";
        if (row.clearsAll) {
            EXPECT_TRUE(Same(Shown(), free)) << "not all guidelines and markers were deleted";
        }
        EXPECT_EQ(UndoAll(), static_cast<int>(row.makings.size()) + 2);
        EXPECT_TRUE(Same(Shown(), free)) << "the map is not what it was";
    }
    void GoThroughTheTable() {
        ASSERT_NO_FATAL_FAILURE(FindRest());
        for (const ToolRow& row : ToolTable()) {
            SCOPED_TRACE(row.name);
            // The lamps' tool shows the lights, and with them the night.
            if (row.makings.back().tool == IDT_EDGE_LIGHTS) Command(IDM_LIGHTS);
            const Picture free = Shown();
            ASSERT_TRUE(IsPlain(free)) << "this is no free ground";
            ASSERT_NO_FATAL_FAILURE(MakeMoveSelectDelete(row, free));
        }
    }
    // Three of a kind, the first two selected one after the other.
    void DeleteTwoOfThree(UINT tool, WORD held) {
        const POINT first = { -100, -30 }, second = { 0, 30 }, third = { 100, 0 };
        const Picture free = Shown();
        ASSERT_TRUE(IsPlain(free)) << "this is no free ground";
        ASSERT_NO_FATAL_FAILURE(Make({ tool, { { first, first }, { second, second }, { third, third } } }));
        ASSERT_NO_FATAL_FAILURE(Deselect());
        const Picture made = Shown();
        Click(first);
        ClickHolding(held, second);
        Key(VK_DELETE);
        const Picture left = Shown();
        EXPECT_TRUE(SameAround(left, free, At(first))) << "the second click replaced the first";
        EXPECT_TRUE(SameAround(left, free, At(second))) << "the second click added nothing";
        EXPECT_TRUE(SameAround(left, made, At(third))) << "what was not selected went too";
        EXPECT_FALSE(SameAround(left, free, At(third)));
        EXPECT_EQ(UndoAll(), 4);
        EXPECT_TRUE(Same(Shown(), free)) << "the map is not what it was";
    }

    static constexpr POINT kRest = { -230, 130 }, kNearRest = { -200, 110 }, kAside = { -230, -110 };
    POINT middle{};
    std::wstring restText;
};

TEST_F(ToolTableTest, EveryToolsObjectIsMadeMovedSelectedDeletedAndTakenBack) {
    ASSERT_NO_FATAL_FAILURE(StartOnFreeGround());
    GoThroughTheTable();
}

TEST_F(ToolTableTest, TheSameOnATurnedAndEnlargedMap) {
    ASSERT_NO_FATAL_FAILURE(StartOnFreeGround());
    ASSERT_NO_FATAL_FAILURE(TurnAndEnlarge());
    GoThroughTheTable();
}

TEST_F(ToolTableTest, CtrlAndShiftAddToTheSelection) {
    ASSERT_NO_FATAL_FAILURE(StartOnFreeGround());
    ASSERT_NO_FATAL_FAILURE(FindRest());
    for (const UINT tool : { IDT_NORMAL_NODE, IDT_PARKING, IDT_MARKERS }) {
        for (const WORD held : { WORD{ VK_CONTROL }, WORD{ VK_SHIFT } }) {
            SCOPED_TRACE(testing::Message() << "tool " << tool << ", key " << held);
            ASSERT_NO_FATAL_FAILURE(DeleteTwoOfThree(tool, held));
        }
    }
}

}  // namespace ui
