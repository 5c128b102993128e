// EditorSteps.h - the fixture for property dialogs over the map: opening, filling, reading and answering them.
#pragma once

#include <string>

#include "ProgramParts.h"
#include "Resource.h"
#include "UiHarness.h"

namespace ui {

class EditorTest : public UiTest {
protected:
    // The program with the sample airport, zoomed out; `ground` is free ground.
    void StartOnGround(const char* sample = "hub", const char* settings = kQuietSettings) {
        const SampleAirport airport = FindSample(sample);
        ASSERT_FALSE(airport.path.empty());
        ASSERT_NO_FATAL_FAILURE(Start(L"\"" + airport.path + L"\" " + airport.ident, settings));
        ASSERT_TRUE(WaitForTitle(airport.ident)) << Utf8(Title());
        ground = GoToEmptyGround(mainWindow);
    }
    HWND Open(UINT command, const wchar_t* title) {
        PostCommand(mainWindow, command);
        return Dialog(title);
    }
    // Posted: the program returns from the double click only when the dialog is closed.
    void PostDoubleClick(POINT at) {
        const LPARAM place = MAKELPARAM(at.x, at.y);
        SendClick(mainWindow, at.x, at.y);
        PostMessageW(mainWindow, WM_LBUTTONDBLCLK, MK_LBUTTON, place);
        PostMessageW(mainWindow, WM_LBUTTONUP, 0, place);
    }
    HWND OpenByDoubleClick(POINT at, const wchar_t* title) {
        PostDoubleClick(at);
        return Dialog(title);
    }
    // "Properties" of the map's menu, which `ask` opens.
    HWND OpenByMenu(const std::function<void()>& ask, const wchar_t* title) {
        HWND dialog = nullptr;
        const auto isOpen = [&] { return (dialog = FindVisible(program.id, L"#32770", title)) != nullptr; };
        EXPECT_TRUE(ChooseFromMenu(ask, 'P', isOpen)) << "no dialog \"" << Utf8(title) << '"';
        return dialog;
    }
    HWND OpenByRightClick(POINT at, const wchar_t* title) {
        const auto ask = [&] {
            MovePointer(mainWindow, at.x, at.y);
            MouseButton(MOUSEEVENTF_RIGHTDOWN);
            MouseButton(MOUSEEVENTF_RIGHTUP);
        };
        return OpenByMenu(ask, title);
    }
    void ClickMap(POINT at) {
        SendClick(mainWindow, at.x, at.y);
        Settle(mainWindow);
    }

    static std::string Shown(HWND dialog, int id) { return Utf8(TextOf(ChildWithId(dialog, id))); }
    static void Enter(HWND dialog, int id, const wchar_t* text) { SetText(ChildWithId(dialog, id), text); }
    static bool IsSet(HWND dialog, int id) {
        return SendMessageW(ChildWithId(dialog, id), BM_GETCHECK, 0, 0) == BST_CHECKED;
    }
    static void Toggle(HWND dialog, int id) {
        SendMessageW(ChildWithId(dialog, id), BM_CLICK, 0, 0);
        Settle(dialog);
    }
    static int Choice(HWND dialog, int id) {
        return static_cast<int>(SendMessageW(ChildWithId(dialog, id), CB_GETCURSEL, 0, 0));
    }
    static void Choose(HWND dialog, int id, int choice) {
        PickInCombo(ChildWithId(dialog, id), choice);
        Settle(dialog);
    }

    // OK is answered with that message; the dialog stays, with the focus on the control and its whole text selected.
    void ExpectRefusal(HWND dialog, const std::string& text, int control) {
        PressButton(dialog, IDOK);
        const Box box = MessageBoxUp();
        EXPECT_EQ(Utf8(box.text), text);
        Answer(box, IDOK);
        ASSERT_TRUE(IsWindow(dialog));
        const HWND field = ChildWithId(dialog, control);
        EXPECT_TRUE(WaitUntil([&] { return FocusOf(agent) == field; })) << "the focus is elsewhere";
        if (ClassOf(field) != L"Edit") return;
        const auto selection = static_cast<DWORD>(SendMessageW(field, EM_GETSEL, 0, 0));
        EXPECT_EQ(LOWORD(selection), 0u);
        EXPECT_EQ(HIWORD(selection), TextOf(field).size());
    }

    // How many pixels of the map are not as they were.
    int MapPixelsOtherThan(const Picture& before) const {
        const Picture now = GrabMap(mainWindow);
        const RECT area = MapArea(mainWindow);
        int different = 0;
        for (int y = area.top; y < area.bottom; ++y) {
            for (int x = area.left; x < area.right; ++x) different += PixelAt(now, x, y) != PixelAt(before, x, y);
        }
        return different;
    }

    POINT ground = {};
};

constexpr char kMetricSettings[] = "[General]\r\nNextUpdateNotice=9999\r\nMetric=1\r\n";

}  // namespace ui
