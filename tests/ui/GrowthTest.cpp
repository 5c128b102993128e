// GrowthTest.cpp - what is opened and closed again and again leaves neither objects of the window system nor memory
// behind.
#include <windows.h>

#include <psapi.h>

#include <string>

#include "fakes/Rounds.h"
#include "GroundSteps.h"
#include "ListIds.h"
#include "TestPrinter.h"

namespace ui {

class GrowthTest : public GroundTest {
protected:
    struct Held {
        GuiObjects objects;
        SIZE_T bytes = 0;
    };
    Held InUse() const {
        PROCESS_MEMORY_COUNTERS memory{};
        memory.cb = sizeof memory;
        EXPECT_TRUE(GetProcessMemoryInfo(program.process, &memory, sizeof memory));
        return { CountGuiObjects(agent), memory.PagefileUsage };
    }
    void PaintNow() const { RedrawWindow(mainWindow, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }

    // The first rounds fill what is kept for good. What is in use varies by a few objects, and memory comes in pieces;
    // what stays from each round is more than that.
    template <class Round>
    void ExpectNoGrowth(int first, int rounds, Round round) {
        constexpr SIZE_T kPieces = 3 << 20;
        constexpr int kFew = 8;
        for (int i = 0; i < first && !HasFailure(); ++i) round();
        PaintNow();
        const Held before = InUse();
        for (int i = 0; i < rounds && !HasFailure(); ++i) round();
        PaintNow();
        const Held after = InUse();
        EXPECT_GT(before.objects.gdi, 0);
        EXPECT_GT(before.objects.user, 0);
        EXPECT_GT(before.bytes, 0u);
        EXPECT_LE(after.objects.gdi, before.objects.gdi + kFew) << rounds << " rounds";
        EXPECT_LE(after.objects.user, before.objects.user + kFew) << rounds << " rounds";
        EXPECT_LE(after.bytes, before.bytes + kPieces) << rounds << " rounds";
        printf("%d rounds: GDI %d -> %d, USER %d -> %d, kB %u -> %u\n", rounds, before.objects.gdi, after.objects.gdi,
               before.objects.user, after.objects.user, static_cast<unsigned>(before.bytes / 1024),
               static_cast<unsigned>(after.bytes / 1024));
    }

    void OpenAndClose(UINT command, int button) {
        PostCommand(mainWindow, command);
        const HWND dialog = DialogOtherThan(nullptr);
        ASSERT_NE(dialog, nullptr) << "command " << command;
        CloseDialog(dialog, button);
    }
    void OpenAndCancel(POINT at, const wchar_t* title) {
        const HWND dialog = OpenByDoubleClick(at, title);
        ASSERT_NE(dialog, nullptr) << Utf8(title);
        CloseDialog(dialog, IDCANCEL);
    }
};

TEST_F(GrowthTest, WhatIsCountedGrowsWithTheWindows) {
    ASSERT_NO_FATAL_FAILURE(Start());
    const GuiObjects before = CountGuiObjects(agent);
    PostCommand(mainWindow, IDM_OPTIONS);
    const HWND dialog = DialogOtherThan(nullptr);
    EXPECT_GT(CountGuiObjects(agent).user, before.user + 10);
    CloseDialog(dialog, IDCANCEL);
}

TEST_F(GrowthTest, AirportsThatAreOpenedAndClosed) {
    ASSERT_NO_FATAL_FAILURE(StartWithSample("hub"));
    const std::wstring ident = FindSample("hub").ident;
    ExpectNoGrowth(3, Rounds(15, 10000), [&] {
        Command(IDM_CLOSE);
        PaintNow();
        ASSERT_EQ(Title().find(ident), std::wstring::npos);
        Command(IDM_RECENT_FIRST);
        PaintNow();
        ASSERT_NE(Title().find(ident), std::wstring::npos) << Utf8(Title());
    });
}

TEST_F(GrowthTest, DialogsOfTheMenusThatAreOpenedAndClosed) {
    constexpr wchar_t kFolder[] = L"C:\\UiTest\\Print";
    CreateDirectoryW(kFolder, nullptr);
    const TestPrinter printer(kFolder);
    ASSERT_TRUE(printer.IsThere());
    ASSERT_NO_FATAL_FAILURE(StartOnGround());
    constexpr struct {
        UINT command;
        int button = IDCANCEL;
    } kWindows[] = {
        { IDM_SAVE_AS },      { IDM_SAVE_PICTURE },         { IDM_AIRPORT_PROPERTIES }, { IDM_PAGE_SETUP },
        { IDM_PRINT },        { IDM_INSERT_RUNWAY },        { IDM_INSERT_HELIPAD },     { IDM_INSERT_TOWER, IDOK },
        { IDM_INSERT_START }, { IDM_INSERT_MARKER_BEACON }, { IDM_INSERT_NDB },         { IDM_INSERT_VOR },
        { IDM_LIST_PARKING }, { IDM_LIST_DESIGNATORS },     { IDM_LIST_RUNWAYS },       { IDM_LIST_STARTS },
        { IDM_LIST_COMMS },   { IDM_LIST_NAVAIDS },         { IDM_FAULT_FINDER },       { IDM_AIRCRAFT_EDITOR },
        { IDM_OPTIONS },      { IDM_KEYBOARD, IDOK },       { IDM_ABOUT, IDOK },
    };
    ExpectNoGrowth(3, Rounds(5, 100), [&] {
        for (const auto& window : kWindows) ASSERT_NO_FATAL_FAILURE(OpenAndClose(window.command, window.button));
    });
}

TEST_F(GrowthTest, DialogsOfTheMapThatAreOpenedAndClosed) {
    ASSERT_NO_FATAL_FAILURE(StartOnGround());
    const POINT strip = MakeStrip(), link = MakeLink(200), apron = { ground.x + 90, ground.y + 340 };
    Command(IDT_APRON);
    for (const POINT corner : { Beside(0, 300), Beside(kApart, 300), Beside(kApart, 420) }) ClickMap(corner);
    PostKey(mainWindow, VK_ESCAPE);
    SettlePosted(agent);
    Use(IDT_PARKING, Beside(0, 500));
    ExpectNoGrowth(4, Rounds(10, 500), [&] {
        ASSERT_NO_FATAL_FAILURE(OpenAndCancel(strip, kEdgeLights));
        ASSERT_NO_FATAL_FAILURE(OpenAndCancel(link, kLink));
        ASSERT_NO_FATAL_FAILURE(OpenAndCancel(Beside(0, 200), kNode));
        ASSERT_NO_FATAL_FAILURE(OpenAndCancel(apron, kApron));
        ASSERT_NO_FATAL_FAILURE(OpenAndCancel(Beside(0, 500), kSpot));
    });
}

}  // namespace ui
