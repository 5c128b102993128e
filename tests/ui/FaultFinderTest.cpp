// FaultFinderTest.cpp - the Fault Finder beside the map: what it tells, selects and shows, with edits in between.
#include "bgl/AirportWriter.h"
#include "fakes/FaultAirport.h"
#include "FaultFinderIds.h"
#include "platform/Files.h"
#include "ProgramParts.h"
#include "Resource.h"
#include "StandInBrowser.h"
#include "UiHarness.h"

namespace ui {

constexpr wchar_t kFinderTitle[] = L"Fault Finder";
constexpr wchar_t kTooFar[] = L"HOLD-SHORT NODE too far from runway.", kIsolated[] = L"ISOLATED NODE.";
constexpr uint32_t kSelectedFill = 0xFFC81E;

class FaultFinderTest : public UiTest {
protected:
    HWND OpenFinder() {
        Command(IDM_FAULT_FINDER);
        return Dialog(kFinderTitle);
    }
    // A hold-short node far from everything: too far from the runway, and isolated.
    void StartWithFaults() {
        StartWithSample("hub");
        CreateNode(mainWindow, IDT_HOLD_SHORT_NODE);
        ClickToolButton(mainWindow, IDT_POINTER);
        ASSERT_FALSE(IsGreyed(IDM_UNDO)) << "no node was made";
    }
    void StartWithBrokenAirport() {
        ResetFakes();
        MakeBrokenAirport();
        std::vector<uint8_t> bytes;
        std::string refusal;
        ASSERT_TRUE(bgl::BuildAirportFile(1, &bytes, &refusal)) << refusal;
        model::ClearModel();
        ASSERT_TRUE(platform::WriteFileWhole("C:\\UiTest\\broken.bgl", bytes));
        ASSERT_NO_FATAL_FAILURE(Start(L"C:\\UiTest\\broken.bgl TEST"));
        ASSERT_TRUE(WaitForTitle(L"TEST")) << Utf8(Title());
    }
    void DeleteSelected() {
        PostKey(mainWindow, VK_DELETE);
        SettlePosted(agent);
    }
    // Up to "No more faults found.".
    int Presses(HWND finder) {
        int count = 0;
        while (count < 30 && NextFault(finder) != L"No more faults found.") ++count;
        return count;
    }
    static std::wstring Message(HWND finder) { return TextOf(GetDlgItem(finder, IDC_FAULT_MESSAGE)); }
    bool Tells(HWND finder, const std::wstring& beginning) {
        return WaitUntil([&] { return Message(finder).starts_with(beginning); });
    }
    // The last answer goes first, so that the next one cannot be mistaken for it.
    std::wstring NextFault(HWND finder) {
        SetText(GetDlgItem(finder, IDC_FAULT_MESSAGE), L"");
        Press(finder, IDC_FIND_FAULTS);
        EXPECT_TRUE(WaitUntil([&] { return IsAnswer(Message(finder)); })) << "no answer";
        SettlePosted(agent);
        return FirstLine(Message(finder));
    }
    static bool IsAnswer(const std::wstring& text) { return !text.empty() && text != L"Checking..."; }
    static std::wstring FirstLine(const std::wstring& text) { return text.substr(0, text.find(L'\r')); }
    static bool IsBoxOn(HWND finder, int check) {
        return SendMessageW(GetDlgItem(finder, IDC_FIRST_CHECK + check), BM_GETCHECK, 0, 0) == BST_CHECKED;
    }
    RECT MiddleOfMap() const {
        const RECT area = MapArea(mainWindow);
        const LONG x = (area.left + area.right) / 2, y = (area.top + area.bottom) / 2;
        return { x - 40, y - 40, x + 40, y + 40 };
    }
    // The selected node and the marker around it stand in the middle of the map.
    void ExpectFaultInTheMiddle(uint32_t marker) {
        const Picture picture = GrabMap(mainWindow);
        EXPECT_GT(CountColour(picture, MiddleOfMap(), marker), 50);
    }
    int MarkerPixels(uint32_t marker) { return CountColour(GrabMap(mainWindow), MapArea(mainWindow), marker); }
    static constexpr uint32_t kDayMarker = 0xE6003C, kNightMarker = 0xC80032;
};

TEST_F(FaultFinderTest, WithoutAnAirportItIsGreyed) {
    Start();
    EXPECT_TRUE(IsGreyed(IDM_FAULT_FINDER));
}

TEST_F(FaultFinderTest, TheSampleHubHasNoFaults) {
    StartWithSample("hub");
    const HWND finder = OpenFinder();
    ASSERT_NE(finder, nullptr);
    const wchar_t* const boxes[] = { L"&Hold Short Limits",       L"&Open Links",
                                     L"&Isolated Segments",       L"O&verlapping Nodes",
                                     L"&Default Start Locations", L"&Runway Links",
                                     L"&Apron Polygons" };
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(TextOf(GetDlgItem(finder, IDC_FIRST_CHECK + i)), boxes[i]);
        EXPECT_TRUE(IsBoxOn(finder, i)) << i;
    }
    EXPECT_EQ(NextFault(finder), L"No faults found.");
    EXPECT_EQ(NextFault(finder), L"No faults found.");
    EXPECT_FALSE(IsChecked(IDM_HOLD_SHORT_LIMITS));
    EXPECT_TRUE(IsGreyed(IDM_UNDO)) << "looking is no edit";
}

TEST_F(FaultFinderTest, EachPressShowsTheNextFaultUntilThereAreNoMore) {
    StartWithFaults();
    const HWND finder = OpenFinder();
    ASSERT_NE(finder, nullptr);
    Command(IDM_LOCK);
    ASSERT_TRUE(IsChecked(IDM_LOCK));
    for (int pass = 0; pass < 2; ++pass) {
        EXPECT_EQ(NextFault(finder), kTooFar);
        EXPECT_TRUE(IsChecked(IDM_HOLD_SHORT_LIMITS)) << "the message speaks of the circles";
        EXPECT_FALSE(IsChecked(IDM_LOCK)) << "the view could not move";
        EXPECT_FALSE(ToolButtonState(ToolbarOf(mainWindow), IDT_LOCK) & TBSTATE_CHECKED);
        ExpectFaultInTheMiddle(kDayMarker);
        EXPECT_GT(CountColour(GrabMap(mainWindow), MiddleOfMap(), kSelectedFill), 0);
        EXPECT_EQ(NextFault(finder), kIsolated);
        EXPECT_EQ(NextFault(finder), L"No more faults found.");
        EXPECT_EQ(MarkerPixels(kDayMarker), 0);
        EXPECT_EQ(CountColour(GrabMap(mainWindow), MiddleOfMap(), kSelectedFill), 0) << "nothing is selected";
    }
}

TEST_F(FaultFinderTest, AnEditKeepsTheCheckAndForgetsTheFaultsBefore) {
    StartWithFaults();
    const HWND finder = OpenFinder();
    ASSERT_NE(finder, nullptr);
    EXPECT_EQ(NextFault(finder), kTooFar);
    EXPECT_EQ(NextFault(finder), kIsolated);
    Command(IDM_UNDO);
    EXPECT_EQ(NextFault(finder), L"No faults found.");
    Command(IDM_REDO);
    EXPECT_EQ(NextFault(finder), kTooFar);
    EXPECT_EQ(NextFault(finder), kIsolated);
    Command(IDM_UNDO);
    Command(IDM_REDO);
    EXPECT_EQ(NextFault(finder), kIsolated) << "the check that was reached starts again";
    EXPECT_EQ(NextFault(finder), L"No more faults found.");
}

TEST_F(FaultFinderTest, EveryFaultOfABrokenAirportIsToldAndShown) {
    StartWithBrokenAirport();
    const HWND finder = OpenFinder();
    ASSERT_NE(finder, nullptr);
    for (const char* line : kFaultsOfBrokenAirport) {
        EXPECT_EQ(NextFault(finder), Wide(line));
        ExpectFaultInTheMiddle(kDayMarker);
    }
    EXPECT_TRUE(IsChecked(IDM_HOLD_SHORT_LIMITS));
    EXPECT_TRUE(IsChecked(IDM_STARTS)) << "the message speaks of start locations";
    EXPECT_EQ(NextFault(finder), L"No more faults found.");
    EXPECT_TRUE(IsGreyed(IDM_UNDO)) << "looking is no edit";
}

TEST_F(FaultFinderTest, FaultsAreRepairedAndBroughtBackBetweenThePresses) {
    constexpr wchar_t kNodes[] = L"NODES POSSIBLY UNCONNECTED.",
                      kNodeAndLink[] = L"NODE AND LINK POSSIBLY UNCONNECTED.";
    StartWithBrokenAirport();
    const HWND finder = OpenFinder();
    ASSERT_NE(finder, nullptr);
    EXPECT_EQ(NextFault(finder), kTooFar);
    DeleteSelected();
    EXPECT_EQ(NextFault(finder), kNodeAndLink);
    DeleteSelected();  // the open end and the link beside it
    EXPECT_EQ(NextFault(finder), kNodes) << "the check begins again, without what was repaired";
    Command(IDM_UNDO);
    EXPECT_EQ(NextFault(finder), kNodeAndLink) << "the fault is back";
    EXPECT_EQ(NextFault(finder), kNodes);
    DeleteSelected();
    EXPECT_EQ(NextFault(finder), kNodeAndLink);
    Command(IDM_UNDO);
    Command(IDM_UNDO);
    EXPECT_EQ(NextFault(finder), kNodeAndLink) << "the hold-short node is back, but its check is over";
    for (const wchar_t* line : { kNodes, L"ISOLATED SEGMENT.", L"ISOLATED SEGMENT." })
        EXPECT_EQ(NextFault(finder), line);
    DeleteSelected();  // the second segment
    EXPECT_EQ(NextFault(finder), L"ISOLATED SEGMENT.") << "the first one again";
    EXPECT_EQ(NextFault(finder), L"ISOLATED PARKING.");
    EXPECT_EQ(Presses(finder), 9) << "three nodes, an overlap, two starts, two runway links, an apron";
    Command(IDM_UNDO);
    EXPECT_EQ(NextFault(finder), kTooFar) << "a new pass";
}

TEST_F(FaultFinderTest, TheKeyboardFindsTheNextFaultFromBothWindows) {
    StartWithFaults();
    const HWND finder = OpenFinder();
    ASSERT_NE(finder, nullptr);
    PostKey(GetDlgItem(finder, IDC_FIND_FAULTS), VK_RETURN);
    EXPECT_TRUE(Tells(finder, kTooFar)) << "Enter";
    PostKey(GetDlgItem(finder, IDC_FIRST_CHECK), VK_F3);
    EXPECT_TRUE(Tells(finder, kIsolated)) << "F3";
    PostKey(mainWindow, VK_F3);
    EXPECT_TRUE(Tells(finder, L"No more faults found.")) << "F3 on the map";
    PostKey(GetDlgItem(finder, IDC_FAULT_MESSAGE), VK_ESCAPE);
    EXPECT_TRUE(WaitUntilGone(finder)) << "Esc";
}

TEST_F(FaultFinderTest, TheBoxesSayWhatIsLookedForAndAreKept) {
    StartWithFaults();
    HWND finder = OpenFinder();
    ASSERT_NE(finder, nullptr);
    SendMessageW(GetDlgItem(finder, IDC_FIRST_CHECK), BM_CLICK, 0, 0);
    EXPECT_EQ(NextFault(finder), kIsolated);
    CloseDialog(finder, IDCANCEL);
    ASSERT_NE(finder = OpenFinder(), nullptr);
    EXPECT_FALSE(IsBoxOn(finder, 0));
    EXPECT_TRUE(IsBoxOn(finder, 1));
    EXPECT_EQ(Message(finder), L"");
    EXPECT_EQ(NextFault(finder), kIsolated) << "a new window begins a new pass";
}

TEST_F(FaultFinderTest, TheMarkerShowsByDayAndNightAndGoesWithTheWindow) {
    StartWithFaults();
    const HWND finder = OpenFinder();
    ASSERT_NE(finder, nullptr);
    NextFault(finder);
    ExpectFaultInTheMiddle(kDayMarker);
    Command(IDM_LIGHTS);
    ExpectFaultInTheMiddle(kNightMarker);
    CloseDialog(finder, IDCANCEL);
    EXPECT_TRUE(WaitUntil([&] { return MarkerPixels(kNightMarker) == 0; }));
}

TEST_F(FaultFinderTest, TheLongTextsWrapAndScroll) {
    StartWithFaults();
    const HWND finder = OpenFinder();
    ASSERT_NE(finder, nullptr);
    NextFault(finder);
    const HWND text = GetDlgItem(finder, IDC_FAULT_MESSAGE);
    EXPECT_GT(SendMessageW(text, EM_GETLINECOUNT, 0, 0), 15);
    EXPECT_EQ(SendMessageW(text, EM_GETFIRSTVISIBLELINE, 0, 0), 0);
    SendMessageW(text, WM_VSCROLL, SB_BOTTOM, 0);
    EXPECT_GT(SendMessageW(text, EM_GETFIRSTVISIBLELINE, 0, 0), 8);
    EXPECT_TRUE(GetWindowLongW(text, GWL_STYLE) & WS_VSCROLL);
}

TEST_F(FaultFinderTest, EveryCommandOpensAnotherWindow) {
    StartWithFaults();
    const HWND first = OpenFinder();
    ASSERT_NE(first, nullptr);
    Command(IDM_FAULT_FINDER);
    const HWND second = DialogOtherThan(first);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(NextFault(second), kTooFar);
    EXPECT_EQ(NextFault(first), kIsolated) << "both go on in the same pass";
    CloseDialog(first, IDCANCEL);
    EXPECT_EQ(NextFault(second), L"No more faults found.") << "the pass stands where it stood";
    PostMessageW(mainWindow, WM_CLOSE, 0, 0);
    Answer(MessageBoxUp(), IDNO);
    DWORD exitCode = 1;
    EXPECT_TRUE(WaitForExit(program, &exitCode)) << "the open window keeps the program";
    EXPECT_EQ(exitCode, 0u);
}

TEST_F(FaultFinderTest, WhileADialogEditsTheMapTheFinderWaits) {
    StartWithFaults();
    const HWND finder = OpenFinder();
    ASSERT_NE(finder, nullptr);
    Command(IDM_INSERT_HELIPAD);
    const HWND editor = DialogOtherThan(finder);
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(NextFault(finder), L"Finish the edit that is open on the map first.");
    CloseDialog(editor, IDCANCEL);
    EXPECT_EQ(NextFault(finder), kTooFar);
}

TEST_F(FaultFinderTest, HelpOpensTheFindersTopic) {
    const StandInBrowser browser;
    StartWithSample("hub");
    const HWND finder = OpenFinder();
    ASSERT_NE(finder, nullptr);
    Press(finder, IDHELP);
    EXPECT_TRUE(browser.WaitForOpened("file:///C:/UiTest/Tarvo/ReadMe.htm#FaultFinder\n")) << browser.Opened();
}

TEST_F(FaultFinderTest, AnotherAirportIsAnotherPass) {
    StartWithFaults();
    const HWND finder = OpenFinder();
    ASSERT_NE(finder, nullptr);
    EXPECT_EQ(NextFault(finder), kTooFar);
    PostCommand(mainWindow, IDM_CLOSE);
    Answer(MessageBoxUp(), IDNO);
    ASSERT_TRUE(WaitUntil([&] { return IsGreyed(IDM_CLOSE); }));
    EXPECT_EQ(MarkerPixels(kDayMarker), 0);
    EXPECT_EQ(NextFault(finder), L"No faults found.") << "no airport has no faults";
}

}  // namespace ui
