// OpenAirportTest.cpp - the Open Airport dialog from both sources, by mouse and by keyboard, and the recent airports.
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "OpenAirportIds.h"
#include "ProgramParts.h"
#include "ProgressIds.h"
#include "Resource.h"
#include "StandInBrowser.h"
#include "UiHarness.h"

namespace ui {

constexpr wchar_t kTitle[] = L"Open Airport";
constexpr wchar_t kFileTitle[] = L"Select an airport file";
constexpr wchar_t kAddOnFolder[] = L"C:\\UiTest\\FS9\\AddOn Scenery\\scenery";
constexpr wchar_t kSavePrompt[] = L"Do you want to save changes to the current facility ?";
constexpr int kNameColumn = 3;
constexpr uint32_t kGrey = 0xA0A0A0;  // of a superseded row

class OpenAirportTest : public UiTest {
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
    void Search(const std::wstring& ident) {
        SetText(field, ident);
        PressButton(dialog, IDC_SEARCH);
        Settle(dialog);
        SettlePosted(agent);
    }
    int DefaultButton() const { return LOWORD(SendMessageW(dialog, DM_GETDEFID, 0, 0)); }
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
    void ClickItem(HTREEITEM item) const {
        SendMessageW(places, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
        const RECT rect = TreeItemRect(places, item);
        ClickPointer(places, rect.left + 4, (rect.top + rect.bottom) / 2);
        SettlePosted(agent);
    }
    // Found without asking the windows, whose thread is at work.
    HWND ProgressBox() const {
        for (const HWND window : TopLevelWindows(program.id)) {
            if (ClassOf(window) == L"#32770" && GetDlgItem(window, IDC_PROGRESS_BAR)) return window;
        }
        return nullptr;
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

TEST_F(OpenAirportTest, TheDialogStartsEmptyWithTheFocusInTheIdField) {
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    EXPECT_EQ(TextOf(field), L"");
    EXPECT_EQ(SendMessageW(field, EM_GETLIMITTEXT, 0, 0), 7);
    EXPECT_EQ(ListRows(airports), 0);
    EXPECT_TRUE(HasFocus(field));
    EXPECT_EQ(DefaultButton(), IDOK);
    EXPECT_EQ(SendMessageW(ChildWithId(dialog, IDC_ALL_SCENERY), BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_FALSE(IsWindowEnabled(ChildWithId(dialog, IDC_OPEN_FILE)));
    EXPECT_FALSE(IsWindowEnabled(ChildWithId(dialog, IDC_FILE_NAME)));
    EXPECT_NE(Item(nullptr, L"Canada"), nullptr);
    EXPECT_NE(Item(nullptr, L"United States"), nullptr);
    CloseDialog(dialog, IDCANCEL);
    EXPECT_EQ(Title(), L"Tarvo        ");
}

TEST_F(OpenAirportTest, TheToolbarButtonOpensItToo) {
    Start();
    PostCommand(mainWindow, IDT_OPEN);
    EXPECT_NE(Dialog(kTitle), nullptr);
}

TEST_F(OpenAirportTest, TheTreeGoesFromCountryToCityAndListsAirports) {
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    ASSERT_TRUE(BringToFront(dialog));
    SetText(field, L"ABC");
    const HTREEITEM country = Expanded(Item(nullptr, L"United States"));
    const HTREEITEM state = Expanded(Item(country, L"Washington"));
    const HTREEITEM city = Item(state, L"Seattle");
    ASSERT_NE(city, nullptr);
    SelectItem(city);
    EXPECT_EQ(ListRows(airports), 0) << "the user has not chosen it";
    EXPECT_EQ(TextOf(field), L"ABC");
    ClickItem(city);
    ASSERT_TRUE(WaitUntil([&] { return ListRows(airports) == 2; }));
    EXPECT_EQ(Cell(0, 0), L"KBFI");
    EXPECT_EQ(Cell(1, 0), L"KSEA");
    EXPECT_EQ(Cell(1, 1), L"Stock");
    EXPECT_EQ(Cell(1, 2), L"10");
    EXPECT_EQ(Cell(1, 3), L"Seattle-Tacoma International Airport");
    EXPECT_EQ(TextOf(field), L"");
    EXPECT_EQ(DefaultButton(), IDOK);
    ClickItem(state);  // holds no airport itself
    EXPECT_EQ(ListRows(airports), 2);
    Search(L"CYYJ");
    EXPECT_EQ(ListRows(airports), 1);
    ClickItem(city);
    ASSERT_TRUE(WaitUntil([&] { return ListRows(airports) == 2; }));
    SelectListRow(airports, 1);
    PressButton(dialog, IDOK);
    ExpectOpened(L"KSEA");
    EXPECT_TRUE(WaitForTitle(L"( stock airport )"));
}

TEST_F(OpenAirportTest, EnterSearchesAndEnterAgainOpensTheFirstRow) {
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    ASSERT_TRUE(BringToFront(dialog));
    ASSERT_TRUE(HasFocus(field));
    TypeText(L"cyyj");
    ASSERT_TRUE(WaitUntil([&] { return TextOf(field) == L"CYYJ"; })) << Utf8(TextOf(field));
    EXPECT_EQ(DefaultButton(), IDC_SEARCH);
    TapKey(VK_RETURN);
    ASSERT_TRUE(WaitUntil([&] { return ListRows(airports) == 1; }));
    EXPECT_EQ(DefaultButton(), IDOK);
    EXPECT_TRUE(HasFocus(field));
    TapKey(VK_RETURN);
    ExpectOpened(L"CYYJ");
}

TEST_F(OpenAirportTest, KeysTypedWhileTheAirportsAreCollectedAreNotLost) {
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenDialog());
    ASSERT_TRUE(BringToFront(dialog));
    TypeText(L"ksea");
    EXPECT_TRUE(WaitUntil([&] { return TextOf(field) == L"KSEA"; })) << Utf8(TextOf(field));
    EXPECT_TRUE(WaitUntil([&] { return NextTreeItem(places, TVGN_ROOT) != nullptr; }));
    EXPECT_EQ(GetForegroundWindow(), dialog);
    EXPECT_TRUE(HasFocus(field));
}

TEST_F(OpenAirportTest, ItWorksWithTheKeyboardAlone) {
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    ASSERT_TRUE(BringToFront(dialog));
    TapKey('P', { VK_MENU });
    ASSERT_TRUE(HasFocus(places));
    TapKey(VK_HOME);
    TapKey(VK_RIGHT);  // opens Canada
    TapKey(VK_RIGHT);  // its first state
    TapKey(VK_RIGHT);
    TapKey(VK_RIGHT);  // and its first city
    // The state may hold airports too: what counts is the list of the city.
    ASSERT_TRUE(WaitUntil([&] { return Level(NextTreeItem(places, TVGN_CARET)) == 3; }));
    ASSERT_GT(ListRows(airports), 0);
    const std::wstring ident = Cell(0, 0);
    for (HWND next : { field, ChildWithId(dialog, IDC_SEARCH), airports }) {
        TapKey(VK_TAB);
        ASSERT_TRUE(HasFocus(next));
    }
    TapKey(VK_DOWN);
    ASSERT_TRUE(WaitUntil([&] { return SendMessageW(airports, LVM_GETSELECTEDCOUNT, 0, 0) == 1; }));
    TapKey(VK_RETURN);
    ExpectOpened(ident);
}

TEST_F(OpenAirportTest, EscapeLeavesTheOpenAirportAlone) {
    StartWithSample("hub");
    const std::wstring title = Title();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    ASSERT_TRUE(BringToFront(dialog));
    TapKey(VK_ESCAPE);
    EXPECT_TRUE(WaitUntilGone(dialog));
    EXPECT_EQ(Title(), title);
}

TEST_F(OpenAirportTest, ADoubleClickOpensTheRow) {
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    Search(L"WN7");
    const int row = RowOf(L"WN76");
    ASSERT_GE(row, 0);
    const RECT rect = ListRowRect(airports, row);
    SendMouse(airports, WM_LBUTTONDBLCLK, rect.left + 8, (rect.top + rect.bottom) / 2, MK_LBUTTON);
    ExpectOpened(L"WN76");
}

TEST_F(OpenAirportTest, OkWithoutAnAirportAsksForOne) {
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    for (const wchar_t* text : { L"", L"QQQQ" }) {
        SetText(field, text);
        PressButton(dialog, IDOK);
        const Box box = MessageBoxUp();
        EXPECT_EQ(box.text, L"You must select an AIRPORT");
        EXPECT_EQ(box.title, L"Tarvo");
        EXPECT_EQ(StockIcon(agent, box.icon), 32515);
        EXPECT_EQ(GetWindow(box.window, GW_OWNER), dialog);
        Answer(box, IDOK);
        EXPECT_TRUE(IsWindowVisible(dialog));
        EXPECT_TRUE(HasFocus(field));
    }
}

TEST_F(OpenAirportTest, OkWithoutASelectionSearchesAndOpensTheFirst) {
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    SetText(field, L"ksea");
    PressButton(dialog, IDOK);
    ExpectOpened(L"KSEA");
}

TEST_F(OpenAirportTest, AStockAirportUnderAnAddOnIsGreyBelowIt) {
    const SampleAirport sample = FindSample("hub");
    const std::wstring file = PutAddOn(sample.path, L"mine.bgl");
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    Search(sample.ident);
    ASSERT_EQ(ListRows(airports), 2);
    EXPECT_EQ(Cell(0, 1), L"Mod");
    EXPECT_EQ(Cell(0, 2), L"15");
    EXPECT_EQ(Cell(1, 1), L"Stock");
    EXPECT_EQ(Cell(1, 2), L"10");
    EXPECT_EQ(Cell(0, kNameColumn), Cell(1, kNameColumn));
    BringToFront(dialog);
    ParkPointer();
    RedrawWindow(airports, nullptr, nullptr, RDW_UPDATENOW);  // what is to be painted is painted now
    const Picture picture = GrabStable([&] { return GrabClient(dialog); });
    EXPECT_EQ(GreyPixels(picture, 0), 0);
    EXPECT_GT(GreyPixels(picture, 1), 20);
    PressButton(dialog, IDOK);
    ExpectOpened(sample.ident);
    EXPECT_TRUE(WaitForTitle(L"( file mine.bgl )")) << Utf8(Title());
}

TEST_F(OpenAirportTest, AtMost200RowsAreShownAndTheyAreSortedByName) {
    const SampleAirport sample = FindSample("hub");
    for (const wchar_t* name : { L"one.bgl", L"two.bgl", L"three.bgl" }) PutAddOn(sample.path, name);
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    Search(L"K");
    ASSERT_EQ(ListRows(airports), 200);
    for (int row = 1; row < 200; ++row) {
        EXPECT_LE(lstrcmpiW(Cell(row - 1, kNameColumn).c_str(), Cell(row, kNameColumn).c_str()), 0) << row;
    }
    Search(L"KS");
    EXPECT_GT(ListRows(airports), 0);
    EXPECT_LT(ListRows(airports), 200);
}

TEST_F(OpenAirportTest, TheColumnsFillTheListWithoutAScrollBarBelow) {
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    Search(L"K");
    RECT area{};
    GetClientRect(airports, &area);
    LONG width = 0;
    for (int column = 0; column < 4; ++column) {
        width += static_cast<LONG>(SendMessageW(airports, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column), 0));
    }
    EXPECT_LE(width, area.right);
    EXPECT_GE(width, area.right - 2);
    EXPECT_FALSE(GetWindowLongW(airports, GWL_STYLE) & WS_HSCROLL);
}

TEST_F(OpenAirportTest, ASecondOpeningReadsTheCachesAndAChangedFileAgain) {
    const SampleAirport sample = FindSample("hub");
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    CloseDialog(dialog, IDCANCEL);
    const std::wstring list = std::wstring(kProgramFolder) + L"\\FileList";
    EXPECT_NE(GetFileAttributesW(list.c_str()), INVALID_FILE_ATTRIBUTES);
    PutAddOn(sample.path, L"later.bgl");
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    Search(sample.ident);
    EXPECT_EQ(ListRows(airports), 2);
    CloseDialog(dialog, IDCANCEL);
    DeleteFileW(placed.back().c_str());
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    Search(sample.ident);
    EXPECT_EQ(ListRows(airports), 1);
}

TEST_F(OpenAirportTest, ASingleFileShowsItsAirportsAndIsRemembered) {
    const SampleAirport sample = FindSample("hub");
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    Search(L"K");
    PressButton(dialog, IDC_SPECIFIC_FILE);
    EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(ChildWithId(dialog, IDC_OPEN_FILE)) != 0; }));
    EXPECT_TRUE(WaitUntil([&] { return ListRows(airports) == 0; }));
    ASSERT_NO_FATAL_FAILURE(ChooseFile(sample.path));
    ASSERT_TRUE(WaitUntil([&] { return NextTreeItem(places, TVGN_ROOT) != nullptr; }));
    EXPECT_EQ(TextOf(ChildWithId(dialog, IDC_FILE_NAME)), sample.path);
    Search(L"CYYJ");
    EXPECT_EQ(ListRows(airports), 0) << "it lies in another file";
    CloseDialog(dialog, IDCANCEL);
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    EXPECT_EQ(SendMessageW(ChildWithId(dialog, IDC_SPECIFIC_FILE), BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_EQ(TextOf(ChildWithId(dialog, IDC_FILE_NAME)), sample.path);
    Search(sample.ident);
    ASSERT_EQ(ListRows(airports), 1);
    PressButton(dialog, IDC_ALL_SCENERY);
    EXPECT_TRUE(WaitUntil([&] { return ListRows(airports) == 0; }));
    EXPECT_TRUE(WaitUntil([&] { return Item(nullptr, L"Canada") != nullptr; }));
    EXPECT_FALSE(IsWindowEnabled(ChildWithId(dialog, IDC_OPEN_FILE)));
}

TEST_F(OpenAirportTest, SwitchingToASingleFileEmptiesTheDialogUntilOneIsOpened) {
    const SampleAirport sample = FindSample("hub");
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    PressButton(dialog, IDC_SPECIFIC_FILE);
    ASSERT_TRUE(WaitUntil([&] { return IsWindowEnabled(ChildWithId(dialog, IDC_OPEN_FILE)) != 0; }));
    ASSERT_NO_FATAL_FAILURE(ChooseFile(sample.path));
    ASSERT_TRUE(WaitUntil([&] { return NextTreeItem(places, TVGN_ROOT) != nullptr; }));
    PressButton(dialog, IDC_ALL_SCENERY);
    ASSERT_TRUE(WaitUntil([&] { return Item(nullptr, L"Canada") != nullptr; }));
    Search(sample.ident);
    ASSERT_EQ(ListRows(airports), 1);
    PressButton(dialog, IDC_SPECIFIC_FILE);
    SettlePosted(agent);
    EXPECT_EQ(ListRows(airports), 0);
    EXPECT_EQ(NextTreeItem(places, TVGN_ROOT), nullptr);
    EXPECT_EQ(TextOf(ChildWithId(dialog, IDC_FILE_NAME)), sample.path);
    Search(sample.ident);
    EXPECT_EQ(ListRows(airports), 0);
}

TEST_F(OpenAirportTest, TheListTellsWhatItsColumnsAre) {
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    const wchar_t* const titles[] = { L"ID", L"Type", L"Layer", L"Name" };
    for (int column = 0; column < 4; ++column) EXPECT_EQ(ListColumnTitle(airports, column), titles[column]);
    const std::vector<HWND> controls = Children(dialog);
    for (const wchar_t* line :
         { L"Stock = Original unmodified Flight Simulator airport", L"Mod   = Modified airport or new airport" }) {
        const auto shows = [&](HWND control) { return TextOf(control) == line && IsWindowVisible(control); };
        EXPECT_TRUE(std::any_of(controls.begin(), controls.end(), shows)) << Utf8(line);
    }
}

TEST_F(OpenAirportTest, HelpOpensTheManualAtItsTopic) {
    const StandInBrowser browser;
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    EXPECT_EQ(TextOf(ChildWithId(dialog, IDC_OPEN_HELP)), L"&Help");
    PressButton(dialog, IDC_OPEN_HELP);
    EXPECT_TRUE(browser.WaitForOpened("file:///C:/UiTest/Tarvo/ReadMe.htm#StartingTarvo\n")) << browser.Opened();
    EXPECT_TRUE(IsWindowVisible(dialog)) << "the dialog stays open";
}

TEST_F(OpenAirportTest, ABoxShowsHowFarTheCollectionIsAndNeverTakesTheActivation) {
    constexpr int kFiles = 1500;
    const std::wstring file = std::wstring(kSimulatorFolder) + L"\\Scenery\\Namw\\Scenery\\AP916120.bgl";
    for (int i = 0; i < kFiles; ++i) PutAddOn(file, (L"copy" + std::to_wstring(i) + L".bgl").c_str());
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenDialog());
    HWND box = nullptr;
    ASSERT_TRUE(WaitUntil([&] { return (box = ProgressBox()) != nullptr; }));
    const HWND text = GetDlgItem(box, IDC_PROGRESS_TEXT), bar = GetDlgItem(box, IDC_PROGRESS_BAR);
    EXPECT_TRUE(WaitUntil([&] { return TextOf(text) == L"Collecting Airports..."; })) << Utf8(TextOf(text));
    EXPECT_TRUE(WaitUntil([&] { return SendMessageW(bar, PBM_GETPOS, 0, 0) > 5; }));
    EXPECT_TRUE(IsWindowVisible(box));
    EXPECT_NE(GetForegroundWindow(), box);
    EXPECT_EQ(SendMessageW(bar, PBM_GETRANGE, FALSE, 0), 100);
    EXPECT_EQ(GetWindow(box, GW_OWNER), nullptr);
    EXPECT_TRUE(WaitUntil([&] { return !IsWindow(box); }));
    EXPECT_EQ(ProgressBox(), nullptr);
    EXPECT_TRUE(WaitUntil([&] { return NextTreeItem(places, TVGN_ROOT) != nullptr; }));
    EXPECT_TRUE(IsWindowEnabled(dialog));
    EXPECT_TRUE(HasFocus(field));
    EXPECT_TRUE(WaitUntil([&] { return GetForegroundWindow() == dialog; }));
}

TEST_F(OpenAirportTest, ASingleFileIsRefusedWithItsReason) {
    const SampleAirport sample = FindSample("hub");
    const std::wstring text = PutText(L"text.bgl", "no scenery at all, but long enough to be taken for a header");
    const std::wstring none = sample.path.substr(0, sample.path.find_last_of(L'\\')) + L"\\nv9Namw0.bgl";
    const std::wstring held = PutAddOn(sample.path, L"held.bgl");
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    PressButton(dialog, IDC_SPECIFIC_FILE);
    ASSERT_TRUE(WaitUntil([&] { return IsWindowEnabled(ChildWithId(dialog, IDC_OPEN_FILE)) != 0; }));
    ExpectRefusal(text, L"Selected file  " + text + L"  is not in recognised AFD format");
    ASSERT_NE(GetFileAttributesW(none.c_str()), INVALID_FILE_ATTRIBUTES);
    ExpectRefusal(none, L"Selected file  " + none + L"  does not contain any airports");
    const HANDLE lock = CreateFileW(held.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    ExpectRefusal(held, L"Unable to open file \"" + held + L"\"");
    CloseHandle(lock);
    ASSERT_NO_FATAL_FAILURE(ChooseFile(held));
    EXPECT_TRUE(WaitUntil([&] { return NextTreeItem(places, TVGN_ROOT) != nullptr; }));
}

TEST_F(OpenAirportTest, WithoutASimulatorTheLibraryIsEmptyAndSingleFilesOpen) {
    const SampleAirport sample = FindSample("hub");
    Start(L"", "[General]\r\nNextUpdateNotice=9999\r\nOverrideFSFolder=C:\\UiTest\\None\r\n");
    ASSERT_NO_FATAL_FAILURE(OpenDialog());
    PressButton(dialog, IDC_SPECIFIC_FILE);
    ASSERT_TRUE(WaitUntil([&] { return IsWindowEnabled(ChildWithId(dialog, IDC_OPEN_FILE)) != 0; }));
    EXPECT_EQ(NextTreeItem(places, TVGN_ROOT), nullptr);
    ASSERT_NO_FATAL_FAILURE(ChooseFile(sample.path));
    ASSERT_TRUE(WaitUntil([&] { return NextTreeItem(places, TVGN_ROOT) != nullptr; }));
    SetText(field, sample.ident);
    PressButton(dialog, IDOK);
    ExpectOpened(sample.ident);
}

TEST_F(OpenAirportTest, TheSavePromptComesFirst) {
    StartWithSample("hub");
    CreateNode(mainWindow, IDT_NORMAL_NODE);
    const std::wstring title = Title();
    PostCommand(mainWindow, IDM_OPEN);
    Box box = MessageBoxUp();
    EXPECT_EQ(box.text, kSavePrompt);
    PressButton(box.window, IDCANCEL);
    ASSERT_TRUE(WaitUntilGone(box.window));
    SettlePosted(agent);
    EXPECT_EQ(FindVisible(program.id, L"#32770", kTitle), nullptr);
    EXPECT_EQ(Title(), title);
    PostCommand(mainWindow, IDM_OPEN);
    box = MessageBoxUp();
    PressButton(box.window, IDNO);
    dialog = Dialog(kTitle);
    ASSERT_NE(dialog, nullptr);
    CloseDialog(dialog, IDCANCEL);
    EXPECT_EQ(Title(), title) << "the airport was dropped before another one was chosen";
    EXPECT_FALSE(IsGreyed(IDM_UNDO));
}

TEST_F(OpenAirportTest, YesSavesBeforeTheDialogComes) {
    const SampleAirport sample = FindSample("hub");
    StartWithSample("hub");
    placed.push_back(std::wstring(kAddOnFolder) + L"\\TV2_own.bgl");
    PostCommand(mainWindow, IDM_SAVE_AS);
    ASSERT_TRUE(AnswerFileDialog(Dialog(L"Save Airport File"), placed.back()));
    ASSERT_TRUE(WaitForTitle(L"( file TV2_own.bgl )")) << Utf8(Title());
    CreateNode(mainWindow, IDT_NORMAL_NODE);
    PostCommand(mainWindow, IDM_OPEN);
    const Box box = MessageBoxUp();
    PressButton(box.window, IDYES);
    dialog = Dialog(kTitle);
    ASSERT_NE(dialog, nullptr);
    airports = ChildWithId(dialog, IDC_AIRPORTS);
    field = ChildWithId(dialog, IDC_AIRPORT_ID);
    places = ChildWithId(dialog, IDC_PLACES);
    ASSERT_TRUE(WaitUntil([&] { return NextTreeItem(places, TVGN_ROOT) != nullptr; }));
    Search(sample.ident);
    ASSERT_EQ(ListRows(airports), 2) << "the saved file is not in the index";
    EXPECT_EQ(Cell(0, 1), L"Mod");
    Search(L"WN76");
    EXPECT_EQ(ListRows(airports), 1) << "the file holds the saved airport only";
}

TEST_F(OpenAirportTest, OpenedAirportsComeToTheTopOfTheFileMenu) {
    Start();
    for (const wchar_t* ident : { L"KSEA", L"CYYJ", L"KSEA" }) {
        ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
        SetText(field, ident);
        PressButton(dialog, IDOK);
        ExpectOpened(ident);
    }
    EXPECT_EQ(RecentTexts(), (std::vector<std::wstring>{ L"&1  KSEA", L"&2  CYYJ" }));
    PostCommand(mainWindow, IDM_RECENT_FIRST + 1);
    EXPECT_TRUE(WaitForTitle(L"Tarvo    CYYJ")) << Utf8(Title());
    EXPECT_EQ(RecentTexts(), (std::vector<std::wstring>{ L"&1  CYYJ", L"&2  KSEA" }));
    EXPECT_FALSE(IsGreyed(IDM_RECENT_FIRST));
}

TEST_F(OpenAirportTest, RecentAirportsAreThereAfterARestart) {
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    SetText(field, L"CYYJ");
    PressButton(dialog, IDOK);
    ExpectOpened(L"CYYJ");
    EXPECT_EQ(CloseProgram(), 0u);
    DetachAgent(&agent);
    EndProgram(&program);
    Start(L"", nullptr);
    EXPECT_EQ(RecentTexts(), std::vector<std::wstring>{ L"&1  CYYJ" });
    PostCommand(mainWindow, IDM_RECENT_FIRST);
    EXPECT_TRUE(WaitForTitle(L"Tarvo    CYYJ")) << Utf8(Title());
}

TEST_F(OpenAirportTest, ARecentAirportThatItsFileDoesNotHoldAnyMoreLeavesNoneOpen) {
    const SampleAirport sample = FindSample("hub");
    const std::wstring file = PutAddOn(sample.path, L"changed.bgl");
    Start();
    for (const wchar_t* ident : { L"KSEA", L"CYYJ" }) {
        ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
        SetText(field, ident);
        PressButton(dialog, IDOK);
        ExpectOpened(ident);
    }
    PutAddOn(std::wstring(kSimulatorFolder) + L"\\Scenery\\Namw\\Scenery\\AP916120.bgl", L"changed.bgl");
    PostCommand(mainWindow, IDM_RECENT_FIRST + 1);
    const Box box = MessageBoxUp();
    EXPECT_EQ(box.text, L"Selected file  " + file + L"  does not contain airport KSEA");
    Answer(box, IDOK);
    EXPECT_EQ(Title(), L"Tarvo        ");
    EXPECT_TRUE(IsGreyed(IDM_SAVE));
}

TEST_F(OpenAirportTest, ARecentAirportWhoseFileHasGoneIsNamedAndTheOpenOneStays) {
    const SampleAirport sample = FindSample("hub");
    const std::wstring file = PutAddOn(sample.path, L"gone.bgl");
    Start();
    for (const wchar_t* ident : { L"KSEA", L"CYYJ" }) {
        ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
        SetText(field, ident);
        PressButton(dialog, IDOK);
        ExpectOpened(ident);
    }
    ASSERT_TRUE(DeleteFileW(file.c_str()));
    PostCommand(mainWindow, IDM_RECENT_FIRST + 1);
    const Box box = MessageBoxUp();
    EXPECT_EQ(box.text, L"Unable to open file \"" + file + L"\"");
    Answer(box, IDOK);
    EXPECT_NE(Title().find(L"CYYJ"), std::wstring::npos) << Utf8(Title());
    EXPECT_FALSE(IsGreyed(IDM_SAVE));
}

}  // namespace ui
