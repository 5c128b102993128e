// OpenAirportSteps.h - the fixture for the Open Airport dialog: opening and filling it, and what it shows.
#pragma once

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "OpenAirportIds.h"
#include "ProgramParts.h"
#include "ProgressIds.h"
#include "Resource.h"
#include "UiAgent.h"
#include "UiFiles.h"
#include "UiHarness.h"

namespace ui {

constexpr wchar_t kTitle[] = L"Open Airport";
constexpr wchar_t kFileTitle[] = L"Select an airport file";
constexpr wchar_t kAddOnFolder[] = L"C:\\UiTest\\FS9\\AddOn Scenery\\scenery";
constexpr wchar_t kSavePrompt[] = L"Do you want to save changes to the current facility ?";
constexpr int kNameColumn = 3;
constexpr uint32_t kGrey = 0xA0A0A0;  // of a superseded row

class OpenAirportFixture : public UiTest {
protected:
    void SetUp() override { ForgetCollection(); }
    void TearDown() override {
        UiTest::TearDown();
        for (const std::wstring& file : placed) DeleteFileW(file.c_str());
        ForgetCollection();
    }
    static void ForgetCollection() {
        for (const wchar_t* name : { L"\\FileList", L"\\AirportIndex" }) {
            DeleteFileW((std::wstring(kProgramFolder) + name).c_str());
        }
    }

    // A copy of a sample airport's file in the add-on area, whose layer is the highest.
    std::wstring PutAddOn(const std::wstring& from, const wchar_t* name) {
        const std::wstring path = std::wstring(kAddOnFolder) + L"\\" + name;
        EXPECT_TRUE(CopyFileW(from.c_str(), path.c_str(), FALSE)) << Utf8(path);
        placed.push_back(path);
        return path;
    }
    std::wstring PutText(const wchar_t* name, const char* text) {
        const std::wstring path = std::wstring(kAddOnFolder) + L"\\" + name;
        FILE* file = _wfopen(path.c_str(), L"wb");
        EXPECT_TRUE(file && fputs(text, file) >= 0 && fclose(file) == 0);
        placed.push_back(path);
        return path;
    }

    // The dialog is ready when the tree has been filled and the progress box has gone.
    void OpenDialog(UINT command = IDM_OPEN) {
        PostCommand(mainWindow, command);
        dialog = Dialog(kTitle);
        ASSERT_NE(dialog, nullptr);
        places = ChildWithId(dialog, IDC_PLACES);
        airports = ChildWithId(dialog, IDC_AIRPORTS);
        field = ChildWithId(dialog, IDC_AIRPORT_ID);
    }
    void OpenFilledDialog() {
        ASSERT_NO_FATAL_FAILURE(OpenDialog());
        ASSERT_TRUE(WaitUntil([&] { return NextTreeItem(places, TVGN_ROOT) != nullptr; })) << "an empty tree";
    }
    // For a collection that leaves no trace: over then, whatever it found. It is begun here unless it has begun already.
    void WaitForCollection() {
        constexpr WPARAM kTimer = 1;
        if (SendMessageW(agent.window, kAgentEndTimer, kTimer, reinterpret_cast<LPARAM>(dialog)))
            SendMessageW(dialog, WM_TIMER, kTimer, 0);
        ASSERT_TRUE(SettlePosted(agent));
    }
    void Search(const std::wstring& ident) {
        SetText(field, ident);
        PressButton(dialog, IDC_SEARCH);
        Settle(dialog);
        SettlePosted(agent);
    }
    int DefaultButton() const { return LOWORD(SendMessageW(dialog, DM_GETDEFID, 0, 0)); }
    // Enter presses it, and it alone looks so.
    void ExpectDefaultButton(int button) const {
        EXPECT_EQ(DefaultButton(), button);
        for (const int other : { IDOK, IDC_SEARCH }) {
            const LONG kind = GetWindowLongW(ChildWithId(dialog, other), GWL_STYLE) & BS_TYPEMASK;
            EXPECT_EQ(kind, other == button ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON) << "button " << other;
        }
    }
    std::wstring Cell(int row, int column) const { return ListText(airports, row, column); }
    int RowOf(const std::wstring& ident) const {
        for (int row = 0; row < ListRows(airports); ++row) {
            if (Cell(row, 0) == ident) return row;
        }
        return -1;
    }
    int GreyPixels(const Picture& dialogPicture, int row) const {
        RECT rect = ListRowRect(airports, row);
        MapWindowPoints(airports, dialog, reinterpret_cast<POINT*>(&rect), 2);
        return CountColour(dialogPicture, rect, kGrey);
    }
    void ExpectOpened(const std::wstring& ident) {
        EXPECT_TRUE(WaitUntilGone(dialog)) << "the dialog stays open";
        EXPECT_TRUE(WaitForTitle(L"Tarvo    " + ident)) << Utf8(Title());
        EXPECT_TRUE(IsWindowEnabled(mainWindow));
    }
    void OpenByIdent(const std::wstring& ident) {
        ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
        SetText(field, ident);
        PressButton(dialog, IDOK);
        ExpectOpened(ident);
    }
    bool HasFocus(HWND window) const {
        return WaitUntil([&] { return FocusOf(agent) == window; });
    }

    // The item of that text below `parent` (null: a root), made visible; null when there is none.
    HTREEITEM Item(HTREEITEM parent, const std::wstring& text) const {
        HTREEITEM item = NextTreeItem(places, parent ? TVGN_CHILD : TVGN_ROOT, parent);
        while (item && TreeText(places, item) != text) item = NextTreeItem(places, TVGN_NEXT, item);
        return item;
    }
    // 1 for an item without one above it.
    int Level(HTREEITEM item) const {
        int level = 0;
        for (; item; item = NextTreeItem(places, TVGN_PARENT, item)) ++level;
        return level;
    }
    HTREEITEM Expanded(HTREEITEM item) const {
        SendMessageW(places, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(item));
        return item;
    }
    // Not by the user: so the tree itself does it, when it gets the focus.
    void SelectItem(HTREEITEM item) const {
        SendMessageW(places, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
    }
    // Again when a late echo of the pointer has taken the click elsewhere.
    void ClickItem(HTREEITEM item) const {
        constexpr int kClicks = 3;
        constexpr DWORD kSoon = 4000;
        const auto isSelected = [&] { return NextTreeItem(places, TVGN_CARET) == item; };
        SendMessageW(places, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
        const RECT rect = TreeItemRect(places, item);
        for (int i = 0; i < kClicks && (i == 0 || !WaitUntil(isSelected, kSoon)); ++i)
            ClickPointer(places, rect.left + 4, (rect.top + rect.bottom) / 2);
        EXPECT_TRUE(WaitUntil(isSelected));
        SettlePosted(agent);
    }
    // Found without asking the windows, whose thread is at work.
    HWND ProgressBox() const {
        for (const HWND window : TopLevelWindows(program.id)) {
            if (ClassOf(window) == L"#32770" && GetDlgItem(window, IDC_PROGRESS_BAR)) return window;
        }
        return nullptr;
    }

    // The box over a collection that has come so far: with its text, in sight, and the activation elsewhere. False when
    // the collection was over before all that could be read.
    bool WatchProgressBox(int percent) const {
        HWND box = nullptr;
        WaitUntil([&] { return (box = ProgressBox()) || IsThere(std::wstring(kProgramFolder) + L"\\FileList"); });
        if (!box) return false;
        const HWND text = GetDlgItem(box, IDC_PROGRESS_TEXT), bar = GetDlgItem(box, IDC_PROGRESS_BAR);
        WaitUntil([&] { return SendMessageW(bar, PBM_GETPOS, 0, 0) > percent || !IsWindow(box); });
        const std::wstring said = TextOf(text);
        const LRESULT range = SendMessageW(bar, PBM_GETRANGE, FALSE, 0);
        const bool visible = IsWindowVisible(box), active = GetForegroundWindow() == box;
        const HWND owner = GetWindow(box, GW_OWNER);
        if (!IsWindow(box)) return false;
        EXPECT_EQ(said, L"Collecting Airports...") << Utf8(said);
        EXPECT_EQ(range, 100);
        EXPECT_TRUE(visible);
        EXPECT_FALSE(active);
        EXPECT_EQ(owner, nullptr);
        EXPECT_TRUE(WaitUntil([&] { return !IsWindow(box); }));
        return true;
    }

    void ChooseFile(const std::wstring& path) {
        PressButton(dialog, IDC_OPEN_FILE);
        const HWND chooser = Dialog(kFileTitle);
        ASSERT_NE(chooser, nullptr);
        ASSERT_TRUE(AnswerFileDialog(chooser, path));
        ASSERT_TRUE(WaitUntilGone(chooser));
        Settle(dialog);
    }
    void ExpectRefusal(const std::wstring& path, const std::wstring& text) {
        ASSERT_NO_FATAL_FAILURE(ChooseFile(path));
        const Box box = MessageBoxUp();
        EXPECT_EQ(box.text, text);
        EXPECT_EQ(StockIcon(agent, box.icon), 32515);
        Answer(box, IDOK);
        EXPECT_EQ(NextTreeItem(places, TVGN_ROOT), nullptr);
        EXPECT_TRUE(IsWindowVisible(dialog));
    }
    std::vector<std::wstring> RecentTexts() const {
        std::vector<std::wstring> texts;
        for (const MenuEntry& entry : ReadMenu(agent)) {
            if (entry.id >= IDM_RECENT_FIRST && entry.id <= IDM_RECENT_LAST) texts.push_back(entry.text);
        }
        return texts;
    }

    HWND dialog = nullptr, places = nullptr, airports = nullptr, field = nullptr;
    std::vector<std::wstring> placed;
};

}  // namespace ui
