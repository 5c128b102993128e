// OpenAirportTest.cpp - the Open Airport dialog over the scenery library, by mouse and by keyboard.
#include <algorithm>
#include <string>
#include <vector>

#include "OpenAirportSteps.h"
#include "StandInBrowser.h"

namespace ui {

class OpenAirportTest : public OpenAirportFixture {};

TEST_F(OpenAirportTest, TheDialogStartsEmptyWithTheFocusInTheIdField) {
    Start();
    ASSERT_NO_FATAL_FAILURE(OpenFilledDialog());
    EXPECT_EQ(TextOf(field), L"");
    EXPECT_EQ(SendMessageW(field, EM_GETLIMITTEXT, 0, 0), 7);
    EXPECT_EQ(ListRows(airports), 0);
    EXPECT_TRUE(HasFocus(field));
    ExpectDefaultButton(IDOK);
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
    ExpectDefaultButton(IDOK);
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
    ExpectDefaultButton(IDC_SEARCH);
    TapKey(VK_RETURN);
    ASSERT_TRUE(WaitUntil([&] { return ListRows(airports) == 1; }));
    ExpectDefaultButton(IDOK);
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
    Picture picture;
    EXPECT_TRUE(WaitUntil([&] {
        picture = GrabStable([&] { return GrabClient(dialog); });
        return GreyPixels(picture, 1) > 20;
    })) << GreyPixels(picture, 1);
    EXPECT_EQ(GreyPixels(picture, 0), 0);
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
    bool seen = WatchProgressBox(5);
    for (int again = 0; again < 2 && !seen; ++again) {  // who is held up so long misses it
        CloseDialog(dialog, IDCANCEL);
        ForgetCollection();
        ASSERT_NO_FATAL_FAILURE(OpenDialog());
        seen = WatchProgressBox(5);
    }
    EXPECT_TRUE(seen);
    EXPECT_EQ(ProgressBox(), nullptr);
    EXPECT_TRUE(WaitUntil([&] { return NextTreeItem(places, TVGN_ROOT) != nullptr; }));
    EXPECT_TRUE(IsWindowEnabled(dialog));
    EXPECT_TRUE(HasFocus(field));
    EXPECT_TRUE(WaitUntil([&] { return GetForegroundWindow() == dialog; }));
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

}  // namespace ui
