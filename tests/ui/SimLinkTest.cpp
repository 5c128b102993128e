// SimLinkTest.cpp - the program beside a simulator: the aircraft on the map, hot keys, moving it, and every trouble
// that a simulator can make.
#include <cmath>
#include <cstdio>
#include <memory>

#include "ProgramParts.h"
#include "Resource.h"
#include "StandInSimulator.h"
#include "UiHarness.h"

namespace ui {

constexpr uint32_t kCrossHair = 0xFF3C28, kSelectedNode = 0xFFC81E;
constexpr double kSpan = 3704.3518;           // metres across the height of a fresh view
constexpr int kCrossHairPixels = 2 * 44 - 1;  // two lines that share a pixel
constexpr DWORD kHangPatience = 60000;        // nine tries of two seconds, on a busy machine
constexpr DWORD kFelt = 1500;                 // a program that does not answer for so long is held by something
constexpr DWORD kLongestWait = 5000;          // between two attempts to reach the simulator; the first ones come sooner
constexpr uint32_t kFirstSlot = 1, kParkingSlot = 2, kMarkerSlot = 3;

class SimLinkTest : public UiTest {
protected:
    void StartSimulator() {
        simulator = std::make_unique<StandInSimulator>();
        ASSERT_TRUE(simulator->IsUp());
    }
    // With the aircraft on the airport's reference point, which is the middle of the map.
    void StartBoth() {
        ASSERT_NO_FATAL_FAILURE(StartSimulator());
        ASSERT_NO_FATAL_FAILURE(StartWithSample("hub"));
        ASSERT_TRUE(WaitForConnection(true));
        PostKey(mainWindow, VK_HOME);
        ASSERT_TRUE(WaitUntil([&] { return simulator->Peek(kLatitude, 8) != 0; }));
        homeLatitude = simulator->Peek(kLatitude, 8);
    }
    void TearDown() override {
        UiTest::TearDown();
        simulator.reset();
    }

    bool WaitForConnection(bool up, DWORD patience = kPatience) {
        const std::wstring text = up ? L"Simulator: connected" : L"Simulator: not connected";
        return WaitUntil([&] { return StatusText(mainWindow, kSimulatorPart) == text; }, patience);
    }
    // The link's block is made for an attempt to reach the simulator and stays while there is an answer or hope of one.
    bool HasBlock() const {
        constexpr unsigned kMostOpenings = 50;
        for (unsigned opening = 1; opening <= kMostOpenings; ++opening) {
            char name[40];
            snprintf(name, sizeof name, "FsasmLib:IPC:%lX:%X", program.id, opening);
            const HANDLE block = OpenFileMappingA(FILE_MAP_READ, FALSE, name);
            if (!block) continue;
            CloseHandle(block);
            return true;
        }
        return false;
    }
    void FlyNorth(int metres) { simulator->Poke(kLatitude, 8, homeLatitude + metres * kMetreNorth); }

    POINT Middle() { return MapMiddle(mainWindow); }
    POINT NorthOfMiddle(int metres) {
        const POINT middle = Middle();
        return { middle.x, middle.y - std::lround(metres * MapHeight(mainWindow) / kSpan) };
    }
    // Whether a whole cross-hair, and only one, stands there.
    bool CrossHairAt(POINT at) {
        const Picture picture = GrabMap(mainWindow);
        const RECT box = { at.x - 24, at.y - 24, at.x + 25, at.y + 25 };
        const int there = CountColour(picture, box, kCrossHair);
        return there >= kCrossHairPixels && there == CountColour(picture, MapArea(mainWindow), kCrossHair);
    }
    bool NoCrossHair() { return CountColour(GrabMap(mainWindow), MapArea(mainWindow), kCrossHair) == 0; }

    bool SelectedAt(POINT at) {
        const RECT box = { at.x - 10, at.y - 10, at.x + 11, at.y + 11 };
        return CountColour(GrabMap(mainWindow), box, kSelectedNode) > 0;
    }

    void PressInSimulator(uint32_t slot) {
        simulator->PressKey(slot);
        ASSERT_TRUE(WaitUntil([&] { return simulator->Slot(slot) <= 0xFFFFFF; })) << "the press is not seen";
        ASSERT_TRUE(SettlePosted(agent));
    }
    // The program can still be edited.
    void ExpectEditing() {
        const POINT at = CreateNode(mainWindow, IDT_NORMAL_NODE);
        EXPECT_TRUE(WaitUntil([&] { return CountColourAround(GrabMap(mainWindow), at, kSelectedNode) > 0; }));
        EXPECT_TRUE(CanUndo());
    }

    std::unique_ptr<StandInSimulator> simulator;
    int64_t homeLatitude = 0;
};

TEST_F(SimLinkTest, WithoutASimulatorTheStatusBarSaysSo) {
    StartWithSample("hub");
    EXPECT_TRUE(WaitForConnection(false));
    EXPECT_TRUE(NoCrossHair());
    simulator = std::make_unique<StandInSimulator>();
    EXPECT_TRUE(WaitForConnection(true)) << "it may come up later";
}

TEST_F(SimLinkTest, TheAircraftMovesOverTheMapWithoutATrace) {
    StartBoth();
    for (int metres : { 300, 600, -450, -455 }) {
        FlyNorth(metres);
        EXPECT_TRUE(WaitUntil([&] { return CrossHairAt(NorthOfMiddle(metres)); })) << metres;
    }
    const int64_t longitude = simulator->Peek(kLongitude, 8);
    simulator->Fly(true);
    ASSERT_TRUE(simulator->WaitForPolls(kCircuitSteps / 2));
    simulator->Fly(false);
    simulator->Poke(kLongitude, 8, longitude);
    FlyNorth(200);
    EXPECT_TRUE(WaitUntil([&] { return CrossHairAt(NorthOfMiddle(200)); })) << "nothing of the flight is left";
    PostKey(mainWindow, VK_HOME);
    EXPECT_TRUE(WaitUntil([&] { return CrossHairAt(Middle()); })) << "and home again";
    EXPECT_FALSE(CanUndo()) << "nothing of this is an edit";
}

TEST_F(SimLinkTest, TheInterfaceMayHaveTheSimulatorsOwnWindow) {
    simulator = std::make_unique<StandInSimulator>(L"FS98MAIN");
    StartWithSample("hub");
    EXPECT_TRUE(WaitForConnection(true));
}

TEST_F(SimLinkTest, LockedTheMapFollowsTheAircraft) {
    StartBoth();
    Command(IDM_LOCK);
    EXPECT_TRUE(IsChecked(IDM_LOCK));
    const POINT middle = Middle();
    SendMouse(mainWindow, WM_MOUSEMOVE, middle.x, middle.y);
    const std::wstring home = StatusText(mainWindow, kPositionPart);
    FlyNorth(1000);
    EXPECT_TRUE(WaitUntil([&] { return StatusText(mainWindow, kPositionPart) != home; }));
    EXPECT_TRUE(WaitUntil([&] { return CrossHairAt(middle); }));
    PostKey(mainWindow, VK_RIGHT);
    SettlePosted(agent);
    EXPECT_TRUE(CrossHairAt(middle)) << "the arrow keys do nothing";
    Command(IDM_LOCK);
    FlyNorth(0);
    EXPECT_TRUE(WaitUntil([&] { return CrossHairAt(NorthOfMiddle(-1000)); })) << "the map stands still again";
}

TEST_F(SimLinkTest, TheHotKeysMakeTheirObjectsAndEachIsUndone) {
    StartBoth();
    EXPECT_FALSE(CanUndo());
    const POINT place = NorthOfMiddle(1200);  // off the taxiways
    for (uint32_t slot : { kFirstSlot, kParkingSlot, kMarkerSlot }) {
        FlyNorth(1200);
        ASSERT_TRUE(WaitUntil([&] { return CrossHairAt(place); })) << slot;
        ASSERT_NO_FATAL_FAILURE(PressInSimulator(slot));
        EXPECT_TRUE(WaitUntil([&] { return CanUndo(); })) << slot;
        FlyNorth(1400);  // the cross-hair would hide a node
        EXPECT_TRUE(WaitUntil([&] { return SelectedAt(place); })) << slot;
        simulator->WaitForPolls(3);
        Command(IDM_UNDO);
        EXPECT_FALSE(CanUndo()) << slot << ": one press, one action";
        EXPECT_TRUE(WaitUntil([&] { return !SelectedAt(place); })) << slot;
    }
}

TEST_F(SimLinkTest, APressUnderADialogIsCarriedOutAfterwards) {
    StartBoth();
    FlyNorth(1000);
    simulator->WaitForPolls(2);
    PostCommand(mainWindow, IDM_ABOUT);
    const HWND box = Dialog(L"About Tarvo");
    ASSERT_NE(box, nullptr);
    PressInSimulator(kFirstSlot);
    FlyNorth(1200);
    simulator->WaitForPolls(2);
    CloseDialog(box, IDOK);
    EXPECT_TRUE(WaitUntil([&] { return CanUndo(); }));
    EXPECT_GT(CountColourAround(GrabMap(mainWindow), NorthOfMiddle(1000), kSelectedNode), 0) << "where it was pressed";
}

TEST_F(SimLinkTest, JumpHereMovesTheAircraftAndNotTheMap) {
    StartBoth();
    const POINT place = NorthOfMiddle(400);
    SendMouse(mainWindow, WM_MOUSEMOVE, Middle().x, Middle().y);
    const std::wstring middle = StatusText(mainWindow, kPositionPart);
    POINT screen = place;
    ClientToScreen(mainWindow, &screen);
    const auto ask = [&] {
        PostMessageW(mainWindow, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(mainWindow), MAKELPARAM(screen.x, screen.y));
    };
    EXPECT_TRUE(ChooseFromMenu(ask, 'J', [&] {
        return std::llabs(simulator->Peek(kLatitude, 8) - homeLatitude - 400 * kMetreNorth) < 10 * kMetreNorth;
    })) << (simulator->Peek(kLatitude, 8) - homeLatitude) / kMetreNorth;
    EXPECT_EQ(simulator->Peek(0x5DC, 2), 1) << "slewing";
    EXPECT_TRUE(WaitUntil([&] { return CrossHairAt(place); }));
    SendMouse(mainWindow, WM_MOUSEMOVE, Middle().x, Middle().y);
    EXPECT_EQ(StatusText(mainWindow, kPositionPart), middle);
}

TEST_F(SimLinkTest, TheSlewKeyStopsTheAircraft) {
    StartBoth();
    for (uint32_t offset : { 0x5E4u, 0x5E6u }) simulator->Poke(offset, 2, 0x7777);
    simulator->Poke(0x5DC, 2, 0);
    PostKey(mainWindow, VK_NUMPAD5);
    EXPECT_TRUE(WaitUntil([&] { return simulator->Peek(0x5DC, 2) == 1 && simulator->Peek(0x5E4, 4) == 0; }));
}

TEST_F(SimLinkTest, TheKeysAreGivenBackAtTheEnd) {
    ASSERT_NO_FATAL_FAILURE(StartSimulator());
    Start();
    ASSERT_TRUE(WaitForConnection(true));
    EXPECT_EQ(simulator->Slot(kFirstSlot), 0x100BEu);
    EXPECT_EQ(simulator->Slot(kParkingSlot), 0x1004Fu);
    EXPECT_EQ(simulator->Slot(kMarkerSlot), 0x1004Du);
    EXPECT_EQ(CloseProgram(), 0u);
    for (uint32_t slot : { kFirstSlot, kParkingSlot, kMarkerSlot }) EXPECT_EQ(simulator->Slot(slot), 0u);
}

TEST_F(SimLinkTest, ASimulatorKilledAndStartedTenTimesIsFoundEachTime) {
    StartWithSample("hub");
    for (int round = 0; round < 10; ++round) {
        ASSERT_NO_FATAL_FAILURE(StartSimulator());
        ASSERT_TRUE(WaitForConnection(true)) << round;
        EXPECT_EQ(simulator->Slot(kFirstSlot), 0x100BEu);
        PostKey(mainWindow, VK_HOME);
        EXPECT_TRUE(WaitUntil([&] { return CrossHairAt(Middle()); })) << round;
        simulator.reset();
        ASSERT_TRUE(WaitForConnection(false)) << round;
        EXPECT_TRUE(NoCrossHair());
    }
    ExpectEditing();
}

TEST_F(SimLinkTest, ASimulatorThatDiesInTheMiddleOfAnAnswerIsLost) {
    StartBoth();
    simulator->Be(Trouble::DieInTheMiddle, 3);
    ASSERT_TRUE(WaitUntil([&] { return simulator->HasEnded(); }));
    EXPECT_TRUE(WaitForConnection(false));
    EXPECT_TRUE(NoCrossHair());
    ExpectEditing();
}

TEST_F(SimLinkTest, AnswersThatAreNoneCloseTheLinkUntilTheSimulatorMends) {
    StartBoth();
    for (Trouble trouble : { Trouble::AnswerZero, Trouble::CorruptSizes, Trouble::CorruptTokens }) {
        simulator->Be(trouble);
        EXPECT_TRUE(WaitForConnection(false));
        EXPECT_TRUE(NoCrossHair());
        simulator->Be(Trouble::None);
        EXPECT_TRUE(WaitForConnection(true));
        EXPECT_EQ(simulator->Slot(4), 0u) << "the slots of before are used again";
    }
    ExpectEditing();
}

TEST_F(SimLinkTest, AnswersThatEndEarlyOrAreGarbageChangeNothing) {
    StartBoth();
    ASSERT_TRUE(WaitUntil([&] { return CrossHairAt(Middle()); }));
    for (Trouble trouble : { Trouble::CorruptTypes, Trouble::CorruptAll }) {
        simulator->Be(trouble);
        ASSERT_TRUE(simulator->WaitForPolls(5));
        EXPECT_TRUE(CrossHairAt(Middle())) << "the aircraft stays, " << Utf8(StatusText(mainWindow, kSimulatorPart));
        EXPECT_TRUE(WaitForConnection(true));
        simulator->Be(Trouble::None);
        EXPECT_TRUE(WaitUntil([&] { return CrossHairAt(Middle()); })) << "and there again";
    }
    simulator->Be(Trouble::StopInTheMiddle, 1);  // what is not answered stays zero: an aircraft at 0 N 0 E
    EXPECT_TRUE(WaitUntil([&] { return NoCrossHair(); }));
    simulator->Be(Trouble::None);
    EXPECT_TRUE(WaitUntil([&] { return CrossHairAt(Middle()); }));
    EXPECT_FALSE(CanUndo());
    ExpectEditing();
}

TEST_F(SimLinkTest, AHangingSimulatorBlocksOnceAndTheEditorGoesOn) {
    StartBoth();
    ExpectEditing();
    ASSERT_TRUE(HasBlock());
    simulator->Be(Trouble::Hang);
    ASSERT_TRUE(WaitUntil([&] { return !Settle(mainWindow, kFelt); })) << "the simulator's hanging is not felt";
    PostCommand(mainWindow, IDM_UNDO);
    ASSERT_TRUE(WaitForConnection(false, kHangPatience));
    EXPECT_TRUE(WaitUntil([&] { return !CanUndo(); })) << "what was commanded meanwhile is done";
    EXPECT_FALSE(WaitUntil([&] { return HasBlock(); }, kLongestWait)) << "it blocks again";
    ExpectEditing();
    simulator->Resume();
    simulator->Be(Trouble::None);
    EXPECT_TRUE(WaitForConnection(true, kHangPatience));
}

TEST_F(SimLinkTest, ALateSimulatorStaysConnected) {
    StartBoth();
    simulator->Be(Trouble::Late, 400);
    ASSERT_TRUE(simulator->WaitForPolls(3));
    EXPECT_TRUE(WaitForConnection(true));
    FlyNorth(500);
    ASSERT_TRUE(simulator->WaitForPolls(2));
    ExpectEditing();
}

TEST_F(SimLinkTest, AWrongVersionIsNoSimulator) {
    ASSERT_NO_FATAL_FAILURE(StartSimulator());
    simulator->Poke(0x3304, 4, 0x19980004);
    StartWithSample("hub");
    ASSERT_TRUE(simulator->WaitForPolls(2));
    EXPECT_TRUE(WaitForConnection(false));
    simulator->Poke(0x3304, 4, 0x19980005);
    EXPECT_TRUE(WaitForConnection(true));
}

TEST_F(SimLinkTest, WithoutFreeSlotsTheAircraftIsShownAllTheSame) {
    ASSERT_NO_FATAL_FAILURE(StartSimulator());
    for (uint32_t slot = 1; slot <= 56; ++slot) simulator->Poke(0x3210 + 4 * (slot - 1), 4, 0x10055);
    StartWithSample("hub");
    ASSERT_TRUE(WaitForConnection(true));
    PostKey(mainWindow, VK_HOME);
    EXPECT_TRUE(WaitUntil([&] { return CrossHairAt(Middle()); }));
    for (uint32_t slot = 1; slot <= 56; ++slot) EXPECT_EQ(simulator->Slot(slot), 0x10055u);
    EXPECT_EQ(CloseProgram(), 0u);
    EXPECT_EQ(simulator->Peek(0, 4), 0);
}

TEST_F(SimLinkTest, AShortHotKeyTableIsLeftAlone) {
    ASSERT_NO_FATAL_FAILURE(StartSimulator());
    simulator->Poke(0x320C, 4, 55);
    Start();
    ASSERT_TRUE(WaitForConnection(true));
    EXPECT_EQ(simulator->Slot(kFirstSlot), 0u);
}

}  // namespace ui
